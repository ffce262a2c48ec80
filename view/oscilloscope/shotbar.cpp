#include "view/oscilloscope/shotbar.h"

#include "plots/oscilloscope/osziwidget.h"
#include "view/common/flowlayout.h"
#include "view/common/logging.h"
#include "view/oscilloscope/oszicontrols.h"
#include "view/oscilloscope/oszispinbox.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

constexpr int kGroupGap = 14;     // pixels
constexpr int kLeastField = 110;  // pixels
constexpr int kWidestField = 420; // pixels, with its caption

QLineEdit *createField(const QString &name, QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setMinimumWidth(kLeastField);
    return field;
}

} // namespace

ShotBar::ShotBar(QWidget *parent)
    : QWidget(parent)
{
    // One flow for all groups: nested ones would wrap as a block.
    m_flow = new FlowLayout(kGroupGap, oszicontrols::kLineGap, this);
    createMeasurements();
    m_flow->addWidget(createDeletion());
    connectControls();
    retranslateUi();
}

void ShotBar::addGroup(QWidget *group)
{
    m_flow->addWidget(group);
}

void ShotBar::createMeasurements()
{
    m_counterCaption = new QLabel(this);
    m_counter = new QLabel(this);
    m_counter->setObjectName(QStringLiteral("numMeasuringsLabel"));
    m_displayedCaption = new QLabel(this);
    m_all = oszicontrols::createCheckBox(QStringLiteral("checkBoxAllMeasurings"), true, this);
    m_displayed = createField(QStringLiteral("displayedMeasLineEdit"), this);
    m_highlightCaption = new QLabel(this);
    m_highlight = new OsziSpinBox(QStringLiteral("00000"), this);
    m_highlight->setObjectName(QStringLiteral("highlightSpinBox"));
    m_highlight->setRange(0, 0);
    m_flow->addWidget(oszicontrols::createGroup({m_counterCaption, m_counter}, this));
    QWidget *choice = oszicontrols::createGroup({m_displayedCaption, m_all, m_displayed}, this);
    choice->setMaximumWidth(kWidestField);
    m_flow->addWidget(choice);
    m_flow->addWidget(oszicontrols::createGroup({m_highlightCaption, m_highlight}, this));
}

QWidget *ShotBar::createDeletion()
{
    auto *group = new QWidget(this);
    group->setMaximumWidth(kWidestField);
    m_deletionCaption = new QLabel(group);
    m_deletion = createField(QStringLiteral("measToDeleteLineEdit"), group);
    m_deleteButton = oszicontrols::createClearButton(QStringLiteral("buttonDeleteMeasurement"), group);
    QHBoxLayout *layout = oszicontrols::layOutGroup(group);
    layout->addWidget(m_deletionCaption);
    layout->addWidget(m_deletion);
    layout->addWidget(m_deleteButton);
    return group;
}

void ShotBar::connectControls()
{
    connect(m_all, &QCheckBox::toggled, this, &ShotBar::allDisplayedToggled);
    connect(m_displayed, &QLineEdit::editingFinished, this, &ShotBar::displayedEdited);
    connect(m_highlight, qOverload<int>(&QSpinBox::valueChanged), this, &ShotBar::highlightEdited);
    connect(m_deleteButton, &QPushButton::clicked, this, &ShotBar::deletionTriggered);
    connect(m_deletion, &QLineEdit::returnPressed, this, &ShotBar::deletionTriggered);
}

void ShotBar::showCount(int count)
{
    m_count = count;
    const QSignalBlocker blocker(m_highlight); // the plots have highlighted the newest already
    m_highlight->setMaximum(count);
    m_highlight->setValue(count);
    showCounter();
}

void ShotBar::showCounter()
{
    const bool tooMany = m_count > OsziWidget::kNumSlots;
    m_counter->setText(QString::number(m_count));
    m_counter->setToolTip(tooMany ? tr("Dargestellt werden die Messungen 1 bis %1. Alle weiteren werden "
                                       "aufgezeichnet und gespeichert, aber nicht gezeichnet.")
                                        .arg(OsziWidget::kNumSlots)
                                  : QString());
    m_counterCaption->setText(tooMany ? tr("Messungen (%1 gezeigt)").arg(OsziWidget::kNumSlots) : tr("Messungen"));
}

void ShotBar::updateEnabled(bool open, bool any)
{
    m_all->setEnabled(any);
    m_displayed->setEnabled(any);
    m_highlight->setEnabled(any);
    m_deletion->setEnabled(open && any);
    m_deleteButton->setEnabled(open && any);
}

bool ShotBar::allDisplayed() const
{
    return m_all->isChecked();
}

void ShotBar::setAllDisplayed(bool all)
{
    const QSignalBlocker blocker(m_all);
    m_all->setChecked(all);
}

QString ShotBar::displayedText() const
{
    return m_displayed->text();
}

void ShotBar::leaveDisplayed()
{
    const QSignalBlocker blocker(m_displayed); // losing the focus would end the editing once more
    m_displayed->clearFocus();
}

void ShotBar::requestDeletion()
{
    const QString range = m_deletion->text();
    if (range.simplified().isEmpty()) {
        m_deletion->setFocus(Qt::OtherFocusReason);
        return;
    }
    qCDebug(lcView) << "emit deleteMeasurements(QString)"
                    << "range=" << range;
    emit deletionRequested(range);
}

void ShotBar::clearDeletion()
{
    m_deletion->setText(QString()); // unlike clear() it leaves nothing that Ctrl+Z could bring back
}

void ShotBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void ShotBar::retranslateUi()
{
    showCounter();
    m_displayedCaption->setText(tr("Angezeigt"));
    m_all->setText(tr("alle"));
    m_all->setToolTip(tr("Alle Messungen zeigen"));
    m_displayed->setToolTip(tr("Nummern und Bereiche, durch Komma getrennt: 1-3,5 zeigt die Messungen "
                               "1, 2, 3 und 5."));
    m_displayed->setAccessibleName(tr("Angezeigte Messungen"));
    m_highlightCaption->setText(tr("Markiert"));
    m_highlight->setToolTip(tr("Nummer der hervorgehobenen Messung; 0 hebt keine hervor"));
    m_highlight->setAccessibleName(tr("Markierte Messung"));
    m_deletionCaption->setText(tr("Löschen"));
    m_deletion->setToolTip(tr("Nummern und Bereiche in aufsteigender Folge, durch Komma getrennt: "
                              "1-3,5 löscht die Messungen 1, 2, 3 und 5."));
    m_deletion->setAccessibleName(tr("Zu löschende Messungen"));
    m_deleteButton->setToolTip(tr("Diese Messungen löschen"));
    m_deleteButton->setAccessibleName(m_deleteButton->toolTip());
}
