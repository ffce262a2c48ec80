#pragma once

#include <QTableView>

/// A table view with one row per shot. One row can be selected and no cell can be edited unless a derived class
/// allows more.
class ShotTable : public QTableView
{
    Q_OBJECT

public:
    explicit ShotTable(const QString &name, QWidget *parent = nullptr);

protected:
    /// Sets all texts. The constructor of the class that implements it has to call it once.
    virtual void retranslateUi() = 0;

    void changeEvent(QEvent *event) override;
};
