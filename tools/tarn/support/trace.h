// Trace lines of the process.
#pragma once

namespace tarn::tool {

// Names the modules of the library. With verbose every level goes to standard error.
void set_up_trace(bool verbose);

}  // namespace tarn::tool
