#pragma once

#include "model/sensordescription.h"
#include "model/verticalmarkers.h"

#include <QScrollArea>

#include <array>

class OsziRow;
class OsziRowInput;
class OsziWidget;

/// The five rows of the tab, one above the other, and what their plots do together: the time axis, the markers and the
/// read-out, which shows the same time in all rows.
class OsziRows : public QScrollArea
{
    Q_OBJECT

public:
    explicit OsziRows(QWidget *parent = nullptr);

    /// Position 0 to 4; nullptr for any other.
    [[nodiscard]] OsziRow *row(int position) const;
    [[nodiscard]] OsziWidget *plot(int position) const;
    /// From top to bottom; they live as long as the rows.
    [[nodiscard]] const std::array<OsziWidget *, kNumSensors> &plots() const { return m_plots; }
    /// The gestures over the plot of a position, 0 to 4.
    [[nodiscard]] const OsziRowInput *input(int position) const;

    /// Small, because rows that are out of sight are no reason to scroll the controls around them.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    void setRowShown(int position, bool shown);
    /// Open: the parameters beside the plots can be changed.
    void setEditable(bool editable);
    /// The sampling period, in milliseconds.
    [[nodiscard]] int clock() const;
    void setClock(int clock);
    void setClockGrid(int milliseconds);
    void setZoom(int zoom);
    /// The samples that fit into the topmost row shown.
    [[nodiscard]] int visibleSamples() const;
    /// The sample under a column of the plots, as the read-out counts them; never negative.
    [[nodiscard]] int sampleAt(int x) const;

    /// Shows the markers, given as sample indices, in all plots.
    void showMarkers(const VerticalMarkers &samples);
    void showPhaseName(int phase, const QString &name);
    /// The read-out at a column, in the rows that are shown.
    void showReadOut(int x);
    void hideReadOut();
    /// A cross for the pointer over the plots while it places a marker.
    void setPlacing(bool placing);

signals:
    /// The pointer was pressed or moved at a column of a plot / released.
    void pointedAt(int x);
    void pointerReleased();
    /// The user changed the y correction of a row.
    void offsetEdited(int position, double offset);
    /// A gesture has given a row another value range.
    void rangeMoved(int position);
    /// The automatic clock grid of a plot chose another distance.
    void clockGridChanged(int milliseconds);
    void plotResized();
    /// The user pressed Escape in a plot.
    void cancelled();

private:
    void connectRow(int position);

    std::array<OsziRow *, kNumSensors> m_rows{};
    std::array<OsziWidget *, kNumSensors> m_plots{};
    std::array<OsziRowInput *, kNumSensors> m_inputs{};
};
