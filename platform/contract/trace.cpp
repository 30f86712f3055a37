// The trace library: modules, levels, the sink, and capture of lines for tests.
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <string_view>

#include "platform/contract/text.hpp"

namespace {

constexpr uint32_t default_levels = 1u << 0 | 1u << 3;

struct Line {
    uint16_t module_id;
    uint32_t level;
    std::string text;
};

// Never destroyed, since destructors of static objects also trace.
struct Trace {
    std::mutex lock;       // protects the members below except the sink
    std::mutex sink_lock;  // protects the sink; held while it runs
    std::map<std::string, uint16_t, std::less<>> modules;
    std::deque<std::string> names;
    mirk_platform_trace_sink sink = nullptr;
    void *sink_user = nullptr;
    std::atomic<uint32_t> levels{default_levels};
    std::atomic<bool> capturing{false};
    std::deque<Line> captured;

    Trace() {
        uint32_t mask = 0;
        if (mirk_platform_trace_parse_levels(std::getenv("MIRK_TRACE"), &mask) == 0) levels = mask;
    }
};

Trace &trace() {
    static Trace *const the_trace = new Trace;
    return *the_trace;
}

thread_local bool inside_sink = false;

void to_standard_error(uint16_t module_id, const char *line) {
    std::fprintf(stderr, "%s: %s\n", mirk_platform_trace_module_name(module_id), line);
}

void emit(uint16_t module_id, uint32_t level, const char *line) {
    if (inside_sink) return;
    Trace &t = trace();
    const std::lock_guard<std::mutex> hold(t.sink_lock);
    inside_sink = true;
    if (t.sink != nullptr) {
        t.sink(t.sink_user, module_id, level, line);
    } else {
        to_standard_error(module_id, line);
    }
    inside_sink = false;
}

void write_line(uint16_t module_id, uint32_t level, const char *line) {
    Trace &t = trace();
    if (t.capturing) {
        const std::lock_guard<std::mutex> hold(t.lock);
        t.captured.push_back({module_id, level, line});
        if (level != 0) return;
    }
    if (level < 32 && (t.levels >> level & 1u) != 0) emit(module_id, level, line);
}

}  // namespace

extern "C" {

void skald_wrapper(uint16_t module_id, uint32_t level, uint32_t, const char *format, ...) {
    // Most lines have levels that are not selected; they are not formatted.
    const Trace &t = trace();
    if (!t.capturing && (level >= 32 || (t.levels >> level & 1u) == 0)) return;
    char text[1024];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    if (length < 0) return;
    const auto size = static_cast<size_t>(length);
    try {
        if (size < sizeof text) {
            write_line(module_id, level, text);
            return;
        }
        std::string longer(size, '\0');
        va_start(arguments, format);
        std::vsnprintf(longer.data(), size + 1, format, arguments);
        va_end(arguments);
        write_line(module_id, level, longer.c_str());
    } catch (...) {
        // If allocation fails, the line is lost.
    }
}

[[gnu::noinline]] static void register_module(const char *name, uint16_t *module_id, uint64_t *module_state) {
    Trace &t = trace();
    try {
        const std::lock_guard<std::mutex> hold(t.lock);
        auto found = t.modules.find(std::string_view(name));
        if (found == t.modules.end() && t.names.size() < UINT16_MAX) {
            t.names.emplace_back(name);
            found = t.modules.emplace(name, static_cast<uint16_t>(t.names.size())).first;
        }
        const uint16_t id = found != t.modules.end() ? found->second : uint16_t{0};
        // Threads read the identifier without a lock after they have registered the module, so it is written only once.
        if (module_id != nullptr && *module_id != id) __atomic_store_n(module_id, id, __ATOMIC_RELAXED);
        if (module_state != nullptr) __atomic_store_n(module_state, id, __ATOMIC_RELEASE);
    } catch (...) {
        return;
    }
}

// Libraries register their module each time they create an object. The runtime keeps the assigned identifier in the
// module state, to return early.
void skald_module_init_fn(const char *name, uint16_t *module_id, uint64_t *module_state) {
    if (module_id != nullptr && module_state != nullptr) {
        const uint64_t known = __atomic_load_n(module_state, __ATOMIC_ACQUIRE);
        if (known != 0 && __atomic_load_n(module_id, __ATOMIC_RELAXED) == known) return;
    }
    register_module(name, module_id, module_state);
}

void mirk_platform_trace_set_sink(mirk_platform_trace_sink sink, void *user) {
    Trace &t = trace();
    const std::lock_guard<std::mutex> hold(t.sink_lock);
    t.sink = sink;
    t.sink_user = user;
}

void mirk_platform_trace_set_levels(uint32_t mask) { trace().levels = mask; }

uint32_t mirk_platform_trace_levels(void) { return trace().levels; }

mirk_platform_error mirk_platform_trace_parse_levels(const char *text, uint32_t *mask) {
    if (text == nullptr) return EINVAL;
    std::string_view rest = mirk::trimmed(text);
    uint32_t parsed = 0;
    if (rest == "all") {
        parsed = ~uint32_t{0};
    } else if (rest != "none") {
        for (bool more = true; more;) {
            const size_t comma = rest.find(',');
            uint32_t level = 0;
            if (!mirk::parse_decimal(mirk::trimmed(rest.substr(0, comma)), &level) || level > 31) return EINVAL;
            parsed |= 1u << level;
            more = comma != std::string_view::npos;
            if (more) rest.remove_prefix(comma + 1);
        }
    }
    *mask = parsed;
    return 0;
}

const char *mirk_platform_trace_module_name(uint16_t module_id) {
    Trace &t = trace();
    const std::lock_guard<std::mutex> hold(t.lock);
    return module_id == 0 || module_id > t.names.size() ? "?" : t.names[module_id - 1u].c_str();
}

void mirk_platform_testing_capture_start(void) {
    mirk_platform_testing_capture_clear();
    trace().capturing = true;
}

void mirk_platform_testing_capture_stop(void) { trace().capturing = false; }

void mirk_platform_testing_capture_clear(void) {
    const std::lock_guard<std::mutex> hold(trace().lock);
    trace().captured.clear();
}

size_t mirk_platform_testing_captured(void) {
    const std::lock_guard<std::mutex> hold(trace().lock);
    return trace().captured.size();
}

const char *mirk_platform_testing_captured_line(size_t index, uint16_t *module_id, uint32_t *level) {
    const std::lock_guard<std::mutex> hold(trace().lock);
    if (index >= trace().captured.size()) return nullptr;
    const Line &line = trace().captured[index];
    if (module_id != nullptr) *module_id = line.module_id;
    if (level != nullptr) *level = line.level;
    return line.text.c_str();
}

}  // extern "C"
