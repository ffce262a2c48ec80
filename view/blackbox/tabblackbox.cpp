#include "view/blackbox/tabblackbox.h"

#include "view/blackbox/dayspanel.h"
#include "view/blackbox/filespanel.h"
#include "view/blackbox/transferbar.h"
#include "view/common/logging.h"

#include <QVBoxLayout>

#include <algorithm>

TabBlackBox::TabBlackBox(QWidget *parent)
    : QWidget(parent)
    , m_daysPanel(new DaysPanel(&m_days, this))
    , m_filesPanel(new FilesPanel(&m_days, this))
    , m_transferBar(new TransferBar(this))
{
    auto *columns = new QHBoxLayout;
    columns->setSpacing(20);
    columns->addWidget(m_daysPanel);
    columns->addWidget(m_filesPanel, 1);
    auto *page = new QVBoxLayout(this);
    page->addLayout(columns, 1);
    page->addWidget(m_transferBar);
    connect(m_daysPanel, &DaysPanel::listRequested, this, &TabBlackBox::listRequested);
    connect(m_daysPanel, &DaysPanel::fetchClicked, this, &TabBlackBox::fetchClicked);
    connect(m_daysPanel, &DaysPanel::dayChosen, m_filesPanel, &FilesPanel::showDay);
    connect(m_filesPanel, &FilesPanel::openLocalFolderClicked, this, &TabBlackBox::openLocalFolderClicked);
    connect(m_filesPanel, &FilesPanel::importClicked, this, &TabBlackBox::importClicked);
}

void TabBlackBox::setList(const QStringList &entries)
{
    qCDebug(lcView) << Q_FUNC_INFO << entries.size();
    m_entries = entries;
    m_daysPanel->setEntries(entries);
}

QStringList TabBlackBox::list() const
{
    return m_entries;
}

void TabBlackBox::setListButtonEnabled(bool enabled)
{
    m_daysPanel->setListButtonEnabled(enabled);
}

QStringList TabBlackBox::selectedDates() const
{
    return m_days.selectedDates();
}

QStringList TabBlackBox::selectedFiles() const
{
    return m_days.selectedFiles();
}

void TabBlackBox::setTransferProgress(int done, int total)
{
    qCDebug(lcView) << Q_FUNC_INFO << done << total;
    const int all = std::max(0, total);
    m_transferBar->setProgress(std::clamp(done, 0, all), all);
    if (m_isIdle == (all == 0))
        return;
    m_isIdle = all == 0;
    m_daysPanel->setIdle(m_isIdle);
    m_filesPanel->setIdle(m_isIdle);
}

void TabBlackBox::setTransferDetail(const QString &text)
{
    m_transferBar->setDetail(text);
}

void TabBlackBox::addFetchedFiles(const QString &date, const QVector<LoggerFile> &files, bool isComplete)
{
    qCDebug(lcView) << Q_FUNC_INFO << date << files.size() << isComplete;
    const QDate day = QDate::fromString(date, QStringLiteral("dd.MM.yyyy"));
    if (!day.isValid()) {
        qCDebug(lcView) << "ERROR: no date!" << date;
        return;
    }
    m_daysPanel->chooseDay(m_days.setFiles(day, files, isComplete));
}

void TabBlackBox::addLocalFiles(const QVector<LoggerFile> &files)
{
    qCDebug(lcView) << Q_FUNC_INFO << files.size();
    m_daysPanel->chooseDay(m_days.setFiles({}, files));
}

void TabBlackBox::forgetBox()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    m_entries.clear();
    m_daysPanel->forgetBox();
}

void TabBlackBox::setImportedFiles(const QSet<QByteArray> &fingerprints)
{
    m_days.setImported(fingerprints);
}

void TabBlackBox::setResult(const QString &text)
{
    qCDebug(lcView) << Q_FUNC_INFO << text;
    m_transferBar->setResult(text);
}
