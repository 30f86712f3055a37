#include "core/module.h"

namespace tarn {

namespace {

constinit mirk_module this_module{schema::module_name.data(), lumo_ui_tarn_type_table, nullptr, nullptr};

// Stays set after the module has been unlinked, so that a second run of the constructor never links it again.
constinit bool linked = false;

[[gnu::constructor]] void link_module() {
    if (linked) return;
    mirk_module_root &root = mirk_module_tot_root;
    this_module.next = nullptr;
    this_module.prev = root.last;
    *root.last = &this_module;
    root.last = &this_module.next;
    root.count += 1;
    linked = true;
}

[[gnu::destructor]] void unlink_module() {
    if (this_module.next == nullptr && this_module.prev == nullptr) return;
    mirk_module_root &root = mirk_module_tot_root;
    if (this_module.next != nullptr) {
        this_module.next->prev = this_module.prev;
    } else {
        root.last = this_module.prev;
    }
    *this_module.prev = this_module.next;
    this_module.next = nullptr;
    this_module.prev = nullptr;
    root.count -= 1;
}

}  // namespace

void initialize_private_types(mirk_handle *h, std::uint32_t ctx_id, std::uint32_t *err) {
    constexpr std::uint32_t any_id = 0xFFFFFFFF;
    for (mirk_type_info **entry = lumo_ui_tarn_type_table; *entry != nullptr; ++entry) {
        mirk_type_info *own = *entry;
        mirk_type_info_copy *copy = h->type_store_get(h->type_store, ctx_id, own->luid_text);
        const bool is_new = copy == nullptr;
        if (is_new) {
            copy = static_cast<mirk_type_info_copy *>(h->sys_alloc(h->sys_ctx, any_id, sizeof *copy));
            if (copy == nullptr) {
                fail(h, err, ENOMEM);
                return;
            }
            copy->info = *own;
            copy->store_word_0 = 0;
            copy->store_word_1 = 0;
            copy->info.plain_counters = h->private_types;
            copy->info.reserved_index = -1;
            h->type_store_put(h->type_store, ctx_id, copy->info.luid_text, copy);
        }
        if (own->variant_info != nullptr) mirk_update_variant_info(h, ctx_id, copy, own, is_new ? 1 : 0);
    }
}

void dump_variants(mirk_print_fn print) {
    for (mirk_type_info **entry = lumo_ui_tarn_type_table; *entry != nullptr; ++entry) {
        const mirk_variant_info *info = (*entry)->variant_info;
        if (info == nullptr) {
            trace(error_level, "(ERR): type variant cached info is NULL during usage dump");
            continue;
        }
        print("n_variants %d\n", static_cast<int>(info->n_variants));
        for (int variant = 0; variant < info->n_variants; ++variant) {
            const mirk_variant_entry &sizes = info->entries[variant];
            print("variant %d used length %d alloc slop %d\n", variant, static_cast<int>(sizes.used_length),
                  static_cast<int>(sizes.alloc_slop));
        }
    }
}

void initialize_type_trace() {
    static std::uint64_t state = 0;
    skald_module_init_fn("mirk_lumo_ui_tarn_type", &g_mirk_lumo_ui_tarn_type_trace_module_id, &state);
}

void initialize_message_trace() {
    static std::uint64_t state = 0;
    skald_module_init_fn("mirk_lumo_ui_tarn_message", &g_mirk_lumo_ui_tarn_message_trace_module_id, &state);
}

}  // namespace tarn

#include "exports/module.inc"
