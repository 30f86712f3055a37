#include "encodings/copy.h"

#include "runtime/kinds.h"

extern "C" void mirk_lumo_ui_tarn_type_trace_init(void);

namespace tarn {

template <const Record &R>
void Copy<R>::copy(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source, mirk_object **destination, void *buffer,
                   std::uint32_t size, std::uint32_t free_it, std::uint32_t *err) {
    if (!begin(h, err)) return;
    if (source == nullptr || destination == nullptr || buffer == nullptr) {
        fail(h, err, ENOENT);
        return;
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
    // A destination that the caller handed in is ended as well.
    Lifecycle<R>::destroy_internal(h, ctx_id, *destination, free_it);
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
    copy_by_workspace(h, source, &result, 1);
    return result;
}

template <const Record &R>
void Copy<R>::copy_cr(mirk_handle *h, mirk_object *source, mirk_object *destination) {
    copy_by_workspace(h, source, &destination, 1);
}

template <const Record &R>
void Copy<R>::copy_into_element(mirk_handle *h, mirk_object *source, mirk_object *element) {
    copy_by_workspace(h, source, &element, 0);
}

}  // namespace tarn

#include "exports/copy.inc"
