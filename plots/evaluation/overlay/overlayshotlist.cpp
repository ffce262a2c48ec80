#include "plots/evaluation/overlay/overlayshotlist.h"

#include "kit/material/qtmaterialflatbutton.h"
#include "plots/evaluation/overlay/overlaytable.h"

#include <QLabel>
#include <QVBoxLayout>

OverlayShotList::OverlayShotList(OverlayTable *table, QWidget *parent)
    : TranslatedWidget(parent)
    , m_status(new QLabel(this))
    , m_all(new QtMaterialFlatButton(this))
    , m_none(new QtMaterialFlatButton(this))
    , m_reference(new QtMaterialFlatButton(this))
{
    m_status->setObjectName(QStringLiteral("labelStatus"));
    m_all->setObjectName(QStringLiteral("buttonAll"));
    m_none->setObjectName(QStringLiteral("buttonNone"));
    m_reference->setObjectName(QStringLiteral("buttonReference"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(table, 1);
    layout->addWidget(m_status);
    auto *buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    buttons->addWidget(m_all, 1);
    buttons->addWidget(m_none, 1);
    buttons->addWidget(m_reference, 2);
    retranslateUi();
    connect(m_all, &QPushButton::clicked, this, [this] { emit allWanted(true); });
    connect(m_none, &QPushButton::clicked, this, [this] { emit allWanted(false); });
    connect(m_reference, &QPushButton::clicked, this, &OverlayShotList::referenceWanted);
}

void OverlayShotList::showStatus(const Status &status)
{
    m_shown = status;
    QString text =
        status.count == 0 ? tr("Noch keine Messungen") : tr("%1 von %2 gezeigt").arg(status.shown).arg(status.count);
    if (status.unplaced > 0)
        text += QStringLiteral(", ") + unplacedText();
    m_status->setText(text);
    m_reference->setEnabled(status.hasCurrent);
    m_reference->setText(status.isReferenceCurrent ? tr("&Referenz aufheben") : tr("Als &Referenz"));
    m_all->setEnabled(status.count > 0);
    m_none->setEnabled(status.count > 0);
}

QString OverlayShotList::unplacedText() const
{
    if (usesThreshold(m_shown.by))
        return tr("%1 ohne Durchgang").arg(m_shown.unplaced);
    return (m_shown.by == AlignBy::Start ? tr("%1 leer") : tr("%1 zu kurz")).arg(m_shown.unplaced);
}

void OverlayShotList::retranslateUi()
{
    m_all->setText(tr("&Alle zeigen"));
    m_none->setText(tr("&Keine zeigen"));
    showStatus(m_shown);
}
