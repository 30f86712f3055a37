// The four integer kinds, booleans and addresses.
#include <algorithm>
#include <array>
#include <cctype>
#include <cinttypes>
#include <cstdlib>
#include <set>

#include "internal.h"

namespace recording {

namespace {

std::set<const void *> marked_integers;

constexpr std::array<char, 33> hex_text(const std::uint8_t (&bytes)[16]) {
    std::array<char, 33> text{};
    for (std::size_t i = 0; i < 32; ++i) text[i] = "0123456789abcdef"[(bytes[i / 2] >> (i % 2 ? 0 : 4)) & 15];
    return text;
}

constexpr mirk_type_info own_type(const char *name, std::uint8_t first_byte, mirk_variant_info *variants) {
    mirk_type_info type{};
    type.magic = 0xbeeff00d;
    for (std::size_t i = 0; i < 16; ++i) type.luid[i] = static_cast<std::uint8_t>(first_byte + 7 * i);
    const auto text = hex_text(type.luid);
    for (std::size_t i = 0; i < 33; ++i) type.luid_text[i] = text[i];
    for (std::size_t i = 0; name[i]; ++i) type.name[i] = name[i];
    for (std::size_t i = 0; i < 4; ++i) type.kind[i] = "type"[i];
    for (std::size_t i = 0; i < 8; ++i) type.module[i] = "observed"[i];
    type.reserved_index = -1;
    type.variant_info = variants;
    return type;
}

struct Entries {
    mirk_variant_entry entry[129];
};
constexpr Entries entries_of(std::uint32_t used_length, std::uint32_t alloc_slop) {
    Entries entries{};
    for (mirk_variant_entry &entry : entries.entry) {
        entry.used_length = used_length;
        entry.alloc_slop = alloc_slop;
    }
    return entries;
}

constinit Entries boolean_entries = entries_of(12, 4), address_entries = entries_of(32, 8);
constinit mirk_variant_info boolean_variants = {1, &boolean_entries.entry[128]};
constinit mirk_variant_info address_variants = {1, &address_entries.entry[128]};

// Accepts only decimal or hexadecimal digits, up to the largest allowed value.
bool parse_number(const std::string &text, std::uint64_t greatest, std::uint64_t &number) {
    if (text.empty() || !std::isxdigit(static_cast<unsigned char>(text[0]))) return false;
    char *end = nullptr;
    errno = 0;
    number = std::strtoull(text.c_str(), &end, text.starts_with("0x") ? 16 : 10);
    return errno == 0 && *end == '\0' && number <= greatest;
}

std::string hex_number(std::uint64_t number) {
    char text[24];
    std::snprintf(text, sizeof text, "0x%" PRIX64, number);
    return text;
}

// ---- integers ----

template <class T>
T *get(const char *function, mirk_handle *h, std::uint32_t ctx_id, T *field, std::uint32_t *err) {
    Entry entry(function, ctx_id, err, at(field));
    return entry.refused(h, err) ? nullptr : field;
}

template <class T>
T get_value(const char *function, mirk_handle *h, std::uint32_t ctx_id, T *field, std::uint32_t *err) {
    Entry entry(function, ctx_id, err, at(field));
    return entry.refused(h, err) || !field ? T{0} : *field;
}

template <class T>
void set_value(mirk_handle *h, std::uint32_t ctx_id, T *field, T value, const Entry &entry, std::uint32_t *err) {
    if (entry.refused(h, err) || !present(field, err)) return;
    notify_write(h, ctx_id, field, sizeof(T));
    *field = value;
}

template <class T>
std::uint32_t marshal(const char *function, mirk_handle *h, std::uint32_t ctx_id, void *buffer, T *field,
                      std::int32_t remaining, std::uint32_t *err) {
    Entry entry(function, ctx_id, err, at(buffer), at(field), remaining);
    if (entry.refused(h, err) || !present(field, err) || !fits(sizeof(T), remaining, err)) return 0;
    put_number<T>(static_cast<std::uint8_t *>(buffer), *field);
    return sizeof(T);
}

template <class T>
std::uint32_t unmarshal(const char *function, mirk_handle *h, std::uint32_t ctx_id, void *buffer, T *field,
                        std::int32_t remaining, std::uint32_t reuse, std::uint32_t *err) {
    Entry entry(function, ctx_id, err, at(buffer), at(field), remaining, reuse);
    if (entry.refused(h, err) || !present(field, err) || !fits(sizeof(T), remaining, err)) return 0;
    *field = take_number<T>(static_cast<std::uint8_t *>(buffer));
    return sizeof(T);
}

template <class T>
std::uint32_t print(const char *function, mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent,
                    const char *name, T *field, std::int32_t remaining, std::uint32_t *err) {
    Entry entry(function, ctx_id, err, at(buffer), indent, name, at(field), remaining);
    if (entry.refused(h, err) || !present(field, err)) return 0;
    return print_line(buffer, indent, name, hex_number(*field), remaining, err);
}

template <class T>
std::uint32_t to_xml(const char *function, mirk_handle *h, std::uint32_t ctx_id, const char *name, char *buffer,
                     T *field, std::int32_t remaining, std::uint8_t state, std::uint32_t *err) {
    Entry entry(function, ctx_id, err, name, at(buffer), at(field), remaining, state);
    if (entry.refused(h, err) || !present(field, err)) return 0;
    return print_element(name, buffer, hex_number(*field), remaining, state, err);
}

template <class T>
void from_xml(const char *function, mirk_handle *h, std::uint32_t ctx_id, const char *path, void *document, T *field,
              std::uint32_t *err, char *message, std::uint32_t message_size) {
    Entry entry(function, ctx_id, err, path, at(field), at(message), message_size);
    if (entry.refused(h, err) || !present(field, err)) return;
    const std::string *text = element_value(document, path, err);
    std::uint64_t number = 0;
    if (!text) return;
    if (parse_number(*text, static_cast<T>(~T{0}), number)) {
        *field = static_cast<T>(number);
    } else {
        *err = EINVAL;
    }
}

template <class T>
std::uint32_t hash(const char *function, const T *field, std::uint32_t seed) {
    Entry entry(function, std::nullopt, nullptr, at(field), seed);
    if (!field) return seed;
    std::uint8_t bytes[sizeof(T)];
    put_number<T>(bytes, *field);
    return mix(bytes, sizeof bytes, seed);
}

// ---- addresses ----

std::uint32_t address_bytes(bool tracked) { return tracked ? tracked_address_wire_size : address_wire_size; }

std::string address_value(const ip_address &a) {
    char text[96];
    std::snprintf(text, sizeof text, "%u %u %u %" PRIu32 " %" PRIu32 " %" PRIu32 " %" PRIu32, a.af, a.prefix_len,
                  a.scope, a.word[0], a.word[1], a.word[2], a.word[3]);
    return text;
}

bool parse_address(const std::string &text, ip_address &into) {
    ip_address a = into;
    int used = 0;
    const int read =
        std::sscanf(text.c_str(), "%" SCNu8 " %" SCNu8 " %" SCNu16 " %" SCNu32 " %" SCNu32 " %" SCNu32 " %" SCNu32 "%n",
                    &a.af, &a.prefix_len, &a.scope, &a.word[0], &a.word[1], &a.word[2], &a.word[3], &used);
    if (read != 7 || static_cast<std::size_t>(used) != text.size()) return false;
    into = a;
    return true;
}

}  // namespace

void mark_integer(const void *field) {
    std::lock_guard lock(guard);
    marked_integers.insert(field);
}

}  // namespace recording

