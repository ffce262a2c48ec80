#include "plots/evaluation/dashboard/cycletile.h"

#include "app/theme.h"
#include "plots/common/localnumber.h"

#include <QPainter>

namespace {

constexpr int kLineHeight = 30; // pixels

QString secondsText(const std::optional<double> &seconds)
{
    return seconds ? localNumber(*seconds, 'f', 1) + QStringLiteral(" s") : QStringLiteral("–");
}

} // namespace

CycleTile::CycleTile(QWidget *parent)
    : Tile(parent)
{
    describe();
}

void CycleTile::set(const Content &content)
{
    m_content = content;
    describe();
    update();
}

void CycleTile::describe()
{
    setAccessibleName(tr("Zykluszeit: %1, Schüsse: %2").arg(secondsText(m_content.latestCycle)).arg(m_content.shots));
    const QString tip =
        tr("Zeit vom Beginn des vorigen Schusses bis zum Beginn des letzten; ohne Zeitstempel die Dauer "
           "der Aufzeichnung");
    const QString breaks = tr("Nicht im Mittel: %1 Pausen, länger als das Fünffache des Medians").arg(m_content.breaks);
    setToolTip(m_content.breaks > 0 ? tip + QLatin1Char('\n') + breaks : tip);
}

QString CycleTile::meanTitle() const
{
    if (m_content.cyclesInMean == 0)
        return tr("Mittel");
    if (m_content.breaks > 0)
        return tr("Mittel von %1, ohne Pausen").arg(m_content.cyclesInMean);
    return tr("Mittel der letzten %1").arg(m_content.cyclesInMean);
}

void CycleTile::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    drawFrame(painter, theme::qColorPrimary);
    const QRect inside = contents();
    const auto line = [&](int y, int height, const QString &text, Qt::Alignment alignment) {
        painter.drawText(QRect(inside.left(), inside.top() + y, inside.width(), height),
                         int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, text);
    };
    painter.setPen(theme::qColorText);
    painter.setFont(sizedFont(19, true));
    line(0, 26, tr("Zykluszeit"), Qt::AlignLeft);
    painter.setFont(sizedFont(40, true));
    line(50, 52, secondsText(m_content.latestCycle), Qt::AlignLeft);
    painter.setFont(sizedFont(16));
    painter.setPen(theme::qColorDark);
    line(26, 22, tr("Letzter Zyklus"), Qt::AlignLeft);
    const QString time = m_content.latestTimestamp.isValid()
                             ? m_content.latestTimestamp.toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"))
                             : QStringLiteral("–");
    const QString mean = meanTitle();
    const QString titles[] = {mean, tr("Schüsse"), tr("Letzter Schuss")};
    const QString texts[] = {secondsText(m_content.meanCycle), QString::number(m_content.shots), time};
    for (int i = 0; i < 3; ++i) {
        painter.setPen(theme::qColorDark);
        line(112 + i * kLineHeight, kLineHeight, titles[i], Qt::AlignLeft);
        painter.setPen(theme::qColorText);
        line(112 + i * kLineHeight, kLineHeight, texts[i], Qt::AlignRight);
    }
}
