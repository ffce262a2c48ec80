#pragma once

#include "plots/evaluation/common/shottablemodel.h"

#include <QColor>
#include <QString>

#include <optional>
#include <vector>

/// One shot as the table shows it.
struct OverlayRow
{
    QColor color;
    bool isShown = true;
    bool isReference = false;
    QDateTime timestamp; ///< may be invalid
    QString label;
    std::optional<double> deviation; ///< largest distance from the reference; none where there is nothing to compare
};

[[nodiscard]] bool operator==(const OverlayRow &a, const OverlayRow &b);

/// The shots of an overlay, one per row. What the user edits is not stored here but reported; the owner then sets the
/// rows.
class OverlayTableModel : public ShotTableModel
{
    Q_OBJECT

public:
    enum Column { Color, Shown, Number, Timestamp, Label, Deviation, NumColumns };
    /// What a column is sorted by; shots without a deviation are smaller than all others.
    static constexpr int kSortRole = Qt::UserRole;

    explicit OverlayTableModel(QObject *parent = nullptr);

    /// Announces only what differs from the rows before.
    void setRows(std::vector<OverlayRow> rows);
    [[nodiscard]] const std::vector<OverlayRow> &rows() const { return m_rows; }

    [[nodiscard]] int numShots() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    void shownEdited(int shot, bool shown);
    void colorEdited(int shot, const QColor &color);
    void labelEdited(int shot, const QString &label);

private:
    [[nodiscard]] QString text(int shot, int column) const;
    [[nodiscard]] QVariant sortKey(int shot, int column) const;
    [[nodiscard]] QVariant toolTip(int shot, int column) const;

    std::vector<OverlayRow> m_rows;
};
