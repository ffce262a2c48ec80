#pragma once

#include <QMessageBox>
#include <QString>

/// A question whose answers are the usual buttons: "Speichern", "Verwerfen", "Ja", "Nein", "OK", "Abbrechen".
struct StandardQuestion
{
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton safest = QMessageBox::NoButton; ///< the one that loses nothing; it has the focus
    bool isDestructive = false;                                 ///< an answer loses data: the box has the warning icon
    QString hint = {}; ///< a line below the text that explains the answers; empty for none
};
