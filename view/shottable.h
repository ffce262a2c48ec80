#pragma once

#include "model/sensordescription.h"

#include <QAbstractTableModel>

#include <array>
#include <vector>

class Model;

/// The shots of a project as table rows: number, time of recording, and each sensor's smallest and largest sample.
/// Extremes are worked out for the cells that are asked for only, and for a growing shot from its new samples only.
/// Holds no pointer to samples between two calls.
class ShotTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        NumberColumn = 0,
        TimeColumn = 1,
        FirstSensorColumn = 2,
        NumColumns = FirstSensorColumn + kNumSensors
    };

    explicit ShotTable(const Model *model, QObject *parent = nullptr);

    /// Takes over what changed in the model: rows added or removed, samples appended to the newest shot.
    void refresh();
    /// Drops what was worked out; for a changed language or changed sensor names.
    void reload();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Extremes
    {
        int count = 0; ///< samples looked at
        double minimum = 0.0;
        double maximum = 0.0;
    };
    using Row = std::array<Extremes, kNumSensors>;

    [[nodiscard]] Extremes extremes(int shot, int sensor) const;
    [[nodiscard]] QString text(int shot, int column) const;

    const Model *m_model;
    mutable std::vector<Row> m_rows;
    quint64 m_revision = 0;
};
