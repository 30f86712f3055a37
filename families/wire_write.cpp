#include "families/frame_writer.h"
#include "families/shortcuts/shortcuts.h"

namespace tarn {

namespace {

[[gnu::cold, gnu::noinline]] std::uint32_t write_ra_data(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                         mirk_object *instance, std::int32_t remaining,
                                                         std::uint32_t *err) {
    void *ra_value = nullptr;
    std::uint8_t ra_byte = 0;
    *err = mirklib_get_ra_data(h, ctx_id, instance, &ra_value, &ra_byte);
    return _mirk_instance_ra_data_marshal(h, ctx_id, buffer, &ra_value, &ra_byte, remaining, err);
}

template <class Members>
[[gnu::always_inline]] inline void write_parts(Writer &out, mirk_object *instance, std::int8_t variant,
                                               std::uint32_t base_size, Members members) {
    mirk_handle *h = out.h;
    const std::uint32_t ctx_id = out.ctx_id;
    out.offset += _mirk_instance_variant_marshal(h, ctx_id, out.at(), &variant, out.left(), out.err);

    std::uint8_t wire_flag = mirk_get_instance_obj_flag(instance, 1, 0);
    out.tracked = tracks(h);
    if (out.tracked) {
        wire_flag |= flag::state_tracked;
        if (is_state_tracked(instance)) out.area = state_area(h, ctx_id, instance, base_size);
    } else {
        wire_flag &= static_cast<std::uint8_t>(~flag::state_tracked);
    }
    wire_flag &= flag::on_the_wire;
    out.offset += _mirk_instance_obj_flag_marshal(h, ctx_id, out.at(), &wire_flag, out.left(), out.err);
    if ((wire_flag & flag::ra_data) != 0) {
        out.offset += write_ra_data(h, ctx_id, out.at(), instance, out.left(), out.err);
    }

    // The jump is written twice: to reserve its bytes, and with its value once the end of the frame is known.
    const std::uint32_t jump_base = out.offset;
    std::uint32_t jump = 0;
    out.offset += _mirk_variant_jump_marshal(h, ctx_id, out.at(), &jump, out.left(), out.err);
    if (variant >= 0) members(out, instance);
    jump = out.offset - jump_base;
    _mirk_variant_jump_marshal(h, ctx_id, out.buffer + jump_base, &jump, sizeof jump, out.err);
}

template <const Record &R>
[[gnu::always_inline]] inline void write_frame(Writer &out, mirk_object *instance, std::int8_t variant) {
    const auto members = [](Writer &to, mirk_object *of) TARN_INLINE {
        walk<R>(cases{
            [&]<ArrayMember A>(A) TARN_INLINE { to.array<A>(of); },
            [&]<StringMember S>(S) TARN_INLINE { to.string<S>(of); },
            [&]<SingleMember F>(F) TARN_INLINE { to.value<F>(of); },
        });
    };
    write_parts(out, instance, variant, schema::layout<R>.base_size, members);
}

template <class Frame>
[[gnu::always_inline]] inline std::uint32_t write_record(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                         mirk_object *instance, std::int32_t remaining,
                                                         std::uint32_t *err, bool keeps_variant, Frame frame) {
    if (!enter(h, err)) return 0;
    if (remaining < 1) {
        fail(h, err, ENOMEM);
        return 0;
    }
    Writer out{h, ctx_id, static_cast<std::uint8_t *>(buffer), static_cast<std::uint32_t>(remaining), err};

    std::int8_t variant = mirk_get_instance_variant(instance, 1, 0);
    const std::int8_t domain_variant =
        mirk_domain_lookup_variant(h, &h->domain, instance != nullptr ? instance->tinfo : nullptr, err);
    if (variant > domain_variant && !keeps_variant) {
        // The downgrade: the frame is written in the variant that the peer's domain understands.
        mirk_store_epoch_err(h, EIDRM, err);
        variant = domain_variant;
    }
    frame(out, instance, cap_variant(variant));
    return out.offset;
}

// The members of a null instance are null. It has a function of its own, for all records, so that elsewhere the
// compiler knows that a member has an address.
[[gnu::cold, gnu::noinline]] std::uint32_t write_null(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                      std::int32_t remaining, std::uint32_t *err, bool keeps_variant,
                                                      void (*members)(Writer &, mirk_object *)) {
    return write_record(h, ctx_id, buffer, nullptr, remaining, err, keeps_variant,
                        [&](Writer &out, mirk_object *instance, std::int8_t variant) {
                            write_parts(out, instance, variant, 0, members);
                        });
}

template <const Record &R>
[[gnu::cold]] void write_null_members(Writer &out, mirk_object *) {
    walk<R>(cases{
        nothing,
        [&]<SingleMember F>(F) { out.null_value<F::kind, F::of, schema::is_tracked(F::member)>(); },
    });
}

template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t write_record(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                         mirk_object *instance, std::int32_t remaining,
                                                         std::uint32_t *err, bool keeps_variant) {
    if (instance == nullptr) {
        return write_null(h, ctx_id, buffer, remaining, err, keeps_variant, write_null_members<R>);
    }
    return write_record(h, ctx_id, buffer, instance, remaining, err, keeps_variant,
                        [](Writer &out, mirk_object *of, std::int8_t variant)
                            TARN_INLINE { write_frame<R>(out, of, variant); });
}

}  // namespace

// One function for both forms: as a template, it would exist twice per record.
template <const Record &R>
[[gnu::noinline]] std::uint32_t WireWrite<R>::write(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                    mirk_object *instance, Room room, std::uint32_t *err) {
    return write_record<R>(h, ctx_id, buffer, instance, room.remaining, err, room.keeps_variant != 0);
}

template <const Record &R>
std::uint32_t WireWrite<R>::marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                    std::int32_t remaining, std::uint32_t *err) {
    if constexpr (runtime_inside) {
        const auto written = shortcut::write<R>(h, ctx_id, buffer, instance, remaining, err);
        if (written != 0) return written;
    }
    return write(h, ctx_id, buffer, instance, {remaining, 0}, err);
}

