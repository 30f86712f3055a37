/* module.h - the module as a whole: types, trace, registration.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_MODULE_H
#define LUMO_UI_TARN_MODULE_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_type_trace_module_id;
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_message_trace_module_id;
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_queue_trace_module_id;
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_stub_trace_module_id;
extern LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_bundle_registered_handler;

/* Types */
LUMO_UI_TARN_API void lumo_ui_tarn_typeinfo_initialize(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
LUMO_UI_TARN_API void lumo_ui_tarn_type_variant_dump(mirk_print_fn print);

/* Trace */
LUMO_UI_TARN_API void mirk_lumo_ui_tarn_type_trace_init(void);
LUMO_UI_TARN_API void mirk_lumo_ui_tarn_message_trace_init(void);

/* Registration */
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_bundle_handler_register(mirk_bundle_handler handler);
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_bundle_handler_unregister(void);

LUMO_UI_TARN_END

#endif
