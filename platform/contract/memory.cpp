// The memory callbacks of a handle, and mirklib_malloc().
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <mutex>

#include "platform/contract/handle.hpp"

using mirk::Handle;
using mirk::own;

// Defined in programs that run under the address sanitizer, which names it so.
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" [[gnu::weak]] void __asan_init();

namespace {

constexpr size_t mirklib_malloc_index = MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC;

std::mutex plain_lock;
mirk::AllocationFailure plain_failure;

mirk::AllocationFailure &failure_of(Handle &handle, mirk_platform_testing_allocator allocator) {
    return handle.allocation_failures[static_cast<size_t>(allocator)];
}

[[gnu::always_inline]] inline bool within_ceilings(const Handle &handle, size_t size, uint64_t offset_bytes) {
    if (size > handle.request_ceiling || size > handle.total_ceiling) return false;
    return handle.live_bytes + offset_bytes <= handle.total_ceiling - size;
}

void *allocate(Handle &handle, uint32_t ctx_id, size_t size) {
    if (failure_of(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC).next()) return nullptr;
    const bool has_offsets = mirk::tracks(&handle);
    if (!within_ceilings(handle, size, has_offsets ? handle.offsets.bytes_with(size) : handle.offsets.bytes())) {
        ++handle.ceiling_refusals;
        return nullptr;
    }
    const mirk::Blocks::Place place = handle.blocks.allocate(size);
    if (place.address == nullptr) return nullptr;
    *place.block = {handle.blocks_made + 1, size, ctx_id, has_offsets};
    // Recording the state offset of an object cannot report an allocation failure, so its entry is reserved here.
    if (has_offsets && !handle.offsets.reserve(place.address, size)) {
        handle.blocks.release(place);
        return nullptr;
    }
    ++handle.blocks_made;
    handle.live_bytes += size;
    if (handle.fresh_fill >= 0) std::memset(place.address, handle.fresh_fill, size);
    return place.address;
}

extern "C" {

static void *obj_alloc(void *mem_ctx, uint32_t ctx_id, size_t size) {
    auto &handle = *static_cast<Handle *>(mem_ctx);
    void *block = allocate(handle, ctx_id, size);
    handle.event(MIRK_PLATFORM_TESTING_ALLOC, block, size, 0, ctx_id);
    return block;
}

static void obj_free(void *mem_ctx, uint32_t ctx_id, void *p) {
    auto &handle = *static_cast<Handle *>(mem_ctx);
    if (p == nullptr) return;
    const mirk::Blocks::Place place = handle.blocks.find(p);
    if (place.block == nullptr) [[unlikely]] {
        // The plain destroy of a control message passes its sentinel, which is not a block.
        handle.event(MIRK_PLATFORM_TESTING_FREE, p, 0, 0, ctx_id);
        skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): obj_free of an address that is no live block: %p", p);
        return;
    }
    const size_t size = place.block->size;
    handle.event(MIRK_PLATFORM_TESTING_FREE, p, size, 0, ctx_id);
    // A later object at the same address must not inherit these entries.
    const uintptr_t begin = mirk::address_of(p);
    handle.offsets.erase_block(begin, size, place.block->has_offsets);
    handle.ra_data.erase_block(begin, size, false);
    handle.references.erase_block(begin, size);
    handle.live_bytes -= size;
    handle.blocks.release(place);
}

static void *sys_alloc(void *sys_ctx, uint32_t id, size_t size) {
    auto &handle = *static_cast<Handle *>(sys_ctx);
    void *block =
        failure_of(handle, MIRK_PLATFORM_TESTING_SYS_ALLOC).next() ? nullptr : mirk::allocate_until_close(handle, size);
    handle.event(MIRK_PLATFORM_TESTING_SYS_ALLOCATED, block, size, id, 0);
    return block;
}

}  // extern "C"
}  // namespace

