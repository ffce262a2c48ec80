#include "view/window/viewactions.h"

#include "app/theme.h"
#include "view/common/actionicon.h"

#include <QAction>
#include <QColor>
#include <QIcon>
#include <QKeySequence>
#include <QWidget>

#include <array>

namespace {

QAction *newAction(QWidget *owner, const char *name, const QString &icon = {}, const QKeySequence &shortcut = {})
{
    auto *action = new QAction(owner);
    action->setObjectName(QLatin1String(name));
    if (!icon.isEmpty())
        action->setIcon(actionIcon(icon, theme::qColorPrimary));
    action->setShortcut(shortcut);
    owner->addAction(action); // so that the shortcut works wherever the action is shown
    return action;
}

void setTexts(QAction *action, const QString &text, const QString &toolTip, const QString &statusTip)
{
    action->setText(text);
    if (!toolTip.isEmpty())
        action->setToolTip(toolTip);
    action->setStatusTip(statusTip);
}

QColor stateColor(ActionState state)
{
    // On the tool bar's dark grey: grey, white, green, red.
    static const std::array<QColor, 4> colors{theme::qColorMedium, theme::qColorBackground, QColor(0x7E, 0xE0, 0x81),
                                              QColor(0xFF, 0x8A, 0x80)};
    const auto index = static_cast<std::size_t>(state);
    return index < colors.size() ? colors[index] : theme::qColorMedium;
}

QString iconFile(Actions action)
{
    switch (action) {
    case Actions::Connect:
    case Actions::Disconnect:
        return QStringLiteral("wifi.png");
    case Actions::Calibrate:
        return QStringLiteral("adjust.png");
    case Actions::Recording:
        return QStringLiteral("play.png");
    }
    return {};
}

} // namespace

ViewActions::ViewActions(QWidget *owner)
{
    createProjectActions(owner);
    createBoxActions(owner);
    createOtherActions(owner);
}

void ViewActions::createProjectActions(QWidget *owner)
{
    newProject = newAction(owner, "actionNewProject", QStringLiteral("file-plus.png"), QKeySequence::New);
    openProject = newAction(owner, "actionOpenProject", QStringLiteral("folder-open.png"), QKeySequence::Open);
    saveProject = newAction(owner, "actionSaveProject", QStringLiteral("content-save.png"), QKeySequence::Save);
    saveAs = newAction(owner, "actionSaveAs", QStringLiteral("content-save-as.png"), Qt::CTRL + Qt::SHIFT + Qt::Key_S);
    openBlackBox = newAction(owner, "actionOpenBlackBox", QStringLiteral("database.png"), Qt::CTRL + Qt::Key_B);
    saveCsv = newAction(owner, "actionSaveCSV", QStringLiteral("file-delimited.png"), Qt::CTRL + Qt::Key_E);
    saveOszi = newAction(owner, "actionSaveOszi", QStringLiteral("image.png"), Qt::CTRL + Qt::SHIFT + Qt::Key_G);
    saveTerminal =
        newAction(owner, "actionSaveTerminal", QStringLiteral("console.png"), Qt::CTRL + Qt::SHIFT + Qt::Key_T);
}

void ViewActions::createBoxActions(QWidget *owner)
{
    connectBox = newAction(owner, "actionConnect", {}, Qt::Key_F5);
    disconnectBox = newAction(owner, "actionDisconnect", QStringLiteral("close.png"), Qt::SHIFT + Qt::Key_F5);
    calibrate = newAction(owner, "actionCalibrate", {}, Qt::Key_F6);
    startRecording = newAction(owner, "actionStartRecording", {}, Qt::Key_F7);
    startRecording->setShortcuts({Qt::Key_F7, Qt::CTRL + Qt::Key_R}); // small keyboards hide the row of function keys
    firmwareUpdate = newAction(owner, "actionFirmwareUpdate", QStringLiteral("update.png"));
    disconnectBox->setEnabled(false);
}

void ViewActions::createOtherActions(QWidget *owner)
{
    menu = newAction(owner, "actionMenu", {}, Qt::Key_F10);
    menu->setIcon(actionIcon(QStringLiteral("menu.png"), theme::qColorBackground));
    about = newAction(owner, "actionAbout", QStringLiteral("information.png"), QKeySequence::HelpContents);
    quit = newAction(owner, "actionQuit", QStringLiteral("exit.png"), Qt::CTRL + Qt::Key_Q);
    quit->setMenuRole(QAction::QuitRole);
    about->setMenuRole(QAction::AboutRole);
    german = newAction(owner, "actionLanguageGerman", {}, Qt::CTRL + Qt::SHIFT + Qt::Key_D);
    english = newAction(owner, "actionLanguageEnglish", {}, Qt::CTRL + Qt::SHIFT + Qt::Key_E);
    for (QAction *language : {german, english})
        language->setCheckable(true);
    german->setData(QStringLiteral("de"));
    english->setData(QStringLiteral("en"));
}

