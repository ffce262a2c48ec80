#include "kit/gauge/qcattitudemeter.h"

#include "kit/gauge/qcannouncer.h"
#include "kit/gauge/qccanvas.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/small/accessiblefactory.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kUsualSize = 240;
constexpr int kSmallestSize = 96;
constexpr double kMostPitch = 90.0;     // degrees
constexpr double kDegree = 2.2;         // percent of the radius that the horizon moves per degree of pitch
constexpr double kView = 84.0;          // radius of the part that moves, in percent
constexpr double kLadderEnd = 42.0;     // percent: how far from the middle its lines are visible
constexpr int kLadderStep = 10;         // degrees
constexpr double kRoomForHalves = 22.0; // pixels between rungs that leave room for half steps
constexpr double kRollLength = 5.0;     // of the marks around the view
constexpr double kBarWidth = 2.6;

const QColor kSky(0x4f, 0x9f, 0xd8);
const QColor kSkyFar(0x1f, 0x64, 0xa6);
const QColor kGround(0x9a, 0x6f, 0x45);
const QColor kGroundFar(0x62, 0x42, 0x27);
const QColor kLevel(0xff, 0xc1, 0x07);

QColor color(const QcCanvas &canvas, const QColor &one)
{
    return canvas.colors.shaded(one);
}

void paintHalf(QPainter &painter, const QcCanvas &canvas, double way, const QColor &near, const QColor &far)
{
    const double end = canvas.length(way);
    QLinearGradient gradient(0.0, 0.0, 0.0, end);
    gradient.setColorAt(0.0, color(canvas, near));
    gradient.setColorAt(0.35, color(canvas, far));
    const double wide = canvas.length(300.0);
    painter.fillRect(QRectF(QPointF(-wide, 0.0), QPointF(wide, end)).normalized(), gradient);
}

/// A line of the ladder; with a number at either end if it is a long one.
void paintRung(QPainter &painter, const QcCanvas &canvas, int degrees)
{
    const bool isLong = degrees % kLadderStep == 0;
    const double half = canvas.length(isLong ? 14.0 : 7.0);
    const double y = -canvas.length(degrees * kDegree);
    painter.drawLine(QPointF(-half, y), QPointF(half, y));
    if (!isLong)
        return;
    const QString text = canvas.locale.toString(std::abs(degrees));
    const double away = half + canvas.length(7.5);
    qcgauge::drawCentred(painter, {-away, y}, text);
    qcgauge::drawCentred(painter, {away, y}, text);
}

void paintLadder(QPainter &painter, const QcCanvas &canvas, double pitch)
{
    painter.setPen(QPen(Qt::white, canvas.stroke(1.1)));
    painter.setFont(canvas.font(9.0, QFont::Medium));
    const double seen = kLadderEnd / kDegree;
    const int step = canvas.length(kLadderStep * kDegree) < kRoomForHalves ? kLadderStep : kLadderStep / 2;
    for (int degrees = -90; degrees <= 90; degrees += step) {
        if (degrees != 0 && std::abs(degrees - pitch) <= seen)
            paintRung(painter, canvas, degrees);
    }
}

/// The view: sky, ground and ladder, turned against the roll.
void paintHorizon(QPainter &painter, const QcCanvas &canvas, double roll, double pitch)
{
    QPainterPath view;
    view.addEllipse(canvas.square(kView));
    painter.save();
    painter.setClipPath(view, Qt::IntersectClip);
    painter.translate(canvas.centre);
    painter.rotate(-roll);
    painter.translate(0.0, canvas.length(pitch * kDegree));
    paintHalf(painter, canvas, -400.0, kSky, kSkyFar);
    paintHalf(painter, canvas, 400.0, kGround, kGroundFar);
    painter.setPen(QPen(Qt::white, canvas.stroke(1.6)));
    painter.drawLine(QPointF(-canvas.length(200.0), 0.0), QPointF(canvas.length(200.0), 0.0));
    paintLadder(painter, canvas, pitch);
    painter.restore();
}

void paintTriangle(QPainter &painter, const QcCanvas &canvas, double angle, double tip, double base)
{
    const double spread = 3.2;
    const QPointF points[] = {canvas.point(angle, tip), canvas.point(angle - spread, base),
                              canvas.point(angle + spread, base)};
    painter.drawConvexPolygon(points, 3);
}

/// The hand that turns with the horizon, below the marks of the bezel.
void paintRollHand(QPainter &painter, const QcCanvas &canvas, double roll)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    paintTriangle(painter, canvas, -roll, kView - 1.0, kView - 9.0);
}

