#pragma once

#include "view/window/pages.h"

#include <QObject>

class MainWindow;
class Model;
struct FileFault;

/// The files that the window itself writes: the terminal's text, a picture of the oscilloscope, the samples as CSV.
/// Each is written when the window's signal of that name is emitted; how it went is told in the status bar.
class Exports : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    Exports(MainWindow *window, Model *model, const Pages &pages);

private:
    [[nodiscard]] bool refuseWhileBusy() const;
    void showSaved(const QString &fileName) const;
    void showFailed(const QString &what, const FileFault &fault) const;
    void saveTerminal() const;
    void saveOszi() const;
    void saveCsv() const;

    MainWindow *m_window;
    Model *m_model;
    Pages m_pages;
};
