#pragma once

#include <QWidget>

class FlowLayout;
class OsziRowInput;
class OsziSpinBox;
class QCheckBox;
class QLabel;
class QScrollBar;
class QSlider;

/// The bar below the rows that moves and stretches the time axis: scroll bar, zoom and clock grid. Decides whether the
/// view follows the newest samples.
class TimeAxisBar : public QWidget
{
    Q_OBJECT

public:
    /// What the scroll bar scrolls over.
    struct Extent
    {
        int samples = 0;   ///< of the longest curve
        int visible = 0;   ///< that fit into a plot
        bool grew = false; ///< samples were appended; otherwise there may be other curves than before
    };

    explicit TimeAxisBar(QWidget *parent = nullptr);

    /// Sets up the scroll bar; keeps to the end of the curves if the view was there and the user did not move it away.
    /// Ignored while the user holds the scroll bar: the range stays under the handle until it is released.
    void setExtent(const Extent &extent);
    /// Like setExtent() for plots of another size, which stay at the end if they were there.
    void refreshExtent();
    /// The user's gestures over a plot that move or zoom the time axis.
    void listenTo(const OsziRowInput *input);

    /// The sampling period, which is the smallest grid and its step, and the largest grid; in milliseconds.
    void setClock(int clock, int largestGrid);
    [[nodiscard]] int clockGrid() const;
    /// Emits nothing.
    void showClockGrid(int milliseconds);
    /// Open: the clock grid can be changed. The view can always be moved.
    void setEditable(bool editable);

signals:
    void startIndexChanged(int sample);
    void zoomChanged(int zoom);
    void clockGridAutoToggled(bool automatic);
    void clockGridEdited(int milliseconds);
    /// Needs setExtent() before the signal returns.
    void extentWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void createScrollBar(FlowLayout &flow);
    [[nodiscard]] QWidget *createZoom();
    [[nodiscard]] QWidget *createClockGrid();
    void connectControls();
    void retranslateUi();
    void updateEnabled();
    [[nodiscard]] bool isNearEnd() const;
    void release();
    void noteMove();
    void zoomAt(int x, int steps);
    void drag(int pixels);
    void step(int tenths);
    void jumpToStart();
    void jumpToEnd();

    QScrollBar *m_scrollBar = nullptr;
    QLabel *m_zoomCaption = nullptr;
    QSlider *m_zoom = nullptr;
    QLabel *m_clockGridCaption = nullptr;
    QCheckBox *m_clockGridAuto = nullptr;
    OsziSpinBox *m_clockGrid = nullptr;

    bool m_editable = true;
    int m_visible = 0;
    int m_lastSamples = 0;   ///< when the scroll bar was last set up
    bool m_heldBack = false; ///< the user moved back, even if only by one sample: new samples do not pull the view
    int m_dragStart = 0;     ///< start index when the drag began
};
