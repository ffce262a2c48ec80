#pragma once

#include "model/samplelist.h"

#include <QColor>

#include <vector>

/// A curve slot: how a sample list that somebody else owns is drawn.
struct OsziCurve
{
    const SampleList *samples = nullptr; ///< null: the slot is empty
    QColor color = Qt::black;
    bool shown = false;
    double channelOffset = 0.0; ///< added to this curve's samples only
    int shift = 0;              ///< index of sample 0 on the time axis

    /// Where the curve ends: one past the index of the last sample.
    [[nodiscard]] qint64 end() const { return qint64(samples->size()) + shift; }
};

/// The curve slots of a plot. Pointers to slots stay valid as long as the number of slots does not change.
///
/// Calls with a slot that does not exist write an error to the debug output and change nothing; so do, silently, those
/// with an offset that is not finite. Those that return a bool return whether something may look different now.
class CurveSlots
{
public:
    void resize(size_t count) { m_slots.resize(count); }

    [[nodiscard]] size_t size() const { return m_slots.size(); }
    [[nodiscard]] OsziCurve &operator[](size_t slot) { return m_slots[slot]; }
    [[nodiscard]] const OsziCurve &operator[](size_t slot) const { return m_slots[slot]; }
    [[nodiscard]] auto begin() const { return m_slots.begin(); }
    [[nodiscard]] auto end() const { return m_slots.end(); }
    /// The slot, or null when it does not exist.
    [[nodiscard]] const OsziCurve *find(int slot) const
    {
        return slot >= 0 && size_t(slot) < m_slots.size() ? &m_slots[size_t(slot)] : nullptr;
    }
    /// The slot, or an empty one when it does not exist.
    [[nodiscard]] OsziCurve value(int slot) const { return find(slot) ? m_slots[size_t(slot)] : OsziCurve(); }

    bool setCurve(int slot, const SampleList *samples, const QColor &color, bool shown);
    bool setPlace(int slot, int shift, double channelOffset);
    /// Empties and hides all slots; their places stay.
    void clear();
    bool setShown(int slot, bool shown);
    void setAllShown(bool shown);
    bool setChannelOffset(int slot, double offset);
    void clearChannelOffsets();
    /// Lets the curve pass through zero at an index; one that has no sample there keeps its channel offset.
    bool passThroughZero(int slot, int index);
    void allPassThroughZero(int index);

private:
    [[nodiscard]] OsziCurve *findOrLog(int slot);

    std::vector<OsziCurve> m_slots;
};
