#include "controller/logging.h"

Q_LOGGING_CATEGORY(lcController, "ventaro.controller")
