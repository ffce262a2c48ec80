#pragma once

#include "kit/small/throttle.h"

#include <QString>

#include <functional>

class QWidget;

/// Tells screen readers that what a widget shows has changed, at most once a second and only when the words differ.
/// Without a screen reader it costs next to nothing and starts no timer.
class QcAnnouncer
{
public:
    using Tell = std::function<void(const QString &text)>;

    /// Speaks for the widget, which must outlive it. Without `tell` it tells whoever listens to QAccessible.
    explicit QcAnnouncer(QWidget *widget, Tell tell = {});

    /// The widget shows something else; to be called as often as that happens.
    void changed();

private:
    void announce();

    QWidget *m_widget;
    Tell m_tell;
    QString m_told;
    Throttle m_pause; ///< runs for a while after each announcement
};
