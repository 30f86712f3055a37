// Shared by the tests of messages: message objects as they are in memory, control messages, payloads, handlers.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/bridge.h"
#include "kit/buffer.h"
#include "kit/events.h"
#include "kit/handle.h"
#include "kit/trace.h"
#include "lumo_ui_tarn.h"
#include "reference/codec.h"
#include "reference/lengths.h"
#include "reference/tables.h"
#include "reference/text.h"
#include "tools/reflect/operations.h"

namespace messaging {

using bridge::id;
using kit::Buffer;
using kit::Events;
using kit::every_tracking;
using kit::Handle;
using kit::Lines;
using kit::Tracking;
using reference::Bytes;
using tarn::reflect::BundleOperations;
using tarn::reflect::MessageOperations;
using tarn::reflect::RecordOperations;

// A message object; clients only know the name of its type.
struct Message {
    mirk_type_info *tinfo;
    std::int8_t variant, home_variant;
    std::uint8_t obj_flag;
    mirk_message_header header;
    void *payload;
};
static_assert(sizeof(Message) == 40 && offsetof(Message, header) == 12 && offsetof(Message, payload) == 32);

inline Message *object(void *message) { return static_cast<Message *>(message); }
inline const RecordOperations &payload_of(const MessageOperations &m) {
    return tarn::reflect::operations_of(m.message->payload);
}
inline std::string payload_name(const MessageOperations &m) { return std::string(m.message->payload.name); }
inline mirk_variant_entry counters(const MessageOperations &m) { return m.type->variant_info->entries[0]; }

constexpr std::uint8_t state_tracked = 8;
constexpr std::uint32_t header_size = 27, frame_head = 43;

// ---- control messages ----

struct Control {
    const BundleOperations *bundle;
    std::string_view kind;
    const MessageOperations *operations;

    const MessageOperations *operator->() const { return operations; }
    std::string bundle_name() const { return std::string(bundle->bundle->name); }
};

inline std::vector<Control> controls() {
    std::vector<Control> all;
    for (const BundleOperations &b : tarn::reflect::bundles()) {
        all.push_back({&b, "start", &b.start});
        all.push_back({&b, "abort", &b.abort});
        all.push_back({&b, "commit", &b.commit});
    }
    return all;
}

// ---- payloads and buffers ----

constexpr reference::GeneratorOptions small{
    .min_elements = 1, .max_elements = 1, .min_text = 1, .max_text = 5, .budget = 2000};

inline reference::Record sample(const MessageOperations &m, std::uint64_t seed = 1,
                                const reference::GeneratorOptions &options = small) {
    return reference::Generator(seed, options).make(m.message->payload.name);
}

// A message with this value as its payload.
inline void *make(mirk_handle *h, const MessageOperations &m, const reference::Record &value) {
    void *message = m.create(h, id);
    bridge::fill(h, payload_of(m), object(message)->payload, value);
    return message;
}

inline Bytes frame_of(const MessageOperations &m, const reference::Record &value, bool tracked,
                      std::uint32_t stamp = 0) {
    return reference::message_frame(m.name, value, tracked, stamp);
}

// ---- trace ----

inline std::string error_text(std::uint32_t number) { return std::strerror(static_cast<int>(number)); }

// Captures the trace of the library's own modules.
struct Messaging : testing::Test {
    void SetUp() override {
        // The library never registers the module of its stubs; a process may.
        static std::uint64_t state;
        skald_module_init_fn("mirk_lumo_ui_tarn_stub", &g_mirk_lumo_ui_tarn_stub_trace_module_id, &state);
    }
    void TearDown() override { mirk_platform_recorder_set(0, nullptr); }

    // The lines that were traced since the last call.
    Lines traced() const {
        const Lines lines = trace.of_the_library();
        trace.clear();
        return lines;
    }

    kit::Trace trace;
    std::uint32_t err = 0;
};

// The static objects that replace null after an error.
inline void *sentinel_of(const MessageOperations &m) {
    Handle h;
    h->last_error = EINVAL;
    return m.create_cr(h);
}

// ---- calls of handlers ----

struct HandlerCall {
    std::string handler;
    mirk_handle *h = nullptr;
    std::uint32_t ctx_id = 0;
    void *dispatch_ctx = nullptr, *message = nullptr;
    std::uint32_t *slot = nullptr;
    std::uint32_t err = 0;  // value of the slot on entry
};
inline std::vector<HandlerCall> handler_calls;

inline void on_message(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, void *message, std::uint32_t *err) {
    handler_calls.push_back({"message", h, ctx_id, dispatch_ctx, message, err, *err});
}
template <char Name>
void on_bundle(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, std::uint32_t *err) {
    handler_calls.push_back({std::string(1, Name), h, ctx_id, dispatch_ctx, nullptr, err, *err});
}

// ---- dispatcher ----

inline void register_message(mirk_handle *h, const MessageOperations &m, mirk_message_handler handler = nullptr) {
    const mirk_platform_message entry{m.luid,
                                      m.name,
                                      m.unmarshal,
                                      m.message != nullptr ? m.unmarshal_only : nullptr,
                                      m.message != nullptr ? m.destroy : nullptr,
                                      handler};
    ASSERT_EQ(mirk_platform_dispatch_register(h, &entry), 0u);
}
inline void register_all(mirk_handle *h, mirk_message_handler handler = nullptr) {
    for (const MessageOperations &m : tarn::reflect::messages()) register_message(h, m, handler);
    for (const Control &c : controls()) register_message(h, *c.operations);
}

}  // namespace messaging
