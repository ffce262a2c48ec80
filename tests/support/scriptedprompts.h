#pragma once

#include "view/common/userprompts.h"

#include <QStringList>

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

/// Answers every dialog of the program from a script and remembers what was shown. What is asked without an answer
/// in the script is cancelled and counted in `unexpected`.
class ScriptedPrompts : public UserPrompts
{
public:
    struct Shown
    {
        QString title;
        QString text;
        QMessageBox::StandardButtons buttons;
    };

    std::deque<QMessageBox::StandardButton> answers; ///< NoButton closes the box
    std::deque<int> choices;                         ///< indices of answers to a Choice
    std::deque<QString> openNames;
    std::deque<QString> saveNames;
    std::deque<QString> folders;
    std::deque<QString> addresses; ///< an empty one rejects the dialog
    /// Runs while a dialog is up, as the event loop of a real one would.
    std::function<void()> whileOpen;

    std::vector<StandardQuestion> questions; ///< comparisons too
    std::vector<Comparison> comparisons;
    int uninvited = 0;           ///< how many dialogs opened that the user did not cause
    std::vector<Choice> asked;   ///< with answers in words of their own
    std::vector<Shown> messages; ///< informations and warnings
    std::vector<Shown> warnings;
    QStringList fileDialogs; ///< "title|filter"
    QStringList fileStarts;  ///< where those for files started
    int addressDialogs = 0;
    int unexpected = 0;
    int mostOpenAtOnce = 0;

    QMessageBox::StandardButton ask(const StandardQuestion &question) override
    {
        questions.push_back(question);
        return answer(answers, QMessageBox::NoButton);
    }
    QMessageBox::StandardButton compare(const Comparison &comparison) override
    {
        comparisons.push_back(comparison);
        return ask({comparison.title, comparison.text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No});
    }
    int choose(const Choice &choice) override
    {
        asked.push_back(choice);
        return answer(choices, int(Choice::kClosed));
    }
    void inform(const QString &title, const QString &text) override
    {
        messages.push_back({title, text, QMessageBox::Ok});
        stayOpen();
    }
    void warn(const QString &title, const QString &text) override
    {
        messages.push_back({title, text, QMessageBox::Ok});
        warnings.push_back(messages.back());
        stayOpen();
    }
    QString openFileName(const QString &title, const QString &start, const QString &filter) override
    {
        fileStarts << start;
        fileDialogs << title + QLatin1Char('|') + filter;
        return answer(openNames, QString());
    }
    QString saveFileName(const QString &title, const QString &start, const QString &filter) override
    {
        fileStarts << start;
        fileDialogs << title + QLatin1Char('|') + filter;
        return answer(saveNames, QString());
    }
    QString openFolder(const QString &title, const QString &) override
    {
        fileDialogs << title;
        return answer(folders, QString());
    }
    std::optional<QString> askAddress(const QString &) override
    {
        ++addressDialogs;
        const QString address = answer(addresses, QString());
        if (address.isEmpty())
            return std::nullopt;
        return address;
    }

    void setUninvited(bool uninvitedNow) override { m_isUninvited = uninvitedNow; }

private:
    template <typename Answer>
    Answer answer(std::deque<Answer> &script, Answer result)
    {
        if (script.empty()) {
            ++unexpected;
        } else {
            result = script.front();
            script.pop_front();
        }
        stayOpen();
        return result;
    }

    void stayOpen()
    {
        uninvited += m_isUninvited ? 1 : 0;
        mostOpenAtOnce = std::max(mostOpenAtOnce, ++m_open);
        if (whileOpen)
            whileOpen();
        --m_open;
    }

    int m_open = 0;
    bool m_isUninvited = false;
};

/// A script for the window that is to be made with it, which owns it; the test keeps a pointer.
inline std::unique_ptr<UserPrompts> scripted(ScriptedPrompts *&script)
{
    auto made = std::make_unique<ScriptedPrompts>();
    script = made.get();
    return made;
}
