#pragma once

#include <QtGlobal>

class QIODevice;

/// Where a text stops to be JSON.
struct JsonFault
{
    qint64 line = 0;      ///< from 1; 0 if the whole text is JSON
    qint64 byte = 0;      ///< in the whole text, from 1
    bool isAtEnd = false; ///< the text is valid as far as it goes, but ends too early; also if it is empty
};

/// Reads the text from the beginning; the device must be open and able to seek. Throws std::bad_alloc.
[[nodiscard]] JsonFault findJsonFault(QIODevice &source);
