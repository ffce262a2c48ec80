#include "view/window/statusdisplay.h"

#include "model/model.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <QTextDocument>

namespace {

constexpr int kLongestFileText = 420;          // pixels
constexpr int kProtectedTime = 10000;          // ms, of a message without an end
const QLatin1String kModifiedColor("#B45309"); // can be read on the bar's grey

/// A name written from right to left must not reverse the text that follows it.
QString isolated(const QString &name)
{
    constexpr QChar kFromLeft(0x200E);
    constexpr QChar kIsolate(0x2068);
    constexpr QChar kEndOfIsolate(0x2069);
    return name.isRightToLeft() ? kFromLeft + QString(kIsolate) + name + kEndOfIsolate : name;
}

} // namespace

StatusDisplay::StatusDisplay(QMainWindow *window, const Model *model)
    : m_model(model)
    , m_bar(window->statusBar())
    , m_demo(new QLabel(window))
    , m_file(new QLabel(window))
{
    m_demo->setObjectName(QStringLiteral("labelDemo"));
    m_demo->setStyleSheet(QStringLiteral("QLabel {background-color: #FFE9B8; padding: 0px 12px; font-weight: bold;}"));
    m_demo->hide();
    m_bar->addPermanentWidget(m_demo);
    m_file->setObjectName(QStringLiteral("labelProjectFile"));
    m_file->setTextFormat(Qt::PlainText);
    m_file->setContentsMargins(0, 0, 8, 0); // a maximised window has no grip beside it
    m_bar->addPermanentWidget(m_file);
    m_messageTimer.setSingleShot(true);
    window->installEventFilter(this);
    connect(model, &Model::fileStateChanged, this, &StatusDisplay::refreshFile);
}

void StatusDisplay::showMessage(const QString &text, int milliseconds)
{
    m_bar->showMessage(text, milliseconds);
    m_messageTimer.start(milliseconds > 0 ? milliseconds : kProtectedTime);
}

void StatusDisplay::addWidget(QWidget *widget)
{
    m_bar->insertPermanentWidget(0, widget);
}

void StatusDisplay::showDemo(bool running)
{
    m_demo->setVisible(running);
}

/// The status tip of whatever is under the pointer would replace a message of the program.
bool StatusDisplay::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::StatusTip && m_messageTimer.isActive())
        return true;
    return QObject::eventFilter(watched, event);
}

void StatusDisplay::retranslate()
{
    m_demo->setText(tr("Demonstration"));
    refreshFile();
}

QString StatusDisplay::fileText() const
{
    const QString file = m_model->currentFile();
    const QString project = m_model->projectData().name.simplified();
    const QString name =
        file.isEmpty() ? (project.isEmpty() ? tr("Neues Projekt") : project) : QFileInfo(file).fileName();
    const QString state = m_model->isProjectModified() ? tr("geändert")
                          : file.isEmpty()             ? QString()
                                                       : tr("gespeichert");
    const QString mark = state.isEmpty() ? QString() : QStringLiteral(" – ") + state;
    const QFontMetrics metrics = m_file->fontMetrics();
    const int nameWidth = kLongestFileText - metrics.horizontalAdvance(mark);
    return isolated(metrics.elidedText(name, Qt::ElideMiddle, nameWidth)) + mark;
}

void StatusDisplay::refreshFile()
{
    const QString sheet = m_model->isProjectModified()
                              ? QStringLiteral("QLabel {font-weight: bold; color: %1;}").arg(kModifiedColor)
                              : QString();
    if (sheet != m_file->styleSheet())
        m_file->setStyleSheet(sheet);
    m_file->ensurePolished(); // the text is shortened to what fits, and bold type is wider
    const QString file = m_model->currentFile();
    const QString text = fileText();
    // A name may hold what looks like a tag.
    const QString tip = file.isEmpty() ? QString() : Qt::convertFromPlainText(QDir::toNativeSeparators(file));
    if (text == m_file->text() && tip == m_file->toolTip())
        return;
    m_file->setText(text);
    m_file->setToolTip(tip);
}
