#include "controller/project/deletionquestion.h"

#include "controller/project/deletionplan.h"
#include "model/model.h"

#include <QStringList>

#include <algorithm>

namespace {

const QString kTimeFormat = QStringLiteral("dd.MM.yyyy HH:mm:ss");
constexpr int kMostLines = 100; // of measurements; a question is no table

QString lineOf(int index, const Model &model)
{
    const QDateTime time = model.timestamp(index);
    const QString number = DeletionQuestion::tr("Messung %1").arg(index + 1);
    return time.isValid() ? number + QLatin1String(", ") + time.toString(kTimeFormat) : number;
}

QStringList linesOf(const QVector<int> &removed, const Model &model)
{
    QStringList lines;
    const int most = removed.size() <= kMostLines ? kMostLines : kMostLines - 1;
    for (int i = 0; i < std::min<int>(most, removed.size()); ++i)
        lines << lineOf(removed.at(i), model);
    if (removed.size() > most)
        lines << DeletionQuestion::tr("... und %1 weitere, zuletzt Messung %2")
                     .arg(removed.size() - most)
                     .arg(removed.constLast() + 1);
    return lines;
}

QString countText(int count)
{
    if (count == 0)
        return DeletionQuestion::tr("Keine Messung wird gelöscht.");
    return count == 1 ? DeletionQuestion::tr("Das ist 1 Messung:")
                      : DeletionQuestion::tr("Das sind %1 Messungen:").arg(count);
}

QString undoHint()
{
    return DeletionQuestion::tr("Mit Strg+Z lässt sich das rückgängig machen.");
}

bool isSurprising(const DeletionPlan &plan, QVector<int> removed, const QString &range, const Model &model)
{
    std::sort(removed.begin(), removed.end());
    return !removed.isEmpty() && !plan.malformed && removed != shownMeasurements(range, model.numChannels(0));
}

} // namespace

QString DeletionQuestion::details(const DeletionPlan &plan, const QString &range, const Model &model)
{
    const QVector<int> removed = plan.removed();
    QStringList lines{countText(removed.size())};
    lines += linesOf(removed, model);
    if (isSurprising(plan, removed, range, model))
        lines << QString()
              << tr("Achtung: Das sind andere als eingegeben, weil nach jeder Löschung die folgenden "
                    "Messungen nachrücken.");
    if (plan.malformed)
        lines << QString()
              << tr("Ab \"%1\" ist die Eingabe fehlerhaft. Dieser Teil und alles dahinter wird nicht gelöscht.")
                     .arg(plan.malformed->text);
    if (!removed.isEmpty())
        lines << QString() << undoHint();
    return lines.join(QLatin1Char('\n'));
}

QString DeletionQuestion::detailsOfAll(int count)
{
    if (count == 0)
        return tr("Es gibt keine Messung.");
    const QString text = count == 1 ? tr("Das ist 1 Messung.") : tr("Das sind %1 Messungen.").arg(count);
    return text + QLatin1Char('\n') + undoHint();
}
