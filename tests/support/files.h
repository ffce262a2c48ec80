#pragma once

#include <QFile>
#include <QtTest>

/// What cannot be read is no content that a test expects.
inline QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

inline void writeFile(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}
