#include "plots/evaluation/common/shotquantity.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::array<const char *, Quantity::kNumKinds> kKindNames{"marker", "minimum",  "maximum",
                                                                   "mean",   "integral", "peakTime"};

bool isAtMarker(const Quantity &quantity)
{
    return quantity.kind == Quantity::Kind::AtMarker;
}

QVector<Quantity> allQuantities()
{
    QVector<Quantity> quantities;
    for (int kind = 0; kind < Quantity::kNumKinds; ++kind) {
        const bool isMarker = kind == static_cast<int>(Quantity::Kind::AtMarker);
        for (int part = 0; part < (isMarker ? Quantity::kNumMarkers : Quantity::kNumPhases + 1); ++part)
            quantities.append({static_cast<Quantity::Kind>(kind), part});
    }
    return quantities;
}

} // namespace

QString Quantity::key() const
{
    const QString name = QLatin1String(kKindNames[static_cast<std::size_t>(kind)]);
    if (isAtMarker(*this))
        return name + QString::number(part + 1);
    return part == kWholeShot ? name : name + QStringLiteral(".phase") + QString::number(part);
}

std::optional<Quantity> Quantity::fromKey(const QString &key)
{
    const auto found =
        std::find_if(all().begin(), all().end(), [&key](const Quantity &quantity) { return quantity.key() == key; });
    return found == all().end() ? std::nullopt : std::optional(*found);
}

const QVector<Quantity> &Quantity::all()
{
    static const QVector<Quantity> quantities = allQuantities();
    return quantities;
}

bool operator==(const Quantity &a, const Quantity &b)
{
    return a.kind == b.kind && a.part == b.part;
}

void ShotFigures::Part::add(double value, int index)
{
    if (count == 0 || value < minimum)
        minimum = value;
    if (count == 0 || value > maximum) {
        maximum = value;
        peakIndex = index;
    }
    sum += value;
    ++count;
}

void ShotFigures::Part::add(const Part &next)
{
    if (next.count == 0)
        return;
    if (count == 0) {
        *this = next;
        return;
    }
    minimum = std::min(minimum, next.minimum);
    if (next.maximum > maximum) {
        maximum = next.maximum;
        peakIndex = next.peakIndex;
    }
    sum += next.sum;
    count += next.count;
}

void ShotFigures::extend(const QVector<double> &samples, const MarkerIndices &markers)
{
    const int before = count;
    int from = before;
    for (std::size_t phase = 0; phase < phases.size(); ++phase) {
        const int end = phase < markers.size() ? std::min(samples.size(), markers[phase]) : samples.size();
        Part part = phases[phase];
        for (; from < end; ++from)
            part.add(samples.at(from), from);
        phases[phase] = part;
    }
    for (std::size_t marker = 0; marker < markers.size(); ++marker) {
        if (markers[marker] >= before && markers[marker] < samples.size())
            atMarker[marker] = samples.at(markers[marker]);
    }
    count = samples.size();
}

ShotFigures::Part ShotFigures::whole() const
{
    Part part;
    for (const Part &phase : phases)
        part.add(phase);
    return part;
}

std::optional<double> valueOf(const Quantity &quantity, const ShotFigures &figures, const QuantityScale &scale)
{
    if (isAtMarker(quantity)) {
        const std::optional<double> &value = figures.atMarker[static_cast<std::size_t>(quantity.part)];
        return value ? std::optional(*value + scale.offset) : std::nullopt;
    }
    const ShotFigures::Part part = quantity.part == Quantity::kWholeShot
                                       ? figures.whole()
                                       : figures.phases[static_cast<std::size_t>(quantity.part - 1)];
    if (part.count == 0)
        return std::nullopt;
    const double seconds = scale.clock / 1000.0;
    switch (quantity.kind) {
    case Quantity::Kind::Minimum:
        return part.minimum + scale.offset;
    case Quantity::Kind::Maximum:
        return part.maximum + scale.offset;
    case Quantity::Kind::Mean:
        // Rounding must not make shots of equal samples differ by their lengths.
        return std::clamp(part.sum / part.count, part.minimum, part.maximum) + scale.offset;
    case Quantity::Kind::Integral:
        return (part.sum + part.count * scale.offset) * seconds;
    case Quantity::Kind::PeakTime:
        return part.peakIndex * seconds;
    case Quantity::Kind::AtMarker:
        break;
    }
    return std::nullopt;
}
