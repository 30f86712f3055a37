#include <algorithm>
#include <cstring>

#include "encodings/wire.h"
#include "runtime/kinds.h"

namespace tarn {

// A record in a record. In one piece with its owner if that costs no call of the runtime and little code.
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t write_nested(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                         mirk_object *instance, std::int32_t remaining,
                                                         std::uint32_t *err);

// The output of one frame. Nothing stops a walk when a member fails: what follows finds the slot set and writes
// nothing, the state bytes still go out, and the caller decides at the end.
struct Writer {
    mirk_handle *h;
    std::uint32_t ctx_id;
    std::uint8_t *buffer;
    std::uint32_t size;
    std::uint32_t *err;
    std::uint32_t offset = 0;
    bool tracked = false;
    std::uint8_t *area = nullptr;  // null: an instance without state, each of whose state bytes is 0

    std::uint8_t *at() const { return buffer + offset; }
    std::int32_t left() const { return bytes_left(size, offset); }

    // Stored in a buffer that is full too, in the one byte behind its end, and not counted there.
    void state(std::uint8_t value) {
        *at() = value;
        offset += offset != size ? 1 : 0;
    }
    template <class F>
    void state_of() {
        if (tracked) state(area != nullptr ? *F::state(area) : std::uint8_t{0});
    }

    template <class F>
    [[gnu::always_inline]] void value(mirk_object *instance) {
        if constexpr (runtime_inside && F::kind == Kind::record) {
            offset += write_nested<*F::member.record>(h, ctx_id, at(), F::at(instance), left(), err);
        } else {
            offset += Primitive<F>::marshal(h, ctx_id, at(), F::at(instance), left(), err);
        }
        if constexpr (schema::is_tracked(F::member)) state_of<F>();
    }

    // Integers side by side for which there is room.
    template <class F>
    [[gnu::always_inline]] bool run(mirk_object *instance) {
        constexpr std::uint32_t size = size_of_run<F>();
        if (*err != 0 || left() < static_cast<std::int32_t>(size)) return false;
        std::uint8_t *to = at();
        std::uint32_t moved = 0, none = 0;
        walk_run<F>([&]<class M>(M) __attribute__((always_inline)) {
            moved += Primitive<M>::marshal(h, ctx_id, to + moved, M::at(instance),
                                           static_cast<std::int32_t>(size - moved), &none);
            return true;
        });
        offset += moved;
        return true;
    }

    template <class F>
    void array(mirk_object *instance) {
        const std::uint32_t n = F::count(instance);
        if (n == 0) return;
        mirk_object *block = *F::at(instance);
        for (std::uint32_t i = 0; i < n; ++i) {
            offset += WireWrite<F::element>::marshal(h, ctx_id, at(), element_at<F::element>(block, i), left(), err);
        }
        if (!tracked) return;
        state_of<F>();
        // Cut to what remains without an error: whoever sizes the buffer by len has room.
        const std::uint32_t fits = std::min(n, static_cast<std::uint32_t>(left()));
        const ElementStates states = F::element_states(area);
        if (const std::uint8_t *block_of_states = states.block(); block_of_states != nullptr) {
            std::memcpy(at(), block_of_states, fits);
        } else {
            std::memset(at(), states.fill(), fits);
        }
        offset += fits;
    }

