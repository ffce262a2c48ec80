#pragma once

#include <QString>
#include <QStringList>

/// Names to tell the user, as many as anybody reads, and how many there are.
struct NameList
{
    static constexpr int kMostNames = 5;
    static constexpr int kLongestName = 40; ///< characters

    QStringList names;
    int count = 0;

    void add(const QString &name)
    {
        if (count++ < kMostNames)
            names.append(name.size() > kLongestName ? name.left(kLongestName) + QChar(0x2026) : name);
    }
};
