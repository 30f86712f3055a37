/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * module.h - the module as a whole: types, trace, registration. */
#ifndef LUMO_UI_TARN_MODULE_H
#define LUMO_UI_TARN_MODULE_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/** Under which number the type code of this module traces; 0 until it is registered. */
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_type_trace_module_id;
/** Under which number the message code of this module traces; 0 until it is registered. */
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_message_trace_module_id;
/** Under which number the queue code of this module traces; 0 until it is registered. */
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_queue_trace_module_id;
/** Under which number the stub code of this module traces; 0 until it is registered. */
extern LUMO_UI_TARN_API uint16_t g_mirk_lumo_ui_tarn_stub_trace_module_id;
/** The handler that is registered for all bundles of the module, or null. Carries no lock. */
extern LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_bundle_registered_handler;

/** @name Types
 *  @{ */
/** Makes sure that the handle's type store has a private copy of each type record: for a handle with private types,
 * before its first use. ENOMEM without memory. */
LUMO_UI_TARN_API void lumo_ui_tarn_typeinfo_initialize(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
/** Prints, for each type, its variants with the size and the slop of an instance. */
LUMO_UI_TARN_API void lumo_ui_tarn_type_variant_dump(mirk_print_fn print);
/** @} */

/** @name Trace
 *  @{ */
/** Registers the trace module of records and enumerations; repeatable. Creating a record does it. */
LUMO_UI_TARN_API void mirk_lumo_ui_tarn_type_trace_init(void);
/** Registers the trace module of messages; repeatable. Call it once, or message trace goes under module 0. */
LUMO_UI_TARN_API void mirk_lumo_ui_tarn_message_trace_init(void);
/** @} */

/** @name Registration
 *  @{ */
/** Registers one handler for all bundles of this module and of the modules that it builds on, and returns the one
 * before. It comes ahead of the handlers of single bundles. Carries no lock: call it at a quiet moment. */
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_bundle_handler_register(mirk_bundle_handler handler);
/** Takes the handler for all bundles away, here and in the modules that this one builds on, and returns it. Carries no
 * lock. */
LUMO_UI_TARN_API mirk_bundle_handler lumo_ui_tarn_bundle_handler_unregister(void);
/** @} */

LUMO_UI_TARN_END

#endif
