#include "view/connectionprogress.h"

#include "app/theme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

ConnectionProgress::ConnectionProgress(QWidget *window)
    : QFrame(window)
{
    setObjectName(QStringLiteral("connectionProgress"));
    setStyleSheet(QStringLiteral("ConnectionProgress {background-color: %1; border: 3px solid %2; border-radius: 4px;}"
                                 "ConnectionProgress QLabel {font-size: 20px;}"
                                 "ConnectionProgress QPushButton {font-size: 18px; padding: 0px 18px;}")
                      .arg(theme::colorBackground, theme::colorPrimary));
    m_label = new QLabel(this);
    m_label->setObjectName(QStringLiteral("labelProgress"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *bar = new QProgressBar(this);
    bar->setRange(0, 0); // how long it takes is not known
    bar->setTextVisible(false);
    bar->setFixedHeight(12);
    m_cancel = new QPushButton(this);
    m_cancel->setObjectName(QStringLiteral("buttonCancelProgress"));
    auto *column = new QVBoxLayout;
    column->addWidget(m_label);
    column->addWidget(bar);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(20, 10, 20, 10);
    row->setSpacing(20);
    row->addLayout(column, 1);
    row->addWidget(m_cancel);
    connect(m_cancel, &QPushButton::clicked, this, &ConnectionProgress::cancelled);
    auto *escape = new QShortcut(Qt::Key_Escape, this); // active while the panel is shown
    connect(escape, &QShortcut::activated, this, &ConnectionProgress::cancelled);
    window->installEventFilter(this);
    retranslateUi();
    hide();
}

void ConnectionProgress::showText(const QString &text)
{
    m_label->setText(text);
    m_label->setToolTip(text);
    centre();
    show();
    raise();
}

void ConnectionProgress::centre()
{
    const QWidget *window = parentWidget();
    resize(window->width() / 2, kHeight);
    move((window->width() - width()) / 2, (window->height() - height()) / 2);
}

bool ConnectionProgress::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible())
        centre();
    return QFrame::eventFilter(watched, event);
}

void ConnectionProgress::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QFrame::changeEvent(event);
}

void ConnectionProgress::retranslateUi()
{
    m_cancel->setText(tr("Abbrechen"));
    m_cancel->setToolTip(tr("Den Verbindungsversuch beenden (Esc)"));
    setAccessibleName(tr("Verbindungsaufbau"));
}
