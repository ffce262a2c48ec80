#pragma once

#include <QString>
#include <QStringList>

/// The lines typed before, for going back with "up" and forth with "down". A line equal to the last one is not kept
/// twice; the oldest go when there are more than kMaximum.
class InputHistory
{
public:
    static constexpr int kMaximum = 100;

    void add(const QString &line);
    /// The line before; at the oldest one that one again. `typed` is the text in the field; it is returned after the
    /// newest line.
    [[nodiscard]] QString previous(const QString &typed);
    [[nodiscard]] QString next(const QString &typed);

private:
    QStringList m_lines;
    QString m_typed;
    int m_position = 0; ///< index into m_lines; its size: the line being typed
};
