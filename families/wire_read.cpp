#include "families/frame_reader.h"
#include "families/shortcuts/shortcuts.h"

namespace tarn {

namespace {

[[gnu::always_inline]] inline void read_head(Reader &in, mirk_object *instance, Head &head) {
    in.offset += _mirk_instance_variant_unmarshal(in.h, in.ctx_id, in.at(), &head.variant, in.left(), in.err);
    in.offset += _mirk_instance_obj_flag_unmarshal(in.h, in.ctx_id, in.at(), &head.wire_flag, in.left(), in.err);
    if ((head.wire_flag & flag::ra_data) != 0) {
        in.offset += read_ra_data(in.h, in.ctx_id, in.at(), instance, in.left(), in.err);
    }
    head.jump_base = in.offset;
    in.offset += _mirk_variant_jump_unmarshal(in.h, in.ctx_id, in.at(), &head.jump, in.left(), in.err);
}

// False: an allocation failed.
template <const Record &R>
[[gnu::always_inline]] inline bool read_members(Reader &in, mirk_object *instance) {
    return walk_while<R>(cases{
        [&]<ArrayMember A>(A) TARN_INLINE { return in.array<A>(instance); },
        [&]<StringMember S>(S) TARN_INLINE { return in.string<S>(instance); },
        [&]<SingleMember F>(F) TARN_INLINE {
            in.value<F>(instance);
            return true;
        },
    });
}

template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t read_record(mirk_handle *h, std::uint32_t ctx_id, void *buffer,
                                                        mirk_object *instance, std::uint32_t length,
                                                        std::uint32_t reuse, std::uint32_t *err) {
    if (!enter(h, err)) return 0;
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
    read_head(in, instance, head);
    const std::int8_t variant = cap_variant(head.variant);
    std::uint8_t wire_flag = head.wire_flag;

    std::uint8_t unread[schema::layout<R>.state_width];  // states that the handle does not keep
    const bool with_state = (wire_flag & flag::state_tracked) != 0;
    in.tracked = tracks(h);
    if (in.tracked) {
        if (!is_state_tracked(instance)) die("(FATAL): MIRK handle and object state tracking mis-match");
        if (with_state) in.area = state_area<R>(h, ctx_id, instance);
    } else if (with_state) {
        in.area = unread;
        wire_flag &= static_cast<std::uint8_t>(~flag::state_tracked);
    }

    if (variant >= 0 && !read_members<R>(in, instance)) return 0;
    in.skip_to_end(head);
    instance->variant = variant;
    instance->obj_flag |= wire_flag;
    instance->tinfo = bind_type(h, ctx_id, &TypeInfo<R>::own);
    return in.offset;
}

}  // namespace

template <const Record &R>
[[gnu::noinline]] std::uint32_t unmarshal_any(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                              std::uint32_t length, std::uint32_t reuse, std::uint32_t *err) {
    return read_record<R>(h, ctx_id, buffer, instance, length, reuse, err);
}

template <const Record &R>
std::uint32_t WireRead<R>::unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                     std::uint32_t length, std::uint32_t reuse, std::uint32_t *err) {
    if constexpr (runtime_inside) {
        std::uint32_t consumed = 0;
        if (shortcut::read<R>(h, ctx_id, buffer, instance, length, reuse, err, consumed)) return consumed;
        return unmarshal_any<R>(h, ctx_id, buffer, instance, length, reuse, err);
    } else {
        return read_record<R>(h, ctx_id, buffer, instance, length, reuse, err);
    }
}

}  // namespace tarn

#include "exports/wire_read.inc"
