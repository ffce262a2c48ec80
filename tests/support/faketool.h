#pragma once

#include "tests/support/literals.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>

/// A script in the place of the SCP tool, in a folder with a blank. It notes its argument text, its folder and its
/// process, and then does what the test wants.
class FakeTool
{
public:
    explicit FakeTool(const QByteArray &script) { setScript(script); }

    /// For the runs to come, in the language of sh; "$1" is the argument text.
    void setScript(const QByteArray &script)
    {
        (void)QDir(m_folder.path()).mkpath("with blank/winscp"_s);
        QFile tool(file());
        (void)tool.open(QIODevice::WriteOnly | QIODevice::Truncate);
        tool.write(
            "#!/bin/sh\nnotes=\"${0%/*}\"\nprintf '%s\\n' \"$1\" >>\"$notes/arguments\"\npwd >>\"$notes/folders\"\n"
            "echo $$ >\"$notes/process\"\n"
            + script + '\n');
        tool.close();
        tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    [[nodiscard]] QString file() const { return path("winscp.com"); }
    /// One line per run.
    [[nodiscard]] QStringList arguments() const { return lines("arguments"); }
    [[nodiscard]] QStringList folders() const { return lines("folders"); }
    [[nodiscard]] bool isRunning() const
    {
        const int process = lines("process").value(0).toInt();
        return process > 0 && ::kill(process, 0) == 0;
    }

private:
    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath("with blank/winscp/"_s + QLatin1String(name));
    }
    [[nodiscard]] QStringList lines(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly)
                   ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                   : QStringList();
    }

    QTemporaryDir m_folder;
};
