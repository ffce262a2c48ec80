#include "view/common/actionicon.h"

#include "app/theme.h"

#include <QPainter>
#include <QPixmap>

namespace {

QPixmap tinted(QPixmap pixmap, const QColor &tint)
{
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    const qreal ratio = pixmap.devicePixelRatio();
    painter.fillRect(QRectF(0.0, 0.0, pixmap.width() / ratio, pixmap.height() / ratio), tint);
    return pixmap;
}

QPixmap load(const QString &path, qreal ratio)
{
    QPixmap pixmap(path);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

/// "play.png" gives "play@2x.png".
QString doubleSizeName(const QString &file)
{
    const int dot = file.lastIndexOf(QLatin1Char('.'));
    return file.left(dot) + QLatin1String("@2x") + file.mid(dot);
}

} // namespace

QIcon actionIcon(const QString &file, const QColor &tint)
{
    QIcon icon;
    const QPixmap sizes[] = {load(theme::iconPrefix + file, 1.0), load(theme::iconPrefix + doubleSizeName(file), 2.0)};
    for (const QPixmap &size : sizes) {
        if (size.isNull())
            continue;
        const QPixmap pixmap = tinted(size, tint);
        icon.addPixmap(pixmap, QIcon::Normal);
        icon.addPixmap(pixmap, QIcon::Disabled);
    }
    return icon;
}
