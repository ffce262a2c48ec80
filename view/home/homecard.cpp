#include "view/home/homecard.h"

#include "kit/material/qtmaterialraisedbutton.h"
#include "view/common/tabstyle.h"

#include <QBoxLayout>
#include <QLabel>

namespace {

constexpr int kSpacing = 20;

/// Replaces the whole sheet: setStyleSheet() does not add to the earlier one.
void setButtonTiny(QPushButton *button, bool tiny)
{
    const QString tinySheet = QStringLiteral("QPushButton {font-size: 16px; min-height: 52px; padding: 4px 8px;}");
    const QString wideSheet = QStringLiteral("QPushButton {min-width: %1px;}").arg(HomeCard::kButtonWidth);
    button->setStyleSheet(tabstyle::largeSheet() + (tiny ? tinySheet : wideSheet));
    button->setIconSize(tiny ? QSize(24, 24) : QSize(36, 36));
}

} // namespace

HomeCard::HomeCard(QWidget *parent)
    : ShadowFrame(parent)
    , m_row(new QBoxLayout(QBoxLayout::LeftToRight, this))
{
    setObjectName(QStringLiteral("homeCard"));
    m_row->setSpacing(kSpacing);
}

QPushButton *HomeCard::newButton(const char *name, const QString &icon)
{
    auto *button = new QtMaterialRaisedButton(this);
    button->setObjectName(QLatin1String(name));
    tabstyle::makeLarge(button, icon);
    setButtonTiny(button, false);
    m_buttons.append(button);
    return button;
}

QLabel *HomeCard::newHeading()
{
    auto *heading = new QLabel(this);
    m_headings.append(heading);
    return heading;
}

void HomeCard::setNarrow(bool narrow)
{
    m_row->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void HomeCard::setTiny(bool tiny)
{
    const int margin = tiny ? kGap / 2 : kGap;
    m_row->setContentsMargins(margin, margin, margin, margin);
    for (QPushButton *button : qAsConst(m_buttons))
        setButtonTiny(button, tiny);
    for (QLabel *heading : qAsConst(m_headings))
        tabstyle::makeHeading(heading, tiny ? 18 : 22);
}
