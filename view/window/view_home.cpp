#include "app/theme.h"
#include "model/recentlist.h"
#include "view/common/logging.h"
#include "view/home/aboutdialog.h"
#include "view/home/tabhome.h"
#include "view/window/viewprivate.h"

#include <QDir>
#include <QLabel>
#include <QSettings>
#include <QStatusBar>

namespace {

constexpr int kLongestPath = 4096;
const QString kProjectsKey = QStringLiteral("recentProjects");
const QString kAddressesKey = QStringLiteral("recentAddresses");

QSettings settings()
{
    return QSettings(theme::organisationName, theme::applicationName);
}

bool isProjectPath(const QString &text)
{
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    return text.size() <= kLongestPath && QDir::isAbsolutePath(text)
           && std::none_of(text.begin(), text.end(), isControl);
}

} // namespace

void View::Private::connectHome()
{
    tabHome->setActions(actions.connectBox, actions.newProject, actions.openProject);
    QObject::connect(tabHome, &TabHome::connectRequested, q, &View::connectToAddress);
    QObject::connect(tabHome, &TabHome::openRequested, q, &View::openProjectFile);
    QObject::connect(tabHome, &TabHome::demoClicked, q, &View::startStopDemo);
    QObject::connect(tabHome, &TabHome::projectRemoved, q, [this](const QString &file) {
        readRecent();
        recentProjects.removeAll(file);
        storeRecentProjects();
    });
}

void View::Private::createDemoLabel()
{
    demoLabel = new QLabel(q);
    demoLabel->setObjectName(QStringLiteral("labelDemo"));
    demoLabel->setStyleSheet(
        QStringLiteral("QLabel {background-color: #FFE9B8; padding: 0px 12px; font-weight: bold;}"));
    demoLabel->hide();
    q->statusBar()->addPermanentWidget(demoLabel);
}

void View::Private::readRecent()
{
    const QSettings stored = settings();
    recentProjects = recentlist::fromSettings(stored.value(kProjectsKey), isProjectPath, recentlist::pathSensitivity());
    recentAddresses = recentlist::fromSettings(stored.value(kAddressesKey), [this](const QString &address) {
        return !address.isEmpty() && (!isValidAddress || isValidAddress(address));
    });
    tabHome->setRecentProjects(recentProjects);
    tabHome->setRecentAddresses(recentAddresses);
}

void View::Private::storeRecentProjects()
{
    settings().setValue(kProjectsKey, recentProjects); // at once: the list is wanted most after a crash
    tabHome->setRecentProjects(recentProjects);
}

void View::rememberProject(const QString &file)
{
    qCDebug(lcView) << Q_FUNC_INFO << file;
    const QString path = recentlist::canonicalPath(file);
    if (!isProjectPath(path))
        return;
    d->readRecent(); // another window of the program may have been at it
    d->recentProjects = recentlist::withFront(d->recentProjects, path, recentlist::pathSensitivity());
    d->storeRecentProjects();
}

void View::rememberAddress(const QString &address)
{
    qCDebug(lcView) << Q_FUNC_INFO << address;
    d->readRecent();
    d->recentAddresses = recentlist::withFront(d->recentAddresses, address, Qt::CaseInsensitive);
    settings().setValue(kAddressesKey, d->recentAddresses);
    d->tabHome->setRecentAddresses(d->recentAddresses);
}

void View::setDemoState(DemoState state)
{
    qCDebug(lcView) << Q_FUNC_INFO << static_cast<int>(state);
    d->demoLabel->setVisible(state == DemoState::Starting || state == DemoState::Running);
    d->tabHome->setDemoState(state);
}

void View::showAbout()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->about)
        d->about = new AboutDialog(d->model, this);
    d->about->show();
    d->about->raise();
    d->about->activateWindow();
}
