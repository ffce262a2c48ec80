#include "view/window/recentlists.h"

#include "model/recentlist.h"
#include "view/common/programsettings.h"
#include "view/home/tabhome.h"

#include <QDir>

#include <algorithm>

namespace {

constexpr int kLongestPath = 4096;
const QString kProjectsKey = QStringLiteral("recentProjects");
const QString kAddressesKey = QStringLiteral("recentAddresses");
const QString kDescriptionsKey = QStringLiteral("recentBoxDescriptions"); // in the order of the addresses
constexpr int kLongestDescription = 200;

bool isProjectPath(const QString &text)
{
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    return text.size() <= kLongestPath && QDir::isAbsolutePath(text)
           && std::none_of(text.begin(), text.end(), isControl);
}

} // namespace

RecentLists::RecentLists(TabHome *page)
    : m_page(page)
{
    connect(page, &TabHome::projectRemoved, this, &RecentLists::forgetProject);
    connect(page, &TabHome::boxDescribed, this, &RecentLists::describeBox);
}

void RecentLists::read()
{
    const QSettings stored = programSettings();
    m_projects = recentlist::fromSettings(stored.value(kProjectsKey), isProjectPath, recentlist::pathSensitivity());
    m_addresses = recentlist::fromSettings(stored.value(kAddressesKey), [this](const QString &address) {
        return !address.isEmpty() && (!m_isValidAddress || m_isValidAddress(address));
    });
    const QStringList described = stored.value(kAddressesKey).toStringList();
    const QStringList descriptions = stored.value(kDescriptionsKey).toStringList();
    m_descriptions.clear();
    for (const QString &address : qAsConst(m_addresses))
        m_descriptions.insert(address, descriptions.value(described.indexOf(address)).left(kLongestDescription));
    m_page->setRecentProjects(m_projects);
    showBoxes();
}

void RecentLists::showBoxes()
{
    m_page->setRecentAddresses(m_addresses);
    m_page->setBoxDescriptions(m_descriptions);
}

void RecentLists::setAddressValidator(std::function<bool(const QString &)> isValid)
{
    m_isValidAddress = std::move(isValid);
    read(); // what the settings hold may be no address
}

void RecentLists::rememberProject(const QString &file)
{
    const QString path = recentlist::canonicalPath(file);
    if (!isProjectPath(path))
        return;
    read(); // another window of the program may have stored others
    m_projects = recentlist::withFront(m_projects, path, recentlist::pathSensitivity());
    storeProjects();
}

void RecentLists::forgetProject(const QString &file)
{
    read();
    m_projects.removeAll(file);
    storeProjects();
}

void RecentLists::storeProjects()
{
    programSettings().setValue(kProjectsKey, m_projects); // at once: the list is wanted most after a crash
    m_page->setRecentProjects(m_projects);
}

void RecentLists::rememberAddress(const QString &address)
{
    read();
    m_addresses = recentlist::withFront(m_addresses, address, Qt::CaseInsensitive);
    storeBoxes();
}

void RecentLists::describeBox(const QString &address, const QString &description)
{
    read();
    if (!m_addresses.contains(address))
        return;
    m_descriptions.insert(address, description.left(kLongestDescription));
    storeBoxes();
}

void RecentLists::storeBoxes()
{
    QStringList descriptions;
    for (const QString &address : qAsConst(m_addresses))
        descriptions << m_descriptions.value(address);
    QSettings settings = programSettings();
    settings.setValue(kAddressesKey, m_addresses);
    settings.setValue(kDescriptionsKey, descriptions);
    showBoxes();
}
