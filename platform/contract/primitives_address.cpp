// ip_address, an embedded record of seven members. On the wire it is a record frame:
//
//   offset  size  item
//   0       1     variant; negative: no body
//   1       1     flag: bit 8 state bytes follow the members, bit 32 RA data follows the flag
//   2       4     jump, from its own first byte to the end of the frame
//   6       20    af 1, prefix_len 1, scope 2, word[0] to word[3] 4 each; in a tracked frame a state byte after each
//
// 26 bytes, or 33 in a tracked frame, and 9 more with RA data.
#include <cstring>
#include <iterator>
#include <type_traits>

#include "platform/contract/address_text.hpp"
#include "platform/contract/coding.hpp"
#include "platform/contract/document.hpp"
#include "platform/contract/embedded.hpp"
#include "platform/contract/handle.hpp"

namespace {

constexpr uint32_t state_width = 7;
constexpr uint32_t frame_overhead = 6;
constexpr uint32_t body_size = 20;
constexpr uint8_t wire_flags = mirk::state_tracked | mirk::has_ra_data;

mirk_object *header(ip_address *address) { return reinterpret_cast<mirk_object *>(address); }

bool tracking(const mirk_handle *h) {
    if (h->sttr_desc == nullptr || h->sttr_desc->sttr_mode == mirk::tracking_off) return false;
    if (h->sttr_desc->sttr_mode != mirk::tracking_on) mirk::fatal("(FATAL): Corrupted MIRK Handle");
    return true;
}

uint8_t *state_area(mirk_handle *h, uint32_t ctx_id, ip_address *address) {
    // Computed as an integer: on a handle without tracking the address is past the end of the block.
    uintptr_t area = mirk::address_of(address);
    area += (address->obj_flag & mirk::has_sttr_offset) != 0 ? mirklib_get_sttr_offset(h, ctx_id, address)
                                                             : sizeof(ip_address);
    return reinterpret_cast<uint8_t *>(area);
}

void fail(mirk_handle *h, uint32_t *err, uint32_t number) {
    *err = number;
    mirk_store_err(h, number);
}

void trace(uint32_t level, const char *line) { skald_wrapper(mirk::trace_module(), level, 0, "%s", line); }

// The only function that lists the members in their order.
template <typename Address, typename Visit>
void for_each_member(Address &address, Visit visit) {
    visit(address.af);
    visit(address.prefix_len);
    visit(address.scope);
    visit(address.word[0]);
    visit(address.word[1]);
    visit(address.word[2]);
    visit(address.word[3]);
}

bool can_start(mirk_handle *h, const void *buffer, const void *field, int32_t remaining, uint32_t *err) {
    if (!mirk::can_move(buffer, field, 0, 0, err)) return false;
    mirk_clear_last_error(h);
    if (remaining < 1) fail(h, err, ENOMEM);
    return *err == 0;
}

// Nearly all frames: no RA data, variant 0, complete, state bytes exactly if the handle tracks state, and no hook.
template <bool Tracked>
constexpr uint32_t usual_size = frame_overhead + body_size + (Tracked ? state_width : 0);
template <bool Tracked>
constexpr uint8_t usual_head[frame_overhead] = {
    0, Tracked ? mirk::state_tracked : uint8_t{0}, 0, 0, 0, usual_size<Tracked> - 2};

template <bool Tracked>
bool is_usual(const mirk_handle *h, const void *buffer, const ip_address *field, int32_t remaining,
              const uint32_t *err) {
    return *err == 0 && mirk::known_nonnull(buffer, field) && remaining >= static_cast<int32_t>(usual_size<Tracked>) &&
           (Tracked ? mirk::tracks(h) && (field->obj_flag & mirk::state_tracked) != 0
                    : h->sttr_desc == nullptr || h->sttr_desc->sttr_mode == mirk::tracking_off) &&
           static_cast<const mirk::Handle *>(h)->hook == nullptr;
}

// 0: the frame is not a usual one, and nothing was written.
template <bool Tracked>
uint32_t marshal_usual(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field, int32_t remaining,
                       const uint32_t *err) {
    if (!is_usual<Tracked>(h, buffer, field, remaining, err) || field->variant != 0 ||
        (field->obj_flag & mirk::has_ra_data) != 0 || !mirk::skip_variant_lookup(*mirk::own(h))) {
        return 0;
    }
    h->last_error = 0;
    auto *to = static_cast<uint8_t *>(buffer);
    std::memcpy(to, usual_head<Tracked>, frame_overhead);
    to += frame_overhead;
    [[maybe_unused]] const uint8_t *states = Tracked ? state_area(h, ctx_id, field) : nullptr;
    for_each_member(*field, [&](const auto &member) {
        mirk::put_big_endian(to, member);
        to += sizeof member;
        if constexpr (Tracked) *to++ = *states++;
    });
    return usual_size<Tracked>;
}

// 0: the frame is not a usual one, and nothing was read.
template <bool Tracked>
uint32_t unmarshal_usual(mirk_handle *h, uint32_t ctx_id, const void *buffer, ip_address *field, int32_t remaining,
                         const uint32_t *err) {
    if (!is_usual<Tracked>(h, buffer, field, remaining, err) ||
        std::memcmp(buffer, usual_head<Tracked>, frame_overhead) != 0) {
        return 0;
    }
    h->last_error = 0;
    const uint8_t *from = static_cast<const uint8_t *>(buffer) + frame_overhead;
    [[maybe_unused]] uint8_t *states = Tracked ? state_area(h, ctx_id, field) : nullptr;
    for_each_member(*field, [&](auto &member) {
        member = mirk::get_big_endian<std::remove_reference_t<decltype(member)>>(from);
        from += sizeof member;
        if constexpr (Tracked) *states++ = *from++;
    });
    field->variant = 0;
    field->tinfo = mirk::bind_type(h, ctx_id, &_ip_address_type_info_internal);
    return usual_size<Tracked>;
}

// Removes the oid mapping. False: the object must not be destroyed now.
bool release_oid(mirk_handle *h, uint32_t ctx_id, ip_address *object) {
    uint32_t err = 0;
    const uint32_t gone = mirk_request_oid_mapping_destroy(h, ctx_id, object, &err);
    if (err != 0) {
        skald_wrapper(mirk::trace_module(), 3, 0,
                      "(ERR): ip_address destroy: Failed to remove oid mapping for object. Error %s",
                      std::strerror(static_cast<int>(err)));
        mirk_store_err(h, err);
        return false;
    }
    if (gone == 0) {
        trace(6,
              "(info): ip_address destroy: Object has references and will be cleaned up when all of them are released");
        return false;
    }
    trace(7, "(debug): ip_address destroy: Successfully removed OID mapping");
    return true;
}

[[gnu::noinline]] uint32_t marshal_any(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field,
                                       int32_t remaining, uint32_t *err) {
    if (const uint32_t size = marshal_usual<true>(h, ctx_id, buffer, field, remaining, err); size != 0) return size;
    if (!can_start(h, buffer, field, remaining, err)) return 0;
    auto *bytes = static_cast<uint8_t *>(buffer);
    const auto size = static_cast<uint32_t>(remaining);
    uint32_t offset = 0;
    const auto left = [&] { return static_cast<int32_t>(size - offset); };

    int8_t variant = field->variant;
    const int8_t allowed = mirk_domain_lookup_variant(h, &h->domain, field->tinfo, err);
    if (variant > allowed) {
        mirk_store_epoch_err(h, EIDRM, err);
        variant = allowed;
    }
    if (variant > 0) variant = 0;
    offset += _mirk_instance_variant_marshal(h, ctx_id, bytes, &variant, left(), err);

    uint8_t flag = field->obj_flag;
    const bool tracked = tracking(h);
    const uint8_t *states = nullptr;
    if (tracked) {
        if ((flag & mirk::state_tracked) != 0) states = state_area(h, ctx_id, field);
        flag |= mirk::state_tracked;
    } else {
        flag &= static_cast<uint8_t>(~mirk::state_tracked);
    }
    flag &= wire_flags;
    offset += _mirk_instance_obj_flag_marshal(h, ctx_id, bytes + offset, &flag, left(), err);
    if ((flag & mirk::has_ra_data) != 0) {
        void *ra_value = nullptr;
        uint8_t ra_byte = 0;
        *err = mirklib_get_ra_data(h, ctx_id, field, &ra_value, &ra_byte);
        offset += _mirk_instance_ra_data_marshal(h, ctx_id, bytes + offset, &ra_value, &ra_byte, left(), err);
    }

    const uint32_t jump_base = offset;
    uint32_t jump = 0;
    offset += _mirk_variant_jump_marshal(h, ctx_id, bytes + offset, &jump, left(), err);
    if (variant >= 0) {
        for_each_member(*field, [&](auto &member) {
            offset += mirk::marshal_number(bytes + offset, &member, left(), err);
            // Unlike a record, an address does not write the guard byte: primitives never write past `remaining`.
            if (tracked && offset != size) bytes[offset++] = states != nullptr ? *states : uint8_t{0};
            if (states != nullptr) ++states;
        });
    }
    jump = offset - jump_base;
    _mirk_variant_jump_marshal(h, ctx_id, bytes + jump_base, &jump, 4, err);
    return offset;
}

[[gnu::noinline]] uint32_t unmarshal_any(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field,
                                         int32_t remaining, uint32_t *err) {
    if (const uint32_t size = unmarshal_usual<true>(h, ctx_id, buffer, field, remaining, err); size != 0) return size;
    if (!can_start(h, buffer, field, remaining, err)) return 0;
    auto *bytes = static_cast<uint8_t *>(buffer);
    const auto size = static_cast<uint32_t>(remaining);
    uint32_t offset = 0;
    const auto left = [&] { return static_cast<int32_t>(size - offset); };

    int8_t variant = 0;
    uint8_t flag = 0;
    offset += _mirk_instance_variant_unmarshal(h, ctx_id, bytes, &variant, left(), err);
    offset += _mirk_instance_obj_flag_unmarshal(h, ctx_id, bytes + offset, &flag, left(), err);
    if ((flag & mirk::has_ra_data) != 0) {
        void *ra_value = nullptr;
        uint8_t ra_byte = 0;
        offset += _mirk_instance_ra_data_unmarshal(h, ctx_id, bytes + offset, &ra_value, &ra_byte, left(), err);
        mirklib_update_ra_all(h, ctx_id, field, ra_value, ra_byte);
    }
    if (variant > 0) variant = 0;
    const uint32_t jump_base = offset;
    uint32_t jump = 0;
    offset += _mirk_variant_jump_unmarshal(h, ctx_id, bytes + offset, &jump, left(), err);

    const bool tracked = tracking(h);
    const bool states_follow = (flag & mirk::state_tracked) != 0;
    uint8_t *states = nullptr;
    if (tracked) {
        if ((field->obj_flag & mirk::state_tracked) == 0) {
            mirk::fatal("(FATAL): MIRK handle and object state tracking mis-match");
        }
        if (states_follow) states = state_area(h, ctx_id, field);
        flag |= mirk::state_tracked;
    } else {
        flag &= static_cast<uint8_t>(~mirk::state_tracked);
    }
    if (variant >= 0) {
        for_each_member(*field, [&](auto &member) {
            offset += mirk::unmarshal_number(bytes + offset, &member, left(), err);
            if (!states_follow) return;
            if (states != nullptr && offset != size) *states = bytes[offset];
            if (states != nullptr) ++states;
            if (offset != size) ++offset;
        });
    }
    // Skips members that a newer sender added after the ones known here.
    const uint32_t end = jump_base + jump;
    if (static_cast<int32_t>(end) > static_cast<int32_t>(offset)) {
        skald_wrapper(mirk::trace_module(), 6, 0,
                      "(info): offset_jump read_len %d offset_jump_base %d _mirk_variant_jump %d",
                      static_cast<int32_t>(offset), static_cast<int32_t>(jump_base), static_cast<int32_t>(jump));
        offset = end;
    }
    field->variant = variant;
    field->obj_flag |= flag;
    field->tinfo = mirk::bind_type(h, ctx_id, &_ip_address_type_info_internal);
    return offset;
}

[[gnu::noinline]] void initialize_any(mirk_handle *h, uint32_t ctx_id, ip_address *object, mirk_type_info *type,
                                      uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base,
                                      uint32_t *err) {
    if (*err != 0) return;
    if (object == nullptr) {
        *err = EINVAL;
        return;
    }
    const auto tracked_flags = static_cast<uint8_t>(flags | mirk::state_tracked);
    if (!mirk::tracks(h) || !mirk::initialize_usual(h, ctx_id, header(object), type, skip_count, tracked_flags)) {
        mirk_clear_last_error(h);
        mirk::set_header(h, ctx_id, header(object), type, notify, flags, err);
        if (tracking(h)) {
            if (notify != 0) mirk::notify_write(h, ctx_id, &object->obj_flag, 1);
            object->obj_flag |= mirk::state_tracked;
        }
        if (skip_count == 0) {
            mirk::count_created(h, ctx_id, header(object), mirk::is_observed(h));
            *err = 0;
        }
    }
    if (skip_count != 0 || !mirk::tracks(h)) return;
    if ((object->obj_flag & mirk::nested) != 0 && sttr_base == nullptr) {
        fail(h, err, EINVAL);
        trace(3,
              "(ERR): sttr_base can not be NULL in NESTED case. Please check the parent object and provide the correct "
              "state tracking base pointer");
        return;
    }
    if ((object->obj_flag & mirk::has_sttr_offset) != 0) mirklib_get_sttr_offset(h, ctx_id, object);
}

void check_type(const ip_address *object) {
    const mirk_type_info *type = object->tinfo;
    if (type == nullptr || type->magic != mirk::type_magic) mirk::fatal("(FATAL): tinfo is null or corrupted");
}

[[gnu::noinline]] void destroy_any(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t free_it) {
    if ((object->obj_flag & mirk::oid_mapped) != 0 && !release_oid(h, ctx_id, object)) return;
    constexpr uint8_t own_state_area = mirk::state_tracked | mirk::has_sttr_offset;
    if ((object->obj_flag & own_state_area) == own_state_area) mirklib_get_sttr_offset(h, ctx_id, object);
    check_type(object);
    mirk::count_destroyed(h, ctx_id, header(object), mirk::is_observed(h));
    if ((object->obj_flag & (mirk::has_ra_data | mirk::has_sttr_offset)) != 0 && h->oid_mapping != 0) {
        uint32_t err = 0;
        mirk_hd_mapping_destroy(h, ctx_id, object, &err);
        if (err != 0) {
            skald_wrapper(mirk::trace_module(), 3, 0,
                          "(ERR): ip_address destroy: Failed to remove oid mapping for object. Error %s",
                          std::strerror(static_cast<int>(err)));
            mirk_store_err(h, err);
            return;
        }
    }
    if (free_it == 0) return;
    mirk::notify_write(h, ctx_id, &object->tinfo, sizeof object->tinfo);
    object->tinfo = nullptr;
    h->obj_free(h->mem_ctx, ctx_id, object);
}

}  // namespace

