#include "view/window/viewactions.h"

#include "app/theme.h"
#include "view/common/actionicon.h"
#include "view/window/actiontips.h"

#include <QAction>
#include <QMenu>
#include <QProxyStyle>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

/// Icons in a menu as high as its large text; a style sheet cannot say so.
class MenuStyle : public QProxyStyle
{
public:
    MenuStyle()
        : QProxyStyle(QStringLiteral("Fusion"))
    {}
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        constexpr int kIconSize = 26;
        return metric == PM_SmallIconSize ? kIconSize : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

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

void addSpacer(QToolBar *bar)
{
    auto *spacer = new QWidget(bar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(spacer);
}

void holdWidth(QWidget *button, const QStringList &texts, bool compact)
{
    button->ensurePolished();
    button->setMinimumWidth(0);
    const QFontMetrics metrics = button->fontMetrics();
    const auto width = [&metrics](const QString &text) { return metrics.size(Qt::TextShowMnemonic, text).width(); };
    int widest = 0;
    for (const QString &text : texts)
        widest = std::max(widest, width(text));
    const int shown = width(static_cast<QToolButton *>(button)->text());
    if (!compact)
        button->setMinimumWidth(button->sizeHint().width() + widest - shown);
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

void ViewActions::addIconButton(QToolBar *bar, QAction *action, const QString &icon)
{
    // The bar is dark and the menu is white, so the action's own icon cannot serve both.
    auto *button = new QToolButton(bar);
    button->setIcon(actionIcon(icon, theme::qColorBackground));
    button->setIconSize(bar->iconSize());
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QToolButton::clicked, action, &QAction::trigger);
    m_dispensable.append(bar->addWidget(button));
    m_iconButtons.append({button, action});
}

void ViewActions::fillToolBar(QToolBar *bar)
{
    bar->addAction(connectBox);
    bar->addAction(calibrate);
    bar->addAction(startRecording);
    addSpacer(bar);
    addIconButton(bar, newProject, QStringLiteral("file-plus.png"));
    addIconButton(bar, openProject, QStringLiteral("folder-open.png"));
    addIconButton(bar, saveProject, QStringLiteral("content-save.png"));
    m_dispensable.append(bar->addSeparator());
    bar->addAction(menu);
    new ActionTips(bar);
}

void ViewActions::setCompact(QToolBar *bar, bool compact) const
{
    bar->setToolButtonStyle(compact ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
    for (QAction *action : m_dispensable)
        action->setVisible(!compact);
    holdWidths(bar);
}

void ViewActions::holdWidths(const QToolBar *bar) const
{
    const bool compact = bar->toolButtonStyle() == Qt::ToolButtonIconOnly;
    holdWidth(bar->widgetForAction(connectBox), {tr("&Trennen"), tr("&Verbinden")}, compact);
    holdWidth(bar->widgetForAction(startRecording), {tr("&Stop"), tr("&Start")}, compact);
}

void ViewActions::nameToolButtons() const
{
    for (const auto &[button, action] : m_iconButtons) {
        button->setAccessibleName(action->iconText());
        button->setToolTip(tipWithKey(*action));
        button->setStatusTip(action->statusTip());
    }
}

void ViewActions::fillMenu(QMenu *target, QMenu *languages)
{
    auto *style = new MenuStyle;
    style->setParent(target);
    for (QMenu *styled : {target, languages})
        styled->setStyle(style);
    target->addActions({newProject, openProject, saveProject, saveAs, openBlackBox});
    target->addSeparator();
    target->addActions({saveCsv, saveOszi, saveTerminal});
    target->addSeparator();
    target->addActions({disconnectBox, firmwareUpdate});
    target->addSeparator();
    languages->setIcon(actionIcon(QStringLiteral("translate.png"), theme::qColorPrimary));
    target->addMenu(languages);
    target->addActions({about, quit});
}