namespace mirk {

bool memory_is_checked() {
    const char *const preloaded = std::getenv("LD_PRELOAD");
    return __asan_init != nullptr || (preloaded != nullptr && std::strstr(preloaded, "vgpreload_memcheck") != nullptr);
}

void memory_callbacks(Handle &handle) {
    handle.sys_alloc = sys_alloc;
    handle.obj_alloc = obj_alloc;
    handle.obj_free = obj_free;
    handle.write_notify = mirk_own_write_notify;
    handle.count_notify = mirk_own_count_notify;
    handle.mem_ctx = &handle;
    handle.sys_ctx = &handle;
}

void *allocate_until_close(Handle &handle, size_t size) {
    // Counters of private types are written often, so they share no cache line with memory of other handles.
    constexpr size_t line = 64;
    if (size > SIZE_MAX - line) return nullptr;
    const size_t rounded = (size / line + 1) * line;
    void *block = std::aligned_alloc(line, rounded);
    if (block == nullptr) return nullptr;
    std::memset(block, 0, rounded);
    const auto error = guarded([&]() -> mirk_platform_error {
        handle.system_blocks.push_back(block);
        return 0;
    });
    if (error == 0) return block;
    std::free(block);
    return nullptr;
}

}  // namespace mirk

extern "C" {

int mirk_own_write_notify(void *mem_ctx, void *address, size_t size, uint32_t ctx_id) {
    static_cast<Handle *>(mem_ctx)->event(MIRK_PLATFORM_TESTING_WRITE_NOTIFY, address, size, 0, ctx_id);
    return 0;
}

int mirk_own_count_notify(void *mem_ctx, uint64_t *address, int64_t delta, uint32_t ctx_id) {
    static_cast<Handle *>(mem_ctx)->event(MIRK_PLATFORM_TESTING_COUNT_NOTIFY, address, 8, delta, ctx_id);
    return 0;
}

// The rest is for a library that is compiled as one program with this runtime. Marked functions are inlined there.
#define MIRK_INSIDE [[gnu::used, gnu::always_inline]] inline

bool mirk_inside_is_observed(const mirk_handle *h) { return mirk::is_observed(h); }

bool mirk_inside_is_unhooked(const mirk_handle *h) { return static_cast<const Handle *>(h)->unobserved; }

// Whether it tracks states is another question.
MIRK_INSIDE bool mirk_inside_is_unobserved(const mirk_handle *h) {
    const bool own_notifications = h->write_notify == mirk_own_write_notify && h->count_notify == mirk_own_count_notify;
    return own_notifications && static_cast<const Handle *>(h)->unobserved && h->domain.opaque[0] == h;
}

// Has the effect of obj_alloc on an unobserved handle without tracking. The caller sets all bytes of the block, so that
// nobody sees how new blocks are filled.
MIRK_INSIDE void *mirk_inside_allocate(mirk_handle *h, uint32_t ctx_id, size_t size) {
    Handle &handle = *own(h);
    const bool is_usual = h->obj_alloc == obj_alloc && h->mem_ctx == h && handle.offsets.is_empty();
    if (is_usual && within_ceilings(handle, size, 0)) {
        if (const mirk::Blocks::Place *place = handle.blocks.reuse(size); place != nullptr) {
            ++failure_of(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC).calls;
            *place->block = {++handle.blocks_made, size, ctx_id, false};
            handle.live_bytes += size;
            return place->address;
        }
    }
    return h->obj_alloc(h->mem_ctx, ctx_id, size);
}

// Has the effect of obj_free on such a handle. The block is expected to have the given size, but may have any.
MIRK_INSIDE void mirk_inside_release(mirk_handle *h, uint32_t ctx_id, void *p, size_t size) {
    Handle &handle = *own(h);
    const bool is_usual = h->obj_free == obj_free && h->mem_ctx == h && handle.offsets.is_empty() &&
                          handle.ra_data.size() == 0 && handle.references.oid_of.empty();
    if (is_usual) {
        if (mirk::Block *block = handle.blocks.find_kept(p, size); block != nullptr) {
            handle.live_bytes -= block->size;
            handle.blocks.release_kept(block);
            return;
        }
    }
    h->obj_free(h->mem_ctx, ctx_id, p);
}

void mirk_inside_count_lookups(mirk_handle *h, uint64_t n) {
    own(h)->operation_failures[MIRK_PLATFORM_TESTING_VARIANT_LOOKUP].calls += n;
}

// Has the effect of obj_alloc, of moving the contents, and of obj_free, but the block may stay where it is. If
// allocation fails, *block is null and the old block stays as it was. False: nothing was done, and the callbacks have
// to be called.
bool mirk_inside_grow_block(mirk_handle *h, uint32_t ctx_id, void **block, size_t size) {
    Handle &handle = *own(h);
    if (h->obj_alloc != obj_alloc || h->obj_free != obj_free || h->mem_ctx != h) return false;
    const mirk::Blocks::Place old = handle.blocks.find(*block);
    if (old.block == nullptr || old.block->has_offsets) return false;
    const size_t old_size = old.block->size;
    const uintptr_t begin = mirk::address_of(old.address);
    mirk::Blocks::Place grown{};
    if (!failure_of(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC).next()) {
        if (within_ceilings(handle, size, handle.offsets.bytes())) {
            grown = handle.blocks.resize(old, size);
        } else {
            ++handle.ceiling_refusals;
        }
    }
    if (grown.address != nullptr) {
        // Entries of objects in the old block do not move to the new one.
        handle.offsets.erase_block(begin, old_size, false);
        handle.ra_data.erase_block(begin, old_size, false);
        handle.references.erase_block(begin, old_size);
        *grown.block = {++handle.blocks_made, size, ctx_id, false};
        handle.live_bytes += size - old_size;
    }
    *block = grown.address;
    return true;
}

void *mirklib_malloc(void *, uint32_t, size_t size) {
    {
        const std::lock_guard<std::mutex> hold(plain_lock);
        if (plain_failure.next()) return nullptr;
    }
    return std::malloc(size == 0 ? 1 : size);
}

void mirklib_free(void *, uint32_t, void *p) { std::free(p); }

size_t mirk_platform_live_blocks(mirk_handle *h) { return own(h)->blocks.size(); }

uint64_t mirk_platform_handle_limit_growth(mirk_handle *h, uint64_t bytes) {
    Handle &handle = *own(h);
    const uint64_t counted = handle.live_bytes + handle.offsets.bytes(), ceiling = handle.total_ceiling;
    if (ceiling > counted && ceiling - counted > bytes) handle.total_ceiling = counted + bytes;
    return ceiling;
}

void mirk_platform_handle_set_total_ceiling(mirk_handle *h, uint64_t bytes) { own(h)->total_ceiling = bytes; }

uint64_t mirk_platform_live_bytes(mirk_handle *h) { return own(h)->live_bytes; }

uint64_t mirk_platform_ceiling_refusals(mirk_handle *h) { return own(h)->ceiling_refusals; }

size_t mirk_platform_list_blocks(mirk_handle *h, mirk_platform_block *blocks, size_t capacity) {
    mirk::guarded([&]() -> mirk_platform_error {
        std::vector<mirk_platform_block> all;
        all.reserve(own(h)->blocks.size());
        own(h)->blocks.for_each([&](void *address, const mirk::Block &block) {
            all.push_back({address, block.size, block.ctx_id, block.serial});
        });
        std::sort(all.begin(), all.end(), [](const auto &a, const auto &b) { return a.serial < b.serial; });
        std::copy_n(all.begin(), std::min(capacity, all.size()), blocks);
        return 0;
    });
    return own(h)->blocks.size();
}

void mirk_platform_testing_fail_allocation(mirk_handle *h, mirk_platform_testing_allocator allocator, uint64_t nth,
                                           uint32_t onwards) {
    const std::lock_guard<std::mutex> hold(plain_lock);
    auto &failure = allocator == mirklib_malloc_index ? plain_failure : failure_of(*own(h), allocator);
    failure.nth = nth;
    failure.onwards = onwards != 0;
    if (allocator != mirklib_malloc_index) own(h)->update_unobserved();
}

uint64_t mirk_platform_testing_allocations(mirk_handle *h, mirk_platform_testing_allocator allocator) {
    const std::lock_guard<std::mutex> hold(plain_lock);
    return allocator == mirklib_malloc_index ? plain_failure.calls : failure_of(*own(h), allocator).calls;
}

void mirk_platform_testing_set_ceilings(mirk_handle *h, uint64_t request, uint64_t total) {
    own(h)->request_ceiling = request;
    own(h)->total_ceiling = total;
}

void mirk_platform_testing_set_fresh_fill(mirk_handle *h, uint8_t byte) { own(h)->fresh_fill = byte; }

}  // extern "C"
