#pragma once

#include <QByteArray>
#include <QString>

/// The text that a JSON string means; `escaped` is what stands between its quotation marks.
[[nodiscard]] QString unescapedJson(const QByteArray &escaped);
