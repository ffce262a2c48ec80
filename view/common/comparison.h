#pragma once

#include <QString>
#include <QVector>

/// A question, answered by yes or no, whether one record shall replace another one; both are shown side by side.
struct Comparison
{
    struct Row
    {
        QString name;
        QString current;
        QString offered;

        [[nodiscard]] bool isDifferent() const { return current != offered; }
    };

    QString title;
    QString text;
    QString currentTitle; ///< heading of the record that is there
    QString offeredTitle; ///< heading of the record that would replace it
    QVector<Row> rows;
};
