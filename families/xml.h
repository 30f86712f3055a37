// The XML form: one element per member, named after the member; an array is one such element per item.
#pragma once

#include "core/walk.h"

namespace tarn {

template <const Record &R>
struct XmlWrite {
    static std::uint32_t to_xml(mirk_handle *h, std::uint32_t ctx_id, const char *name, char *buffer,
                                mirk_object *instance, std::int32_t remaining, std::uint8_t state, std::uint32_t *err);
};

template <const Record &R>
struct XmlRead {
    static void from_xml(mirk_handle *h, std::uint32_t ctx_id, const char *path, void *document, mirk_object *instance,
                         std::uint32_t *err, char *message, std::uint32_t message_size);
};

}  // namespace tarn
