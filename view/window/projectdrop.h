#pragma once

#include <QObject>

class QDropEvent;
class QMimeData;
class QWidget;

/// The project file that is being dragged: the one local file whose name ends in ".vnt"; empty for anything else, also
/// for several files.
[[nodiscard]] QString draggedProject(const QMimeData &data);

/// Takes project files that are dropped anywhere on a window, also on fields that would take their path as text. What
/// else is dragged is left to the widget below it.
class ProjectDrop : public QObject
{
    Q_OBJECT

public:
    /// Watches the window for as long as it lives, and belongs to it.
    explicit ProjectDrop(QWidget *window);

signals:
    /// Emitted when the drop is finished for the program that the file came from, so that questions may be asked.
    void dropped(const QString &fileName);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool take(QDropEvent *event);

    QWidget *m_window;
};
