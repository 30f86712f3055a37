/** @file
 * families.h - how the operations behave, told once for all records, enumerations and messages.
 *
 * This header declares nothing. The other headers list names; a name is TYPE_OPERATION or TYPE_MEMBER_OPERATION, and each
 * operation of one name behaves alike for every type.
 *
 *
 * Handles, contexts, errors
 * -------------------------
 * - `h` is the runtime's handle; used by one thread at a time. It supplies memory, the domain, the tracking mode and the
 *   sticky error. The library makes no handle and frees none.
 * - `ctx_id` is handed on to the memory callbacks and the runtime as it is; never interpreted.
 * - `err` is the error slot: 0, or a system error number. An operation that finds it set does nothing and returns 0 or
 *   null, so a sequence of calls can be tested once, at its end. An operation that starts clears the handle's last error.
 *
 * Forms: an explicit form takes (h, ctx_id, ..., err). A sticky form, named _cr, takes (h, ...): it works under the
 * handle's default_id, and its slot is the handle's last_error, which stays set until an explicit form clears it. An
 * _unsafe form, of messages only, is another name of the explicit form.
 *
 * Numbers: ENOENT index or element not there; ENOMEM no memory, or a buffer of size 0; EEXIST a bundle is open already;
 * EINVAL no state to read or write, or a null object; ENOSPC destination too short; ENOSYS nobody took the message; EIDRM
 * the object's variant has no place in the domain; EBADE the message has none; EBADMSG a control message out of order;
 * EMSGSIZE buffer too small for a frame. Nothing is rolled back, and an object can be destroyed after any failure.
 * Corrupt memory is no error: the library traces at level 0 and aborts.
 *
 *
 * Life (T_create, T_create_cr, T_create_internal, T_initialize, T_sizeof, T_destroy, ...)
 * --------------------------------------------------------------------------------------
 * T_create returns a new instance with all members zero, or null; it belongs to the caller, who ends it with T_destroy.
 * T_create_cr returns a sentinel instead of null: a static object of zeros that destroy operations pass over, so that a
 * chain of sticky calls needs no test for null. Do not hand a sentinel to explicit forms.
 * One allocation holds the instance, everything nested in it and, on a handle that tracks state, its state bytes. So
 * T_sizeof differs between handles, and an instance must not cross from a handle that tracks to one that does not, or the
 * reverse: reading a frame into it aborts.
 * T_initialize and T_destroy_internal with free_it 0 are for objects that lie inside another one's memory.
 * An object that others refer to outlives T_destroy until the last reference goes.
 *
 *
 * Members
 * -------
 * M_get returns the member's address, M_get_value its value. M_set stores from the caller's object, M_set_value a value.
 * A setter announces the write, stores, leaves 2 in the state byte on a tracking handle, and marks the instance modified.
 * EINVAL from a setter says that the instance has no state bytes although the handle tracks: the value is stored.
 * M_state_flag_get and M_state_flag_set read and write the state byte of a member, and fail with EINVAL without tracking.
 * Counts and lengths are read like members and follow from what they count; they cannot be set.
 *
 * M_set of a nested record, and T_set, MOVE: the source loses its arrays and strings to the destination. What the
 * destination owned before is not released. Use T_copy_cr or copy mode 0 to copy.
 *
 * Strings: M_set copies length bytes, cut to 16 bits; a text shorter than its length is followed by zero bytes. M_get
 * writes at most size bytes with a NUL at the end; ENOSPC says that the copy is cut, and the cut copy is there. A buffer
 * needs M_len + 1 bytes.
 *
 * Arrays: M_set with an index beyond the end grows the array to exactly index + 1 elements, each time with a full move:
 * SET THE HIGHEST INDEX FIRST, with a null value if there is none yet (without tracking), then fill. M_set moves the value
 * in; M_set_cr with copy mode 0 copies it. A one-byte count wraps: index 255 makes 256 elements and stores a count of 0.
 * An element belongs to the array; M_get returns its address, which the next growth makes invalid.
 * M_state_flag_whole_get and _set are the state of the array as a whole; those with an index that of one element.
 * M_state_flag_get_arr gives the address of the element states. M_state_flag_set_arr does not write there: it copies to
 * the first byte of the whole instance's state area.
 *
 *
 * Whole record
 * ------------
 * T_get_all and T_set_all exchange all scalar members in table order, get_all counts and lengths as well. set_all leaves
 * state bytes alone. On an instance without body both return without an error and do nothing.
 * T_set_all_state_tracking_flag fills all state bytes at once, without announcing it; element states then all read as
 * this value and can no longer be set one by one.
 * T_is_valid_cr says whether a member of this index exists in the handle's domain.
 *
 *
 * References
 * ----------
 * For the runtime: which identifiers an object holds (none, in this schema), and where its state lies after it moved.
 *
 *
 * Wire (T_len, T_marshal, T_unmarshal)
 * ------------------------------------
 * A record is written as a frame: variant, flag, jump over the body, body. T_marshal returns the bytes written and goes on
 * after a failure; only err tells. Size the buffer by T_len, which says a little more than is written: one byte for an
 * empty array or string, one for each character of a string's state. It does not count RA data.
 *
 * THE SPARE BYTE. A buffer handed to T_marshal, T_unmarshal or T_clone has one more byte behind the size that is passed:
 * writing may store one state byte there, reading may look at it. Neither goes further, whatever the frame says.
 *
 * An element-state vector that does not fit is cut without an error, and the frame then looks whole.
 * A frame written on a handle that tracks is read on one that does not, and the reverse. A frame of a newer schema is
 * read as far as it is known. An instance whose variant is above the domain's is written in the domain's, with EIDRM.
 *
 * T_unmarshal never trusts a frame: a count costs at most one allocation, granted only below the runtime's ceiling;
 * jumps lead nowhere; values are kept as they come. reuse 0 says that the instance owns nothing yet, and what it owned
 * is then lost; reuse 1 reads into an instance with arrays and strings and keeps their blocks if the counts are equal;
 * what the elements owned is lost.
 *
 *
 * Deep copy (T_clone, T_clone_cr, T_copy_cr)
 * ------------------------------------------
 * By way of a frame in the caller's buffer, or in the handle's workspace for the sticky forms: larger records need
 * T_clone with a buffer of T_len bytes and the spare one. T_copy_cr reads into an existing destination, releases nothing
 * that it held, and destroys it on failure.
 *
 *
 * Text (T_print, T_print_cr)
 * --------------------------
 * For people, not read back. The bytes in front of the closing brace of a nested record are counted and not written: clear
 * the buffer before you hand the text on. The result is the length; 0xFFFFFFFF from a sticky form is a failure.
 *
 *
 * XML (T_to_xml, T_toxml_cr, T_from_xml)
 * --------------------------------------
 * One element for each member, named as the member; arrays repeat theirs; nonzero state shows as an attribute. T_from_xml
 * takes the path of the record's element in a document of the runtime. It forgives: members that are missing stay as they
 * are, counts and lengths are not read, an unknown enumerator leaves the value. A value that is no value ends the reading.
 * A string that is absent takes the next scalar with it, which is then not read either. Arrays are read element by element
 * and grow one by one: reading XML is not meant to be fast.
 *
 *
 * Value (T_compare, T_hash, T_type_type_backpropagate)
 * ----------------------------------------------------
 * T_compare orders by members in table order: counts and lengths first, so a shorter string comes first. Only the sign of
 * the result means something. T_hash continues from a seed. Neither looks at header or state, and both accept null.
 * Backpropagate returns 1 if a change mark was found, and clears the record's own and the first member's that had one.
 *
 *
 * Enumerations
 * ------------
 * An object with one 32-bit value. Setters refuse a value beyond the enumerators with EIDRM; reading a frame does not.
 * E_compare returns the distance of the values.
 *
 *
 * Messages
 * --------
 * A message owns its payload: N_get lends it, N_get_detach gives it away, N_set replaces it without releasing the old one,
 * N_free_and_set releases the old one, so never pass it the message's own payload. A frame is 27 bytes of header, 16 of
 * identity, then the payload's frame; sizes below that fail with EMSGSIZE. N_unmarshal delivers to the handler given, or
 * to the linked-in one, and destroys nothing: the message belongs to whoever received it. On a bad frame N_unmarshal keeps
 * what it made, for good; a process that lives long on bad input uses N_unmarshal_only and destroys what it returns.
 * Call mirk_lumo_ui_tarn_message_trace_init once, or message trace goes under module 0.
 *
 * Control messages start, abort and commit a bundle; their object is a token. While a bundle is open on a handle, plain
 * messages are admitted by its table. A commit or abort ends the bundle even if its frame did not fit.
 *
 *
 * Handlers and registration
 * -------------------------
 * Each lumo_ui_tarn_..._handler is a weak symbol: define one of the same name and it is called instead. A committed bundle
 * goes to the first of: the dispatch entry's handler, the handle's, the one registered for the module, the one registered
 * for the bundle, the linked-in one. The bundle's messages are destroyed when that returns. The variables that hold
 * registered handlers carry no lock: register at a quiet moment.
 */
#ifndef LUMO_UI_TARN_FAMILIES_H
#define LUMO_UI_TARN_FAMILIES_H
#endif
