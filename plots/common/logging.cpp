#include "plots/common/logging.h"

Q_LOGGING_CATEGORY(lcPlots, "ventaro.plots")

void logIndexError(int index)
{
    qCDebug(lcPlots).nospace() << " ERROR: index out of range! (" << index << ")";
}
