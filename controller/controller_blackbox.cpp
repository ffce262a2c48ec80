#include "controller/controller.h"
#include "controller/controller_p.h"
#include "controller/logging.h"
#include "model/model.h"
#include "view/blackbox/tabblackbox.h"
#include "view/window/view.h"

#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {

constexpr int kMostNames = 5; // of files in a message

/// What an import has brought so far.
struct ImportSummary
{
    int shots = 0;
    BlackBoxLosses losses;
    QStringList unreadable; ///< file names

    [[nodiscard]] QString text() const
    {
        QStringList parts{shots == 1 ? Controller::tr("1 Messung importiert")
                                     : Controller::tr("%1 Messungen importiert").arg(shots)};
        if (losses.skippedLines > 0)
            parts += losses.skippedLines == 1 ? Controller::tr("1 Zeile übersprungen")
                                              : Controller::tr("%1 Zeilen übersprungen").arg(losses.skippedLines);
        if (losses.badValues > 0)
            parts += losses.badValues == 1
                         ? Controller::tr("1 Wert war nicht lesbar und ist jetzt 0")
                         : Controller::tr("%1 Werte waren nicht lesbar und sind jetzt 0").arg(losses.badValues);
        if (!unreadable.isEmpty())
            parts += unreadable.size() == 1 ? Controller::tr("1 Datei nicht lesbar")
                                            : Controller::tr("%1 Dateien nicht lesbar").arg(unreadable.size());
        return parts.join(QLatin1String(", "));
    }

    [[nodiscard]] QString failureText() const
    {
        QString names = unreadable.mid(0, kMostNames).join(QLatin1Char('\n'));
        if (unreadable.size() > kMostNames)
            names += QStringLiteral("\n…");
        return Controller::tr("Diese Dateien konnten nicht gelesen werden:") + QLatin1Char('\n') + names;
    }
};

/// Shows for its lifetime that files are being imported.
class ImportScope
{
public:
    ImportScope(QProgressBar *bar, TabBlackBox *tab)
        : m_bar(bar)
        , m_tab(tab)
    {
        m_bar->setFormat(Controller::tr("Importieren..."));
        m_bar->setValue(0);
        m_bar->show();
    }
    ~ImportScope()
    {
        m_bar->hide();
        m_tab->setTransferProgress(0, 0);
    }
    Q_DISABLE_COPY_MOVE(ImportScope)

private:
    QProgressBar *m_bar;
    TabBlackBox *m_tab;
};

void addFile(const QString &file, Model &model, ImportSummary &summary)
{
    const int before = model.numChannels(0);
    if (!model.addBlackBoxFile(file)) {
        summary.unreadable += QFileInfo(file).fileName();
        return;
    }
    summary.shots += model.numChannels(0) - before;
    const BlackBoxLosses losses = model.blackBoxLosses();
    summary.losses.skippedLines += losses.skippedLines;
    summary.losses.badValues += losses.badValues;
}

} // namespace

/// The window shows the tab; a list that the box can give is fetched along.
void Controller::onImportBlackBox()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (d->connector.isConnected() && !isOccupied())
        onTabBlackBox_listClicked();
}

void Controller::onTabBlackBox_importClicked(const QStringList &files)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied() || refuseImportWhileRecording())
        return;
    const QStringList wanted = withoutUnwantedRepeats(files);
    // The answer takes its time; a recording may have begun.
    if (wanted.isEmpty() || refuseImportWhileRecording())
        return;
    importFiles(wanted);
}

/// The newest measurement is the one being recorded, in all views; so it must stay the last.
bool Controller::refuseImportWhileRecording()
{
    if (!d->recordingRunning)
        return false;
    d->prompt([this] {
        d->view->showMessage(tr("Während einer Aufzeichnung kann nichts importiert werden.\n"
                                "Bitte beenden Sie zuerst die Aufzeichnung."),
                             tr("BlackBox"));
    });
    return true;
}

/// Files that the project has already are left out unless the user wants them again.
QStringList Controller::withoutUnwantedRepeats(const QStringList &files)
{
    const QSet<QByteArray> imported = d->model->importedFiles();
    QStringList fresh;
    std::copy_if(files.begin(), files.end(), std::back_inserter(fresh),
                 [&imported](const QString &file) { return !imported.contains(blackBoxFingerprint(file)); });
    const int repeats = files.size() - fresh.size();
    if (repeats == 0)
        return files;
    const QString question =
        repeats == 1 ? tr("Eine der Dateien ist schon in diesem Projekt.\nNoch einmal importieren?")
                     : tr("%1 der Dateien sind schon in diesem Projekt.\nNoch einmal importieren?").arg(repeats);
    return d->prompt([&] { return d->view->askYesNo(tr("BlackBox"), question); }) ? files : fresh;
}

void Controller::importFiles(const QStringList &files)
{
    const SensorDescription before = d->model->sensorDescription();
    ImportSummary summary;
    TabBlackBox *tab = d->view->tabBlackBox();
    tab->setResult({});
    d->model->blockSignals(false);
    {
        const ImportScope scope(d->progressBar, tab);
        const LineHold hold(d->holds, d->connector, d->resumeTimer);
        const QScopedValueRollback<int> total(d->importTotal, files.size());
        for (d->importDone = 0; d->importDone < files.size(); ++d->importDone) {
            tab->setTransferProgress(d->importDone, files.size());
            addFile(files.at(d->importDone), *d->model, summary);
        }
    }
    if (summary.unreadable.size() < files.size())
        finishImport(before);
    for (const auto &edit : std::exchange(d->heldEdits, {}))
        applyEdit(edit);
    tab->setResult(summary.text());
    d->view->showStatus(summary.text());
    if (!summary.unreadable.isEmpty())
        d->prompt([&] { d->view->showWarning(summary.failureText(), tr("Problem")); });
}

void Controller::finishImport(const SensorDescription &before)
{
    // The answer to a single-value request belongs to no imported measurement, nor to one that is not the newest.
    d->series.clear();
    markModified();
    d->view->tabBlackBox()->setImportedFiles(d->model->importedFiles());
    showNewSensorLimits(before, d->model->sensorDescription());
}