using namespace recording;

#define OBSERVED_INTEGER(K, T)                                                                                        \
    T *K##_get(mirk_handle *h, std::uint32_t ctx_id, T *field, std::uint32_t *err) {                                  \
        return get<T>(__func__, h, ctx_id, field, err);                                                               \
    }                                                                                                                 \
    T K##_get_value(mirk_handle *h, std::uint32_t ctx_id, T *field, std::uint32_t *err) {                             \
        return get_value<T>(__func__, h, ctx_id, field, err);                                                         \
    }                                                                                                                 \
    void K##_set(mirk_handle *h, std::uint32_t ctx_id, T *field, const T *source, std::uint32_t *err) {               \
        Entry entry(__func__, ctx_id, err, at(field), at(source));                                                    \
        if (*err == 0 && !source) *err = EFAULT;                                                                      \
        set_value<T>(h, ctx_id, field, source ? *source : T{0}, entry, err);                                          \
    }                                                                                                                 \
    void K##_set_value(mirk_handle *h, std::uint32_t ctx_id, T *field, T value, std::uint32_t *err) {                 \
        Entry entry(__func__, ctx_id, err, at(field), value);                                                         \
        set_value<T>(h, ctx_id, field, value, entry, err);                                                            \
    }                                                                                                                 \
    std::uint32_t K##_len(mirk_handle *, std::uint32_t ctx_id, T *field) {                                            \
        Entry entry(__func__, ctx_id, nullptr, at(field));                                                            \
        return sizeof(T);                                                                                             \
    }                                                                                                                 \
    std::uint32_t K##_marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, T *field, std::int32_t remaining,   \
                              std::uint32_t *err) {                                                                   \
        return marshal<T>(__func__, h, ctx_id, buffer, field, remaining, err);                                        \
    }                                                                                                                 \
    std::uint32_t K##_unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, T *field, std::int32_t remaining, \
                                std::uint32_t reuse, std::uint32_t *err) {                                            \
        return unmarshal<T>(__func__, h, ctx_id, buffer, field, remaining, reuse, err);                               \
    }                                                                                                                 \
    std::uint32_t K##_print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent,                 \
                            const char *name, T *field, std::int32_t remaining, std::uint32_t *err) {                 \
        return print<T>(__func__, h, ctx_id, buffer, indent, name, field, remaining, err);                            \
    }                                                                                                                 \
    std::uint32_t K##_to_xml(mirk_handle *h, std::uint32_t ctx_id, const char *name, char *buffer, T *field,          \
                             std::int32_t remaining, std::uint8_t state, std::uint32_t *err) {                        \
        return to_xml<T>(__func__, h, ctx_id, name, buffer, field, remaining, state, err);                            \
    }                                                                                                                 \
    void K##_from_xml(mirk_handle *h, std::uint32_t ctx_id, const char *path, void *document, T *field,               \
                      std::uint32_t *err, char *message, std::uint32_t message_size) {                                \
        from_xml<T>(__func__, h, ctx_id, path, document, field, err, message, message_size);                          \
    }                                                                                                                 \
    std::uint32_t K##_hash(const T *field, std::uint32_t seed) { return hash<T>(__func__, field, seed); }             \
    std::uint32_t K##_backpropagate(mirk_handle *, std::uint32_t ctx_id, T *field, void *word) {                      \
        Entry entry(__func__, ctx_id, nullptr, at(field), at(word));                                                  \
        std::lock_guard lock(guard);                                                                                  \
        return marked_integers.erase(field) ? 1 : 0;                                                                  \
    }

