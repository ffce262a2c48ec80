#include "view/blackbox/shotpreview.h"

#include "app/theme.h"
#include "view/common/logging.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace {

constexpr qint64 kMostBytes = 2 * 1024 * 1024;
constexpr int kCaptionHeight = 30;
constexpr int kBorder = 6;
constexpr QSize kUsualSize(400, 190);
constexpr QSize kSmallestSize(200, 120);

/// One point per sample; where there are more samples than columns of pixels, the smallest and largest of each column.
QPolygonF curveOf(const SampleList &samples, const QRectF &area)
{
    const auto [low, high] = std::minmax_element(samples.begin(), samples.end());
    // Halved, as the difference of two large numbers can overflow.
    const double span = *high / 2 - *low / 2;
    const double bottom = *low;
    const auto y = [&](double value) {
        const double part = span > 0.0 ? (value / 2 - bottom / 2) / span : 0.5;
        return area.bottom() - part * area.height();
    };
    const qint64 count = samples.size();
    const auto x = [&](qint64 i) {
        return area.left() + area.width() * double(i) / double(std::max<qint64>(1, count - 1));
    };
    const qint64 step = std::max<qint64>(1, count / std::max(1, static_cast<int>(area.width())));
    QPolygonF curve;
    for (qint64 from = 0; from < count; from += step) {
        const auto begin = samples.begin() + from;
        const auto ends = std::minmax_element(begin, begin + std::min(step, count - from));
        curve.append({x(from), y(*ends.first)});
        if (step > 1)
            curve.append({x(from), y(*ends.second)});
    }
    return curve;
}

} // namespace

ShotPreview::ShotPreview(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize ShotPreview::sizeHint() const
{
    return kUsualSize;
}

QSize ShotPreview::minimumSizeHint() const
{
    return kSmallestSize;
}

void ShotPreview::setFile(const QString &fileName)
{
    qCDebug(lcView) << Q_FUNC_INFO << fileName;
    m_fileName = fileName;
    m_document = {};
    m_content = Content::Nothing;
    m_isCut = false;
    if (!fileName.isEmpty())
        read();
    update();
}

void ShotPreview::read()
{
    QFile file(m_fileName);
    m_content = Content::Unreadable;
    // Opening something else, such as a FIFO, could block.
    if (!QFileInfo(m_fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    SensorDescription usual;
    usual.setNumSensorGroups(1);
    usual.modifiableSensorGroup(0)->setNumSensors(kNumSensors);
    const auto noProgress = [](qint64) {};
    m_document = readBlackBox(file, usual, noProgress, kMostBytes);
    m_isCut = !file.atEnd();
    if (file.error() == QFileDevice::NoError)
        m_content = Content::Shot;
}

QString ShotPreview::caption() const
{
    if (m_content == Content::Nothing)
        return {};
    if (m_content == Content::Unreadable)
        return tr("Die Datei kann nicht gelesen werden.");
    QStringList parts;
    if (m_document.timestamp && m_document.timestamp->isValid())
        parts += m_document.timestamp->toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
    const QString count = QLocale().toString(m_document.sampleCount());
    if (m_isCut)
        parts += tr("die ersten %1 Werte je Sensor").arg(count);
    else
        parts += m_document.sampleCount() == 1 ? tr("1 Wert je Sensor") : tr("%1 Werte je Sensor").arg(count);
    const int skipped = m_document.losses.skippedLines;
    if (skipped > 0)
        parts += skipped == 1 ? tr("1 Zeile unlesbar") : tr("%1 Zeilen unlesbar").arg(skipped);
    return parts.join(QStringLiteral(" · "));
}

void ShotPreview::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QRect frame = rect().adjusted(0, 0, -1, -kCaptionHeight);
    painter.setPen(theme::qColorMedium);
    painter.setBrush(theme::qColorBackground);
    painter.drawRect(frame);
    painter.setBrush(Qt::NoBrush);
    const QRectF area = frame.adjusted(kBorder, kBorder, -kBorder, -kBorder);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int sensor = 0; sensor < kNumSensors && m_document.sampleCount() > 0; ++sensor) {
        painter.setPen(QPen(defaultSensorColor(sensor), 1.5));
        const QPolygonF curve = curveOf(m_document.samples[static_cast<std::size_t>(sensor)], area);
        if (curve.size() == 1) // a line of one point would be invisible
            painter.drawPoint(curve.first());
        else
            painter.drawPolyline(curve);
    }
    painter.setPen(theme::qColorText);
    const QRect line(0, height() - kCaptionHeight, width(), kCaptionHeight);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(caption(), Qt::ElideRight, line.width()));
}
