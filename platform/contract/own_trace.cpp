// Trace lines of the runtime itself.
#include "platform/contract/handle.hpp"

namespace mirk {

uint16_t trace_module() {
    static const uint16_t id = [] {
        uint16_t made = 0;
        skald_module_init_fn("mirk_runtime", &made, nullptr);
        return made;
    }();
    return id;
}

void fatal(const char *line) {
    skald_wrapper(trace_module(), 0, 0, "%s", line);
    std::abort();
}

}  // namespace mirk
