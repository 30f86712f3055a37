// The walk over the members of a record, and the only code that computes the address of a member in an instance.
//
// A family is a template over a record's table. The walk passes it each member as a type, so that the compiler sees
// offsets, kinds and slots as constants and unrolls the family to straight-line code.
#pragma once

#include <array>
#include <type_traits>
#include <utility>

#include "core/object.h"

namespace tarn {

using schema::Enumeration;
using schema::Kind;
using schema::Member;
using schema::Record;
using schema::Role;

// The type of a member in memory. Kinds of single values specialize it in their own files.
template <Kind K>
struct StorageOf;
template <>
struct StorageOf<Kind::array> : std::type_identity<mirk_object *> {};
template <>
struct StorageOf<Kind::string> : std::type_identity<char *> {};

// An object is passed as a pointer to its header; only these functions reach its other bytes.
inline std::uint8_t *bytes_of(mirk_object *object) { return reinterpret_cast<std::uint8_t *>(object); }
inline const std::uint8_t *bytes_of(const mirk_object *object) {
    return reinterpret_cast<const std::uint8_t *>(object);
}

// The state area: at the offset that the runtime has recorded, or directly after the instance. Not cached, since the
// offset changes when an array grows.
inline std::uint8_t *state_area(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t base_size) {
    const bool elsewhere = (object->obj_flag & flag::sttr_offset) != 0;
    return bytes_of(object) + (elsewhere ? mirklib_get_sttr_offset(h, ctx_id, object) : base_size);
}
template <const Record &R>
std::uint8_t *state_area(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object) {
    return state_area(h, ctx_id, object, schema::layout<R>.base_size);
}

// An element of a block of n elements, and its state area, which follows all elements.
template <const Record &R>
mirk_object *element_at(mirk_object *block, std::uint32_t index) {
    return reinterpret_cast<mirk_object *>(bytes_of(block) + std::size_t{index} * schema::layout<R>.base_size);
}
template <const Record &R>
const mirk_object *element_at(const mirk_object *block, std::uint32_t index) {
    return reinterpret_cast<const mirk_object *>(bytes_of(block) + std::size_t{index} * schema::layout<R>.base_size);
}
template <const Record &R>
std::uintptr_t element_area(const mirk_object *block, std::uint64_t n, std::uint64_t index) {
    return address_of(block) + n * schema::layout<R>.base_size + index * schema::layout<R>.state_width;
}

template <const Record &R, std::size_t I>
struct Field {
    static constexpr const Record &owner = R;
    static constexpr std::size_t index = I;
    static constexpr const Member &member = R.members[I];
    static constexpr Kind kind = member.kind;
    static constexpr schema::MemberLayout place = schema::layout<R>.members[I];
    using Storage = typename StorageOf<kind>::type;

    // The member's enumeration or record; null for other kinds.
    static constexpr auto of = [] {
        if constexpr (kind == Kind::enumeration) {
            return member.enumeration;
        } else if constexpr (kind == Kind::record) {
            return member.record;
        } else {
            return nullptr;
        }
    }();

    // An argument by which the runtime distinguishes accessors of booleans and enumerations from others.
    static constexpr std::uint32_t value_kind = kind == Kind::boolean || kind == Kind::enumeration ? 1 : 0;

    static const char *name() { return member.name.data(); }

    // Null for a null object.
    static Storage *at(mirk_object *object) {
        return object != nullptr ? reinterpret_cast<Storage *>(bytes_of(object) + place.offset) : nullptr;
    }
    static const Storage *at(const mirk_object *object) {
        return reinterpret_cast<const Storage *>(bytes_of(object) + place.offset);
    }

    static std::uint8_t *state(std::uint8_t *area) { return area + place.slot; }
    static std::uintptr_t inner_area(std::uintptr_t area) { return area + place.inner; }
    static ElementStates element_states(std::uint8_t *area) {
        return area != nullptr ? ElementStates(area + place.inner) : ElementStates();
    }
};

// What arrays and strings have in common: a block, preceded by the member that counts its elements or characters.
template <const Record &R, std::size_t I>
struct Block : Field<R, I> {
    using Counter = Field<R, I - 1>;
    using Count = typename Counter::Storage;

