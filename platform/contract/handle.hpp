// The runtime's own part of a mirk_handle, and helpers that its sources share.
#pragma once

#include <algorithm>
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
#include "platform/contract/blocks.hpp"
#include "platform/contract/contract.hpp"

namespace mirk {

constexpr uint8_t oid_mapped = 1;
constexpr uint8_t embedded = 2;
constexpr uint8_t nested = 4;
constexpr uint8_t state_tracked = 8;
constexpr uint8_t modified = 16;  // schema libraries do not write this bit
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
    // A luid is a digest, so any of its bytes serve as a hash.
    size_t operator()(const Luid &luid) const {
        size_t word;
        std::memcpy(&word, luid.data(), sizeof word);
        return word;
    }
};

struct AllocationFailure {
    uint64_t calls = 0, nth = 0;
    bool onwards = false;

    bool is_set() const { return nth != 0; }
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

    bool is_set() const { return count != 0; }
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

    void erase_block(uintptr_t begin, size_t size) {
        if (!oid_of.empty() || !held_by_address.empty()) erase_entries(begin, size);
    }
    void erase_entries(uintptr_t begin, size_t size);
};

struct TextHash {
    using is_transparent = void;
    size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};

struct DispatchEntry {
    mirk_dispatch_info info;
    mirk_platform_message message;
};

// Aligned to cache lines, so that threads with handles of their own share none.
struct alignas(64) Handle : mirk_handle {
    explicit Handle(bool use_cells) : mirk_handle{}, blocks(use_cells) {}

    mirk_sttr_desc descriptor{};
    std::string domain_text;
    bool lenient = false;
    bool suppress_messages = false;
    std::unique_ptr<char[]> workspace;

    Blocks blocks;
    uint64_t live_bytes = 0, blocks_made = 0, request_ceiling = 0, total_ceiling = 0, ceiling_refusals = 0;
    int fresh_fill = -1;
    std::vector<void *> system_blocks;  // released when the handle is closed

    std::unordered_map<Luid, int8_t, LuidHash> variants;
    std::unordered_map<Luid, bool, LuidHash> messages;
    std::unordered_map<std::string, mirk_type_info_copy *, TextHash, std::equal_to<>> types;
    struct RecentType {
        const mirk_type_info *type;
        mirk_type_info_copy *copy;
        Luid luid;
    };
    std::array<RecentType, 256> recent_types{};
    // For a library that is compiled as one program with this runtime: the private copies of its types, by its numbers.
    std::array<mirk_type_info *, 64> numbered_types{};

    ObjectTable<uint32_t> offsets;
    ObjectTable<RaData> ra_data;
    References references;
    AddressMap<bool> changed_integers;

    std::unordered_map<Luid, std::unique_ptr<DispatchEntry>, LuidHash> dispatch_table;
    DispatchEntry *in_dispatch = nullptr;

    std::array<AllocationFailure, 4> allocation_failures;  // MIRKLIB_MALLOC is process-wide: see memory.cpp
    std::array<OperationFailure, MIRK_PLATFORM_TESTING_OPERATIONS> operation_failures;
    mirk_platform_testing_hook hook = nullptr;
    void *hook_user = nullptr;
    // True if nothing is set on this handle that can see in which steps an operation works: no hook, no failure to
    // inject, an empty domain, and no address that holds references. Each function that changes one of these calls
    // update_unobserved.
    bool unobserved = true;

    void update_unobserved() {
        const auto fails = [](const auto &failure) { return failure.is_set(); };
        unobserved = hook == nullptr && variants.empty() && references.held_by_address.empty() &&
                     std::none_of(allocation_failures.begin(), allocation_failures.end(), fails) &&
                     std::none_of(operation_failures.begin(), operation_failures.end(), fails);
    }

    void event(mirk_platform_testing_event_kind kind, const void *address, uint64_t size, int64_t value,
               uint32_t ctx_id) {
        if (hook != nullptr) [[unlikely]]
            call_hook(kind, address, size, value, ctx_id);
    }
    // Not inlined, so that callers need no stack frame for the event of a hook that is rarely set.
    [[gnu::noinline, gnu::cold]] void call_hook(mirk_platform_testing_event_kind kind, const void *address,
                                                uint64_t size, int64_t value, uint32_t ctx_id);
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
bool memory_is_checked();                                 // by a memory checker, which should see every block
void *allocate_until_close(Handle &handle, size_t size);  // zeroed; null if allocation fails

// Programs may replace the notification callbacks of a handle. Our own callbacks only call the hook.
inline bool is_observed(const mirk_handle *h) {
    return h->write_notify != mirk_own_write_notify || h->count_notify != mirk_own_count_notify ||
           static_cast<const Handle *>(h)->hook != nullptr;
}
inline void notify_write(mirk_handle *h, uint32_t ctx_id, void *member, size_t size) {
    if (is_observed(h)) h->write_notify(h->mem_ctx, member, size, ctx_id);
}

// True if a look-up of any variant gives 0 and cannot be observed. The skipped look-up is counted.
inline bool skip_variant_lookup(Handle &handle) {
    if (!handle.unobserved || handle.domain.opaque[0] != &handle) return false;
    ++handle.operation_failures[MIRK_PLATFORM_TESTING_VARIANT_LOOKUP].calls;
    return true;
}

// types.cpp
void type_store_callbacks(Handle &handle);
void runtime_types_initialize(mirk_handle *h, uint32_t ctx_id, uint32_t *err);

// bundles.cpp
bool list_empty(const mirk_list_head &head);
void file_received(Handle &handle, const DispatchEntry &entry, void *message, uint32_t ctx_id, uint32_t *err);

// recorder.cpp: whether the next query of this thread reports that the recorder is off
void skip_next_recording(bool skip);
void count_recording_failure(uint32_t number);

// own_trace.cpp: trace lines of the runtime itself
uint16_t trace_module();
[[noreturn]] void fatal(const char *line);

// Runs a function that may throw and converts an exception to an error number.
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
