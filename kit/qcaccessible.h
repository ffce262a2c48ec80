#pragma once

#include <QString>
#include <QTimer>

class QWidget;

/// What screen readers learn about gauges: a dial with its value and range; the attitude meter is an indicator with a
/// text. Called by their constructors; more than once does nothing.
void installQcAccessibility();

/// Tells screen readers that what a widget shows has changed, at most once a second and only when the words differ.
/// Without a screen reader it costs next to nothing and has no timer.
class QcAnnouncer
{
public:
    explicit QcAnnouncer(QWidget *widget);

    void changed();

private:
    void announce();

    QWidget *m_widget;
    QString m_told;
    QTimer m_pause;
};
