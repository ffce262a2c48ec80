#pragma once

#include <QFrame>

class QComboBox;
class QLabel;

/// Shows the sampling period and lets the user ask for another one of those on offer.
class SamplingBox : public QFrame
{
    Q_OBJECT

public:
    explicit SamplingBox(QWidget *parent = nullptr);

    /// The periods on offer, as labels such as "100ms". Emits nothing.
    void setPeriods(const QStringList &labels);
    /// The period in force, in milliseconds; it need not be one of those on offer.
    void showPeriod(int milliseconds);
    /// Whether the user can choose.
    void setSelectable(bool selectable);

signals:
    /// The user wants another period, given by its label; the one in force stays shown.
    void periodChosen(const QString &label);

protected:
    void changeEvent(QEvent *event) override;

private:
    void choose(int index);
    void retranslateUi();

    QLabel *m_caption = nullptr;
    QComboBox *m_periods = nullptr;
    int m_period = 1; ///< in force, milliseconds
};