    // Null for a null object.
    static typename Field<R, I>::Storage block(mirk_object *object) {
        return object != nullptr ? *Field<R, I>::at(object) : nullptr;
    }
    static Count stored_count(const mirk_object *object) { return object != nullptr ? *Counter::at(object) : Count{0}; }
    // 0 if the block is null, since a failed read can leave a count without a block.
    static Count count(const mirk_object *object) {
        return object != nullptr && *Field<R, I>::at(object) != nullptr ? *Counter::at(object) : Count{0};
    }
};

template <const Record &R, std::size_t I>
struct ArrayField : Block<R, I> {
    static constexpr const Record &element = *R.members[I].record;
    static constexpr std::size_t base = schema::layout<*R.members[I].record>.base_size;
    static constexpr std::size_t width = schema::layout<*R.members[I].record>.state_width;

    // The block must not be null.
    template <class Object>
    static Object *element_of(Object *object, std::uint32_t index) {
        return element_at<element>(static_cast<Object *>(*Field<R, I>::at(object)), index);
    }
};

template <const Record &R, std::size_t I>
constexpr auto field() {
    if constexpr (R.members[I].kind == Kind::array) {
        return ArrayField<R, I>{};
    } else if constexpr (R.members[I].kind == Kind::string) {
        return Block<R, I>{};
    } else {
        return Field<R, I>{};
    }
}

template <const Record &R, std::size_t I>
using FieldOf = decltype(field<R, I>());

// The cases of a member. A family passes the walk one function for each case that it distinguishes; of those that
// match, the most specific one is called: cases{[&]<ArrayMember A>(A) {...}, [&]<SingleMember F>(F) {...}}.
template <class F>
concept ArrayMember = F::kind == Kind::array;
template <class F>
concept StringMember = F::kind == Kind::string;
template <class F>
concept BlockMember = ArrayMember<F> || StringMember<F>;
template <class F>
concept SingleMember = !ArrayMember<F> && !StringMember<F>;
template <class F>
concept IntegerMember = SingleMember<F> && schema::is_integer(F::kind);
template <class F>
concept CounterMember = IntegerMember<F> && F::member.role != Role::value;
// With a header of its own.
template <class F>
concept EmbeddedMember = SingleMember<F> && schema::is_embedded(F::member);
// With a header and a state area of its own.
template <class F>
concept AreaMember = EmbeddedMember<F> && schema::has_area(F::member);
template <class F>
concept RecordMember = AreaMember<F> && F::kind == Kind::record;

// For a case that must be inlined: [&]<SingleMember F>(F) TARN_INLINE {...}.
#define TARN_INLINE __attribute__((always_inline))

template <class... Case>
struct cases : Case... {
    using Case::operator()...;
};
template <class... Case>
cases(Case...) -> cases<Case...>;

// For members that a family skips.
inline constexpr auto nothing = [](auto) {};

// Calls visit with each of N members from First on, in table order, until it returns false. Returns true if none did.
template <const Record &R, std::size_t First, std::size_t N, class Visit>
[[gnu::always_inline]] constexpr bool walk_some(Visit &&visit) {
    const auto members = [&]<std::size_t... I>(std::index_sequence<I...>) TARN_INLINE {
        return (visit(field<R, First + I>()) && ...);
    };
    return members(std::make_index_sequence<N>{});
}

template <const Record &R, class Visit>
[[gnu::always_inline]] constexpr bool walk_while(Visit &&visit) {
    return walk_some<R, 0, R.members.size()>(visit);
}

template <const Record &R, class Visit>
[[gnu::always_inline]] constexpr void walk(Visit &&visit) {
    walk_while<R>([&]<class F>(F f) TARN_INLINE {
        visit(f);
        return true;
    });
}

// For each byte of the state area: true if it is part of the address of an element-state vector, at any depth.
template <const Record &R>
constexpr auto vector_bytes() {
    std::array<bool, schema::layout<R>.state_width> marks{};
    walk<R>([&]<class F>(F) {
        if constexpr (F::kind == Kind::array) {
            for (std::size_t i = 0; i < schema::pointer_size; ++i) marks[F::place.inner + i] = true;
        } else if constexpr (F::kind == Kind::record) {
            const auto nested = vector_bytes<*F::member.record>();
            for (std::size_t i = 0; i < nested.size(); ++i) marks[F::place.inner + i] = nested[i];
        }
    });
    return marks;
}

// True if one of the record's own members has the property; nested members do not count.
template <const Record &R>
constexpr bool any_member(bool (*property)(const Member &)) {
    for (const Member &m : R.members) {
        if (property(m)) return true;
    }
    return false;
}

}  // namespace tarn
