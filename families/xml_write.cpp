#include "core/guard.h"
#include "families/accessors.h"
#include "families/arrays.h"
#include "families/xml.h"
#include "kinds/kinds.h"

namespace tarn {

template <const Record &R>
std::uint32_t XmlWrite<R>::to_xml(mirk_handle *h, std::uint32_t ctx_id, const char *name, char *buffer,
                                  mirk_object *instance, std::int32_t remaining, std::uint8_t state,
                                  std::uint32_t *err) {
    if (!enter(h, err)) return 0;
    const std::int8_t variant = mirk_get_instance_variant(instance, 1, 0);
    const bool tracked = tracks(h);
    std::uint32_t offset = 0;
    const auto left = [&] { return remaining - static_cast<std::int32_t>(offset); };

    offset += start_tag(h, ctx_id, buffer, name, remaining, state, err);
    if (variant >= 0) {
        const auto state_of = [&]<class F>(F) -> std::uint8_t {
            if constexpr (schema::is_tracked(F::member)) {
                if (tracked) return StateByte<F>::get(h, ctx_id, instance, err);
            }
            return 0;
        };
        walk<R>(cases{
            [&]<ArrayMember A>(A) {
                const std::uint32_t n = A::count(instance);
                for (std::uint32_t i = 0; i < n && *err == 0; ++i) {
                    const std::uint8_t own =
                        tracked ? Array<A>::state_flag_get(h, ctx_id, instance, i, err) : std::uint8_t{0};
                    offset += XmlWrite<A::element>::to_xml(h, ctx_id, A::name(), buffer + offset,
                                                           A::element_of(instance, i), left(), own, err);
                }
            },
            [&]<StringMember S>(S s) {
                if (*err != 0) return;
                const std::uint8_t own = state_of(s);
                offset += var_string_to_xml(h, ctx_id, S::name(), buffer + offset, S::block(instance), left(),
                                            S::count(instance), own, err);
            },
            [&]<SingleMember F>(F f) {
                if (*err != 0) return;
                const std::uint8_t own = state_of(f);
                offset +=
                    Primitive<F>::to_xml(h, ctx_id, F::name(), buffer + offset, F::at(instance), left(), own, err);
            },
        });
    }
    offset += end_tag(h, ctx_id, buffer + offset, name, left(), err);
    return offset;
}

}  // namespace tarn

#include "exports/xml_write.inc"
