#include "device/logging.h"

Q_LOGGING_CATEGORY(lcDevice, "ventaro.device")
