#include "tools/tarn/support/trace.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "lumo_ui_tarn.h"
#include "mirk_platform.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

std::string shown(std::uint16_t module_id, std::uint32_t level, const char *line) {
    return "trace " + std::string(mirk_platform_trace_module_name(module_id)) + " " + std::to_string(level) + ": " +
           printable(line, 4096);
}

extern "C" void trace_to_standard_error(void *, std::uint16_t module_id, std::uint32_t level, const char *line) {
    std::fprintf(stderr, "%s\n", shown(module_id, level, line).c_str());
}

extern "C" void trace_to_log(void *log, std::uint16_t module_id, std::uint32_t level, const char *line) {
    static_cast<Log *>(log)->line(shown(module_id, level, line));
}

}  // namespace

void set_up_trace(bool verbose) {
    static bool is_registered = false;
    static std::uint64_t stub_state;
    if (!std::exchange(is_registered, true)) {
        mirk_lumo_ui_tarn_type_trace_init();
        mirk_lumo_ui_tarn_message_trace_init();
        skald_module_init_fn("mirk_lumo_ui_tarn_stub", &g_mirk_lumo_ui_tarn_stub_trace_module_id, &stub_state);
    }
    if (verbose) {
        mirk_platform_trace_set_levels(~std::uint32_t{0});
        mirk_platform_trace_set_sink(trace_to_standard_error, nullptr);
    } else if (std::getenv("MIRK_TRACE") == nullptr) {
        // The tool prints errors itself, with their location.
        mirk_platform_trace_set_levels(1);
    }
}

TraceToLog::TraceToLog(Log &log) { mirk_platform_trace_set_sink(trace_to_log, &log); }

TraceToLog::~TraceToLog() { mirk_platform_trace_set_sink(nullptr, nullptr); }

}  // namespace tarn::tool