void ViewActions::retranslate() const
{
    retranslateProject();
    retranslateBox();
    retranslateOther();
    retranslateRecording();
    if (m_link != Link::NotShownYet)
        retranslateLink();
}

void ViewActions::retranslateProject() const
{
    setTexts(newProject, tr("&Neues Projekt"), tr("Neues Projekt anlegen"), tr("Beginnt ein leeres Projekt"));
    setTexts(openProject, tr("Projekt &öffnen..."), {}, tr("Öffnet eine Projektdatei"));
    setTexts(saveProject, tr("Projekt &speichern"), {}, tr("Speichert das Projekt in seiner Datei"));
    setTexts(saveAs, tr("Projekt speichern &unter..."), {}, tr("Speichert das Projekt in einer neuen Datei"));
    setTexts(openBlackBox, tr("BlackBox Daten Öffnen"), {}, tr("Übernimmt Aufzeichnungen der Box in das Projekt"));
    setTexts(saveCsv, tr("CSV speichern..."), tr("Save data as CSV file"),
             tr("Schreibt alle Messungen als Tabelle in eine Datei"));
    setTexts(saveOszi, tr("Oszilloskop speichern..."), tr("Save oscilloscope as a graphics file"),
             tr("Speichert die erste Zeile des Oszilloskops als Bild"));
    setTexts(saveTerminal, tr("Terminal speichern..."), {}, tr("Schreibt den Inhalt des Terminals in eine Datei"));
}

void ViewActions::retranslateBox() const
{
    setTexts(connectBox, tr("Verbinden"), tr("Mit Mesotra verbinden."), tr("Verbindet mit der Mesotra Box"));
    setTexts(disconnectBox, tr("Trennen"), tr("Mesotra Verbindung trennen."), tr("Trennt die Verbindung zur Box"));
    setTexts(calibrate, tr("Kalibrieren"), {}, tr("Setzt die aktuellen Werte aller Sensoren auf null"));
    setTexts(startRecording, tr("Start"), {}, tr("Startet oder beendet eine Aufzeichnung"));
    setTexts(firmwareUpdate, tr("&Firmware Update..."), {}, tr("Überträgt eine neue Firmware auf die Box"));
}

void ViewActions::retranslateOther() const
{
    setTexts(menu, tr("Menu"), {}, tr("Öffnet das Menü"));
    setTexts(about, tr("Über Ventaro..."), {}, tr("Versionen von Programm und Box"));
    setTexts(quit, tr("Ventaro beenden"), {}, tr("Beendet das Programm"));
    setTexts(german, tr("German"), {}, tr("Zeigt die Texte auf Deutsch"));
    setTexts(english, tr("English"), {}, tr("Zeigt die Texte auf Englisch"));
}

// --- State -------------------------------------------------------------------------------------------------------

QAction *ViewActions::action(Actions which) const
{
    switch (which) {
    case Actions::Connect:
    case Actions::Disconnect:
        return connectBox;
    case Actions::Calibrate:
        return calibrate;
    case Actions::Recording:
        return startRecording;
    }
    return nullptr;
}

void ViewActions::setState(Actions which, ActionState state) const
{
    QAction *target = action(which);
    if (!target)
        return;
    target->setEnabled(state != ActionState::Disabled);
    target->setIcon(actionIcon(iconFile(which), stateColor(state)));
}

void ViewActions::showLink(bool connected)
{
    m_link = connected ? Link::Connected : Link::NotConnected;
    retranslateLink();
    disconnectBox->setEnabled(connected);
}

void ViewActions::showRecording(bool running)
{
    m_isRecording = running;
    if (running)
        startRecording->setIcon(actionIcon(QStringLiteral("stop.png"), stateColor(ActionState::Active)));
    retranslateRecording();
}

void ViewActions::retranslateLink() const
{
    const bool connected = m_link == Link::Connected;
    connectBox->setText(connected ? tr("&Trennen") : tr("&Verbinden"));
    connectBox->setToolTip(connected ? tr("Mesotra Verbindung trennen.") : tr("Mit Mesotra verbinden."));
    connectBox->setStatusTip(connected ? tr("Trennt die Verbindung zur Box") : tr("Verbindet mit der Mesotra Box"));
}

void ViewActions::retranslateRecording() const
{
    startRecording->setText(m_isRecording ? tr("&Stop") : tr("&Start"));
    startRecording->setToolTip(m_isRecording ? tr("Aufzeichnung beenden") : tr("Aufzeichnung starten"));
}

QStringList ViewActions::changingTexts(const QAction *action) const
{
    if (action == connectBox)
        return {tr("&Trennen"), tr("&Verbinden")};
    if (action == startRecording)
        return {tr("&Stop"), tr("&Start")};
    return {};
}