    template <class F>
    void string(mirk_object *instance) {
        std::uint32_t n = F::count(instance);
        if (n == 0) return;
        if (n > static_cast<std::uint32_t>(left())) {
            fail(h, err, EMSGSIZE);
            n = static_cast<std::uint32_t>(left());
        }
        std::memcpy(at(), *F::at(instance), n);
        offset += n;
        state_of<F>();
    }
};

namespace {

[[gnu::cold, gnu::noinline]] std::uint32_t write_ra_data(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                         mirk_object *instance, std::int32_t remaining,
                                                         std::uint32_t *err) {
    void *ra_value = nullptr;
    std::uint8_t ra_byte = 0;
    *err = mirklib_get_ra_data(h, ctx_id, instance, &ra_value, &ra_byte);
    return _mirk_instance_ra_data_marshal(h, ctx_id, buffer, &ra_value, &ra_byte, remaining, err);
}

// The seldom ones get a copy, so that the writer itself can stay in registers.
template <class First>
[[gnu::cold, gnu::noinline]] std::uint32_t write_values(Writer out, mirk_object *instance) {
    walk_run<First>([&]<class F>(F) {
        out.value<F>(instance);
        return true;
    });
    return out.offset;
}

// What follows the look-up of the variant. A sure frame is written if the runtime's primitives are inlined and have
// nothing to refuse: its head and its integers ask once, and what their primitives are given says so to the compiler.
template <const Record &R, bool sure>
[[gnu::always_inline]] inline void write_frame(Writer &out, mirk_object *instance, std::int8_t variant) {
    mirk_handle *h = out.h;
    const std::uint32_t ctx_id = out.ctx_id;
    std::uint32_t none = 0;
    std::uint32_t *err = sure ? &none : out.err;
    const auto room = [&](std::uint32_t size) { return sure ? static_cast<std::int32_t>(size) : out.left(); };

    out.offset += _mirk_instance_variant_marshal(h, ctx_id, out.at(), &variant, room(sizeof variant), err);

    std::uint8_t wire_flag = mirk_get_instance_obj_flag(instance, 1, 0);
    out.tracked = !sure && tracks(h);
    if (out.tracked) {
        wire_flag |= flag::state_tracked;
        if (is_state_tracked(instance)) out.area = state_area<R>(h, ctx_id, instance);
    } else {
        wire_flag &= static_cast<std::uint8_t>(~flag::state_tracked);
    }
    wire_flag &= flag::on_the_wire;
    out.offset += _mirk_instance_obj_flag_marshal(h, ctx_id, out.at(), &wire_flag, room(sizeof wire_flag), err);

    if (!sure && (wire_flag & flag::ra_data) != 0) {
        out.offset += write_ra_data(h, ctx_id, out.at(), instance, out.left(), err);
    }

    const std::uint32_t jump_base = out.offset;
    std::uint32_t jump = 0;
    out.offset += _mirk_variant_jump_marshal(h, ctx_id, out.at(), &jump, room(sizeof jump), err);
    if (variant >= 0) {
        walk<R>([&]<class F>(F) __attribute__((always_inline)) {
            if constexpr (F::kind == Kind::array) {
                out.array<F>(instance);
            } else if constexpr (F::kind == Kind::string) {
                out.string<F>(instance);
            } else if constexpr (!sure || !schema::is_integer(F::kind)) {
                out.value<F>(instance);
            } else if constexpr (!continues_run<R>(F::index)) {
                if (!out.run<F>(instance)) out.offset = write_values<F>(out, instance);
            }
        });
    }
    jump = out.offset - jump_base;
    _mirk_variant_jump_marshal(h, ctx_id, out.buffer + jump_base, &jump, sizeof jump, out.err);
}
template <const Record &R>
[[gnu::cold, gnu::noinline]] std::uint32_t write_unsure_frame(Writer out, mirk_object *instance, std::int8_t variant) {
    write_frame<R, false>(out, instance, variant);
    return out.offset;
}

template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t write_record(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                         mirk_object *instance, std::int32_t remaining,
                                                         std::uint32_t *err, bool hold_to_domain) {
    if (!begin(h, err)) return 0;
    if (remaining < 1) {
        fail(h, err, ENOMEM);
        return 0;
    }
    Writer out{h, ctx_id, static_cast<std::uint8_t *>(buffer), static_cast<std::uint32_t>(remaining), err};

    std::int8_t variant = mirk_get_instance_variant(instance, 1, 0);
    const std::int8_t domain_variant =
        mirk_domain_lookup_variant(h, &h->domain, instance != nullptr ? instance->tinfo : nullptr, err);
    if (hold_to_domain && variant > domain_variant) {
        // The downgrade: the frame goes out in the variant that the peer's domain understands.
        mirk_store_epoch_err(h, EIDRM, err);
        variant = domain_variant;
    }
    variant = cap_variant(variant);
    if constexpr (!runtime_inside) {
        write_frame<R, false>(out, instance, variant);
    } else if (*err == 0 && buffer != nullptr && instance != nullptr && (instance->obj_flag & flag::ra_data) == 0 &&
               !tracks(h) && remaining >= static_cast<std::int32_t>(record_head)) {
        write_frame<R, true>(out, instance, variant);
    } else {
        out.offset = write_unsure_frame<R>(out, instance, variant);
    }
    return out.offset;
}

}  // namespace

template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t write_nested(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                         mirk_object *instance, std::int32_t remaining,
                                                         std::uint32_t *err) {
    if constexpr (all_integers(R)) {
        return write_record<R>(h, ctx_id, buffer, instance, remaining, err, true);
    } else {
        return WireWrite<R>::marshal(h, ctx_id, buffer, instance, remaining, err);
    }
}

// One function for both forms: as a template it would be there twice for each record.
template <const Record &R>
[[gnu::noinline]] std::uint32_t WireWrite<R>::write(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                    mirk_object *instance, std::int32_t remaining, std::uint32_t *err,
                                                    bool hold_to_domain) {
    return write_record<R>(h, ctx_id, buffer, instance, remaining, err, hold_to_domain);
}

template <const Record &R>
std::uint32_t WireWrite<R>::marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                    std::int32_t remaining, std::uint32_t *err) {
    return write(h, ctx_id, buffer, instance, remaining, err, true);
}

