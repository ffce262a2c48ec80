#pragma once

#include "model/samplelist.h"
#include "plots/oscilloscope/plotgeometry.h"

#include <QColor>
#include <QFrame>
#include <QString>

#include <memory>

/// The plot: curves over a common value axis and a common time axis, with grids, reference lines, markers, phase
/// names, one highlighted curve and a mouse read-out. Points at sample lists and owns none: whoever removes samples
/// clears or re-points the slots first.
///
/// A sample list may grow at its end at any time; samplesAppended() then repaints what is new. Any other change of
/// its samples must be followed by setCurve() or refresh().
class OsziWidget : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kNumSlots = 10000;
    static constexpr int kLeftMargin = 70; ///< pixels left of the plot area, for the value labels

    explicit OsziWidget(QWidget *parent = nullptr);
    ~OsziWidget() override;

    using QFrame::setDisabled;
    using QFrame::setEnabled;

    /// Points a slot at a list (nullptr empties it). Keeps the slot's place. A slot outside
    /// 0 to kNumSlots - 1 is ignored.
    void setCurve(int slot, const SampleList *samples, const QColor &color, bool shown);
    /// Where a slot's curve stands: its sample 0 at index `shift` (the time axis begins with index 0), its values
    /// higher by `channelOffset`. Both stay until they are set again.
    void setCurvePlace(int slot, int shift, double channelOffset);
    /// Empties all slots (samples and shown flag); their places stay.
    void clearCurves();
    [[nodiscard]] const SampleList *curve(int slot) const;
    [[nodiscard]] bool isShown(int slot) const;
    /// Sample lists grew at their end: schedules the smallest repaint that shows it.
    void samplesAppended();
    /// Samples changed in any way: drops every cached picture and schedules a full repaint.
    void refresh();

    void setVerticalMarker(int index, int position, const QColor &color);
    void setVerticalMarkerCount(int n);
    void setHorizontalLineCount(int n);
    void setHorizontalLine(int index, double value, const QColor &color);

    [[nodiscard]] double minValue() const;
    [[nodiscard]] double maxValue() const;
    [[nodiscard]] double valueGrid() const;
    [[nodiscard]] int clockGrid() const;
    [[nodiscard]] int startIndex() const;
    [[nodiscard]] int zoom() const;
    [[nodiscard]] int clock() const;
    [[nodiscard]] int highlighted() const;
    [[nodiscard]] double offset() const;
    [[nodiscard]] double channelOffset(int slot) const;
    /// The samples that fit right of the left margin at the present width and zoom.
    [[nodiscard]] int visibleSamples() const;
    /// Where values and samples lie in the widget, as of now.
    [[nodiscard]] PlotGeometry plotGeometry() const;
    /// Markers and phase names; the position is in milliseconds.
    [[nodiscard]] int verticalMarkerCount() const;
    [[nodiscard]] int horizontalLineCount() const;

signals:
    void valueGridChanged(double grid);
    void clockGridChanged(int grid);
    void mouseAtX(int x);
    void mouseReleased();

public slots:
    void setEnabled(int channel, bool state);
    void setEnabled(int channel);
    void setDisabled(int channel);
    void setAllEnabled(bool state);
    void setStartIndex(int start);
    void setMinValue(double value);
    void setMaxValue(double value);
    void setVerticalMarker0(int position);
    void setVerticalMarker1(int position);
    void setVerticalMarker2(int position);
    void setVerticalMarker3(int position);
    void setPhaseName(int phase, const QString &name);
    void setZoom(int zoom);
    void setZoom(double zoom);
    void setClock(int clock);
    void setClockGrid(int grid);
    void setClockGridAuto(bool automatic);
    void showMouseMarker(int x);
    void hideMouseMarker();
    void setOffset(double offset);
    void setChannelOffset(int channel, double offset);
    void clearChannelOffsets();
    void setAutoChannelOffsets(int time);
    void setAutoChannelOffset(int channel, int time);
    void setValueGrid(double grid);
    void setValueGridAuto(bool automatic);
    void highlightSingle(int index);
    void setHighlightColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