extern "C" {

ip_address *ip_address_get(mirk_handle *, uint32_t, ip_address *field, uint32_t *err) {
    return *err != 0 ? nullptr : field;
}

void ip_address_set(mirk_handle *h, uint32_t ctx_id, ip_address *destination, ip_address *source, uint32_t *err) {
    if (*err != 0) return;
    mirklib_adjust_variant(h, ctx_id, destination, destination != nullptr ? destination->tinfo : nullptr, 0, err);
    if (destination == nullptr || source == nullptr) {
        fail(h, err, EINVAL);
        return;
    }
    if (destination == source) return;
    const uint8_t own_flag = destination->obj_flag;
    mirk::notify_write(h, ctx_id, destination, sizeof *destination);
    std::memcpy(destination, source, sizeof *destination);
    destination->obj_flag |= mirk::modified;
    if (h->sttr_desc == nullptr) return;
    constexpr uint8_t offset_bit = mirk::has_sttr_offset;
    destination->obj_flag = static_cast<uint8_t>((destination->obj_flag & ~offset_bit) | (own_flag & offset_bit));
    if (!tracking(h)) return;
    if ((own_flag & mirk::state_tracked) == 0) {
        // The destination has no state area, even if the copied flag has the bit.
        destination->obj_flag &= static_cast<uint8_t>(~mirk::state_tracked);
    }
    if ((destination->obj_flag & mirk::state_tracked) == 0) {
        fail(h, err, EINVAL);
        trace(3, "(ERR): The object is not state tracked");
        return;
    }
    std::memmove(state_area(h, ctx_id, destination), state_area(h, ctx_id, source), state_width);
}

void ip_address_initialize(mirk_handle *h, uint32_t ctx_id, ip_address *object, mirk_type_info *type, uint32_t notify,
                           uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err) {
    const bool usual = *err == 0 && object != nullptr && !tracking(h) &&
                       mirk::initialize_usual(h, ctx_id, header(object), type, skip_count, flags);
    if (!usual) initialize_any(h, ctx_id, object, type, notify, skip_count, flags, sttr_base, err);
}

void ip_address_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, ip_address *object) {
    mirk::set_embedded(h, ctx_id, reinterpret_cast<mirk_object *>(object));
}

