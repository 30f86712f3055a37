// Errors, traces, variants, instance state, types, references, memory.
#include <cstdarg>
#include <cstdlib>
#include <set>

#include "internal.h"

namespace recording {

namespace {

// Identifiers start far from 0, since nothing may depend on their values.
constexpr std::uint16_t first_module_id = 0x4101;
std::vector<std::string> trace_modules;
bool echoing = false;
bool malloc_failing = false;
std::set<void *> mallocs;

std::string module_text(std::uint16_t id) {
    const std::size_t index = static_cast<std::size_t>(id) - first_module_id;
    if (index >= trace_modules.size()) return std::to_string(id);
    const std::string &name = trace_modules[index];
    return name.substr(name.rfind('_') + 1);
}

mirk_object *object_at(void *object) { return static_cast<mirk_object *>(object); }

void write_slot(std::uint32_t *err, std::uint32_t error) {
    if (err && error) *err = error;
}

template <class Answer>
const Answer &answer_for(const std::map<std::string, Answer, std::less<>> &answers, const mirk_type_info *type,
                         const Answer &otherwise) {
    const auto found = answers.find(std::string_view(type ? type->name : ""));
    return found == answers.end() ? otherwise : found->second;
}

// A real runtime finds the answers by the address of the domain alone.
State &domain_state(mirk_handle *h, const mirk_domain *domain) {
    if (domain != &h->domain) {
        std::fprintf(stderr, "recording runtime: a look-up did not get the domain of the handle\n");
        std::abort();
    }
    return state_of(h);
}

}  // namespace

void echo_traces(bool on) { echoing = on; }
void fail_malloc(bool on) { malloc_failing = on; }
std::size_t live_mallocs() { return mallocs.size(); }

void set_modified(void *object, bool on) {
    std::uint8_t &flag = object_at(object)->obj_flag;
    flag = static_cast<std::uint8_t>(on ? flag | flag_modified : flag & ~flag_modified);
}
bool modified(const void *object) { return (static_cast<const mirk_object *>(object)->obj_flag & flag_modified) != 0; }

void notify_write(mirk_handle *h, std::uint32_t ctx_id, void *address, std::size_t size) {
    h->write_notify(h->mem_ctx, address, size, ctx_id);
}

void count(mirk_handle *h, std::uint32_t ctx_id, const mirk_type_info *type, std::uint64_t *counter,
           std::int64_t delta) {
    h->count_notify(h->mem_ctx, counter, delta, ctx_id);
    if (type->plain_counters) {
        *counter += static_cast<std::uint64_t>(delta);
    } else {
        __atomic_fetch_add(counter, static_cast<std::uint64_t>(delta), __ATOMIC_SEQ_CST);
    }
}

std::uint8_t *state_area(mirk_handle *h, void *object, std::size_t base_size) {
    const std::uint8_t flag = object_at(object)->obj_flag;
    if (!tracks(h) || !(flag & flag_tracked)) return nullptr;
    // A nested object is followed by the next member of its owner.
    if ((flag & flag_nested) && !(flag & flag_offset)) return nullptr;
    const std::size_t offset = flag & flag_offset ? mirklib_get_sttr_offset(h, 0, object) : base_size;
    return static_cast<std::uint8_t *>(object) + static_cast<std::ptrdiff_t>(static_cast<std::int32_t>(offset));
}

bool initialize_header(mirk_handle *h, std::uint32_t ctx_id, void *object, mirk_type_info *type, std::uint32_t notify,
                       std::uint32_t skip_count, std::uint8_t flags, std::uint32_t *err) {
    mirk_object &header = *object_at(object);
    std::int8_t variant = mirk_domain_lookup_variant(h, &h->domain, type, err);
    if (variant > 0) variant = 0;
    auto about_to_write = [&](void *address, std::size_t size) {
        if (notify) notify_write(h, ctx_id, address, size);
    };
    about_to_write(&header.tinfo, sizeof header.tinfo);
    header.tinfo = type;
    about_to_write(&header.variant, 1);
    header.variant = variant;
    about_to_write(&header.home_variant, 1);
    header.home_variant = variant;
    about_to_write(&header.obj_flag, 1);
    header.obj_flag |= flags;
    if (!skip_count) {
        mirk_variant_entry &entry = type->variant_info->entries[variant];
        count(h, ctx_id, type, &entry.num_created, 1);
        count(h, ctx_id, type, &entry.num_live, 1);
    }
    return *err == 0;
}

}  // namespace recording

using namespace recording;

mirk_module_root mirk_module_tot_root = {0, nullptr, &mirk_module_tot_root.first};

// ---- errors and trace ----

