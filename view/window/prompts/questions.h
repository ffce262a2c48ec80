#pragma once

#include "view/common/userprompts.h"

#include <QHash>
#include <QObject>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>

/// The answer to the question whether to save what is about to be given up.
enum class SaveAnswer {
    Save,
    Discard,
    Stay, ///< the box was closed, or another question is open: what asked must not happen
};

/// Where a file dialog starts.
struct FileStart
{
    QString topic;         ///< has a folder of its own, such as kProjectFolder; empty: the last folder of all dialogs
    QString proposal = {}; ///< a file, absolute or in that folder, whose name is proposed; empty for none
};

/// Everything that is asked and told in dialogs, one at a time. While a dialog is open, a further message waits for
/// its turn, and a further question is answered at once with what changes nothing: stay, not quit, cancel, no, no
/// file, no address. So is a question whose box is closed or left with Escape. File dialogs start in the last folder
/// and remember the one chosen.
class Questions : public QObject
{
    Q_OBJECT

public:
    /// The prompts may not be null.
    explicit Questions(std::unique_ptr<UserPrompts> prompts);

    [[nodiscard]] bool isAsking() const { return m_asking; }

    [[nodiscard]] SaveAnswer toSaveOrStay();
    [[nodiscard]] bool toQuit();
    /// QMessageBox::Cancel if the box was closed.
    [[nodiscard]] QMessageBox::StandardButton toSaveAndQuit();
    /// `details` follows the question; empty for none.
    [[nodiscard]] bool toClearData(const QString &details = {});
    [[nodiscard]] bool yesNo(const QString &title, const QString &text);
    /// As yesNo(), where yes destroys something.
    [[nodiscard]] bool yesNoDestructive(const QString &title, const QString &text);
    /// Any question with the usual buttons; NoButton if the box was closed or another question is open.
    [[nodiscard]] QMessageBox::StandardButton ask(const StandardQuestion &question);
    /// True only for yes.
    [[nodiscard]] bool compare(const Comparison &comparison);

    /// Choice::kClosed also if another question is open.
    [[nodiscard]] int choose(const Choice &choice);

    void inform(const QString &title, const QString &text);
    void warn(const QString &title, const QString &text);

    /// Empty: cancelled.
    [[nodiscard]] QString openFile(const QString &title, const QString &filter, const FileStart &start = {});
    [[nodiscard]] QString saveFile(const QString &title, const QString &filter, const FileStart &start = {});
    /// Appends the suffix unless the chosen name ends with it. The dialog asked about the name chosen only; if there
    /// is a file of the longer name, the user is asked whether to overwrite it, under the title given or the dialog's.
    [[nodiscard]] QString saveFileWithSuffix(const QString &title, const QString &filter, const QString &suffix,
                                             Qt::CaseSensitivity sensitivity, const QString &overwriteTitle,
                                             const FileStart &start = {});
    [[nodiscard]] QString folder(const QString &title);
    [[nodiscard]] std::optional<QString> address(const QString &current);
    void setAddressValidator(std::function<bool(const QString &)> isValid);

    /// Where file dialogs start; empty: where the dialog itself does.
    [[nodiscard]] QString lastFolder() const { return m_lastFolder; }
    void setLastFolder(const QString &folder) { m_lastFolder = folder; }
    /// The folder of a topic; empty: none was chosen yet.
    [[nodiscard]] QString folderOf(const QString &topic) const { return m_folders.value(topic); }
    void setFolderOf(const QString &topic, const QString &folder) { m_folders.insert(topic, folder); }
    static const QString kProjectFolder;
    static const QString kPictureFolder;

    /// See UninvitedQuestions.
    void setUninvited(bool uninvited) { m_prompts->setUninvited(uninvited); }

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
    void showOrQueue(const Message &message);
    void showWaitingMessage();
    [[nodiscard]] QString startPath(const FileStart &start) const;
    void rememberFolderOf(const QString &file, const QString &topic);

    std::unique_ptr<UserPrompts> m_prompts;
    QVector<Message> m_waiting;
    QString m_lastFolder;
    QHash<QString, QString> m_folders; // of the topics
    bool m_asking = false;
};

/// While one exists, the dialogs that open were not caused by the user: for a moment they take no keys, which may be
/// meant for the field that had the focus.
class UninvitedQuestions
{
public:
    explicit UninvitedQuestions(Questions &questions)
        : m_questions(questions)
    {
        m_questions.setUninvited(true);
    }
    ~UninvitedQuestions() { m_questions.setUninvited(false); }
    Q_DISABLE_COPY_MOVE(UninvitedQuestions)

private:
    Questions &m_questions;
};
