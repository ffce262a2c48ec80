#pragma once

#include "view/common/userprompts.h"
#include "view/window/prompts/typingguard.h"

#include <QPointer>
#include <QWidget>

class QDialog;

/// Asks with dialogs over a window.
class DialogPrompts : public UserPrompts
{
public:
    /// `typingPause`: how long no key must have been pressed before keys work in a dialog that came uninvited, in ms.
    explicit DialogPrompts(QWidget *window, int typingPause = TypingGuard::kUsualPause)
        : m_window(window)
        , m_typingPause(typingPause)
    {}

    [[nodiscard]] QMessageBox::StandardButton ask(const StandardQuestion &question) override;
    [[nodiscard]] int choose(const Choice &choice) override;
    [[nodiscard]] QMessageBox::StandardButton compare(const Comparison &comparison) override;
    void inform(const QString &title, const QString &text) override;
    void warn(const QString &title, const QString &text) override;
    [[nodiscard]] QString openFileName(const QString &title, const QString &start, const QString &filter) override;
    [[nodiscard]] QString saveFileName(const QString &title, const QString &start, const QString &filter) override;
    [[nodiscard]] QString openFolder(const QString &title, const QString &folder) override;
    [[nodiscard]] std::optional<QString> askAddress(const QString &current) override;
    void setAddressValidator(std::function<bool(const QString &)> isValid) override;
    void setUninvited(bool uninvited) override { m_isUninvited = uninvited; }

private:
    void tell(const QString &title, const QString &text, const QString &iconFile);
    /// Shows a dialog until it is answered; keys wait if it came uninvited.
    int run(QDialog &dialog);
    /// The button that was clicked; NoButton for none.
    [[nodiscard]] QMessageBox::StandardButton answerIn(QMessageBox &box);

    /// What a dialog opens over: the dialog that is up already, or the window.
    [[nodiscard]] QWidget *window() const;

    QPointer<QWidget> m_window;
    std::function<bool(const QString &)> m_isValid;
    int m_typingPause;
    bool m_isUninvited = false;
};

/// Fills a box: buttons in the program's words, in the order of reading; the safest answer has the focus, or the first
/// if none is the safest.
void fillMessageBox(QMessageBox &box, const StandardQuestion &question);
/// The large panel that the application's sheet means: 800 x 600 pixels at least, a white icon beside the text.
void makePanel(QMessageBox &box, const QString &iconFile);
/// The ending of the first pattern in a file filter's entry: "csv" for "CSV (*.csv)"; empty if there is none.
[[nodiscard]] QString filterSuffix(const QString &nameFilter);
