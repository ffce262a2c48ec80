#include "plots/oscilloscope/labelmargin.h"

#include <QFont>
#include <QStaticText>
#include <QTransform>

int labelMargin(const QFont &font)
{
    QStaticText sample(QStringLiteral("ABCgj"));
    sample.prepare(QTransform(), font); // without it, the text is laid out in the application's font
    return int(sample.size().height()) + 2;
}