template <const Record &R>
std::uint32_t WireWrite<R>::marshal_for_clone(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                              std::int32_t remaining, std::uint32_t *err) {
    if constexpr (runtime_inside) {
        const auto written = shortcut::write<R>(h, ctx_id, buffer, instance, remaining, err);
        if (written != 0) return written;
    }
    return write(h, ctx_id, buffer, instance, {remaining, 1}, err);
}

// An upper bound, for sizing a buffer: an empty array or string is counted with one state byte, and a string with one
// state byte per character. RA data is not counted.
template <const Record &R>
std::uint32_t WireWrite<R>::len(mirk_handle *h, std::uint32_t ctx_id, mirk_object *instance) {
    std::uint32_t sum = record_head;
    const bool has_body = mirk_get_instance_variant(instance, 1, 0) >= 0;
    if (has_body) {
        walk<R>(cases{
            [&]<ArrayMember A>(A) {
                const std::uint32_t n = A::count(instance);
                mirk_object *block = A::block(instance);
                if constexpr (schema::has_fixed_wire_size(A::element)) {
                    sum += n * WireWrite<A::element>::len(h, ctx_id, block);
                } else {
                    for (std::uint32_t i = 0; i < n; ++i) {
                        sum += WireWrite<A::element>::len(h, ctx_id, element_at<A::element>(block, i));
                    }
                }
            },
            [&]<StringMember S>(S) { sum += char_len(h, ctx_id, S::block(instance)) * S::count(instance); },
            [&]<SingleMember F>(F) { sum += Primitive<F>::len(h, ctx_id, F::at(instance)); },
        });
    }
    if (instance == nullptr || !tracks(h) || !has_body) return sum;
    walk<R>([&]<class F>(F) {
        if constexpr (schema::is_tracked(F::member)) sum += 1;
        if constexpr (schema::owns_block(F::member)) sum += F::count(instance);
    });
    return sum;
}

}  // namespace tarn

#include "exports/wire_write.inc"
