#include "plots/oscilloscope/mousemarker.h"

#include "plots/oscilloscope/osziscene.h"

#include <QLabel>
#include <QPixmap>

#include <algorithm>

namespace {

constexpr QSize kHairLineSize(2, 800);
constexpr int kHairLineHalf = kHairLineSize.height() / 2;
constexpr int kReadOutRight = 10; // pixels from the mouse to the read-out
constexpr int kReadOutAbove = 11; // pixels between the curve and the read-out

QLabel *createHairLine(QWidget *parent)
{
    QPixmap pixmap(kHairLineSize);
    pixmap.fill(Qt::red);
    auto *label = new QLabel(parent);
    label->setObjectName(QStringLiteral("hairLine"));
    label->setPixmap(pixmap);
    label->resize(kHairLineSize);
    return label;
}

QLabel *createReadOut(QWidget *parent)
{
    auto *label = new QLabel(QStringLiteral("OOOOOOOOO"), parent);
    label->setObjectName(QStringLiteral("mouseReadOut"));
    label->setStyleSheet(
        QStringLiteral("QLabel { color: red;          background: rgba(255, 255, 255, 128);         font-size:16px;}"));
    label->adjustSize();
    return label;
}

/// Above and right of a point of the curve; a peak near the upper edge or the right end keeps its value in sight.
QPoint readOutPlace(QPoint point, QSize label, const PlotGeometry &plot)
{
    const int right = point.x() + kReadOutRight;
    const int left = point.x() - kReadOutRight - label.width();
    const int top = point.y() - label.height() - kReadOutAbove;
    return {right + label.width() > plot.widgetWidth && left >= 0 ? left : right,
            std::clamp(top, 0, std::max(plot.height - label.height(), 0))};
}

} // namespace

MouseMarker::MouseMarker(QWidget *plot)
    : m_hairLine(createHairLine(plot))
    , m_readOut(createReadOut(plot))
{
    for (QLabel *label : {m_hairLine, m_readOut}) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents); // the plot gets what happens under them
        label->hide();
    }
}

bool MouseMarker::show(const OsziScene &scene, int x)
{
    const OsziCurve *curve = scene.highlightedCurve();
    const qint64 index = scene.geometry.sampleAt(x);
    if (!curve || !curve->samples || index < curve->shift || index >= curve->end())
        return false;
    const double value = scene.drawnValue(*curve, index);
    // For a curve far outside, the hair line stays just out of sight: widgets cannot be moved any distance.
    const int y = std::clamp(scene.geometry.yOfValue(value), -kHairLineHalf, scene.geometry.height + kHairLineHalf);
    m_hairLine->move(x, y - kHairLineHalf);
    m_hairLine->show();
    m_readOut->setText(QString::number(value, 'g', 6));
    m_readOut->adjustSize();
    m_readOut->move(readOutPlace({x, y}, m_readOut->size(), scene.geometry));
    m_readOut->show();
    return true;
}

void MouseMarker::hide()
{
    m_hairLine->hide();
    m_readOut->hide();
}
