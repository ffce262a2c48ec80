#pragma once

#include "kit/small/translatedwidget.h"
#include "view/blackbox/blackboxdays.h"

class QLabel;
class QPushButton;
class TickTable;

/// The left side of the BlackBox tab: the days that the box has logged, one of which is chosen, and the buttons that
/// get their list, tick them and fetch them.
class DaysPanel final : public TranslatedWidget
{
    Q_OBJECT

public:
    /// The days must outlive the panel.
    explicit DaysPanel(BlackBoxDays *days, QWidget *parent = nullptr);

    /// Takes over the box's list.
    void setEntries(const QStringList &entries);
    /// Forgets the days of a box that is left.
    void forgetBox();
    void chooseDay(int row);
    /// While a transfer runs nothing can be requested or fetched.
    void setIdle(bool idle);
    void setListButtonEnabled(bool enabled);

signals:
    void listRequested();
    void fetchClicked();
    /// The files of this row of the days are to be shown; -1: of none. Also emitted for the same row again.
    void dayChosen(int row);

protected:
    void retranslateUi() override;

private:
    void createLayout();
    void connectButtons();
    void showDay(int row);
    void restoreChosenDay();
    void updateState();

    BlackBoxDays *m_days;
    QDate m_chosenDay; // invalid: the local files, if anything is chosen
    int m_numLogged = 0;
    bool m_idle = true;
    bool m_listAllowed = true;

    QLabel *m_heading = nullptr;
    QPushButton *m_request = nullptr;
    TickTable *m_table = nullptr;
    QPushButton *m_selectAll = nullptr;
    QPushButton *m_selectNone = nullptr;
    QPushButton *m_selectNew = nullptr;
    QPushButton *m_fetch = nullptr;
};
