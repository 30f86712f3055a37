// Handles that close themselves, a log of what was asked of one, captured trace.
#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "mirk_platform_testing.h"

namespace test {

using Event = mirk_platform_testing_event;

struct Options : mirk_platform_handle_options {
    Options() { mirk_platform_handle_options_init(this); }
};

inline Options tracked() {
    Options options;
    options.tracking = MIRK_PLATFORM_TRACKING_ON;
    return options;
}

class Handle {
public:
    explicit Handle(const Options &options = {}) : h_(mirk_platform_handle_open(&options)) {}
    ~Handle() { EXPECT_EQ(mirk_platform_handle_close(h_), expected_leftovers); }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;
    operator mirk_handle *() const { return h_; }
    mirk_handle *operator->() const { return h_; }

    void *alloc(size_t size, uint32_t ctx_id = 7) { return h_->obj_alloc(h_->mem_ctx, ctx_id, size); }
    void free(void *p, uint32_t ctx_id = 7) { h_->obj_free(h_->mem_ctx, ctx_id, p); }

    size_t expected_leftovers = 0;

private:
    mirk_handle *h_;
};

class Log {
public:
    explicit Log(mirk_handle *h) : h_(h) { mirk_platform_testing_set_hook(h, note, &events); }
    ~Log() { mirk_platform_testing_set_hook(h_, nullptr, nullptr); }

    std::vector<Event> of(mirk_platform_testing_event_kind kind) const {
        std::vector<Event> found;
        for (const Event &event : events) {
            if (event.kind == kind) found.push_back(event);
        }
        return found;
    }

    std::vector<Event> events;

private:
    static void note(void *user, mirk_handle *, const Event *event) {
        static_cast<std::vector<Event> *>(user)->push_back(*event);
    }
    mirk_handle *h_;
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

class Document {
public:
    explicit Document(const std::string &text)
        : document_(mirk_platform_document_load_memory(text.data(), text.size(), &report)) {}
    ~Document() { mirk_platform_document_free(document_); }
    Document(const Document &) = delete;
    Document &operator=(const Document &) = delete;
    operator void *() const { return document_; }

    mirk_platform_report report{};

private:
    void *document_;
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

// A buffer with guard bytes on both sides of what is offered.
template <size_t Size>
class Guarded {
public:
    Guarded() { std::memset(bytes_, 0x5c, sizeof bytes_); }
    char *at() { return bytes_ + 8; }
    bool intact_behind(size_t used) const {
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
