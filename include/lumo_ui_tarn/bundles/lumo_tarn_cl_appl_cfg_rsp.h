/* lumo_tarn_cl_appl_cfg_rsp.h - the bundle that answers with a lumo_tarn_cl_appl_msg.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_BUNDLES_LUMO_TARN_CL_APPL_CFG_RSP_H
#define LUMO_UI_TARN_BUNDLES_LUMO_TARN_CL_APPL_CFG_RSP_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/messages/lumo_tarn_cl_appl_msg.h>

LUMO_UI_TARN_BEGIN

/* Admits lumo_tarn_cl_appl_msg and the requests of the user interface. */
extern LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_registered_handler;

/* Handlers */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_handler(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, uint32_t *err);

/* Registration */
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_handler_register(mirk_bundle_handler handler);
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_handler_unregister(void);

/* ---- start ---- */
extern LUMO_UI_TARN_API const uint8_t message_lumo_tarn_cl_appl_cfg_rsp_bundle_start_luid[16];
extern LUMO_UI_TARN_API const char message_lumo_tarn_cl_appl_cfg_rsp_bundle_start_luid_text[33];
extern LUMO_UI_TARN_API const char message_lumo_tarn_cl_appl_cfg_rsp_bundle_start_name[64];

/* Control messages */
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_create_cr(mirk_handle *h);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_create_unsafe(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_destroy(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_destroy_cr(mirk_handle *h, void *token);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_destroy_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_len(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_len_cr(mirk_handle *h, void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_len_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_marshal(mirk_handle *h, uint32_t ctx_id,
    void *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_marshal_cr(mirk_handle *h, void *token,
    void *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_marshal_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_unmarshal(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, void **out, void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_unmarshal_only(mirk_handle *h, uint32_t ctx_id,
    void **out, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_print(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_print_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_print_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_to_xml(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_toxml_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_to_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_from_xml(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_from_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_valid_cr(mirk_handle *h);

/* Handlers */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_start_message_handler(mirk_handle *h,
    uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);

/* ---- abort ---- */
extern LUMO_UI_TARN_API const uint8_t message_lumo_tarn_cl_appl_cfg_rsp_bundle_abort_luid[16];
extern LUMO_UI_TARN_API const char message_lumo_tarn_cl_appl_cfg_rsp_bundle_abort_luid_text[33];
extern LUMO_UI_TARN_API const char message_lumo_tarn_cl_appl_cfg_rsp_bundle_abort_name[64];

/* Control messages */
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_create_cr(mirk_handle *h);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_create_unsafe(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_destroy(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_destroy_cr(mirk_handle *h, void *token);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_destroy_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_len(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_len_cr(mirk_handle *h, void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_len_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_marshal(mirk_handle *h, uint32_t ctx_id,
    void *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_marshal_cr(mirk_handle *h, void *token,
    void *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_marshal_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_unmarshal(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, void **out, void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_unmarshal_only(mirk_handle *h, uint32_t ctx_id,
    void **out, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_print(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_print_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_print_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_to_xml(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_toxml_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_to_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_from_xml(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_from_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_valid_cr(mirk_handle *h);

/* Handlers */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_abort_message_handler(mirk_handle *h,
    uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);

/* ---- commit ---- */
extern LUMO_UI_TARN_API const uint8_t message_lumo_tarn_cl_appl_cfg_rsp_bundle_commit_luid[16];
extern LUMO_UI_TARN_API const char message_lumo_tarn_cl_appl_cfg_rsp_bundle_commit_luid_text[33];
extern LUMO_UI_TARN_API const char message_lumo_tarn_cl_appl_cfg_rsp_bundle_commit_name[64];

/* Control messages */
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_create_cr(mirk_handle *h);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_create_unsafe(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_destroy(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_destroy_cr(mirk_handle *h, void *token);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_destroy_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_len(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_len_cr(mirk_handle *h, void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_len_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_marshal(mirk_handle *h, uint32_t ctx_id,
    void *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_marshal_cr(mirk_handle *h, void *token,
    void *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_marshal_unsafe(mirk_handle *h,
    uint32_t ctx_id, void *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_unmarshal(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, void **out, void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_unmarshal_only(mirk_handle *h,
    uint32_t ctx_id, void **out, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_print(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_print_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_print_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_to_xml(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_toxml_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_to_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_from_xml(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
LUMO_UI_TARN_API void *lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_from_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_valid_cr(mirk_handle *h);

/* Handlers */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_cl_appl_cfg_rsp_bundle_commit_message_handler(mirk_handle *h,
    uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);

LUMO_UI_TARN_END

#endif
