#include "view/blackbox/tabblackbox.h"

#include "kit/small/leftrightstepbox.h"
#include "kit/small/progressindicator.h"
#include "view/blackbox/shotpreview.h"
#include "view/blackbox/tabblackbox_p.h"
#include "view/common/logging.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>

// --- What the user does ----------------------------------------------------------------------------------------

TabBlackBox::Private::Private(TabBlackBox *tab)
    : q(tab)
    , files(&days)
{}

void TabBlackBox::Private::connectButtons()
{
    QObject::connect(request, &QPushButton::clicked, q, &TabBlackBox::listRequested);
    QObject::connect(fetch, &QPushButton::clicked, q, &TabBlackBox::fetchClicked);
    QObject::connect(openFolder, &QPushButton::clicked, q, &TabBlackBox::openLocalFolderClicked);
    QObject::connect(import, &QPushButton::clicked, q, [this] { emit q->importClicked(days.selectedFiles()); });
    const auto selects = [this](const QPushButton *button, BlackBoxDays::Selection selection) {
        QObject::connect(button, &QPushButton::clicked, q, [this, selection] { days.select(selection); });
    };
    selects(selectAll, BlackBoxDays::Selection::All);
    selects(selectNone, BlackBoxDays::Selection::None);
    selects(selectNew, BlackBoxDays::Selection::New);
}

void TabBlackBox::Private::connectTables()
{
    QObject::connect(&days, &QAbstractItemModel::dataChanged, q, [this] { updateState(); });
    QObject::connect(&days, &QAbstractItemModel::modelReset, q, [this] { restoreChosenDay(); });
    QObject::connect(&days, &QAbstractItemModel::rowsInserted, q, [this] { restoreChosenDay(); });
    QObject::connect(dayTable->selectionModel(), &QItemSelectionModel::currentRowChanged, q,
                     [this](const QModelIndex &current) {
                         if (current.isValid())
                             showDay(current.row());
                     });
    QObject::connect(fileTable->selectionModel(), &QItemSelectionModel::currentRowChanged, q,
                     [this](const QModelIndex &current) { showFile(current.row()); });
    QObject::connect(fileStep, &LeftRightStepBox::valueChanged, q,
                     [this](int number) { fileTable->setCurrentIndex(files.index(number - 1, 0)); });
}

void TabBlackBox::Private::chooseDay(int row)
{
    dayTable->setCurrentIndex(days.index(row, 0));
    showDay(row);
}

/// Rows have moved or gone: the files shown stay those of the same day.
void TabBlackBox::Private::restoreChosenDay()
{
    int row = 0;
    while (row < days.rowCount() && days.days().at(row).date != chosenDay)
        ++row;
    if (row < days.rowCount())
        chooseDay(row);
    else
        showDay(-1);
}

void TabBlackBox::Private::showDay(int row)
{
    files.setDay(row);
    if (files.day() >= 0)
        chosenDay = days.days().at(row).date;
    if (files.rowCount() > 0)
        fileTable->setCurrentIndex(files.index(0, 0));
    else
        showFile(-1);
    updateState();
}

void TabBlackBox::Private::showFile(int row)
{
    preview->setFile(files.path(row));
    const QSignalBlocker blocker(fileStep); // it follows
    fileStep->setRange(1, files.rowCount());
    fileStep->setValue(row + 1);
}

// --- What is shown ---------------------------------------------------------------------------------------------

void TabBlackBox::Private::updateState()
{
    const bool idle = total == 0;
    const bool anyDay = days.rowCount() > 0;
    const int wanted = days.selectedFiles().size();
    request->setEnabled(idle && listAllowed);
    openFolder->setEnabled(idle);
    fetch->setEnabled(idle && !days.selectedDates().isEmpty());
    import->setEnabled(idle && wanted > 0);
    import->setText(wanted > 0 ? tr("&Importieren (%1)").arg(wanted) : tr("&Importieren"));
    for (QPushButton *button : {selectAll, selectNone, selectNew})
        button->setEnabled(anyDay);
    updateHeadings();
}

void TabBlackBox::Private::updateHeadings()
{
    const int count = loggedDays(entries).size();
    daysHeading->setText(count > 0 ? tr("Tage auf der Box: %1").arg(count) : tr("Tage auf der Box"));
    if (files.day() < 0)
        filesHeading->setText(tr("Dateien"));
    else if (chosenDay.isValid())
        filesHeading->setText(tr("Dateien vom %1").arg(chosenDay.toString(QStringLiteral("dd.MM.yyyy"))));
    else
        filesHeading->setText(tr("Lokale Dateien"));
}

