#include "view/streamedit.h"

#include <QElapsedTimer>

#include <algorithm>

namespace {

constexpr int kLongestInterval = 1000;
// Showing text may take a tenth of the time at most.
constexpr int kIntervalPerCost = 10;

} // namespace

StreamEdit::StreamEdit(int maximumLines, QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(maximumLines);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &StreamEdit::flush);
}

void StreamEdit::startFlush()
{
    m_pending = true; // stays so while hidden: showEvent() fetches
    if (isVisible())
        m_timer.start(m_interval);
}

void StreamEdit::flush()
{
    m_timer.stop();
    m_pending = false;
    const QString text = m_source ? m_source() : QString();
    if (text.isEmpty())
        return;
    QElapsedTimer cost;
    cost.start();
    appendPlainText(text);
    m_interval = std::clamp(static_cast<int>(cost.elapsed()) * kIntervalPerCost, kShortestInterval, kLongestInterval);
}

void StreamEdit::showEvent(QShowEvent *event)
{
    QPlainTextEdit::showEvent(event);
    if (m_pending)
        m_timer.start(0);
}
