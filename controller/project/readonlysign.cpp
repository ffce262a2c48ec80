#include "controller/project/readonlysign.h"

#include "controller/project/projectlock.h"

#include <QEvent>

ReadOnlySign::ReadOnlySign(const ProjectLock &lock, QWidget *parent)
    : QLabel(parent)
    , m_lock(lock)
{
    setObjectName(QStringLiteral("labelReadOnly"));
    setStyleSheet(QStringLiteral("QLabel {background-color: #FFE9B8; padding: 0px 12px; font-weight: bold;}"));
    connect(&lock, &ProjectLock::ownerChanged, this, &ReadOnlySign::refresh);
    refresh();
}

void ReadOnlySign::refresh()
{
    setText(tr("Nur lesen"));
    const auto &owner = m_lock.owner();
    setToolTip(owner ? tr("Das Projekt ist auch auf %1 geöffnet (%2, Prozess %3).")
                           .arg(owner->host, owner->program, QString::number(owner->process))
                     : QString());
    setVisible(owner.has_value());
}

void ReadOnlySign::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QLabel::changeEvent(event);
}
