#pragma once

#include <QString>

class QAbstractItemModel;
class QTableView;
class QWidget;

/// A table with a row a shot, of which one is chosen at a time and none is edited, both until it is told otherwise.
/// Belongs to the parent.
[[nodiscard]] QTableView *newShotTable(QWidget *parent, const QString &name, QAbstractItemModel *model);
