// Reading the members of one frame.
#pragma once

#include <algorithm>
#include <cstring>

#include "core/type_table.h"
#include "families/lifecycle.h"
#include "families/references.h"
#include "families/wire.h"
#include "kinds/kinds.h"

namespace tarn {

struct Head {
    // Initialized, because a primitive that fails writes nothing.
    std::int8_t variant = 0;
    std::uint8_t wire_flag = 0;
    std::uint32_t jump_base = 0, jump = 0;
};

// The input of one frame. A nested frame's jump may move the 32-bit offset past the end, so every access is limited by
// left(), which is 0 from there on. The guard byte after the end is readable: the buffer's owner provides it, and the
// state of a whole array or of a string is read from it when the frame ends just before that state.
struct Reader {
    mirk_handle *h;
    std::uint32_t ctx_id;
    std::uint8_t *buffer;
    std::uint32_t size;
    std::uint32_t reuse;
    std::uint32_t *err;
    std::uint32_t limit = size;  // the end of the buffer, or the offset once that has passed the end
    std::uint32_t offset = 0;
    bool tracked = false;          // the handle tracks state
    std::uint8_t *area = nullptr;  // where the frame's state bytes go; null if it has none
    std::uint32_t old_count = 0;   // value of the count or length before it was read

    std::uint8_t *at() const { return buffer + offset; }
    std::int32_t left() const { return static_cast<std::int32_t>(limit - offset); }
    // After what may move the offset past the end: a nested frame, by its jump, and the state that follows it.
    [[gnu::always_inline]] void pass(std::uint32_t n) {
        offset += n;
        limit = offset < size ? size : offset;
    }
    std::uint32_t step() const { return offset != size ? 1 : 0; }
    bool keeps_state() const { return area != nullptr && tracked; }
    std::uint32_t at_most(std::uint32_t n) const { return std::min(n, static_cast<std::uint32_t>(left())); }

    template <class F>
    [[gnu::always_inline]] void value(mirk_object *instance) {
        if constexpr (CounterMember<F>) old_count = *F::at(instance);
        const std::uint32_t n = Primitive<F>::unmarshal(h, ctx_id, at(), F::at(instance), left(), reuse, err);
        if constexpr (RecordMember<F>) {
            pass(n);
        } else {
            offset += n;
        }
        if constexpr (schema::is_tracked(F::member)) state_of<F>();
    }

    // The state of a whole array or of a string may be read from the guard byte.
    template <class F>
    [[gnu::always_inline]] void state_of() {
        if (area == nullptr) return;
        if (offset < size) {
            *F::state(area) = *at();
            ++offset;
            limit = size;
        } else if (offset > size) {
            *F::state(area) = 0;
            pass(1);
        } else {
            if constexpr (BlockMember<F>) *F::state(area) = *at();
            limit = size;
        }
    }