template <const Record &R>
std::uint32_t WireWrite<R>::marshal_for_clone(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                              std::int32_t remaining, std::uint32_t *err) {
    return write(h, ctx_id, buffer, instance, remaining, err, false);
}

// Sizes a buffer, and so says more than is written in two places: an empty array or string is counted one state byte,
// and a string's state one byte for each character. RA data is not counted.
template <const Record &R>
std::uint32_t WireWrite<R>::len(mirk_handle *h, std::uint32_t ctx_id, mirk_object *instance) {
    std::uint32_t sum = record_head;
    const bool has_body = mirk_get_instance_variant(instance, 1, 0) >= 0;
    if (has_body) {
        walk<R>([&]<class F>(F) {
            if constexpr (F::kind == Kind::array) {
                const std::uint32_t n = F::count(instance);
                mirk_object *block = instance != nullptr ? *F::at(instance) : nullptr;
                if constexpr (schema::has_fixed_wire_size(F::element)) {
                    sum += n * WireWrite<F::element>::len(h, ctx_id, block);
                } else {
                    for (std::uint32_t i = 0; i < n; ++i) {
                        sum += WireWrite<F::element>::len(h, ctx_id, element_at<F::element>(block, i));
                    }
                }
            } else if constexpr (F::kind == Kind::string) {
                char *body = instance != nullptr ? *F::at(instance) : nullptr;
                sum += char_len(h, ctx_id, body) * F::count(instance);
            } else {
                sum += Primitive<F>::len(h, ctx_id, F::at(instance));
            }
        });
    }
    if (instance == nullptr || !tracks(h) || !has_body) return sum;
    walk<R>([&]<class F>(F) {
        if constexpr (schema::is_tracked(F::member)) sum += 1;
        if constexpr (schema::owns_block(F::member)) sum += F::count(instance);
    });
    return sum;
}

template <const Record &R>
std::uint32_t WireWrite<R>::len_cr(mirk_handle *h, mirk_object *instance) {
    return h->last_error != 0 ? 0 : len(h, h->default_id, instance);
}

}  // namespace tarn

#include "exports/wire_write.inc"
