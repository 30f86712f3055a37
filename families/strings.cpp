#include "families/strings.h"

#include <cstring>

#include "core/guard.h"
#include "kinds/integer.h"
#include "schema/catalogue.h"

namespace tarn {

template <class S>
void String<S>::get(mirk_handle *h, std::uint32_t, mirk_object *object, char *destination, std::uint32_t size,
                    std::uint32_t *err) {
    if (!enter(h, err)) return;
    if (size == 0) {
        fail(h, err, EINVAL);
        return;
    }
    if (!require_body(h, object, 0, err)) return;
    std::uint32_t n = S::count(object);
    if (n + 1 > size) {
        // The part that fits is copied; the error reports the truncation.
        fail(h, err, ENOSPC);
        n = size - 1;
    }
    if (n != 0) std::strncpy(destination, *S::at(object), n);
    destination[n] = '\0';
}

template <class S>
void String<S>::set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, const char *text, std::uint32_t length,
                    std::uint32_t *err) {
    if (!enter(h, err)) return;
    adjust_variant(h, ctx_id, object, err);
    if (!require_body(h, object, 0, err)) return;
    if (object == nullptr) {
        fail(h, err, EINVAL);
        return;
    }
    char **body = S::at(object);
    if (*body != nullptr) release(h, ctx_id, *body);
    notify_write(h, ctx_id, body);
    const auto n = static_cast<std::uint16_t>(length);
    *body = static_cast<char *>(allocate(h, ctx_id, n));
    if (n != 0 && *body == nullptr) {
        fail(h, err, ENOMEM);
        return;
    }
    if (n != 0 && text != nullptr) {
        std::strncpy(*body, text, n);
    } else if (n != 0) {
        std::memset(*body, 0, n);  // without a text, the block must not show its former content
    }
    store(h, ctx_id, S::Counter::at(object), n);
    if (mark_written(h, ctx_id, object, member_location<S>, err)) mark_modified(object, 0);
}

}  // namespace tarn

#include "exports/strings.inc"
