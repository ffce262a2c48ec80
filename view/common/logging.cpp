#include "view/common/logging.h"

Q_LOGGING_CATEGORY(lcView, "ventaro.view")
