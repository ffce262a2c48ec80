#include "view/oscilloscope/oszicontrols.h"

#include "kit/material/qtmaterialtoggle.h"
#include "view/common/actionicon.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace oszicontrols {

QCheckBox *createCheckBox(const QString &name, bool checked, QWidget *parent)
{
    auto *box = new QCheckBox(parent);
    box->setObjectName(name);
    box->setChecked(checked);
    return box;
}

QCheckBox *createBareCheckBox(const QString &name, bool checked, QWidget *parent)
{
    QCheckBox *box = createCheckBox(name, checked, parent);
    box->setMaximumWidth(kCheckBoxWidth);
    return box;
}

QCheckBox *createToggle(const QString &name, bool checked, QWidget *parent)
{
    auto *toggle = new QtMaterialToggle(parent);
    toggle->setObjectName(name);
    toggle->setChecked(checked);
    return toggle;
}

QPushButton *createClearButton(const QString &name, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    button->setIcon(actionIcon(QStringLiteral("delete.png"), Qt::white));
    button->setIconSize(QSize(kClearIconSize, kClearIconSize));
    return button;
}

QHBoxLayout *layOutGroup(QWidget *group)
{
    auto *layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    return layout;
}

QWidget *createGroup(std::initializer_list<QWidget *> controls, QWidget *parent)
{
    auto *group = new QWidget(parent);
    QHBoxLayout *layout = layOutGroup(group);
    for (QWidget *control : controls)
        layout->addWidget(control);
    return group;
}

} // namespace oszicontrols
