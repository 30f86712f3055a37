// The part of the sibling schema modules that the library calls: each stores the bundle handler registered last.
// veld_view also defines the identity of ui_req_msg.
#include <utility>

#include "platform/contract/contract.hpp"

namespace {

// Not locked: programs register handlers while no frames are dispatched.
mirk_bundle_handler comm, defs, shared, stats, intf, cond, view;

}  // namespace

#define VELD_DEFINE(M)                                                                    \
    mirk_bundle_handler veld_##M##_bundle_handler_register(mirk_bundle_handler handler) { \
        return std::exchange(M, handler);                                                 \
    }                                                                                     \
    mirk_bundle_handler veld_##M##_bundle_handler_unregister(void) { return std::exchange(M, nullptr); }

extern "C" {

VELD_DEFINE(comm)
VELD_DEFINE(defs)
VELD_DEFINE(shared)
VELD_DEFINE(stats)
VELD_DEFINE(intf)
VELD_DEFINE(cond)
VELD_DEFINE(view)

const uint8_t message_ui_req_msg_luid[16] = {0xb7, 0x3e, 0x91, 0x0c, 0x5a, 0xd4, 0x46, 0x2f,
                                             0x88, 0xe1, 0x6c, 0x0f, 0x93, 0x2b, 0x7d, 0xa5};
const char message_ui_req_msg_name[64] = "message ui_req_msg";

}  // extern "C"
