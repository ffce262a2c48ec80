#include "view/window/pagetable.h"

#include "view/blackbox/tabblackbox.h"
#include "view/box/tabwebconfig.h"
#include "view/evaluation/tabevaluation.h"
#include "view/home/tabhome.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/sensors/tabsensors.h"
#include "view/terminal/tabdatalogger.h"
#include "view/terminal/tabterminal.h"
#include "view/window/sidetabs.h"

#include <QKeySequence>
#include <QMainWindow>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr QSize kSmallestTabs(320, 200);
constexpr int kDigitKeys = 9;

struct Row
{
    const char *name;  ///< of the widget
    const char *title; ///< in the built-in language
    bool isOpenedByConnection;
    QWidget *(*create)(Pages &);
};

// The type of a page is that of its pointer in Pages.
template <auto member>
QWidget *create(Pages &pages)
{
    auto *&page = pages.*member;
    page = new std::remove_pointer_t<std::remove_reference_t<decltype(page)>>;
    return page;
}

// A page's number is its position here. A new page needs one line here and a pointer in Pages.
constexpr Row kRows[] = {
    {"tabHome", QT_TRANSLATE_NOOP("PageTable", "Home"), false, create<&Pages::home>},
    {"tabProject", QT_TRANSLATE_NOOP("PageTable", "Projekt"), false, create<&Pages::project>},
    {"tabSensors", QT_TRANSLATE_NOOP("PageTable", "Sensoren"), true, create<&Pages::sensors>},
    {"tabOszi", QT_TRANSLATE_NOOP("PageTable", "Oszilloskop"), true, create<&Pages::oszi>},
    {"tabEvaluation", QT_TRANSLATE_NOOP("PageTable", "Auswertung"), false, create<&Pages::evaluation>},
    {"tabWebConfig", QT_TRANSLATE_NOOP("PageTable", "Web Configuration"), false, create<&Pages::webConfig>},
    {"tabLogger", QT_TRANSLATE_NOOP("PageTable", "Datenlogger"), false, create<&Pages::logger>},
    {"tabTerminal", QT_TRANSLATE_NOOP("PageTable", "Terminal"), false, create<&Pages::terminal>},
    {"tabBlackBox", QT_TRANSLATE_NOOP("PageTable", "BlackBox"), false, create<&Pages::blackBox>},
};

} // namespace

PageTable::PageTable(QMainWindow *window)
{
    auto *central = new QWidget(window);
    central->setObjectName(QStringLiteral("centralwidget"));
    m_pages.tabs = new SideTabWidget(central);
    m_pages.tabs->setObjectName(QStringLiteral("tabWidget"));
    m_pages.tabs->setMinimumSize(kSmallestTabs); // the window may be made smaller than the largest page needs
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pages.tabs);
    window->setCentralWidget(central);
    addPages();
    addKeys(window);
}

void PageTable::addPages()
{
    for (const Row &row : kRows) {
        QWidget *page = row.create(m_pages);
        page->setObjectName(QLatin1String(row.name));
        m_pages.tabs->addTab(page, QString());
        // The tab key would stop where nothing can be done; what gets the focus scrolls into sight by itself.
        const auto areas = page->findChildren<QScrollArea *>();
        for (QScrollArea *area : areas)
            area->setFocusPolicy(Qt::NoFocus);
    }
}

void PageTable::addKeys(QMainWindow *window) const
{
    for (int page = 0; page < count(); ++page) {
        const auto *key = new QShortcut(keyOf(page), window);
        QObject::connect(key, &QShortcut::activated, m_pages.tabs, [tabs = m_pages.tabs, page] {
            if (tabs->isTabEnabled(page)) // the tab widget itself would show a disabled one
                tabs->setCurrentIndex(page);
        });
    }
}

int PageTable::count() const
{
    return m_pages.tabs->count();
}

void PageTable::setEnabled(int page, bool enabled)
{
    if (page >= 0 && page < count())
        m_pages.tabs->setTabEnabled(page, enabled);
}

QVector<int> PageTable::openedByConnection()
{
    QVector<int> numbers;
    for (int page = 0; page < static_cast<int>(std::size(kRows)); ++page) {
        if (kRows[page].isOpenedByConnection)
            numbers.append(page);
    }
    return numbers;
}

QKeySequence PageTable::keyOf(int page)
{
    return page < kDigitKeys ? QKeySequence(Qt::CTRL + Qt::Key_1 + page) : QKeySequence();
}

void PageTable::retranslate() const
{
    int page = 0;
    for (const Row &row : kRows) {
        const QString title = tr(row.title);
        const QString key = keyOf(page).toString(QKeySequence::NativeText);
        m_pages.tabs->setTabText(page, title);
        m_pages.tabs->setTabToolTip(page, key.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, key));
        ++page;
    }
}
