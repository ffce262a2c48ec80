#pragma once

#include <QByteArray>
#include <QString>

/// The text of a JSON string; `escaped` is what the file has between the quotation marks.
[[nodiscard]] QString unescapedJson(const QByteArray &escaped);
