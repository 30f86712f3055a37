#include "families/text.h"

#include <charconv>
#include <cstring>
#include <string_view>

#include "core/guard.h"
#include "kinds/kinds.h"

namespace tarn {

namespace {

// An element's name: "classes[12]". Runs for each element, so it avoids a format string.
struct ElementName {
    ElementName(std::string_view array, std::uint32_t index) {
        std::memcpy(text, array.data(), array.size());
        char *end = text + array.size();
        *end++ = '[';
        end = std::to_chars(end, text + sizeof text, static_cast<std::int32_t>(index)).ptr;
        *end++ = ']';
        *end = 0;
    }
    static constexpr std::size_t most = 64;
    char text[most + sizeof "[-2147483648]"];
};

}  // namespace

template <const Record &R>
std::uint32_t Text<R>::print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent, const char *name,
                             mirk_object *instance, std::int32_t remaining, std::uint32_t *err) {
    if (!enter(h, err)) return 0;
    const std::int8_t variant = mirk_get_instance_variant(instance, 1, 0);
    std::uint32_t offset = 0;
    const auto left = [&] { return remaining - static_cast<std::int32_t>(offset); };

    offset += mirk_print_space(h, ctx_id, buffer, indent, remaining, err);
    offset += mirk_snprintf(h, ctx_id, buffer + offset, left(), err, "%s@%s: {\n", name, R.name.data());
    if (variant < 0) return offset;  // a record without a body prints only the open brace

    const std::uint32_t inside = indent + 2;
    walk<R>(cases{
        [&]<ArrayMember A>(A) {
            const std::uint32_t n = A::count(instance);
            for (std::uint32_t i = 0; i < n; ++i) {
                static_assert(A::member.name.size() <= ElementName::most);
                const ElementName element_name(A::member.name, i);
                offset += Text<A::element>::print(h, ctx_id, buffer + offset, inside, element_name.text,
                                                  A::element_of(instance, i), left(), err);
            }
        },
        [&]<StringMember S>(S) {
            offset += var_string_print(h, ctx_id, buffer + offset, inside, S::name(), S::block(instance), left(),
                                       S::count(instance), err);
        },
        [&]<SingleMember F>(F) {
            offset += Primitive<F>::print(h, ctx_id, buffer + offset, inside, F::name(), F::at(instance), left(), err);
        },
    });
    // The blanks are written over those of the record's first line, although they are counted here. So the bytes before
    // a nested closing brace are not written; the first of them is the NUL that ended the line before.
    offset += mirk_print_space(h, ctx_id, buffer, indent, left(), err);
    offset += mirk_snprintf(h, ctx_id, buffer + offset, left(), err, "}\n");
    return offset;
}

}  // namespace tarn

#include "exports/text.inc"
