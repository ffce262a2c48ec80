#pragma once

#include "model/samplelist.h"
#include "plots/oscilloscope/osziscene.h"

#include <QColor>
#include <QFrame>
#include <QString>

#include <memory>

class GridFollower;
class GrowthWatch;
class MouseMarker;
class OsziPicture;

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
    static constexpr int kLeftMargin = PlotGeometry::kLeftMargin; ///< pixels left of the plot area

    explicit OsziWidget(QWidget *parent = nullptr);
    ~OsziWidget() override;

    using QFrame::setDisabled;
    using QFrame::setEnabled;

    /// Points a slot at a list (nullptr empties it). Keeps the slot's place. Everywhere, a slot outside
    /// 0 to kNumSlots - 1 is ignored.
    void setCurve(int slot, const SampleList *samples, const QColor &color, bool shown);
    /// Places a slot's curve: its sample 0 at index `shift` (the time axis begins with index 0), its values higher by
    /// `channelOffset`. Both stay until they are set again.
    void setCurvePlace(int slot, int shift, double channelOffset);
    /// Empties all slots (samples and shown flag); their places stay.
    void clearCurves();
    /// The list and the shown flag of a slot; null and false where there is no slot.
    [[nodiscard]] const SampleList *curve(int slot) const { return m_scene.curves.value(slot).samples; }
    [[nodiscard]] bool isShown(int slot) const { return m_scene.curves.value(slot).shown; }
    /// Sample lists grew at their end: schedules the smallest repaint that shows it.
    void samplesAppended();
    /// Samples changed in any way: drops every cached picture and schedules a full repaint.
    void refresh();

    /// The position is in milliseconds.
    void setVerticalMarker(int index, int position, const QColor &color);
    void setVerticalMarkerCount(int n);
    void setHorizontalLineCount(int n);
    void setHorizontalLine(int index, double value, const QColor &color);

    /// Where values and samples lie in the widget, at its present size and in its present font.
    [[nodiscard]] PlotGeometry plotGeometry() const;
    /// The samples that fit right of the left margin at the present width and zoom.
    [[nodiscard]] int visibleSamples() const { return plotGeometry().visibleSamples(); }

    [[nodiscard]] double minValue() const { return m_scene.geometry.minValue; }
    [[nodiscard]] double maxValue() const { return m_scene.geometry.maxValue; }
    [[nodiscard]] double valueGrid() const { return m_scene.valueGrid; }
    [[nodiscard]] int clockGrid() const { return m_scene.clockGrid; } ///< milliseconds
    [[nodiscard]] int startIndex() const { return m_scene.geometry.startIndex; }
    [[nodiscard]] int zoom() const { return m_scene.geometry.zoom; }   ///< pixels per sample
    [[nodiscard]] int clock() const { return m_scene.geometry.clock; } ///< milliseconds per sample
    [[nodiscard]] int highlighted() const { return m_scene.highlighted; }
    [[nodiscard]] double offset() const { return m_scene.offset; }
    [[nodiscard]] double channelOffset(int slot) const { return m_scene.curves.value(slot).channelOffset; }
    [[nodiscard]] int verticalMarkerCount() const { return m_scene.markers.size(); }
    [[nodiscard]] int horizontalLineCount() const { return m_scene.lines.size(); }

signals:
    void valueGridChanged(double grid);
    void clockGridChanged(int grid);
    void mouseAtX(int x);
    void mouseReleased();

public slots:
    void setEnabled(int channel, bool state);
    void setEnabled(int channel);  ///< nothing uses it yet
    void setDisabled(int channel); ///< nothing uses it yet
    void setAllEnabled(bool state);
    void setStartIndex(int start);
    void setMinValue(double value);
    void setMaxValue(double value);
    /// Milliseconds. Nothing uses these four yet: the pages set all markers with their colours.
    void setVerticalMarker0(int position);
    void setVerticalMarker1(int position);
    void setVerticalMarker2(int position);
    void setVerticalMarker3(int position);
    void setPhaseName(int phase, const QString &name);
    void setZoom(int zoom);
    void setZoom(double zoom); ///< nothing uses it yet
    void setClock(int clock);
    void setClockGrid(int grid);
    void setClockGridAuto(bool automatic);
    void showMouseMarker(int x);
    void hideMouseMarker();
    void setOffset(double offset);
    void setChannelOffset(int channel, double offset); ///< nothing uses it yet
    void clearChannelOffsets();
    void setAutoChannelOffsets(int time);
    void setAutoChannelOffset(int channel, int time);
    void setValueGrid(double grid);
    void setValueGridAuto(bool automatic);
    void highlightSingle(int index);
    void setHighlightColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void measure() { m_scene.geometry = plotGeometry(); }
    void announceValueGrid();
    void announceClockGrid();
    void updateIf(bool changed)
    {
        if (changed)
            update();
    }
    void updateCurvesIf(bool changed);
    void updateGrown(int slot, int oldCount);

    OsziScene m_scene;
    std::unique_ptr<GridFollower> m_grids;
    std::unique_ptr<GrowthWatch> m_growth;
    std::unique_ptr<OsziPicture> m_picture;
    std::unique_ptr<MouseMarker> m_mouseMarker;
    mutable int m_margin = -1; ///< of the labels, in pixels; negative: to be measured
};
