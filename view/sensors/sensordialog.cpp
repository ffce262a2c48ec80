#include "view/sensors/sensordialog.h"

#include "app/theme.h"
#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "kit/small/coloredbutton.h"
#include "plots/evaluation/common/limitfield.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kWidth = 560;
constexpr int kLongestName = 100;

} // namespace

SensorDialog::SensorDialog(const SensorInfo &sensor, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_before(sensor)
    , m_color(sensor.color)
{
    setObjectName(QStringLiteral("SensorDialog"));
    setWindowTitle(tr("Sensor bearbeiten"));
    setStyleSheet(QStringLiteral("SensorDialog {background-color: %1;}").arg(theme::colorBackground));
    createFields();
    nameFields();
    layOut();
    check();
    connect(m_name, &QLineEdit::textChanged, this, &SensorDialog::check);
    connect(m_unit, &QLineEdit::textChanged, this, &SensorDialog::showUnit);
    connect(m_lower, &LimitField::edited, this, &SensorDialog::check);
    connect(m_upper, &LimitField::edited, this, &SensorDialog::check);
    connect(m_colorButton, &ColoredButton::colorPicked, this, &SensorDialog::takeColor);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void SensorDialog::createTexts()
{
    m_name = new QLineEdit(m_before.name, this);
    m_name->setObjectName(QStringLiteral("lineEditSensorName"));
    m_name->setMaxLength(kLongestName);
    m_name->setEnabled(m_before.canRename());
    m_name->selectAll();
    m_unit = new QLineEdit(m_before.unit, this);
    m_unit->setObjectName(QStringLiteral("lineEditSensorUnit"));
    m_unit->setMaxLength(SensorGroup::kLongestUnit);
    m_unit->setEnabled(m_before.canRename());
    m_hint = new QLabel(this);
    m_hint->setObjectName(QStringLiteral("labelSensorHint"));
    m_hint->setStyleSheet(QStringLiteral("QLabel {font-size: 16px; color: #B00020;}"));
}

void SensorDialog::createFields()
{
    createTexts();
    m_colorButton = new ColoredButton(this);
    m_colorButton->setObjectName(QStringLiteral("buttonSensorColor"));
    m_colorButton->setAutoDefault(false);
    m_colorButton->setPicksColor(true);
    m_colorButton->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_colorButton->setEnabled(m_before.canColor());
    if (m_color.isValid())
        m_colorButton->setColor(m_color);
    m_lower = new LimitField(this);
    m_upper = new LimitField(this);
    m_lower->setSuggestion(0.0);
    m_upper->setSuggestion(100.0);
    showUnit();
    m_lower->setLimit(m_before.limits.lower);
    m_upper->setLimit(m_before.limits.upper);
    m_shownLimits = enteredLimits();
    m_ok = new QtMaterialRaisedButton(tr("Ü&bernehmen"), this);
    m_ok->setObjectName(QStringLiteral("buttonOK"));
    m_ok->setDefault(true);
    m_cancel = new QtMaterialFlatButton(tr("&Abbrechen"), this);
    m_cancel->setObjectName(QStringLiteral("buttonCancel"));
    m_cancel->setAutoDefault(false);
}

void SensorDialog::nameFields()
{
    m_lower->setTitle(tr("Untere Grenze"));
    m_upper->setTitle(tr("Obere Grenze"));
    m_unit->setToolTip(tr("Eine Box, die ihre Sensoren beschreibt, bringt ihre eigenen Einheiten mit."));
    m_lower->setToolTip(tr("Ausgeschaltet gibt es keine Grenze."));
    m_upper->setToolTip(m_lower->toolTip());
    m_colorButton->setToolTip(tr("Farbe wählen"));
    m_colorButton->setAccessibleName(m_colorButton->toolTip());
}

void SensorDialog::layOut()
{
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(20);
    form->setVerticalSpacing(10);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("&Einheit"), m_unit);
    form->addRow(tr("&Farbe"), m_colorButton);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(28, 24, 28, 24);
    column->setSpacing(12);
    column->addLayout(form);
    column->addWidget(m_lower);
    column->addWidget(m_upper);
    column->addWidget(m_hint);
    column->addLayout(buttons);
    setMinimumWidth(kWidth);
}

void SensorDialog::takeColor(const QColor &color)
{
    m_color = color;
    m_colorButton->setColor(color);
}

void SensorDialog::showUnit()
{
    for (LimitField *field : {m_lower, m_upper})
        field->setUnit(m_unit->text().simplified());
}

SensorLimits SensorDialog::enteredLimits() const
{
    return {m_lower->limit(), m_upper->limit()};
}

QString SensorDialog::complaint() const
{
    const SensorLimits limits = enteredLimits();
    if (m_before.canRename() && m_name->text().simplified().isEmpty())
        return tr("Bitte einen Namen eingeben.");
    if (limits.lower && limits.upper && *limits.lower >= *limits.upper)
        return tr("Die untere Grenze muss kleiner als die obere sein.");
    // To the model such numbers mean "no limit": they would not come back as entered.
    if (!(sensorLimits(limits.minimum(), limits.maximum()) == limits))
        return tr("Grenzen liegen zwischen -100000 und 100000.");
    return {};
}

void SensorDialog::check()
{
    const QString text = complaint();
    m_ok->setEnabled(text.isEmpty());
    m_hint->setText(text);
}

SensorInfo SensorDialog::sensor() const
{
    SensorInfo edited = m_before;
    if (m_name->text() != m_before.name) { // the name that is shown for an unnamed sensor is not taken as a name
        edited.ownName = m_name->text().simplified();
        edited.name = edited.ownName;
    }
    edited.unit = m_unit->text().simplified();
    edited.color = m_color;
    if (!(enteredLimits() == m_shownLimits)) // the fields round: untouched limits stay exact
        edited.limits = enteredLimits();
    return edited;
}
