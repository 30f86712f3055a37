// Integers of one, two, four and eight bytes: the runtime's primitives, and an inline comparison.
#pragma once

#include "kinds/kind.h"

namespace tarn {

#define TARN_INTEGER_KIND(KIND, TYPE, NAME)                             \
    template <>                                                         \
    struct StorageOf<Kind::KIND> : std::type_identity<TYPE> {};         \
    template <auto Of>                                                  \
    struct PrimitiveOf<Kind::KIND, Of> {                                \
        static constexpr auto get = NAME##_get;                         \
        static constexpr auto get_value = NAME##_get_value;             \
        static constexpr auto set = NAME##_set;                         \
        static constexpr auto set_value = NAME##_set_value;             \
        static constexpr auto len = NAME##_len;                         \
        static constexpr auto marshal = NAME##_marshal;                 \
        static constexpr auto unmarshal = NAME##_unmarshal;             \
        static constexpr auto print = NAME##_print;                     \
        static constexpr auto to_xml = NAME##_to_xml;                   \
        static constexpr auto from_xml = NAME##_from_xml;               \
        static constexpr auto hash = NAME##_hash;                       \
        static constexpr auto backpropagate = NAME##_backpropagate;     \
        template <class T>                                              \
        static constexpr std::int32_t compare(const T *a, const T *b) { \
            if (*a == *b) return 0;                                     \
            return *a > *b ? 1 : -1;                                    \
        }                                                               \
    };
TARN_INTEGER_KIND(u8, std::uint8_t, u_int8)
TARN_INTEGER_KIND(u16, std::uint16_t, u_int16)
TARN_INTEGER_KIND(u32, std::uint32_t, u_int32)
TARN_INTEGER_KIND(u64, std::uint64_t, u_int64)
#undef TARN_INTEGER_KIND

}  // namespace tarn
