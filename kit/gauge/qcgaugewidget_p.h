#pragma once

#include "kit/gauge/qcaccessible.h"
#include "kit/gauge/qcgaugewidget.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QTimer>

#include <memory>
#include <vector>

class QcScaleItem;

struct QcGaugeWidget::Part
{
    std::unique_ptr<QcItem> item;
    qcgauge::Scale scale; ///< that it refers to
    double step = 0.0;
    /// Of it and all parts above it as far as they do not move; null if this is not the first of them or if something
    /// changed.
    QPixmap picture;
};

struct QcGaugeWidget::Private
{
    explicit Private(QcGaugeWidget *gauge)
        : announcer(gauge)
    {}

    void dropPictures();
    /// Drops the one that the part is in.
    void dropPicture(std::vector<Part>::iterator part);
    void spreadScales();
    [[nodiscard]] static const QcScaleItem *scaleOf(const Part &part);
    [[nodiscard]] static double neededStep(const QcCanvas &canvas, std::vector<Part>::const_iterator first,
                                           std::vector<Part>::const_iterator end);

    std::vector<Part> parts;
    double from = 0.0;
    double to = 100.0;
    bool stale = false;
    QcCanvas canvas;       ///< its scale is of no meaning here
    bool prepared = false; ///< canvas and the scales of the parts are up to date
    QcReading reading;
    int damping = 0; ///< ms
    QTimer timer;
    QElapsedTimer sinceFrame;
    QcAnnouncer announcer;
};
