#pragma once

#include <QWidget>

class OsziSpinBox;
class QCheckBox;
class QLabel;

/// The controls of the y correction: whether the curves are shifted, and the time at which they pass through zero.
class YCorrectionBox : public QWidget
{
    Q_OBJECT

public:
    explicit YCorrectionBox(QWidget *parent = nullptr);

    [[nodiscard]] bool isOn() const;
    /// In milliseconds.
    [[nodiscard]] int time() const;
    /// Emits nothing.
    void showTime(int milliseconds);
    void setEditable(bool editable);

signals:
    void toggled(bool on);
    void timeEdited(int milliseconds);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    QLabel *m_caption = nullptr;
    QCheckBox *m_on = nullptr;
    OsziSpinBox *m_time = nullptr;
};
