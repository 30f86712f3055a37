#include "families/lifecycle.h"

#include "core/object_header.h"
#include "core/sticky.h"
#include "families/references.h"
#include "families/shortcuts/shortcuts.h"
#include "kinds/kinds.h"

extern "C" void mirk_lumo_ui_tarn_type_trace_init(void);

namespace tarn {

namespace {

template <const Record &R>
struct alignas(8) SentinelStorage {
    std::uint8_t bytes[schema::layout<R>.base_size];
};
template <const Record &R>
constinit SentinelStorage<R> sentinel_of{};

[[gnu::cold]] mirk_object *abandon_create(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                          std::uint32_t error, const char *text) {
    trace(error_level, text, error_text(error));
    release(h, ctx_id, object);
    return nullptr;
}

// The state areas of an instance that is initialized.
struct Areas {
    void *base;               // start of the instance's state; found if null
    std::uint32_t base_size;  // of the instance
    void *members = nullptr;  // if set, the caller records the state offsets of the embedded members in it
};

// Initializes all but the members. False: the members must not be initialized either.
[[gnu::always_inline]] inline bool initialize_instance(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                       mirk_type_info *type, std::uint32_t notify,
                                                       std::uint32_t skip_count, std::uint8_t flags, Areas &areas,
                                                       std::uint32_t *err) {
    if (!enter(h, err)) return false;
    const std::int8_t variant = set_header(h, ctx_id, object, type, notify != 0, flags, err);
    const auto count = [&]() TARN_INLINE {
        count_created(h, ctx_id, type, variant, true);
        *err = 0;  // clears an error of the domain look-up; the first require_body reports it
    };
    if (!tracks(h)) {
        if (skip_count == 0) count();
        return true;
    }
    if (notify != 0) notify_write(h, ctx_id, &object->obj_flag);
    object->obj_flag |= flag::state_tracked;
    if (skip_count != 0) return true;
    count();

    const bool nested = (object->obj_flag & flag::nested) != 0;
    const bool has_offset = (object->obj_flag & flag::sttr_offset) != 0;
    if (nested && areas.base == nullptr) {
        fail(h, err, EINVAL);
        trace(error_level,
              "(ERR): sttr_base can not be NULL in NESTED case. Please check the parent object and provide the "
              "correct state tracking base pointer");
        return false;
    }
    void *offset_area = has_offset ? bytes_of(object) + mirklib_get_sttr_offset(h, ctx_id, object) : nullptr;
    if (!nested && areas.base == nullptr) areas.base = bytes_of(object) + areas.base_size;
    if (!nested || has_offset) areas.members = has_offset ? offset_area : areas.base;
    return true;
}

[[gnu::noinline]] bool initialize_any(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, mirk_type_info *type,
                                      std::uint32_t notify, std::uint32_t skip_count, std::uint8_t flags, Areas &areas,
                                      std::uint32_t *err) {
    return initialize_instance(h, ctx_id, object, type, notify, skip_count, flags, areas, err);
}

// The same in new memory. The result fits two registers.
struct Begun {
    void *areas_of_members;
    std::uint64_t error;  // if set, the members must not be initialized
};
[[gnu::always_inline]] inline Begun begin(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                          mirk_type_info *type, std::uint8_t flags, void *sttr_base) {
    Areas areas{sttr_base, 0};
    std::uint32_t error = 0;
    initialize_instance(h, ctx_id, object, type, 1, 0, flags, areas, &error);
    return {areas.members, error};
}
[[gnu::noinline]] Begun begin_owner(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, mirk_type_info *type,
                                    std::uint8_t flags, void *sttr_base) {
    return begin(h, ctx_id, object, type, flags, sttr_base);
}
// A record without embedded members.
[[gnu::noinline]] std::uint32_t begin_plain(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                            mirk_type_info *type, std::uint8_t flags, void *sttr_base) {
    return static_cast<std::uint32_t>(begin(h, ctx_id, object, type, flags, sttr_base).error);
}

// What a create needs to know of a record, so that one function serves all.
struct CreateShape {
    std::uint32_t base_size, state_width;
    void *sentinel;
    mirk_type_info &type;
    // Null for a record without embedded members, whose initialization cannot fail.
    decltype(&Lifecycle<schema::lumo_tarn_debug_setting>::initialize_new) initialize;
    const char *failure_text;
};
template <const Record &R>
constexpr auto failure_text = named_text<R>("(ERR): error in ", " create: %s");
template <const Record &R>
constinit const CreateShape create_shape = [] {
    constexpr const schema::Layout &layout = schema::layout<R>;
    if constexpr (any_member<R>(schema::is_embedded)) {
        return CreateShape{layout.base_size, layout.state_width,           &sentinel_of<R>,
                           TypeInfo<R>::own, Lifecycle<R>::initialize_new, failure_text<R>.data()};
    } else {
        return CreateShape{layout.base_size, layout.state_width, &sentinel_of<R>, TypeInfo<R>::own, nullptr, nullptr};
    }
}();

[[gnu::always_inline]] inline void *create_inline(mirk_handle *h, std::uint32_t ctx_id, const CreateShape &shape) {
    if (create_is_off(h)) return shape.sentinel;
    const bool tracked = tracks(h);
    const std::uint32_t size = shape.base_size + (tracked ? shape.state_width : 0);
    void *storage = allocate(h, ctx_id, size);
    if (storage == nullptr) return no_object(h, shape.sentinel);
    auto *object = static_cast<mirk_object *>(std::memset(storage, 0, size));
    void *area = tracked ? bytes_of(object) + shape.base_size : nullptr;
    if (shape.initialize == nullptr) {
        begin(h, ctx_id, object, &shape.type, 0, area);
        return object;
    }
    const std::uint32_t error = shape.initialize(h, ctx_id, object, 0, area);
    return error == 0 ? object : abandon_create(h, ctx_id, object, error, shape.failure_text);
}
[[gnu::noinline]] void *create_object(mirk_handle *h, std::uint32_t ctx_id, const CreateShape &shape) {
    return create_inline(h, ctx_id, shape);
}
// For create, which programs call for each tree: one call less.
[[gnu::noinline, maybe_unused]] void *create_object_with_trace(mirk_handle *h, std::uint32_t ctx_id,
                                                               const CreateShape &shape) {
    mirk_lumo_ui_tarn_type_trace_init();
    return create_inline(h, ctx_id, shape);
}

struct ReferenceTexts {
    const char *unreadable, *not_lowered;
};
template <const Record &R>
constexpr auto unreadable_text = named_text<R>("(ERR): ",
                                               " destroy: Failed to get oid references from object. Error %s");
template <const Record &R>
constexpr auto not_lowered_text = named_text<R>("(ERR): ",
                                                " destroy: Failed to decrement ref count of oid %p. Error %s");
template <const Record &R>
constexpr ReferenceTexts reference_texts{unreadable_text<R>.data(), not_lowered_text<R>.data()};

// Decrements the reference count of each of the n objects that an embedded address refers to. Reads the references even
// if counting them failed. False: they could not be read, or there is no memory for them.
[[gnu::noinline]] bool release_oids(mirk_handle *h, std::uint32_t ctx_id, ip_address *field, std::uint32_t n,
                                    const ReferenceTexts &texts, std::uint32_t *err) {
    // The count comes from outside the library, so the stack buffer is limited to what addresses commonly have.
    constexpr std::uint32_t on_stack = 64;
    void *few[on_stack] = {};
    void **many = nullptr;
    if (n > on_stack) {
        many = static_cast<void **>(std::malloc(std::size_t{n} * sizeof(void *)));
        if (many == nullptr) return false;
        std::memset(many, 0, std::size_t{n} * sizeof(void *));
    }
    void **oids = many != nullptr ? many : few;
    ip_address_get_object_references(h, ctx_id, field, oids, n, err);
    const bool readable = *err == 0;
    if (!readable) trace(error_level, texts.unreadable, error_text(*err));
    for (std::uint32_t i = 0; readable && i < n; ++i) {
        mirklib_lookup_and_update_oid_ref_count(h, ctx_id, oids[i], 0, err);
        if (*err == 0) continue;
        trace(error_level, texts.not_lowered, oids[i], error_text(*err));
        *err = 0;
    }
    std::free(many);
    return readable;
}

template <class T>
[[gnu::always_inline]] inline void release_block(mirk_handle *h, std::uint32_t ctx_id, T **block) {
    release(h, ctx_id, *block);
    store(h, ctx_id, block, static_cast<T *>(nullptr));
}

[[gnu::noinline]] void release_states(mirk_handle *h, std::uint32_t ctx_id, ElementStates states) {
    if (states.block() == nullptr) return;
    release(h, ctx_id, states.block());
    states.put(nullptr);
}

}  // namespace

template <const Record &R>
mirk_object *Lifecycle<R>::sentinel() {
    return reinterpret_cast<mirk_object *>(&sentinel_of<R>);
}

template <const Record &R>
std::int8_t Lifecycle<R>::variant_data_index_cap(std::int8_t variant) {
    return cap_variant(variant);
}

template <const Record &R>
std::uint32_t Lifecycle<R>::sizeof_instance(const mirk_handle *h) {
    return schema::layout<R>.base_size + (tracks(h) ? schema::layout<R>.state_width : 0);
}

template <const Record &R>
mirk_object *Lifecycle<R>::create_internal(mirk_handle *h, std::uint32_t ctx_id) {
    if constexpr (runtime_inside) {
        if (shortcut::Types types; !create_is_off(h) && shortcut::can_make<R>(h, ctx_id, types)) {
            mirk_object *object = shortcut::make<R>(h, ctx_id, types);
            return object != nullptr ? object : static_cast<mirk_object *>(no_object(h, sentinel()));
        }
    }
    return static_cast<mirk_object *>(create_object(h, ctx_id, create_shape<R>));
}

template <const Record &R>
mirk_object *Lifecycle<R>::create(mirk_handle *h, std::uint32_t ctx_id) {
    if constexpr (runtime_inside) {
        mirk_lumo_ui_tarn_type_trace_init();
        return create_internal(h, ctx_id);
    } else {
        return static_cast<mirk_object *>(create_object_with_trace(h, ctx_id, create_shape<R>));
    }
}

// The trace module is initialized before the handle is in create mode.
template <const Record &R>
mirk_object *Lifecycle<R>::create_cr(mirk_handle *h) {
    mirk_lumo_ui_tarn_type_trace_init();
    return sticky_create(h, [&] { return create_internal(h, h->default_id); });
}

template <const Record &R>
void Lifecycle<R>::initialize(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, mirk_type_info *type,
                              std::uint32_t notify, std::uint32_t skip_count, std::uint8_t flags, void *sttr_base,
                              std::uint32_t *err) {
    if constexpr (runtime_inside) {
        const bool is_own = skip_count == 0 && type == &TypeInfo<R>::own;
        if (is_own && shortcut::initialize<R, shortcut::Memory::any>(h, ctx_id, object, 1, flags, err)) return;
    }
    Areas areas{sttr_base, schema::layout<R>.base_size};
    if (!initialize_any(h, ctx_id, object, type, notify, skip_count, flags, areas, err)) return;
    sttr_base = areas.base;
    if constexpr (any_member<R>(schema::is_embedded)) {
        if (areas.members != nullptr) References<R>::offset_update(h, ctx_id, object, areas.members, err);
        StepErrors errors(*err);
        walk<R>(cases{
            // Members get the same base, not the start of their own area, which they look up in the runtime.
            [&]<EmbeddedMember F>(F) {
                Primitive<F>::initialize(h, ctx_id, F::at(object), Primitive<F>::type(), notify, skip_count,
                                         flag::nested, sttr_base, errors.next());
            },
            nothing,
        });
        if (const std::uint32_t error = errors.result(h); error != 0) *err = error;
    }
}

template <const Record &R>
std::uint32_t Lifecycle<R>::initialize_new(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                           std::uint8_t flags, void *sttr_base) {
    std::uint32_t error = 0;
    if constexpr (runtime_inside) {
        if (shortcut::initialize<R, shortcut::Memory::any>(h, ctx_id, object, 1, flags, &error)) return error;
    }
    if constexpr (any_member<R>(schema::is_embedded)) {
        const Begun begun = begin_owner(h, ctx_id, object, &TypeInfo<R>::own, flags, sttr_base);
        if (begun.error != 0) return static_cast<std::uint32_t>(begun.error);
        if (begun.areas_of_members != nullptr) {
            References<R>::offset_update(h, ctx_id, object, begun.areas_of_members, &error);
        }
        StepErrors errors(error);
        walk<R>(cases{
            [&]<EmbeddedMember F>(F) {
                if constexpr (F::kind == Kind::record || F::kind == Kind::enumeration) {
                    errors.add(Primitive<F>::initialize_new(h, ctx_id, F::at(object), flag::nested, sttr_base));
                } else {
                    Primitive<F>::initialize(h, ctx_id, F::at(object), Primitive<F>::type(), 1, 0, flag::nested,
                                             sttr_base, errors.next());
                }
            },
            nothing,
        });
        return errors.result(h);
    } else {
        return begin_plain(h, ctx_id, object, &TypeInfo<R>::own, flags, sttr_base);
    }
}

template <const Record &R>
void Lifecycle<R>::set_instance_embedded(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object) {
    if (object == nullptr) {
        trace(error_level, "(ERR): Invalid object pointer passed in to set instance flag");
        return;
    }
    walk<R>(cases{
        [&]<EmbeddedMember F>(F) {
            if constexpr (F::kind != Kind::enumeration) Primitive<F>::set_instance_embedded(h, ctx_id, F::at(object));
        },
        nothing,
    });
    store(h, ctx_id, &object->obj_flag, static_cast<std::uint8_t>(object->obj_flag | flag::embedded));
}

template <const Record &R>
void Lifecycle<R>::destroy(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object) {
    if (object != sentinel()) destroy_internal(h, ctx_id, object, 1);
}

template <const Record &R>
void Lifecycle<R>::destroy_internal(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t free_it) {
    if (object == nullptr || object == sentinel()) return;
    if constexpr (runtime_inside) {
        if (shortcut::destroy<R>(h, ctx_id, object, free_it)) return;
    }
    if (!release_mapping(h, ctx_id, object, destroy_texts<R>)) return;
    std::uint32_t error = 0;
    // False: the references of an address could not be read. The rest of the object is not destroyed.
    const bool all_destroyed = walk_while<R>(cases{
        [&]<AreaMember F>(F) {
            const std::uint32_t n = Primitive<F>::get_oid_count(h, ctx_id, F::at(object), &error);
            if constexpr (F::kind == Kind::address) {
                if (n != 0 && !release_oids(h, ctx_id, F::at(object), n, reference_texts<R>, &error)) return false;
            }
            Primitive<F>::destroy_internal(h, ctx_id, F::at(object), 0);
            return true;
        },
        [&]<ArrayMember A>(A) {
            if (*A::at(object) != nullptr) {
                const std::uint32_t n = A::count(object);
                for (std::uint32_t i = 0; i < n; ++i) {
                    Lifecycle<A::element>::destroy_internal(h, ctx_id, A::element_of(object, i), 0);
                }
                release_block(h, ctx_id, A::at(object));
            }
            if (is_state_tracked(object)) {
                release_states(h, ctx_id, A::element_states(state_area<R>(h, ctx_id, object)));
            }
            return true;
        },
        [&]<StringMember S>(S) {
            if (*S::at(object) != nullptr) release_block(h, ctx_id, S::at(object));
            return true;
        },
        [](auto) { return true; },
    });
    if (!all_destroyed) return;
    finish_destroy(h, ctx_id, object, free_it, destroy_texts<R>);
}

}  // namespace tarn

#include "exports/lifecycle.inc"
