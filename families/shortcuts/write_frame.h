// Writing a frame in the archive, where the runtime's primitives are inlined: if nothing can be refused, the head and
// each run of integers ask for room once, and constant arguments say so to the compiler.
#pragma once

#include "core/runs.h"
#include "families/frame_writer.h"

namespace tarn::shortcut {

// A prechecked frame has no state bytes and no RA data, its instance and buffer are there, and its head fits.
[[gnu::always_inline]] inline bool is_prechecked(const Writer &out, const mirk_object *instance) {
    return *out.err == 0 && out.buffer != nullptr && instance != nullptr && (instance->obj_flag & flag::ra_data) == 0 &&
           !tracks(out.h) && out.size >= record_head;
}

// Integers side by side. False: there is not room for all of them, and none was written.
template <class First>
[[gnu::always_inline]] inline bool write_run(Writer &out, mirk_object *instance) {
    constexpr std::uint32_t size = size_of_run<First>();
    if (*out.err != 0 || out.left() < static_cast<std::int32_t>(size)) return false;
    std::uint8_t *to = out.at();
    std::uint32_t moved = 0, none = 0;
    walk_run<First>([&]<class F>(F) TARN_INLINE {
        moved += Primitive<F>::marshal(out.h, out.ctx_id, to + moved, F::at(instance),
                                       static_cast<std::int32_t>(size - moved), &none);
        return true;
    });
    out.offset += moved;
    return true;
}

// The rare ways get a copy of the writer, so that the writer itself can stay in registers.
template <class First>
[[gnu::cold, gnu::noinline]] std::uint32_t write_values(Writer out, mirk_object *instance) {
    walk_run<First>([&]<class F>(F) {
        out.value<F>(instance);
        return true;
    });
    return out.offset;
}

template <const Record &R>
[[gnu::always_inline]] inline void write_prechecked(Writer &out, mirk_object *instance, std::int8_t variant) {
    mirk_handle *h = out.h;
    const std::uint32_t ctx_id = out.ctx_id;
    std::uint32_t none = 0;
    out.offset += _mirk_instance_variant_marshal(h, ctx_id, out.at(), &variant, sizeof variant, &none);
    std::uint8_t wire_flag = mirk_get_instance_obj_flag(instance, 1, 0);
    wire_flag &= flag::on_the_wire & ~flag::state_tracked;
    out.offset += _mirk_instance_obj_flag_marshal(h, ctx_id, out.at(), &wire_flag, sizeof wire_flag, &none);
    const std::uint32_t jump_base = out.offset;
    std::uint32_t jump = 0;
    out.offset += _mirk_variant_jump_marshal(h, ctx_id, out.at(), &jump, sizeof jump, &none);
    if (variant >= 0) {
        walk<R>(cases{
            [&]<ArrayMember A>(A) TARN_INLINE { out.array<A>(instance); },
            [&]<StringMember S>(S) TARN_INLINE { out.string<S>(instance); },
            [&]<IntegerMember F>(F) TARN_INLINE {
                if constexpr (!continues_run<R>(F::index)) {
                    if (!write_run<F>(out, instance)) out.offset = write_values<F>(out, instance);
                }
            },
            [&]<SingleMember F>(F) TARN_INLINE { out.value<F>(instance); },
        });
    }
    jump = out.offset - jump_base;
    _mirk_variant_jump_marshal(h, ctx_id, out.buffer + jump_base, &jump, sizeof jump, out.err);
}

template <const Record &R, void (*general)(Writer &, mirk_object *, std::int8_t)>
[[gnu::cold, gnu::noinline]] std::uint32_t write_otherwise(Writer out, mirk_object *instance, std::int8_t variant) {
    general(out, instance, variant);
    return out.offset;
}

template <const Record &R, void (*general)(Writer &, mirk_object *, std::int8_t)>
[[gnu::always_inline]] inline void write_frame(Writer &out, mirk_object *instance, std::int8_t variant) {
    if (is_prechecked(out, instance)) {
        write_prechecked<R>(out, instance, variant);
    } else {
        out.offset = write_otherwise<R, general>(out, instance, variant);
    }
}

}  // namespace tarn::shortcut
