#include "view/window/multilanguageutils.h"

#include "view/common/logging.h"
#include "view/window/qttexts.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include <algorithm>

namespace {

const QLatin1String kBuiltIn("de");
const QLatin1String kPrefix("ventaro");

/// Widgets keep the locale that was the default when they were created, and nothing repaints them on a change.
void refreshNumbers()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        window->setLocale(QLocale());
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets)
        widget->update();
}

} // namespace

MultiLanguageUtils::MultiLanguageUtils(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_language(kBuiltIn)
    , m_folder(folder.isEmpty() ? QCoreApplication::applicationDirPath() + QLatin1String("/languages") : folder)
    , m_group(new QActionGroup(this))
{
    qCDebug(lcView) << Q_FUNC_INFO;
    m_group->setExclusive(true);
    connect(m_group, &QActionGroup::triggered, this, &MultiLanguageUtils::slotLanguageChanged);
}

QString MultiLanguageUtils::languageCode(const QString &fileName)
{
    const int end = fileName.lastIndexOf(QLatin1Char('.'));
    const QString baseName = end < 0 ? fileName : fileName.left(end);
    return baseName.mid(baseName.indexOf(QLatin1Char('-')) + 1);
}

QString MultiLanguageUtils::languageOfLocale(const QString &localeName)
{
    return localeName.left(localeName.lastIndexOf(QLatin1Char('_')));
}

QMenu *MultiLanguageUtils::createLanguageMenu(QMainWindow *window)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    m_menu = window->menuBar()->addMenu(QString());
    m_menu->setObjectName(QStringLiteral("menuLanguage"));
    retranslateUi();
    const QStringList files = QDir(m_folder).entryList({kPrefix + QLatin1String("-*.qm")}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        addLanguage(languageCode(file), window);
    if (QAction *action = offered(languageOfLocale(QLocale::system().name())))
        action->setChecked(true);
    return m_menu;
}

void MultiLanguageUtils::retranslateUi()
{
    if (m_menu)
        m_menu->setTitle(tr("Sprache"));
}

void MultiLanguageUtils::addLanguage(const QString &code, QMainWindow *window)
{
    QAction *action = actionFor(code, window);
    action->setText(QLocale::languageToString(QLocale(code).language()));
    action->setIcon(QIcon(QStringLiteral("%1/%2.png").arg(m_folder, code)));
    action->setCheckable(true);
    action->setData(code);
    m_menu->addAction(action);
    m_group->addAction(action);
}

QAction *MultiLanguageUtils::actionFor(const QString &code, QMainWindow *window) const
{
    const QList<QAction *> actions = window->actions();
    const auto found = std::find_if(actions.cbegin(), actions.cend(),
                                    [&code](const QAction *action) { return action->data() == code; });
    return found != actions.cend() ? *found : new QAction(m_group);
}

QAction *MultiLanguageUtils::offered(const QString &code) const
{
    const QList<QAction *> actions = m_group->actions();
    const auto found = std::find_if(actions.cbegin(), actions.cend(),
                                    [&code](const QAction *action) { return action->data() == code; });
    return found != actions.cend() ? *found : nullptr;
}

bool MultiLanguageUtils::isOffered(const QString &code) const
{
    return offered(code) != nullptr;
}

void MultiLanguageUtils::slotLanguageChanged(QAction *action)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!action)
        return;
    const QString code = action->data().toString();
    loadLanguage(code);
    emit languageChosen(code);
}

void MultiLanguageUtils::loadLanguage(const QString &code)
{
    qCDebug(lcView) << Q_FUNC_INFO << code;
    if (QAction *action = offered(code))
        action->setChecked(true);
    if (code == m_language)
        return;
    m_language = code;
    QLocale::setDefault(QLocale(code));
    installQtTexts(code);
    switchTranslator(m_translator, QStringLiteral("%1-%2.qm").arg(kPrefix, code));
    refreshNumbers();
}

void MultiLanguageUtils::switchTranslator(QTranslator &translator, const QString &fileName)
{
    // Even if the next file cannot be loaded: the built-in texts are better than those of a third language.
    QCoreApplication::removeTranslator(&translator);
    qCDebug(lcView).noquote() << "Loading translator file" << fileName;
    if (!translator.load(fileName, m_folder)) {
        qCDebug(lcView).noquote().nospace() << "ERROR: loading translator failed!  filename=" << fileName;
        return;
    }
    if (QCoreApplication::installTranslator(&translator))
        qCDebug(lcView) << "OK: translator installed";
    else
        qCDebug(lcView).noquote().nospace() << "ERROR: installing translator failed!  filename=" << fileName;
}
