#include "app/logging.h"

Q_LOGGING_CATEGORY(lcApp, "ventaro.app")
