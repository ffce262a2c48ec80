#include "controller/logger/importsummary.h"

#include <QFileInfo>

namespace {

constexpr int kMostNames = 5; // of files in a message

} // namespace

void ImportSummary::addFile(int shots, const BlackBoxLosses &losses)
{
    m_shots += shots;
    m_losses.skippedLines += losses.skippedLines;
    m_losses.badValues += losses.badValues;
}

void ImportSummary::addUnreadable(const QString &file)
{
    m_unreadable += QFileInfo(file).fileName();
}

QString ImportSummary::text() const
{
    QStringList parts{m_shots == 1 ? tr("1 Messung importiert") : tr("%1 Messungen importiert").arg(m_shots)};
    if (m_losses.skippedLines > 0)
        parts += m_losses.skippedLines == 1 ? tr("1 Zeile übersprungen")
                                            : tr("%1 Zeilen übersprungen").arg(m_losses.skippedLines);
    if (m_losses.badValues > 0)
        parts += m_losses.badValues == 1 ? tr("1 Wert war nicht lesbar und ist jetzt 0")
                                         : tr("%1 Werte waren nicht lesbar und sind jetzt 0").arg(m_losses.badValues);
    if (!m_unreadable.isEmpty())
        parts += m_unreadable.size() == 1 ? tr("1 Datei nicht lesbar")
                                          : tr("%1 Dateien nicht lesbar").arg(m_unreadable.size());
    return parts.join(QLatin1String(", "));
}

QString ImportSummary::failureText() const
{
    QString names = m_unreadable.mid(0, kMostNames).join(QLatin1Char('\n'));
    if (m_unreadable.size() > kMostNames)
        names += QStringLiteral("\n…");
    return tr("Diese Dateien konnten nicht gelesen werden:") + QLatin1Char('\n') + names;
}
