#pragma once

#include "model/sensordescription.h"
#include "view/common/demostate.h"
#include "view/common/userprompts.h"
#include "view/window/mainwindow.h"
#include "view/window/pages.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>

class Model;
class Questions;
struct WindowParts;

/// The main window: tool bar, tabs, and every question to the user. Turns user actions into signals that the
/// controller handles, and redraws itself when the model reports changes. A face: every member is carried out by one of
/// the parts that WindowParts lists.
class View : public MainWindow
{
    Q_OBJECT

public:
    /// Neither the model nor, if given, the prompts may be null; the model must outlive the view.
    explicit View(Model *model, std::unique_ptr<UserPrompts> prompts = nullptr);
    ~View() override;

    [[nodiscard]] TabHome *tabHome() const { return m_pages.home; }
    [[nodiscard]] TabProject *tabProject() const { return m_pages.project; }
    [[nodiscard]] TabSensors *tabSensors() const { return m_pages.sensors; }
    [[nodiscard]] TabOszilloscope *tabOszi() const { return m_pages.oszi; }
    [[nodiscard]] TabEvaluation *tabEvaluation() const { return m_pages.evaluation; }
    [[nodiscard]] TabWebConfig *tabWebConfig() const { return m_pages.webConfig; }
    [[nodiscard]] TabDataLogger *tabLogger() const { return m_pages.logger; }
    [[nodiscard]] TabTerminal *tabTerminal() const { return m_pages.terminal; }
    [[nodiscard]] TabBlackBox *tabBlackBox() const { return m_pages.blackBox; }
    [[nodiscard]] QTabWidget *tabs() const { return m_pages.tabs; }

    // --- Questions and messages: one at a time ---
    /// While a question or message is open, a further message waits for its turn, and a further question is answered
    /// at once with what changes nothing: not quit, cancel, no, no file, no address.
    [[nodiscard]] bool isAsking() const;
    /// For questions that are not among the following.
    [[nodiscard]] Questions &questions();
    /// False only for "Verwerfen". Who must know of a box that was closed asks questions().toSaveOrStay().
    [[nodiscard]] bool askToSave();
    [[nodiscard]] bool askToQuit();
    [[nodiscard]] QMessageBox::StandardButton askToSaveAndQuit();
    [[nodiscard]] bool askYesNo(const QString &title, const QString &text);
    /// "Achtung: Alle Messdaten werden gelöscht!" with "Abbrechen"; true to go on.
    [[nodiscard]] bool askToClearData();
    void showMessage(const QString &text, const QString &title);
    void showWarning(const QString &text, const QString &title);
    /// File dialogs start in the last folder and remember the one chosen. Empty: cancelled.
    [[nodiscard]] QString askOpenFile(const QString &title, const QString &filter);
    [[nodiscard]] QString askSaveFile(const QString &title, const QString &filter) override;
    [[nodiscard]] QString askSaveFileWithSuffix(const QString &title, const QString &filter, const QString &suffix,
                                                Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive,
                                                const QString &overwriteTitle = {}) override;
    [[nodiscard]] QString askFolder(const QString &title);
    [[nodiscard]] std::optional<QString> askAddress(const QString &current);
    /// Which texts askAddress() lets through, and which of the addresses remembered are offered; until it is called
    /// every text that is not blank.
    void setAddressValidator(std::function<bool(const QString &)> isValid);

    // --- State shown ---
    void setActionState(Actions action, ActionState state) override;
    void setTabEnabled(int tab, bool enabled) override;
    void setConnected(bool connected) override;
    void setRecordingRunning(bool running) override;
    /// Tabs and actions as for an empty project.
    void reset();
    /// The connection's progress dialog: centred on the window, 100 pixels high, half the window's width. Not modal
    /// to the event loop; while it is shown the connect action, its button and the escape key hide it and emit
    /// progressCancelled().
    void showProgress(const QString &text);
    void hideProgress() override;
    [[nodiscard]] bool isProgressShown() const;
    void showStatus(const QString &text, int milliseconds = 10000) override;
    /// Adds a widget at the right of the status bar (the controller's progress bar); not owned afterwards by the view.
    void addStatusWidget(QWidget *widget);
    void setDeviceAddress(const QString &address);
    void setDemoState(DemoState state);
    /// Offered on the start page, also after the next start of the program.
    void rememberProject(const QString &file);
    void rememberAddress(const QString &address);
    /// Opens the dialog with the versions and licences, or brings it to the front. Not modal.
    void showAbout();
    void writeSettings();
    /// Takes over what is being typed into a field that waits for the end of the input.
    void commitInput();

    /// What a sample line holds, recorded or not, of a box that takes one sample per period, in milliseconds; cheap
    /// enough for every line.
    void showLiveValues(const std::array<double, kNumSensors> &values, int period);
    /// The values so far do not belong to the sensors that are known now.
    void forgetLiveValues();

    // --- Live text of terminal and data logger; both cheap enough for every line ---
    void terminalReceived(const QString &line);
    void terminalSent(const QString &line);
    /// One sample line for the data-logger tab.
    void logSample(double seconds, const std::array<double, kNumSensors> &values);

public slots:
    void updateView() override;
    void onModel_appStateChanged();
    void onModel_ProjectChanged();
    void onModel_DataChanged();
    void onModel_ViewDataChanged();
    void resetCorrection(); ///< nothing uses it yet
    void menu();
    void buttonLockPressed(); ///< nothing uses it yet
    void languageChanged();
    void onTabSelected(int index);
    // The user agreed to the deletion of a picture.
    void deleteImage0Confimed() { deleteImage(0, Q_FUNC_INFO); }
    void deleteImage1Confimed() { deleteImage(1, Q_FUNC_INFO); }
    void deleteImage2Confimed() { deleteImage(2, Q_FUNC_INFO); }
    void deleteImage3Confimed() { deleteImage(3, Q_FUNC_INFO); }
    void deleteImage4Confimed() { deleteImage(4, Q_FUNC_INFO); }

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// Logs the caller.
    void deleteImage(int index, const char *function);

    Model *m_model;
    Pages m_pages;
    std::unique_ptr<WindowParts> d;
};
