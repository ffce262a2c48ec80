#pragma once

#include "kit/small/throttle.h"

#include <QPlainTextEdit>

#include <functional>

/// A read-only text field for lines that arrive faster than anyone reads: its owner collects them and calls
/// scheduleFlush() for each; the field fetches them together, at most every 50 ms, at longer intervals when showing
/// them takes long, and not at all while it is hidden.
class StreamEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// Hands over what was collected, lines separated by line feeds, none behind the last; empty: nothing new.
    using Source = std::function<QString()>;

    static constexpr int kShortestInterval = 50; ///< ms

    explicit StreamEdit(int maximumLines, QWidget *parent = nullptr);

    void setSource(Source source) { m_source = std::move(source); }
    /// A comparison when a flush is under way already.
    void scheduleFlush()
    {
        if (!m_pending)
            startFlush();
    }
    /// Fetches and shows what was collected, at once, hidden or not.
    void flush();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void startFlush();
    void refill(const QString &text, int lines);

    Source m_source;
    Throttle m_throttle{kShortestInterval};
    bool m_pending = false; ///< something was collected; also while hidden, when the throttle rests
};