    template <ArrayMember A>
    bool array(mirk_object *instance);
    template <StringMember S>
    bool string(mirk_object *instance);
    template <ArrayMember A>
    bool make_block(mirk_object *instance, std::uint32_t n, ElementStates states);
    template <const Record &R>
    void element(mirk_object *block, std::uint32_t n, std::uint32_t index);
    void skip_to_end(const Head &head);
};

[[gnu::cold, gnu::noinline]] inline void report_jump(std::uint32_t read_length, std::uint32_t jump_base,
                                                     std::uint32_t jump) {
    trace(info_level, "(info): offset_jump read_len %d offset_jump_base %d _mirk_variant_jump %d", read_length,
          jump_base, jump);
}

// Skips what a newer sender wrote after the members known here.
[[gnu::always_inline]] inline void Reader::skip_to_end(const Head &head) {
    const std::uint32_t end = head.jump_base + head.jump;
    if (static_cast<std::int32_t>(end) <= static_cast<std::int32_t>(offset)) return;
    report_jump(offset, head.jump_base, head.jump);
    offset = end;
}

// Takes separate arguments instead of the reader, so that the reader can stay in registers. read_ra_data does, too.
template <const Record &R>
[[gnu::noinline]] void release_elements(mirk_handle *h, std::uint32_t ctx_id, mirk_object **block, std::uint32_t count,
                                        std::uint32_t *err) {
    for (std::uint32_t i = 0; i < count && h->oid_mapping != 0; ++i) {
        mirk_object *element = element_at<R>(*block, i);
        if ((element->obj_flag & (flag::ra_data | flag::sttr_offset)) == 0) continue;
        mirk_hd_mapping_destroy(h, ctx_id, element, err);
        References<R>::offset_remove(h, ctx_id, element, err);
    }
    release(h, ctx_id, *block);
    store(h, ctx_id, block, static_cast<mirk_object *>(nullptr));
}

// Allocates zeroed room for n elements, and for their states if the frame has some. False: an allocation failed.
template <ArrayMember A>
[[gnu::always_inline]] inline bool Reader::make_block(mirk_object *instance, std::uint32_t n, ElementStates states) {
    mirk_object **block = A::at(instance);
    const bool same_elements = *block != nullptr && old_count == n;
    if (reuse != 0 && *block != nullptr && old_count != n) {
        release_elements<A::element>(h, ctx_id, block, old_count, err);
    }
    if (reuse != 0 && states.block() != nullptr && old_count != n) {
        release(h, ctx_id, states.block());
        states.put(nullptr);
    }
    if (tracked && area == nullptr && !same_elements) {
        // A frame without state keeps the old vector, unless it may be too short for the new elements or was left by an
        // empty frame or a failed read.
        const ElementStates stale = A::element_states(state_area<A::owner>(h, ctx_id, instance));
        if (stale.block() != nullptr) {
            if (reuse != 0) release(h, ctx_id, stale.block());
            stale.put(nullptr);
        }
    }
    const std::size_t stride = A::base + (tracked ? A::width : 0);
    if (reuse == 0 || *block == nullptr) {
        notify_write(h, ctx_id, block);
        *block = static_cast<mirk_object *>(allocate(h, ctx_id, stride * n));
    }
    if (*block == nullptr) {
        fail(h, err, ENOMEM);
        return false;
    }
    std::memset(bytes_of(*block), 0, stride * n);
    if (keeps_state()) {
        auto *vector = static_cast<std::uint8_t *>(allocate(h, ctx_id, n));
        states.put(vector);
        if (vector == nullptr) {
            // Elements without a header must not remain.
            release(h, ctx_id, *block);
            store(h, ctx_id, block, static_cast<mirk_object *>(nullptr));
            fail(h, err, ENOMEM);
            return false;
        }
        std::memset(vector, 0, n);
    }
    return true;
}

template <const Record &R>
[[gnu::always_inline]] inline void Reader::element(mirk_object *block, std::uint32_t n, std::uint32_t index) {
    mirk_object *element = element_at<R>(block, index);
    const std::uintptr_t element_state = element_area<R>(block, n, index);
    // On a tracking handle every element gets its offset, even if the frame has no state: otherwise its state would be
    // read directly after it, from the next element's bytes.
    if (tracked) mirklib_update_sttr_offset(h, ctx_id, element, distance(element, element_state));
    StepErrors errors(*err);
    errors.add(Lifecycle<R>::initialize_new(h, ctx_id, element, flag::nested, reinterpret_cast<void *>(element_state)));
    if (const std::uint32_t error = errors.result(h); error != 0) *err = error;
    pass(WireRead<R>::unmarshal(h, ctx_id, at(), element, static_cast<std::uint32_t>(left()), reuse, err));
}

// False: an allocation failed, which ends the reading of this frame.
template <ArrayMember A>
[[gnu::always_inline]] inline bool Reader::array(mirk_object *instance) {
    const std::uint32_t n = A::stored_count(instance);
    if (n == 0) return true;

    const ElementStates states = A::element_states(keeps_state() ? area : nullptr);
    if (!make_block<A>(instance, n, states)) return false;
    for (std::uint32_t i = 0; i < n; ++i) element<A::element>(*A::at(instance), n, i);
    if (area == nullptr) return true;
    if (tracked) {
        state_of<A>();
    } else {
        pass(step());
    }
    const std::uint32_t m = at_most(n);
    if (tracked) std::memcpy(states.block(), at(), m);
    offset += m;
    return true;
}

template <StringMember S>
[[gnu::always_inline]] inline bool Reader::string(mirk_object *instance) {
    char **body = S::at(instance);
    const std::uint32_t n = S::stored_count(instance);
    if (n == 0) return true;
    const bool keep = reuse != 0 && *body != nullptr && old_count == n;
    if (!keep) {
        if (reuse != 0 && *body != nullptr) {
            release(h, ctx_id, *body);
            store(h, ctx_id, body, static_cast<char *>(nullptr));
        }
        notify_write(h, ctx_id, body);
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
    if (area == nullptr) return true;
    if (tracked) {
        state_of<S>();
    } else {
        // Unlike the state of a scalar, the last byte of a buffer is not skipped. In a nested frame, the jump corrects
        // the offset.
        if (static_cast<std::int32_t>(size - offset) > 1) pass(1);
    }
    return true;
}

[[gnu::cold, gnu::noinline]] inline std::uint32_t read_ra_data(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                               mirk_object *instance, std::int32_t remaining,
                                                               std::uint32_t *err) {
    void *ra_value = nullptr;
    std::uint8_t ra_byte = 0;
    const std::uint32_t n = _mirk_instance_ra_data_unmarshal(h, ctx_id, buffer, &ra_value, &ra_byte, remaining, err);
    mirklib_update_ra_all(h, ctx_id, instance, ra_value, ra_byte);
    return n;
}

}  // namespace tarn
