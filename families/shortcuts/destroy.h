// The archive's destruction of trees.
#pragma once

#include "families/lifecycle.h"
#include "families/shortcuts/batch.h"

namespace tarn::shortcut {

// 0 if destroying the object only has to count it: it has the expected type, variant 0, and no mapping, RA data or
// state outside of its block.
[[gnu::always_inline]] inline std::uintptr_t unusual_at_end(const void *object, const mirk_type_info *type) {
    constexpr std::uint8_t elsewhere = flag::oid_mapped | flag::state_tracked | flag::ra_data | flag::sttr_offset;
    const auto *header = static_cast<const mirk_object *>(object);
    return (address_of(header->tinfo) ^ address_of(type)) | (header_bits(header) & unusual_bits(elsewhere));
}

template <const Record &R>
[[gnu::always_inline]] inline std::uintptr_t unusual_tree_at_end(const mirk_object *object, const Types &types) {
    std::uintptr_t unusual = unusual_at_end(object, types[record_number<R>]);
    walk<R>(cases{
        [&]<RecordMember F>(F) TARN_INLINE { unusual |= unusual_tree_at_end<*F::of>(F::at(object), types); },
        [&]<AreaMember F>(F) TARN_INLINE { unusual |= unusual_at_end(F::at(object), types[member_number<F>]); },
        nothing,
    });
    return unusual;
}

template <const Record &R>
[[gnu::noinline]] void destroy_elements(Batch &batch, mirk_object *block, std::uint32_t n);

// Destroys what the arrays and strings of a usual tree contain, and frees their blocks.
template <const Record &R>
[[gnu::always_inline]] inline void release_blocks(Batch &batch, mirk_object *object) {
    const auto release_block = [&](auto **block) {
        release(batch.h, batch.ctx_id, *block);
        *block = nullptr;
    };
    walk<R>(cases{
        [&]<OpenRecordMember F>(F) TARN_INLINE { release_blocks<*F::of>(batch, F::at(object)); },
        [&]<ArrayMember A>(A) TARN_INLINE {
            mirk_object **block = A::at(object);
            if (*block == nullptr) return;
            destroy_elements<A::element>(batch, *block, A::count(object));
            release_block(block);
        },
        [&]<StringMember S>(S) TARN_INLINE {
            if (*S::at(object) != nullptr) release_block(S::at(object));
        },
        nothing,
    });
}

template <const Record &R>
[[gnu::noinline]] void destroy_elements(Batch &batch, mirk_object *block, std::uint32_t n) {
    std::uint32_t usual = 0;
    for (std::uint32_t i = 0; i < n; ++i) {
        mirk_object *element = element_at<R>(block, i);
        if (unusual_tree_at_end<R>(element, batch.types) != 0) {
            Lifecycle<R>::destroy_internal(batch.h, batch.ctx_id, element, 0);
            continue;
        }
        ++usual;
        release_blocks<R>(batch, element);
    }
    batch.add<destroyed<R>>(usual);
}

// False: the shortcut does not apply, and nothing was changed.
template <const Record &R>
[[gnu::always_inline]] inline bool destroy(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                           std::uint32_t free_it) {
    if (!is_plain(h)) return false;
    if constexpr (is_closed(R)) {
        Types types;
        if (!types.bind<destroyed<R>>(h, ctx_id) || unusual_tree_at_end<R>(object, types) != 0) return false;
        count_trees<destroyed<R>, Change::destroyed>(types, 1);
    } else {
        Batch batch{h, ctx_id};
        if (!batch.types.bind<reached<R>>(h, ctx_id) || unusual_tree_at_end<R>(object, batch.types) != 0) return false;
        release_blocks<R>(batch, object);
        batch.add<destroyed<R>>(1);
        batch.finish<reached<R>, Change::destroyed>();
    }
    if (free_it == 0) return true;
    object->tinfo = nullptr;
    mirk_inside_release(h, ctx_id, object, schema::layout<R>.base_size);
    return true;
}

}  // namespace tarn::shortcut
