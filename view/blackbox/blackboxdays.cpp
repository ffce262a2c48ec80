#include "view/blackbox/blackboxdays.h"

#include "app/theme.h"
#include <QCoreApplication>
#include <QFont>
#include <QHash>

#include <algorithm>

namespace {

const QString kDateFormat = QStringLiteral("dd.MM.yyyy");

QDate dayOfEntry(const QString &entry)
{
    constexpr int kLength = 12; // "dir-" and eight digits
    if (entry.size() != kLength || !entry.startsWith(QLatin1String("dir-")))
        return {};
    return QDate::fromString(entry.mid(4), QStringLiteral("yyyyMMdd"));
}

bool isNewer(const BlackBoxDay &a, const BlackBoxDay &b)
{
    if (a.date.isValid() != b.date.isValid())
        return b.date.isValid(); // local files come first
    return a.date > b.date;
}

bool isOnBoxOnly(const BlackBoxDay &day)
{
    return day.state() == BlackBoxState::New || day.state() == BlackBoxState::Partial;
}

bool hasSmallerName(const BlackBoxFile &a, const BlackBoxFile &b)
{
    const auto name = [](const QString &path) { return path.midRef(path.lastIndexOf(QLatin1Char('/')) + 1); };
    return name(a.path) < name(b.path);
}

} // namespace

QVector<QDate> loggedDays(const QStringList &entries)
{
    QVector<QDate> days;
    for (const QString &entry : entries) {
        const QDate day = dayOfEntry(entry);
        if (day.isValid())
            days.append(day);
    }
    std::sort(days.begin(), days.end(), std::greater<>());
    days.erase(std::unique(days.begin(), days.end()), days.end());
    return days;
}

// --- A day -----------------------------------------------------------------------------------------------------

bool BlackBoxDay::holdsUnimported() const
{
    return std::any_of(files.begin(), files.end(), [](const BlackBoxFile &file) { return !file.imported; });
}

BlackBoxState BlackBoxDay::state() const
{
    if (!fetched)
        return BlackBoxState::New;
    if (isPartial)
        return BlackBoxState::Partial;
    return files.isEmpty() || holdsUnimported() ? BlackBoxState::Fetched : BlackBoxState::Imported;
}

Qt::CheckState BlackBoxDay::checkState() const
{
    if (files.isEmpty())
        return ticked ? Qt::Checked : Qt::Unchecked;
    const auto isTicked = [](const BlackBoxFile &file) { return file.ticked; };
    if (std::none_of(files.begin(), files.end(), isTicked))
        return Qt::Unchecked;
    const bool onlyNew = holdsUnimported();
    const bool all = std::all_of(files.begin(), files.end(), [onlyNew](const BlackBoxFile &file) {
        return file.ticked || (onlyNew && file.imported);
    });
    return all ? Qt::Checked : Qt::PartiallyChecked;
}

void BlackBoxDay::tick(bool on)
{
    ticked = on;
    const bool onlyNew = holdsUnimported();
    for (BlackBoxFile &file : files)
        file.ticked = on && (!onlyNew || !file.imported);
}

// --- What the rows are made of ---------------------------------------------------------------------------------

void BlackBoxDays::setEntries(const QStringList &entries)
{
    QVector<BlackBoxDay> days;
    for (const BlackBoxDay &day : qAsConst(m_days)) {
        if (day.fetched)
            days.append(day);
    }
    const QVector<QDate> logged = loggedDays(entries);
    for (const QDate &date : logged) {
        const int row = rowOf(date);
        if (row >= 0 && m_days.at(row).fetched)
            continue;
        BlackBoxDay day;
        day.date = date;
        day.ticked = row >= 0 && m_days.at(row).ticked;
        days.append(day);
    }
    std::sort(days.begin(), days.end(), isNewer);
    beginResetModel();
    m_days = days;
    endResetModel();
}

int BlackBoxDays::setFiles(const QDate &date, const QVector<LoggerFile> &files, bool isComplete)
{
    const int row = rowOf(date) >= 0 ? rowOf(date) : addRow(date);
    BlackBoxDay &day = m_days[row];
    // A day holds what there is of it now, while each local folder adds to those opened before.
    day.files = merged(day.files, !date.isValid(), files);
    day.fetched = true;
    day.isPartial = !isComplete;
    announceRow(row);
    return row;
}

int BlackBoxDays::addRow(const QDate &date)
{
    BlackBoxDay day;
    day.date = date;
    const auto place = std::lower_bound(m_days.begin(), m_days.end(), day, isNewer);
    const int row = static_cast<int>(place - m_days.begin());
    beginInsertRows({}, row, row);
    m_days.insert(row, day);
    endInsertRows();
    return row;
}

QVector<BlackBoxFile> BlackBoxDays::merged(const QVector<BlackBoxFile> &known, bool keepsKnown,
                                           const QVector<LoggerFile> &files) const
{
    QHash<QString, BlackBoxFile> before;
    for (const BlackBoxFile &file : known)
        before.insert(file.path, file);
    QHash<QString, BlackBoxFile> result = keepsKnown ? before : QHash<QString, BlackBoxFile>();
    for (const LoggerFile &file : files) {
        const bool imported = m_imported.contains(file.fingerprint);
        const auto same = before.constFind(file.path);
        // Another content is a new file.
        const bool ticked =
            same != before.constEnd() && same->fingerprint == file.fingerprint ? same->ticked : !imported;
        result.insert(file.path, BlackBoxFile{file, ticked, imported});
    }
    QVector<BlackBoxFile> sorted;
    sorted.reserve(result.size());
    for (const BlackBoxFile &file : qAsConst(result))
        sorted.append(file);
    std::sort(sorted.begin(), sorted.end(), hasSmallerName);
    return sorted;
}

