#include "controller/project/fileprogress.h"

#include "model/model.h"
#include "view/window/view.h"

#include <QCoreApplication>

namespace {

// Interval in ms between two checks whether an export is over: nothing reports its end.
constexpr int kIdleCheck = 200;

} // namespace

FileProgress::FileProgress(View &view, Model &model)
    : m_model(model)
    , m_bar(new QProgressBar)
{
    m_bar->hide();
    view.addStatusWidget(m_bar);
    m_idleTimer.setSingleShot(true);
    m_idleTimer.setInterval(kIdleCheck);
    connect(&m_idleTimer, &QTimer::timeout, this, &FileProgress::hideWhenIdle);
    m_model.setYield([this](int percent) { show(percent); });
}

FileProgress::~FileProgress()
{
    m_model.setYield({});
    delete m_bar;
}

void FileProgress::begin(const QString &text, int files)
{
    m_done = 0;
    m_files = files;
    m_bar->setFormat(text);
    m_bar->setValue(0);
    m_bar->show();
    emit begun();
}

void FileProgress::end()
{
    m_done = 0;
    m_files = 1;
    m_bar->hide();
}

void FileProgress::show(int percent)
{
    if (m_bar->isHidden()) { // an export, which did not call begin()
        m_bar->setFormat(tr("Saving..."));
        m_bar->show();
        m_idleTimer.start();
    }
    m_bar->setValue((100 * m_done + percent) / m_files);
    QCoreApplication::processEvents();
}

void FileProgress::hideWhenIdle()
{
    if (m_model.isBusy())
        m_idleTimer.start();
    else
        m_bar->hide();
}
