#pragma once

class QTabWidget;
class TabBlackBox;
class TabDataLogger;
class TabEvaluation;
class TabHome;
class TabOszilloscope;
class TabProject;
class TabSensors;
class TabTerminal;
class TabWebConfig;

/// The pages of the main window by their names. All of them belong to the tab widget.
struct Pages
{
    QTabWidget *tabs = nullptr;
    TabHome *home = nullptr;
    TabProject *project = nullptr;
    TabSensors *sensors = nullptr;
    TabOszilloscope *oszi = nullptr;
    TabEvaluation *evaluation = nullptr;
    TabWebConfig *webConfig = nullptr;
    TabDataLogger *logger = nullptr;
    TabTerminal *terminal = nullptr;
    TabBlackBox *blackBox = nullptr;
};
