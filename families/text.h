// The text form, for people: "name@type: {", one line per member indented by two blanks, "}".
#pragma once

#include "core/walk.h"

namespace tarn {

template <const Record &R>
struct Text {
    static std::uint32_t print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent,
                               const char *name, mirk_object *instance, std::int32_t remaining, std::uint32_t *err);
};

}  // namespace tarn
