// The archive's reading of trees. It allocates, so it cannot start again: the general way reads just the element,
// nested record or segment that is unusual.
#pragma once

#include "families/frame_reader.h"
#include "families/shortcuts/tracked.h"

namespace tarn::shortcut {

template <const Record &R>
std::uint32_t read_open(Batch &batch, std::uint8_t *buffer, mirk_object *object, std::uint32_t length,
                        std::uint32_t reuse, std::uint32_t *err);

[[gnu::always_inline]] inline bool has(const Reader &in, std::uint32_t size) {
    return *in.err == 0 && in.left() >= static_cast<std::int32_t>(size);
}

template <const Record &R>
[[gnu::noinline]] void read_elements(Batch &batch, Reader &in, mirk_object *block, std::uint32_t n) {
    std::uint32_t usual = 0;
    for (std::uint32_t i = 0; i < n; ++i) {
        mirk_object *element = element_at<R>(block, i);
        if constexpr (is_closed(R)) {
            if (has(in, frame_size<R>) && unusual_frame<R>(in.at()) == 0) {
                put_headers<R, Memory::fresh>(element, batch.types, flag::nested);
                get_closed_record<R, Memory::fresh>(in.at(), element, batch.types);
                in.offset += frame_size<R>;
                ++usual;
                continue;
            }
        } else if (*in.err == 0) {
            put_headers<R, Memory::fresh>(element, batch.types, flag::nested);
            in.pass(read_open<R>(batch, in.at(), element, static_cast<std::uint32_t>(in.left()), in.reuse, in.err));
            ++usual;
            continue;
        }
        in.element<R>(block, n, i);
    }
    batch.add<made<R>>(usual);
    batch.lookups += std::uint64_t{usual} * n_made<R>;
}

// Takes the reader by value, so that the caller's copy can stay in registers.
template <class First>
[[gnu::cold, gnu::noinline]] std::uint32_t read_segment_in_general(Reader in, mirk_object *object,
                                                                   std::uint32_t &old_count) {
    walk_segment<First>([&]<class F>(F) { in.value<F>(object); });
    old_count = in.old_count;
    return in.offset;
}
template <class First>
[[gnu::always_inline]] inline void read_segment(const Batch &batch, Reader &in, mirk_object *object) {
    constexpr std::uint32_t size = size_of_segment<First>();
    std::uint32_t unusual = 1;
    if (has(in, size)) {
        unusual = 0;
        const std::uint8_t *from = in.at();
        walk_segment<First>([&]<class F>(F) TARN_INLINE {
            unusual |= unusual_member_in<F>(from);
            from += part_size<F>;
        });
    }
    if (unusual != 0) {
        in.pass(read_segment_in_general<First>(in, object, in.old_count) - in.offset);
        return;
    }
    const std::uint8_t *from = in.at();
    walk_segment<First>([&]<class F>(F) TARN_INLINE {
        if constexpr (CounterMember<F>) in.old_count = *F::at(object);
        get_member<F, Memory::any>(from, object, batch.types);
        from += part_size<F>;
    });
    in.offset += size;
}

// The equivalent of read_record for a handle without tracking.
template <const Record &R>
std::uint32_t read_open(Batch &batch, std::uint8_t *buffer, mirk_object *object, std::uint32_t length,
                        std::uint32_t reuse, std::uint32_t *err) {
    const bool usual = *err == 0 && static_cast<std::int32_t>(length) >= static_cast<std::int32_t>(record_head) &&
                       get<std::uint16_t>(buffer) == 0;
    if (!usual) return unmarshal_any<R>(batch.h, batch.ctx_id, buffer, object, length, reuse, err);
    Reader in{batch.h, batch.ctx_id, buffer, length, reuse, err};
    const Head head{.jump_base = jump_offset, .jump = get<std::uint32_t>(buffer + jump_offset)};
    in.offset = record_head;
    const bool complete = walk_while<R>(cases{
        [&]<ArrayMember A>(A) TARN_INLINE {
            const std::uint32_t n = A::stored_count(object);
            if (n == 0) return true;
            if (!in.make_block<A>(object, n, ElementStates())) return false;
            read_elements<A::element>(batch, in, *A::at(object), n);
            return true;
        },
        [&]<StringMember S>(S) TARN_INLINE { return in.string<S>(object); },
        [&]<OpenRecordMember F>(F) TARN_INLINE {
            const auto left = static_cast<std::uint32_t>(in.left());
            in.pass(read_open<*F::of>(batch, in.at(), F::at(object), left, reuse, err));
            return true;
        },
        [&]<SingleMember F>(F) TARN_INLINE {
            if constexpr (begins_segment<F>()) read_segment<F>(batch, in, object);
            return true;
        },
    });
    if (!complete) return 0;
    in.skip_to_end(head);
    object->variant = 0;
    object->tinfo = batch.types[record_number<R>];
    return in.offset;
}

// False: the shortcut does not apply, and nothing was changed. Otherwise consumed is the operation's result.
template <const Record &R>
[[gnu::always_inline]] inline bool read(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *object,
                                        std::uint32_t length, std::uint32_t reuse, std::uint32_t *err,
                                        std::uint32_t &consumed) {
    auto *const frame = static_cast<std::uint8_t *>(buffer);
    if (*err != 0 || frame == nullptr || object == nullptr || !mirk_inside_is_unobserved(h)) return false;
    if constexpr (is_closed(R)) {
        if (has_states(h)) {
            consumed = read_tracked<R>(h, ctx_id, frame, object, length);
            return consumed != 0;
        }
        if (static_cast<std::int32_t>(length) < static_cast<std::int32_t>(frame_size<R>)) return false;
        Types types;
        if (!types.bind<made<R>>(h, ctx_id) || unusual_frame<R>(frame) != 0) return false;
        h->last_error = 0;
        get_closed_record<R, Memory::any>(frame, object, types);
        object->variant = 0;
        object->tinfo = types[record_number<R>];
        consumed = frame_size<R>;
    } else {
        if (has_states(h) || static_cast<std::int32_t>(length) < static_cast<std::int32_t>(record_head)) return false;
        Batch batch{h, ctx_id};
        if (!batch.types.bind<reached<R>>(h, ctx_id) || get<std::uint16_t>(frame) != 0) return false;
        h->last_error = 0;
        consumed = read_open<R>(batch, frame, object, length, reuse, err);
        batch.finish<reached<R>, Change::created>();
    }
    return true;
}

}  // namespace tarn::shortcut