void ip_address_destroy_internal(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t free_it) {
    if (object == nullptr) return;
    constexpr uint8_t has_table_entry = mirk::oid_mapped | mirk::has_ra_data | mirk::has_sttr_offset;
    const bool usual = free_it == 0 && (object->obj_flag & has_table_entry) == 0 && !mirk::is_observed(h);
    if (!usual) {
        destroy_any(h, ctx_id, object, free_it);
        return;
    }
    check_type(object);
    mirk::count_destroyed(h, ctx_id, header(object), false);
}

// An address embeds no objects, so there are no offsets to update or remove.
void ip_address_offset_update(mirk_handle *, uint32_t, ip_address *, void *, uint32_t *) {}
void ip_address_offset_remove(mirk_handle *, uint32_t, ip_address *, uint32_t *) {}

uint32_t ip_address_get_oid_count(mirk_handle *h, uint32_t, ip_address *object, uint32_t *err) {
    const auto &held = mirk::own(h)->references.held_by_address;
    if (*err == 0 && object != nullptr && held.empty()) return 0;
    if (*err != 0) {
        trace(3, "(ERR): Error already present in call to get object oid count");
        return 0;
    }
    if (object == nullptr) {
        trace(3, "(ERR): Invalid object passed in to get object oid count");
        fail(h, err, EINVAL);
        return 0;
    }
    const auto found = held.find(mirk::address_of(object));
    return found == held.end() ? 0 : static_cast<uint32_t>(found->second.size());
}

