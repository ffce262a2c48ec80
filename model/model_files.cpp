#include "model/indexcheck.h"
#include "model/model.h"

bool Model::open(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " filename=" << fileName;
    return false;
}

bool Model::save(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " filename=" << fileName;
    return false;
}

bool Model::saveCsv(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " filename=" << fileName;
    return false;
}
