#pragma once

#include <QByteArray>
#include <QIODevice>

/// Takes a number of bytes and then no more, as a full disk does: the write that passes the limit falls short.
class FailDevice : public QIODevice
{
public:
    explicit FailDevice(qint64 limit)
        : m_limit(limit)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    [[nodiscard]] QByteArray taken() const { return m_taken; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        const qint64 part = qMin(size, m_limit - m_taken.size());
        if (part <= 0 && size > 0)
            return -1;
        m_taken.append(data, static_cast<int>(part));
        return part;
    }

private:
    qint64 m_limit;
    QByteArray m_taken;
};
