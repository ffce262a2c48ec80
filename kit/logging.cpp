#include "kit/logging.h"

Q_LOGGING_CATEGORY(lcKit, "ventaro.kit")
