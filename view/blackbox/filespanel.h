#pragma once

#include "kit/small/translatedwidget.h"
#include "view/blackbox/blackboxfiles.h"

class LeftRightStepBox;
class QLabel;
class QPushButton;
class ShotPreview;
class TickTable;

/// The right side of the BlackBox tab: the files of the chosen day, one of which is previewed, and the button that
/// imports all ticked files.
class FilesPanel final : public TranslatedWidget
{
    Q_OBJECT

public:
    /// The days must outlive the panel.
    explicit FilesPanel(BlackBoxDays *days, QWidget *parent = nullptr);

    /// Shows the files of a row of the days and previews the first; -1: none.
    void showDay(int row);
    /// While a transfer runs nothing can be opened or imported.
    void setIdle(bool idle);

signals:
    void openLocalFolderClicked();
    /// At least one file, absolute, in the order in which they were recorded.
    void importClicked(const QStringList &files);

protected:
    void retranslateUi() override;

private:
    void createLayout();
    void connectWidgets();
    void showFile(int row);
    void updateState();
    void updateHeading();

    BlackBoxDays *m_days;
    BlackBoxFiles m_files;
    bool m_idle = true;

    QLabel *m_heading = nullptr;
    QPushButton *m_openFolder = nullptr;
    TickTable *m_table = nullptr;
    ShotPreview *m_preview = nullptr;
    LeftRightStepBox *m_step = nullptr; // steps through the rows of the table, counted from 1
    QPushButton *m_import = nullptr;
};
