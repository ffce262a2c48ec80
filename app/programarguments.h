#pragma once

#include <QCoreApplication>
#include <QStringList>

/// What the program is told when it is started.
class ProgramArguments
{
    Q_DECLARE_TR_FUNCTIONS(ProgramArguments)

public:
    /// `arguments` begins with the program's name and lacks what the application object has taken out of it.
    explicit ProgramArguments(const QStringList &arguments);

    /// True if help or the version is asked for, which needs no display.
    [[nodiscard]] static bool isQuestion(int argc, const char *const *argv);

    /// The program's name and the files, without the options.
    [[nodiscard]] QStringList arguments() const { return m_arguments; }
    /// What is to be printed instead of a session; empty if one is to begin.
    [[nodiscard]] QString answer() const { return m_answer; }
    /// True if the answer is about a mistake.
    [[nodiscard]] bool isMistaken() const { return m_isMistaken; }

private:
    QStringList m_arguments;
    QString m_answer;
    bool m_isMistaken = false;
};
