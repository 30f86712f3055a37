/** @file
 * families.h - how the operations of all records, enumerations and messages behave.
 *
 * This header declares nothing. The other headers list names of the form TYPE_OPERATION or TYPE_MEMBER_OPERATION. An
 * operation behaves the same for every type.
 *
 * In this text T is a record, M a member, E an enumeration, N a message. Names are shortened: M_get is T_M_get,
 * N_marshal is N_message_marshal, and N_get stands for N_message_T_get, where T is the record of the payload.
 *
 *
 * Terms
 * -----
 * - Runtime: the library that implements mirk/mirk.h. The reference runtime is that of mirk_platform.h.
 * - Handle: the runtime's object for memory, domain, tracking mode and last_error; the first argument `h`.
 * - Sticky form: an operation whose name ends in _cr; see "Forms".
 * - Instance: an object of a record. Its header has the type, the variant and flags; then come the members.
 * - Member: a scalar (integer, boolean or enumeration), an IP address, a nested record, an array or a string. The
 *   member before an array is its count, the one before a string its length.
 * - Type record: the data of a type (identity, variants, usage counters), to which its objects point. A handle with
 *   private_types (see mirk_platform_handle_options) has copies of its own.
 * - Identity: 16 bytes that identify a type or a message; in names: luid.
 * - Table order: the order of the members in the table that the header of each record shows.
 * - Domain: what the peer of a handle understands: a variant for each type, and the messages. The runtime keeps it.
 * - Variant: the version of its type that an object has. This schema has variant 0 only. Negative: the domain of the
 *   handle, or of the writer of a frame, does not have the type. The object then has no body: its members must not be
 *   used.
 * - Body: the members of an instance, in memory or in a frame.
 * - Frame: the binary form of a record or a message.
 * - Message: an object that carries one record, its payload.
 * - Bundle: messages that are sent between a start and a commit, and are delivered together at the commit. An abort in
 *   place of the commit discards them. Start, commit and abort are control messages.
 * - Tracking: a handle with tracking keeps a state byte for each member except counts and lengths, so that programs can
 *   see what was set. It is 0 at first, and setters store 2. Other values are up to the program. Frames carry the state
 *   bytes. XML shows them, but reading XML does not restore them. Those of an instance form its state area. The modes
 *   OFF and NONE do not track; see mirk_platform_tracking.
 * - Notification: a call of the handle's write_notify before a member is written.
 * - Sentinel: a static object, one for each type, that the sticky create operations return instead of NULL.
 * - Modified mark: a flag of an object. Setters set it, and backpropagate finds and clears it.
 * - RA data: a value and a byte that the runtime or a received frame attaches to an object, with MIRK_OBJ_RA_DATA in
 *   its obj_flag. Frames carry them; nothing interprets them.
 *
 *
 * Handles, contexts, errors
 * -------------------------
 * - `h` is the handle. Use it from one thread at a time. The library neither creates nor frees handles.
 * - `ctx_id` is passed to the memory callbacks and the runtime unchanged; the library does not interpret it. With the
 *   reference runtime any number will do, for example 1.
 * - `err` is the error slot: 0 or a number from errno.h. Once it is set, calls are no-ops that return 0, NULL or their
 *   documented failure value; check it once at the end of a sequence. These act regardless: T_get, E_get, T_set,
 *   T_post_copyout_cleanup, T_offset_update, T_offset_remove, from_xml of control messages, handlers of messages and
 *   bundles, and lumo_ui_tarn_typeinfo_initialize.
 * - A call that starts with `err` 0 clears the handle's last_error, and so do T_create, E_create and N_create, which
 *   have no `err`. These do not clear it: the calls of the previous item that act regardless, T_len, T_adjust_variant,
 *   destroy operations, and the operations of state bytes, references and message payloads. Nor do unmarshal, print and
 *   to_xml of control messages.
 *
 * An error inside a bundle: clear `err`, then marshal the abort after the last complete frame. A commit called with
 * `err` set does nothing, so the bundle stays open, and the next start fails with EEXIST.
 *
 * Forms: an explicit form takes (h, ctx_id, ..., err). A sticky form, named _cr, takes (h, ...): it works under the
 * handle's default_id, and its error slot is the handle's last_error, which stays set until a call clears it as above.
 * The destroy and is_valid operations named _cr act also while last_error is set. An _unsafe form, of messages only, is
 * another name of the explicit form.
 *
 * Errors:
 * - ENOENT: no such index, element or object; no bundle is open to be ended; the open bundle does not admit the message
 * - ENOMEM: allocation failed; for some sizes of a buffer, in place of EMSGSIZE
 * - EEXIST: a bundle is already open
 * - EINVAL: there are no state bytes; a pointer is NULL; a number in XML is invalid; a string's destination has size 0
 * - ENOSPC: M_get has truncated a string; the buffer of a print operation is too small
 * - ENOSYS: no handler took the message
 * - EIDRM: the object has no body; the domain does not have its variant; the enumeration does not have the value
 * - EBADE: the domain does not have the message
 * - EBADMSG: a commit or an abort was received while no bundle is open; a message's frame does not begin with 0xBC
 * - EMSGSIZE: the buffer is too small for the frame or the XML, or for parts of T_print; the frame is too short
 *
 * A lenient runtime leaves `err` at 0 in place of EIDRM. Accessors then do nothing and report no error; marshal
 * operations write on. Explicit forms still set last_error to EIDRM, so sticky forms do nothing until an explicit form
 * clears it. The reference runtime is lenient with the option MIRK_PLATFORM_LENIENT_EIDRM.
 *
 * Nothing is rolled back. An object can be destroyed after any failure, except the destination of a failed T_copy_cr.
 * On corrupt memory the library writes a trace line of level 0 and calls abort().
 *
 *
 * Lifecycle (T_create, T_create_cr, T_create_internal, T_initialize, T_sizeof, T_destroy, ...)
 * --------------------------------------------------------------------------------------------
 * T_create allocates an instance with all members zero. It returns NULL if allocation fails, or if the domain look-up
 * of an enumeration member fails. The caller owns the instance and releases it with T_destroy.
 *
 * T_create_cr returns a sentinel instead of NULL if allocation fails or last_error is set already. Destroy operations
 * of records, enumerations and messages ignore the sentinel, so a chain of sticky calls needs no test for NULL. Pass a
 * sentinel to no other explicit form. Exception: if the domain look-up of an enumeration member fails, T_create_cr
 * returns NULL, and last_error may be 0. On the reference runtime this look-up never fails.
 *
 * One allocation holds the instance, its nested records and IP addresses and, on a tracking handle, its state area.
 * Each array and string has a block of its own, and so have the element states of an array. T_sizeof differs between
 * handles. Use an instance only with the handle that made it, or one with the same memory callbacks and tracking mode.
 *
 * T_initialize, and T_destroy_internal with free_it 0, are for objects in memory of another object. An object that
 * other objects refer to is released with the last reference, after T_destroy. Type records count the objects that have
 * been created and destroyed, and those that are live; num_live of a message's type stays 0.
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
 * A value that M_set or M_set_value refuses (EIDRM: not an enumerator; EINVAL: NULL) leaves the member unchanged, but
 * the state byte and the modified mark are set.
 *
 * A NULL object: M_set and the setters of arrays and strings set EINVAL; M_set_value and the _get of an array set
 * ENOENT. M_get returns NULL, M_get_value and T_get_all give zeros, and the _get of a string gives an empty text, all
 * without an error.
 *
 * M_state_flag_get and M_state_flag_set read and write the state byte of a member. EINVAL: the object has no state
 * bytes, or the tracking mode is OFF. In mode NONE only the object is checked.
 *
 * Counts and lengths are read like members. They follow from the array or string and cannot be set.
 *
 * M_set of a nested record, and T_set, MOVE: the source loses its arrays and strings to the destination. What the
 * destination owned before is not released. Use T_clone to copy.
 *
 * Strings: M_set copies length modulo 65,536 bytes; if the text is shorter, zero bytes follow. M_get writes at most
 * size bytes with a NUL at the end; after ENOSPC the destination holds the truncated copy. A size of the string's
 * length + 1 is enough.
 *
 * Arrays: M_set with an index out of range grows the array to exactly index + 1 elements, and moves all of them each
 * time. SET THE HIGHEST INDEX FIRST, then each element once: an element that is set again leaks its arrays and strings.
 * To change an element, use the setters of its members on the address that M_get returns. The array owns its elements;
 * the next growth invalidates that address.
 *
 * M_set moves the value into the element. M_set_cr copies it if its argument copy_mode is 0. A NULL value grows the
 * array and stores nothing; on a tracking handle it is refused with EINVAL. A count of one byte wraps: index 255 makes
 * 256 elements and stores a count of 0.
 *
 * M_state_flag_whole_get and _set access the state of the array as a whole, the forms with an index that of one
 * element. M_state_flag_set_arr does not set element states: see its description.
 *
 *
 * Whole record
 * ------------
 * T_get_all and T_set_all transfer all scalar members in table order; get_all also reads counts and lengths. set_all
 * does not change state bytes. A value that is not an enumerator sets EIDRM; the members after it are not stored.
 *
 * T_set_all_state_tracking_flag fills the state areas of the instance and of the elements of its own arrays. It leaks
 * the element states of arrays: see its description. T_is_valid_cr returns whether the record has a member with this
 * index.
 *
 *
 * References
 * ----------
 * These operations are for the runtime. They report the object identifiers in an object (none in this schema), and
 * store or remove the locations of the state of nested objects.
 *
 *
 * Wire (T_len, T_marshal, T_unmarshal)
 * ------------------------------------
 * A record is written as a frame: variant, flag, jump over the body, body. T_marshal returns the bytes written and
 * continues after a failure, so check err.
 *
 * T_len gives the size of the buffer without the guard byte and without RA data. A received object may have RA data:
 * add 9 bytes for each object with the flag MIRK_OBJ_RA_DATA, including nested objects and elements.
 *
 * THE GUARD BYTE. Allocate every buffer for a frame one byte larger than the size you pass: for T_marshal, T_unmarshal
 * and T_clone, for N_marshal, N_unmarshal and N_unmarshal_only. Writing may store one state byte there, reading may
 * read it. Neither goes further, whatever the frame contains.
 *
 * State bytes that do not fit at the end of the buffer are dropped without an error, and the frame looks complete. So
 * compute its size as above. Frames with and without state can be read on every handle. A frame of a newer schema is
 * read as far as it is known.
 *
 * T_unmarshal reads frames of untrusted peers. Each count in a frame causes at most two allocations. The runtime
 * refuses them above its memory limit (request_ceiling and total_ceiling of the reference runtime), which gives ENOMEM.
 * Values are stored as received. A jump may lead beyond the frame: nothing is read there, but the result then exceeds
 * the length without an error. Compare it with the length before you advance by it.
 *
 *
 * Deep copy (T_clone, T_clone_cr, T_copy_cr)
 * ------------------------------------------
 * A deep copy goes through a frame: in the caller's buffer or, for the sticky forms, in the handle's workspace. Larger
 * records need T_clone with a buffer of the size that "Wire" gives and the guard byte. The copy keeps the variant of
 * the instance, but nested records are limited to the domain's variants. T_copy_cr reads into an existing destination
 * and releases nothing that it owned. If reading fails, it destroys and frees the destination, so do not use that after
 * an error. Prefer T_clone_cr, which returns NULL.
 *
 *
 * Text (T_print, T_print_cr)
 * --------------------------
 * For people: no operation parses this text. The result is the length without the final NUL; 0xFFFFFFFF from a sticky
 * form is a failure. The indent before a closing brace is counted but not written: see T_print for what to do.
 *
 *
 * XML (T_to_xml, T_toxml_cr, T_from_xml)
 * --------------------------------------
 * One XML element for each member, with the member's name; an array repeats it for each of its elements. A nonzero
 * state becomes an attribute. T_from_xml takes the path of the record's element in a document of the runtime. It
 * tolerates gaps: members without an element and strings with an empty one keep their values, so read into a new
 * instance. Counts, lengths and states are not read, and an unknown enumerator does not change the value. An invalid
 * number ends the reading.
 *
 * If a string's element is missing, the next scalar is not read either, unless another string comes before it. Arrays
 * are read element by element and grow one by one: reading XML is slow.
 *
 *
 * Value (T_compare, T_hash, T_type_type_backpropagate)
 * ----------------------------------------------------
 * T_compare orders by members in table order. A length comes before its string, so a shorter string is less. Only the
 * sign of the result has a meaning. T_hash continues from a seed. Both ignore header and state and accept NULL.
 * Backpropagate serves to detect changes; it propagates nothing. It returns 1 if it finds a modified mark, and clears
 * the mark of the record and of the first member that has one. It does not look into arrays: call it for each element.
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
 * N_unmarshal delivers to the given handler or, if that is NULL, to the linked-in one (see "Handlers"). It destroys
 * nothing: the receiver owns the message. After a bad frame N_unmarshal leaks the message. A long-running process with
 * bad input uses N_unmarshal_only and destroys the message that it returns. The runtime's recorder takes a message if
 * its XML, with a final NUL, fits in 4,096 bytes; otherwise the handler is called with EMSGSIZE in err.
 *
 * Call mirk_lumo_ui_tarn_message_trace_init at least once: until then trace lines of messages have module number 0.
 *
 * The object of a control message is a token. One from the sticky create must be released by the sticky destroy, as the
 * explicit one does not know the sentinel. While a bundle is open on a handle, only messages that belong to the bundle
 * are admitted. Writing a commit or an abort closes the bundle even if the frame did not fit.
 *
 *
 * Handlers and registration
 * -------------------------
 * The linked-in handlers are the functions lumo_ui_tarn_..._message_handler and lumo_ui_tarn_..._bundle_handler. They
 * are weak symbols: define a function of the same name to replace one. A committed bundle goes to the first of: the
 * handler in the runtime's dispatch entry, the handle's, the one registered for the module, the one registered for the
 * bundle, the linked-in one. The bundle's messages are destroyed when it returns. The variables of registered handlers
 * are not synchronized: register while no bundle is being received.
 */
#ifndef LUMO_UI_TARN_FAMILIES_H
#define LUMO_UI_TARN_FAMILIES_H
#endif
