#include "plots/evaluation/overlay/tabevaluationoverlay.h"
#include "plots/evaluation/common/sensorselection.h"

#include "model/model.h"
#include "plots/common/logging.h"
#include "plots/evaluation/overlay/colordelegate.h"
#include "plots/evaluation/overlay/overlayplot.h"
#include "plots/evaluation/overlay/overlaytablemodel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QTableView>

#include <algorithm>

TabEvaluationOverlay::TabEvaluationOverlay(QWidget *parent)
    : ModelPage(parent)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    createLayout();
    retranslateUi();
    connectWidgets();
    onAlignmentChanged();
}

TabEvaluationOverlay::~TabEvaluationOverlay() = default;

void TabEvaluationOverlay::setModel(Model *model)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!model) {
        qCDebug(lcPlots) << "ERROR: model is not set!  (model==nullptr)!";
        return;
    }
    follow(model);
    m_looks.clear();
    m_reference = 0;
    forgetShots();
    update();
}

int TabEvaluationOverlay::currentSensor() const
{
    return m_sensors->sensor();
}

// --- Following the model ---------------------------------------------------------------------------------------------

// Nothing would free the samples of removed shots before the page is shown again.
void TabEvaluationOverlay::structureChanged()
{
    if (!isVisible())
        forgetShots();
}

void TabEvaluationOverlay::hideEvent(QHideEvent *event)
{
    ModelPage::hideEvent(event);
    if (isOutOfDate())
        forgetShots(); // some of them may be gone
}

bool TabEvaluationOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
        toggleSelected();
        return true;
    }
    return ModelPage::eventFilter(watched, event);
}

void TabEvaluationOverlay::update()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!model()) {
        qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " ERROR: model is not set!  (model==nullptr)!";
        return;
    }
    refreshNow();
}

void TabEvaluationOverlay::refresh()
{
    m_sensors->showSensors(model());
    recompute();
}

void TabEvaluationOverlay::recompute()
{
    if (!model())
        return;
    refreshShots();
    showRows();
    showPlot();
}

// --- Shots -----------------------------------------------------------------------------------------------------------

void TabEvaluationOverlay::forgetShots()
{
    setSlots({});
    m_plot->setReference({});
    m_plot->setMean(nullptr, false, 0.0);
    m_shots.clear();
}

bool TabEvaluationOverlay::usesThreshold() const
{
    const auto by = static_cast<AlignBy>(m_comboAlignment->currentData().toPoint().x());
    return by == AlignBy::Rising || by == AlignBy::Falling;
}

AlignmentRule TabEvaluationOverlay::rule() const
{
    const QPoint choice = m_comboAlignment->currentData().toPoint(); // kind and marker
    AlignmentRule rule;
    rule.by = static_cast<AlignBy>(choice.x());
    rule.offset = model()->offset(m_currentSensor);
    if (rule.by == AlignBy::Marker)
        rule.marker = model()->verticalMarker(choice.y());
    if (usesThreshold())
        rule.threshold = m_thresholds[static_cast<size_t>(m_currentSensor)];
    return rule;
}

/// What a shot is known by: the id of its measurement of the first sensor that has one.
quint64 TabEvaluationOverlay::keyOf(int shot) const
{
    quint64 key = 0;
    for (int sensor = 0; sensor < kNumSensors && key == 0; ++sensor)
        key = model()->measurementId(sensor, shot);
    return key;
}

/// True if shots have gone, or others have come in their place.
bool TabEvaluationOverlay::readKeys()
{
    int count = 0;
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        count = std::max(count, model()->numChannels(sensor));
    std::vector<quint64> keys(static_cast<size_t>(count));
    for (int shot = 0; shot < count; ++shot)
        keys[static_cast<size_t>(shot)] = keyOf(shot);
    const bool hasMoved = std::mismatch(m_keys.begin(), m_keys.end(), keys.begin(), keys.end()).first != m_keys.end();
    m_keys = std::move(keys);
    return hasMoved;
}

