#include "tools/kit-gallery/overlaypages.h"

#include "kit/material/qtmaterialoverlaywidget.h"
#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialripple.h"
#include "kit/small/progressindicator.h"
#include "kit/small/shadowframe.h"
#include "tools/kit-gallery/gallery.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace {

using QtMaterialPaint::themeColor;
using QtMaterialPaint::withOpacity;

constexpr QSize kSize(180, 90);

/// Shows nothing but the ripples.
class TouchArea : public QWidget
{
public:
    TouchArea(int radius, const QLatin1String &key)
        : m_radius(radius)
        , m_ripple(new QtMaterialRipple(this))
    {
        setFixedSize(kSize);
        m_ripple->setSurface(QMargins(1, 1, 1, 1), radius);
        m_ripple->setColor(withOpacity(themeColor(key), 0.3));
    }

protected:
    void mousePressEvent(QMouseEvent *event) override { m_ripple->press(event->localPos()); }
    void mouseReleaseEvent(QMouseEvent *) override { m_ripple->release(); }
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(themeColor(QLatin1String("accent3")));
        painter.setBrush(themeColor(QLatin1String("canvas")));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), m_radius, m_radius);
    }

private:
    int m_radius;
    QtMaterialRipple *m_ripple;
};

class Veil : public QtMaterialOverlayWidget
{
public:
    using QtMaterialOverlayWidget::QtMaterialOverlayWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(rect(), withOpacity(themeColor(QLatin1String("canvas")), 0.92));
    }
};

ShadowFrame *createCard(bool veiled)
{
    auto *frame = new ShadowFrame;
    frame->setFixedSize(200, 120);
    auto *layout = new QVBoxLayout(frame);
    auto *label = new QLabel(QStringLiteral("215,4 bar"));
    layout->addWidget(label, 0, Qt::AlignCenter);
    if (!veiled)
        return frame;
    auto *veil = new Veil(frame);
    auto *indicator = new ProgressIndicator(veil);
    indicator->setPercent(42);
    indicator->startAnimation();
    auto *middle = new QVBoxLayout(veil);
    middle->addWidget(indicator, 0, Qt::AlignCenter);
    return frame;
}

} // namespace

GalleryPage *createRipplePage()
{
    auto *page = new GalleryPage(QStringLiteral("QtMaterialRipple"));
    page->addRow(QStringLiteral("Waves, where the mouse presses"));
    page->addSample(QStringLiteral("at rest"), new TouchArea(4, QLatin1String("primary1")));
    page->addSample(QStringLiteral("held"), new TouchArea(4, QLatin1String("primary1")), GalleryPage::State::Pressed);
    page->addSample(QStringLiteral("held, round, \"primary2\""), new TouchArea(45, QLatin1String("primary2")),
                    GalleryPage::State::Pressed);
    return page;
}

GalleryPage *createOverlayPage()
{
    auto *page = new GalleryPage(QStringLiteral("QtMaterialOverlayWidget"));
    page->addRow(QStringLiteral("A veil with a progress indicator"));
    page->addSample(QStringLiteral("without"), createCard(false));
    page->addSample(QStringLiteral("with the overlay"), createCard(true));
    return page;
}
