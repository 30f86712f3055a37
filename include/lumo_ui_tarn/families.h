/** @file
 * families.h - how the operations of all records, enumerations and messages behave.
 *
 * This header declares nothing. The other headers list names of the form TYPE_OPERATION or TYPE_MEMBER_OPERATION. An
 * operation behaves the same for every type.
 *
 * In this text T is a record, M a member, E an enumeration, N a message, and names are shortened: M_get is T_M_get,
 * N_marshal is N_message_marshal, N_get is N_message_T_get with the payload for T.
 *
 *
 * Terms
 * -----
 * - Runtime: the library that implements mirk/mirk.h. The reference runtime is that of mirk_platform.h.
 * - Instance: an object of a record. Its header has the type, the variant and flags; then come the members.
 * - Scalar: a member that is an integer, a boolean or an enumeration.
 * - Variant: the version of its type that an object has. This schema has variant 0 only. An object with a negative
 *   variant has no body: its members must not be used.
 * - Body: the members of an instance, in memory or in a frame.
 * - Domain: what the peer of a handle understands: a variant for each type, and the messages. The runtime keeps it.
 * - Frame: the binary form of a record or a message.
 * - Tracking: a handle tracks state if its state descriptor says so. Each member but counts and lengths then has a
 *   state byte, 0 at first; setters store 2. The state bytes of an instance form its state area.
 * - Notification: a call of the handle's write_notify before a member is written.
 * - Sentinel: a static object of zeros, one for each type, that sticky forms return instead of NULL.
 * - Modified: a mark of an object. Setters set it, and backpropagate finds and clears it.
 * - RA data: a value and a byte that the runtime keeps for an object, and that frames carry.
 *
 *
 * Handles, contexts, errors
 * -------------------------
 * - `h` is the runtime's handle. Use it from one thread at a time. It provides memory, the domain, the tracking mode
 *   and last_error. The library neither creates nor frees handles.
 * - `ctx_id` is passed to the memory callbacks and the runtime unchanged.
 * - `err` is the error slot: 0 or a number from errno.h. Calls are no-ops that return 0 or NULL once it is set; check
 *   it once at the end of a sequence. These act regardless: T_set, T_post_copyout_cleanup, T_offset_update,
 *   T_offset_remove.
 * - A call that starts with `err` 0 clears the handle's last_error. These do not: T_set, T_get, E_get, T_len,
 *   T_adjust_variant, destroy operations, and the operations of state bytes, references and message payloads. Nor do
 *   unmarshal, print and to_xml of control messages.
 *
 * An error inside a bundle: clear `err`, then marshal the abort. A commit called with `err` set does nothing, so the
 * bundle stays open, and the next start fails with EEXIST.
 *
 * Forms: an explicit form takes (h, ctx_id, ..., err). A sticky form, named _cr, takes (h, ...): it works under the
 * handle's default_id, and its error slot is the handle's last_error, which stays set until an explicit form clears it.
 * An _unsafe form, of messages only, is another name of the explicit form.
 *
 * Errors:
 * - ENOENT: no such index, element or object; no bundle is open; the open bundle does not admit the message
 * - ENOMEM: allocation failed; a buffer ends exactly where a record begins
 * - EEXIST: a bundle is already open
 * - EINVAL: there are no state bytes; a pointer is NULL; a number in XML is invalid; a string's destination has size 0
 * - ENOSPC: the destination is too short for the text
 * - ENOSYS: no handler took the message
 * - EIDRM: the object has no body; the domain does not have its variant; the enumeration does not have the value
 * - EBADE: the domain does not have the message
 * - EBADMSG: control message out of order; a message's frame does not begin with 0xBC
 * - EMSGSIZE: the buffer is too small for the frame or the text; the frame is too short
 *
 * A lenient runtime leaves `err` at 0 in place of EIDRM. Accessors then do nothing and report no error; marshal
 * operations write on. The reference runtime is lenient with the option MIRK_PLATFORM_LENIENT_EIDRM.
 *
 * Nothing is rolled back; an object can be destroyed after any failure. On corrupt memory the library writes a trace
 * line of level 0 and aborts.
 *
 *
 * Lifecycle (T_create, T_create_cr, T_create_internal, T_initialize, T_sizeof, T_destroy, ...)
 * --------------------------------------------------------------------------------------------
 * T_create allocates an instance with all members zero. It returns NULL if allocation fails, or if the domain look-up
 * of an enumeration member fails. The caller owns the instance and releases it with T_destroy.
 *
 * T_create_cr returns a sentinel instead of NULL if allocation fails or last_error is set already. Destroy operations
 * ignore the sentinel, so that a chain of sticky calls needs no test for NULL. After a failed look-up T_create_cr
 * returns NULL, and last_error may be 0. Do not pass a sentinel to explicit forms.
 *
 * One allocation holds the instance, everything nested in it and, on a tracking handle, its state area. T_sizeof
 * therefore differs between handles. An instance must not move from a tracking handle to another one or the reverse: on
 * a tracking handle, reading a frame into an instance without state aborts. T_initialize, and T_destroy_internal with
 * free_it 0, are for objects in memory of another object. An object that other objects refer to is released with the
 * last reference, after T_destroy. The usage counter num_live of a message's type stays 0; num_created and
 * num_destroyed are counted.
 *
 *
 * Members
 * -------
 * M_get returns the member's address, M_get_value its value. M_set stores from an object of the caller, M_set_value
 * stores a value. A setter adjusts the object to the domain's variant, notifies, stores, sets the state byte to 2 on a
 * tracking handle, and marks the object as modified. Setters of arrays do not mark their object.
 *
 * On a tracking handle an object may have no state bytes. Setters of single members and strings then store the value
 * and set EINVAL; a setter of an array stores nothing.
 *
 * A value that is not an enumerator: EIDRM, and the old value stays, but the state byte and the modified mark are set.
 *
 * A NULL object: M_set and the setters of arrays and strings set EINVAL; M_set_value and the _get of an array set
 * ENOENT. M_get returns NULL, M_get_value and T_get_all give zeros, and the _get of a string gives an empty text, all
 * without an error.
 *
 * M_state_flag_get and M_state_flag_set read and write the state byte of a member. EINVAL: the object has no state
 * bytes, or the state descriptor of the handle says that tracking is off. A handle without a descriptor reads and
 * writes the states of an object that has them.
 *
 * Counts and lengths are read like members. They follow from the array or string and cannot be set.
 *
 * M_set of a nested record, and T_set, MOVE: the source loses its arrays and strings to the destination. What the
 * destination owned before is not released. Use T_copy_cr or copy mode 0 to copy.
 *
 * Strings: M_set copies length bytes, truncated to 16 bits; a text shorter than its length is followed by zero bytes.
 * M_get writes at most size bytes with a NUL at the end; after ENOSPC the destination holds the truncated copy. A
 * buffer needs M_len + 1 bytes.
 *
 * Arrays: M_set with an index out of range grows the array to exactly index + 1 elements, and moves all of them each
 * time. SET THE HIGHEST INDEX FIRST, then fill. A NULL value grows the array and stores nothing; on a tracking handle
 * it is refused with EINVAL. M_set moves the value into the element; M_set_cr with copy mode 0 copies it. A count of
 * one byte wraps: index 255 makes 256 elements and stores a count of 0. The array owns its elements; the next growth
 * invalidates the address that M_get returned.
 *
 * M_state_flag_whole_get and _set access the state of the array as a whole, the forms with an index that of one
 * element. M_state_flag_get_arr gives the address of the element states. M_state_flag_set_arr does not write there: it
 * copies to the first byte of the instance's whole state area.
 *
 *
 * Whole record
 * ------------
 * T_get_all and T_set_all transfer all scalar members in table order; get_all also reads counts and lengths. set_all
 * does not change state bytes. A value that is not an enumerator sets EIDRM; the members after it are not stored.
 *
 * On an instance without a body T_get_all writes nothing and sets no error. T_set_all first adjusts the instance to the
 * domain's variant: it stores if that has a body, else it does nothing and sets no error.
 *
 * T_set_all_state_tracking_flag fills the state areas of the instance and of the elements of its own arrays, without
 * notifications. Elements of arrays in nested records are not filled. Element states then all read as this value and
 * can no longer be set one by one. T_is_valid_cr returns whether the record has a member with this index.
 *
 *
 * References
 * ----------
 * For the runtime: the object identifiers in an object (none in this schema), and the location of its state after a
 * move.
 *
 *
 * Wire (T_len, T_marshal, T_unmarshal)
 * ------------------------------------
 * A record is written as a frame: variant, flag, jump over the body, body. T_marshal returns the bytes written and
 * continues after a failure, so check err. T_len gives the size of the buffer, without the guard byte. On a tracking
 * handle it is too large by one byte for each empty array or string and for each character of a string. RA data is not
 * counted.
 *
 * THE GUARD BYTE. Every buffer for a frame has one more byte after the size that is passed: for T_marshal, T_unmarshal
 * and T_clone, for N_marshal, N_unmarshal and N_unmarshal_only. Writing may store one state byte there, reading may
 * read it. Neither goes further, whatever the frame contains.
 *
 * Element states that do not fit are truncated without an error, and the frame then looks complete. A frame from a
 * tracking handle can be read on any other one, and the reverse. A frame of a newer schema is read as far as it is
 * known.
 *
 * An instance may have a variant above the domain's. T_marshal then sets EIDRM, and the frame is not valid. With a
 * lenient runtime it leaves err at 0 and writes the frame in the domain's variant.
 *
 * T_unmarshal never trusts a frame: a count costs at most one allocation, which the runtime grants only below its
 * memory limit; jumps stay inside the frame; values are stored as received. Its result has a meaning only if there is
 * no error. reuse 0: the instance owns nothing yet; anything it owned is leaked. reuse 1: reads into an instance with
 * arrays and strings and keeps their blocks if the counts are equal; what the elements owned is leaked.
 *
 *
 * Deep copy (T_clone, T_clone_cr, T_copy_cr)
 * ------------------------------------------
 * A deep copy goes through a frame: in the caller's buffer or, for the sticky forms, in the handle's workspace. Larger
 * records need T_clone with a buffer of T_len bytes and the guard byte. The copy keeps the variant of the instance, but
 * nested records are limited to the domain's variants. T_copy_cr reads into an existing destination, releases nothing
 * that it owned, and destroys it if reading fails.
 *
 *
 * Text (T_print, T_print_cr)
 * --------------------------
 * For people; there is no reader. The result is the length without the final NUL; 0xFFFFFFFF from a sticky form is a
 * failure. The indent before the closing brace of a nested record is counted but not written. Its first byte is the NUL
 * of the line before; the others keep what the buffer held. Clear the buffer first, then replace NUL bytes within the
 * returned length by blanks.
 *
 *
 * XML (T_to_xml, T_toxml_cr, T_from_xml)
 * --------------------------------------
 * One element for each member, with the member's name; arrays repeat theirs; a nonzero state becomes an attribute.
 * T_from_xml takes the path of the record's element in a document of the runtime. It is lenient: members without an
 * element keep their values, counts and lengths are not read, an unknown enumerator does not change the value. An
 * invalid number ends the reading. If a string's element is missing, the next scalar is not read either. Arrays are
 * read element by element and grow one by one: reading XML is slow. Only a failed look-up of an enumeration writes to
 * the message buffer: clear its first byte before the call.
 *
 *
 * Value (T_compare, T_hash, T_type_type_backpropagate)
 * ----------------------------------------------------
 * T_compare orders by members in table order. Counts and lengths come first, so a shorter string is less. Only the sign
 * of the result has a meaning. T_hash continues from a seed. Both ignore header and state and accept NULL.
 * Backpropagate returns 1 if it finds a change mark, and clears the mark of the record and of the first member that has
 * one.
 *
 *
 * Enumerations
 * ------------
 * An object with one 32-bit value. E_set and E_set_value refuse a value that is not an enumerator with EIDRM and store
 * nothing; reading a frame accepts any value. E_is_valid_cr also returns 1 for numbers with the top bit set. E_compare
 * returns the difference of the values.
 *
 *
 * Messages
 * --------
 * A message owns its payload. N_get returns it, N_get_detach passes it to the caller, N_set replaces it without
 * releasing the previous one. N_free_and_set releases the previous one, so never pass the message's own payload. Only
 * these and N_destroy accept a NULL message.
 *
 * A frame is 27 bytes of header, 16 of identity, then the payload's frame. Writing into less than 43 bytes, or reading
 * less than 27, fails with EMSGSIZE. Reading 27 to 43 bytes fails with ENOMEM, as does writing into exactly 43 bytes.
 *
 * N_unmarshal delivers to the given handler, or to the linked-in one, and destroys nothing: the receiver owns the
 * message. After a bad frame N_unmarshal leaks the message. A long-running process with bad input uses N_unmarshal_only
 * and destroys the message that it returns. The recorder takes a message if its XML, with a final NUL, fits in 4,096
 * bytes; otherwise the handler is called with EMSGSIZE in err.
 *
 * Call mirk_lumo_ui_tarn_message_trace_init once; otherwise message traces go to module 0.
 *
 * Control messages start, abort and commit a bundle; their object is a token. While a bundle is open on a handle, only
 * the messages in its table are admitted. A commit or an abort closes the bundle even if its frame did not fit.
 *
 *
 * Handlers and registration
 * -------------------------
 * Each lumo_ui_tarn_..._handler is a weak symbol: define a function of the same name to replace it. A committed bundle
 * goes to the first of: the dispatch entry's handler, the handle's, the one registered for the module, the one
 * registered for the bundle, the linked-in one. The bundle's messages are destroyed when it returns. The variables of
 * registered handlers are not synchronized: register while no bundle is being received.
 */
#ifndef LUMO_UI_TARN_FAMILIES_H
#define LUMO_UI_TARN_FAMILIES_H
#endif
