#include <algorithm>
#include <cstring>

#include "encodings/wire.h"
#include "runtime/kinds.h"

namespace tarn {

// A record in a record. In one piece with its owner if that costs no call of the runtime and little code.
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t read_nested(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                        mirk_object *instance, std::uint32_t length,
                                                        std::uint32_t reuse, std::uint32_t *err);

// The input of one frame. Offsets are 32-bit, and a nested frame's jump may carry them behind the end; every byte is
// reached through what is left there, which is then nothing. The one byte behind the end is readable, by agreement with
// the owner of the buffer, and is read by two kinds of state that stand exactly at the end.
struct Reader {
    mirk_handle *h;
    std::uint32_t ctx_id;
    std::uint8_t *buffer;
    std::uint32_t size;
    std::uint32_t reuse;
    std::uint32_t *err;
    std::uint32_t offset = 0;
    bool read_state = false;
    bool skip_state = false;
    bool tracked = false;
    std::uint8_t *area = nullptr;
    std::uint32_t old_count = 0;  // what the count or length held before it was read

    std::uint8_t *at() const { return buffer + offset; }
    std::int32_t left() const { return bytes_left(size, offset); }
    std::uint32_t step() const { return offset != size ? 1 : 0; }
    std::uint32_t at_most(std::uint32_t n) const { return std::min(n, static_cast<std::uint32_t>(left())); }

    template <class F, bool stateless = false>
    [[gnu::always_inline]] void value(mirk_object *instance) {
        if constexpr (F::member.role != Role::value) old_count = *F::at(instance);
        if constexpr (runtime_inside && F::kind == Kind::record) {
            offset += read_nested<*F::member.record>(h, ctx_id, at(), F::at(instance),
                                                     static_cast<std::uint32_t>(left()), reuse, err);
        } else {
            offset += Primitive<F>::unmarshal(h, ctx_id, at(), F::at(instance), left(), reuse, err);
        }
        if constexpr (schema::is_tracked(F::member) && !stateless) state_of<F>();
    }

    // Integers side by side that are all there, in a frame without states.
    template <class F>
    [[gnu::always_inline]] bool run(mirk_object *instance) {
        constexpr std::uint32_t size = size_of_run<F>();
        if (*err != 0 || left() < static_cast<std::int32_t>(size)) return false;
        std::uint8_t *from = at();
        std::uint32_t moved = 0, none = 0;
        walk_run<F>([&]<class M>(M) __attribute__((always_inline)) {
            if constexpr (M::member.role != Role::value) old_count = *M::at(instance);
            moved += Primitive<M>::unmarshal(h, ctx_id, from + moved, M::at(instance),
                                             static_cast<std::int32_t>(size - moved), reuse, &none);
            return true;
        });
        offset += moved;
        return true;
    }

    template <class F>
    void state_of() {
        const std::uint32_t n = step();
        if (read_state && n != 0) *F::state(area) = offset < size ? *at() : std::uint8_t{0};
        if (read_state || skip_state) offset += n;
    }

    // The state of a whole array or of a string: taken from the byte behind the end, too.
    template <class F>
    void block_state() {
        *F::state(area) = offset <= size ? *at() : std::uint8_t{0};
        offset += step();
    }