void mirk_clear_last_error(mirk_handle *h) {
    Entry entry(__func__, std::nullopt, nullptr);
    h->last_error = 0;
}
void mirk_store_err(mirk_handle *h, std::uint32_t number) {
    Entry entry(__func__, std::nullopt, nullptr, number);
    h->last_error = number;
}
void mirk_store_epoch_err(mirk_handle *h, std::uint32_t number, std::uint32_t *err) {
    Entry entry(__func__, std::nullopt, err, number, at(err));
    const Knobs &knobs = state_of(h).knobs;
    const bool write = number == EIDRM ? knobs.slot_gets_eidrm : number == EBADE ? knobs.slot_gets_ebade : true;
    // When the slot is to stay clear and is the handle's own word, nothing is recorded there either.
    if (write || err != &h->last_error) h->last_error = number;
    if (write && err) *err = number;
}

void skald_wrapper(std::uint16_t module_id, std::uint32_t level, std::uint32_t zero, const char *format, ...) {
    va_list arguments, again;
    va_start(arguments, format);
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::string text(length < 0 ? 0 : static_cast<std::size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    va_end(arguments);
    if (level == 0 || echoing) std::fprintf(stderr, "%s\n", text.c_str());
    if (!is_recording()) return;
    Call call;
    call.function = __func__;
    call.arguments = {module_text(module_id), std::to_string(level)};
    if (zero != 0) call.arguments.push_back("zero=" + std::to_string(zero));
    call.module = module_id;
    call.level = level;
    call.format = format;
    call.text = std::move(text);
    Entry::append(std::move(call));
}

void skald_module_init_fn(const char *name, std::uint16_t *module_id, std::uint64_t *module_state) {
    Entry entry(__func__, std::nullopt, nullptr, name);
    std::lock_guard lock(guard);
    std::size_t index = 0;
    while (index < trace_modules.size() && trace_modules[index] != name) ++index;
    if (index == trace_modules.size()) trace_modules.push_back(name);
    *module_id = static_cast<std::uint16_t>(first_module_id + index);
    if (module_state) *module_state = 0x6F62736572766564;
}

// ---- variants and instance state ----

std::int8_t mirk_domain_lookup_variant(mirk_handle *h, mirk_domain *domain, mirk_type_info *type, std::uint32_t *err) {
    Entry entry(__func__, std::nullopt, err, type);
    const Knobs &knobs = domain_state(h, domain).knobs;
    const VariantAnswer &answer = answer_for(knobs.variants, type, knobs.default_variant);
    write_slot(err, answer.error);
    return answer.variant;
}

std::uint32_t mirk_domain_lookup_message_ok(mirk_handle *h, mirk_domain *domain, mirk_type_info *type,
                                            std::uint32_t *err) {
    Entry entry(__func__, std::nullopt, err, type);
    const Knobs &knobs = domain_state(h, domain).knobs;
    const MessageAnswer &answer = answer_for(knobs.messages, type, knobs.default_message);
    write_slot(err, answer.error);
    return answer.allowed;
}

std::int8_t mirk_get_instance_variant(void *object, std::uint32_t is_record, std::uint32_t is_value_kind) {
    Entry entry(__func__, std::nullopt, nullptr, at(object), is_record, is_value_kind);
    return object ? object_at(object)->variant : std::int8_t{0};
}

void mirklib_adjust_variant(mirk_handle *h, std::uint32_t ctx_id, void *object, mirk_type_info *tinfo,
                            std::uint32_t zero, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(object), tinfo, zero);
    if (entry.refused(h, err) || !object || !tinfo || !state_of(h).knobs.adjust_variant) return;
    const std::int8_t variant = mirk_domain_lookup_variant(h, &h->domain, tinfo, err);
    if (object_at(object)->variant == variant) return;
    notify_write(h, ctx_id, &object_at(object)->variant, 1);
    object_at(object)->variant = variant;
}

void mirk_set_instance_modified(void *object, std::uint32_t is_record, std::uint32_t is_value_kind,
                                std::uint32_t value) {
    Entry entry(__func__, std::nullopt, nullptr, at(object), is_record, is_value_kind, value);
    if (object) set_modified(object, value != 0);
}
std::uint32_t mirk_get_instance_modified(void *object, std::uint32_t is_record, std::uint32_t is_value_kind) {
    Entry entry(__func__, std::nullopt, nullptr, at(object), is_record, is_value_kind);
    return object && modified(object) ? 1 : 0;
}
std::uint8_t mirk_get_instance_obj_flag(void *object, std::uint32_t is_record, std::uint32_t is_value_kind) {
    Entry entry(__func__, std::nullopt, nullptr, at(object), is_record, is_value_kind);
    return object ? object_at(object)->obj_flag : std::uint8_t{0};
}

