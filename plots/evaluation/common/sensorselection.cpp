#include "plots/evaluation/common/sensorselection.h"

#include "kit/small/coloredbutton.h"
#include "model/model.h"
#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/common/modelpage.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QTextDocument>

#include <algorithm>

SensorSelection::SensorSelection(ModelPage *page)
    : TranslatedWidget(page)
{
    // As high as the other buttons, but in a smaller font: names can be long.
    setStyleSheet(QStringLiteral("ColoredButton {font-size: 16px; min-height: 40px;}"));
    auto *group = new QButtonGroup(this);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        auto *button = new ColoredButton(this);
        button->setObjectName(QStringLiteral("sensorButton%1").arg(sensor));
        button->setCheckable(true);
        button->setAutoDefault(false);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a long name must not widen the page
        group->addButton(button, sensor);
        layout->addWidget(button);
        m_buttons[static_cast<std::size_t>(sensor)] = button;
    }
    m_buttons[0]->setChecked(true);
    retranslateUi();
    connect(page, &ModelPage::refreshing, this, &SensorSelection::onPage_refreshing);
    connect(group, &QButtonGroup::idToggled, this, &SensorSelection::onGroup_idToggled);
}

int SensorSelection::sensor() const
{
    const auto checked = std::find_if(m_buttons.begin(), m_buttons.end(),
                                      [](const ColoredButton *button) { return button->isChecked(); });
    return checked == m_buttons.end() ? 0 : static_cast<int>(std::distance(m_buttons.begin(), checked));
}

void SensorSelection::setSensor(int sensor)
{
    if (sensor >= 0 && sensor < kNumSensors)
        m_buttons[static_cast<std::size_t>(sensor)]->setChecked(true);
}

void SensorSelection::onPage_refreshing(const Model *model)
{
    m_model = model;
    retranslateUi();
}

// The button shortens a name that does not fit; the tool tip has all of it.
void SensorSelection::retranslateUi()
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        ColoredButton *button = m_buttons[static_cast<std::size_t>(sensor)];
        const QString name = sensorNameOf(m_model, sensor);
        button->setText(QString(name).replace(QLatin1Char('&'), QLatin1String("&&"))); // no keyboard shortcut
        button->setToolTip(Qt::convertFromPlainText(name));
        button->setAccessibleName(name);
        if (m_model)
            button->setColor(m_model->color(sensor));
    }
}

void SensorSelection::onGroup_idToggled(int sensor, bool checked)
{
    if (checked) // the button that was checked before reports the switch, too
        emit sensorChanged(sensor);
}
