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
[[gnu::always_inline]] inline bool can_make(mirk_handle *h, std::uint32_t ctx_id, Types &types) {
    return is_plain(h) && types.bind<made<R>>(h, ctx_id);
}
template <const Record &R>
[[gnu::always_inline]] inline void count_made(mirk_handle *h, const Types &types, std::uint64_t n) {
    h->last_error = 0;
    count_trees<made<R>, Change::created>(types, n);
    mirk_inside_count_lookups(h, n * n_made<R>);
}

// Initializes n elements. False: the shortcut does not apply, and nothing was changed.
template <const Record &R, Memory memory>
[[gnu::always_inline]] inline bool initialize(mirk_handle *h, std::uint32_t ctx_id, mirk_object *first, std::uint64_t n,
                                              std::uint8_t flags, const std::uint32_t *err) {
    Types types;
    if (*err != 0 || !can_make<R>(h, ctx_id, types)) return false;
    for (std::uint64_t i = 0; i < n; ++i) {
        put_headers<R, memory>(element_at<R>(first, static_cast<std::uint32_t>(i)), types, flags);
    }
    count_made<R>(h, types, n);
    return true;
}

// A new tree, or null if there is no memory.
template <const Record &R>
[[gnu::always_inline]] inline mirk_object *make(mirk_handle *h, std::uint32_t ctx_id, const Types &types) {
    constexpr std::size_t size = schema::layout<R>.base_size;
    auto *object = static_cast<mirk_object *>(mirk_inside_allocate(h, ctx_id, size));
    if (object == nullptr) return nullptr;
    std::memset(bytes_of(object), 0, size);
    put_headers<R, Memory::fresh>(object, types, 0);
    count_made<R>(h, types, 1);
    return object;
}

}  // namespace tarn::shortcut
