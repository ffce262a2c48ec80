#include "view/terminal/streamedit.h"

#include <QElapsedTimer>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int kLongestInterval = 1000;
// Showing text may take a tenth of the time at most.
constexpr int kIntervalPerCost = 10;
// Appending to a full field costs five times as much for each line as refilling it, since it drops the oldest
// lines one by one.
constexpr int kCostOfAppending = 5;

/// The last lines of a text that has more of them.
QString lastLines(const QString &text, int lines)
{
    int start = text.size();
    for (int i = 0; i < lines && start >= 0; ++i)
        start = start > 0 ? text.lastIndexOf(QLatin1Char('\n'), start - 1) : -1;
    return text.mid(start + 1);
}

} // namespace

StreamEdit::StreamEdit(int maximumLines, QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(maximumLines);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    connect(&m_throttle, &Throttle::due, this, &StreamEdit::flush);
}

void StreamEdit::startFlush()
{
    m_pending = true; // stays so while hidden: showEvent() fetches
    if (isVisible())
        m_throttle.request();
}

void StreamEdit::flush()
{
    m_throttle.cancel();
    m_pending = false;
    const QString text = m_source ? m_source() : QString();
    if (text.isEmpty())
        return;
    QElapsedTimer cost;
    cost.start();
    const int lines = text.count(QLatin1Char('\n')) + 1;
    if (lines * kCostOfAppending < maximumBlockCount())
        appendPlainText(text);
    else
        refill(text, lines);
    const int interval = static_cast<int>(cost.elapsed()) * kIntervalPerCost;
    m_throttle.setInterval(std::clamp(interval, kShortestInterval, kLongestInterval));
}

void StreamEdit::refill(const QString &text, int lines)
{
    QScrollBar *bar = verticalScrollBar();
    const int position = bar->value();
    const bool following = position == bar->maximum();
    const int kept = std::min(maximumBlockCount() - lines, document()->isEmpty() ? 0 : blockCount());
    const QString old = kept > 0 ? lastLines(toPlainText(), kept) + QLatin1Char('\n') : QString();
    setPlainText(old + text);
    bar->setValue(following ? bar->maximum() : position);
}

void StreamEdit::showEvent(QShowEvent *event)
{
    QPlainTextEdit::showEvent(event);
    if (!m_pending)
        return;
    // In the next turn, not after the interval: the page would be seen without its newest lines first.
    const int interval = m_throttle.interval();
    m_throttle.cancel();
    m_throttle.setInterval(0);
    m_throttle.request();
    m_throttle.setInterval(interval);
}
