#include "plots/evaluation/common/evaluationdata.h"

#include "model/edit/editscope.h"
#include "plots/common/localnumber.h"
#include "plots/common/logging.h"

#include <algorithm>
#include <cmath>

namespace {

// What a sensor shows until the user chooses something else.
const Quantity kUsualChoice{Quantity::Kind::Maximum, Quantity::kWholeShot};
QVector<Quantity> usualQuantities()
{
    return {{Quantity::Kind::Minimum, Quantity::kWholeShot},
            {Quantity::Kind::Maximum, Quantity::kWholeShot},
            {Quantity::Kind::Mean, Quantity::kWholeShot}};
}

bool isFinite(const std::optional<double> &limit)
{
    return !limit || std::isfinite(*limit);
}

MarkerIndices markersOf(const Model &model)
{
    MarkerIndices markers{};
    for (int i = 0; i < Quantity::kNumMarkers; ++i)
        markers[static_cast<std::size_t>(i)] = model.verticalMarker(i);
    return markers;
}

QuantityCache::Shots shotsOf(const Model &model, int sensor)
{
    const int count = model.numChannels(sensor);
    QuantityCache::Shots shots;
    shots.reserve(static_cast<std::size_t>(count));
    for (int shot = 0; shot < count; ++shot)
        shots.push_back({model.measurementId(sensor, shot), model.measurement(sensor, shot)});
    return shots;
}

const SensorGroup *groupOf(const Model &model, int sensor)
{
    const SensorDescription &description = model.sensorDescription();
    if (description.numSensorGroups() == 0 || sensor >= description.sensorGroup(0).numSensors())
        return nullptr;
    return &description.sensorGroup(0);
}

} // namespace

QString figureText(double value)
{
    return localNumber(value, 'g', 6);
}

QString capabilityText(const std::optional<double> &value)
{
    constexpr double kLargest = 99.0;
    if (!value)
        return QStringLiteral("–");
    if (std::isinf(*value))
        return *value > 0.0 ? QStringLiteral("∞") : QStringLiteral("-∞");
    if (std::abs(*value) > kLargest)
        return *value > 0.0 ? QStringLiteral("> 99") : QStringLiteral("< -99");
    // Rounded down: 1.329 must not look like 1.33, which is a limit.
    return localNumber(std::floor(*value * 100.0 + 1e-9) / 100.0, 'f', 2);
}

EvaluationData::EvaluationData(QObject *parent)
    : QObject(parent)
{}

void EvaluationData::setModel(Model *model)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (model == m_model)
        return;
    m_model = model;
    m_caches.fill(QuantityCache()); // ids are unique within one model only
    emit modelChanged();
}

QuantitySeries EvaluationData::series(int sensor, const Quantity &quantity)
{
    QuantityCache &cache = m_caches[static_cast<std::size_t>(sensor)];
    const QuantityCache::Work work = cache.refresh(shotsOf(*m_model, sensor), markersOf(*m_model));
    if (work.scanned > 0)
        qCDebug(lcPlots).noquote().nospace()
            << Q_FUNC_INFO << " sensor=" << sensor << " scanned=" << work.scanned << " extended=" << work.extended;
    const QuantityScale scale{m_model->offset(sensor), m_model->clock()};
    QuantitySeries series;
    series.shots.reserve(cache.figures().size());
    series.values.reserve(static_cast<int>(cache.figures().size()));
    for (const ShotFigures &figures : cache.figures()) {
        series.shots.push_back(valueOf(quantity, figures, scale));
        if (series.shots.back())
            series.values.append(*series.shots.back());
    }
    return series;
}

// --- Names -------------------------------------------------------------------------------------------------------

QString sensorNameOf(const Model *model, int sensor)
{
    const SensorGroup *group = model ? groupOf(*model, sensor) : nullptr;
    const QString name = group ? group->sensorName(sensor) : QString();
    return shownSensorName(name, sensor);
}

QString EvaluationData::sensorName(int sensor) const
{
    return sensorNameOf(m_model, sensor);
}

QString EvaluationData::sensorUnit(int sensor) const
{
    const SensorGroup *group = groupOf(*m_model, sensor);
    return group ? group->sensorUnit(sensor) : QString();
}

QString EvaluationData::quantityName(const Quantity &quantity) const
{
    if (quantity.kind == Quantity::Kind::AtMarker)
        return tr("Wert an Marker %1").arg(quantity.part + 1);
    // In the order of Quantity::Kind.
    const QString names[] = {QString(),        tr("Minimum"),  tr("Maximum"),
                             tr("Mittelwert"), tr("Integral"), tr("Zeit der Spitze")};
    QString name = names[static_cast<int>(quantity.kind)];
    if (quantity.part == Quantity::kWholeShot || !m_model)
        return name;
    const QString phase = m_model->phaseName(quantity.part - 1).simplified();
    return tr("%1: %2").arg(name, phase.isEmpty() ? tr("Phase %1").arg(quantity.part) : phase);
}