void paintRollMarks(QPainter &painter, const QcCanvas &canvas)
{
    for (const int degrees : {10, 20, 30, 45, 60, 90}) {
        const bool isLong = degrees % 30 == 0;
        painter.setPen(QPen(canvas.colors.ink, canvas.stroke(isLong ? 1.6 : 1.0), Qt::SolidLine, Qt::FlatCap));
        const double end = kView + (isLong ? kRollLength * 1.7 : kRollLength);
        for (const int angle : {degrees, -degrees})
            painter.drawLine(canvas.point(angle, kView + 1.5), canvas.point(angle, end));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(canvas.colors.ink);
    paintTriangle(painter, canvas, 0.0, kView + 1.5, kView + 9.0);
}

/// The ring around the view.
void paintBezel(QPainter &painter, const QcCanvas &canvas)
{
    QPainterPath ring;
    ring.addEllipse(canvas.square(98.5));
    ring.addEllipse(canvas.square(kView));
    painter.setPen(Qt::NoPen);
    painter.setBrush(canvas.colors.face);
    painter.drawPath(ring);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(canvas.colors.ring, canvas.stroke(1.6)));
    painter.drawEllipse(canvas.square(98.2));
    painter.drawEllipse(canvas.square(kView));
    paintRollMarks(painter, canvas);
}

/// What stays level with the observer: two wings and a dot.
void paintLevelSymbol(QPainter &painter, const QcCanvas &canvas)
{
    QPainterPath symbol;
    for (const double side : {-1.0, 1.0}) {
        symbol.moveTo(side * 60.0, 0.0);
        symbol.lineTo(side * 36.0, 0.0);
        symbol.lineTo(side * 36.0, 7.0);
    }
    QTransform place;
    place.translate(canvas.centre.x(), canvas.centre.y());
    place.scale(canvas.length(1.0), canvas.length(1.0));
    symbol = place.map(symbol);
    painter.setBrush(Qt::NoBrush);
    for (const bool edge : {true, false}) {
        const QColor paint = edge ? QColor(0, 0, 0, 150) : color(canvas, kLevel);
        const double width = edge ? kBarWidth + 1.4 : kBarWidth;
        painter.setPen(QPen(paint, canvas.length(width), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(symbol);
        painter.drawPoint(canvas.centre);
    }
}

/// To screen readers it is an indicator with a text.
class AttitudeInterface : public QAccessibleWidget
{
public:
    explicit AttitudeInterface(QcAttitudeMeter *meter)
        : QAccessibleWidget(meter, QAccessible::Indicator)
        , m_meter(meter)
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_meter->spokenValue() : QAccessibleWidget::text(kind);
    }

private:
    QcAttitudeMeter *m_meter;
};

} // namespace

struct QcAttitudeMeter::Private
{
    explicit Private(QWidget *meter)
        : announcer(meter)
    {}

    double roll = 0.0;
    double pitch = 0.0;
    QcCanvas canvas;
    QPixmap still; ///< bezel and level symbol; null when something changed
    QcAnnouncer announcer;
};

QcAttitudeMeter::QcAttitudeMeter(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    installAccessible<QcAttitudeMeter, AttitudeInterface>();
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, &QcAttitudeMeter::renew);
}

QcAttitudeMeter::~QcAttitudeMeter() = default;

double QcAttitudeMeter::roll() const
{
    return d->roll;
}

double QcAttitudeMeter::pitch() const
{
    return d->pitch;
}

void QcAttitudeMeter::setRoll(double degrees)
{
    if (!std::isfinite(degrees) || qcgauge::normalizedAngle(degrees) == d->roll)
        return;
    d->roll = qcgauge::normalizedAngle(degrees);
    update();
    d->announcer.changed();
}

void QcAttitudeMeter::setPitch(double degrees)
{
    if (!std::isfinite(degrees) || std::clamp(degrees, -kMostPitch, kMostPitch) == d->pitch)
        return;
    d->pitch = std::clamp(degrees, -kMostPitch, kMostPitch);
    update();
    d->announcer.changed();
}

QString QcAttitudeMeter::spokenValue() const
{
    return tr("Querneigung %1°, Längsneigung %2°")
        .arg(qcgauge::numberText(d->roll, 0, locale()), qcgauge::numberText(d->pitch, 0, locale()));
}

void QcAttitudeMeter::renew()
{
    d->still = QPixmap();
    update();
}

void QcAttitudeMeter::paintEvent(QPaintEvent *)
{
    if (d->still.isNull() || !d->canvas.fits(*this)) {
        d->canvas.adopt(*this, !isEnabled());
        d->still = qcgauge::emptyPicture(d->canvas);
        QPainter still(&d->still);
        still.setRenderHint(QPainter::Antialiasing);
        paintBezel(still, d->canvas);
        paintLevelSymbol(still, d->canvas);
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    paintHorizon(painter, d->canvas, d->roll, d->pitch);
    paintRollHand(painter, d->canvas, d->roll);
    painter.drawPixmap(0, 0, d->still);
}

void QcAttitudeMeter::changeEvent(QEvent *event)
{
    if (QcCanvas::changesWith(event->type()))
        renew();
    QWidget::changeEvent(event);
}

QSize QcAttitudeMeter::sizeHint() const
{
    return {kUsualSize, kUsualSize};
}

QSize QcAttitudeMeter::minimumSizeHint() const
{
    return {kSmallestSize, kSmallestSize};
}