void TabBlackBox::Private::showProgress()
{
    if (total > 0) {
        indicator->setPercent(done > 0 ? static_cast<int>(qint64(done) * 100 / total) : ProgressIndicator::kTurning);
        indicator->startAnimation();
        progress->setText(tr("%1 von %2").arg(done).arg(total));
    } else {
        indicator->stopAnimation();
        progress->clear();
    }
}

// --- The tab ---------------------------------------------------------------------------------------------------

TabBlackBox::TabBlackBox(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    d->createLayout();
    d->connectButtons();
    d->connectTables();
    retranslateUi();
}

TabBlackBox::~TabBlackBox() = default;

void TabBlackBox::setList(const QStringList &entries)
{
    qCDebug(lcView) << Q_FUNC_INFO << entries.size();
    d->entries = entries;
    d->days.setEntries(entries);
    d->updateState();
}

QStringList TabBlackBox::list() const
{
    return d->entries;
}

void TabBlackBox::setListButtonEnabled(bool enabled)
{
    d->listAllowed = enabled;
    d->updateState();
}

QStringList TabBlackBox::selectedDates() const
{
    return d->days.selectedDates();
}

QStringList TabBlackBox::selectedFiles() const
{
    return d->days.selectedFiles();
}

void TabBlackBox::setTransferProgress(int done, int total)
{
    qCDebug(lcView) << Q_FUNC_INFO << done << total;
    d->total = std::max(0, total);
    d->done = std::clamp(done, 0, d->total);
    d->showProgress();
    d->updateState();
}

void TabBlackBox::addFetchedFiles(const QString &date, const QStringList &absoluteFiles)
{
    qCDebug(lcView) << Q_FUNC_INFO << date << absoluteFiles.size();
    const QDate day = QDate::fromString(date, QStringLiteral("dd.MM.yyyy"));
    if (!day.isValid()) {
        qCDebug(lcView) << "ERROR: no date!" << date;
        return;
    }
    d->chooseDay(d->days.setFiles(day, absoluteFiles));
}

void TabBlackBox::addLocalFiles(const QStringList &files)
{
    qCDebug(lcView) << Q_FUNC_INFO << files.size();
    d->chooseDay(d->days.setFiles({}, files));
}

void TabBlackBox::setImportedFiles(const QSet<QByteArray> &fingerprints)
{
    d->days.setImported(fingerprints);
}

void TabBlackBox::setResult(const QString &text)
{
    qCDebug(lcView) << Q_FUNC_INFO << text;
    d->result->setText(text);
}

void TabBlackBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->result->clear(); // it was put into words when the import ended
        retranslateUi();
    }
    QWidget::changeEvent(event);
}

void TabBlackBox::retranslateUi()
{
    d->request->setText(tr("&Liste laden"));
    d->request->setToolTip(tr("Die Box nach den Tagen fragen, die sie aufgezeichnet hat"));
    d->selectAll->setText(tr("&Alle"));
    d->selectAll->setToolTip(tr("Alle Tage auswählen"));
    d->selectNone->setText(tr("&Keine"));
    d->selectNone->setToolTip(tr("Keinen Tag auswählen"));
    d->selectNew->setText(tr("&Nur neue"));
    d->selectNew->setToolTip(tr("Die Tage auswählen, von denen noch nichts geladen ist"));
    d->fetch->setText(tr("&Holen"));
    d->fetch->setToolTip(tr("Die Dateien der ausgewählten Tage von der Box kopieren"));
    d->openFolder->setText(tr("&Ordner öffnen..."));
    d->openFolder->setToolTip(tr("Dateien der Box aus einem Ordner dieses Rechners nehmen"));
    d->import->setToolTip(tr("Die ausgewählten Dateien als Messungen in das Projekt übernehmen"));
    d->dayTable->setAccessibleName(tr("Aufgezeichnete Tage"));
    d->fileTable->setAccessibleName(tr("Dateien des Tages"));
    d->preview->setAccessibleName(tr("Vorschau der Messung"));
    d->fileStep->setAccessibleName(tr("Datei in der Vorschau"));
    d->fileStep->setToolTip(tr("Vorige und nächste Datei des Tages ansehen"));
    d->indicator->setAccessibleName(tr("Fortschritt der Übertragung"));
    d->days.retranslate();
    d->files.retranslate();
    d->preview->update();
    d->showProgress();
    d->updateState();
}
