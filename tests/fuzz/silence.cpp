#include "tests/fuzz/fuzz.h"

#include <QLoggingCategory>

// Log lines would be most of the work.
extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}
