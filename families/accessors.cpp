#include "families/accessors.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

#include "core/guard.h"
#include "core/type_table.h"
#include "families/assignment.h"
#include "families/shortcuts/shortcuts.h"
#include "kinds/kinds.h"

namespace tarn {

bool can_read_state(mirk_handle *h, const mirk_object *object, std::uint32_t *err) {
    if (tracking_mode(h) == Tracking::off) {
        fail(h, err, EINVAL);
        return false;
    }
    if (is_state_tracked(object)) return true;
    fail(h, err, EINVAL);
    trace(error_level, "(ERR): The object is non state tracked");
    return false;
}

bool can_write_state(mirk_handle *h, const mirk_object *object, std::uint32_t *err) {
    if (tracking_mode(h) == Tracking::off) {
        fail(h, err, EINVAL);
        return false;
    }
    if (is_state_tracked(object)) return true;
    trace(error_level, "(ERR): The object is not state tracked");
    fail(h, err, EINVAL);
    return false;
}

bool refuse_untracked(mirk_handle *h, std::uint32_t *err) {
    fail(h, err, EINVAL);
    trace(error_level, "(ERR): The object is not state tracked");
    return false;
}

namespace {

// Null for a null object.
template <class Storage>
Storage *member_at(mirk_object *object, const MemberLocation &location) {
    return object != nullptr ? reinterpret_cast<Storage *>(bytes_of(object) + location.offset) : nullptr;
}

std::uint8_t *state_at(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, const MemberLocation &location) {
    return state_area(h, ctx_id, object, location.base_size) + location.slot;
}

}  // namespace

bool mark_written(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, const MemberLocation &location,
                  std::uint32_t *err) {
    if (!tracks(h)) return true;
    if (!is_state_tracked(object)) return refuse_untracked(h, err);
    store(h, ctx_id, state_at(h, ctx_id, object, location), written_state);
    return true;
}

template <Kind K, auto Of>
[[gnu::noinline]] auto KindAccessor<K, Of>::get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                std::uint32_t *err, const MemberLocation &location) -> Storage * {
    if (!enter(h, err)) return nullptr;
    if (!require_body(h, object, location.value_kind, err)) return nullptr;
    return PrimitiveOf<K, Of>::get(h, ctx_id, member_at<Storage>(object, location), err);
}

template <Kind K, auto Of>
[[gnu::noinline]] auto KindAccessor<K, Of>::get_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                      std::uint32_t *err, const MemberLocation &location) {
    Storage *field = get(h, ctx_id, object, err, location);
    using Value = decltype(PrimitiveOf<K, Of>::get_value(h, ctx_id, field, err));
    return field != nullptr ? PrimitiveOf<K, Of>::get_value(h, ctx_id, field, err) : Value{0};
}

template <Kind K, auto Of>
template <class Source>
[[gnu::noinline]] void KindAccessor<K, Of>::set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                Source *source, std::uint32_t *err, const MemberLocation &location) {
    if (!enter(h, err)) return;
    adjust_variant(h, ctx_id, object, err);
    if (!require_body(h, object, location.value_kind, err)) return;
    PrimitiveOf<K, Of>::set(h, ctx_id, member_at<Storage>(object, location), source, err);
    if (mark_written(h, ctx_id, object, location, err)) mark_modified(object, location.value_kind);
}

template <Kind K, auto Of>
template <class Value>
[[gnu::noinline]] void KindAccessor<K, Of>::set_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                      Value value, std::uint32_t *err, const MemberLocation &location) {
    if (!enter(h, err)) return;
    adjust_variant(h, ctx_id, object, err);
    if (!require_body(h, object, location.value_kind, err)) return;
    // Finding the field is a full get, which checks slot and variant again.
    Storage *field = nullptr;
    if (*err == 0 && require_body(h, object, location.value_kind, err)) {
        field = PrimitiveOf<K, Of>::get(h, ctx_id, member_at<Storage>(object, location), err);
    }
    if (*err != 0) return;
    if (field == nullptr) {
        fail(h, err, ENOENT);
        return;
    }
    // If the value is refused, the error stays in the slot, and the member still counts as written.
    PrimitiveOf<K, Of>::set_value(h, ctx_id, field, value, err);
    if (mark_written(h, ctx_id, object, location, err)) mark_modified(object, location.value_kind);
}

template <class F>
[[gnu::always_inline]] inline auto Accessor<F>::get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                    std::uint32_t *err) {
    if constexpr (runtime_inside) {
        if (auto *member = shortcut::member_to_get<F>(h, object, err); member != nullptr) return member;
    }
    return OfKind::get(h, ctx_id, object, err, member_location<F>);
}

template <class F>
[[gnu::always_inline]] inline auto Accessor<F>::get_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                          std::uint32_t *err) {
    using Value = decltype(OfKind::get_value(h, ctx_id, object, err, member_location<F>));
    if constexpr (runtime_inside) {
        if (auto *member = shortcut::member_to_get<F>(h, object, err); member != nullptr) {
            return Value{shortcut::value_of(*member)};
        }
    }
    return OfKind::get_value(h, ctx_id, object, err, member_location<F>);
}

template <class F>
[[gnu::always_inline]] inline void Accessor<F>::set_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                          auto value, std::uint32_t *err) {
    if constexpr (runtime_inside) {
        if (shortcut::set_value<F>(h, object, value, err)) return;
    }
    OfKind::set_value(h, ctx_id, object, value, err, member_location<F>);
}

