#include "diag/trace.h"

#include "diag/formatted.h"

namespace diag {

void writeTrace(Selector selector, int line, const char *brace)
{
    if (!selector.className)
        LogInfoBody(selector.operation, line, "%s", brace);
    else
        LogInfoBody(formatted("-[%s %s]", selector.className, selector.operation).c_str(), line,
                    "%s", brace);
}

} // namespace diag
