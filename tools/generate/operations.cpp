// The table of operations. Exports, headers, manual pages, the reflection table and test drivers are printed from it.
#include "operations.h"

namespace tarn::generate {

namespace {

using enum Applies;
using enum Sticky;

constexpr Applies value = integer | boolean | enumerated;
constexpr Applies single = value | address | nested;

constexpr Row table[] = {
    // ---- records
    {record, "lifecycle", "Lifecycle", "{r} *{r}_create(H, I)", "Lifecycle<{R}>::create",
     "Allocates an instance with all members zero. Returns NULL if allocation fails, or if the domain look-up of an "
     "enumeration member fails. The caller owns the instance and releases it with {r}_destroy()."},
    {record, "lifecycle", "Lifecycle", "{r} *{r}_create_cr(H)", "Lifecycle<{R}>::create_cr",
     "Sticky form of {r}_create(): returns a sentinel instead of NULL if allocation fails or last_error is set "
     "already. Returns NULL, not the sentinel, if the domain look-up of an enumeration member fails; last_error may "
     "then be 0. Only destroy operations, and sticky forms while last_error is set, accept the sentinel."},
    {record, "lifecycle", "Lifecycle", "{r} *{r}_create_internal(H, I)", "Lifecycle<{R}>::create_internal",
     "Same as {r}_create(), but does not register the trace module of types. For callers that create many instances."},
    {record, "lifecycle", "Lifecycle",
     "void {r}_initialize(H, I, {r} *object, mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t "
     "flags, void *sttr_base, E)",
     "Lifecycle<{R}>::initialize",
     "Initializes an instance in zeroed memory of the caller: header, usage counters, nested objects. type is normally "
     "_{r}_type_info_internal. notify 0 suppresses write notifications, skip_count 1 suppresses usage counting. flags "
     "are added to obj_flag. sttr_base is the address of the state area if the instance is nested in another one. "
     "EINVAL if a nested instance on a tracking handle has none."},
    {record, "lifecycle", "Lifecycle", "uint32_t {r}_sizeof(H)", "Lifecycle<{R}>::sizeof_instance",
     "Returns the size of an instance in bytes: its members, everything nested in it and, on a tracking handle, its "
     "state area. Blocks of arrays and strings are not counted. The size differs between tracking modes."},
    {record, "lifecycle", "Lifecycle", "int8_t {r}_variant_data_index_cap(int8_t variant)",
     "Lifecycle<{R}>::variant_data_index_cap",
     "Returns the variant, limited to 0, the highest one that this library has."},
    {record, "lifecycle", "Lifecycle", "void {r}_set_instance_embedded(H, I, {r} *object)",
     "Lifecycle<{R}>::set_instance_embedded",
     "Sets MIRK_OBJ_EMBEDDED in the instance and in the records, IP addresses and booleans nested in it. The caller "
     "thereby states that the instance lies in memory of another object."},
    {record, "lifecycle", "Lifecycle", "void {r}_adjust_variant(H, I, {r} *object, E)",
     "Lifecycle<{R}>::adjust_variant",
     "Changes the instance to the variant that the handle's domain has for its type. Notifies if the variant changes."},
    {record, "lifecycle", "Lifecycle", "void {r}_destroy(H, I, {r} *object)", "Lifecycle<{R}>::destroy",
     "Destroys the instance: its arrays and strings, everything nested in it, and its memory. NULL and the sentinel "
     "are ignored. An instance that other objects refer to is released with the last reference.",
     as_is},
    {record, "lifecycle", "Lifecycle", "void {r}_destroy_internal(H, I, {r} *object, uint32_t free_it)",
     "Lifecycle<{R}>::destroy_internal",
     "Same as {r}_destroy(), but with free_it 0 the memory of the instance itself is not freed. For instances that lie "
     "in memory of another object."},
    {record, "lifecycle", "Whole record", "{r} *{r}_get(H, I, {r} *object, E)", "Lifecycle<{R}>::get",
     "Returns the instance itself, so that code can treat records as it treats members."},
    {record, "accessors", "Whole record", "void {r}_get_all(H, I, {r} *object, {get_all}E)", "Whole<{R}>::get_all",
     "Writes all scalar members, counts and lengths through the pointers, in table order; zeros if object is NULL. If "
     "the instance has no body, nothing is written and no error is set."},
    {record, "accessors", "Whole record", "void {r}_set_all(H, I, {r} *object, {set_all}E)", "Whole<{R}>::set_all",
     "Adjusts the instance to the domain's variant, then stores all scalar members in table order, without counts and "
     "lengths. If that variant has no body, nothing is stored and no error is set. Does not change state bytes, unlike "
     "the setters of single members. EINVAL if object is NULL."},
    {record, "assignment", "Whole record", "void {r}_set(H, I, {r} *destination, {r} *source, E)",
     "Assignment<{R}>::set",
     "MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the "
     "source loses. What the destination owned before is not released. Moves even if err is already set. EINVAL if "
     "either is NULL. On a tracking handle, EINVAL if either has no state bytes; arrays and strings are moved all the "
     "same. Use {r}_copy_cr() to copy."},
    {record, "assignment", "Whole record",
     "void {r}_post_copyout_cleanup(H, I, {r} *new_location, {r} *old_location, E)",
     "Assignment<{R}>::post_copyout_cleanup",
     "For runtimes that move instances byte by byte: makes the copy at the new location the only owner of arrays and "
     "strings, and clears them at the old location. Acts even if err is already set."},
    {record, "accessors", "Whole record", "void {r}_set_all_state_tracking_flag(H, I, {r} *object, uint8_t value)",
     "Whole<{R}>::set_all_state_tracking_flag",
     "Fills the state area of the instance and of each element of its own arrays with one byte, without notifications. "
     "Elements of arrays in nested records are not filled. Leaks the blocks of element states: the elements of each "
     "array then all have this state, and setting it for one of them has no effect. When such an array grows, the "
     "state of its old elements becomes 0, and states can be set again. Has no effect without tracking."},
    {record, "accessors", "Whole record", "uint32_t {r}_is_valid_cr(H, {r} *object, uint32_t field_index)",
     "Whole<{R}>::is_valid_cr",
     "Returns 1 if the record has a member with this index, counted from 0 in table order, else 0. If the domain has a "
     "variant above 0, every index gives 1. The instance is not read."},
    {record, "references", "References", "uint32_t {r}_get_oid_count(H, I, {r} *object, E)",
     "References<{R}>::get_oid_count",
     "Returns the number of object identifiers that the instance itself holds: 0 in this schema. EINVAL if object is "
     "NULL."},
    {record, "references", "References",
     "void {r}_get_object_references(H, I, {r} *object, void **oids, uint32_t size, E)",
     "References<{R}>::get_object_references",
     "Writes up to size object identifiers that the instance itself holds: none in this schema. EINVAL if object is "
     "NULL."},
    {record, "references", "References", "void {r}_offset_update(H, I, {r} *object, void *state_area, E)",
     "References<{R}>::offset_update",
     "Stores in the runtime where the state of each nested record and IP address is. state_area is the address of the "
     "instance's state area. For code that has moved the instance or its state. Acts even if err is already set."},
    {record, "references", "References", "void {r}_offset_remove(H, I, {r} *object, E)",
     "References<{R}>::offset_remove",
     "Removes from the runtime the state locations that {r}_offset_update() stored, at every depth. Acts even if err "
     "is already set."},
    {record, "wire_write", "Wire", "uint32_t {r}_len(H, I, {r} *instance)", "WireWrite<{R}>::len",
     "Returns the buffer size in bytes that {r}_marshal() needs, without the guard byte. On a tracking handle this is "
     "too large by one byte for each character and for each empty array or string. RA data is not counted: add 9 bytes "
     "for each object that has it, including nested objects and elements.",
     zero},
    {record, "wire_write", "Wire", "uint32_t {r}_marshal(H, I, void *buffer, {r} *instance, int32_t remaining, E)",
     "WireWrite<{R}>::marshal",
     "Writes the instance as a frame into buffer, which must have remaining bytes and one guard byte after them. "
     "Returns the number of bytes written; after an error the frame is not valid. EMSGSIZE or ENOMEM if the buffer is "
     "too small; state bytes that do not fit are dropped without an error. EINVAL if instance is NULL. EIDRM if the "
     "domain does not have the instance's variant. A lenient runtime then leaves err alone and the frame is written in "
     "the domain's variant."},
    {record, "wire_write", "Wire",
     "uint32_t {r}_marshal_for_clone(H, I, void *buffer, {r} *instance, int32_t remaining, E)",
     "WireWrite<{R}>::marshal_for_clone",
     "Same as {r}_marshal(), but the outermost frame keeps the instance's own variant, whatever the domain has. Nested "
     "records are still limited to the domain's variants. This is the frame of a deep copy."},
    {record, "wire_read", "Wire",
     "uint32_t {r}_unmarshal(H, I, void *buffer, {r} *instance, uint32_t length, uint32_t reuse, E)",
     "WireRead<{R}>::unmarshal",
     "Reads a frame of length bytes from buffer, which must have one guard byte after them, into an instance. Returns "
     "the number of bytes consumed. It may exceed length without an error: check it before you advance. After an error "
     "it has no meaning. With reuse 0 the instance must own no arrays or strings; they would be leaked. With reuse 1 "
     "its arrays and strings are kept where the counts are equal; what the elements owned is leaked. The frame may "
     "come from an untrusted peer. EMSGSIZE or ENOMEM if the frame is too short, ENOMEM if allocation fails, EINVAL if "
     "instance is NULL. Calls abort() if the handle tracks state and the instance has none."},
    {record, "copy", "Deep copy", "void {r}_clone(H, I, {r} *source, {r} **result, void *buffer, uint32_t size, E)",
     "Copy<{R}>::clone",
     "Makes a deep copy through a frame in buffer, which must have size bytes and one guard byte after them. size: at "
     "least {r}_len(), and 9 more for each object with RA data. *result is NULL after any error; otherwise the caller "
     "owns it. ENOENT if source, result or buffer is NULL; other errors are those of {r}_marshal() and "
     "{r}_unmarshal()."},
    {record, "copy", "Deep copy", "{r} *{r}_clone_cr(H, {r} *source)", "Copy<{R}>::clone_cr",
     "Makes a deep copy through the handle's workspace, which has 65,536 bytes in the reference runtime. Returns NULL "
     "after any error; otherwise the caller owns the copy. A larger record needs {r}_clone()."},
    {record, "copy", "Deep copy", "void {r}_copy_cr(H, {r} *source, {r} *destination)", "Copy<{R}>::copy_cr",
     "Makes a deep copy in an existing instance, through the handle's workspace. What the destination owned before is "
     "not released. After an error do not use or destroy it: it has been freed if the copy could not be read, and "
     "leaks if the copy could not be written. A NULL destination leaks the copy. {r}_clone_cr() does not have these "
     "problems."},
    {record, "text", "Text",
     "uint32_t {r}_print(H, I, char *buffer, uint32_t indent, const char *name, {r} *instance, int32_t remaining, E)",
     "Text<{R}>::print",
     "Writes the instance as readable text under this name, indented by indent blanks. Returns the length in bytes "
     "without the final NUL. The indent of closing braces is counted but not written. Clear the buffer first, then "
     "replace NUL bytes within the returned length by blanks. EMSGSIZE or ENOSPC if the text does not fit.",
     size},
    {record, "xml_write", "XML",
     "uint32_t {r}_to_xml(H, I, const char *name, char *buffer, {r} *instance, int32_t remaining, uint8_t state, E)",
     "XmlWrite<{R}>::to_xml",
     "Writes the instance as an XML element of this name with one element for each member. A nonzero state becomes an "
     "attribute. Returns the length in bytes without the final NUL. EMSGSIZE if the text does not fit. EINVAL if the "
     "handle tracks state and the instance has none.",
     size},
    {record, "xml_read", "XML",
     "void {r}_from_xml(H, I, const char *path, void *document, {r} *instance, E, char *message, uint32_t "
     "message_size)",
     "XmlRead<{R}>::from_xml",
     "Reads the element at a path of the runtime's document into the instance. Members without an element, and strings "
     "with an empty one, keep their values. ENOENT if there is no element at the path. EINVAL for an invalid number, "
     "which ends the reading. message, which may be NULL, gets a sentence only if reading an enumerator's element "
     "fails. Clear its first byte before the call."},
    {record, "compare", "Value", "int32_t {r}_compare(const {r} *a, const {r} *b)", "Compare<{R}>::compare",
     "Orders two instances by their members in table order; only the sign of the result has a meaning. NULL comes "
     "first. Header and state are ignored."},
    {record, "hash", "Value", "uint32_t {r}_hash(const {r} *instance, uint32_t seed)", "Hash<{R}>::hash",
     "Mixes all members into the seed. Equal instances give equal results in every process. Returns the seed itself "
     "for NULL."},
    {record, "propagate", "Value", "uint32_t {r}_type_type_backpropagate(H, I, {r} *instance, void *word)",
     "Propagate<{R}>::backpropagate",
     "Returns 1 if the record or one of its members has the modified mark. Clears the mark of the record and of the "
     "first member that has one. Does not look into arrays: call it for each element. word is passed to the runtime "
     "unchanged. NULL gives 0."},

    // ---- members with one value
    {single, "accessors", "", "{A} *{r}_{f}_get(H, I, {r} *object, E)", "Accessor<{F}>::get",
     "Returns the address of {f} in the object: {meaning}. NULL for a NULL object, and with EIDRM for an object "
     "without a body."},
    {length, "accessors", "", "{A} *{r}_{f}_get(H, I, {r} *object, E)", "Accessor<{F}>::get",
     "Returns the address of the length {f}: {meaning}. Read-only: it follows from the string. NULL for a NULL object, "
     "and with EIDRM for an object without a body."},
    {count, "accessors", "", "{A} *{r}_{f}_get(H, I, {r} *object, E)", "Accessor<{F}>::get",
     "Returns the address of the count {f}: {meaning}. Read-only: it follows from the array. NULL for a NULL object, "
     "and with EIDRM for an object without a body."},
    {value, "accessors", "", "{V} {r}_{f}_get_value(H, I, {r} *object, E)", "Accessor<{F}>::get_value",
     "Returns the value of {f}: {meaning}. 0 for a NULL object, and with EIDRM for an object without a body."},
    {length, "accessors", "", "{V} {r}_{f}_get_value(H, I, {r} *object, E)", "Accessor<{F}>::get_value",
     "Returns the length {f}: {meaning}. 0 for a NULL object, and with EIDRM for an object without a body."},
    {count, "accessors", "", "{V} {r}_{f}_get_value(H, I, {r} *object, E)", "Accessor<{F}>::get_value",
     "Returns the count {f}: {meaning}. 0 for a NULL object, and with EIDRM for an object without a body."},
    {integer | boolean, "accessors", "", "void {r}_{f}_set(H, I, {r} *object, const {A} *source, E)",
     "Accessor<{F}>::set",
     "Stores the value of the source in {f}: {meaning}. Notifies, marks the object as modified and, on a tracking "
     "handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object without "
     "state bytes; EIDRM for one without a body."},
    {address, "accessors", "", "void {r}_{f}_set(H, I, {r} *object, {A} *source, E)", "Accessor<{F}>::set",
     "Stores the value of the source in {f}: {meaning}. Notifies, marks the object as modified and, on a tracking "
     "handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object without "
     "state bytes; EIDRM for one without a body."},
    {enumerated, "accessors", "", "void {r}_{f}_set(H, I, {r} *object, {A} *source, E)", "Accessor<{F}>::set",
     "Stores the value of the source in {f}: {meaning}. A number that is not an enumerator is refused with EIDRM; the "
     "member's state byte and the modified mark are set all the same. EINVAL for a NULL pointer and, on a tracking "
     "handle, for an object without state bytes; EIDRM for one without a body."},
    {nested, "accessors", "", "void {r}_{f}_set(H, I, {r} *object, {A} *source, E)", "Accessor<{F}>::set",
     "MOVES a record into {f}: {meaning}. The source loses its arrays and strings. What {f} owned before is not "
     "released. EINVAL for a NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one "
     "without a body."},
    {integer | boolean, "accessors", "", "void {r}_{f}_set_value(H, I, {r} *object, {V} value, E)",
     "Accessor<{F}>::set_value",
     "Stores a value in {f}: {meaning}. Notifies, marks the object as modified and, on a tracking handle, sets the "
     "state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes; EIDRM for "
     "one without a body."},
    {enumerated, "accessors", "", "void {r}_{f}_set_value(H, I, {r} *object, {V} value, E)", "Accessor<{F}>::set_value",
     "Stores an enumerator of {n} in {f}: {meaning}. Another number is refused with EIDRM; the member's state byte and "
     "the modified mark are set all the same. ENOENT for a NULL object; on a tracking handle, EINVAL for one without "
     "state bytes; EIDRM for one without a body."},

    // ---- strings and arrays
    {string, "strings", "", "void {r}_{f}_get(H, I, {r} *object, char *destination, uint32_t size, E)",
     "String<{F}>::get",
     "Copies {f} and a NUL after it: {meaning}. The destination has size bytes and needs the length plus 1. ENOSPC: "
     "the copy is truncated. EINVAL: size is 0. EIDRM: the object has no body."},
    {string, "strings", "", "void {r}_{f}_set(H, I, {r} *object, const char *text, uint32_t length, E)",
     "String<{F}>::set",
     "Stores length bytes, modulo 65,536, of text in {f}: {meaning}. If the text ends earlier or is NULL, zero bytes "
     "follow. ENOMEM if allocation fails; the previous text is released all the same. EINVAL for a NULL object and, on "
     "a tracking handle, for one without state bytes; EIDRM for one without a body.",
     error},
    {array, "arrays", "", "{n} *{r}_{f}_get(H, I, {r} *object, uint32_t index, E)", "Array<{F}>::get",
     "Returns the address of an element of {f}: {meaning}. The array owns the element, and its next growth invalidates "
     "the address. ENOENT if the index is out of range, EIDRM if the object has no body."},
    {array, "arrays", "", "void {r}_{f}_set(H, I, {r} *object, uint32_t index, {n} *value, E)", "Array<{F}>::move_in",
     "MOVES the value into an element of {f}: {meaning}. An index out of range grows the array to index + 1 elements "
     "and moves all of them, so set the highest index first. What the element owned before is not released. A NULL "
     "value grows the array and stores nothing; on a tracking handle it is refused with EINVAL. ENOMEM if allocation "
     "fails. EINVAL for a NULL object and, on a tracking handle, for an object or a value without state bytes; EIDRM "
     "for an object without a body. Does not mark the object as modified."},
    {array, "arrays", "", "uint32_t {r}_{f}_set_cr(H, {r} *object, uint32_t index, {n} *value, uint32_t copy_mode)",
     "Array<{F}>::set_cr",
     "Sticky form of {r}_{f}_set(): copies the value with copy_mode 0 and moves it otherwise. Returns the handle's "
     "last_error."},
    {array, "arrays", "", "uint8_t {r}_{f}_state_flag_get(H, I, {r} *object, uint32_t index, E)",
     "Array<{F}>::state_flag_get",
     "Returns the state byte of one element of {f}. ENOENT if the index is out of range, EINVAL if the handle's "
     "tracking mode is OFF or the object has no state bytes."},
    {array, "arrays", "", "void {r}_{f}_state_flag_set(H, I, {r} *object, uint32_t index, uint8_t value, E)",
     "Array<{F}>::state_flag_set",
     "Sets the state byte of one element of {f}. ENOENT if the index is out of range, EINVAL if the handle's tracking "
     "mode is OFF or the object has no state bytes."},
    {array, "accessors", "", "uint8_t {r}_{f}_state_flag_whole_get(H, I, {r} *object, E)", "StateByte<{F}>::get",
     "Returns the state byte of {f} as a whole. EINVAL if the handle's tracking mode is OFF or the object has no state "
     "bytes."},
    {array, "accessors", "", "void {r}_{f}_state_flag_whole_set(H, I, {r} *object, uint8_t value, E)",
     "StateByte<{F}>::set",
     "Sets the state byte of {f} as a whole. EINVAL if the handle's tracking mode is OFF or the object has no state "
     "bytes."},
    {array, "arrays", "", "void {r}_{f}_state_flag_get_arr(H, I, {r} *object, uint8_t **out, E)",
     "Array<{F}>::state_flag_get_arr",
     "Writes the address of the element states of {f} through out: one byte for each element, NULL if there are none. "
     "EINVAL if the handle's tracking mode is OFF or the object has no state bytes."},
    {array, "arrays", "",
     "void {r}_{f}_state_flag_set_arr(H, I, {r} *object, const uint8_t *source, uint32_t length, E)",
     "Array<{F}>::state_flag_set_arr",
     "Copies length bytes, which must equal the count of {f}, to the start of the object's state area, over the states "
     "of other members, and not to the element states. ENOENT for another length, EINVAL if the handle's tracking mode "
     "is OFF or the object has no state bytes."},

    // ---- state of single members and strings
    {single | string, "accessors", "", "uint8_t {r}_{f}_state_flag_get(H, I, {r} *object, E)", "StateByte<{F}>::get",
     "Returns the state byte of {f}. EINVAL if the handle's tracking mode is OFF or the object has no state bytes."},
    {single | string, "accessors", "", "void {r}_{f}_state_flag_set(H, I, {r} *object, uint8_t value, E)",
     "StateByte<{F}>::set",
     "Sets the state byte of {f}, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is "
     "OFF or the object has no state bytes."},

    // ---- enumerations
    {enumeration, "enumeration", "Lifecycle", "{e} *{e}_create(H, I)", "Enum<{E}>::create",
     "Allocates an object with value 0. Returns NULL if allocation fails. The caller owns it and releases it with "
     "{e}_destroy().",
     create, "_internal"},
    {enumeration, "enumeration", "Lifecycle",
     "void {e}_initialize(H, I, {e} *instance, mirk_type_info *type, uint32_t notify, uint32_t not_used_1, uint8_t "
     "flags, void *not_used_2, E)",
     "Enum<{E}>::initialize",
     "Initializes an object in memory of the caller. type is normally _{e}_type_info_internal. notify 0 suppresses "
     "write notifications. flags are added to obj_flag."},
    {enumeration, "enumeration", "Lifecycle", "uint32_t {e}_sizeof(void)", "Enum<{E}>::sizeof_instance",
     "Returns the size of an object in bytes, equal on every handle."},
    {enumeration, "enumeration", "Lifecycle", "int8_t {e}_variant_data_index_cap(int8_t variant)",
     "Enum<{E}>::variant_data_index_cap", "Returns the variant, limited to 0, the highest one that this library has."},
    {enumeration, "enumeration", "Lifecycle", "void {e}_set_instance_embedded(H, I, {e} *instance)",
     "Enum<{E}>::set_instance_embedded",
     "Sets MIRK_OBJ_EMBEDDED in the object. The caller thereby states that it lies in memory of another object."},
    {enumeration, "enumeration", "Lifecycle", "void {e}_adjust_variant(H, I, {e} *instance, E)",
     "Enum<{E}>::adjust_variant",
     "Changes the object to the variant that the handle's domain has for its type. Notifies if the variant changes."},
    {enumeration, "enumeration", "Lifecycle", "void {e}_destroy(H, I, {e} *instance)", "Enum<{E}>::destroy",
     "Destroys the object and frees its memory. NULL and the sentinel are ignored.", as_is},
    {enumeration, "enumeration", "Lifecycle", "{e} *{e}_destroy_internal(H, I, {e} *instance, uint32_t free_it)",
     "Enum<{E}>::destroy_internal",
     "Same as {e}_destroy(), but has no effect with free_it 0, because an enumeration owns no other memory. Returns "
     "the sentinel."},
    {enumeration, "enumeration", "References", "uint32_t {e}_get_oid_count(H, I, {e} *instance, E)",
     "Enum<{E}>::get_oid_count",
     "Returns the number of object identifiers in the object: 0. EINVAL if instance is NULL."},
    {enumeration, "enumeration", "References",
     "void {e}_get_object_references(H, I, {e} *instance, void **not_used_1, uint32_t not_used_2, E)",
     "Enum<{E}>::get_object_references",
     "Writes nothing, because the object holds no object identifier. EINVAL if instance is NULL."},
    {enumeration, "enumeration", "Value", "{e} *{e}_get(H, I, {e} *instance, E)", "Enum<{E}>::get",
     "Returns the object itself, so that code can treat enumerations as it treats members."},
    {enumeration, "enumeration", "Value", "uint32_t {e}_get_value(H, I, {e} *instance, E)", "Enum<{E}>::get_value",
     "Returns the value. 0 after an error; EINVAL if instance is NULL."},
    {enumeration, "enumeration", "Value", "void {e}_set(H, I, {e} *instance, {e} *source, E)", "Enum<{E}>::set",
     "Copies the source with its header. EIDRM if its value is not an enumerator, EINVAL if either is NULL; nothing is "
     "stored then."},
    {enumeration, "enumeration", "Value", "void {e}_set_value(H, I, {e} *instance, uint32_t value, E)",
     "Enum<{E}>::set_value",
     "Stores a value, notifies, and marks the object as modified. EIDRM if the value is not an enumerator, EINVAL if "
     "instance is NULL; nothing is stored then."},
    {enumeration, "enumeration", "Value", "uint32_t {e}_is_valid_cr(H, uint32_t value)", "Enum<{E}>::is_valid_cr",
     "Returns 1 if the value is an enumerator, else 0. Also returns 1 for numbers with the top bit set, which the "
     "setters refuse, and for every value if the domain has a variant above 0."},
    {enumeration, "enumeration", "Value", "uint32_t {e}_map_to_user_value(uint32_t value)", "Enum<{E}>::same_value",
     "Returns the value unchanged: this schema has no second numbering."},
    {enumeration, "enumeration", "Value", "uint32_t {e}_map_to_internal_value(uint32_t value)", "Enum<{E}>::same_value",
     "Returns the value unchanged: this schema has no second numbering."},
    {enumeration, "enumeration", "Value", "int32_t {e}_compare(const {e} *a, const {e} *b)", "Enum<{E}>::compare",
     "Returns the difference of the two values, a minus b. NULL comes first."},
    {enumeration, "enumeration", "Value", "uint32_t {e}_hash(const {e} *instance, uint32_t seed)", "Enum<{E}>::hash",
     "Mixes the value into the seed. Returns the seed itself for NULL."},
    {enumeration, "enumeration", "Value", "uint32_t {e}_backpropagate(H, I, {e} *instance, void *word)",
     "Enum<{E}>::backpropagate",
     "Returns 1 if the object has the modified mark, and clears it. word is not used. NULL gives 0."},
    {enumeration, "enumeration", "Wire", "uint32_t {e}_len(H, I, {e} *instance)", "Enum<{E}>::len",
     "Returns the number of bytes on the wire: 5, also for NULL."},
    {enumeration, "enumeration", "Wire", "uint32_t {e}_len_cr(H)", "Enum<{E}>::len_cr",
     "Sticky form of {e}_len(). Returns 0 while last_error is set."},
    {enumeration, "enumeration", "Wire",
     "uint32_t {e}_marshal(H, I, void *buffer, {e} *instance, int32_t remaining, E)", "Enum<{E}>::marshal",
     "Writes variant and value, 5 bytes, into the remaining bytes at buffer. Returns the number of bytes written. "
     "EMSGSIZE if they do not fit, ENOMEM if remaining is 0. EIDRM if the domain does not have the object's variant."},
    {enumeration, "enumeration", "Wire",
     "uint32_t {e}_unmarshal(H, I, void *buffer, {e} *instance, uint32_t length, uint32_t reuse, E)",
     "Enum<{E}>::unmarshal",
     "Reads variant and value, 5 bytes, from length bytes at buffer. Returns the number of bytes consumed. Any value "
     "is accepted; reuse is ignored. EMSGSIZE if length is too small, ENOMEM if it is 0, EINVAL if instance is NULL."},
    {enumeration, "enumeration", "Text",
     "uint32_t {e}_print(H, I, char *buffer, uint32_t indent, const char *name, {e} *instance, int32_t remaining, E)",
     "Enum<{E}>::print",
     "Writes a line with the name and the enumerator, indented by indent blanks. Returns the length in bytes without "
     "the final NUL. A value that is not an enumerator gives a text without a line end. ENOSPC if the text does not "
     "fit.",
     size},
    {enumeration, "enumeration", "XML",
     "uint32_t {e}_to_xml(H, I, const char *name, char *buffer, {e} *instance, int32_t remaining, uint8_t state, E)",
     "Enum<{E}>::to_xml",
     "Writes an XML element of this name that contains an empty element named like the enumerator. Returns the length "
     "in bytes without the final NUL. The state is not written. A value that is not an enumerator gives text that is "
     "not well-formed XML. EMSGSIZE if the text does not fit.",
     size},
    {enumeration, "enumeration", "XML",
     "void {e}_from_xml(H, I, const char *path, void *document, {e} *instance, E, char *message, uint32_t "
     "message_size)",
     "Enum<{E}>::from_xml",
     "Reads the value from the enumerator's element below a path of the runtime's document. Without one, the value "
     "stays. message, which may be NULL, gets a sentence only if reading an enumerator's element fails. Clear its "
     "first byte before the call."},

    // ---- plain messages
    {message, "message", "Message objects", "{m} *{m}_message_create_shallow(H, I)",
     "MessageObject<{M}>::create_shallow",
     "Allocates a message without a payload. Returns NULL if allocation fails. The caller owns it."},
    {message, "message", "Message objects", "{m} *{m}_message_create(H, I)", "MessageObject<{M}>::create",
     "Allocates a message with a new payload. Returns NULL if the message or its payload cannot be created. The caller "
     "owns it and releases it with {m}_message_destroy().",
     create, "_unsafe"},
    {message, "message", "Message objects", "void {m}_message_destroy(H, I, {m} *message)",
     "MessageObject<{M}>::destroy", "Destroys the message and its payload. NULL and the sentinel are ignored.", as_is,
     "_unsafe"},
    {message, "message", "Message objects", "{r} *{m}_message_{r}_get(H, I, {m} *message, E)",
     "MessageObject<{M}>::get",
     "Returns the payload, which the message still owns. NULL if err is set or message is NULL."},
    {message, "message", "Message objects", "{r} *{m}_message_{r}_get_detach(H, I, {m} *message, E)",
     "MessageObject<{M}>::get_detach",
     "Returns the payload and removes it from the message; the caller owns it. NULL if err is set or message is NULL."},
    {message, "message", "Message objects", "void {m}_message_{r}_set(H, I, {m} *message, {r} *payload, E)",
     "MessageObject<{M}>::set", "Stores a payload, which the message then owns. The previous payload is not released."},
    {message, "message", "Message objects", "void {m}_message_{r}_free_and_set(H, I, {m} *message, {r} *payload, E)",
     "MessageObject<{M}>::free_and_set",
     "Destroys the payload and stores another one, which the message then owns. Never pass the message's own payload."},
    {message, "message", "Message objects", "uint32_t {m}_message_is_valid_cr(H)", "MessageObject<{M}>::is_valid_cr",
     "Returns nonzero if the handle's domain has this message."},
    {message, "message_wire", "Message frames", "uint32_t {m}_message_len(H, I, {m} *message)", "MessageWire<{M}>::len",
     "Returns the buffer size in bytes that {m}_message_marshal() needs, without the guard byte and without RA data, "
     "as in {r}_len().",
     zero, "_unsafe"},
    {message, "message_wire", "Message frames",
     "uint32_t {m}_message_marshal(H, I, void *buffer, {m} *message, uint32_t size, E)", "MessageWire<{M}>::marshal",
     "Writes the message as a frame of header, identity and payload into buffer, which must have size bytes and one "
     "guard byte after them. Returns the number of bytes written; after an error the frame is not valid. EBADE if the "
     "domain does not have the message, ENOENT if the open bundle does not admit it. EMSGSIZE or ENOMEM if the buffer "
     "is too small, ENOMEM also if allocation fails. State bytes that do not fit are dropped without an error. EIDRM "
     "as in {r}_marshal(). EINVAL if the message has no payload.",
     size, "_unsafe"},
    {message, "message_wire", "Message frames",
     "uint32_t {m}_message_unmarshal(H, I, void *dispatch_ctx, {m} **out, void *buffer, uint32_t size, "
     "mirk_message_handler handler, E)",
     "MessageWire<{M}>::unmarshal",
     "Reads a frame of size bytes from buffer, which must have one guard byte after them, and records the message if "
     "the recorder is on. Then delivers it to the handler, or to lumo_ui_tarn_{m}_message_handler() if handler is "
     "NULL. The receiver owns the message. The address of the message is also stored in *out, unless out is NULL. "
     "Returns the number of bytes consumed. It may exceed size without an error: check it before you advance. After an "
     "error it has no meaning. EMSGSIZE or ENOMEM if the frame is too short, EBADMSG if its first byte is not 0xBC, "
     "ENOMEM if allocation fails. The message of a bad frame is leaked: see {m}_message_unmarshal_only()."},
    {message, "message_wire", "Message frames",
     "uint32_t {m}_message_unmarshal_only(H, I, {m} **out, void *buffer, uint32_t size, E)",
     "MessageWire<{M}>::unmarshal_only",
     "Reads a frame of size bytes from buffer, which must have one guard byte after them, and returns the message "
     "through out. The caller destroys it, also after a bad frame. Set *out to NULL before the call: it stays "
     "unchanged if no message can be allocated. Result and errors as in {m}_message_unmarshal()."},
    {message, "message_rendering", "Message text and XML",
     "uint32_t {m}_message_print(H, I, char *buffer, {m} *message, uint32_t size, E)", "MessageRendering<{M}>::print",
     "Writes the message as readable text. Returns the length in bytes without the final NUL. The indent of closing "
     "braces is counted but not written. Clear the buffer first, then replace NUL bytes within the returned length by "
     "blanks. EMSGSIZE or ENOSPC if the text does not fit.",
     size, "_unsafe"},
    {message, "message_rendering", "Message text and XML",
     "uint32_t {m}_message_to_xml(H, I, char *buffer, {m} *message, uint32_t size, E)", "MessageRendering<{M}>::to_xml",
     "Writes the message as an XML element that contains the payload's element. Returns the length in bytes without "
     "the final NUL. EMSGSIZE if the text does not fit.",
     size, "_unsafe"},
    {message, "message_rendering", "Message text and XML",
     "{m} *{m}_message_from_xml(H, I, void *document, E, char *message_buffer, uint32_t message_size)",
     "MessageRendering<{M}>::from_xml",
     "Creates a message from the first element with the payload's name in the runtime's document. If there is none, "
     "all members of the payload are zero, and err stays 0. The caller owns the message. Returns NULL after an error; "
     "a message that was already allocated is leaked. message_buffer, which may be NULL, gets a sentence only if "
     "reading an enumerator's element fails. Clear its first byte before the call.",
     none, "_unsafe"},
    {message, "handlers", "Handlers",
     "void lumo_ui_tarn_{m}_message_handler(H, I, void *dispatch_ctx, void *message, E)",
     "MessageHandler<{M}>::unhandled",
     "Receives each message that no other handler takes. A weak symbol: define a function of the same name to receive "
     "the messages. This one sets ENOSYS.",
     none, "", true},

    // ---- control messages
    {control, "control", "Control messages", "void *{b}_bundle_{k}_message_create(H, I)",
     "ControlMessage<{B}, {K}>::create",
     "Allocates a token for the {k} of the bundle. Returns NULL if allocation fails. The caller owns it.", none,
     "_unsafe"},
    {control, "control", "Control messages", "void *{b}_bundle_{k}_message_create_cr(H)",
     "ControlMessage<{B}, {K}>::create_cr",
     "Sticky form of {b}_bundle_{k}_message_create(): returns a sentinel instead of NULL if allocation fails or "
     "last_error is set already. Only {b}_bundle_{k}_message_destroy_cr() accepts the sentinel."},
    {control, "control", "Control messages", "void {b}_bundle_{k}_message_destroy(H, I, void *token)",
     "ControlMessage<{B}, {K}>::destroy",
     "Frees the token. NULL is ignored. Release a token of {b}_bundle_{k}_message_create_cr() with "
     "{b}_bundle_{k}_message_destroy_cr() instead.",
     none, "_unsafe"},
    {control, "control", "Control messages", "void {b}_bundle_{k}_message_destroy_cr(H, void *token)",
     "ControlMessage<{B}, {K}>::destroy_cr", "Frees the token. NULL and the sentinel are ignored."},
    {control, "control", "Control messages", "uint32_t {b}_bundle_{k}_message_len(H, I, void *token)",
     "ControlMessage<{B}, {K}>::len", "Returns the size of the frame: 43 bytes, header and identity.", zero, "_unsafe"},
    {control, "control", "Control messages",
     "uint32_t {b}_bundle_{k}_message_marshal(H, I, void *buffer, void *token, uint32_t size, E)",
     "ControlMessage<{B}, {K}>::marshal",
     "Writes the frame of the bundle's {k}. {start:A start opens the handle's send bundle: EEXIST if one is open "
     "already, EMSGSIZE if size is below 43. }{end:An abort or a commit closes the open send bundle, even if EMSGSIZE "
     "says that its frame did not fit. ENOENT if none is open. If err is set on entry, the bundle stays open. }token "
     "is not read and may be NULL. Returns the number of bytes written.",
     size, "_unsafe"},
    {control, "control", "Control messages",
     "uint32_t {b}_bundle_{k}_message_unmarshal(H, I, void *dispatch_ctx, void **out, void *buffer, uint32_t size, "
     "mirk_message_handler handler, E)",
     "ControlMessage<{B}, {K}>::unmarshal",
     "Calls the handler, or lumo_ui_tarn_{b}_bundle_{k}_message_handler() if handler is NULL. The frame is not read. "
     "Returns 43, also after an error."},
    {control, "control", "Control messages",
     "uint32_t {b}_bundle_{k}_message_unmarshal_only(H, I, void **out, void *buffer, uint32_t size, E)",
     "ControlMessage<{B}, {K}>::unmarshal_only", "Has no effect and returns 0: there is no object to return."},
    {control, "control", "Control messages",
     "uint32_t {b}_bundle_{k}_message_print(H, I, char *buffer, void *token, uint32_t size, E)",
     "ControlMessage<{B}, {K}>::print",
     "Writes a line with the bundle's name. Returns the length in bytes without the final NUL. ENOSPC if the line does "
     "not fit.",
     checked_size, "_unsafe"},
    {control, "control", "Control messages",
     "uint32_t {b}_bundle_{k}_message_to_xml(H, I, char *buffer, void *token, uint32_t size, E)",
     "ControlMessage<{B}, {K}>::to_xml",
     "Writes an empty XML element with the bundle's name as an attribute. Returns the length in bytes without the "
     "final NUL. EMSGSIZE if it does not fit.",
     checked_size, "_unsafe"},
    {control, "control", "Control messages",
     "void *{b}_bundle_{k}_message_from_xml(H, I, void *document, E, char *message_buffer, uint32_t message_size)",
     "ControlMessage<{B}, {K}>::from_xml",
     "Allocates a token, which the caller owns; the document is not read. Returns NULL if allocation fails.", none,
     "_unsafe"},
    {control, "control", "Control messages", "uint32_t {b}_bundle_{k}_message_valid_cr(H)",
     "ControlMessage<{B}, {K}>::valid_cr", "Returns 1: every domain has control messages."},
    {control, "handlers", "Handlers",
     "void lumo_ui_tarn_{b}_bundle_{k}_message_handler(H, I, void *dispatch_ctx, void *message, E)",
     "BundleHandler<{B}>::{k}",
     "Implements the {k} on the receiving side. {start:A start opens the handle's receive bundle: EEXIST if one is "
     "open already. }{end:An abort destroys the messages received. A commit delivers them to the bundle's handler and "
     "then destroys those that are left. EBADMSG if no bundle is open. }A weak symbol: define a function of the same "
     "name to replace it.",
     none, "", true},

    // ---- bundles
    {bundle, "handlers", "Handlers", "void lumo_ui_tarn_{b}_bundle_handler(H, I, void *dispatch_ctx, E)",
     "BundleHandler<{B}>::unhandled",
     "Receives each committed bundle that has no registered handler; its messages are on the handle's receive list. A "
     "weak symbol: define a function of the same name to receive the bundles. This one only writes a trace line.",
     none, "", true},
    {bundle, "handlers", "Registration",
     "mirk_bundle_handler lumo_ui_tarn_{b}_bundle_handler_register(mirk_bundle_handler handler)",
     "BundleHandler<{B}>::register_handler",
     "Registers the process-wide handler of this bundle and returns the previous one. Not synchronized: call it while "
     "no bundle is being received."},
    {bundle, "handlers", "Registration", "mirk_bundle_handler lumo_ui_tarn_{b}_bundle_handler_unregister(void)",
     "BundleHandler<{B}>::unregister_handler",
     "Removes the registered handler of this bundle and returns it. Not synchronized."},

    // ---- the module
    {module, "module", "Types", "void lumo_ui_tarn_typeinfo_initialize(H, I, E)", "initialize_private_types",
     "Creates the copies of type records that a handle with private_types set does not have yet. Programs need not "
     "call it: the runtime does so when it needs a copy. ENOMEM if allocation fails. err is not read."},
    {module, "module", "Types", "void lumo_ui_tarn_type_variant_dump(mirk_print_fn print)", "dump_variants",
     "Prints the number of variants of each type and, for each variant, the length of an instance and of the padding "
     "after it (slop) in bytes."},
    {module, "module", "Trace", "void mirk_lumo_ui_tarn_type_trace_init(void)", "initialize_type_trace",
     "Registers the trace module of records and enumerations. Creating a record calls it. Repeated calls have no "
     "effect."},
    {module, "module", "Trace", "void mirk_lumo_ui_tarn_message_trace_init(void)", "initialize_message_trace",
     "Registers the trace module of messages. Call it at least once: until then trace lines of messages have module "
     "number 0. Repeated calls have no effect."},
    {module, "registration", "Registration",
     "mirk_bundle_handler lumo_ui_tarn_bundle_handler_register(mirk_bundle_handler handler)", "register_for_module",
     "Registers one handler for all bundles of this module and of the modules it depends on, and returns the previous "
     "one. It precedes the handlers of single bundles. Not synchronized: call it while no bundle is being received."},
    {module, "registration", "Registration", "mirk_bundle_handler lumo_ui_tarn_bundle_handler_unregister(void)",
     "unregister_for_module",
     "Removes the handler of all bundles, in this module and in those it depends on, and returns it. Not "
     "synchronized."},
};

constexpr Instantiation called_by_other_units[] = {
    {"lifecycle", record, "Lifecycle<{R}>"},
    {"references", record, "References<{R}>"},
    {"assignment", record, "Assignment<{R}>"},
    {"wire_write", record, "WireWrite<{R}>"},
    {"wire_read", record, "WireRead<{R}>"},
    {"copy", record, "Copy<{R}>"},
    {"text", record, "Text<{R}>"},
    {"xml_write", record, "XmlWrite<{R}>"},
    {"xml_read", record, "XmlRead<{R}>"},
    {"compare", record, "Compare<{R}>"},
    {"hash", record, "Hash<{R}>"},
    {"propagate", record, "Propagate<{R}>"},
    {"strings", string, "String<{F}>"},
    {"arrays", array, "Array<{F}>"},
    {"enumeration", enumeration, "Enum<{E}>"},
    {"message", message, "MessageObject<{M}>"},
    {"message_rendering", message, "MessageRendering<{M}>"},
    {"recording", message, "Recording<{M}>"},
};

}  // namespace

std::span<const Row> rows() { return table; }
std::span<const Instantiation> instantiations() { return called_by_other_units; }

}  // namespace tarn::generate