    template <class A>
    bool array(mirk_object *instance);
    template <class S>
    bool string(mirk_object *instance);
    template <class A>
    void drop_block(mirk_object *instance);
};

template <class A>
void Reader::drop_block(mirk_object *instance) {
    mirk_object **block = A::at(instance);
    for (std::uint32_t i = 0; i < old_count && h->oid_mapping != 0; ++i) {
        mirk_object *element = element_at<A::element>(*block, i);
        if ((element->obj_flag & (flag::ra_data | flag::sttr_offset)) == 0) continue;
        mirk_hd_mapping_destroy(h, ctx_id, element, err);
        References<A::element>::offset_remove(h, ctx_id, element, err);
    }
    release(h, ctx_id, *block);
    store(h, ctx_id, block, static_cast<mirk_object *>(nullptr));
}

// False: out of memory, and with it the end of this frame.
template <class A>
bool Reader::array(mirk_object *instance) {
    mirk_object **block = A::at(instance);
    const std::uint32_t n = A::stored_count(instance);
    if (n == 0) return true;

    const ElementStates states = read_state ? A::element_states(area) : ElementStates();
    const bool same_elements = *block != nullptr && old_count == n;
    if (reuse != 0 && *block != nullptr && old_count != n) drop_block<A>(instance);
    if (reuse != 0 && read_state && states.block() != nullptr && old_count != n) {
        release(h, ctx_id, states.block());
        states.put(nullptr);
    }
    if (tracked && !read_state && !same_elements) {
        // A frame without state leaves the old vector in place, but not one that may be too short for the new elements,
        // nor one that an empty frame or a failed read left behind.
        const ElementStates stale = A::element_states(state_area<A::owner>(h, ctx_id, instance));
        if (stale.block() != nullptr) {
            if (reuse != 0) release(h, ctx_id, stale.block());
            stale.put(nullptr);
        }
    }
    const std::size_t stride = A::base + (tracked ? A::width : 0);
    if (reuse == 0 || *block == nullptr) {
        announce(h, ctx_id, block);
        *block = static_cast<mirk_object *>(allocate(h, ctx_id, stride * n));
    }
    if (*block == nullptr) {
        fail(h, err, ENOMEM);
        return false;
    }
    std::memset(bytes_of(*block), 0, stride * n);
    if (read_state) {
        auto *vector = static_cast<std::uint8_t *>(allocate(h, ctx_id, n));
        states.put(vector);
        if (vector == nullptr) {
            // Elements without a header must not stay behind.
            release(h, ctx_id, *block);
            store(h, ctx_id, block, static_cast<mirk_object *>(nullptr));
            fail(h, err, ENOMEM);
            return false;
        }
        std::memset(vector, 0, n);
    }
    for (std::uint32_t i = 0; i < n; ++i) {
        mirk_object *element = element_at<A::element>(*block, i);
        const std::uintptr_t element_state = element_area<A::element>(*block, n, i);
        // On a tracking handle every element gets its place, whatever the frame brought: otherwise its state would be
        // looked for directly behind it, on top of its neighbour.
        if (tracked) mirklib_update_sttr_offset(h, ctx_id, element, distance(element, element_state));
        {
            StepErrors errors(h, err);
            Lifecycle<A::element>::initialize(h, ctx_id, element, &TypeInfo<A::element>::own, 1, 0, flag::nested,
                                              reinterpret_cast<void *>(element_state), errors.next());
        }
        offset +=
            WireRead<A::element>::unmarshal(h, ctx_id, at(), element, static_cast<std::uint32_t>(left()), reuse, err);
    }
    if (read_state) {
        block_state<A>();
        const std::uint32_t m = at_most(n);
        std::memcpy(states.block(), at(), m);
        offset += m;
    } else if (skip_state) {
        offset += step();
        offset += at_most(n);
    }
    return true;
}

template <class S>
bool Reader::string(mirk_object *instance) {
    char **body = S::at(instance);
    const std::uint32_t n = S::stored_count(instance);
    if (n == 0) return true;
    const bool keep = reuse != 0 && *body != nullptr && old_count == n;
    if (!keep) {
        if (reuse != 0 && *body != nullptr) {
            release(h, ctx_id, *body);
            store(h, ctx_id, body, static_cast<char *>(nullptr));
        }
        announce(h, ctx_id, body);
        *body = static_cast<char *>(allocate(h, ctx_id, std::size_t{char_sizeof(h)} * n));
        if (*body == nullptr) {
            fail(h, err, ENOMEM);
            return false;
        }
    }
    std::memset(*body, 0, n);
    const std::uint32_t m = at_most(n);
    std::memcpy(*body, at(), m);
    offset += m;
    if (read_state) {
        block_state<S>();
    } else if (skip_state) {
        // Unlike a scalar's: the last byte of a buffer is not stepped over. The jump makes up for it in an enclosing
        // frame.
        if (static_cast<std::int32_t>(size - offset) > 1) offset += 1;
    }
    return true;
}

namespace {

[[gnu::cold, gnu::noinline]] std::uint32_t read_ra_data(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                        mirk_object *instance, std::int32_t remaining,
                                                        std::uint32_t *err) {
    // A primitive that fails writes nothing, so everything read into a local starts at 0.
    void *ra_value = nullptr;
    std::uint8_t ra_byte = 0;
    const std::uint32_t n = _mirk_instance_ra_data_unmarshal(h, ctx_id, buffer, &ra_value, &ra_byte, remaining, err);
    mirklib_update_ra_all(h, ctx_id, instance, ra_value, ra_byte);
    return n;
}

[[gnu::cold, gnu::noinline]] void report_jump(std::uint32_t read_length, std::uint32_t jump_base, std::uint32_t jump) {
    trace(info_level, "(info): offset_jump read_len %d offset_jump_base %d _mirk_variant_jump %d", read_length,
          jump_base, jump);
}

// The seldom ones get a copy, so that the reader itself can stay in registers.
template <class First>
[[gnu::cold, gnu::noinline]] std::uint32_t read_values(Reader in, mirk_object *instance, std::uint32_t &old_count) {
    walk_run<First>([&]<class F>(F) {
        in.value<F>(instance);
        return true;
    });
    old_count = in.old_count;
    return in.offset;
}

struct Head {
    // A primitive that fails writes nothing, so everything read into a local starts at 0.
    std::int8_t variant = 0;
    std::uint8_t wire_flag = 0;
    std::uint32_t jump_base = 0, jump = 0;
};

// A sure head is there to its last byte, and what its primitives are given says so to the compiler.
template <bool sure>
[[gnu::always_inline]] inline void read_head(Reader &in, mirk_object *instance, Head &head) {
    std::uint32_t none = 0;
    std::uint32_t *err = sure ? &none : in.err;
    const auto room = [&](std::uint32_t size) { return sure ? static_cast<std::int32_t>(size) : in.left(); };
    in.offset += _mirk_instance_variant_unmarshal(in.h, in.ctx_id, in.at(), &head.variant, room(1), err);
    in.offset += _mirk_instance_obj_flag_unmarshal(in.h, in.ctx_id, in.at(), &head.wire_flag, room(1), err);
    const bool has_ra_data = (head.wire_flag & flag::ra_data) != 0;
    if (has_ra_data) in.offset += read_ra_data(in.h, in.ctx_id, in.at(), instance, in.left(), in.err);
    head.jump_base = in.offset;
    in.offset += sure && !has_ra_data
                     ? _mirk_variant_jump_unmarshal(in.h, in.ctx_id, in.at(), &head.jump, room(4), err)
                     : _mirk_variant_jump_unmarshal(in.h, in.ctx_id, in.at(), &head.jump, in.left(), in.err);
}

template <const Record &R, bool stateless>
[[gnu::always_inline]] inline bool read_members(Reader &in, mirk_object *instance) {
    return walk_while<R>([&]<class F>(F) __attribute__((always_inline)) {
        if constexpr (F::kind == Kind::array) {
            return in.array<F>(instance);
        } else if constexpr (F::kind == Kind::string) {
            return in.string<F>(instance);
        } else if constexpr (!stateless || !schema::is_integer(F::kind)) {
            in.value<F, stateless>(instance);
        } else if constexpr (!continues_run<R>(F::index)) {
            if (!in.run<F>(instance)) in.offset = read_values<F>(in, instance, in.old_count);
        }
        return true;
    });
}
struct Progress {
    std::uint32_t offset;
    bool complete;
};
template <const Record &R>
[[gnu::cold, gnu::noinline]] Progress read_stateful(Reader in, mirk_object *instance) {
    const bool complete = read_members<R, false>(in, instance);
    return {in.offset, complete};
}

template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t read_record(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                        mirk_object *instance, std::uint32_t length,
                                                        std::uint32_t reuse, std::uint32_t *err) {
    if (!begin(h, err)) return 0;
    if (static_cast<std::int32_t>(length) < 1) {
        fail(h, err, ENOMEM);
        return 0;
    }
    if (instance == nullptr) {
        fail(h, err, EINVAL);
        return 0;
    }
    Reader in{h, ctx_id, static_cast<std::uint8_t *>(buffer), length, reuse, err};

    Head head;
    if (runtime_inside && length >= record_head && buffer != nullptr) {
        read_head<true>(in, instance, head);
    } else {
        read_head<false>(in, instance, head);
    }
    const std::int8_t variant = cap_variant(head.variant);
    std::uint8_t wire_flag = head.wire_flag;

    const bool sender_tracks = (wire_flag & flag::state_tracked) != 0;
    in.tracked = tracks(h);
    if (in.tracked) {
        if (!is_state_tracked(instance)) die("(FATAL): MIRK handle and object state tracking mis-match");
        in.read_state = sender_tracks;
        if (in.read_state) in.area = state_area<R>(h, ctx_id, instance);
    } else {
        in.skip_state = sender_tracks;
        wire_flag &= static_cast<std::uint8_t>(~flag::state_tracked);
    }

    if (variant >= 0) {
        bool complete = true;
        if constexpr (!runtime_inside) {
            complete = read_members<R, false>(in, instance);
        } else if (!in.tracked && !sender_tracks) {
            complete = read_members<R, true>(in, instance);
        } else {
            const Progress progress = read_stateful<R>(in, instance);
            in.offset = progress.offset;
            complete = progress.complete;
        }
        if (!complete) return 0;
    }

    const std::uint32_t end = head.jump_base + head.jump;
    if (static_cast<std::int32_t>(end) > static_cast<std::int32_t>(in.offset)) {
        report_jump(in.offset, head.jump_base, head.jump);
        in.offset = end;
    }
    instance->variant = variant;
    instance->obj_flag |= wire_flag;
    instance->tinfo = bind_type(h, ctx_id, &TypeInfo<R>::own);
    return in.offset;
}

}  // namespace

template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t read_nested(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                        mirk_object *instance, std::uint32_t length,
                                                        std::uint32_t reuse, std::uint32_t *err) {
    if constexpr (all_integers(R)) {
        return read_record<R>(h, ctx_id, buffer, instance, length, reuse, err);
    } else {
        return WireRead<R>::unmarshal(h, ctx_id, buffer, instance, length, reuse, err);
    }
}

template <const Record &R>
std::uint32_t WireRead<R>::unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                     std::uint32_t length, std::uint32_t reuse, std::uint32_t *err) {
    return read_record<R>(h, ctx_id, buffer, instance, length, reuse, err);
}

}  // namespace tarn

#include "exports/wire_read.inc"