std::uint32_t mirklib_get_sttr_offset(mirk_handle *h, std::uint32_t ctx_id, void *object) {
    Entry entry(__func__, ctx_id, nullptr, at(object));
    const auto &offsets = state_of(h).offsets;
    if (const auto found = offsets.find(object); found != offsets.end()) return found->second;
    // For a flag bit that came with a frame, the offset is the end of the object.
    const mirk_type_info *type = object ? object_at(object)->tinfo : nullptr;
    if (!type || !type->variant_info) return 0;
    return type->variant_info->entries[0].used_length + type->variant_info->entries[0].alloc_slop;
}
void mirklib_update_sttr_offset(mirk_handle *h, std::uint32_t ctx_id, void *object, std::uint32_t offset) {
    Entry entry(__func__, ctx_id, nullptr, at(object), offset);
    state_of(h).offsets[object] = offset;
    object_at(object)->obj_flag |= flag_offset;
}

void mirklib_get_handle_ws(mirk_handle *h, void **buffer, std::uint32_t *size) {
    Entry entry(__func__, std::nullopt, nullptr);
    auto &workspace = state_of(h).workspace;
    *buffer = workspace.data();
    *size = static_cast<std::uint32_t>(workspace.size() - 1);
}

// ---- types ----

mirk_type_info *mirk_type_info_ptr_get(mirk_handle *h, std::uint32_t ctx_id, mirk_type_info *own,
                                       mirk_typeinfo_init_fn init) {
    Entry entry(__func__, ctx_id, nullptr, own);
    if (state_of(h).knobs.no_type_info) return nullptr;
    mirk_type_info_copy *copy = h->type_store_get(h->type_store, ctx_id, own->luid_text);
    if (!copy && init) {
        std::uint32_t ignored = 0;
        {
            Outside outside;
            init(h, ctx_id, &ignored);
        }
        copy = h->type_store_get(h->type_store, ctx_id, own->luid_text);
    }
    return copy ? &copy->info : own;
}

void mirk_update_variant_info(mirk_handle *h, std::uint32_t ctx_id, mirk_type_info_copy *copy, mirk_type_info *own,
                              std::uint32_t is_new) {
    Entry entry(__func__, ctx_id, nullptr, own, is_new);
    if (is_new) {
        PrivateVariants &block = state_of(h).variants.emplace_back();
        block.info = {own->variant_info->n_variants, &block.entries[128]};
        copy->info.variant_info = &block.info;
    }
    for (int variant = -128; variant <= 0; ++variant) {
        copy->info.variant_info->entries[variant].used_length = own->variant_info->entries[0].used_length;
        copy->info.variant_info->entries[variant].alloc_slop = own->variant_info->entries[0].alloc_slop;
    }
}

// ---- object references ----

std::uint32_t mirk_request_oid_mapping_destroy(mirk_handle *h, std::uint32_t ctx_id, void *object, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(object));
    const Knobs &knobs = state_of(h).knobs;
    write_slot(err, knobs.oid_destroy_error);
    return knobs.oid_destroy_result;
}
void mirk_hd_mapping_destroy(mirk_handle *h, std::uint32_t ctx_id, void *object, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(object));
    State &state = state_of(h);
    write_slot(err, state.knobs.hd_destroy_error);
    if (state.knobs.hd_destroy_error) return;
    state.offsets.erase(object);
    state.ra.erase(object);
}
void mirklib_lookup_and_update_oid_ref_count(mirk_handle *h, std::uint32_t ctx_id, void *oid, std::uint32_t zero,
                                             std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, reinterpret_cast<std::uintptr_t>(oid), zero);
    const auto &errors = state_of(h).knobs.oid_count_errors;
    if (const auto found = errors.find(oid); found != errors.end()) write_slot(err, found->second);
}

// ---- plain memory ----

void *mirklib_malloc(void *zero, std::uint32_t ctx_id, std::size_t size) {
    Entry entry(__func__, ctx_id, nullptr, at(zero), size);
    if (malloc_failing) return nullptr;
    void *block = std::malloc(size);
    if (!block) return nullptr;
    std::memset(block, 0xA5, size);
    std::lock_guard lock(guard);
    mallocs.insert(block);
    return block;
}
void mirklib_free(void *zero, std::uint32_t ctx_id, void *p) {
    Entry entry(__func__, ctx_id, nullptr, at(zero), at(p));
    std::lock_guard lock(guard);
    if (p && mallocs.erase(p) == 0) {
        std::fprintf(stderr, "recording runtime: mirklib_free of a block that is not live\n");
        std::abort();
    }
    std::free(p);
}
