// What stands behind a mirk_handle of this runtime.
#pragma once

#include <array>
#include <cerrno>
#include <cstring>
#include <map>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/contract/address_table.hpp"
#include "platform/contract/contract.hpp"

namespace mirk {

constexpr uint8_t oid_mapped = 1;
constexpr uint8_t embedded = 2;
constexpr uint8_t nested = 4;
constexpr uint8_t state_tracked = 8;
constexpr uint8_t modified = 16;  // the schema libraries leave this bit to the runtime
constexpr uint8_t has_ra_data = 32;
constexpr uint8_t has_sttr_offset = 64;

constexpr uint32_t type_magic = 0xbeeff00d;
constexpr uint32_t tracking_off = 0xdddd;
constexpr uint32_t tracking_on = 0xeeee;

using Luid = std::array<uint8_t, 16>;

inline Luid luid_from(const uint8_t *bytes) {
    Luid luid;
    std::memcpy(luid.data(), bytes, luid.size());
    return luid;
}

struct LuidHash {
    // A luid is a digest already; its first bytes are as good as any.
    size_t operator()(const Luid &luid) const {
        size_t word;
        std::memcpy(&word, luid.data(), sizeof word);
        return word;
    }
};

struct AllocationFailure {
    uint64_t calls = 0, nth = 0;
    bool onwards = false;

    bool next() {
        ++calls;
        if (nth == 0 || --nth != 0) return false;
        if (onwards) nth = 1;
        return true;
    }
};

struct OperationFailure {
    uint64_t calls = 0;
    uint32_t skip = 0, count = 0, number = 0;

    // 0, or the number to fail with.
    uint32_t next() {
        ++calls;
        if (count == 0) return 0;
        if (skip != 0) {
            --skip;
            return 0;
        }
        --count;
        return number;
    }
};

struct Block {
    size_t size;
    uint64_t serial;
    uint32_t ctx_id;
    bool has_offsets;  // room for the state offsets of objects in it is reserved
};

struct RaData {
    void *value;
    uint8_t byte;
};

struct OidMapping {
    void *object;
    uint32_t references;
    bool condemned;
    mirk_platform_object_destroy destroy;
};

struct References {
    std::unordered_map<const void *, OidMapping> mappings;     // by oid
    std::map<uintptr_t, void *> oid_of;                        // by object
    std::map<uintptr_t, std::vector<void *>> held_by_address;  // by ip_address
    uintptr_t last_oid = 0;

    void forget(const void *block, size_t size) {
        if (!oid_of.empty() || !held_by_address.empty()) forget_known(block, size);
    }
    void forget_known(const void *block, size_t size);
};

struct TextHash {
    using is_transparent = void;
    size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};

struct DispatchEntry {
    mirk_dispatch_info info;
    mirk_platform_message message;
};

struct Handle : mirk_handle {
    mirk_sttr_desc descriptor{};
    std::string domain_text;
    bool lenient = false;
    bool suppress_messages = false;
    std::unique_ptr<char[]> workspace;

    AddressMap<Block, 16> blocks;
    uint64_t live_bytes = 0, blocks_made = 0, request_ceiling = 0, total_ceiling = 0;
    int fresh_fill = -1;
    std::vector<void *> system_blocks;  // whatever lives as long as the handle

    std::unordered_map<Luid, int8_t, LuidHash> variants;
    std::unordered_map<Luid, bool, LuidHash> messages;
    std::unordered_map<std::string, mirk_type_info_copy *, TextHash, std::equal_to<>> types;
    struct RecentType {
        const mirk_type_info *type;
        mirk_type_info_copy *copy;
        Luid luid;
    };
    std::array<RecentType, 256> recent_types{};

    ObjectTable<uint32_t> offsets;
    ObjectTable<RaData> ra_data;
    References references;
    AddressMap<bool> changed_integers;

    std::unordered_map<Luid, std::unique_ptr<DispatchEntry>, LuidHash> dispatch_table;
    DispatchEntry *in_dispatch = nullptr;

