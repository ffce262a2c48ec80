#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>

#include <functional>

class TabHome;

/// The projects and the boxes used last: kept in the settings, offered on the start page.
class RecentLists : public QObject
{
    Q_OBJECT

public:
    /// The page must outlive this object. The lists are empty until read() is called.
    explicit RecentLists(TabHome *page);

    /// Takes over what the settings hold. Another window of the program may have changed them.
    void read();
    void rememberProject(const QString &file);
    void rememberAddress(const QString &address);
    /// Which of the addresses remembered are offered; without it those that are not blank.
    void setAddressValidator(std::function<bool(const QString &)> isValid);

private:
    void forgetProject(const QString &file);
    void storeProjects();
    void describeBox(const QString &address, const QString &description);
    void storeBoxes();
    void showBoxes();

    TabHome *m_page;
    QStringList m_projects;
    QStringList m_addresses;
    QHash<QString, QString> m_descriptions; // of the boxes, by address
    std::function<bool(const QString &)> m_isValidAddress;
};
