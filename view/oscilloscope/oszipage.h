#pragma once

#include "view/oscilloscope/keyreadout.h"
#include "view/oscilloscope/rowranges.h"
#include "view/oscilloscope/shotfilter.h"
#include "view/oscilloscope/slotpointer.h"
#include "view/oscilloscope/ycorrection.h"

#include <QPointer>
#include <QWidget>

class MarkerBar;
class Model;
class OsziHead;
class OsziRows;
class SamplingBox;
class ShotBar;
class TimeAxisBar;

/// The page of the tab: puts the rows, the bars around them and the parts that work on them together, and connects
/// those that act on each other.
class OsziPage : public QWidget
{
    Q_OBJECT

public:
    explicit OsziPage(QWidget *parent = nullptr);

    [[nodiscard]] OsziHead *head() const { return m_head; }
    [[nodiscard]] OsziRows *rows() const { return m_rows; }
    [[nodiscard]] MarkerBar *markers() const { return m_markers; }
    [[nodiscard]] ShotBar *shots() const { return m_shots; }
    [[nodiscard]] SamplingBox *sampling() const { return m_sampling; }
    [[nodiscard]] SlotPointer &pointer() { return m_pointer; }
    [[nodiscard]] ShotFilter &filter() { return m_filter; }
    [[nodiscard]] YCorrection &yCorrection() { return m_yCorrection; }
    [[nodiscard]] RowRanges &ranges() { return m_ranges; }

    /// Not owned, may go first; nullptr for none. Shows nothing of it yet.
    void setModel(Model *model);
    /// What the project says about the plots: offsets, names, colours, markers and phases. Needs a model.
    void showProject();
    void showSensorNames();
    void showMarkers();
    /// Sets up the scroll bar for the longest curve.
    void showExtent();
    /// The sampling period and the largest clock grid, in milliseconds.
    void setClock(int clock, int largestGrid);
    /// Enables what can be used: without the lock, with a box, with measurements.
    void updateEnabled();

signals:
    /// The longest curve or the room for it changed; wants showExtent() before the signal returns.
    void extentWanted();

private:
    void layOut();
    void connectRows();
    void connectTimeAxis();
    void connectPointing();
    void point(int x);
    void releasePointer();
    void setLocked(bool locked);
    void takeSlots();

    // In the order of the page, which is that of the Tab key.
    OsziHead *m_head;
    OsziRows *m_rows;
    TimeAxisBar *m_axis;
    MarkerBar *m_markers;
    ShotBar *m_shots;
    SamplingBox *m_sampling;

    SlotPointer m_pointer;
    ShotFilter m_filter;
    YCorrection m_yCorrection;
    RowRanges m_ranges;
    KeyReadOut m_readOut;
    QPointer<Model> m_model;
};
