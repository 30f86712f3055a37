#include "families/copy.h"

#include "core/guard.h"
#include "families/lifecycle.h"
#include "families/references.h"
#include "families/shortcuts/shortcuts.h"
#include "families/wire.h"
#include "schema/catalogue.h"

extern "C" void mirk_lumo_ui_tarn_type_trace_init(void);

namespace tarn {

namespace {

// A destroyed element stays in its array and is destroyed again with it. On a handle with object mapping, destroying it
// removes the offset of its state area, which has to be recorded again: without an offset, the states would be read
// from the next element's bytes.
template <const Record &R>
void destroy_in_array(mirk_handle *h, std::uint32_t ctx_id, mirk_object *element) {
    const bool loses_offset = h->oid_mapping != 0 && (element->obj_flag & flag::sttr_offset) != 0;
    std::uint8_t *area = loses_offset ? state_area<R>(h, ctx_id, element) : nullptr;
    Lifecycle<R>::destroy_internal(h, ctx_id, element, 0);
    if (!loses_offset) return;
    std::uint32_t error = 0;
    mirklib_update_sttr_offset(h, ctx_id, element, distance(element, address_of(area)));
    References<R>::offset_update(h, ctx_id, element, area, &error);
}

}  // namespace

template <const Record &R>
void Copy<R>::copy(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source, mirk_object **destination, void *buffer,
                   std::uint32_t size, std::uint32_t free_it, std::uint32_t *err) {
    if (!enter(h, err)) return;
    if (source == nullptr || destination == nullptr || buffer == nullptr) {
        fail(h, err, ENOENT);
        return;
    }
    if constexpr (runtime_inside && shortcut::is_closed(R)) {
        // A sticky create has another result if there is no memory.
        const bool creates = *destination == nullptr && h->cr_mode == 0;
        if (creates && shortcut::clone<R>(h, ctx_id, source, *destination, buffer, size)) {
            mirk_lumo_ui_tarn_type_trace_init();
            if (*destination == nullptr) fail(h, err, ENOMEM);
            return;
        }
    }
    const std::uint32_t written =
        WireWrite<R>::marshal_for_clone(h, ctx_id, buffer, source, static_cast<std::int32_t>(size), err);
    if (*err != 0) return;
    if (*destination == nullptr) {
        mirk_lumo_ui_tarn_type_trace_init();
        *destination = Lifecycle<R>::create_internal(h, ctx_id);
        if (*destination == nullptr) {
            fail(h, err, ENOMEM);
            return;
        }
    }
    WireRead<R>::unmarshal(h, ctx_id, buffer, *destination, written, 0, err);
    if (*err == 0) return;
    // This also destroys a destination that the caller passed in.
    if (free_it != 0) {
        Lifecycle<R>::destroy_internal(h, ctx_id, *destination, 1);
    } else {
        destroy_in_array<R>(h, ctx_id, *destination);
    }
    *destination = nullptr;
}

template <const Record &R>
void Copy<R>::copy_by_workspace(mirk_handle *h, mirk_object *source, mirk_object **destination, std::uint32_t free_it) {
    void *buffer = nullptr;
    std::uint32_t size = 0;
    mirklib_get_handle_ws(h, &buffer, &size);
    copy(h, h->default_id, source, destination, buffer, size, free_it, &h->last_error);
}

template <const Record &R>
void Copy<R>::clone(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source, mirk_object **result, void *buffer,
                    std::uint32_t size, std::uint32_t *err) {
    if (result != nullptr) *result = nullptr;
    copy(h, ctx_id, source, result, buffer, size, 1, err);
}

template <const Record &R>
mirk_object *Copy<R>::clone_cr(mirk_handle *h, mirk_object *source) {
    mirk_object *result = nullptr;
    if (h->last_error == 0) copy_by_workspace(h, source, &result, 1);
    return result;
}

template <const Record &R>
void Copy<R>::copy_cr(mirk_handle *h, mirk_object *source, mirk_object *destination) {
    if (h->last_error == 0) copy_by_workspace(h, source, &destination, 1);
}

template <const Record &R>
void Copy<R>::copy_into_element(mirk_handle *h, mirk_object *source, mirk_object *element) {
    copy_by_workspace(h, source, &element, 0);
}

}  // namespace tarn

#include "exports/copy.inc"
