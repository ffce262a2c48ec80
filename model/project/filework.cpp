#include "model/project/filework.h"

#include "model/logging.h"

#include <QCoreApplication>
#include <QDebug>

void FileWork::setYield(const Yield &yield)
{
    if (yield)
        m_yield = yield;
    else
        m_yield = [](int) { QCoreApplication::processEvents(); };
}

bool FileWork::refuses(const char *function) const
{
    if (m_busy)
        qCDebug(lcModel).noquote().nospace() << function << " ERROR: refused while a file is read or written!";
    return m_busy;
}

void FileWork::logOutOfMemory(const char *function)
{
    qCDebug(lcModel).noquote().nospace() << function << " ERROR: out of memory!";
}