void TabEvaluationOverlay::forgetRemovedLooks()
{
    QHash<quint64, Look> looks;
    for (const quint64 key : m_keys) {
        const auto look = m_looks.constFind(key);
        if (look != m_looks.constEnd())
            looks.insert(key, *look);
    }
    m_looks = looks;
    if (std::find(m_keys.begin(), m_keys.end(), m_reference) == m_keys.end())
        m_reference = 0;
}

void TabEvaluationOverlay::refreshShots()
{
    const bool hasMoved = readKeys();
    if (hasMoved)
        forgetRemovedLooks();
    std::vector<OverlayShots::Source> sources(static_cast<size_t>(model()->numChannels(m_currentSensor)));
    quint64 reference = 0;
    for (size_t i = 0; i < sources.size(); ++i) {
        const auto shot = static_cast<int>(i);
        sources[i] = {model()->measurementId(m_currentSensor, shot), model()->measurement(m_currentSensor, shot)};
        if (m_keys[i] == m_reference)
            reference = sources[i].id;
    }
    m_shots.refresh(sources, rule(), reference);
    if (!hasMoved)
        return;
    m_table->clearSelection(); // its rows are of other shots now
    m_table->setCurrentIndex({});
}

int TabEvaluationOverlay::referenceShot() const
{
    const auto found = std::find(m_keys.begin(), m_keys.end(), m_reference);
    return m_reference == 0 || found == m_keys.end() ? -1 : static_cast<int>(found - m_keys.begin());
}

void TabEvaluationOverlay::setReferenceShot(int shot)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "shot=" << shot;
    const bool exists = shot >= 0 && static_cast<size_t>(shot) < m_keys.size();
    m_reference = exists ? m_keys[static_cast<size_t>(shot)] : 0;
    recompute();
}

TabEvaluationOverlay::Look TabEvaluationOverlay::lookOf(int shot) const
{
    return m_looks.value(m_keys[static_cast<size_t>(shot)]);
}

QColor TabEvaluationOverlay::colorOf(int shot) const
{
    const QColor chosen = lookOf(shot).color;
    return chosen.isValid() ? chosen : ColorDelegate::colorAt(shot);
}

// --- The table -------------------------------------------------------------------------------------------------------

void TabEvaluationOverlay::showRows()
{
    std::vector<OverlayRow> rows(m_shots.shots().size());
    const int reference = referenceShot();
    for (size_t i = 0; i < rows.size(); ++i) {
        const auto shot = static_cast<int>(i);
        rows[i].color = colorOf(shot);
        rows[i].isShown = !lookOf(shot).isHidden;
        rows[i].isReference = shot == reference;
        rows[i].timestamp = model()->timestamp(shot);
        rows[i].label = model()->shotLabel(shot);
        rows[i].deviation = m_shots.shots()[i]->apart.largest;
    }
    m_tableModel->setRows(std::move(rows));
    showStatus();
}

/// How many shots are drawn, and why the others are not.
void TabEvaluationOverlay::showStatus()
{
    int shown = 0;
    int unplaced = 0;
    for (size_t i = 0; i < m_shots.shots().size(); ++i) {
        if (lookOf(static_cast<int>(i)).isHidden)
            continue;
        ++(m_shots.shots()[i]->isPlaced() ? shown : unplaced);
    }
    const auto count = static_cast<int>(m_shots.shots().size());
    QString text = count == 0 ? tr("Noch keine Messungen") : tr("%1 von %2 gezeigt").arg(shown).arg(count);
    if (unplaced > 0)
        text += QStringLiteral(", ") + unplacedText(unplaced);
    m_status->setText(text);
    const int current = currentShot();
    m_buttonReference->setEnabled(current >= 0);
    m_buttonReference->setText(current >= 0 && current == referenceShot() ? tr("&Referenz aufheben")
                                                                          : tr("Als &Referenz"));
    m_buttonAll->setEnabled(count > 0);
    m_buttonNone->setEnabled(count > 0);
}

