#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// A member of a JSON object that the program does not know, and gives back as it was.
struct UnknownMember
{
    QString name;
    QByteArray key;   ///< the name as the file has it, with its escapes
    QByteArray value; ///< JSON text
};

using UnknownMembers = QVector<UnknownMember>;

[[nodiscard]] bool operator==(const UnknownMember &a, const UnknownMember &b);

/// Sorts the members by name, as QJsonObject does. Of those with the same name the last one stays.
void sortMembers(UnknownMembers &members);
