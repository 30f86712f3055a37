// Reading a frame in the archive, where the runtime's primitives are inlined: what is there to its last byte is asked
// for once, and constant arguments say so to the compiler.
#pragma once

#include "core/runs.h"
#include "families/frame_reader.h"

namespace tarn::shortcut {

// Of a frame whose head is there, unless RA data moves the jump.
[[gnu::always_inline]] inline void read_head(Reader &in, mirk_object *instance, Head &head) {
    std::uint32_t none = 0;
    in.offset += _mirk_instance_variant_unmarshal(in.h, in.ctx_id, in.at(), &head.variant, sizeof head.variant, &none);
    in.offset +=
        _mirk_instance_obj_flag_unmarshal(in.h, in.ctx_id, in.at(), &head.wire_flag, sizeof head.wire_flag, &none);
    const bool has_ra_data = (head.wire_flag & flag::ra_data) != 0;
    if (has_ra_data) in.offset += read_ra_data(in.h, in.ctx_id, in.at(), instance, in.left(), in.err);
    head.jump_base = in.offset;
    in.offset += has_ra_data
                     ? _mirk_variant_jump_unmarshal(in.h, in.ctx_id, in.at(), &head.jump, in.left(), in.err)
                     : _mirk_variant_jump_unmarshal(in.h, in.ctx_id, in.at(), &head.jump, sizeof head.jump, &none);
}

// Integers side by side. False: they are not all there, and none was read.
template <class First>
[[gnu::always_inline]] inline bool read_run(Reader &in, mirk_object *instance) {
    constexpr std::uint32_t size = size_of_run<First>();
    if (*in.err != 0 || in.left() < static_cast<std::int32_t>(size)) return false;
    std::uint8_t *from = in.at();
    std::uint32_t moved = 0, none = 0;
    walk_run<First>([&]<class F>(F) TARN_INLINE {
        if constexpr (CounterMember<F>) in.old_count = *F::at(instance);
        moved += Primitive<F>::unmarshal(in.h, in.ctx_id, from + moved, F::at(instance),
                                         static_cast<std::int32_t>(size - moved), in.reuse, &none);
        return true;
    });
    in.offset += moved;
    return true;
}

// The rare ways get a copy of the reader, so that the reader itself can stay in registers.
template <class First>
[[gnu::cold, gnu::noinline]] std::uint32_t read_values(Reader in, mirk_object *instance, std::uint32_t &old_count) {
    walk_run<First>([&]<class F>(F) {
        in.value<F>(instance);
        return true;
    });
    old_count = in.old_count;
    return in.offset;
}

struct Progress {
    std::uint32_t offset;
    bool complete;
};
template <bool (*general)(Reader &, mirk_object *)>
[[gnu::cold, gnu::noinline]] Progress read_otherwise(Reader in, mirk_object *instance) {
    const bool complete = general(in, instance);
    return {in.offset, complete};
}

// Of a frame without state bytes; others are read the general way. False: out of memory.
template <const Record &R, bool (*general)(Reader &, mirk_object *)>
[[gnu::always_inline]] inline bool read_members(Reader &in, mirk_object *instance) {
    if (in.tracked || in.with_state) {
        const Progress progress = read_otherwise<general>(in, instance);
        in.offset = progress.offset;
        return progress.complete;
    }
    return walk_while<R>(cases{
        [&]<ArrayMember A>(A) TARN_INLINE { return in.array<A>(instance); },
        [&]<StringMember S>(S) TARN_INLINE { return in.string<S>(instance); },
        [&]<IntegerMember F>(F) TARN_INLINE {
            if constexpr (!continues_run<R>(F::index)) {
                if (!read_run<F>(in, instance)) in.offset = read_values<F>(in, instance, in.old_count);
            }
            return true;
        },
        [&]<SingleMember F>(F) TARN_INLINE {
            in.plain_value<F>(instance);
            return true;
        },
    });
}

}  // namespace tarn::shortcut
