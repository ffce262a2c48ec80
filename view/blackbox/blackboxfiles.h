#pragma once

#include "view/blackbox/blackboxdays.h"

#include <QAbstractTableModel>
#include <QDate>

/// The files of one day of the BlackBox tab as table rows. The days must outlive it.
class BlackBoxFiles : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, SizeColumn, StateColumn, NumColumns };

    explicit BlackBoxFiles(BlackBoxDays *days, QObject *parent = nullptr);

    /// Shows the files of a row of the days; -1: none.
    void setDay(int row);
    [[nodiscard]] int day() const { return m_row; }
    /// Empty for a row that does not exist.
    [[nodiscard]] QString path(int row) const;
    /// Announces that all texts have changed with the language.
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] QVector<BlackBoxFile> files() const;
    [[nodiscard]] QString text(const BlackBoxFile &file, int column) const;
    void refresh();

    BlackBoxDays *m_days;
    int m_row = -1;
    int m_count = 0; ///< rows as announced
};
