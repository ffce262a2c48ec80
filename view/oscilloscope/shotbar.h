#pragma once

#include <QWidget>

class FlowLayout;
class OsziSpinBox;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// The bar of the measurements: how many there are, which are displayed, which is highlighted, and which to delete.
class ShotBar : public QWidget
{
    Q_OBJECT

public:
    explicit ShotBar(QWidget *parent = nullptr);
    /// Appends a group of controls, which takes part in the wrapping of the bar; the bar owns it from then on.
    void addGroup(QWidget *group);

    /// The number of measurements; the newest one becomes the highlighted one. Emits nothing.
    void showCount(int count);
    /// What can be used: deletion if `open`; anything but the counter only while there are measurements.
    void updateEnabled(bool open, bool any);

    [[nodiscard]] bool allDisplayed() const;
    /// Emits nothing.
    void setAllDisplayed(bool all);
    /// The measurements to display, as typed.
    [[nodiscard]] QString displayedText() const;
    /// Takes the focus from the text without another displayedEdited().
    void leaveDisplayed();

    /// Asks for the deletion of the measurements typed; without any, moves the focus to their field.
    void requestDeletion();
    void clearDeletion();

signals:
    void allDisplayedToggled(bool all);
    /// Return was pressed in the text, or it lost the focus.
    void displayedEdited();
    void highlightEdited(int measurement);
    /// Return was pressed in the field of the deletion or its button clicked.
    void deletionTriggered();
    void deletionRequested(const QString &range);

protected:
    void changeEvent(QEvent *event) override;

private:
    void createMeasurements();
    [[nodiscard]] QWidget *createDeletion();
    void connectControls();
    void showCounter();
    void retranslateUi();

    FlowLayout *m_flow = nullptr;
    QLabel *m_counterCaption = nullptr;
    QLabel *m_counter = nullptr;
    QLabel *m_displayedCaption = nullptr;
    QCheckBox *m_all = nullptr;
    QLineEdit *m_displayed = nullptr;
    QLabel *m_highlightCaption = nullptr;
    OsziSpinBox *m_highlight = nullptr;
    QLabel *m_deletionCaption = nullptr;
    QLineEdit *m_deletion = nullptr;
    QPushButton *m_deleteButton = nullptr;
    int m_count = 0;
};
