#include "view/oscilloscope/oszirowinput.h"

#include "plots/oscilloscope/osziwidget.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWheelEvent>

namespace {

constexpr int kReadOutLeap = 10; // samples, with the shift key

} // namespace

OsziRowInput::OsziRowInput(OsziWidget *plot)
    : QObject(plot)
    , m_plot(plot)
{
    plot->installEventFilter(this);
}

bool OsziRowInput::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        return wheel(*static_cast<QWheelEvent *>(event));
    case QEvent::MouseButtonPress:
        return press(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return release(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
            emit fitRequested();
        return true;
    case QEvent::KeyPress:
        return key(*static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Control)
            emit readOutEnded();
        break;
    case QEvent::FocusOut: // queued, because it also comes while the tab is being destroyed
        QMetaObject::invokeMethod(this, &OsziRowInput::readOutEnded, Qt::QueuedConnection);
        break;
    case QEvent::Resize:
        emit plotResized();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool OsziRowInput::wheel(const QWheelEvent &event)
{
    m_wheelRest += event.angleDelta().y(); // touch pads send fractions of a step
    const int steps = m_wheelRest / QWheelEvent::DefaultDeltasPerStep;
    m_wheelRest -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps == 0)
        return true;
    if (event.modifiers().testFlag(Qt::ControlModifier))
        emit valueZoomed(qRound(event.position().y()), steps);
    else
        emit timeZoomed(qRound(event.position().x()), steps);
    return true;
}

bool OsziRowInput::press(const QMouseEvent &event)
{
    const bool shifted = event.button() == Qt::LeftButton && event.modifiers().testFlag(Qt::ShiftModifier);
    // Other buttons pressed during a drag neither end it nor reach the plot.
    if (m_drag != Drag::None || (event.button() != Qt::MiddleButton && !shifted))
        return m_drag != Drag::None;
    m_drag = Drag::Undecided;
    m_button = event.button();
    m_dragOrigin = event.pos();
    emit dragStarted();
    return true;
}

bool OsziRowInput::move(const QMouseEvent &event)
{
    if (m_drag == Drag::None)
        return false;
    const QPoint distance = event.pos() - m_dragOrigin;
    // One axis per drag: moving along the time axis must not shift the value range by a few pixels.
    if (m_drag == Drag::Undecided && distance.manhattanLength() >= QGuiApplication::styleHints()->startDragDistance())
        m_drag = qAbs(distance.x()) >= qAbs(distance.y()) ? Drag::Time : Drag::Value;
    if (m_drag == Drag::Time)
        emit timeDragged(distance.x());
    else if (m_drag == Drag::Value)
        emit valueDragged(distance.y());
    return true;
}

bool OsziRowInput::release(const QMouseEvent &event)
{
    if (m_drag == Drag::None)
        return false;
    if (event.button() == m_button)
        m_drag = Drag::None;
    return true;
}

bool OsziRowInput::key(const QKeyEvent &event)
{
    if (readOutKey(event))
        return true;
    switch (event.key()) {
    case Qt::Key_Left:
        emit timeStepped(-1);
        return true;
    case Qt::Key_Right:
        emit timeStepped(1);
        return true;
    case Qt::Key_Up:
        emit valueStepped(1);
        return true;
    case Qt::Key_Down:
        emit valueStepped(-1);
        return true;
    case Qt::Key_Home:
        emit jumpedToStart();
        return true;
    case Qt::Key_End:
        emit jumpedToEnd();
        return true;
    case Qt::Key_F:
        emit fitRequested();
        return true;
    case Qt::Key_Escape:
        emit cancelled();
        return true;
    default:
        return zoomKey(event);
    }
}

bool OsziRowInput::readOutKey(const QKeyEvent &event)
{
    const bool later = event.key() == Qt::Key_Right;
    if (!event.modifiers().testFlag(Qt::ControlModifier) || !(later || event.key() == Qt::Key_Left))
        return false;
    const int samples = event.modifiers().testFlag(Qt::ShiftModifier) ? kReadOutLeap : 1;
    emit readOutStepped(later ? samples : -samples);
    return true;
}

bool OsziRowInput::zoomKey(const QKeyEvent &event)
{
    const bool nearer = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
    if (!nearer && event.key() != Qt::Key_Minus)
        return false;
    const QPoint centre = m_plot->contentsRect().center(); // of the widget; the plot area begins at its left margin
    if (event.modifiers().testFlag(Qt::ControlModifier))
        emit valueZoomed(centre.y(), nearer ? 1 : -1);
    else
        emit timeZoomed(centre.x() + OsziWidget::kLeftMargin / 2, nearer ? 1 : -1);
    return true;
}
