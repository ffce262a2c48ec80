#include "plots/oscilloscope/labelcache.h"

#include <QTransform>

const QStaticText &LabelCache::label(const QString &text, const QFont &font)
{
    constexpr int kMost = 1000; // scrolling through a long recording keeps adding labels
    if (font != m_font || m_labels.size() >= kMost) {
        m_labels.clear();
        m_font = font;
    }
    auto found = m_labels.find(text);
    if (found == m_labels.end()) {
        QStaticText laidOut(text);
        laidOut.setTextFormat(Qt::PlainText);
        laidOut.setPerformanceHint(QStaticText::AggressiveCaching);
        laidOut.prepare(QTransform(), font);
        found = m_labels.insert(text, laidOut);
    }
    return found.value();
}
