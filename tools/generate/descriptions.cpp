// What each operation does, for the headers, the reference and the manual. The placeholders are those of prototypes,
// and {meaning} is what the schema says of the member.
#include <initializer_list>
#include <stdexcept>
#include <string>

#include "families.h"

namespace tarn::generate {

namespace {

using enum Applies;

struct Description {
    std::string_view name;  // as in the prototype
    std::string_view text;
};

constexpr Description of_records[] = {
    {"{r}_create",
     "Makes an instance with all members zero, or null without memory. It belongs to the caller, who ends it with "
     "{r}_destroy()."},
    {"{r}_create_cr",
     "Sticky form of {r}_create(): works under the handle's default_id, makes nothing while last_error is set, and "
     "answers a sentinel instead of null, which only {r}_destroy() and sticky forms may be given."},
    {"{r}_create_internal",
     "As {r}_create(), without registering the trace module of types first: for whoever makes many."},
    {"{r}_initialize",
     "Sets up an instance in zeroed memory of the caller's: header, usage counter, and what it embeds. The type is "
     "commonly _{r}_type_info_internal. With notify 0 the writes are not announced, with skip_count 1 nothing is "
     "counted; flags go into obj_flag, and sttr_base is where the state lies of an instance that is nested in "
     "another."},
    {"{r}_sizeof",
     "Bytes of an instance with everything that it nests and, on a handle that tracks, its state. Differs between "
     "handles."},
    {"{r}_variant_data_index_cap", "The variant itself, or the highest that this library knows if that is lower."},
    {"{r}_set_instance_embedded",
     "Marks the instance, with the records, addresses and booleans in it, as lying in memory of another one "
     "(MIRK_OBJ_EMBEDDED)."},
    {"{r}_adjust_variant",
     "Brings the instance to the variant that the handle's domain has for its type; announced if that changes it."},
    {"{r}_destroy",
     "Ends the instance: its arrays and strings, what it nests, and its memory. Null and the sentinel are passed over. "
     "An instance that others refer to goes with the last reference."},
    {"{r}_destroy_cr", "{r}_destroy() under the handle's default_id. Works whatever last_error holds."},
    {"{r}_destroy_internal",
     "As {r}_destroy(); with free_it 0 the memory of the instance itself is left to its owner, as for an instance that "
     "lies inside another."},
    {"{r}_get", "The instance itself: lets code treat records as it treats members."},
    {"{r}_get_all",
     "Writes all scalar members, counts and lengths through the pointers, in table order. Writes nothing for an "
     "instance without body, and no error tells."},
    {"{r}_set_all",
     "Stores all scalar members, in table order; counts and lengths are not among them. State bytes stay as they are, "
     "unlike with the setters of single members."},
    {"{r}_set",
     "MOVES the source into the destination: members, state, and the ownership of arrays and strings, which the source "
     "loses. What the destination owned before is not released. {r}_copy_cr() copies."},
    {"{r}_post_copyout_cleanup",
     "For runtimes that move instances byte by byte: makes the copy in the new place the one owner of arrays and "
     "strings, and takes them from the old place."},
    {"{r}_set_all_state_tracking_flag",
     "Fills the whole state area with one byte, unannounced, and that of every array element too. Element states then "
     "read as this value, and can no longer be set one by one. Does nothing without tracking."},
    {"{r}_is_valid_cr",
     "1 if the handle's domain has a member of this index, counted from 0 in table order; the instance is not looked "
     "at."},
    {"{r}_get_oid_count",
     "How many object identifiers the instance holds of its own: 0 in this schema. EINVAL for null."},
    {"{r}_get_object_references",
     "Would write up to size object identifiers that the instance holds of its own: writes none in this schema. EINVAL "
     "for null."},
    {"{r}_offset_update",
     "Tells the runtime where in the state area at this address the state of each nested record and address lies: for "
     "whoever has moved the instance or its state."},
    {"{r}_offset_remove",
     "Has the runtime forget the places of states that {r}_offset_update() told it, at every depth."},
    {"{r}_len",
     "Bytes that a buffer for {r}_marshal() needs, its spare byte aside. Says a little more than is written: see "
     "families.h. RA data comes on top."},
    {"{r}_len_cr", "Sticky form of {r}_len(): 0 while last_error is set."},
    {"{r}_marshal",
     "Writes the instance as a frame into the remaining bytes at buffer, behind which one spare byte lies. Returns the "
     "bytes written. Goes on after a failure, so that only err tells: ENOMEM or EMSGSIZE for too little room, EIDRM if "
     "the domain has no place for the instance's variant, in which case the frame is written in the domain's."},
    {"{r}_marshal_for_clone",
     "As {r}_marshal(), but in the instance's own variant whatever the domain has: the frame of a deep copy."},
    {"{r}_unmarshal",
     "Reads a frame of length bytes at buffer, behind which one spare byte lies, into an instance. Returns the bytes "
     "consumed. With reuse 0 the instance owns nothing yet, and what it owned is lost; with reuse 1 its arrays and "
     "strings are kept where the counts are equal. The frame is never trusted."},
    {"{r}_clone",
     "Makes a deep copy by way of a frame in the buffer, which has size bytes, {r}_len() of them at least, and one to "
     "spare. The result is null after any error; otherwise it belongs to the caller."},
    {"{r}_clone_cr",
     "Deep copy by way of the handle's workspace, null after any error. A record that is too large for the workspace "
     "needs {r}_clone()."},
    {"{r}_copy_cr",
     "Deep copy into an existing instance, by way of the handle's workspace. What the destination owned is not "
     "released; if reading fails, the destination is destroyed."},
    {"{r}_print",
     "Writes the instance as text for people, indent blanks in and headed by the name. Returns the characters written. "
     "Clear the buffer first: bytes in front of closing braces are counted and not written."},
    {"{r}_print_cr",
     "Sticky form of {r}_print(), without indent and headed by the record's name. 0xFFFFFFFF after an error."},
    {"{r}_to_xml",
     "Writes the instance as an XML element of this name, one element in it for each member. A nonzero state shows as "
     "an attribute. Returns the characters written."},
    {"{r}_toxml_cr", "Sticky form of {r}_to_xml(), named as the record. 0xFFFFFFFF after an error."},
    {"{r}_from_xml",
     "Reads the element at a path of the runtime's document into the instance. Members that are missing stay as they "
     "are; a value that is none ends the reading, with a sentence in message if that is not null."},
    {"{r}_compare",
     "Orders two instances by their members in table order; only the sign means something. Null comes first. Header "
     "and state play no part."},
    {"{r}_hash",
     "Mixes all members into the seed; equal instances give equal results in every process. The seed itself for null."},
    {"{r}_type_type_backpropagate",
     "1 if the record, or a member up to the first that had one, bore a change mark. The record's own mark and that "
     "member's are cleared. The word is handed to the runtime as it is."},
};

constexpr Description of_members[] = {
    {"{r}_{f}_get", "Address of the member {f} inside the object: {meaning}. Null after an error."},
    {"{r}_{f}_get_value", "Value of the member {f}: {meaning}. 0 after an error."},
    {"{r}_{f}_set",
     "Stores what the source holds as {f}: {meaning}. Announced, marked as modified and, on a handle that tracks, with "
     "state byte 2."},
    {"{r}_{f}_set_value",
     "Stores a value as {f}: {meaning}. Announced, marked as modified and, on a handle that tracks, with state byte "
     "2."},
    {"{r}_{f}_state_flag_get", "State byte of {f}. EINVAL on a handle or for an object without tracking."},
    {"{r}_{f}_state_flag_set",
     "Stores the state byte of {f}, announced, and marks the object as modified. EINVAL on a handle or for an object "
     "without tracking."},
};

constexpr Description of_choices[] = {
    {"{r}_{f}_set_value",
     "Stores an enumerator of {n} as {f}: {meaning}. A number beyond the enumerators is refused with EIDRM, and counts "
     "as written all the same."},
};

constexpr Description of_nested[] = {
    {"{r}_{f}_set",
     "MOVES a record into {f}: {meaning}. The source loses its arrays and strings; what {f} owned before is not "
     "released."},
};

constexpr Description of_lengths[] = {
    {"{r}_{f}_get", "Address of the length {f}: {meaning}. To be read only: it follows from the string."},
    {"{r}_{f}_get_value", "Length {f} in bytes: {meaning}. 0 after an error."},
};

constexpr Description of_counts[] = {
    {"{r}_{f}_get", "Address of the count {f}: {meaning}. To be read only: it follows from the array."},
    {"{r}_{f}_get_value", "Count {f}: {meaning}. 0 after an error. A count of one byte wraps at 256."},
};

constexpr Description of_strings[] = {
    {"{r}_{f}_get",
     "Copies {f} with a NUL behind it: {meaning}. The destination has size bytes, one more than the length at least: "
     "ENOSPC says that the copy is cut."},
    {"{r}_{f}_set",
     "Stores length bytes, cut to 16 bits, as {f}: {meaning}. A text that ends earlier, or null, is followed by zero "
     "bytes."},
    {"{r}_{f}_set_cr", "Sticky form of {r}_{f}_set(); returns the handle's last_error."},
};

constexpr Description of_arrays[] = {
    {"{r}_{f}_get",
     "Address of an element of {f}: {meaning}. It belongs to the array, and the next growth makes it invalid. ENOENT "
     "beyond the end."},
    {"{r}_{f}_set",
     "MOVES the value into an element of {f}: {meaning}. An index beyond the end grows the array to index + 1 elements "
     "with a full move, so set the highest index first; a null value grows it and stores nothing."},
    {"{r}_{f}_set_cr",
     "Sticky form of {r}_{f}_set(), which copies with copy_mode 0 and moves otherwise; returns the handle's "
     "last_error."},
    {"{r}_{f}_state_flag_get", "State byte of one element of {f}. ENOENT beyond the end, EINVAL without tracking."},
    {"{r}_{f}_state_flag_set",
     "Stores the state byte of one element of {f}. ENOENT beyond the end, EINVAL without tracking."},
    {"{r}_{f}_state_flag_whole_get", "State byte of {f} as a whole. EINVAL without tracking."},
    {"{r}_{f}_state_flag_whole_set", "Stores the state byte of {f} as a whole. EINVAL without tracking."},
    {"{r}_{f}_state_flag_get_arr",
     "Writes the address of the element states of {f} through out: one byte for each, null if there are none. EINVAL "
     "without tracking."},
    {"{r}_{f}_state_flag_set_arr",
     "Copies length bytes, as many as {f} has elements, to the start of the object's whole state area, and not to the "
     "element states. ENOENT for another length, EINVAL without tracking."},
};

constexpr Description of_enumerations[] = {
    {"{e}_create",
     "Makes an object with value 0, or null without memory. It belongs to the caller, who ends it with "
     "{e}_destroy()."},
    {"{e}_create_internal", "Another name of {e}_create()."},
    {"{e}_create_cr",
     "Sticky form of {e}_create(): under the handle's default_id, and with a sentinel instead of null, over which "
     "destroy operations pass."},
    {"{e}_initialize",
     "Sets up an object in memory of the caller's. The type record is commonly _{e}_type_info_internal; with notify 0 "
     "the "
     "writes are not announced; flags go into obj_flag."},
    {"{e}_sizeof", "Bytes of an object, the same on every handle."},
    {"{e}_variant_data_index_cap", "The variant itself, or the highest that this library knows if that is lower."},
    {"{e}_set_instance_embedded", "Marks the object as lying in memory of another one (MIRK_OBJ_EMBEDDED)."},
    {"{e}_adjust_variant",
     "Brings the object to the variant that the handle's domain has for its type; announced if that changes it."},
    {"{e}_destroy", "Ends the object and releases its memory. Null and the sentinel are passed over."},
    {"{e}_destroy_cr", "{e}_destroy() under the handle's default_id. Works whatever last_error holds."},
    {"{e}_destroy_internal",
     "As {e}_destroy(), and nothing at all with free_it 0: an embedded object owns nothing. Returns the sentinel."},
    {"{e}_get_oid_count", "How many object identifiers the object holds: 0. EINVAL for null."},
    {"{e}_get_object_references", "Writes no object identifier, since there are none. EINVAL for null."},
    {"{e}_get", "The object itself: lets code treat enumerations as it treats members."},
    {"{e}_get_value", "The value. 0 after an error; EINVAL for null."},
    {"{e}_set", "Copies the source, header included. A value beyond the enumerators is refused with EIDRM."},
    {"{e}_set_value", "Stores a value, announced. One beyond the enumerators is refused with EIDRM."},
    {"{e}_is_valid_cr", "1 if the value is an enumerator in the handle's domain."},
    {"{e}_map_to_user_value", "The value as it is: this schema has no second numbering."},
    {"{e}_map_to_internal_value", "The value as it is: this schema has no second numbering."},
    {"{e}_compare", "Distance of the two values. Null comes first."},
    {"{e}_hash", "Mixes the value into the seed; the seed itself for null."},
    {"{e}_backpropagate", "1 if the object bore a change mark, which is cleared. The word is not used."},
    {"{e}_len", "Bytes on the wire: 5, for null too."},
    {"{e}_len_cr", "Sticky form of {e}_len(): 0 while last_error is set."},
    {"{e}_marshal",
     "Writes variant and value into the remaining bytes at buffer. Returns the bytes written. EIDRM if the domain has "
     "no place for the object's variant."},
    {"{e}_unmarshal",
     "Reads variant and value from length bytes at buffer. Returns the bytes consumed. Every value is kept as it came; "
     "reuse plays no part."},
    {"{e}_print",
     "Writes a line with the name and the enumerator, indent blanks in. Returns the characters written. A value beyond "
     "the enumerators is told in words, and has no line end."},
    {"{e}_print_cr",
     "Sticky form of {e}_print(), without indent and headed by the enumeration's name. 0xFFFFFFFF after an error."},
    {"{e}_to_xml",
     "Writes an XML element of this name that holds an empty element named as the enumerator. Returns the characters "
     "written. The state is not shown."},
    {"{e}_toxml_cr", "Sticky form of {e}_to_xml(), named as the enumeration. 0xFFFFFFFF after an error."},
    {"{e}_from_xml",
     "Reads the value from the enumerator's element below a path of the runtime's document. Without any, the value "
     "stays. message gets a sentence on failure, if it is not null."},
};

constexpr Description of_messages[] = {
    {"{m}_message_create",
     "Makes a message with a fresh payload, or null without memory. It belongs to the caller, who ends it with "
     "{m}_message_destroy()."},
    {"{m}_message_create_shallow", "Makes a message without a payload, or null without memory."},
    {"{m}_message_create_cr",
     "Sticky form of {m}_message_create(): under the handle's default_id, and with a sentinel instead of null, over "
     "which destroy operations pass."},
    {"{m}_message_create_unsafe", "Another name of {m}_message_create()."},
    {"{m}_message_destroy", "Ends the message and its payload. Null and the sentinel are passed over."},
    {"{m}_message_destroy_cr", "{m}_message_destroy() under the handle's default_id."},
    {"{m}_message_destroy_unsafe", "Another name of {m}_message_destroy()."},
    {"{m}_message_{r}_get", "The payload, which stays the message's. Null after an error or for null."},
    {"{m}_message_{r}_get_detach",
     "The payload, which is the caller's from now on; the message has none. Null after an error or for null."},
    {"{m}_message_{r}_set",
     "Gives the message a payload, which is the message's from now on. The one before is not released."},
    {"{m}_message_{r}_free_and_set",
     "Ends the payload and gives the message another one. Never pass it the message's own."},
    {"{m}_message_is_valid_cr", "Nonzero if the handle's domain has this message."},
    {"{m}_message_len", "Bytes that a buffer for {m}_message_marshal() needs, its spare byte aside."},
    {"{m}_message_len_cr", "Sticky form of {m}_message_len(): 0 while last_error is set."},
    {"{m}_message_len_unsafe", "Another name of {m}_message_len()."},
    {"{m}_message_marshal",
     "Writes the message as a frame of size bytes at most at buffer, behind which one spare byte lies: header, "
     "identity, payload. Returns the bytes written. EBADE if the domain does not have the message, ENOENT if the open "
     "bundle does not admit it, EMSGSIZE for too little room."},
    {"{m}_message_marshal_cr", "Sticky form of {m}_message_marshal(). 0xFFFFFFFF after an error."},
    {"{m}_message_marshal_unsafe", "Another name of {m}_message_marshal()."},
    {"{m}_message_unmarshal",
     "Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to "
     "lumo_ui_tarn_{m}_message_handler() for null; the message belongs to whoever takes it. out, which may be null, "
     "gets its address too. Returns the bytes consumed. What a bad frame left of a message is kept for good."},
    {"{m}_message_unmarshal_only",
     "Reads a frame and hands the message over through out, also that of a bad frame, for the caller to destroy. "
     "Returns "
     "the bytes consumed."},
    {"{m}_message_print", "Writes the message as text for people. Returns the characters written."},
    {"{m}_message_print_cr", "Sticky form of {m}_message_print(). 0xFFFFFFFF after an error."},
    {"{m}_message_print_unsafe", "Another name of {m}_message_print()."},
    {"{m}_message_to_xml",
     "Writes the message as an XML element with the payload's element in it. Returns the characters written."},
    {"{m}_message_toxml_cr", "Sticky form of {m}_message_to_xml(). 0xFFFFFFFF after an error."},
    {"{m}_message_to_xml_unsafe", "Another name of {m}_message_to_xml()."},
    {"{m}_message_from_xml",
     "Makes a message from the first element of the payload's name in the runtime's document; a fresh payload if there "
     "is none. Null after an error, with a sentence in message_buffer if that is not null."},
    {"{m}_message_from_xml_unsafe", "Another name of {m}_message_from_xml()."},
    {"lumo_ui_tarn_{m}_message_handler",
     "Gets each received message that has no better handler. A weak symbol: define one of the same name to take the "
     "messages. This one leaves ENOSYS, which says that nobody did."},
};

constexpr Description of_controls[] = {
    {"{b}_bundle_{k}_message_create", "Makes a token for the {k} of the bundle, or null without memory."},
    {"{b}_bundle_{k}_message_create_cr",
     "Sticky form of {b}_bundle_{k}_message_create(), with a sentinel instead of null, which only the sticky destroy "
     "operation may be given."},
    {"{b}_bundle_{k}_message_create_unsafe", "Another name of {b}_bundle_{k}_message_create()."},
    {"{b}_bundle_{k}_message_destroy", "Releases the token. Null is passed over."},
    {"{b}_bundle_{k}_message_destroy_cr", "Releases the token. Null and the sentinel are passed over."},
    {"{b}_bundle_{k}_message_destroy_unsafe", "Another name of {b}_bundle_{k}_message_destroy()."},
    {"{b}_bundle_{k}_message_len", "Bytes of the frame: 43, header and identity."},
    {"{b}_bundle_{k}_message_len_cr", "Sticky form of {b}_bundle_{k}_message_len(): 0 while last_error is set."},
    {"{b}_bundle_{k}_message_len_unsafe", "Another name of {b}_bundle_{k}_message_len()."},
    {"{b}_bundle_{k}_message_marshal",
     "Writes the frame that is the {k} of the bundle, and has the handle's send bundle follow it: a start opens one, "
     "an abort or a commit ends it even if the frame did not fit. The token may be null. Returns the bytes written. "
     "EEXIST if a bundle is open already, ENOENT if none is, EMSGSIZE for too little room."},
    {"{b}_bundle_{k}_message_marshal_cr",
     "Sticky form of {b}_bundle_{k}_message_marshal(). 0xFFFFFFFF after an error."},
    {"{b}_bundle_{k}_message_marshal_unsafe", "Another name of {b}_bundle_{k}_message_marshal()."},
    {"{b}_bundle_{k}_message_unmarshal",
     "Calls the handler, or lumo_ui_tarn_{b}_bundle_{k}_message_handler() for null. The frame is not read, since being "
     "called is all that it says. Returns 43, also after an error."},
    {"{b}_bundle_{k}_message_unmarshal_only", "Does nothing and returns 0: there is nothing to hand over."},
    {"{b}_bundle_{k}_message_print", "Writes a line with the bundle's name. Returns the characters written."},
    {"{b}_bundle_{k}_message_print_cr", "Sticky form of {b}_bundle_{k}_message_print(). 0xFFFFFFFF after an error."},
    {"{b}_bundle_{k}_message_print_unsafe", "Another name of {b}_bundle_{k}_message_print()."},
    {"{b}_bundle_{k}_message_to_xml",
     "Writes an empty XML element with the bundle's name as an attribute. Returns the characters written."},
    {"{b}_bundle_{k}_message_toxml_cr", "Sticky form of {b}_bundle_{k}_message_to_xml(). 0xFFFFFFFF after an error."},
    {"{b}_bundle_{k}_message_to_xml_unsafe", "Another name of {b}_bundle_{k}_message_to_xml()."},
    {"{b}_bundle_{k}_message_from_xml", "Makes a token whatever the document holds, or null without memory."},
    {"{b}_bundle_{k}_message_from_xml_unsafe", "Another name of {b}_bundle_{k}_message_from_xml()."},
    {"{b}_bundle_{k}_message_valid_cr", "1: every domain has control messages."},
    {"lumo_ui_tarn_{b}_bundle_{k}_message_handler",
     "What the {k} does on the receiving side: a start opens the handle's receive bundle, an abort drops what has "
     "arrived, a commit hands it to the bundle's handler and then drops what is left. A weak symbol: define one of the "
     "same name to replace it. EEXIST for a start inside a bundle, EBADMSG for the others outside one."},
};

constexpr Description of_bundles[] = {
    {"lumo_ui_tarn_{b}_bundle_handler",
     "Gets each committed bundle for which no handler is registered; its messages lie on the handle's receive list "
     "meanwhile. A weak symbol: define one of the same name to take the bundles. This one only traces that nobody "
     "did."},
    {"lumo_ui_tarn_{b}_bundle_handler_register",
     "Registers the handler of this bundle for the process and returns the one before. Carries no lock: call it at a "
     "quiet moment."},
    {"lumo_ui_tarn_{b}_bundle_handler_unregister",
     "Takes the registered handler of this bundle away and returns it. Carries no lock."},
};

constexpr Description of_the_module[] = {
    {"lumo_ui_tarn_typeinfo_initialize",
     "Makes sure that the handle's type store has a private copy of each type record: for a handle with private types, "
     "before its first use. ENOMEM without memory."},
    {"lumo_ui_tarn_type_variant_dump",
     "Prints, for each type, its variants with the size and the slop of an instance."},
    {"mirk_lumo_ui_tarn_type_trace_init",
     "Registers the trace module of records and enumerations; repeatable. Creating a record does it."},
    {"mirk_lumo_ui_tarn_message_trace_init",
     "Registers the trace module of messages; repeatable. Call it once, or message trace goes under module 0."},
    {"lumo_ui_tarn_bundle_handler_register",
     "Registers one handler for all bundles of this module and of the modules that it builds on, and returns the one "
     "before. It comes ahead of the handlers of single bundles. Carries no lock: call it at a quiet moment."},
    {"lumo_ui_tarn_bundle_handler_unregister",
     "Takes the handler for all bundles away, here and in the modules that this one builds on, and returns it. Carries "
     "no lock."},
};

// Those of the class itself come ahead of those that all members share.
std::span<const Description> descriptions(Applies applies) {
    switch (applies) {
        case record:
            return of_records;
        case choice:
            return of_choices;
        case nested:
            return of_nested;
        case string:
            return of_strings;
        case length:
            return of_lengths;
        case count:
            return of_counts;
        case array:
            return of_arrays;
        case enumeration:
            return of_enumerations;
        case message:
            return of_messages;
        case control:
            return of_controls;
        case bundle:
            return of_bundles;
        case module:
            return of_the_module;
        default:
            return of_members;
    }
}

}  // namespace

std::string_view name_of(const Row &row) {
    const std::size_t open = row.prototype.find('(');
    const std::size_t begin = row.prototype.find_last_of(" *", open) + 1;
    return row.prototype.substr(begin, open - begin);
}

std::string_view description_of(const Row &row) {
    const std::string_view name = name_of(row);
    for (const std::span<const Description> list :
         {descriptions(row.applies), std::span<const Description>(of_members)}) {
        for (const Description &d : list) {
            if (d.name == name) return d.text;
        }
    }
    throw std::logic_error(std::string(name) + " has no description");
}

}  // namespace tarn::generate
