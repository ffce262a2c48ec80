#pragma once

#include "model/blackbox/loggerfile.h"

#include <QAbstractTableModel>
#include <QDate>
#include <QSet>
#include <QStringList>
#include <QVector>

/// How far a day or a file has been processed.
enum class BlackBoxState { New, Partial, Fetched, Imported };

/// A logger file that can be imported.
struct BlackBoxFile : LoggerFile
{
    bool ticked = true; ///< wanted for the import
    bool imported = false;
};

/// A day that the box has logged, or the files of local folders: those have no date.
struct BlackBoxDay
{
    QDate date;
    QVector<BlackBoxFile> files;
    bool fetched = false;
    bool isPartial = false; ///< a fetch that was broken off left files on the box
    bool ticked = false;    ///< wanted, as long as there are no files to tick

    [[nodiscard]] BlackBoxState state() const;
    /// Checked if everything is ticked that is not imported yet.
    [[nodiscard]] Qt::CheckState checkState() const;
    [[nodiscard]] bool holdsUnimported() const;
    /// Ticks the files that are not imported yet, or all if there are none of these; or removes all ticks.
    void tick(bool on);
};

/// The days of a list of the box, newest first. An entry "dir-yyyymmdd" is a day; other entries, dates that do
/// not exist and repetitions are left out.
[[nodiscard]] QVector<QDate> loggedDays(const QStringList &entries);

/// The days of the BlackBox tab as table rows: local files first, then the days, newest first.
class BlackBoxDays : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { DayColumn, FilesColumn, StateColumn, NumColumns };

    using QAbstractTableModel::QAbstractTableModel;

    /// Takes over the box's list. Days whose files are on this computer stay, listed or not, and so do all ticks.
    void setEntries(const QStringList &entries);
    /// Replaces the files of a day; adds the day if the list did not have it. Files keep their ticks; new ones are
    /// ticked unless they are imported. An invalid date means local files: these are added to those known.
    /// `isComplete`: the box has no more of this day. Returns the row.
    int setFiles(const QDate &date, const QVector<LoggerFile> &files, bool isComplete = true);
    /// Forgets all days; local files belong to no box and stay.
    void forgetBox();
    /// Marks the files with these fingerprints as imported, all others as not imported. A file that becomes imported
    /// loses its tick.
    void setImported(const QSet<QByteArray> &fingerprints);

    enum class Selection { None, All, New };
    /// Ticks all days, none, or those of which files are on the box only.
    void select(Selection selection);
    /// Ticks a single file or removes its tick. Rows or files out of range are ignored.
    void tickFile(int row, int file, bool on);

    [[nodiscard]] const QVector<BlackBoxDay> &days() const { return m_days; }
    /// Ticked days in the order of the rows: dd.mm.yyyy. Local files belong to no day.
    [[nodiscard]] QStringList selectedDates() const;
    /// Ticked files in the order in which they were recorded: oldest day first; local files last.
    [[nodiscard]] QStringList selectedFiles() const;
    /// Announces that all texts have changed with the language.
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] int rowOf(const QDate &date) const;
    int addRow(const QDate &date);
    [[nodiscard]] QVector<BlackBoxFile> merged(const QVector<BlackBoxFile> &known, bool keepsKnown,
                                               const QVector<LoggerFile> &files) const;
    [[nodiscard]] QString text(const BlackBoxDay &day, int column) const;
    void announceRow(int row);
    void announceAll();

    QVector<BlackBoxDay> m_days;
    QSet<QByteArray> m_imported;
};

/// "neu", "teilweise", "geladen", "importiert".
[[nodiscard]] QString stateText(BlackBoxState state);
/// Bold for what is new, grey for what is imported: a role of a table cell, or nothing.
[[nodiscard]] QVariant stateLook(BlackBoxState state, int role);
