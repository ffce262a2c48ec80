#include "model/indexcheck.h"

#include "model/logging.h"

#include <QDebug>

bool isIndex(int index, std::size_t count, const char *function)
{
    if (index >= 0 && static_cast<std::size_t>(index) < count)
        return true;
    qCDebug(lcModel).noquote().nospace() << function << " ERROR: index out of range! (" << index << ")";
    return false;
}