OBSERVED_INTEGER(u_int8, std::uint8_t)
OBSERVED_INTEGER(u_int16, std::uint16_t)
OBSERVED_INTEGER(u_int32, std::uint32_t)
OBSERVED_INTEGER(u_int64, std::uint64_t)

// ---- booleans: on the wire the value's complement, a tag and the variant ----

constinit mirk_type_info _mirk_boolean_type_info_internal = own_type("mirk_boolean", 0x31, &boolean_variants);

static constexpr std::uint8_t boolean_tag = 0x4F;

static void store_boolean(mirk_handle *h, std::uint32_t ctx_id, mirk_boolean *field, std::uint8_t value) {
    notify_write(h, ctx_id, &field->value, 1);
    field->value = value;
    set_modified(field, true);
}

mirk_boolean *mirk_boolean_get(mirk_handle *h, std::uint32_t ctx_id, mirk_boolean *field, std::uint32_t *err) {
    return get(__func__, h, ctx_id, field, err);
}
std::uint8_t mirk_boolean_get_value(mirk_handle *h, std::uint32_t ctx_id, mirk_boolean *field, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(field));
    return entry.refused(h, err) || !field ? std::uint8_t{0} : field->value;
}
void mirk_boolean_set(mirk_handle *h, std::uint32_t ctx_id, mirk_boolean *field, const mirk_boolean *source,
                      std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(field), at(source));
    if (entry.refused(h, err) || !present(field, err) || !present(source, err)) return;
    store_boolean(h, ctx_id, field, source->value);
}
void mirk_boolean_set_value(mirk_handle *h, std::uint32_t ctx_id, mirk_boolean *field, std::uint8_t value,
                            std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(field), value);
    if (entry.refused(h, err) || !present(field, err)) return;
    store_boolean(h, ctx_id, field, value);
}
void mirk_boolean_initialize(mirk_handle *h, std::uint32_t ctx_id, mirk_boolean *object, mirk_type_info *type,
                             std::uint32_t notify, std::uint32_t skip_count, std::uint8_t flags, void *sttr_base,
                             std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(object), type, notify, skip_count, flags, at(sttr_base));
    if (!entry.refused(h, err)) initialize_header(h, ctx_id, object, type, notify, skip_count, flags, err);
}
void mirk_boolean_set_instance_embedded(mirk_handle *h, std::uint32_t ctx_id, mirk_boolean *object) {
    Entry entry(__func__, ctx_id, nullptr, at(object));
    notify_write(h, ctx_id, &object->obj_flag, 1);
    object->obj_flag |= flag_embedded;
}
std::uint32_t mirk_boolean_len(mirk_handle *, std::uint32_t ctx_id, mirk_boolean *field) {
    Entry entry(__func__, ctx_id, nullptr, at(field));
    return boolean_wire_size;
}
std::uint32_t mirk_boolean_marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_boolean *field,
                                   std::int32_t remaining, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), at(field), remaining);
    if (entry.refused(h, err) || !present(field, err) || !fits(boolean_wire_size, remaining, err)) return 0;
    const std::uint8_t bytes[boolean_wire_size] = {static_cast<std::uint8_t>(~field->value), boolean_tag,
                                                   static_cast<std::uint8_t>(field->variant)};
    std::memcpy(buffer, bytes, sizeof bytes);
    return sizeof bytes;
}
std::uint32_t mirk_boolean_unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_boolean *field,
                                     std::int32_t remaining, std::uint32_t reuse, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), at(field), remaining, reuse);
    if (entry.refused(h, err) || !present(field, err) || !fits(boolean_wire_size, remaining, err)) return 0;
    const auto *bytes = static_cast<const std::uint8_t *>(buffer);
    if (bytes[1] != boolean_tag) {
        *err = EBADMSG;
        return 0;
    }
    field->value = static_cast<std::uint8_t>(~bytes[0]);
    field->variant = std::min(static_cast<std::int8_t>(bytes[2]), std::int8_t{0});
    return boolean_wire_size;
}
std::uint32_t mirk_boolean_print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent,
                                 const char *name, mirk_boolean *field, std::int32_t remaining, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), indent, name, at(field), remaining);
    if (entry.refused(h, err) || !present(field, err)) return 0;
    return print_line(buffer, indent, name, field->value ? "yes" : "no", remaining, err);
}
std::uint32_t mirk_boolean_to_xml(mirk_handle *h, std::uint32_t ctx_id, const char *name, char *buffer,
                                  mirk_boolean *field, std::int32_t remaining, std::uint8_t state, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, name, at(buffer), at(field), remaining, state);
    if (entry.refused(h, err) || !present(field, err)) return 0;
    return print_element(name, buffer, field->value ? "yes" : "no", remaining, state, err);
}
void mirk_boolean_from_xml(mirk_handle *h, std::uint32_t ctx_id, const char *path, void *document, mirk_boolean *field,
                           std::uint32_t *err, char *message, std::uint32_t message_size) {
    Entry entry(__func__, ctx_id, err, path, at(field), at(message), message_size);
    if (entry.refused(h, err) || !present(field, err)) return;
    const std::string *text = element_value(document, path, err);
    if (!text) return;
    if (*text == "yes" || *text == "no") {
        field->value = *text == "yes";
    } else {
        *err = EINVAL;
    }
}
std::int32_t mirk_boolean_compare(const mirk_boolean *a, const mirk_boolean *b) {
    Entry entry(__func__, std::nullopt, nullptr, at(a), at(b));
    if (!a || !b) return a == b ? 0 : a ? 5 : -5;
    return 5 * ((a->value != 0) - (b->value != 0));
}
std::uint32_t mirk_boolean_hash(const mirk_boolean *field, std::uint32_t seed) {
    Entry entry(__func__, std::nullopt, nullptr, at(field), seed);
    const std::uint8_t truth = field && field->value;
    return mix(&truth, 1, seed);
}
static std::uint32_t take_mark(void *object) {
    if (!object || !modified(object)) return 0;
    set_modified(object, false);
    return 1;
}
std::uint32_t mirk_boolean_backpropagate(mirk_handle *, std::uint32_t ctx_id, mirk_boolean *field, void *word) {
    Entry entry(__func__, ctx_id, nullptr, at(field), at(word));
    return take_mark(field);
}

