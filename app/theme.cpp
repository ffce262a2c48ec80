#include "app/theme.h"

namespace theme {

QString deviceAddress()
{
    const QString fromEnvironment = qEnvironmentVariable("VENTARO_DEVICE_ADDRESS").trimmed();
    return fromEnvironment.isEmpty() ? defaultDeviceAddress : fromEnvironment;
}

} // namespace theme