    std::array<AllocationFailure, 4> allocation_failures;  // the third is process-wide and lies elsewhere
    std::array<OperationFailure, MIRK_PLATFORM_TESTING_OPERATIONS> operation_failures;
    mirk_platform_testing_hook hook = nullptr;
    void *hook_user = nullptr;

    void event(mirk_platform_testing_event_kind kind, const void *address, uint64_t size, int64_t value,
               uint32_t ctx_id) {
        if (hook == nullptr) return;
        const mirk_platform_testing_event what{kind, const_cast<void *>(address), size, value, ctx_id};
        hook(hook_user, this, &what);
    }
    uint32_t failure(mirk_platform_testing_operation operation) {
        return operation_failures[static_cast<size_t>(operation)].next();
    }
};

inline Handle *own(mirk_handle *h) { return static_cast<Handle *>(h); }

inline bool tracks(const mirk_handle *h) { return h->sttr_desc != nullptr && h->sttr_desc->sttr_mode == tracking_on; }

// memory.cpp
extern "C" int mirk_own_write_notify(void *mem_ctx, void *address, size_t size, uint32_t ctx_id);
extern "C" int mirk_own_count_notify(void *mem_ctx, uint64_t *address, int64_t delta, uint32_t ctx_id);
void memory_callbacks(Handle &handle);
void *keep_for_life(Handle &handle, size_t size);  // zeroed; null without memory

// Programs may put notifications of their own into a handle. Ours only pass on to the hook.
inline bool is_heard(const mirk_handle *h) {
    return h->write_notify != mirk_own_write_notify || h->count_notify != mirk_own_count_notify ||
           static_cast<const Handle *>(h)->hook != nullptr;
}
inline void announce(mirk_handle *h, uint32_t ctx_id, void *member, size_t size) {
    if (is_heard(h)) h->write_notify(h->mem_ctx, member, size, ctx_id);
}

// Where the domain says nothing of any type, and nobody hears that it is asked, each variant is 0. The look-up counts.
inline bool looks_up_nothing(Handle &handle) {
    OperationFailure &failure = handle.operation_failures[MIRK_PLATFORM_TESTING_VARIANT_LOOKUP];
    if (failure.count != 0 || handle.hook != nullptr) return false;
    if (!static_cast<const Handle *>(handle.domain.opaque[0])->variants.empty()) return false;
    ++failure.calls;
    return true;
}

// types.cpp
void type_store_callbacks(Handle &handle);
void count(mirk_handle *h, uint32_t ctx_id, mirk_type_info *type, uint64_t *counter, int64_t delta, bool heard);
mirk_variant_entry *variant_entry(mirk_type_info *type, int8_t variant);  // of a negative variant too
void runtime_types_initialize(mirk_handle *h, uint32_t ctx_id, uint32_t *err);

// The record that an object of the runtime's own types points to.
inline mirk_type_info *bind_type(mirk_handle *h, uint32_t ctx_id, mirk_type_info *type) {
    return h->private_types != 0 ? mirk_type_info_ptr_get(h, ctx_id, type, runtime_types_initialize) : type;
}

// embedded.cpp: what booleans and addresses share
void set_header(mirk_handle *h, uint32_t ctx_id, mirk_object *object, mirk_type_info *type, uint32_t notify,
                uint8_t flags, uint32_t *err);
void count_created(mirk_handle *h, uint32_t ctx_id, mirk_object *object, uint32_t *err);
void set_embedded(mirk_handle *h, uint32_t ctx_id, mirk_object *object);

// bundles.cpp
bool list_empty(const mirk_list_head &head);
void file_received(Handle &handle, const DispatchEntry &entry, void *message, uint32_t ctx_id, uint32_t *err);

// recorder.cpp: whether the next question of this thread finds the recorder off
void skip_next_recording(bool skip);

// trace lines of the runtime itself
uint16_t trace_module();
[[noreturn]] void fatal(const char *line);

// Runs what may throw and turns the exception into a number.
template <typename Work>
mirk_platform_error guarded(Work work) noexcept {
    try {
        return work();
    } catch (const std::bad_alloc &) {
        return ENOMEM;
    } catch (...) {
        return EIO;
    }
}

}  // namespace mirk
