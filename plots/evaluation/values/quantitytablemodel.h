#pragma once

#include "plots/charts/capability.h"
#include "plots/evaluation/common/shotquantity.h"
#include "plots/evaluation/common/shottablemodel.h"

#include <vector>

/// The quantities of one sensor's shots: number and time stamp of each shot, and one column per quantity.
class QuantityTableModel : public ShotTableModel
{
    Q_OBJECT

public:
    enum Column { Number, Timestamp, FirstQuantity };

    struct QuantityColumn
    {
        Quantity quantity;
        QString title; ///< may have two lines
        ToleranceLimits limits;
        std::vector<std::optional<double>> values; ///< one per shot
    };
    struct Content
    {
        std::vector<QDateTime> timestamps; ///< one per shot; may be invalid
        std::vector<QuantityColumn> columns;
    };

    explicit QuantityTableModel(QObject *parent = nullptr);

    /// Announces only what differs from the content before.
    void setContent(Content content);
    [[nodiscard]] int numShots() const override { return static_cast<int>(m_content.timestamps.size()); }
    /// The quantity whose column is marked; -1 for none.
    void setChosenColumn(int column);
    [[nodiscard]] int chosenColumn() const { return m_chosenColumn; }

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] const std::optional<double> *valueAt(const QModelIndex &index) const;
    [[nodiscard]] bool isOutside(const QModelIndex &index) const;
    [[nodiscard]] QString text(const QModelIndex &index) const;
    [[nodiscard]] QVariant background(const QModelIndex &index) const;
    [[nodiscard]] int firstDifference(const Content &other) const;
    void resizeTo(const Content &content);

    Content m_content;
    int m_chosenColumn = -1;
};
