#include "view/sensorpanel.h"

#include "app/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

namespace {

constexpr int kDigits = 6;

QLabel *newLabel(QWidget *parent, const char *name, const QString &sheet)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(sheet);
    return label;
}

} // namespace

SensorPanel::SensorPanel(QWidget *parent)
    : QFrame(parent)
{
    m_name = newLabel(this, "sensorName", QStringLiteral("QLabel {font: bold 24px; color: %1;}").arg(theme::colorDark));
    m_value = newLabel(this, "sensorValue", QStringLiteral("QLabel {font: bold 56px;}"));
    m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_unit = newLabel(this, "sensorUnit", QStringLiteral("QLabel {font-size: 28px; color: %1;}").arg(theme::colorDark));
    m_unit->setMinimumWidth(90);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(24, 8, 16, 8);
    row->setSpacing(16);
    row->addWidget(m_name, 1);
    row->addWidget(m_value, 1);
    row->addWidget(m_unit);
    clearValue();
}

void SensorPanel::setDescription(const QString &name, const QString &unit, const QColor &color)
{
    m_name->setText(name);
    m_unit->setText(unit);
    if (color == m_color)
        return;
    m_color = color;
    setStyleSheet(QStringLiteral("SensorPanel {background-color: %1; border-left: 10px solid %2;}")
                      .arg(theme::colorLight, color.name()));
}

void SensorPanel::setValue(double value)
{
    show(QLocale().toString(value, 'g', kDigits));
}

void SensorPanel::clearValue()
{
    show(QStringLiteral("–"));
}

void SensorPanel::show(const QString &text)
{
    if (m_value->text() != text)
        m_value->setText(text);
}