std::uint8_t get_state_byte(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err,
                            const MemberLocation &location) {
    if (*err != 0 || !can_read_state(h, object, err)) return 0;
    return *state_at(h, ctx_id, object, location);
}

void set_state_byte(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint8_t value, std::uint32_t *err,
                    const MemberLocation &location) {
    if (*err != 0 || !can_write_state(h, object, err)) return;
    adjust_variant(h, ctx_id, object, err);
    if (!require_body(h, object, location.value_kind, err)) return;
    store(h, ctx_id, state_at(h, ctx_id, object, location), value);
    mark_modified(object, location.value_kind);
}

namespace {

// How the whole-record forms read and write a member of one kind.
struct ScalarAccess {
    void (*fetch)(mirk_handle *h, std::uint32_t ctx_id, void *field, void *out, std::uint32_t *err);
    void (*put)(mirk_handle *h, std::uint32_t ctx_id, void *field, std::uint64_t value, std::uint32_t *err);
};

template <Kind K, auto Of>
void fetch(mirk_handle *h, std::uint32_t ctx_id, void *field, void *out, std::uint32_t *err) {
    auto *found = PrimitiveOf<K, Of>::get(h, ctx_id, static_cast<typename StorageOf<K>::type *>(field), err);
    using Value = decltype(PrimitiveOf<K, Of>::get_value(h, ctx_id, found, err));
    *static_cast<Value *>(out) = found != nullptr ? PrimitiveOf<K, Of>::get_value(h, ctx_id, found, err) : Value{0};
}

template <Kind K, auto Of>
void put(mirk_handle *h, std::uint32_t ctx_id, void *field, std::uint64_t value, std::uint32_t *err) {
    auto *member = static_cast<typename StorageOf<K>::type *>(field);
    using Value = decltype(PrimitiveOf<K, Of>::get_value(h, ctx_id, member, err));
    PrimitiveOf<K, Of>::set_value(h, ctx_id, member, static_cast<Value>(value), err);
}

template <Kind K, auto Of>
constinit const ScalarAccess scalar_access{fetch<K, Of>, put<K, Of>};

struct ScalarMember {
    const ScalarAccess *access;
    std::uint32_t offset, value_kind;
};

constexpr bool can_be_fetched(const Member &m) { return is_integer(m.kind) || schema::is_scalar(m); }

// The members of a record that have the property, as a table for a loop.
template <const Record &R, bool (*Property)(const Member &)>
constinit const auto scalar_members = [] {
    constexpr auto n = static_cast<std::size_t>(std::count_if(R.members.begin(), R.members.end(), Property));
    std::array<ScalarMember, n> members{};
    std::size_t next = 0;
    walk<R>([&]<class F>(F) {
        if constexpr (Property(F::member)) {
            members[next++] = {&scalar_access<F::kind, F::of>, F::place.offset, F::value_kind};
        }
    });
    return members;
}();

void get_members(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::span<const ScalarMember> members,
                 void *const *out, std::uint32_t *err) {
    if (!enter(h, err)) return;
    if (mirk_get_instance_variant(object, 1, 0) < 0) return;
    for (const ScalarMember &m : members) {
        m.access->fetch(h, ctx_id, object != nullptr ? bytes_of(object) + m.offset : nullptr, *out++, err);
    }
}

// Unlike the setters of single members, does not change state bytes.
void set_members(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::span<const ScalarMember> members,
                 const std::uint64_t *values, std::uint32_t *err) {
    if (!enter(h, err)) return;
    adjust_variant(h, ctx_id, object, err);
    if (mirk_get_instance_variant(object, 1, 0) < 0) return;
    for (const ScalarMember &m : members) {
        m.access->put(h, ctx_id, object != nullptr ? bytes_of(object) + m.offset : nullptr, *values++, err);
        mark_modified(object, m.value_kind);
    }
}

}  // namespace

template <const Record &R>
template <class... Values>
void Whole<R>::get_all(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err, Values *...out) {
    void *const outs[] = {out..., nullptr};
    get_members(h, ctx_id, object, scalar_members<R, can_be_fetched>, outs, err);
}

template <const Record &R>
template <class... Values>
void Whole<R>::set_all(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err,
                       Values... values) {
    const std::uint64_t all[] = {std::uint64_t{values}..., 0};
    set_members(h, ctx_id, object, scalar_members<R, schema::is_scalar>, all, err);
}

// The fill also overwrites the addresses of element-state vectors, which then mean that every element has this state;
// the vectors themselves leak. This is the only operation that ignores a corrupt tracking mode.
template <const Record &R>
void Whole<R>::set_all_state_tracking_flag(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                           std::uint8_t value) {
    if (h->sttr_desc == nullptr || h->sttr_desc->sttr_mode != 0xEEEE || !is_state_tracked(object)) return;
    std::memset(state_area<R>(h, ctx_id, object), value, schema::layout<R>.state_width);
    walk<R>(cases{
        [&]<ArrayMember A>(A) {
            const std::uint32_t n = A::count(object);
            for (std::uint32_t i = 0; i < n; ++i) {
                Whole<A::element>::set_all_state_tracking_flag(h, ctx_id, A::element_of(object, i), value);
            }
        },
        nothing,
    });
}

template <const Record &R>
std::uint32_t Whole<R>::is_valid_cr(mirk_handle *h, const mirk_object *, std::uint32_t field_index) {
    const std::int8_t variant = mirk_domain_lookup_variant(h, &h->domain, &TypeInfo<R>::own, &h->last_error);
    return field_index >= R.members.size() && variant <= 0 ? 0 : 1;
}

}  // namespace tarn

#include "exports/accessors.inc"
