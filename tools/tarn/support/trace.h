// Trace output of the process.
#pragma once

namespace tarn::tool {

// Registers the trace modules of the library. Verbose enables all levels, on standard error.
void set_up_trace(bool verbose);

}  // namespace tarn::tool