void BlackBoxDays::forgetBox()
{
    beginResetModel();
    m_days.erase(
        std::remove_if(m_days.begin(), m_days.end(), [](const BlackBoxDay &day) { return day.date.isValid(); }),
        m_days.end());
    endResetModel();
}

void BlackBoxDays::setImported(const QSet<QByteArray> &fingerprints)
{
    if (fingerprints == m_imported)
        return;
    m_imported = fingerprints;
    for (BlackBoxDay &day : m_days) {
        for (BlackBoxFile &file : day.files) {
            const bool isImported = m_imported.contains(file.fingerprint);
            // A file that was imported before and is ticked again keeps its tick: the user wants it twice.
            file.ticked = file.ticked && (file.imported || !isImported);
            file.imported = isImported;
        }
    }
    announceAll();
}

// --- Ticks -----------------------------------------------------------------------------------------------------

void BlackBoxDays::select(Selection selection)
{
    for (BlackBoxDay &day : m_days) {
        const bool wanted = selection == Selection::All || (selection == Selection::New && isOnBoxOnly(day));
        day.tick(wanted);
    }
    announceAll();
}

void BlackBoxDays::tickFile(int row, int file, bool on)
{
    if (row < 0 || row >= m_days.size() || file < 0 || file >= m_days.at(row).files.size())
        return;
    m_days[row].files[file].ticked = on;
    announceRow(row);
}

QStringList BlackBoxDays::selectedDates() const
{
    QStringList dates;
    for (const BlackBoxDay &day : m_days) {
        if (day.date.isValid() && day.checkState() != Qt::Unchecked)
            dates.append(day.date.toString(kDateFormat));
    }
    return dates;
}

QStringList BlackBoxDays::selectedFiles() const
{
    QStringList files;
    // The rows are newest first, but measurements are to be in the order of their recording.
    for (auto day = m_days.rbegin(); day != m_days.rend(); ++day) {
        for (const BlackBoxFile &file : day->files) {
            if (file.ticked)
                files.append(file.path);
        }
    }
    return files;
}

// --- As a table ------------------------------------------------------------------------------------------------

int BlackBoxDays::rowOf(const QDate &date) const
{
    const auto found =
        std::find_if(m_days.begin(), m_days.end(), [&date](const BlackBoxDay &day) { return day.date == date; });
    return found == m_days.end() ? -1 : static_cast<int>(found - m_days.begin());
}

void BlackBoxDays::announceRow(int row)
{
    emit dataChanged(index(row, 0), index(row, NumColumns - 1));
}

void BlackBoxDays::announceAll()
{
    if (!m_days.isEmpty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, NumColumns - 1));
}

void BlackBoxDays::retranslate()
{
    announceAll();
    emit headerDataChanged(Qt::Horizontal, 0, NumColumns - 1);
}

int BlackBoxDays::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_days.size();
}

int BlackBoxDays::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : NumColumns;
}

QVariant BlackBoxDays::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const BlackBoxDay &day = m_days.at(index.row());
    if (role == Qt::DisplayRole)
        return text(day, index.column());
    if (role == Qt::CheckStateRole && index.column() == DayColumn)
        return day.checkState();
    if (role == Qt::TextAlignmentRole && index.column() == FilesColumn)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return index.column() == StateColumn ? stateLook(day.state(), role) : QVariant();
}

QString BlackBoxDays::text(const BlackBoxDay &day, int column) const
{
    if (column == DayColumn)
        return day.date.isValid() ? day.date.toString(kDateFormat) : tr("Lokale Dateien");
    if (column == FilesColumn)
        return day.fetched ? QString::number(day.files.size()) : QStringLiteral("–");
    return stateText(day.state());
}

bool BlackBoxDays::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || index.column() != DayColumn)
        return false;
    m_days[index.row()].tick(value.toInt() != Qt::Unchecked);
    announceRow(index.row());
    return true;
}

Qt::ItemFlags BlackBoxDays::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.column() == DayColumn ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant BlackBoxDays::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case DayColumn:
        return tr("Tag");
    case FilesColumn:
        return tr("Dateien");
    default:
        return tr("Zustand");
    }
}

// --- Looks -----------------------------------------------------------------------------------------------------

QString stateText(BlackBoxState state)
{
    switch (state) {
    case BlackBoxState::New:
        return QCoreApplication::translate("BlackBoxDays", "neu");
    case BlackBoxState::Partial:
        return QCoreApplication::translate("BlackBoxDays", "teilweise");
    case BlackBoxState::Fetched:
        return QCoreApplication::translate("BlackBoxDays", "geladen");
    case BlackBoxState::Imported:
        return QCoreApplication::translate("BlackBoxDays", "importiert");
    }
    return {};
}

QVariant stateLook(BlackBoxState state, int role)
{
    if (role == Qt::ForegroundRole && state != BlackBoxState::New)
        return state == BlackBoxState::Imported ? theme::qColorDark : theme::qColorPrimary;
    if (role == Qt::FontRole && state == BlackBoxState::New) {
        QFont font;
        font.setBold(true);
        return font;
    }
    return {};
}
