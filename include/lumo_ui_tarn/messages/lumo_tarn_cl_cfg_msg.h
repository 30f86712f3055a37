/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_cl_cfg_msg.h - the message that carries a lumo_tarn_cl_cfg_data. */
#ifndef LUMO_UI_TARN_MESSAGES_LUMO_TARN_CL_CFG_MSG_H
#define LUMO_UI_TARN_MESSAGES_LUMO_TARN_CL_CFG_MSG_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_cl_cfg_data.h>

LUMO_UI_TARN_BEGIN

/** A message that carries one lumo_tarn_cl_cfg_data and owns it. */
typedef struct lumo_tarn_cl_cfg_msg lumo_tarn_cl_cfg_msg;
/** The module's own type record of lumo_tarn_cl_cfg_msg_message: identity, variants, usage counters; num_live stays
 * 0. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_cl_cfg_msg_message_type_info_internal;
/** Identity of lumo_tarn_cl_cfg_msg in frames. */
extern LUMO_UI_TARN_API const uint8_t message_lumo_tarn_cl_cfg_msg_luid[16];
/** Identity of lumo_tarn_cl_cfg_msg in hexadecimal digits. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_cl_cfg_msg_luid_text[33];
/** Name of lumo_tarn_cl_cfg_msg, for trace lines. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_cl_cfg_msg_name[64];

/** @name Message objects
 *  @{ */
/** Allocates a message without a payload. Returns NULL if allocation fails. The caller owns it. */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_msg *lumo_tarn_cl_cfg_msg_message_create_shallow(mirk_handle *h, uint32_t ctx_id);
/** Allocates a message with a new payload. Returns NULL if the message or its payload cannot be created. The caller
 * owns it and releases it with lumo_tarn_cl_cfg_msg_message_destroy(). */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_msg *lumo_tarn_cl_cfg_msg_message_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_cl_cfg_msg_message_create(): returns a sentinel instead of NULL if allocation fails or
 * last_error is set already. A message whose payload alone cannot be allocated holds the payload's sentinel; NULL if
 * the payload cannot be initialized. Only destroy operations, and sticky forms while last_error is set, accept the
 * sentinel. */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_msg *lumo_tarn_cl_cfg_msg_message_create_cr(mirk_handle *h);
/** Another name of lumo_tarn_cl_cfg_msg_message_create(). */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_msg *lumo_tarn_cl_cfg_msg_message_create_unsafe(mirk_handle *h, uint32_t ctx_id);
/** Destroys the message and its payload. NULL and the sentinel are ignored. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_msg_message_destroy(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_msg *message);
/** Sticky form of lumo_tarn_cl_cfg_msg_message_destroy(): works under the handle's default_id, also while last_error is
 * set. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_msg_message_destroy_cr(mirk_handle *h, lumo_tarn_cl_cfg_msg *message);
/** Another name of lumo_tarn_cl_cfg_msg_message_destroy(). */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_msg_message_destroy_unsafe(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_msg *message);
/** Returns the payload, which the message still owns. NULL if err is set or message is NULL. */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_msg_message_lumo_tarn_cl_cfg_data_get(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_msg *message, uint32_t *err);
/** Returns the payload and removes it from the message; the caller owns it. NULL if err is set or message is NULL. */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_msg_message_lumo_tarn_cl_cfg_data_get_detach(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_msg *message, uint32_t *err);
/** Stores a payload, which the message then owns. The previous payload is not released. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_msg_message_lumo_tarn_cl_cfg_data_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_msg *message, lumo_tarn_cl_cfg_data *payload, uint32_t *err);
/** Destroys the payload and stores another one, which the message then owns. Never pass the message's own payload. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_msg_message_lumo_tarn_cl_cfg_data_free_and_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_msg *message, lumo_tarn_cl_cfg_data *payload, uint32_t *err);
/** Returns nonzero if the handle's domain has this message. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_is_valid_cr(mirk_handle *h);
/** @} */

/** @name Message frames
 *  @{ */
