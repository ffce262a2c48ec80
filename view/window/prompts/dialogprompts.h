#pragma once

#include "view/common/userprompts.h"

#include <QPointer>
#include <QWidget>

class QMessageBox;

/// Asks with dialogs over a window.
class DialogPrompts : public UserPrompts
{
public:
    explicit DialogPrompts(QWidget *window)
        : m_window(window)
    {}

    [[nodiscard]] QMessageBox::StandardButton ask(const QString &title, const QString &text,
                                                  QMessageBox::StandardButtons buttons) override;
    [[nodiscard]] int choose(const Choice &choice) override;
    void inform(const QString &title, const QString &text) override;
    void warn(const QString &title, const QString &text) override;
    [[nodiscard]] QString openFileName(const QString &title, const QString &folder, const QString &filter) override;
    [[nodiscard]] QString saveFileName(const QString &title, const QString &folder, const QString &filter) override;
    [[nodiscard]] QString openFolder(const QString &title, const QString &folder) override;
    [[nodiscard]] std::optional<QString> askAddress(const QString &current) override;
    void withdraw() override;
    void setAddressReason(const QString &reason) override;
    void setAddressValidator(std::function<bool(const QString &)> isValid) override;

private:
    [[nodiscard]] QMessageBox::StandardButton run(const QString &title, const QString &text,
                                                  QMessageBox::StandardButtons buttons, const QString &iconFile);

    /// What a dialog opens over: the dialog that is up already, or the window.
    [[nodiscard]] QWidget *window() const;

    QPointer<QWidget> m_window;
    std::function<bool(const QString &)> m_isValid;
    QString m_addressReason;
};

/// Fills a box: buttons in the program's words, in the order of reading, the first one the default, and what closing
/// the box answers.
void fillMessageBox(QMessageBox &box, const QString &title, const QString &text, QMessageBox::StandardButtons buttons);
/// The large panel that the application's sheet means: 800 x 600 pixels at least, a white icon beside the text.
void makePanel(QMessageBox &box, const QString &iconFile);
/// "Abbrechen" if it is among the buttons, else "Nein", else "Speichern", else the last.
[[nodiscard]] QMessageBox::StandardButton escapeAnswer(QMessageBox::StandardButtons buttons);
/// The ending of the first pattern in a file filter's entry: "csv" for "CSV (*.csv)"; empty if there is none.
[[nodiscard]] QString filterSuffix(const QString &nameFilter);
