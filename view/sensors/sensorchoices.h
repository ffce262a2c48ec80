#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// How a sensor's values are shown.
enum class DisplayKind { Linear, Round, Bar, Digital };
constexpr int kNumDisplayKinds = 4;

/// What the user chose for sensors, by their keys: kept in the program's settings across runs.
class SensorChoices
{
public:
    /// Old choices beyond so many are forgotten.
    static constexpr int kMostKept = 200;

    /// Reads what was kept.
    SensorChoices();

    [[nodiscard]] bool isShown(const QString &key, bool otherwise) const;
    [[nodiscard]] DisplayKind kind(const QString &key) const;
    void setShown(const QString &key, bool shown);
    void setKind(const QString &key, DisplayKind kind);
    /// After a renaming: what was chosen stays with the sensor.
    void copy(const QString &from, const QString &to);

    /// Pixels of the sensor tree; 0 if none were kept.
    [[nodiscard]] static int treeWidth();
    static void setTreeWidth(int pixels);

private:
    struct Choice
    {
        int shown = -1; ///< -1: not chosen
        int kind = -1;
    };

    void change(const QString &key, const Choice &choice);

    QHash<QString, Choice> m_choices;
    QStringList m_order; ///< the latest change last
};
