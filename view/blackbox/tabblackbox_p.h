#pragma once

#include "view/blackbox/blackboxdays.h"
#include "view/blackbox/blackboxfiles.h"
#include "view/blackbox/tabblackbox.h"

#include <QDate>

class LeftRightStepBox;
class ProgressIndicator;
class QBoxLayout;
class QItemSelectionModel;
class QLabel;
class QPushButton;
class QTableView;
class ShotPreview;

struct TabBlackBox::Private
{
    explicit Private(TabBlackBox *tab);

    TabBlackBox *q;
    BlackBoxDays days;
    BlackBoxFiles files;
    QStringList entries;
    QDate chosenDay; ///< invalid: the local files, if anything is chosen
    int done = 0;
    int total = 0; ///< > 0: something is under way
    bool listAllowed = true;

    QLabel *daysHeading = nullptr;
    QLabel *filesHeading = nullptr;
    QTableView *dayTable = nullptr;
    QTableView *fileTable = nullptr;
    ShotPreview *preview = nullptr;
    LeftRightStepBox *fileStep = nullptr; ///< steps through the rows of the files, counted from 1
    QPushButton *request = nullptr;
    QPushButton *selectAll = nullptr;
    QPushButton *selectNone = nullptr;
    QPushButton *selectNew = nullptr;
    QPushButton *fetch = nullptr;
    QPushButton *openFolder = nullptr;
    QPushButton *import = nullptr;
    ProgressIndicator *indicator = nullptr;
    QLabel *progress = nullptr;
    QLabel *result = nullptr;

    // --- Layout ---
    void createLayout();
    [[nodiscard]] QBoxLayout *createDayColumn();
    [[nodiscard]] QBoxLayout *createFileColumn();
    [[nodiscard]] QBoxLayout *createFoot();
    void connectButtons();
    void connectTables();

    // --- State ---
    void chooseDay(int row);
    void restoreChosenDay();
    void showDay(int row);
    void showFile(int row);
    void updateState();
    void updateHeadings();
    void showProgress();
};
