#include "simulator/inputwatch.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>

InputWatch::InputWatch()
    : m_reader(QThread::create([] {
        while (std::fgetc(stdin) != EOF) {
        }
        QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
    }))
{
    m_reader->start();
}

InputWatch::~InputWatch()
{
    m_reader->wait();
}
