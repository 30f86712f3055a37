// The archive's writing of trees. If it meets anything unusual, it stops and the general way writes the whole tree
// again: the bytes written so far are the same.
#pragma once

#include "families/shortcuts/tracked.h"

namespace tarn::shortcut {

struct Output {
    const std::uint8_t *end;
    std::uint64_t lookups = 0;

    bool has_room(const std::uint8_t *at, std::uint64_t size) const {
        return size <= static_cast<std::uint64_t>(end - at);
    }
};

template <const Record &R>
[[gnu::noinline]] std::uint8_t *write_elements(Output &out, std::uint8_t *at, mirk_object *block, std::uint32_t n);

// These return the end of what was written, or null if the tree is unusual or does not fit.
template <const Record &R>
[[gnu::always_inline]] inline std::uint8_t *write_closed(std::uint8_t *at, mirk_object *object) {
    if (unusual_record_to_write<R>(object) != 0) return nullptr;
    put_closed_record<R>(at, object);
    return at + frame_size<R>;
}

template <const Record &R>
std::uint8_t *write_open(Output &out, std::uint8_t *at, mirk_object *object) {
    if (!out.has_room(at, record_head) || unusual_record_to_write<R>(object) != 0) return nullptr;
    std::uint8_t *const jump = at + jump_offset;
    put(at, std::uint16_t{0});
    at += record_head;
    ++out.lookups;
    const bool written = walk_while<R>(cases{
        [&]<ArrayMember A>(A) TARN_INLINE {
            const std::uint32_t n = A::count(object);
            if (n != 0) at = write_elements<A::element>(out, at, *A::at(object), n);
            return at != nullptr;
        },
        [&]<StringMember S>(S) TARN_INLINE {
            const std::uint32_t n = S::count(object);
            if (!out.has_room(at, n)) return false;
            if (n != 0) std::memcpy(at, *S::at(object), n);
            at += n;
            return true;
        },
        [&]<OpenRecordMember F>(F) TARN_INLINE {
            at = write_open<*F::of>(out, at, F::at(object));
            return at != nullptr;
        },
        [&]<SingleMember First>(First) TARN_INLINE {
            if constexpr (begins_segment<First>()) {
                if (!out.has_room(at, size_of_segment<First>())) return false;
                walk_segment<First>([&]<class F>(F) TARN_INLINE {
                    put_member<F>(at, object);
                    at += part_size<F>;
                    if constexpr (ClosedRecordMember<F>) out.lookups += n_checked<*F::of>;
                    if constexpr (AddressMember<F> || EnumerationMember<F>) ++out.lookups;
                });
            }
            return true;
        },
    });
    if (!written) return nullptr;
    put(jump, static_cast<std::uint32_t>(at - jump));
    return at;
}

template <const Record &R>
[[gnu::noinline]] std::uint8_t *write_elements(Output &out, std::uint8_t *at, mirk_object *block, std::uint32_t n) {
    if constexpr (is_closed(R)) {
        if (!out.has_room(at, std::uint64_t{n} * frame_size<R>)) return nullptr;
        out.lookups += std::uint64_t{n} * n_checked<R>;
    }
    for (std::uint32_t i = 0; i < n && at != nullptr; ++i) {
        mirk_object *element = element_at<R>(block, i);
        if constexpr (is_closed(R)) {
            at = write_closed<R>(at, element);
        } else {
            at = write_open<R>(out, at, element);
        }
    }
    return at;
}

// Returns the number of bytes written, or 0 if the shortcut does not apply.
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t write(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                  mirk_object *object, std::int32_t remaining,
                                                  const std::uint32_t *err) {
    auto *const begin = static_cast<std::uint8_t *>(buffer);
    if (*err != 0 || begin == nullptr || object == nullptr || !mirk_inside_is_unobserved(h)) return 0;
    std::uint8_t *end = nullptr;
    if constexpr (is_closed(R)) {
        if (has_states(h)) return write_tracked<R>(h, ctx_id, begin, object, remaining);
        if (remaining < static_cast<std::int32_t>(frame_size<R>)) return 0;
        end = write_closed<R>(begin, object);
        if (end == nullptr) return 0;
        mirk_inside_count_lookups(h, n_checked<R>);
    } else {
        if (has_states(h) || remaining < static_cast<std::int32_t>(record_head)) return 0;
        Output out{begin + remaining};
        end = write_open<R>(out, begin, object);
        if (end == nullptr) return 0;
        mirk_inside_count_lookups(h, out.lookups);
    }
    h->last_error = 0;
    return static_cast<std::uint32_t>(end - begin);
}

}  // namespace tarn::shortcut
