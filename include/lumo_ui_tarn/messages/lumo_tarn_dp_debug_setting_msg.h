/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_dp_debug_setting_msg.h - the message that carries a lumo_tarn_dp_debug_setting_data. */
#ifndef LUMO_UI_TARN_MESSAGES_LUMO_TARN_DP_DEBUG_SETTING_MSG_H
#define LUMO_UI_TARN_MESSAGES_LUMO_TARN_DP_DEBUG_SETTING_MSG_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_debug_setting_data.h>

LUMO_UI_TARN_BEGIN

/** Carries one lumo_tarn_dp_debug_setting_data, which it owns. */
typedef struct lumo_tarn_dp_debug_setting_msg lumo_tarn_dp_debug_setting_msg;
/** The module's own type record of lumo_tarn_dp_debug_setting_msg_message: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_debug_setting_msg_message_type_info_internal;
/** Identity of lumo_tarn_dp_debug_setting_msg, as it stands in frames. */
extern LUMO_UI_TARN_API const uint8_t message_lumo_tarn_dp_debug_setting_msg_luid[16];
/** Identity of lumo_tarn_dp_debug_setting_msg in hexadecimal digits. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_debug_setting_msg_luid_text[33];
/** Name of lumo_tarn_dp_debug_setting_msg, for trace lines. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_debug_setting_msg_name[64];

/** @name Message objects
 *  @{ */
/** Makes a message without a payload, or null without memory. */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting_msg *lumo_tarn_dp_debug_setting_msg_message_create_shallow(mirk_handle *h,
    uint32_t ctx_id);
/** Makes a message with a fresh payload, or null without memory. It belongs to the caller, who ends it with
 * lumo_tarn_dp_debug_setting_msg_message_destroy(). */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting_msg *lumo_tarn_dp_debug_setting_msg_message_create(mirk_handle *h,
    uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_debug_setting_msg_message_create(): under the handle's default_id, and with a sentinel
 * instead of null, over which destroy operations pass. */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting_msg *lumo_tarn_dp_debug_setting_msg_message_create_cr(mirk_handle *h);
/** Another name of lumo_tarn_dp_debug_setting_msg_message_create(). */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting_msg *lumo_tarn_dp_debug_setting_msg_message_create_unsafe(mirk_handle *h,
    uint32_t ctx_id);
/** Ends the message and its payload. Null and the sentinel are passed over. */
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_msg_message_destroy(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting_msg *message);
/** lumo_tarn_dp_debug_setting_msg_message_destroy() under the handle's default_id. */
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_msg_message_destroy_cr(mirk_handle *h,
    lumo_tarn_dp_debug_setting_msg *message);
/** Another name of lumo_tarn_dp_debug_setting_msg_message_destroy(). */
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_msg_message_destroy_unsafe(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting_msg *message);
/** The payload, which stays the message's. Null after an error or for null. */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting_data *lumo_tarn_dp_debug_setting_msg_message_lumo_tarn_dp_debug_setting_data_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_debug_setting_msg *message, uint32_t *err);
/** The payload, which is the caller's from now on; the message has none. Null after an error or for null. */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting_data *lumo_tarn_dp_debug_setting_msg_message_lumo_tarn_dp_debug_setting_data_get_detach(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_debug_setting_msg *message, uint32_t *err);
/** Gives the message a payload, which is the message's from now on. The one before is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_msg_message_lumo_tarn_dp_debug_setting_data_set(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_dp_debug_setting_msg *message, lumo_tarn_dp_debug_setting_data *payload, uint32_t *err);
/** Ends the payload and gives the message another one. Never pass it the message's own. */
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_msg_message_lumo_tarn_dp_debug_setting_data_free_and_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_debug_setting_msg *message, lumo_tarn_dp_debug_setting_data *payload, uint32_t *err);
/** Nonzero if the handle's domain has this message. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_is_valid_cr(mirk_handle *h);
/** @} */

/** @name Message frames
 *  @{ */
/** Bytes that a buffer for lumo_tarn_dp_debug_setting_msg_message_marshal() needs, its spare byte aside. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_len(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting_msg *message);
/** Sticky form of lumo_tarn_dp_debug_setting_msg_message_len(): 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_len_cr(mirk_handle *h,
    lumo_tarn_dp_debug_setting_msg *message);
/** Another name of lumo_tarn_dp_debug_setting_msg_message_len(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_len_unsafe(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting_msg *message);
/** Writes the message as a frame of size bytes at most at buffer, behind which one spare byte lies: header, identity,
 * payload. Returns the bytes written. EBADE if the domain does not have the message, ENOENT if the open bundle does not
 * admit it, EMSGSIZE for too little room. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_debug_setting_msg *message, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_debug_setting_msg_message_marshal(). 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_marshal_cr(mirk_handle *h,
    lumo_tarn_dp_debug_setting_msg *message, void *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_debug_setting_msg_message_marshal(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_marshal_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *buffer, lumo_tarn_dp_debug_setting_msg *message, uint32_t size, uint32_t *err);
/** Reads a frame, records the message if the recorder is on, and delivers it to the handler, or to
 * lumo_ui_tarn_lumo_tarn_dp_debug_setting_msg_message_handler() for null; the message belongs to whoever takes it. out,
 * which may be null, gets its address too. Returns the bytes consumed. What a bad frame left of a message is kept for
 * good. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_unmarshal(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, lumo_tarn_dp_debug_setting_msg **out, void *buffer, uint32_t size, mirk_message_handler handler,
    uint32_t *err);
/** Reads a frame and hands the message over through out, also that of a bad frame, for the caller to destroy. Returns
 * the bytes consumed. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_unmarshal_only(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting_msg **out, void *buffer, uint32_t size, uint32_t *err);
/** @} */

/** @name Message text and XML
 *  @{ */
/** Writes the message as text for people. Returns the characters written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_print(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_dp_debug_setting_msg *message, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_debug_setting_msg_message_print(). 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_print_cr(mirk_handle *h,
    lumo_tarn_dp_debug_setting_msg *message, char *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_debug_setting_msg_message_print(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_print_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, lumo_tarn_dp_debug_setting_msg *message, uint32_t size, uint32_t *err);
/** Writes the message as an XML element with the payload's element in it. Returns the characters written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_to_xml(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_dp_debug_setting_msg *message, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_debug_setting_msg_message_to_xml(). 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_toxml_cr(mirk_handle *h,
    lumo_tarn_dp_debug_setting_msg *message, char *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_debug_setting_msg_message_to_xml(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_msg_message_to_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, lumo_tarn_dp_debug_setting_msg *message, uint32_t size, uint32_t *err);
/** Makes a message from the first element of the payload's name in the runtime's document; a fresh payload if there is
 * none. Null after an error, with a sentence in message_buffer if that is not null. */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting_msg *lumo_tarn_dp_debug_setting_msg_message_from_xml(mirk_handle *h,
    uint32_t ctx_id, void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** Another name of lumo_tarn_dp_debug_setting_msg_message_from_xml(). */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting_msg *lumo_tarn_dp_debug_setting_msg_message_from_xml_unsafe(mirk_handle *h,
    uint32_t ctx_id, void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** @} */

/** @name Handlers
 *  @{ */
/** Gets each received message that has no better handler. A weak symbol: define one of the same name to take the
 * messages. This one leaves ENOSYS, which says that nobody did. */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_dp_debug_setting_msg_message_handler(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, void *message, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
