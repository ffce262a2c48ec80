#pragma once

#include <QTableView>

/// A table of days or files that can be ticked in their first column, which takes the room that the other two leave.
class TickTable final : public QTableView
{
    Q_OBJECT

public:
    /// The model is not owned and must have its three columns already.
    TickTable(const QString &name, QAbstractItemModel *model, QWidget *parent = nullptr);
};
