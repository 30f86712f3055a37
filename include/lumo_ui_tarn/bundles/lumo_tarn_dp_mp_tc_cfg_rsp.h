/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_dp_mp_tc_cfg_rsp.h - the bundle that answers with a lumo_tarn_dp_mp_tc_msg.
 *
 * Between its start and its commit or abort it admits that message and the request message of the
 * user interface. */
#ifndef LUMO_UI_TARN_BUNDLES_LUMO_TARN_DP_MP_TC_CFG_RSP_H
#define LUMO_UI_TARN_BUNDLES_LUMO_TARN_DP_MP_TC_CFG_RSP_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/messages/lumo_tarn_dp_mp_tc_msg.h>

LUMO_UI_TARN_BEGIN

/** The handler that is registered for this bundle, or NULL. Not synchronized. */
extern LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_registered_handler;

/** @name Handlers
 *  @{ */
/** Receives each committed bundle that has no registered handler; its messages are on the handle's receive list. A weak
 * symbol: define a function of the same name to receive the bundles. This one only writes a trace line. */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_handler(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, uint32_t *err);
/** @} */

/** @name Registration
 *  @{ */
/** Registers the process-wide handler of this bundle and returns the previous one. Not synchronized: call it while no
 * bundle is being received. */
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_handler_register(mirk_bundle_handler handler);
/** Removes the registered handler of this bundle and returns it. Not synchronized. */
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_handler_unregister(void);
/** @} */

/* ---- start ---- */
/** Identity of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start in frames. */
extern LUMO_UI_TARN_API const uint8_t message_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_luid[16];
/** Identity of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start in hexadecimal digits. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_luid_text[33];
/** Name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start, for trace lines. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_name[64];

/** @name Control messages
 *  @{ */
