#include <cstdio>

#include "core/guard.h"
#include "families/arrays.h"
#include "families/lifecycle.h"
#include "families/strings.h"
#include "families/xml.h"
#include "kinds/kinds.h"

namespace tarn {

// Longer paths are truncated, and in practice a truncated path finds nothing.
using Path = char[256];

struct XmlReader {
    mirk_handle *h;
    std::uint32_t ctx_id;
    const char *path;
    void *document;
    mirk_object *instance;
    std::uint32_t *err;
    char *message;
    std::uint32_t message_size;

    // A member that the document lacks keeps its value. False: any other error, which stops the reading.
    bool ignore_absence() const {
        if (*err == ENOENT) *err = 0;
        return *err == 0;
    }

    template <class F>
    bool single() {
        Path own;
        std::snprintf(own, sizeof own, "%s/%s", path, F::name());
        Primitive<F>::from_xml(h, ctx_id, own, document, F::at(instance), err, message, message_size);
        return ignore_absence();
    }

    template <class S>
    bool string();
    template <class A>
    bool array();
};

// An empty value does not change the string. Neither does an absent one, but its error stays in the slot until the next
// member clears it, and that member is therefore not read.
template <class S>
bool XmlReader::string() {
    Path own;
    std::snprintf(own, sizeof own, "%s/%s", path, S::name());
    std::uint32_t length = 0;
    *err = xml_get_element_value(document, own, nullptr, 0, &length);
    if (*err == 0) return true;
    mirk_store_err(h, *err);
    if (*err != ENOSPC) return true;

    *err = 0;
    const std::uint64_t size = std::uint64_t{length} + 1;
    auto *text = static_cast<char *>(allocate(h, ctx_id, size));
    if (text == nullptr) {
        fail(h, err, ENOMEM);
        return false;
    }
    var_string_from_xml(h, ctx_id, own, document, text, static_cast<std::uint32_t>(size), err, message, message_size);
    if (*err == 0) String<S>::set(h, ctx_id, instance, text, length & 0xffff, err);
    const bool go_on = ignore_absence();
    release(h, ctx_id, text);
    return go_on;
}

// Elements are read one by one into a temporary and moved into the array, until a position is missing; the count in the
// document is ignored. If a temporary cannot be allocated, the walk continues with the error set.
template <class A>
bool XmlReader::array() {
    for (std::uint32_t i = 0;; ++i) {
        mirk_object *element = Lifecycle<A::element>::create(h, ctx_id);
        if (element == nullptr) {
            fail(h, err, ENOMEM);
            return true;
        }
        Path own;
        std::snprintf(own, sizeof own, "%s/%s[%d]", path, A::name(), static_cast<int>(i + 1));
        XmlRead<A::element>::from_xml(h, ctx_id, own, document, element, err, message, message_size);
        if (*err != 0) {
            Lifecycle<A::element>::destroy(h, ctx_id, element);
            return ignore_absence();
        }
        Array<A>::append(h, ctx_id, instance, i, element, err);
        Lifecycle<A::element>::destroy(h, ctx_id, element);
    }
}

template <const Record &R>
void XmlRead<R>::from_xml(mirk_handle *h, std::uint32_t ctx_id, const char *path, void *document, mirk_object *instance,
                          std::uint32_t *err, char *message, std::uint32_t message_size) {
    if (!enter(h, err)) return;
    std::uint32_t nodes = 0;
    if (xml_get_element_nodecount(document, path, &nodes) != 0 || nodes == 0) {
        fail(h, err, ENOENT);
        return;
    }
    XmlReader in{h, ctx_id, path, document, instance, err, message, message_size};
    walk_while<R>(cases{
        [](CounterMember auto) { return true; },  // counts and lengths are set together with what they count
        [&]<ArrayMember A>(A) { return in.array<A>(); },
        [&]<StringMember S>(S) { return in.string<S>(); },
        [&]<SingleMember F>(F) { return in.single<F>(); },
    });
}

}  // namespace tarn

#include "exports/xml_read.inc"
