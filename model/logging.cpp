#include "model/logging.h"

Q_LOGGING_CATEGORY(lcModel, "ventaro.model")
