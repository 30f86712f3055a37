// Handles, captured trace, type records and guarded buffers for tests of the reference runtime.
#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "kit/document.h"
#include "kit/events.h"
#include "kit/handle.h"
#include "mirk_platform_testing.h"

namespace test {

// Allocates as a library does.
class Handle : public kit::Handle {
public:
    using kit::Handle::Handle;

    void *alloc(size_t size, uint32_t ctx_id = 7) { return get()->obj_alloc(get()->mem_ctx, ctx_id, size); }
    void free(void *p, uint32_t ctx_id = 7) { get()->obj_free(get()->mem_ctx, ctx_id, p); }
};

struct Trace {
    Trace() { mirk_platform_testing_capture_start(); }
    ~Trace() { mirk_platform_testing_capture_stop(); }

    static size_t lines() { return mirk_platform_testing_captured(); }
    static bool has(uint32_t level, const std::string &part) {
        uint32_t found = 0;
        for (size_t i = 0; const char *line = mirk_platform_testing_captured_line(i, nullptr, &found); ++i) {
            if (found == level && std::string(line).find(part) != std::string::npos) return true;
        }
        return false;
    }
};

inline mirk_type_info make_type(uint8_t id, mirk_variant_info *variants = nullptr) {
    mirk_type_info type{};
    type.magic = 0xbeeff00d;
    for (size_t i = 0; i < 16; ++i) {
        type.luid[i] = static_cast<uint8_t>(id + i);
        std::snprintf(type.luid_text + 2 * i, 3, "%02x", unsigned{type.luid[i]});
    }
    type.reserved_index = -1;
    type.variant_info = variants;
    return type;
}

// A buffer between bytes that must not change.
template <size_t Size>
class Guarded {
public:
    Guarded() { std::memset(bytes_, 0x5c, sizeof bytes_); }
    char *at() { return bytes_ + 8; }
    bool intact_after(size_t used) const {
        for (size_t i = 0; i < 8; ++i) {
            if (bytes_[i] != 0x5c) return false;
        }
        for (size_t i = 8 + used; i < sizeof bytes_; ++i) {
            if (bytes_[i] != 0x5c) return false;
        }
        return true;
    }

private:
    char bytes_[Size + 16];
};

}  // namespace test
