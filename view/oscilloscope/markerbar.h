#pragma once

#include "model/verticalmarkers.h"

#include <QFrame>

#include <array>

class OsziDoubleSpinBox;
class QCheckBox;
class QLabel;
class QPushButton;

/// The bar with the four vertical markers: their times, whether these are absolute or distances, and the buttons that
/// place a marker in a plot. It reports what the user wants and shows what it is told.
class MarkerBar : public QFrame
{
    Q_OBJECT

public:
    explicit MarkerBar(QWidget *parent = nullptr);

    /// Index 0 to 3; in seconds.
    [[nodiscard]] OsziDoubleSpinBox *secondsBox(int index) const;
    /// Reports what was entered into a box; any other sender is logged.
    void reportEntry(const QObject *sender, double seconds);

    /// The positions as sample indices and the sampling period in milliseconds. Emits nothing.
    void showMarkers(const VerticalMarkers &samples, int clock);
    [[nodiscard]] bool isAbsolute() const;
    /// Emits nothing.
    void setAbsolute(bool absolute);

    /// The armed marker, if any, goes to this sample and follows until release().
    void pointAt(int sample);
    /// The pointer was released: a marker that was placed is no longer armed.
    void release();
    void disarm();
    /// Reports all markers as moved to the beginning.
    void clear();

signals:
    /// The user wants clear().
    void clearClicked();
    /// The user moved a marker to a time / to a distance from the marker before it, in milliseconds.
    void markerChangedAbsolute(int index, int milliseconds);
    void markerChangedRelative(int index, int milliseconds);
    void absoluteClicked(bool absolute);
    /// A marker waits to be placed in a plot, or no longer does.
    void armedChanged(bool armed);

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Marker
    {
        QPushButton *button = nullptr;
        QLabel *label = nullptr;
        OsziDoubleSpinBox *seconds = nullptr;
    };

    [[nodiscard]] QWidget *createMarker(int index);
    [[nodiscard]] QWidget *createAbsolute();
    void retranslateUi();
    void retranslateMarker(int index);
    void arm(int index);
    void report(int index, int milliseconds);

    std::array<Marker, kNumVerticalMarkers> m_markers{};
    QCheckBox *m_absolute = nullptr;
    QLabel *m_absoluteCaption = nullptr;
    QPushButton *m_clear = nullptr;

    VerticalMarkers m_samples{};
    int m_clock = 1;
    int m_armed = -1;
    bool m_placed = false; ///< the armed marker follows the pointer until the button is released
};
