#include "model/projectdata.h"

#include <QDebug>

#include <tuple>

namespace {

auto fields(const ProjectData &data)
{
    return std::tie(data.name, data.number, data.user, data.date, data.customer, data.closingForce, data.injectionTime,
                    data.pressTime, data.pressure);
}

} // namespace

// The bracket stays open, as it always was in the log.
QString ProjectData::toDebugText() const
{
    return QStringLiteral("[name=") + name + QStringLiteral(" number=") + number + QStringLiteral(" user=") + user
           + QStringLiteral(" date=") + date + QStringLiteral(" customer=") + customer
           + QStringLiteral(" closingForce=") + QString::number(closingForce) + QStringLiteral(" injectionTime=")
           + QString::number(injectionTime) + QStringLiteral(" pressTime=") + QString::number(pressTime)
           + QStringLiteral(" pressure=") + QString::number(pressure);
}

bool operator==(const ProjectData &a, const ProjectData &b)
{
    return fields(a) == fields(b);
}

bool operator!=(const ProjectData &a, const ProjectData &b)
{
    return !(a == b);
}

QDebug operator<<(QDebug debug, const ProjectData &data)
{
    const QDebugStateSaver saver(debug);
    debug.noquote() << data.toDebugText();
    return debug;
}