QString EvaluationData::quantityUnit(int sensor, const Quantity &quantity) const
{
    QString unit = sensorUnit(sensor);
    if (quantity.kind == Quantity::Kind::PeakTime)
        return QStringLiteral("s");
    if (quantity.kind == Quantity::Kind::Integral)
        return unit.isEmpty() ? QStringLiteral("s") : unit + QStringLiteral("·s");
    return unit;
}

// --- Settings ----------------------------------------------------------------------------------------------------

const SensorMeta &EvaluationData::meta(int sensor) const
{
    return m_model->projectMeta().sensors[static_cast<std::size_t>(sensor)];
}

QVector<Quantity> EvaluationData::shownQuantities(int sensor) const
{
    QVector<Quantity> shown;
    for (const Quantity &quantity : Quantity::all()) {
        const QuantityMeta *settings = meta(sensor).find(quantity.key());
        if (settings && settings->isShown)
            shown.append(quantity);
    }
    return shown.isEmpty() ? usualQuantities() : shown;
}

void EvaluationData::setShown(int sensor, const Quantity &quantity, bool shown)
{
    const QVector<Quantity> before = shownQuantities(sensor);
    if (before.contains(quantity) == shown || (!shown && before.size() == 1))
        return;
    const QString name = sensorName(sensor);
    const EditScope step(m_model, [name] { return tr("Spalten von %1").arg(name); });
    edit(sensor, [&](SensorMeta &settings) {
        // The usual quantities are shown without being stored; the first change has to store them, too.
        for (const Quantity &other : before)
            settings.at(other.key()).isShown = true;
        settings.at(quantity.key()).isShown = shown;
    });
}

Quantity EvaluationData::chosenQuantity(int sensor) const
{
    const QVector<Quantity> shown = shownQuantities(sensor);
    const std::optional<Quantity> chosen = Quantity::fromKey(meta(sensor).chosenQuantity);
    if (chosen && shown.contains(*chosen))
        return *chosen;
    return shown.contains(kUsualChoice) ? kUsualChoice : shown.constFirst();
}

void EvaluationData::choose(int sensor, const Quantity &quantity)
{
    if (chosenQuantity(sensor) == quantity)
        return;
    ProjectMeta changed = m_model->projectMeta();
    changed.sensors[static_cast<std::size_t>(sensor)].chosenQuantity = quantity.key();
    m_model->setProjectMeta(changed);
}

ToleranceLimits EvaluationData::limits(int sensor, const Quantity &quantity) const
{
    const QuantityMeta *settings = meta(sensor).find(quantity.key());
    return settings ? ToleranceLimits{settings->lowerLimit, settings->upperLimit} : ToleranceLimits();
}

void EvaluationData::setLimits(int sensor, const Quantity &quantity, const ToleranceLimits &limits)
{
    if (!isFinite(limits.lower) || !isFinite(limits.upper) || limits == this->limits(sensor, quantity))
        return;
    const QString name = QStringLiteral("%1, %2").arg(sensorName(sensor), quantityName(quantity));
    const EditScope step(
        m_model, [name] { return tr("Grenzen von %1").arg(name); },
        QStringLiteral("limits.%1.%2").arg(QString::number(sensor), quantity.key()));
    edit(sensor, [&](SensorMeta &settings) {
        QuantityMeta &entry = settings.at(quantity.key());
        entry.lowerLimit = limits.lower;
        entry.upperLimit = limits.upper;
    });
}

void EvaluationData::edit(int sensor, const std::function<void(SensorMeta &meta)> &change)
{
    ProjectMeta changed = m_model->projectMeta();
    change(changed.sensors[static_cast<std::size_t>(sensor)]);
    m_model->setProjectMeta(changed);
    m_model->setProjectModifiedFlag(true);
}

// --- Times -------------------------------------------------------------------------------------------------------

std::optional<double> EvaluationData::cycleSeconds(int shot) const
{
    const SampleList *samples = m_model->measurement(0, shot);
    if (!samples)
        return {};
    if (shot > 0) {
        const QDateTime from = m_model->timestamp(shot - 1);
        const QDateTime to = m_model->timestamp(shot);
        if (from.isValid() && to.isValid() && from < to)
            return double(from.msecsTo(to)) / 1000.0;
    }
    return double(samples->size()) * m_model->clock() / 1000.0;
}
