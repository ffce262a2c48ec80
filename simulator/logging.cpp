#include "simulator/logging.h"

Q_LOGGING_CATEGORY(lcSimulator, "ventaro.simulator")
