#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// How a sensor's values are shown.
enum class DisplayKind { Linear, Round, Bar, Digital };
constexpr int kNumDisplayKinds = 4;

/// What the user chose for each sensor, by its key; kept in the program's settings.
class SensorChoices
{
public:
    /// If there are more, the oldest are forgotten.
    static constexpr int kMostKept = 200;

    /// Reads the settings.
    SensorChoices();

    [[nodiscard]] bool isShown(const QString &key, bool otherwise) const;
    [[nodiscard]] DisplayKind kind(const QString &key) const;
    void setShown(const QString &key, bool shown);
    void setKind(const QString &key, DisplayKind kind);
    /// After a sensor was renamed: it keeps its choices.
    void copy(const QString &from, const QString &to);

    /// Width of the sensor tree in pixels; 0 if none is stored.
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
