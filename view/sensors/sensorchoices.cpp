#include "view/sensors/sensorchoices.h"

#include "app/theme.h"

#include <QSettings>

namespace {

QSettings settings()
{
    return QSettings(theme::organisationName, theme::applicationName);
}

QString choicesKey()
{
    return QStringLiteral("sensors/choices");
}

QString treeWidthKey()
{
    return QStringLiteral("sensors/treeWidth");
}

int numberOf(QChar sign, int count)
{
    const int number = sign.digitValue();
    return number >= 0 && number < count ? number : -1;
}

QChar signOf(int number)
{
    return number < 0 ? QLatin1Char('-') : QLatin1Char(static_cast<char>('0' + number));
}

} // namespace

// Each entry: one character for whether the sensor is shown, one for the kind, then the key.
SensorChoices::SensorChoices()
{
    const QStringList kept = settings().value(choicesKey()).toStringList();
    for (const QString &entry : kept) {
        const QString key = entry.mid(2);
        if (key.isEmpty() || m_choices.contains(key) || m_order.size() >= kMostKept)
            continue;
        m_choices.insert(key, {numberOf(entry.at(0), 2), numberOf(entry.at(1), kNumDisplayKinds)});
        m_order.append(key);
    }
}

bool SensorChoices::isShown(const QString &key, bool otherwise) const
{
    const int shown = m_choices.value(key).shown;
    return shown < 0 ? otherwise : shown == 1;
}

DisplayKind SensorChoices::kind(const QString &key) const
{
    const int kind = m_choices.value(key).kind;
    return kind < 0 ? DisplayKind::Round : static_cast<DisplayKind>(kind);
}

void SensorChoices::setShown(const QString &key, bool shown)
{
    Choice choice = m_choices.value(key);
    choice.shown = shown ? 1 : 0;
    change(key, choice);
}

void SensorChoices::setKind(const QString &key, DisplayKind kind)
{
    Choice choice = m_choices.value(key);
    choice.kind = static_cast<int>(kind);
    change(key, choice);
}

void SensorChoices::copy(const QString &from, const QString &to)
{
    if (from != to && m_choices.contains(from))
        change(to, m_choices.value(from));
}

void SensorChoices::change(const QString &key, const Choice &choice)
{
    m_order.removeOne(key);
    m_order.append(key);
    m_choices.insert(key, choice);
    while (m_order.size() > kMostKept)
        m_choices.remove(m_order.takeFirst());
    QStringList entries;
    for (const QString &each : qAsConst(m_order)) {
        const Choice &kept = m_choices[each];
        entries.append(QString(signOf(kept.shown)) + signOf(kept.kind) + each);
    }
    settings().setValue(choicesKey(), entries);
}

int SensorChoices::treeWidth()
{
    return settings().value(treeWidthKey(), 0).toInt();
}

void SensorChoices::setTreeWidth(int pixels)
{
    settings().setValue(treeWidthKey(), pixels);
}
