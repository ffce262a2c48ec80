#pragma once

#include "kit/small/translatedwidget.h"
#include "plots/evaluation/common/shotquantity.h"

class QComboBox;
class QLabel;
class QPushButton;
class QuantityPicker;

/// The row in which the user chooses the quantity that is drawn and judged, and the quantities that the table shows.
class QuantityChoice final : public TranslatedWidget
{
    Q_OBJECT

public:
    explicit QuantityChoice(QWidget *parent = nullptr);

    /// The quantities that the table shows, their names in the same order, and which of them is chosen.
    void setQuantities(const QVector<Quantity> &shown, const QStringList &names, int chosen);
    void setPhaseNames(const QStringList &names);

signals:
    /// The user chose the quantity at this position in the list.
    void chosen(int index);
    /// The user wants a quantity in the table, or no longer.
    void toggled(const Quantity &quantity, bool shown);

protected:
    void retranslateUi() override;

private slots:
    void onButton_clicked();

private:
    QLabel *m_label = nullptr;
    QComboBox *m_list = nullptr;
    QPushButton *m_button = nullptr;
    QuantityPicker *m_picker = nullptr;
};
