#pragma once

#include <QString>
#include <QVector>

class Model;

/// One of the facts about program and box that support asks for.
struct AboutFact
{
    QString name;
    QString value;
};

/// The versions of program, box, Qt and system, and where unsaved work is kept, in the language in use. The versions of
/// the box are those of the connected one, else the last that are known.
[[nodiscard]] QVector<AboutFact> aboutFacts(const Model &model);

/// The facts as plain text, one per line.
[[nodiscard]] QString aboutText(const QVector<AboutFact> &facts);

/// Something that the program is made of, and its licence.
struct AboutLicence
{
    QString name;
    QString summary;
    QString text; ///< in full
};

/// From the resources, in the language in use but for the texts of the licences.
[[nodiscard]] QVector<AboutLicence> aboutLicences();
