#pragma once

#include "diag/debug_log.h"

namespace diag {

/// Writes "{" when an operation begins and "}" on every way out of it. With the log off it costs two
/// tests at the beginning and none of its arguments is looked at.
class TraceScope
{
public:
    TraceScope(const char *selector, int line) : selector_(selector), line_(line)
    {
        if (isInfoEnabled())
            LogInfoBody(selector_, line_, "{");
    }
    ~TraceScope()
    {
        if (isInfoEnabled())
            LogInfoBody(selector_, line_, "}");
    }
    TraceScope(const TraceScope &) = delete;
    TraceScope &operator=(const TraceScope &) = delete;

private:
    const char *selector_;
    int line_;
};

} // namespace diag

/// First line of a traced operation: KV_TRACE("-[MainPDE2 willShow]");
#define KV_TRACE(selector) const ::diag::TraceScope kvTraceScope((selector), __LINE__)
