// Captures the trace of a test.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "lumo_ui_tarn.h"
#include "mirk_platform.h"
#include "mirk_platform_testing.h"

namespace kit {

using Lines = std::vector<std::string>;

// All lines of all levels during its lifetime. Only those of level 0 also go to standard error.
class Trace {
public:
    Trace() {
        // Not every test creates an instance or a message first, which registers the modules.
        mirk_lumo_ui_tarn_type_trace_init();
        mirk_lumo_ui_tarn_message_trace_init();
        mirk_platform_testing_capture_start();
    }
    ~Trace() { mirk_platform_testing_capture_stop(); }
    Trace(const Trace &) = delete;
    Trace &operator=(const Trace &) = delete;

    // Each as "<module> <level> <text>", such as "type 3 (ERR): ...". A module of the library reads as its name without
    // the common prefix.
    Lines lines() const { return lines(false); }
    // Only the library's own lines.
    Lines of_the_library() const { return lines(true); }
    void clear() const { mirk_platform_testing_capture_clear(); }

private:
    static Lines lines(bool own_only) {
        const std::string prefix = "mirk_lumo_ui_tarn_";
        Lines result;
        for (std::size_t i = 0; i < mirk_platform_testing_captured(); ++i) {
            std::uint16_t module = 0;
            std::uint32_t level = 0;
            const char *text = mirk_platform_testing_captured_line(i, &module, &level);
            std::string name = mirk_platform_trace_module_name(module);
            const bool own = name.starts_with(prefix);
            if (own) name.erase(0, prefix.size());
            if (own || !own_only) result.push_back(name + " " + std::to_string(level) + " " + text);
        }
        return result;
    }
};

}  // namespace kit
