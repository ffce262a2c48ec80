#include "view/oscilloscope/oszirow.h"

#include "model/sensordescription.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/common/elidedlabel.h"
#include "view/oscilloscope/oszicontrols.h"
#include "view/oscilloscope/oszidoublespinbox.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kLargestValue = 1.0e9;
constexpr double kDefaultGrid = 50.0;
constexpr int kValueDecimals = 4;
constexpr int kGridDecimals = 6;
constexpr int kSmallestPlot = 160;
constexpr int kTallestBox = 36;

OsziDoubleSpinBox *createBox(const QString &name, int decimals, double minimum, double value, QWidget *parent)
{
    auto *box = new OsziDoubleSpinBox(QStringLiteral("-00.00"), parent);
    box->setObjectName(name);
    box->setDecimals(decimals);
    box->setRange(minimum, kLargestValue);
    box->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box->setValue(value);
    box->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
    box->setMaximumHeight(kTallestBox);
    return box;
}

} // namespace

OsziRow::OsziRow(int position, QWidget *parent)
    : QWidget(parent)
    , m_position(position)
{
    const QString number = QString::number(position + 1);
    setObjectName(QStringLiteral("osziRow") + number);
    m_plot = new OsziWidget(this);
    m_plot->setObjectName(QStringLiteral("osziWidget") + number);
    m_plot->setMinimumWidth(kSmallestPlot);
    m_plot->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_plot->setFocusPolicy(Qt::StrongFocus);
    m_plot->installEventFilter(this);

    auto *params = new QWidget(this);
    params->setObjectName(QStringLiteral("osziParamsWidget") + number);
    params->setProperty("osziParams", true); // for the tab's sheet, which must not touch the labels in the plot
    createBoxes(params);
    layOut(params);
    connectBoxes();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(m_plot, 1);
    layout->addWidget(params);
    retranslateUi();
    updateEnabled();
}

void OsziRow::createBoxes(QWidget *params)
{
    const QString number = QString::number(m_position + 1);
    m_title = new ElidedLabel(6, 14, params);
    m_title->setElideMode(Qt::ElideMiddle); // the unit is at the end
    m_title->setObjectName(QStringLiteral("osziTitle"));
    m_rangeCaption = new QLabel(params);
    m_autoCaption = new QLabel(params);
    m_gridCaption = new QLabel(params);
    m_offsetCaption = new QLabel(params);
    m_max =
        createBox(QStringLiteral("maxSpinBox") + number, kValueDecimals, -kLargestValue, m_plot->maxValue(), params);
    m_min =
        createBox(QStringLiteral("minSpinBox") + number, kValueDecimals, -kLargestValue, m_plot->minValue(), params);
    m_gridAuto = oszicontrols::createBareCheckBox(QStringLiteral("checkBoxValueGridAuto") + number, true, params);
    m_grid = createBox(QStringLiteral("valueGridSpinBox") + number, kGridDecimals, 0.001, kDefaultGrid, params);
    m_offset = createBox(QStringLiteral("offsetSpinBox") + number, kValueDecimals, -kLargestValue, 0.0, params);
}

