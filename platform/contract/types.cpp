// Type records: the list of modules, the private copies of a handle, usage counters, and the runtime's own two types.
#include "platform/contract/handle.hpp"

using mirk::Handle;
using mirk::own;

namespace {

constexpr int variant_entries = 129;  // negative variants index backwards, down to -128

// Threads that share types change the counters, which are at the end: nothing else is in their cache line.
struct alignas(64) VariantBlock {
    mirk_variant_info info;
    char padding[48];
    mirk_variant_entry entries[variant_entries];
};
static_assert(offsetof(VariantBlock, entries[variant_entries - 1]) % 64 == 0);

constexpr mirk_type_info describe(const mirk::Luid &luid, const char *name, mirk_variant_info *variants) {
    constexpr char digits[] = "0123456789abcdef";
    mirk_type_info type{};
    type.magic = mirk::type_magic;
    for (size_t i = 0; i < luid.size(); ++i) {
        type.luid[i] = luid[i];
        type.luid_text[2 * i] = digits[luid[i] >> 4];
        type.luid_text[2 * i + 1] = digits[luid[i] & 15];
    }
    const auto copy = [](char *to, const char *from) {
        while (*from != 0) *to++ = *from++;
    };
    copy(type.name, name);
    copy(type.module, "mirk");
    copy(type.kind, "type");
    type.reserved_index = -1;
    type.variant_info = variants;
    return type;
}

constexpr VariantBlock variants_of(uint32_t used_length, uint32_t alloc_slop, mirk_variant_entry *last) {
    VariantBlock block{};
    block.info = {1, last};
    for (auto &entry : block.entries) {
        entry.used_length = used_length;
        entry.alloc_slop = alloc_slop;
    }
    return block;
}

constexpr mirk::Luid boolean_luid{0x3d, 0x90, 0x1b, 0xc4, 0x77, 0x5e, 0x42, 0x08,
                                  0xa6, 0xf1, 0x2c, 0xe9, 0x54, 0x83, 0xdb, 0x6a};
constexpr mirk::Luid address_luid{0xe2, 0x47, 0x8c, 0x35, 0x09, 0xba, 0x4f, 0xd1,
                                  0x91, 0x6e, 0x70, 0x2f, 0xc8, 0x13, 0x5d, 0xa4};

constinit VariantBlock boolean_variants = variants_of(16, 0, &boolean_variants.entries[variant_entries - 1]);
constinit VariantBlock address_variants = variants_of(32, 8, &address_variants.entries[variant_entries - 1]);

extern "C" {

static void type_store_put(void *type_store, uint32_t ctx_id, const char *key, mirk_type_info_copy *copy) {
    auto &handle = *static_cast<Handle *>(type_store);
    handle.event(MIRK_PLATFORM_TESTING_TYPE_PUT, copy, 0, 0, ctx_id);
    // If allocation fails, the copy is not found later and the module's own record is used.
    mirk::guarded([&]() -> mirk_platform_error {
        handle.types[key] = copy;
        return 0;
    });
    handle.recent_types = {};
    handle.numbered_types = {};
}

static mirk_type_info_copy *type_store_get(void *type_store, uint32_t ctx_id, const char *key) {
    auto &handle = *static_cast<Handle *>(type_store);
    const auto found = handle.types.find(std::string_view(key));
    mirk_type_info_copy *copy = found == handle.types.end() ? nullptr : found->second;
    handle.event(MIRK_PLATFORM_TESTING_TYPE_GET, copy, 0, 0, ctx_id);
    return copy;
}

}  // extern "C"

Handle::RecentType &recent_type(Handle &handle, const mirk_type_info *type) {
    return handle.recent_types[mirk::address_of(type) / 16 % handle.recent_types.size()];
}

[[gnu::noinline]] mirk_type_info *find_type(Handle &handle, uint32_t ctx_id, mirk_type_info *type,
                                            mirk_typeinfo_init_fn init) {
    mirk_type_info_copy *copy = handle.type_store_get(handle.type_store, ctx_id, type->luid_text);
    if (copy == nullptr && init != nullptr) {
        uint32_t err = 0;
        init(&handle, ctx_id, &err);
        copy = handle.type_store_get(handle.type_store, ctx_id, type->luid_text);
    }
    if (copy == nullptr) return type;
    if (handle.type_store_get == type_store_get) recent_type(handle, type) = {type, copy, mirk::luid_from(type->luid)};
    return &copy->info;
}

}  // namespace

