#include "view/window/windowmemory.h"

#include "view/common/programsettings.h"
#include "view/window/multilanguageutils.h"
#include "view/window/prompts/questions.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QWindowStateChangeEvent>

namespace {

const QString kPosition = QStringLiteral("mainwindow_pos");
const QString kSize = QStringLiteral("mainwindow_size");
const QString kMaximized = QStringLiteral("mainwindow_maximized");
const QString kLastFolder = QStringLiteral("lastDir");
const QString kTopicFolder = QStringLiteral("lastDir_"); // followed by the topic
const QString kLanguage = QStringLiteral("language");

QVector<QRect> screensForWindows()
{
    QVector<QRect> areas;
    const QList<QScreen *> screens = QGuiApplication::screens(); // the primary first
    for (const QScreen *screen : screens)
        areas.append(screen->availableGeometry());
    return areas;
}

} // namespace

WindowMemory::WindowMemory(QMainWindow *window, Questions &questions, MultiLanguageUtils &languages)
    : m_window(window)
    , m_questions(questions)
    , m_languages(languages)
{
    window->installEventFilter(this);
    connect(&languages, &MultiLanguageUtils::languageChosen, this,
            [](const QString &code) { programSettings().setValue(kLanguage, code); });
}

void WindowMemory::read()
{
    readPlacement();
    const QSettings stored = programSettings();
    m_questions.setLastFolder(stored.value(kLastFolder).toString());
    for (const QString &topic : {Questions::kProjectFolder, Questions::kPictureFolder})
        m_questions.setFolderOf(topic, stored.value(kTopicFolder + topic).toString());
    const QString language = stored.value(kLanguage).toString();
    m_languages.loadLanguage(m_languages.isOffered(language) ? language : m_languages.language());
}

void WindowMemory::readPlacement()
{
    const QSettings stored = programSettings();
    if (stored.contains(kPosition) || stored.contains(kSize)) {
        m_placement.position = stored.value(kPosition, m_placement.position).toPoint();
        m_placement.size = stored.value(kSize, m_placement.size).toSize();
        m_placement = placedOnScreens(m_placement, screensForWindows());
    }
    m_window->resize(m_placement.size);
    m_window->move(m_placement.position);
    if (stored.value(kMaximized).toBool())
        m_window->setWindowState(Qt::WindowMaximized);
}

void WindowMemory::write() const
{
    QSettings stored = programSettings();
    const bool filling = m_window->isMaximized() || m_window->isFullScreen();
    stored.setValue(kPosition, filling ? m_placement.position : m_window->pos());
    stored.setValue(kSize, filling ? m_placement.size : m_window->size());
    stored.setValue(kMaximized, m_window->isMaximized());
    stored.setValue(kLastFolder, m_questions.lastFolder());
    for (const QString &topic : {Questions::kProjectFolder, Questions::kPictureFolder}) {
        if (!m_questions.folderOf(topic).isEmpty())
            stored.setValue(kTopicFolder + topic, m_questions.folderOf(topic));
    }
}

bool WindowMemory::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::WindowStateChange)
        noteNormalPlacement(static_cast<QWindowStateChangeEvent *>(event)->oldState());
    return QObject::eventFilter(watched, event);
}

/// The place to come back to, noted when the window begins to fill the screen; afterwards its frame cannot be told.
void WindowMemory::noteNormalPlacement(Qt::WindowStates before)
{
    constexpr Qt::WindowStates kFilling = Qt::WindowMaximized | Qt::WindowFullScreen;
    if (!m_window->isVisible() || before & kFilling || !(m_window->windowState() & kFilling))
        return;
    const QPoint frame = m_window->geometry().topLeft() - m_window->pos();
    m_placement = {m_window->normalGeometry().topLeft() - frame, m_window->normalGeometry().size()};
}
