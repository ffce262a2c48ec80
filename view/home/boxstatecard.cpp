#include "view/home/boxstatecard.h"

#include "app/theme.h"
#include "model/model.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QTextDocument>

namespace {

constexpr int kDotSize = 18;

const QString kUnknown = QStringLiteral("–");

/// The names of the groups, or nothing if the box gave them none.
QString groupNames(const DeviceDescription &description)
{
    QStringList names;
    for (const DeviceDescription::Group &group : description.groups) {
        if (!group.name.trimmed().isEmpty())
            names.append(group.name.trimmed());
    }
    return names.join(QLatin1String(", "));
}

int sensorCount(const SensorDescription &description)
{
    int count = 0;
    for (int i = 0; i < description.numSensorGroups(); ++i)
        count += description.sensorGroup(i).numSensors();
    return count;
}

QString orUnknown(const QString &text)
{
    return text.trimmed().isEmpty() ? kUnknown : text;
}

/// The card is refreshed with every update of the page; an equal text must not cause a layout.
void setTextOf(QLabel *label, const QString &text)
{
    if (label->text() != text)
        label->setText(text);
}

} // namespace

BoxStateCard::BoxStateCard(QWidget *parent)
    : QWidget(parent)
{
    m_demo = new QLabel(this);
    m_demo->setObjectName(QStringLiteral("labelHomeDemo"));
    m_demo->setWordWrap(true);
    m_demo->setStyleSheet(QStringLiteral("QLabel {background-color: #FFE9B8; border-radius: 4px; padding: 4px 10px;"
                                         " font-size: 16px;}"));
    m_grid = new QGridLayout(this);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(20);
    m_grid->setVerticalSpacing(0);
    m_grid->addLayout(createHead(), 0, 0, 1, 2);
    m_grid->addWidget(m_demo, 1, 0, 1, 2);
    for (int i = 0; i < NumFacts; ++i)
        createFact(i);
    placeFacts(false);
    m_grid->setColumnStretch(1, 1);
    m_grid->setRowStretch(2 * NumFacts + 2, 1);
}

QHBoxLayout *BoxStateCard::createHead()
{
    m_dot = new QLabel(this);
    m_dot->setFixedSize(kDotSize, kDotSize);
    m_state = new QLabel(this);
    m_state->setObjectName(QStringLiteral("labelHomeState"));
    m_state->setStyleSheet(QStringLiteral("QLabel {font: bold 22px; color: %1;}").arg(theme::colorPrimary));
    auto *head = new QHBoxLayout;
    head->setSpacing(10);
    head->addWidget(m_dot);
    head->addWidget(m_state, 1);
    return head;
}

void BoxStateCard::createFact(int index)
{
    auto *name = new QLabel(this);
    name->setStyleSheet(QStringLiteral("QLabel {min-height: 24px;}"));
    auto *value = new QLabel(this);
    value->setObjectName(QStringLiteral("labelHomeFact%1").arg(index + 1));
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name must not widen the page
    value->setStyleSheet(QStringLiteral("QLabel {font-weight: bold; min-height: 24px;}"));
    m_names[static_cast<std::size_t>(index)] = name;
    m_values[static_cast<std::size_t>(index)] = value;
}

void BoxStateCard::setStacked(bool stacked)
{
    for (std::size_t i = 0; i < NumFacts; ++i) {
        m_grid->removeWidget(m_names[i]);
        m_grid->removeWidget(m_values[i]);
    }
    placeFacts(stacked);
    m_state->setWordWrap(stacked);
}

void BoxStateCard::placeFacts(bool stacked)
{
    int row = 2;
    for (std::size_t i = 0; i < NumFacts; ++i) {
        m_grid->addWidget(m_names[i], row, 0, 1, stacked ? 2 : 1);
        m_grid->addWidget(m_values[i], stacked ? row + 1 : row, stacked ? 0 : 1, 1, stacked ? 2 : 1);
        row += 2;
    }
}

void BoxStateCard::showState(const Model &model, const LinkState &link)
{
    showLink(model.isConnected(), link);
    showFacts(factTexts(model, link));
}

void BoxStateCard::showLink(bool connected, const LinkState &link)
{
    QString text = tr("Nicht verbunden");
    QString color = theme::colorMedium;
    if (connected && link.isRecording) {
        text = tr("Aufzeichnung läuft");
        color = QStringLiteral("#D32F2F");
    } else if (connected) {
        text = tr("Verbunden");
        color = QStringLiteral("#2E9E44");
    } else if (link.isConnecting) {
        text = tr("Verbindung wird aufgebaut ...");
        color = QStringLiteral("#E69A00");
    }
    setTextOf(m_state, text);
    const QString sheet = QStringLiteral("QLabel {background-color: %1; border-radius: %2px; min-height: %3px;}")
                              .arg(color)
                              .arg(kDotSize / 2)
                              .arg(kDotSize);
    if (m_dot->styleSheet() != sheet)
        m_dot->setStyleSheet(sheet);
    setTextOf(m_demo, tr("Demo: simulierte Box, keine Messwerte"));
    m_demo->setVisible(link.isDemo);
}

void BoxStateCard::showFacts(const Texts &values)
{
    const Texts names = factNames();
    for (std::size_t i = 0; i < NumFacts; ++i) {
        setTextOf(m_names[i], names[i]);
        setTextOf(m_values[i], values[i]);
        // What the box sent may hold what looks like a tag.
        m_values[i]->setToolTip(values[i] == kUnknown ? QString() : Qt::convertFromPlainText(values[i]));
        m_names[i]->setVisible(!values[i].isEmpty());
        m_values[i]->setVisible(!values[i].isEmpty());
    }
}

BoxStateCard::Texts BoxStateCard::factNames()
{
    return {tr("Adresse:"),  tr("Gerät:"),      tr("Bezeichnung:"), tr("Hardware:"),
            tr("Firmware:"), tr("Abtastrate:"), tr("Sensoren:"),    tr("Messungen:")};
}

/// An empty text leaves the fact out.
BoxStateCard::Texts BoxStateCard::factTexts(const Model &model, const LinkState &link)
{
    const bool connected = model.isConnected();
    const int shots = model.numChannels(0);
    Texts texts;
    texts[Address] = link.isDemo ? QString() : orUnknown(link.address); // not the simulator's 127.0.0.1
    texts[Device] = !connected                ? kUnknown
                    : model.mesotraType() > 0 ? tr("Mesotra, Typ %1").arg(model.mesotraType())
                                              : QStringLiteral("Mesotra");
    texts[Name] = connected ? groupNames(model.deviceDescription()) : QString();
    texts[Hardware] = connected ? orUnknown(model.hardwareVersion()) : kUnknown;
    // Without a hardware version no box was described yet: the firmware version is the model's initial value.
    texts[Firmware] = texts[Hardware] == kUnknown ? kUnknown : orUnknown(model.firmwareVersion());
    texts[Period] = tr("%1 ms").arg(QLocale().toString(model.clock()));
    texts[Sensors] = QLocale().toString(sensorCount(model.sensorDescription()));
    texts[Shots] = shots == 0 ? tr("Noch keine") : QLocale().toString(shots);
    return texts;
}
