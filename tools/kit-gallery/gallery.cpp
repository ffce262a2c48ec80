#include "tools/kit-gallery/gallery.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QHoverEvent>
#include <QLabel>
#include <QMouseEvent>

namespace {

constexpr int kSettlingTime = 700; // ms; longer than any change of look

void wait(int milliseconds)
{
    QElapsedTimer passed;
    passed.start();
    while (!passed.hasExpired(milliseconds))
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
}

QLabel *createCaption(const QString &text, const QString &sheet)
{
    auto *label = new QLabel(text);
    label->setStyleSheet(sheet);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return label;
}

void hover(QWidget *widget)
{
    widget->setAttribute(Qt::WA_UnderMouse);
    const QPointF middle = QRectF(widget->rect()).center();
    QEnterEvent enter(middle, middle, widget->mapToGlobal(middle.toPoint()));
    QApplication::sendEvent(widget, &enter);
    QHoverEvent hoverEnter(QEvent::HoverEnter, middle, QPointF(-1, -1));
    QApplication::sendEvent(widget, &hoverEnter);
}

void press(QWidget *widget)
{
    const QPointF place(widget->width() - 12.0, widget->height() / 2.0); // an arrow, the thumb of a toggle that is on
    QMouseEvent event(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

GalleryPage::GalleryPage(const QString &name, QWidget *parent)
    : QWidget(parent)
    , m_name(name)
    , m_grid(new QGridLayout(this))
{
    setAutoFillBackground(true);
    setPalette(Qt::white);
    m_grid->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_grid->setContentsMargins(20, 12, 20, 20);
    m_grid->setHorizontalSpacing(24);
    m_grid->setVerticalSpacing(0);
}

void GalleryPage::addRow(const QString &title)
{
    m_row += 3; // title, captions, samples
    m_column = 0;
    m_grid->addWidget(createCaption(title, QStringLiteral("QLabel {font: bold 16px; color: #555555;}")), m_row, 0, 1,
                      -1);
}

void GalleryPage::addSample(const QString &caption, QWidget *sample, State state)
{
    m_grid->addWidget(createCaption(caption, QStringLiteral("QLabel {font-size: 13px; min-height: 22px;}")), m_row + 1,
                      m_column);
    m_grid->addWidget(sample, m_row + 2, m_column, Qt::AlignLeft | Qt::AlignTop);
    ++m_column;
    if (state != State::Normal)
        m_forced.append({sample, state});
}

void GalleryPage::force(const Forced &forced) const
{
    switch (forced.state) {
    case State::Hovered:
        hover(forced.sample);
        break;
    case State::Pressed:
        hover(forced.sample);
        press(forced.sample);
        break;
    case State::Focused:
        forced.sample->setFocus(Qt::TabFocusReason);
        break;
    case State::Normal:
        break;
    }
}

// Only one widget can have the focus.
void GalleryPage::replaceByPicture(QWidget *sample)
{
    auto *still = new QLabel;
    still->setPixmap(grab(sample->geometry()));
    still->setFixedSize(sample->size());
    delete m_grid->replaceWidget(sample, still);
    sample->hide();
}

QPixmap GalleryPage::picture()
{
    resize(sizeHint()); // show() alone would limit it to a part of the screen
    show();
    QApplication::setActiveWindow(this);
    wait(50);
    resize(sizeHint()); // again, now that the minimum sizes of the style sheet are known
    for (const Forced &forced : m_forced) {
        force(forced);
        if (forced.state == State::Focused) {
            wait(kSettlingTime);
            replaceByPicture(forced.sample);
        }
    }
    if (QWidget *focused = QApplication::focusWidget())
        focused->clearFocus();
    wait(kSettlingTime);
    const QPixmap result = grab();
    hide();
    return result;
}
