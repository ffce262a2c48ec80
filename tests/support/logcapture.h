#pragma once

#include <QStringList>
#include <QtGlobal>

#include <algorithm>

/// Collects every message of the debug output for its lifetime instead of printing it. One at a time.
class LogCapture
{
public:
    LogCapture()
    {
        lines().clear();
        m_previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { lines().append(text); });
    }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(LogCapture)

    [[nodiscard]] bool contains(const QString &text) const { return count(text) > 0; }
    /// Messages that hold the text.
    [[nodiscard]] int count(const QString &text) const
    {
        const QStringList &all = lines();
        return static_cast<int>(
            std::count_if(all.begin(), all.end(), [&](const QString &line) { return line.contains(text); }));
    }
    /// The first message that holds the text from the one given on; -1 if there is none.
    [[nodiscard]] int indexOf(const QString &text, int from = 0) const
    {
        for (int i = from; i < lines().size(); ++i)
            if (lines().at(i).contains(text))
                return i;
        return -1;
    }
    void clear() { lines().clear(); }
    [[nodiscard]] QStringList all() const { return lines(); }

private:
    static QStringList &lines()
    {
        static QStringList collected;
        return collected;
    }

    QtMessageHandler m_previous = nullptr;
};
