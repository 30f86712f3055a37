// Conversions between the opaque types of the public headers and the internal types. A client's pointer always is the
// address of the object's header.
#pragma once

#include "core/object.h"

namespace tarn {

template <class Opaque>
struct ObjectOf {
    using type = mirk_object;  // a record
};
template <class Opaque>
using object_type = typename ObjectOf<Opaque>::type;

template <class Opaque>
object_type<Opaque> *object_of(Opaque *p) {
    return static_cast<object_type<Opaque> *>(static_cast<void *>(p));
}
template <class Opaque>
const object_type<Opaque> *object_of(const Opaque *p) {
    return static_cast<const object_type<Opaque> *>(static_cast<const void *>(p));
}
// For writing to a client's pointer variable. Valid because the library is compiled without type-based alias analysis.
template <class Opaque>
object_type<Opaque> **objects_of(Opaque **p) {
    return reinterpret_cast<object_type<Opaque> **>(p);
}
template <class Opaque>
Opaque *handle_for(void *object) {
    return static_cast<Opaque *>(object);
}

}  // namespace tarn

#include "exports/opaque.inc"
