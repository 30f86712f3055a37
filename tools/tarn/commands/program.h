// The whole program, which the tool and its extension share.
#pragma once

namespace tarn::tool {

// Returns the exit code.
int run_program(int argc, char **argv);

}  // namespace tarn::tool