/** Returns the buffer size in bytes that lumo_tarn_cl_cfg_msg_message_marshal() needs, without the guard byte and
 * without RA data, as in lumo_tarn_cl_cfg_data_len(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_len(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_msg *message);
/** Sticky form of lumo_tarn_cl_cfg_msg_message_len(). Returns 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_len_cr(mirk_handle *h, lumo_tarn_cl_cfg_msg *message);
/** Another name of lumo_tarn_cl_cfg_msg_message_len(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_len_unsafe(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_msg *message);
/** Writes the message as a frame of header, identity and payload into buffer, which must have size bytes and one guard
 * byte after them. Returns the number of bytes written; after an error the frame is not valid. EBADE if the domain does
 * not have the message, ENOENT if the open bundle does not admit it. EMSGSIZE or ENOMEM if the buffer is too small,
 * ENOMEM also if allocation fails. State bytes that do not fit are dropped without an error. EIDRM as in
 * lumo_tarn_cl_cfg_data_marshal(). EINVAL if the message has no payload. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_cfg_msg *message, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_cl_cfg_msg_message_marshal(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_marshal_cr(mirk_handle *h, lumo_tarn_cl_cfg_msg *message,
    void *buffer, uint32_t size);
/** Another name of lumo_tarn_cl_cfg_msg_message_marshal(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_marshal_unsafe(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_cfg_msg *message, uint32_t size, uint32_t *err);
/** Reads a frame of size bytes from buffer, which must have one guard byte after them, and records the message if the
 * recorder is on. Then delivers it to the handler, or to lumo_ui_tarn_lumo_tarn_cl_cfg_msg_message_handler() if handler
 * is NULL. The receiver owns the message. The address of the message is also stored in *out, unless out is NULL.
 * Returns the number of bytes consumed. It may exceed size without an error: check it before you advance. After an
 * error it has no meaning. EMSGSIZE or ENOMEM if the frame is too short, EBADMSG if its first byte is not 0xBC, ENOMEM
 * if allocation fails. The message of a bad frame is leaked: see lumo_tarn_cl_cfg_msg_message_unmarshal_only(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_unmarshal(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx,
    lumo_tarn_cl_cfg_msg **out, void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
/** Reads a frame of size bytes from buffer, which must have one guard byte after them, and returns the message through
 * out. The caller destroys it, also after a bad frame. Set *out to NULL before the call: it stays unchanged if no
 * message can be allocated. Result and errors as in lumo_tarn_cl_cfg_msg_message_unmarshal(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_unmarshal_only(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_msg **out, void *buffer, uint32_t size, uint32_t *err);
/** @} */

/** @name Message text and XML
 *  @{ */
/** Writes the message as readable text. Returns the length in bytes without the final NUL. The indent of closing braces
 * is counted but not written. Clear the buffer first, then replace NUL bytes within the returned length by blanks.
 * EMSGSIZE or ENOSPC if the text does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_print(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_cl_cfg_msg *message, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_cl_cfg_msg_message_print(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_print_cr(mirk_handle *h, lumo_tarn_cl_cfg_msg *message,
    char *buffer, uint32_t size);
/** Another name of lumo_tarn_cl_cfg_msg_message_print(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_print_unsafe(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_cl_cfg_msg *message, uint32_t size, uint32_t *err);
/** Writes the message as an XML element that contains the payload's element. Returns the length in bytes without the
 * final NUL. EMSGSIZE if the text does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_to_xml(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_cl_cfg_msg *message, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_cl_cfg_msg_message_to_xml(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_toxml_cr(mirk_handle *h, lumo_tarn_cl_cfg_msg *message,
    char *buffer, uint32_t size);
/** Another name of lumo_tarn_cl_cfg_msg_message_to_xml(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_msg_message_to_xml_unsafe(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_cl_cfg_msg *message, uint32_t size, uint32_t *err);
/** Creates a message from the first element with the payload's name in the runtime's document. If there is none, all
 * members of the payload are zero, and err stays 0. The caller owns the message. Returns NULL after an error; a message
 * that was already allocated is leaked. message_buffer, which may be NULL, gets a sentence only if reading an
 * enumerator's element fails. Clear its first byte before the call. */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_msg *lumo_tarn_cl_cfg_msg_message_from_xml(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** Another name of lumo_tarn_cl_cfg_msg_message_from_xml(). */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_msg *lumo_tarn_cl_cfg_msg_message_from_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** @} */

/** @name Handlers
 *  @{ */
/** Receives each message that no other handler takes. A weak symbol: define a function of the same name to receive the
 * messages. This one sets ENOSYS. */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_cl_cfg_msg_message_handler(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, void *message, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
