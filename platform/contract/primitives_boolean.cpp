// mirk_boolean, an embedded object. On the wire: variant, value, one byte each. Any nonzero value is true and is
// stored unchanged.
#include "platform/contract/coding.hpp"
#include "platform/contract/document.hpp"
#include "platform/contract/embedded.hpp"
#include "platform/contract/handle.hpp"
#include "platform/contract/text.hpp"

namespace {

[[gnu::noinline]] void store_any(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint8_t value, uint32_t *err) {
    if (*err != 0) return;
    if (field == nullptr) {
        *err = EINVAL;
        return;
    }
    mirk::notify_write(h, ctx_id, &field->value, sizeof field->value);
    field->value = value;
    field->obj_flag |= mirk::modified;
}

uint8_t truth(const mirk_boolean &field) { return field.value != 0 ? uint8_t{1} : uint8_t{0}; }

std::string_view text_of(const mirk_boolean &field) { return field.value != 0 ? "true" : "false"; }

mirk_object *header(mirk_boolean *field) { return reinterpret_cast<mirk_object *>(field); }

[[gnu::noinline]] void initialize_any(mirk_handle *h, uint32_t ctx_id, mirk_boolean *object, mirk_type_info *type,
                                      uint32_t notify, uint32_t skip_count, uint8_t flags, void *, uint32_t *err) {
    if (*err != 0) return;
    if (object == nullptr) {
        *err = EINVAL;
        return;
    }
    mirk_clear_last_error(h);
    mirk::set_header(h, ctx_id, header(object), type, notify, flags, err);
    if (skip_count != 0) return;
    mirk::count_created(h, ctx_id, header(object), mirk::is_observed(h));
    *err = 0;
}

}  // namespace

extern "C" {

mirk_boolean *mirk_boolean_get(mirk_handle *, uint32_t, mirk_boolean *field, uint32_t *err) {
    return *err != 0 ? nullptr : field;
}

uint8_t mirk_boolean_get_value(mirk_handle *, uint32_t, mirk_boolean *field, uint32_t *err) {
    return *err != 0 || field == nullptr ? uint8_t{0} : field->value;
}

void mirk_boolean_set(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, const mirk_boolean *source, uint32_t *err) {
    if (*err != 0) return;
    if (source == nullptr) {
        *err = EINVAL;
    } else {
        store_any(h, ctx_id, field, source->value, err);
    }
}

void mirk_boolean_set_value(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint8_t value, uint32_t *err) {
    if (*err == 0 && field != nullptr && !mirk::is_observed(h)) [[likely]] {
        field->value = value;
        field->obj_flag |= mirk::modified;
    } else {
        store_any(h, ctx_id, field, value, err);
    }
}

// A boolean has no state area, so the tracking mode is not checked and sttr_base is not used.
void mirk_boolean_initialize(mirk_handle *h, uint32_t ctx_id, mirk_boolean *object, mirk_type_info *type,
                             uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err) {
    const bool usual =
        *err == 0 && object != nullptr && mirk::initialize_usual(h, ctx_id, header(object), type, skip_count, flags);
    if (!usual) initialize_any(h, ctx_id, object, type, notify, skip_count, flags, sttr_base, err);
}

void mirk_boolean_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, mirk_boolean *object) {
    mirk::set_embedded(h, ctx_id, header(object));
}

uint32_t mirk_boolean_len(mirk_handle *, uint32_t, mirk_boolean *) { return 2; }

uint32_t mirk_boolean_marshal(mirk_handle *, uint32_t, void *buffer, mirk_boolean *field, int32_t remaining,
                              uint32_t *err) {
    if (!mirk::can_move<2>(buffer, field, remaining, err)) return 0;
    auto *bytes = static_cast<uint8_t *>(buffer);
    bytes[0] = static_cast<uint8_t>(field->variant);
    bytes[1] = field->value;
    return 2;
}

uint32_t mirk_boolean_unmarshal(mirk_handle *, uint32_t, void *buffer, mirk_boolean *field, int32_t remaining, uint32_t,
                                uint32_t *err) {
    if (!mirk::can_move<2>(buffer, field, remaining, err)) return 0;
    const auto *bytes = static_cast<const uint8_t *>(buffer);
    const auto variant = static_cast<int8_t>(bytes[0]);
    field->variant = variant > 0 ? int8_t{0} : variant;
    field->value = bytes[1];
    return 2;
}

uint32_t mirk_boolean_print(mirk_handle *, uint32_t, char *buffer, uint32_t indent, const char *name,
                            mirk_boolean *field, int32_t remaining, uint32_t *err) {
    if (!mirk::can_move(buffer, field, 0, 0, err)) return 0;
    return mirk::print_line(buffer, indent, name, "@mirk_boolean:", text_of(*field), remaining, err);
}

uint32_t mirk_boolean_to_xml(mirk_handle *, uint32_t, const char *name, char *buffer, mirk_boolean *field,
                             int32_t remaining, uint8_t state, uint32_t *err) {
    if (!mirk::can_move(buffer, field, 0, 0, err)) return 0;
    return mirk::print_element(buffer, name, state, text_of(*field), remaining, err);
}

void mirk_boolean_from_xml(mirk_handle *, uint32_t, const char *path, void *document, mirk_boolean *field,
                           uint32_t *err, char *, uint32_t) {
    mirk::read_element(path, document, field, err, [field](std::string_view text) {
        const bool yes = text == "true" || text == "1";
        if (!yes && text != "false" && text != "0") return false;
        field->value = yes ? 1 : 0;
        return true;
    });
}

int32_t mirk_boolean_compare(const mirk_boolean *a, const mirk_boolean *b) {
    if (a == nullptr) return b == nullptr ? 0 : -1;
    if (b == nullptr) return 1;
    return truth(*a) - truth(*b);
}

// All nonzero values have the same hash, since they compare equal.
uint32_t mirk_boolean_hash(const mirk_boolean *field, uint32_t seed) {
    if (field == nullptr) return seed;
    const uint8_t value = truth(*field);
    return SuperFastHash(&value, 1, seed);
}

uint32_t mirk_boolean_backpropagate(mirk_handle *, uint32_t, mirk_boolean *field, void *) {
    const uint32_t changed = mirk_get_instance_modified(field, 1, 1);
    if (changed != 0) mirk_set_instance_modified(field, 1, 1, 0);
    return changed;
}

}  // extern "C"
