#pragma once

#include <QString>
#include <QTimer>

#include <functional>

class QWidget;

/// What screen readers learn about gauges: a dial with its value and range; the attitude meter is an indicator with a
/// text. Called by their constructors; more than once does nothing.
void installQcAccessibility();

/// Tells screen readers that what a widget shows has changed, at most once a second and only when the words differ.
/// Without a screen reader it costs next to nothing and has no timer.
class QcAnnouncer
{
public:
    using Tell = std::function<void(const QString &text)>;

    /// Without `tell` it tells whoever listens to QAccessible.
    explicit QcAnnouncer(QWidget *widget, Tell tell = {});

    void changed();

private:
    void announce();

    QWidget *m_widget;
    Tell m_tell;
    QString m_told;
    QTimer m_pause;
};
