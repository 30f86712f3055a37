/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * module.h - operations of the whole module: types, trace, registration. */
#ifndef LUMO_UI_TARN_MODULE_H
#define LUMO_UI_TARN_MODULE_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/** Trace module number of records and enumerations; 0 until mirk_lumo_ui_tarn_type_trace_init() registers it. */
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_type_trace_module_id;
/** Trace module number of messages; 0 until mirk_lumo_ui_tarn_message_trace_init() registers it. */
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_message_trace_module_id;
/** Trace module number that is not used; always 0. */
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_queue_trace_module_id;
/** Trace module number of default handlers; never registered, so always 0. */
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_stub_trace_module_id;
/** The handler that is registered for all bundles of the module, or NULL. Not synchronized. */
extern LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_bundle_registered_handler;

/** @name Types
 *  @{ */
/** Creates the copies of type records that a handle with private_types set does not have yet. Programs need not call
 * it: the runtime does so when it needs a copy. ENOMEM if allocation fails. err is not read. */
LUMO_UI_TARN_API void lumo_ui_tarn_typeinfo_initialize(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
/** Prints the number of variants of each type and, for each variant, the length of an instance and of the padding after
 * it (slop) in bytes. */
LUMO_UI_TARN_API void lumo_ui_tarn_type_variant_dump(mirk_print_fn print);
/** @} */

/** @name Trace
 *  @{ */
/** Registers the trace module of records and enumerations. Creating a record calls it. Repeated calls have no
 * effect. */
LUMO_UI_TARN_API void mirk_lumo_ui_tarn_type_trace_init(void);
/** Registers the trace module of messages. Call it at least once: until then trace lines of messages have module number
 * 0. Repeated calls have no effect. */
LUMO_UI_TARN_API void mirk_lumo_ui_tarn_message_trace_init(void);
/** @} */

/** @name Registration
 *  @{ */
/** Registers one handler for all bundles of this module and of the modules it depends on, and returns the previous one.
 * It precedes the handlers of single bundles. Not synchronized: call it while no bundle is being received. */
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_bundle_handler_register(mirk_bundle_handler handler);
/** Removes the handler of all bundles, in this module and in those it depends on, and returns it. Not synchronized. */
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_bundle_handler_unregister(void);
/** @} */

LUMO_UI_TARN_END

#endif
