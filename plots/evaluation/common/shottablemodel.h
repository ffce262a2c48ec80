#pragma once

#include <QAbstractTableModel>
#include <QDateTime>

#include <vector>

/// What the tables with one row per shot have in common. Rows are inserted and removed at the end of the shots; those
/// before are changed.
class ShotTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    [[nodiscard]] virtual int numShots() const = 0;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    /// Announces that all texts have changed with the language.
    void retranslate();

protected:
    /// "2026/03/09 06:00:01"; empty if it is not valid.
    [[nodiscard]] static QString timestampText(const QDateTime &timestamp);
    /// Resizes `rows` to the size of `wanted` and announces it. Rows that exist in both are not changed.
    template <typename Row>
    void resizeRows(std::vector<Row> &rows, const std::vector<Row> &wanted)
    {
        const int before = static_cast<int>(rows.size());
        const int after = static_cast<int>(wanted.size());
        if (after > before) {
            beginInsertRows({}, before, after - 1);
            rows.insert(rows.end(), wanted.begin() + before, wanted.end());
            endInsertRows();
        } else if (after < before) {
            beginRemoveRows({}, after, before - 1);
            rows.resize(wanted.size());
            endRemoveRows();
        }
    }
};
