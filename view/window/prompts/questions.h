#pragma once

#include "view/common/userprompts.h"

#include <QObject>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>

/// Everything that is asked and told in dialogs, one at a time. While a dialog is open, a further message waits for
/// its turn, and a further question is answered at once with what changes nothing: save, not quit, cancel, no, no
/// file, no address. File dialogs start in the last folder and remember the one chosen.
class Questions : public QObject
{
    Q_OBJECT

public:
    /// The prompts may not be null.
    explicit Questions(std::unique_ptr<UserPrompts> prompts);

    [[nodiscard]] bool isAsking() const { return m_asking; }

    [[nodiscard]] bool toSave();
    [[nodiscard]] bool toQuit();
    [[nodiscard]] QMessageBox::StandardButton toSaveAndQuit();
    [[nodiscard]] bool toClearData();
    [[nodiscard]] bool yesNo(const QString &title, const QString &text);

    /// Choice::kClosed also if another question is open.
    [[nodiscard]] int choose(const Choice &choice);

    void inform(const QString &title, const QString &text);
    void warn(const QString &title, const QString &text);

    /// Empty: cancelled.
    [[nodiscard]] QString openFile(const QString &title, const QString &filter);
    [[nodiscard]] QString saveFile(const QString &title, const QString &filter);
    /// Appends the suffix unless the chosen name ends with it. The dialog asked about the name chosen only; if there
    /// is a file of the longer name, the user is asked whether to overwrite it, under the title given or the dialog's.
    [[nodiscard]] QString saveFileWithSuffix(const QString &title, const QString &filter, const QString &suffix,
                                             Qt::CaseSensitivity sensitivity, const QString &overwriteTitle);
    [[nodiscard]] QString folder(const QString &title);
    [[nodiscard]] std::optional<QString> address(const QString &current);
    /// Shown by the next one of address().
    void setAddressReason(const QString &reason);
    /// Closes the dialog that is open, if any, as if the user had.
    void withdraw();
    void setAddressValidator(std::function<bool(const QString &)> isValid);

    /// Where file dialogs start; empty: where the dialog itself does.
    [[nodiscard]] QString lastFolder() const { return m_lastFolder; }
    void setLastFolder(const QString &folder) { m_lastFolder = folder; }

private:
    struct Message
    {
        QString title;
        QString text;
        bool isWarning = false;
    };

    /// The answer to the question, or the refusal if another one is open.
    template <typename Answer, typename Question>
    [[nodiscard]] Answer oneAtATime(Answer refusal, Question question);
    [[nodiscard]] QMessageBox::StandardButton ask(const QString &title, const QString &text,
                                                  QMessageBox::StandardButtons buttons,
                                                  QMessageBox::StandardButton refusal);
    void showOrQueue(const Message &message);
    void showWaitingMessage();
    void rememberFolderOf(const QString &file);

    std::unique_ptr<UserPrompts> m_prompts;
    QVector<Message> m_waiting;
    QString m_lastFolder;
    bool m_asking = false;
};
