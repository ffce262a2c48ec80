#include "plots/evaluation/common/shottablemodel.h"

int ShotTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : numShots();
}

void ShotTableModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

QString ShotTableModel::timestampText(const QDateTime &timestamp)
{
    return timestamp.toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
}
