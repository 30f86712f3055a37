// The archive's initialization of trees: one store of each header, at a constant offset.
#pragma once

#include "families/shortcuts/batch.h"

namespace tarn::shortcut {

// Fresh memory is zeroed; any other keeps what initialization does not set.
enum class Memory { fresh, any };

template <Memory memory>
[[gnu::always_inline]] inline void put_header(mirk_object *object, mirk_type_info *type, std::uint8_t flags) {
    object->tinfo = type;
    if constexpr (memory == Memory::fresh) {
        if (flags != 0) object->obj_flag = flags;
    } else {
        object->variant = object->home_variant = 0;
        object->obj_flag |= flags;
    }
}

template <const Record &R, Memory memory>
[[gnu::always_inline]] inline void put_headers(mirk_object *object, const Types &types, std::uint8_t flags) {
    put_header<memory>(object, types[record_number<R>], flags);
    walk<R>(cases{
        [&]<RecordMember F>(F) TARN_INLINE { put_headers<*F::of, memory>(F::at(object), types, flag::nested); },
        [&]<EmbeddedMember F>(F) TARN_INLINE {
            auto *header = reinterpret_cast<mirk_object *>(F::at(object));
            put_header<memory>(header, types[member_number<F>], flag::nested);
        },
        nothing,
    });
}

// False: the shortcut does not apply, and nothing was changed.
template <const Record &R>
[[gnu::always_inline]] inline bool initialize(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                              std::uint8_t flags, const std::uint32_t *err) {
    Types types;
    if (*err != 0 || !mirk_inside_is_unobserved(h) || !types.bind<made<R>>(h, ctx_id)) return false;
    h->last_error = 0;
    put_headers<R, Memory::any>(object, types, flags);
    count_trees<made<R>, Change::created>(types, 1);
    mirk_inside_count_lookups(h, n_made<R>);
    return true;
}

// The same in new memory. object is null if there is none.
template <const Record &R>
[[gnu::always_inline]] inline bool create(mirk_handle *h, std::uint32_t ctx_id, mirk_object *&object) {
    Types types;
    if (!mirk_inside_is_unobserved(h) || !types.bind<made<R>>(h, ctx_id)) return false;
    object = static_cast<mirk_object *>(allocate(h, ctx_id, schema::layout<R>.base_size));
    if (object == nullptr) return true;
    h->last_error = 0;
    std::memset(bytes_of(object), 0, schema::layout<R>.base_size);
    put_headers<R, Memory::fresh>(object, types, 0);
    count_trees<made<R>, Change::created>(types, 1);
    mirk_inside_count_lookups(h, n_made<R>);
    return true;
}

// The same for n elements in fresh memory.
template <const Record &R>
bool initialize_elements(mirk_handle *h, std::uint32_t ctx_id, mirk_object *first, std::uint64_t n,
                         const std::uint32_t *err) {
    Types types;
    if (*err != 0 || !mirk_inside_is_unobserved(h) || !types.bind<made<R>>(h, ctx_id)) return false;
    h->last_error = 0;
    for (std::uint64_t i = 0; i < n; ++i) {
        mirk_object *element = element_at<R>(first, static_cast<std::uint32_t>(i));
        put_headers<R, Memory::fresh>(element, types, flag::nested);
    }
    count_trees<made<R>, Change::created>(types, n);
    mirk_inside_count_lookups(h, n * n_made<R>);
    return true;
}

}  // namespace tarn::shortcut
