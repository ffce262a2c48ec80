#pragma once

#include <QLabel>

class ProjectLock;

/// Tells in the status bar, as long as it is so, that somebody else has the project open.
class ReadOnlySign : public QLabel
{
    Q_OBJECT

public:
    /// The lock must outlive the sign.
    ReadOnlySign(const ProjectLock &lock, QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;

private:
    void refresh();

    const ProjectLock &m_lock;
};
