#pragma once

#include "plots/evaluation/common/shotquantity.h"

#include <QFrame>

#include <array>

class QCheckBox;
class QLabel;

/// A panel of check boxes, one per quantity: a row for each kind of figure, a column for each part of the shot. Meant
/// to pop up below a button.
class QuantityPicker : public QFrame
{
    Q_OBJECT

public:
    explicit QuantityPicker(QWidget *parent = nullptr);

    /// Checks these and no others. A single checked box cannot be unchecked.
    void setShown(const QVector<Quantity> &shown);
    void setPhaseNames(const QStringList &names);
    /// Pops up below the widget, moved so that it stays on its screen.
    void popUpBelow(const QWidget *widget);

signals:
    /// The user checked or unchecked a box.
    void toggled(const Quantity &quantity, bool shown);

protected:
    void changeEvent(QEvent *event) override;

private:
    void createBoxes();
    void retranslateUi();

    QVector<QCheckBox *> m_boxes; // in the order of Quantity::all()
    std::array<QLabel *, Quantity::kNumKinds> m_rowTitles{};
    std::array<QLabel *, Quantity::kNumMarkers> m_markerTitles{};
    std::array<QLabel *, Quantity::kNumPhases + 1> m_columnTitles{};
    QStringList m_phaseNames;
};
