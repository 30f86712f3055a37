/** @file
 * siblings.h - seven other schema modules, as far as the library refers to them; the runtime supplies these functions
 * and data. A handler for all bundles that is registered with the library is also registered with each of these
 * modules. Each module stores the last one.
 */
#ifndef MIRK_SIBLINGS_H
#define MIRK_SIBLINGS_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Declares the two operations of the module M, veld_M_bundle_handler_register() and
 * veld_M_bundle_handler_unregister(). Both return the previous handler, initially null. They are not thread-safe: call
 * them while no frames are dispatched. */
#define VELD(M)                                                                          \
    mirk_bundle_handler veld_##M##_bundle_handler_register(mirk_bundle_handler handler); \
    mirk_bundle_handler veld_##M##_bundle_handler_unregister(void);

VELD(comm)
VELD(defs)
VELD(shared)
VELD(stats)
VELD(intf)
VELD(cond)
VELD(view)

/** The luid of the request message, 16 bytes. Every bundle admits it in addition to its own message. */
extern const uint8_t message_ui_req_msg_luid[16];
/** Name of the request message, for trace lines. */
extern const char message_ui_req_msg_name[64];

#ifdef __cplusplus
}
#endif
#endif