// ---- addresses: on the wire a tag, variant, flag, the members and, on a tracking handle, their states at the end ----

constinit mirk_type_info _ip_address_type_info_internal = own_type("ip_address", 0x8D, &address_variants);

static constexpr std::uint8_t address_tag = 0xA9;
static constexpr std::size_t address_states = 7;

ip_address *ip_address_get(mirk_handle *h, std::uint32_t ctx_id, ip_address *field, std::uint32_t *err) {
    return get(__func__, h, ctx_id, field, err);
}
void ip_address_set(mirk_handle *h, std::uint32_t ctx_id, ip_address *destination, ip_address *source,
                    std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(destination), at(source));
    if (entry.refused(h, err) || !present(destination, err) || !present(source, err)) return;
    const std::size_t members = offsetof(ip_address, af);
    notify_write(h, ctx_id, &destination->af, sizeof(ip_address) - members);
    std::memmove(&destination->af, &source->af, sizeof(ip_address) - members);
    std::uint8_t *to = state_area(h, destination, sizeof(ip_address));
    const std::uint8_t *from = state_area(h, source, sizeof(ip_address));
    if (to && from) std::memmove(to, from, address_states);
    set_modified(destination, true);
}
void ip_address_initialize(mirk_handle *h, std::uint32_t ctx_id, ip_address *object, mirk_type_info *type,
                           std::uint32_t notify, std::uint32_t skip_count, std::uint8_t flags, void *sttr_base,
                           std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(object), type, notify, skip_count, flags, at(sttr_base));
    if (entry.refused(h, err)) return;
    const auto all_flags = static_cast<std::uint8_t>(flags | (tracks(h) ? flag_tracked : 0));
    initialize_header(h, ctx_id, object, type, notify, skip_count, all_flags, err);
}
void ip_address_set_instance_embedded(mirk_handle *h, std::uint32_t ctx_id, ip_address *object) {
    Entry entry(__func__, ctx_id, nullptr, at(object));
    notify_write(h, ctx_id, &object->obj_flag, 1);
    object->obj_flag |= flag_embedded;
}
void ip_address_destroy_internal(mirk_handle *h, std::uint32_t ctx_id, ip_address *object, std::uint32_t free_it) {
    Entry entry(__func__, ctx_id, nullptr, at(object), free_it);
    if (!object) return;
    const mirk_type_info *type = object->tinfo ? object->tinfo : &_ip_address_type_info_internal;
    mirk_variant_entry &counters = type->variant_info->entries[std::min(object->variant, std::int8_t{0})];
    count(h, ctx_id, type, &counters.num_destroyed, 1);
    count(h, ctx_id, type, &counters.num_live, -1);
    std::uint32_t ignored = 0;
    if (h->oid_mapping && (object->obj_flag & (flag_offset | flag_ra))) {
        mirk_hd_mapping_destroy(h, ctx_id, object, &ignored);
    }
    if (free_it) h->obj_free(h->mem_ctx, ctx_id, object);
}
void ip_address_offset_update(mirk_handle *, std::uint32_t ctx_id, ip_address *object, void *area, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(object), at(area));
}
void ip_address_offset_remove(mirk_handle *, std::uint32_t ctx_id, ip_address *object, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(object));
}
std::uint32_t ip_address_get_oid_count(mirk_handle *h, std::uint32_t ctx_id, ip_address *object, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(object));
    const Knobs &knobs = state_of(h).knobs;
    if (*err) return 0;
    if (knobs.address_oid_count_error) *err = knobs.address_oid_count_error;
    return knobs.address_oid_count.value_or(static_cast<std::uint32_t>(knobs.address_oids.size()));
}
void ip_address_get_object_references(mirk_handle *h, std::uint32_t ctx_id, ip_address *object, void **oids,
                                      std::uint32_t size, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(object), at(oids), size);
    const Knobs &knobs = state_of(h).knobs;
    if (*err) return;
    if (knobs.address_references_error) {
        *err = knobs.address_references_error;
        return;
    }
    // Entries past the existing oids are set to null, since the caller reads all that it requested.
    for (std::uint32_t i = 0; i < size; ++i) oids[i] = i < knobs.address_oids.size() ? knobs.address_oids[i] : nullptr;
}
std::uint32_t ip_address_len(mirk_handle *h, std::uint32_t ctx_id, ip_address *field) {
    Entry entry(__func__, ctx_id, nullptr, at(field));
    return address_bytes(field && tracks(h));
}
std::uint32_t ip_address_marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, ip_address *field,
                                 std::int32_t remaining, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), at(field), remaining);
    const bool tracked = tracks(h);
    if (entry.refused(h, err) || !present(field, err) || !fits(address_bytes(tracked), remaining, err)) return 0;
    auto *to = static_cast<std::uint8_t *>(buffer);
    to[0] = address_tag;
    to[1] = static_cast<std::uint8_t>(field->variant);
    to[2] = tracked;
    to[3] = field->af;
    to[4] = field->prefix_len;
    put_number<std::uint16_t>(to + 5, field->scope);
    for (std::size_t i = 0; i < 4; ++i) put_number<std::uint32_t>(to + 7 + 4 * i, field->word[3 - i]);
    if (tracked) {
        const std::uint8_t *states = state_area(h, field, sizeof(ip_address));
        for (std::size_t i = 0; i < address_states; ++i) to[address_wire_size + i] = states ? states[i] : 0;
    }
    return address_bytes(tracked);
}
std::uint32_t ip_address_unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, ip_address *field,
                                   std::int32_t remaining, std::uint32_t reuse, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), at(field), remaining, reuse);
    if (entry.refused(h, err) || !present(field, err) || !fits(address_wire_size, remaining, err)) return 0;
    const auto *from = static_cast<const std::uint8_t *>(buffer);
    if (from[0] != address_tag || from[2] > 1) {
        *err = EBADMSG;
        return 0;
    }
    const bool tracked = from[2] == 1;
    if (!fits(address_bytes(tracked), remaining, err)) return 0;
    field->variant = std::min(static_cast<std::int8_t>(from[1]), std::int8_t{0});
    field->af = from[3];
    field->prefix_len = from[4];
    field->scope = take_number<std::uint16_t>(from + 5);
    for (std::size_t i = 0; i < 4; ++i) field->word[3 - i] = take_number<std::uint32_t>(from + 7 + 4 * i);
    std::uint8_t *states = state_area(h, field, sizeof(ip_address));
    if (tracked && states) std::memcpy(states, from + address_wire_size, address_states);
    return address_bytes(tracked);
}
std::uint32_t ip_address_print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent,
                               const char *name, ip_address *field, std::int32_t remaining, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, at(buffer), indent, name, at(field), remaining);
    if (entry.refused(h, err) || !present(field, err)) return 0;
    return print_line(buffer, indent, name, address_value(*field), remaining, err);
}
std::uint32_t ip_address_to_xml(mirk_handle *h, std::uint32_t ctx_id, const char *name, char *buffer, ip_address *field,
                                std::int32_t remaining, std::uint8_t state, std::uint32_t *err) {
    Entry entry(__func__, ctx_id, err, name, at(buffer), at(field), remaining, state);
    if (entry.refused(h, err) || !present(field, err)) return 0;
    return print_element(name, buffer, address_value(*field), remaining, state, err);
}
void ip_address_from_xml(mirk_handle *h, std::uint32_t ctx_id, const char *path, void *document, ip_address *field,
                         std::uint32_t *err, char *message, std::uint32_t message_size) {
    Entry entry(__func__, ctx_id, err, path, at(field), at(message), message_size);
    if (entry.refused(h, err) || !present(field, err)) return;
    const std::string *text = element_value(document, path, err);
    if (text && !parse_address(*text, *field)) *err = EINVAL;
}
std::int32_t ip_address_compare(const ip_address *a, const ip_address *b) {
    Entry entry(__func__, std::nullopt, nullptr, at(a), at(b));
    if (!a || !b) return a == b ? 0 : a ? 9 : -9;
    const auto key = [](const ip_address &x) {
        return std::array<std::uint32_t, 7>{x.af, x.prefix_len, x.scope, x.word[0], x.word[1], x.word[2], x.word[3]};
    };
    return key(*a) < key(*b) ? -9 : key(*b) < key(*a) ? 9 : 0;
}
std::uint32_t ip_address_hash(const ip_address *field, std::uint32_t seed) {
    Entry entry(__func__, std::nullopt, nullptr, at(field), seed);
    if (!field) return seed;
    const std::string value = address_value(*field);
    return mix(value.data(), value.size(), seed);
}
std::uint32_t ip_address_type_type_backpropagate(mirk_handle *, std::uint32_t ctx_id, ip_address *field, void *word) {
    Entry entry(__func__, ctx_id, nullptr, at(field), at(word));
    return take_mark(field);
}
