#pragma once

#include "plots/charts/statistics.h"
#include "plots/evaluation/common/shottablemodel.h"
#include "plots/evaluation/runtime/runtime.h"

#include <array>
#include <optional>
#include <vector>

/// One shot as the table shows it.
struct RuntimeRow
{
    ShotRuntime runtime;
    QDateTime timestamp;         ///< may be invalid
    std::optional<qint64> pause; ///< whole seconds to the next shot; none for the last, or without both time stamps
};

[[nodiscard]] bool operator==(const RuntimeRow &a, const RuntimeRow &b);

/// The shots' runtimes, one per row, followed by a row of means and a row of sigmas of the columns with numbers. Breaks
/// are not part of the mean pause and its sigma; how many were left out is said beside the titles of both rows.
class RuntimeTableModel : public ShotTableModel
{
    Q_OBJECT

public:
    enum Column { Number, Timestamp, Start, Duration, Stop, Total, Pause, NumColumns };
    static constexpr int kExtraRows = 2;

    explicit RuntimeTableModel(QObject *parent = nullptr);

    /// Announces only what differs from the rows before.
    void setRows(const std::vector<RuntimeRow> &rows);
    [[nodiscard]] int numShots() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] const std::vector<RuntimeRow> &rows() const { return m_rows; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] QString shotText(int shot, int column) const;
    [[nodiscard]] QString summaryText(bool sigmas, int column) const;
    [[nodiscard]] QString breaksText() const;
    [[nodiscard]] QVariant tip(const QModelIndex &index) const;
    void computeSummary();

    std::vector<RuntimeRow> m_rows;
    std::array<std::optional<statistics::Moments>, NumColumns> m_moments; // none for a column without numbers
    int m_breaks = 0;                                                     // pauses that the summary leaves out
};
