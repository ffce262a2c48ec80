#pragma once

#include "controller/controller.h"
#include "model/model.h"
#include "simulator/boxsimulator.h"
#include "tools/demo/dialogdriver.h"
#include "view/window/view.h"

#include <QDir>
#include <QObject>
#include <QStringList>

#include <functional>

/// A typical day's work in half a minute: drives the real window and its real dialogs with a simulated box, leaves
/// pictures, a project and its exports in a folder, and checks these files.
class Demonstration : public QObject
{
    Q_OBJECT

public:
    /// The box must be listening.
    Demonstration(BoxSimulator &box, const QDir &folder);

    /// What went wrong, in words; empty if nothing did.
    [[nodiscard]] QStringList run();

private:
    void connectToBox();
    void choosePeriod();
    void recordShots();
    void recordSlowShot();
    void showLiveSensors();
    void setMarkers();
    void namePhases();
    void deleteShot();
    void calibrate();
    void showTabs();
    void saveFiles();
    void reopen();
    void loseLink();
    void leave();

    void trigger(const char *action);
    void check(bool condition, const QString &what);
    void waitFor(const std::function<bool()> &condition, const QString &what);
    void picture(const QString &name);
    void savePicture(QWidget *widget, const QString &name);
    void showTab(QWidget *page);
    [[nodiscard]] QString path(const QString &name) const { return m_folder.absoluteFilePath(name); }
    [[nodiscard]] int samplesOfNewestShot() const;

    BoxSimulator &m_box;
    QDir m_folder;
    Model m_model;
    View m_view;
    Controller m_controller;
    DialogDriver m_dialogs;
    QStringList m_failures;
    int m_pictures = 0;
};

/// What differs between two projects, all samples compared bit by bit; empty if nothing does.
[[nodiscard]] QString difference(const Model &a, const Model &b);