extern "C" {

// Modules add themselves in their constructors, which may run before any code of this library.
constinit mirk_module_root mirk_module_tot_root = {0, nullptr, &mirk_module_tot_root.first};

constinit mirk_type_info _mirk_boolean_type_info_internal =
    describe(boolean_luid, "mirk_boolean", &boolean_variants.info);
constinit mirk_type_info _ip_address_type_info_internal = describe(address_luid, "ip_address", &address_variants.info);

// Called for every object created or read. Results are cached by the address of the record; comparing the luid detects
// that another type now uses that address.
mirk_type_info *mirk_type_info_ptr_get(mirk_handle *h, uint32_t ctx_id, mirk_type_info *type,
                                       mirk_typeinfo_init_fn init) {
    if (type == nullptr) return nullptr;
    Handle &handle = *own(h);
    const Handle::RecentType &recent = recent_type(handle, type);
    if (recent.type == type && std::memcmp(recent.luid.data(), type->luid, sizeof type->luid) == 0 &&
        h->type_store_get == type_store_get && handle.hook == nullptr) {
        return &recent.copy->info;
    }
    return find_type(handle, ctx_id, type, init);
}

// For a library that is compiled as one program with this runtime: room for the private copies of its types, which is
// cleared when another copy is stored. Null if the program has replaced the type store.
mirk_type_info **mirk_inside_numbered_types(mirk_handle *h) {
    return h->type_store_get == type_store_get ? own(h)->numbered_types.data() : nullptr;
}

// The private copy of a type, or null if there is none yet. No hook is called for the look-up.
mirk_type_info *mirk_inside_known_type(mirk_handle *h, uint32_t ctx_id, mirk_type_info *type) {
    mirk_type_info_copy *copy = type_store_get(h->type_store, ctx_id, type->luid_text);
    return copy != nullptr ? &copy->info : nullptr;
}

void mirk_update_variant_info(mirk_handle *h, uint32_t ctx_id, mirk_type_info_copy *copy, mirk_type_info *type,
                              uint32_t is_new) {
    Handle &handle = *own(h);
    handle.event(MIRK_PLATFORM_TESTING_VARIANT_INFO_UPDATE, copy, 0, is_new, ctx_id);
    const mirk_variant_info *source = type->variant_info;
    if (source == nullptr) return;
    if (is_new != 0) {
        auto &failure = handle.allocation_failures[MIRK_PLATFORM_TESTING_VARIANT_BLOCK];
        auto *block = failure.next()
                          ? nullptr
                          : static_cast<VariantBlock *>(mirk::allocate_until_close(handle, sizeof(VariantBlock)));
        if (block == nullptr) {
            copy->info.plain_counters = 0;  // the copy keeps sharing the module's block with its counters
            return;
        }
        block->info = {source->n_variants, &block->entries[variant_entries - 1]};
        copy->info.variant_info = &block->info;
    }
    mirk_variant_info *target = copy->info.variant_info;
    if (target == nullptr || target == source) return;
    target->n_variants = source->n_variants;
    for (int variant = 1 - variant_entries; variant <= 0; ++variant) {
        mirk_variant_entry &to = target->entries[variant];
        const mirk_variant_entry &from = source->entries[variant];
        to.variant_word = from.variant_word;
        to.used_length = from.used_length;
        to.alloc_slop = from.alloc_slop;
    }
}

}  // extern "C"

namespace mirk {

void type_store_callbacks(Handle &handle) {
    handle.type_store_put = type_store_put;
    handle.type_store_get = type_store_get;
    handle.type_store = &handle;
}

void runtime_types_initialize(mirk_handle *h, uint32_t ctx_id, uint32_t *err) {
    for (mirk_type_info *type : {&_mirk_boolean_type_info_internal, &_ip_address_type_info_internal}) {
        mirk_type_info_copy *copy = h->type_store_get(h->type_store, ctx_id, type->luid_text);
        const bool is_new = copy == nullptr;
        if (is_new) {
            copy = static_cast<mirk_type_info_copy *>(h->sys_alloc(h->sys_ctx, 0xffffffffu, sizeof *copy));
            if (copy == nullptr) {
                *err = ENOMEM;
                mirk_store_err(h, ENOMEM);
                return;
            }
            *copy = {*type, 0, 0};
            copy->info.plain_counters = h->private_types;
            copy->info.reserved_index = -1;
            h->type_store_put(h->type_store, ctx_id, copy->info.luid_text, copy);
        }
        mirk_update_variant_info(h, ctx_id, copy, type, is_new ? 1 : 0);
    }
}

}  // namespace mirk