void ip_address_get_object_references(mirk_handle *h, uint32_t, ip_address *object, void **oids, uint32_t size,
                                      uint32_t *err) {
    if (*err != 0) {
        trace(3, "(ERR): Error present in call to get table references from object");
        return;
    }
    if (object == nullptr) {
        trace(3, "(ERR): Cannot get table references. Invalid object passed on");
        fail(h, err, EINVAL);
        return;
    }
    *err = mirk::own(h)->failure(MIRK_PLATFORM_TESTING_OBJECT_REFERENCES);
    if (*err != 0 || oids == nullptr) return;
    const auto &held = mirk::own(h)->references.held_by_address;
    const auto found = held.find(mirk::address_of(object));
    if (found == held.end()) return;
    for (uint32_t i = 0; i < size && i < found->second.size(); ++i) oids[i] = found->second[i];
}

uint32_t ip_address_len(mirk_handle *h, uint32_t, ip_address *field) {
    if (field == nullptr) return frame_overhead + body_size;
    const bool tracked = tracking(h);
    if (field->variant < 0) return frame_overhead;
    return frame_overhead + body_size + (tracked ? state_width : 0);
}

uint32_t ip_address_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field, int32_t remaining,
                            uint32_t *err) {
    const uint32_t size = marshal_usual<false>(h, ctx_id, buffer, field, remaining, err);
    return size != 0 ? size : marshal_any(h, ctx_id, buffer, field, remaining, err);
}

