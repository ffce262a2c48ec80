#pragma once

#include <QObject>
#include <QPointer>

class Model;
class OsziRows;

/// Points the curve slots of the five rows at the model's measurements, and keeps the rule that no slot points at
/// samples that the model may free: whenever the model's structure changed, all slots are re-pointed before the call
/// returns. Samples appended to measurements that are already pointed at only need a repaint.
class SlotPointer : public QObject
{
    Q_OBJECT

public:
    /// The rows must outlive it.
    explicit SlotPointer(OsziRows &rows, QObject *parent = nullptr);

    /// Not owned, may go first; nullptr for none. Nothing is pointed at the new model until one of the calls below.
    void setModel(const Model *model);
    /// Points slot i of every row at measurement i of its sensor, shown, and highlights the newest. Needs a model.
    void pointAtModel();
    /// The model's data changed: points the slots if measurements came or went, otherwise takes over the samples that
    /// were appended. The first few growths of a turn of the event loop act at once, the others at its end.
    void takeChange();
    /// Empties every slot.
    void clear();

    /// Measurements of the first sensor.
    [[nodiscard]] int measurementCount() const;
    /// Slots that can be in use, in the row that has most.
    [[nodiscard]] int slotCount() const;
    /// Samples of the longest curve of the first row.
    [[nodiscard]] int longestCurve() const;
    /// True while samplesAppended() is emitted.
    [[nodiscard]] bool isGrowing() const { return m_growing; }

signals:
    /// All slots were pointed.
    void slotsPointed();
    /// The plots show samples that were appended.
    void samplesAppended();

private:
    void pointRow(int position);
    void noteGrowth();
    void endTurn();
    void takeGrowth();
    [[nodiscard]] bool isUpToDate() const;

    OsziRows &m_rows;
    QPointer<const Model> m_model;
    bool m_pointed = false; ///< the slots are as m_revision says
    quint64 m_revision = 0;
    int m_longest = 0; ///< samples of the longest curve of the first row when the slots were pointed
    int m_growthsThisTurn = 0;
    bool m_turnEndQueued = false;
    bool m_growthPending = false;
    bool m_growing = false;
};
