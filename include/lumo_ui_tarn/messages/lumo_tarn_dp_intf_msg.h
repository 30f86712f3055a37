/* lumo_tarn_dp_intf_msg.h - the message that carries a lumo_tarn_dp_intf_data.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_MESSAGES_LUMO_TARN_DP_INTF_MSG_H
#define LUMO_UI_TARN_MESSAGES_LUMO_TARN_DP_INTF_MSG_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_intf_data.h>

LUMO_UI_TARN_BEGIN

/* Carries one lumo_tarn_dp_intf_data, which it owns. */
typedef struct lumo_tarn_dp_intf_msg lumo_tarn_dp_intf_msg;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_intf_msg_message_type_info_internal;
extern LUMO_UI_TARN_API const uint8_t message_lumo_tarn_dp_intf_msg_luid[16];
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_intf_msg_luid_text[33];
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_intf_msg_name[64];

/* Message objects */
LUMO_UI_TARN_API lumo_tarn_dp_intf_msg *lumo_tarn_dp_intf_msg_message_create_shallow(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_intf_msg *lumo_tarn_dp_intf_msg_message_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_intf_msg *lumo_tarn_dp_intf_msg_message_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_intf_msg *lumo_tarn_dp_intf_msg_message_create_unsafe(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_intf_msg_message_destroy(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_intf_msg *message);
LUMO_UI_TARN_API void lumo_tarn_dp_intf_msg_message_destroy_cr(mirk_handle *h, lumo_tarn_dp_intf_msg *message);
LUMO_UI_TARN_API void lumo_tarn_dp_intf_msg_message_destroy_unsafe(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_intf_msg *message);
LUMO_UI_TARN_API lumo_tarn_dp_intf_data *lumo_tarn_dp_intf_msg_message_lumo_tarn_dp_intf_data_get(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_dp_intf_msg *message, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_intf_data *lumo_tarn_dp_intf_msg_message_lumo_tarn_dp_intf_data_get_detach(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_dp_intf_msg *message, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_intf_msg_message_lumo_tarn_dp_intf_data_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_intf_msg *message, lumo_tarn_dp_intf_data *payload, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_intf_msg_message_lumo_tarn_dp_intf_data_free_and_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_intf_msg *message, lumo_tarn_dp_intf_data *payload, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_is_valid_cr(mirk_handle *h);

/* Message frames */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_len(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_intf_msg *message);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_len_cr(mirk_handle *h, lumo_tarn_dp_intf_msg *message);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_len_unsafe(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_intf_msg *message);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_intf_msg *message, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_marshal_cr(mirk_handle *h, lumo_tarn_dp_intf_msg *message,
    void *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_marshal_unsafe(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_intf_msg *message, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_unmarshal(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx,
    lumo_tarn_dp_intf_msg **out, void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_unmarshal_only(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_intf_msg **out, void *buffer, uint32_t size, uint32_t *err);

/* Message text and XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_print(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_dp_intf_msg *message, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_print_cr(mirk_handle *h, lumo_tarn_dp_intf_msg *message,
    char *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_print_unsafe(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_dp_intf_msg *message, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_to_xml(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_dp_intf_msg *message, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_toxml_cr(mirk_handle *h, lumo_tarn_dp_intf_msg *message,
    char *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_intf_msg_message_to_xml_unsafe(mirk_handle *h, uint32_t ctx_id, char *buffer,
    lumo_tarn_dp_intf_msg *message, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_intf_msg *lumo_tarn_dp_intf_msg_message_from_xml(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
LUMO_UI_TARN_API lumo_tarn_dp_intf_msg *lumo_tarn_dp_intf_msg_message_from_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);

/* Handlers */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_dp_intf_msg_message_handler(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, void *message, uint32_t *err);

LUMO_UI_TARN_END

#endif
