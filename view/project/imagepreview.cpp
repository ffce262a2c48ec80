#include "view/project/imagepreview.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

namespace {

constexpr double kPartOfScreen = 0.85;
constexpr QSize kSmallest(320, 240);
constexpr int kMostBlownUp = 4; // times; beyond, there is nothing more to see

const QColor kSurround(0x22, 0x22, 0x22);

} // namespace

ImagePreview::ImagePreview(const QString &title, const QPixmap &picture, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint
                          | Qt::WindowCloseButtonHint)
    , m_picture(picture)
{
    setObjectName(QStringLiteral("imagePreview"));
    setWindowTitle(title);
    setAccessibleName(title);
    setToolTip(tr("Klicken zum Schließen"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(kSmallest);
    const QSize room = (parent ? parent->screen() : screen())->availableSize() * kPartOfScreen;
    resize(picture.size().scaled(room, Qt::KeepAspectRatio).boundedTo(picture.size() * kMostBlownUp));
}

void ImagePreview::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
        accept();
    else
        QDialog::keyPressEvent(event);
}

void ImagePreview::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        accept();
}

void ImagePreview::paintEvent(QPaintEvent * /*event*/)
{
    const double ratio = devicePixelRatioF();
    const QSize wanted = m_picture.size().scaled(size() * ratio, Qt::KeepAspectRatio);
    const QSize bounded = wanted.boundedTo(m_picture.size() * kMostBlownUp).expandedTo(QSize(1, 1));
    if (m_scaled.size() != bounded) {
        m_scaled = m_picture.scaled(bounded, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaled.setDevicePixelRatio(ratio);
    }
    QPainter painter(this);
    painter.fillRect(rect(), kSurround);
    const QSizeF shown = QSizeF(m_scaled.size()) / ratio;
    painter.drawPixmap(QPointF((width() - shown.width()) / 2.0, (height() - shown.height()) / 2.0), m_scaled);
}
