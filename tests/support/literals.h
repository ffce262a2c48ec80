#pragma once

#include <QByteArray>
#include <QString>

/// UTF-8 text of a test: "Druck"_s
inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

/// "A=[1,2]"_ba
inline QByteArray operator""_ba(const char *bytes, std::size_t size)
{
    return QByteArray(bytes, static_cast<int>(size));
}
