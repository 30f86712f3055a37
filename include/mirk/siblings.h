/** @file
 * siblings.h - the schema modules beside this one. Each keeps the bundle handler that it was given last.
 */
#ifndef MIRK_SIBLINGS_H
#define MIRK_SIBLINGS_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Declares the two operations of the sibling module M, veld_M_bundle_handler_register() and
 * veld_M_bundle_handler_unregister(). Both return the handler that was registered before, null at first. No lock:
 * register at a quiet moment. */
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

/** Identity of the request message, which every bundle admits beside its own. */
extern const uint8_t message_ui_req_msg_luid[16];
/** Its name, for trace lines. */
extern const char message_ui_req_msg_name[64];

#ifdef __cplusplus
}
#endif
#endif
