#pragma once

#include "view/blackbox/blackboxdays.h"

#include <QWidget>

class DaysPanel;
class FilesPanel;
class TransferBar;

/// The tab "BlackBox": left the days that the box has logged, right the files of the chosen day. Owns the days and
/// their ticks. Only emits what the user wants; the listener does it and reports back.
class TabBlackBox : public QWidget
{
    Q_OBJECT

public:
    explicit TabBlackBox(QWidget *parent = nullptr);

    /// The entries of the box's list block, as received. Entries that are no day "dir-yyyymmdd" are not shown.
    void setList(const QStringList &entries);
    [[nodiscard]] QStringList list() const;
    void setListButtonEnabled(bool enabled);

    /// The ticked days, dd.mm.yyyy, in the order of the tab: newest first.
    [[nodiscard]] QStringList selectedDates() const;
    /// The ticked files, absolute, in the order in which they were recorded.
    [[nodiscard]] QStringList selectedFiles() const;

    /// "3 von 7" and a ring that fills up; whatever would start another transfer is disabled meanwhile. 0 of 0:
    /// nothing is being transferred.
    void setTransferProgress(int done, int total);
    /// How far the step that is under way has come, in words; shown until the next setTransferProgress().
    void setTransferDetail(const QString &text);
    /// The logger files of a day (dd.mm.yyyy) that are on this computer now, including those that were known before.
    /// `isComplete`: the box has no more of them. A text that is no date is logged and ignored.
    void addFetchedFiles(const QString &date, const QVector<LoggerFile> &files, bool isComplete = true);
    /// Logger files of a local folder. Shown above the days.
    void addLocalFiles(const QVector<LoggerFile> &files);
    /// The box was left: its list, its days and their files are no longer shown. Local files stay.
    void forgetBox();
    /// The fingerprints of the files whose measurements the project holds.
    void setImportedFiles(const QSet<QByteArray> &fingerprints);
    /// How the last import went; shown until the next one.
    void setResult(const QString &text);

signals:
    /// The user wants the list of the box.
    void listRequested();
    /// The user wants the data of selectedDates(), of at least one day.
    void fetchClicked();
    void openLocalFolderClicked();
    /// The user wants these files, at least one, absolute, in this order.
    void importClicked(const QStringList &files);

private:
    BlackBoxDays m_days;
    QStringList m_entries;
    bool m_isIdle = true;
    DaysPanel *m_daysPanel = nullptr;
    FilesPanel *m_filesPanel = nullptr;
    TransferBar *m_transferBar = nullptr;
};
