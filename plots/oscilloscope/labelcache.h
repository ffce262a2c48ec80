#pragma once

#include <QFont>
#include <QHash>
#include <QStaticText>

/// Laid-out texts, kept between paints.
class LabelCache
{
public:
    /// The text laid out in a font. The reference is valid until the next call.
    const QStaticText &label(const QString &text, const QFont &font);

private:
    QFont m_font;
    QHash<QString, QStaticText> m_labels;
};