uint32_t ip_address_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field, int32_t remaining,
                              uint32_t, uint32_t *err) {
    const uint32_t size = unmarshal_usual<false>(h, ctx_id, buffer, field, remaining, err);
    return size != 0 ? size : unmarshal_any(h, ctx_id, buffer, field, remaining, err);
}

uint32_t ip_address_print(mirk_handle *, uint32_t, char *buffer, uint32_t indent, const char *name, ip_address *field,
                          int32_t remaining, uint32_t *err) {
    if (!mirk::can_move(buffer, field, 0, 0, err)) return 0;
    return mirk::print_line(buffer, indent, name, "@ip_address:", mirk::AddressText(*field).view(), remaining, err);
}

uint32_t ip_address_to_xml(mirk_handle *, uint32_t, const char *name, char *buffer, ip_address *field,
                           int32_t remaining, uint8_t state, uint32_t *err) {
    if (!mirk::can_move(buffer, field, 0, 0, err)) return 0;
    return mirk::print_element(buffer, name, state, mirk::AddressText(*field).view(), remaining, err);
}

void ip_address_from_xml(mirk_handle *, uint32_t, const char *path, void *document, ip_address *field, uint32_t *err,
                         char *, uint32_t) {
    mirk::read_element(path, document, field, err,
                       [field](std::string_view text) { return mirk::parse_address(text, field); });
}