void OsziRow::layOut(QWidget *params)
{
    auto *grid = new QGridLayout(params);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(0);
    grid->addWidget(m_title, 0, 0, 1, 2);
    grid->addWidget(m_max, 1, 0);
    grid->addWidget(m_rangeCaption, 2, 0, Qt::AlignHCenter);
    grid->addWidget(m_min, 3, 0);
    grid->addWidget(m_gridAuto, 1, 1);
    grid->addWidget(m_autoCaption, 2, 1, Qt::AlignHCenter);
    grid->addWidget(m_gridCaption, 0, 2, Qt::AlignHCenter);
    grid->addWidget(m_grid, 1, 2);
    grid->addWidget(m_offsetCaption, 2, 2, Qt::AlignHCenter);
    grid->addWidget(m_offset, 3, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    // The boxes grow with the row up to a comfortable height; the rest stays empty below them.
    for (int line : {1, 3})
        grid->setRowStretch(line, 100);
    grid->setRowStretch(4, 1);
}

void OsziRow::connectBoxes()
{
    const auto changed = qOverload<double>(&QDoubleSpinBox::valueChanged);
    connect(m_max, changed, this, &OsziRow::applyMaximum);
    connect(m_min, changed, this, &OsziRow::applyMinimum);
    connect(m_offset, changed, m_plot, &OsziWidget::setOffset);
    connect(m_grid, changed, m_plot, &OsziWidget::setValueGrid);
    connect(m_gridAuto, &QCheckBox::toggled, m_plot, &OsziWidget::setValueGridAuto);
    connect(m_gridAuto, &QCheckBox::toggled, this, &OsziRow::updateEnabled);
    // Silently: the box rounds, and the plot would find a rounded grid changed at every paint.
    connect(m_plot, &OsziWidget::valueGridChanged, m_grid, &OsziDoubleSpinBox::showValue);
}

void OsziRow::applyMaximum(double value)
{
    m_plot->setMaxValue(value);
    showSpan();
}

void OsziRow::applyMinimum(double value)
{
    m_plot->setMinValue(value);
    showSpan();
}

void OsziRow::showSpan()
{
    m_max->showValue(m_plot->maxValue());
    m_min->showValue(m_plot->minValue());
}

ValueSpan OsziRow::span() const
{
    return {m_plot->minValue(), m_plot->maxValue()};
}

bool OsziRow::setSpan(ValueSpan span)
{
    if (!std::isfinite(span.minimum) || !std::isfinite(span.maximum) || !valueaxis::isShowable(span))
        return false;
    const QSignalBlocker blockMax(m_max);
    const QSignalBlocker blockMin(m_min);
    // A project may have been saved with other limits than those in force: its range counts.
    for (OsziDoubleSpinBox *box : {m_max, m_min})
        box->setRange(std::min(box->minimum(), span.minimum), std::max(box->maximum(), span.maximum));
    // The end that moves away from the other one is set first, so that the plot refuses neither.
    if (valueaxis::isShowable({m_plot->minValue(), span.maximum})) {
        m_plot->setMaxValue(span.maximum);
        m_plot->setMinValue(span.minimum);
    } else {
        m_plot->setMinValue(span.minimum);
        m_plot->setMaxValue(span.maximum);
    }
    showSpan();
    return true;
}

ValueSpan OsziRow::limits() const
{
    return {m_max->minimum(), m_max->maximum()};
}

bool OsziRow::setLimits(ValueSpan limits)
{
    if (!std::isfinite(limits.minimum) || !std::isfinite(limits.maximum) || !valueaxis::isShowable(limits))
        return false;
    for (OsziDoubleSpinBox *box : {m_max, m_min}) {
        const QSignalBlocker blocker(box);
        box->setRange(limits.minimum, limits.maximum);
    }
    const ValueSpan shown{std::clamp(span().minimum, limits.minimum, limits.maximum),
                          std::clamp(span().maximum, limits.minimum, limits.maximum)};
    return setSpan(valueaxis::isShowable(shown) ? shown : limits); // the range may have been outside the limits
}

void OsziRow::showOffset(double offset)
{
    if (m_plot->offset() != offset) // a needless repaint of all curves otherwise
        m_plot->setOffset(offset);
    m_offset->showValue(offset);
}

QString OsziRow::defaultName() const
{
    return shownSensorName(QString(), m_position);
}

void OsziRow::setTitle(const QString &name, const QString &unit, const QColor &color)
{
    m_name = name;
    m_unit = unit;
    m_color = color;
    updateTitle();
}

void OsziRow::updateTitle()
{
    const QString name = m_name.isEmpty() ? defaultName() : m_name;
    m_title->setText(m_unit.isEmpty() ? name : tr("%1 [%2]").arg(name, m_unit));
    const QString look =
        m_plot->hasFocus() ? QStringLiteral("color: white; background-color: %1;") : QStringLiteral("color: %1;");
    const QString sheet = look.arg(m_color.name());
    if (m_title->styleSheet() != sheet) // each new sheet polishes the label again
        m_title->setStyleSheet(sheet);
    m_plot->setAccessibleName(m_title->text());
}

void OsziRow::setEditable(bool editable)
{
    m_editable = editable;
    updateEnabled();
}

void OsziRow::updateEnabled()
{
    for (QWidget *box : {static_cast<QWidget *>(m_max), static_cast<QWidget *>(m_min),
                         static_cast<QWidget *>(m_gridAuto), static_cast<QWidget *>(m_offset)})
        box->setEnabled(m_editable);
    m_grid->setEnabled(m_editable && !m_gridAuto->isChecked());
}

bool OsziRow::eventFilter(QObject *watched, QEvent *event)
{
    // The title shows on which plot the keys act.
    // Queued, because the focus also leaves while the tab is being destroyed.
    if (watched == m_plot && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        QMetaObject::invokeMethod(this, &OsziRow::updateTitle, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

void OsziRow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void OsziRow::retranslateUi()
{
    const QString row = defaultName();
    m_rangeCaption->setText(tr("Bereich"));
    m_autoCaption->setText(tr("auto"));
    m_gridCaption->setText(tr("Raster"));
    m_offsetCaption->setText(tr("Korrektur dy"));
    m_max->setToolTip(tr("Oberes Ende des Wertebereichs"));
    m_min->setToolTip(tr("Unteres Ende des Wertebereichs"));
    m_gridAuto->setToolTip(tr("Abstand der waagrechten Rasterlinien automatisch wählen"));
    m_grid->setToolTip(tr("Abstand der waagrechten Rasterlinien"));
    m_offset->setToolTip(tr("Wert, der zu allen Kurven dieses Sensors addiert wird"));
    m_max->setAccessibleName(tr("%1: Bereich, oberes Ende").arg(row));
    m_min->setAccessibleName(tr("%1: Bereich, unteres Ende").arg(row));
    m_gridAuto->setAccessibleName(tr("%1: Raster automatisch").arg(row));
    m_grid->setAccessibleName(tr("%1: Raster").arg(row));
    m_offset->setAccessibleName(tr("%1: Korrektur dy").arg(row));
    m_title->setToolTip(tr("Tasten im Diagramm: + und - Zeitachse, Strg mit + und - Werteachse,\n"
                           "Pfeile verschieben, Pos1 und Ende springen, F passt den Wertebereich an die Kurven an,\n"
                           "Strg mit Pfeil nach links oder rechts zeigt die Werte (mit Umschalt in Zehnerschritten).\n"
                           "Maus: Rad Zeitachse, Strg mit Rad Werteachse, mittlere Taste oder Umschalt verschiebt,\n"
                           "Doppelklick passt den Wertebereich an."));
    updateTitle();
}
