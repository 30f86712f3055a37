/** @file
 * families.h - how the operations of all records, enumerations and messages behave.
 *
 * This header declares nothing. The other headers list names of the form TYPE_OPERATION or TYPE_MEMBER_OPERATION. An
 * operation behaves the same for every type.
 *
 *
 * Handles, contexts, errors
 * -------------------------
 * - `h` is the runtime's handle. Use it from one thread at a time. It provides memory, the domain, the tracking mode
 *   and the sticky error. The library neither creates nor frees handles.
 * - `ctx_id` is passed to the memory callbacks and the runtime unchanged.
 * - `err` is the error slot: 0 or a number from errno.h. Calls are no-ops that return 0 or NULL once it is set; check
 *   it once at the end of a sequence. A call that starts clears the handle's last error.
 *
 * Forms: an explicit form takes (h, ctx_id, ..., err). A sticky form, named _cr, takes (h, ...): it works under the
 * handle's default_id, and its error slot is the handle's last_error, which stays set until an explicit form clears
 * it. An _unsafe form, of messages only, is another name of the explicit form.
 *
 * Errors:
 * - ENOENT: no such index or element; no bundle is open; the open bundle does not admit the message
 * - ENOMEM: allocation failed, or the buffer has size 0
 * - EEXIST: a bundle is already open
 * - EINVAL: there is no state to read or write, or the object is NULL
 * - ENOSPC: the destination is too short for the text
 * - ENOSYS: no handler took the message
 * - EIDRM: the domain does not have the object's variant, or the enumeration does not have the value
 * - EBADE: the domain does not have the message
 * - EBADMSG: control message out of order
 * - EMSGSIZE: the buffer is too small for the frame, or the frame is too short
 *
 * Nothing is rolled back; an object can be destroyed after any failure. On corrupt memory the library writes a trace
 * line of level 0 and aborts.
 *
 *
 * Life (T_create, T_create_cr, T_create_internal, T_initialize, T_sizeof, T_destroy, ...)
 * --------------------------------------------------------------------------------------
 * T_create allocates an instance with all members zero. It returns NULL if allocation fails, or if the domain look-up
 * of an enumeration member fails. The caller owns the instance and releases it with T_destroy. T_create_cr returns a
 * sentinel instead of NULL if allocation fails or last_error is set: a static object of zeros that destroy operations
 * ignore, so that a chain of sticky calls needs no test for NULL. After a failed look-up it returns NULL. Do not pass
 * a sentinel to explicit forms. One allocation holds the instance, everything nested in it and, on a tracking handle,
 * its state bytes. T_sizeof therefore differs between handles, and an instance must not move from a tracking handle to
 * another one or the reverse: reading a frame into it aborts. T_initialize, and T_destroy_internal with free_it 0, are
 * for objects in memory of another object. An object that other objects refer to is released with the last reference,
 * after T_destroy. The usage counter num_live of a message's type stays 0; num_created and num_destroyed are counted.
 *
 *
 * Members
 * -------
 * M_get returns the member's address, M_get_value its value. M_set stores from an object of the caller, M_set_value
 * stores a value. A setter notifies the write, stores, sets the state byte to 2 on a tracking handle, and marks the
 * instance as modified. EINVAL from a setter: the handle tracks but the instance has no state bytes; the value is
 * stored. M_state_flag_get and M_state_flag_set read and write the state byte of a member. EINVAL: the instance has no
 * state bytes, or tracking is off in the handle's state descriptor. A handle without a descriptor reads and writes the
 * states of an instance that has them. Counts and lengths are read like members. They follow from the array or string
 * and cannot be set.
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
 * invalidates the address that M_get returned. M_state_flag_whole_get and _set access the state of the array as a
 * whole, the forms with an index that of one element. M_state_flag_get_arr gives the address of the element states.
 * M_state_flag_set_arr does not write there: it copies to the first byte of the instance's whole state area.
 *
 *
 * Whole record
 * ------------
 * T_get_all and T_set_all transfer all scalar members in table order; get_all also reads counts and lengths. set_all
 * does not change state bytes. Both have no effect on an instance without a body; no error is set.
 * T_set_all_state_tracking_flag fills the state bytes of the instance and of the elements of its own arrays, without
 * notifications. Elements of arrays in nested records are not filled. Element states then all read as this value and
 * can no longer be set one by one. T_is_valid_cr returns whether the handle's domain has a member with this index.
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
 * continues after a failure, so check err. T_len gives the size of the buffer. It is slightly more than is written:
 * one byte for an empty array or string, one for each character of a string's state. RA data is not counted.
 *
 * THE GUARD BYTE. A buffer for T_marshal, T_unmarshal or T_clone has one more byte after the size that is passed:
 * writing may store one state byte there, reading may read it. Neither goes further, whatever the frame contains.
 *
 * Element states that do not fit are truncated without an error, and the frame then looks complete. A frame from a
 * tracking handle can be read on any other one, and the reverse. A frame of a newer schema is read as far as it is
 * known. An instance with a variant above the domain's is written in the domain's variant, with EIDRM.
 *
 * T_unmarshal never trusts a frame: a count costs at most one allocation, which the runtime grants only below its
 * memory limit; jumps stay inside the frame; values are stored as received. reuse 0: the instance owns nothing yet;
 * anything it owned is leaked. reuse 1: reads into an instance with arrays and strings and keeps their blocks if the
 * counts are equal; what the elements owned is leaked.
 *
 *
 * Deep copy (T_clone, T_clone_cr, T_copy_cr)
 * ------------------------------------------
 * Through a frame in the caller's buffer or, for the sticky forms, in the handle's workspace; larger records need
 * T_clone with a buffer of T_len bytes and the guard byte. The copy keeps the variant of the instance, but nested
 * records are limited to the domain's variants. T_copy_cr reads into an existing destination, releases nothing that it
 * owned, and destroys it on failure.
 *
 *
 * Text (T_print, T_print_cr)
 * --------------------------
 * For people; there is no reader. The bytes before the closing brace of a nested record are counted but not written:
 * clear the buffer first. The result is the length; 0xFFFFFFFF from a sticky form is a failure.
 *
 *
 * XML (T_to_xml, T_toxml_cr, T_from_xml)
 * --------------------------------------
 * One element for each member, with the member's name; arrays repeat theirs; a nonzero state becomes an attribute.
 * T_from_xml takes the path of the record's element in a document of the runtime. It is lenient: members without an
 * element keep their values, counts and lengths are not read, an unknown enumerator does not change the value. An
 * invalid number ends the reading. If a string's element is missing, the next scalar is not read either. Arrays are
 * read element by element and grow one by one: reading XML is slow.
 *
 *
 * Value (T_compare, T_hash, T_type_type_backpropagate)
 * ----------------------------------------------------
 * T_compare orders by members in table order. Counts and lengths come first, so a shorter string is less. Only the
 * sign of the result has a meaning. T_hash continues from a seed. Both ignore header and state and accept NULL.
 * Backpropagate returns 1 if it finds a change mark, and clears the mark of the record and of the first member that
 * has one.
 *
 *
 * Enumerations
 * ------------
 * An object with one 32-bit value. Setters refuse a value that is not an enumerator with EIDRM; reading a frame does
 * not. E_compare returns the difference of the values.
 *
 *
 * Messages
 * --------
 * A message owns its payload. N_get returns it, N_get_detach passes it to the caller, N_set replaces it without
 * releasing the previous one, N_free_and_set releases the previous one, so never pass the message's own payload. A
 * frame is 27 bytes of header, 16 of identity, then the payload's frame; sizes below that fail with EMSGSIZE.
 * N_unmarshal delivers to the given handler, or to the linked-in one, and destroys nothing: the receiver owns the
 * message. After a bad frame N_unmarshal leaks the message. A long-running process with bad input uses
 * N_unmarshal_only and destroys the message that it returns. Call mirk_lumo_ui_tarn_message_trace_init once; otherwise
 * message traces go to module 0.
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
