#include "view/box/connectionprogress.h"

#include "app/theme.h"
#include "kit/material/qtmaterialflatbutton.h"
#include "kit/small/progressindicator.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTextDocument>

ConnectionProgress::ConnectionProgress(QWidget *window)
    : QFrame(window)
{
    setObjectName(QStringLiteral("connectionProgress"));
    setStyleSheet(QStringLiteral("ConnectionProgress {background-color: %1; border: 3px solid %2; border-radius: 4px;}"
                                 "ConnectionProgress QLabel {font-size: 20px;}"
                                 "ConnectionProgress QPushButton {font-size: 18px;}")
                      .arg(theme::colorBackground, theme::colorPrimary));
    m_label = new QLabel(this);
    m_label->setObjectName(QStringLiteral("labelProgress"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text must not widen the panel
    auto *indicator = new ProgressIndicator(this);                        // how long it takes is not known
    indicator->setFixedSize(indicator->sizeHint());
    indicator->startAnimation();
    m_cancel = new QtMaterialFlatButton(this);
    m_cancel->setObjectName(QStringLiteral("buttonCancelProgress"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(20, 10, 20, 10);
    row->setSpacing(20);
    row->addWidget(indicator);
    row->addWidget(m_label, 1);
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
    m_label->setToolTip(Qt::convertFromPlainText(text));
    centre();
    show();
    raise(); // above what the window has got since
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