mirk_platform_error mirk_platform_address_parse(const char *text, size_t length, ip_address *address) {
    if (text == nullptr || address == nullptr) return EINVAL;
    return mirk::parse_address({text, length}, address) ? 0 : EINVAL;
}

mirk_platform_error mirk_platform_address_text(const ip_address *address, char *text, size_t size) {
    if (address == nullptr || text == nullptr) return EINVAL;
    const mirk::AddressText written(*address);
    const std::string_view view = written.view();
    if (view.size() >= size) return EMSGSIZE;
    text[view.copy(text, view.size())] = 0;
    return 0;
}

int32_t ip_address_compare(const ip_address *a, const ip_address *b) {
    if (a == nullptr) return b == nullptr ? 0 : -1;
    if (b == nullptr) return 1;
    const int head = (a->af ^ b->af) | (a->prefix_len ^ b->prefix_len) | (a->scope ^ b->scope);
    if (head == 0 && std::memcmp(a->word, b->word, sizeof a->word) == 0) return 0;
    const auto order = [](uint32_t left, uint32_t right) { return left < right ? -1 : 1; };
    if (a->af != b->af) return order(a->af, b->af);
    if (a->prefix_len != b->prefix_len) return order(a->prefix_len, b->prefix_len);
    if (a->scope != b->scope) return order(a->scope, b->scope);
    for (size_t i = 0; i < std::size(a->word); ++i) {
        if (a->word[i] != b->word[i]) return order(a->word[i], b->word[i]);
    }
    return 0;
}

uint32_t ip_address_hash(const ip_address *field, uint32_t seed) {
    if (field == nullptr) return seed;
    for_each_member(*field, [&](auto &member) {
        uint8_t bytes[sizeof member];
        mirk::put_big_endian(bytes, member);
        seed = SuperFastHash(bytes, sizeof bytes, seed);
    });
    return seed;
}

uint32_t ip_address_type_type_backpropagate(mirk_handle *h, uint32_t, ip_address *field, void *) {
    if (field == nullptr) {
        trace(6, "(info): backpropagate: Null pointer to ip_address type");
        return 0;
    }
    const uint32_t own = mirk_get_instance_modified(field, 1, 0);
    auto &changed = mirk::own(h)->changed_integers;
    uint32_t found = 0;
    // Stops at the first marked member: later members keep their marks for the next call.
    for_each_member(*field, [&](auto &member) {
        if (found == 0 && changed.erase(mirk::address_of(&member))) found = 1;
    });
    if (own != 0) mirk_set_instance_modified(field, 1, 0, 0);
    return own != 0 ? 1 : found;
}

}  // extern "C"
