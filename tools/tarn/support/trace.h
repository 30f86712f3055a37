// Trace output of the process.
#pragma once

#include "tools/tarn/support/log.h"

namespace tarn::tool {

// Registers the trace modules of the library. Verbose enables all levels, on standard error; otherwise only fatal
// errors are printed, unless the environment says more. May be called again.
void set_up_trace(bool verbose);

// Sends trace lines to a log during its lifetime. Create it after set_up_trace().
class TraceToLog {
public:
    explicit TraceToLog(Log &log);
    TraceToLog(const TraceToLog &) = delete;
    TraceToLog &operator=(const TraceToLog &) = delete;
    ~TraceToLog();
};

}  // namespace tarn::tool