/** Allocates a token for the start of the bundle. Returns NULL if allocation fails. The caller owns it. */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_create(mirk_handle *h, uint32_t ctx_id);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_create(). */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_create_unsafe(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_create(): returns a sentinel instead of NULL if
 * allocation fails or last_error is set already. Only lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_destroy_cr()
 * accepts the sentinel. */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_create_cr(mirk_handle *h);
/** Frees the token. NULL is ignored. Release a token of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_create_cr()
 * with lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_destroy_cr() instead. */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_destroy(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_destroy(). */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_destroy_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Frees the token. NULL and the sentinel are ignored. */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_destroy_cr(mirk_handle *h, void *token);
/** Returns the size of the frame: 43 bytes, header and identity. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_len(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_len(). Returns 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_len_cr(mirk_handle *h, void *token);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_len(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_len_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Writes the frame of the bundle's start. A start opens the handle's send bundle: EEXIST if one is open already,
 * EMSGSIZE if size is below 43. token is not read and may be NULL. Returns the number of bytes written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_marshal(mirk_handle *h, uint32_t ctx_id,
    void *buffer, void *token, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_marshal(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_marshal_cr(mirk_handle *h, void *token,
    void *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_marshal(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_marshal_unsafe(mirk_handle *h,
    uint32_t ctx_id, void *buffer, void *token, uint32_t size, uint32_t *err);
/** Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_handler() if handler is NULL. The
 * frame is not read. Returns 43, also after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_unmarshal(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, void **out, void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
/** Has no effect and returns 0: there is no object to return. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_unmarshal_only(mirk_handle *h,
    uint32_t ctx_id, void **out, void *buffer, uint32_t size, uint32_t *err);
/** Writes a line with the bundle's name. Returns the length in bytes without the final NUL. ENOSPC if the line does not
 * fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_print(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_print(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_print_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_print(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_print_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Writes an empty XML element with the bundle's name as an attribute. Returns the length in bytes without the final
 * NUL. EMSGSIZE if it does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_to_xml(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_to_xml(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_toxml_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_to_xml(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_to_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Allocates a token, which the caller owns; the document is not read. Returns NULL if allocation fails. */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_from_xml(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_from_xml(). */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_from_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** Returns 1: every domain has control messages. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_valid_cr(mirk_handle *h);
/** @} */

/** @name Handlers
 *  @{ */
/** Implements the start on the receiving side. A start opens the handle's receive bundle: EEXIST if one is open
 * already. A weak symbol: define a function of the same name to replace it. */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_start_message_handler(mirk_handle *h,
    uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);
/** @} */

/* ---- abort ---- */
/** Identity of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort in frames. */
extern LUMO_UI_TARN_API const uint8_t message_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_luid[16];
/** Identity of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort in hexadecimal digits. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_luid_text[33];
/** Name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort, for trace lines. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_name[64];

/** @name Control messages
 *  @{ */
/** Allocates a token for the abort of the bundle. Returns NULL if allocation fails. The caller owns it. */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_create(mirk_handle *h, uint32_t ctx_id);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_create(). */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_create_unsafe(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_create(): returns a sentinel instead of NULL if
 * allocation fails or last_error is set already. Only lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_destroy_cr()
 * accepts the sentinel. */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_create_cr(mirk_handle *h);
/** Frees the token. NULL is ignored. Release a token of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_create_cr()
 * with lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_destroy_cr() instead. */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_destroy(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_destroy(). */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_destroy_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Frees the token. NULL and the sentinel are ignored. */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_destroy_cr(mirk_handle *h, void *token);
/** Returns the size of the frame: 43 bytes, header and identity. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_len(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_len(). Returns 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_len_cr(mirk_handle *h, void *token);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_len(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_len_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Writes the frame of the bundle's abort. An abort or a commit closes the open send bundle, even if EMSGSIZE says that
 * its frame did not fit. ENOENT if none is open. If err is set on entry, the bundle stays open. token is not read and
 * may be NULL. Returns the number of bytes written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_marshal(mirk_handle *h, uint32_t ctx_id,
    void *buffer, void *token, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_marshal(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_marshal_cr(mirk_handle *h, void *token,
    void *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_marshal(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_marshal_unsafe(mirk_handle *h,
    uint32_t ctx_id, void *buffer, void *token, uint32_t size, uint32_t *err);
/** Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_handler() if handler is NULL. The
 * frame is not read. Returns 43, also after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_unmarshal(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, void **out, void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
/** Has no effect and returns 0: there is no object to return. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_unmarshal_only(mirk_handle *h,
    uint32_t ctx_id, void **out, void *buffer, uint32_t size, uint32_t *err);
/** Writes a line with the bundle's name. Returns the length in bytes without the final NUL. ENOSPC if the line does not
 * fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_print(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_print(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_print_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_print(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_print_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Writes an empty XML element with the bundle's name as an attribute. Returns the length in bytes without the final
 * NUL. EMSGSIZE if it does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_to_xml(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_to_xml(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_toxml_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_to_xml(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_to_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Allocates a token, which the caller owns; the document is not read. Returns NULL if allocation fails. */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_from_xml(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_from_xml(). */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_from_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** Returns 1: every domain has control messages. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_valid_cr(mirk_handle *h);
/** @} */

/** @name Handlers
 *  @{ */
/** Implements the abort on the receiving side. An abort destroys the messages received. A commit delivers them to the
 * bundle's handler and then destroys those that are left. EBADMSG if no bundle is open. A weak symbol: define a
 * function of the same name to replace it. */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_abort_message_handler(mirk_handle *h,
    uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);
/** @} */

/* ---- commit ---- */
/** Identity of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit in frames. */
extern LUMO_UI_TARN_API const uint8_t message_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_luid[16];
/** Identity of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit in hexadecimal digits. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_luid_text[33];
/** Name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit, for trace lines. */
extern LUMO_UI_TARN_API const char message_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_name[64];

/** @name Control messages
 *  @{ */
/** Allocates a token for the commit of the bundle. Returns NULL if allocation fails. The caller owns it. */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_create(mirk_handle *h, uint32_t ctx_id);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_create(). */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_create_unsafe(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_create(): returns a sentinel instead of NULL if
 * allocation fails or last_error is set already. Only lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_destroy_cr()
 * accepts the sentinel. */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_create_cr(mirk_handle *h);
/** Frees the token. NULL is ignored. Release a token of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_create_cr()
 * with lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_destroy_cr() instead. */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_destroy(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_destroy(). */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_destroy_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Frees the token. NULL and the sentinel are ignored. */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_destroy_cr(mirk_handle *h, void *token);
/** Returns the size of the frame: 43 bytes, header and identity. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_len(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_len(). Returns 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_len_cr(mirk_handle *h, void *token);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_len(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_len_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *token);
/** Writes the frame of the bundle's commit. An abort or a commit closes the open send bundle, even if EMSGSIZE says
 * that its frame did not fit. ENOENT if none is open. If err is set on entry, the bundle stays open. token is not read
 * and may be NULL. Returns the number of bytes written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_marshal(mirk_handle *h, uint32_t ctx_id,
    void *buffer, void *token, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_marshal(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_marshal_cr(mirk_handle *h, void *token,
    void *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_marshal(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_marshal_unsafe(mirk_handle *h,
    uint32_t ctx_id, void *buffer, void *token, uint32_t size, uint32_t *err);
/** Calls the handler, or lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_handler() if handler is NULL.
 * The frame is not read. Returns 43, also after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_unmarshal(mirk_handle *h, uint32_t ctx_id,
    void *dispatch_ctx, void **out, void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
/** Has no effect and returns 0: there is no object to return. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_unmarshal_only(mirk_handle *h,
    uint32_t ctx_id, void **out, void *buffer, uint32_t size, uint32_t *err);
/** Writes a line with the bundle's name. Returns the length in bytes without the final NUL. ENOSPC if the line does not
 * fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_print(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_print(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_print_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_print(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_print_unsafe(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Writes an empty XML element with the bundle's name as an attribute. Returns the length in bytes without the final
 * NUL. EMSGSIZE if it does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_to_xml(mirk_handle *h, uint32_t ctx_id,
    char *buffer, void *token, uint32_t size, uint32_t *err);
/** Sticky form of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_to_xml(). Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_toxml_cr(mirk_handle *h, void *token,
    char *buffer, uint32_t size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_to_xml(). */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_to_xml_unsafe(mirk_handle *h,
    uint32_t ctx_id, char *buffer, void *token, uint32_t size, uint32_t *err);
/** Allocates a token, which the caller owns; the document is not read. Returns NULL if allocation fails. */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_from_xml(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** Another name of lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_from_xml(). */
LUMO_UI_TARN_API void *lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_from_xml_unsafe(mirk_handle *h, uint32_t ctx_id,
    void *document, uint32_t *err, char *message_buffer, uint32_t message_size);
/** Returns 1: every domain has control messages. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_valid_cr(mirk_handle *h);
/** @} */

/** @name Handlers
 *  @{ */
/** Implements the commit on the receiving side. An abort destroys the messages received. A commit delivers them to the
 * bundle's handler and then destroys those that are left. EBADMSG if no bundle is open. A weak symbol: define a
 * function of the same name to replace it. */
LUMO_UI_TARN_API void lumo_ui_tarn_lumo_tarn_dp_mp_tc_cfg_rsp_bundle_commit_message_handler(mirk_handle *h,
    uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
