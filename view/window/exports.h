#pragma once

#include <QObject>

class Model;
class View;

/// The files that the window itself writes: the terminal's text, a picture of the oscilloscope, the samples as CSV.
/// Each is written when the window's signal of that name is emitted; what goes wrong is told in the status bar.
class Exports : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    Exports(View *view, Model *model);

private:
    [[nodiscard]] bool refuseWhileBusy() const;
    void saveTerminal() const;
    void saveOszi() const;
    void saveCsv() const;

    View *m_view;
    Model *m_model;
};
