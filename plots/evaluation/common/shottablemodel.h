#pragma once

#include <QAbstractTableModel>
#include <QDateTime>

#include <vector>

/// What the tables with a row a shot have in common. Shots come and go at the end of their rows.
class ShotTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    [[nodiscard]] virtual int numShots() const = 0;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    /// Announces that all texts are in another language.
    void retranslate();

protected:
    /// "2026/03/09 06:00:01"; empty if it is not valid.
    [[nodiscard]] static QString timestampText(const QDateTime &timestamp);
    /// Makes as many rows as there are to be, and announces it; those that stay are left as they are.
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
