// Writing the members of one frame.
#pragma once

#include <algorithm>
#include <array>
#include <cstring>

#include "families/wire.h"
#include "kinds/kinds.h"
#include "schema/catalogue.h"

namespace tarn {

// The states of an instance without a state area. Read where it would need a test for each member.
inline constexpr auto no_states = [] {
    constexpr std::size_t widest = [] {
        std::size_t width = 0;
        for (const Record *record : schema::records) {
            width = std::max(width, std::size_t{schema::lay_out(*record).state_width});
        }
        return width;
    }();
    return std::array<std::uint8_t, widest>{};
}();

// The output of one frame. The walk continues after a member has failed: later members are no-ops because the slot is
// set, state bytes are still written, and the caller checks the slot at the end.
struct Writer {
    mirk_handle *h;
    std::uint32_t ctx_id;
    std::uint8_t *buffer;
    std::uint32_t size;
    std::uint32_t *err;
    std::uint32_t offset = 0;
    bool tracked = false;
    const std::uint8_t *area = no_states.data();

    [[gnu::always_inline]] std::uint8_t *at() const { return buffer + offset; }
    // Nothing that writes passes the end.
    [[gnu::always_inline]] std::int32_t left() const { return static_cast<std::int32_t>(size - offset); }

    // If the buffer is full, writes the guard byte after its end, which is not counted.
    [[gnu::always_inline]] void state(std::uint8_t value) {
        *at() = value;
        offset += offset != size ? 1 : 0;
    }
    template <class F>
    TARN_INLINE_INSIDE void state_of() {
        if (tracked) state(area[F::place.slot]);
    }

    template <class F>
    [[gnu::always_inline]] void value(mirk_object *instance) {
        offset += Primitive<F>::marshal(h, ctx_id, at(), F::at(instance), left(), err);
        if constexpr (schema::is_tracked(F::member)) state_of<F>();
    }

    // A single value of a null instance: a null member, and a state byte of 0.
    template <Kind K, auto Of, bool is_tracked>
    [[gnu::cold, gnu::noinline]] void null_value() {
        offset += PrimitiveOf<K, Of>::marshal(h, ctx_id, at(), nullptr, left(), err);
        if (is_tracked && tracked) state(0);
    }

    template <ArrayMember A>
    void array(mirk_object *instance) {
        const std::uint32_t n = A::count(instance);
        if (n == 0) return;
        mirk_object *block = *A::at(instance);
        for (std::uint32_t i = 0; i < n; ++i) {
            offset += WireWrite<A::element>::marshal(h, ctx_id, at(), element_at<A::element>(block, i), left(), err);
        }
        if (!tracked) return;
        state_of<A>();
        // Truncated without an error, since a buffer sized by len always has room.
        const std::uint32_t fits = std::min(n, static_cast<std::uint32_t>(left()));
        const ElementStates states = A::element_states(const_cast<std::uint8_t *>(area));  // only read
        if (const std::uint8_t *block_of_states = states.block(); block_of_states != nullptr) {
            std::memcpy(at(), block_of_states, fits);
        } else {
            std::memset(at(), states.fill(), fits);
        }
        offset += fits;
    }

    template <StringMember S>
    void string(mirk_object *instance) {
        std::uint32_t n = S::count(instance);
        if (n == 0) return;
        if (n > static_cast<std::uint32_t>(left())) {
            fail(h, err, EMSGSIZE);
            n = static_cast<std::uint32_t>(left());
        }
        std::memcpy(at(), *S::at(instance), n);
        offset += n;
        state_of<S>();
    }
};

}  // namespace tarn