QString TabEvaluationOverlay::unplacedText(int count) const
{
    if (usesThreshold())
        return tr("%1 ohne Durchgang").arg(count);
    const auto by = static_cast<AlignBy>(m_comboAlignment->currentData().toPoint().x());
    return (by == AlignBy::Start ? tr("%1 leer") : tr("%1 zu kurz")).arg(count);
}

int TabEvaluationOverlay::currentShot() const
{
    const int shot = m_sorted->mapToSource(m_table->currentIndex()).row();
    return shot < static_cast<int>(m_shots.shots().size()) ? shot : -1;
}

std::vector<bool> TabEvaluationOverlay::selectedShots() const
{
    std::vector<bool> selected(m_shots.shots().size());
    for (const QItemSelectionRange &range : m_table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const int shot = m_sorted->mapToSource(m_sorted->index(row, 0)).row();
            if (shot >= 0 && static_cast<size_t>(shot) < selected.size())
                selected[static_cast<size_t>(shot)] = true;
        }
    }
    return selected;
}

void TabEvaluationOverlay::onSelectionChanged()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!model())
        return;
    showStatus();
    showPlot();
}

void TabEvaluationOverlay::onTable_shownEdited(int shot, bool shown)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "shot=" << shot << "shown=" << shown;
    m_looks[m_keys[static_cast<size_t>(shot)]].isHidden = !shown;
    recompute();
}

void TabEvaluationOverlay::onTable_colorEdited(int shot, const QColor &color)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "shot=" << shot << "color=" << color;
    m_looks[m_keys[static_cast<size_t>(shot)]].color = color;
    recompute();
}

void TabEvaluationOverlay::onTable_labelEdited(int shot, const QString &label)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "shot=" << shot << "label=" << label;
    if (!model())
        return;
    model()->setShotLabel(shot, label);
    model()->setProjectModifiedFlag(true);
    recompute();
}

/// The chosen rows become what the current one was not.
void TabEvaluationOverlay::toggleSelected()
{
    const int current = currentShot();
    if (current < 0)
        return;
    const bool hides = !lookOf(current).isHidden;
    std::vector<bool> selected = selectedShots();
    selected[static_cast<size_t>(current)] = true;
    for (size_t i = 0; i < selected.size(); ++i) {
        if (selected[i])
            m_looks[m_keys[i]].isHidden = hides;
    }
    recompute();
}

void TabEvaluationOverlay::setAllShown(bool shown)
{
    for (size_t i = 0; i < m_shots.shots().size(); ++i)
        m_looks[m_keys[i]].isHidden = !shown;
    recompute();
}

void TabEvaluationOverlay::onButtonAll_clicked()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    setAllShown(true);
}

void TabEvaluationOverlay::onButtonNone_clicked()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    setAllShown(false);
}

void TabEvaluationOverlay::onButtonReference_clicked()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    const int shot = currentShot();
    setReferenceShot(shot == referenceShot() ? -1 : shot);
}

// --- Options ---------------------------------------------------------------------------------------------------------

void TabEvaluationOverlay::onSensorButtonToggled()
{
    m_currentSensor = currentSensor();
    qCDebug(lcPlots) << Q_FUNC_INFO << "currentSensor=" << m_currentSensor;
    showThreshold();
    recompute();
}

void TabEvaluationOverlay::onAlignmentChanged()
{
    qCDebug(lcPlots) << Q_FUNC_INFO << m_comboAlignment->currentText();
    m_spinBoxThreshold->setEnabled(usesThreshold());
    recompute();
}

void TabEvaluationOverlay::onThresholdChanged()
{
    qCDebug(lcPlots) << Q_FUNC_INFO << m_spinBoxThreshold->value();
    m_thresholds[static_cast<size_t>(m_currentSensor)] = m_spinBoxThreshold->value();
    recompute();
}

void TabEvaluationOverlay::onMeanChanged()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    m_spinBoxSigmas->setEnabled(m_checkBand->isChecked());
    if (model())
        showPlot();
}

void TabEvaluationOverlay::showThreshold()
{
    const QSignalBlocker blocker(m_spinBoxThreshold);
    m_spinBoxThreshold->setValue(m_thresholds[static_cast<size_t>(m_currentSensor)]);
}
