#include "plots/common/logging.h"

Q_LOGGING_CATEGORY(lcPlots, "ventaro.plots")
