#include "messaging/registration.h"

#include <utility>

namespace tarn {

mirk_bundle_handler register_for_module(mirk_bundle_handler handler) {
    const mirk_bundle_handler before = std::exchange(lumo_ui_tarn_bundle_registered_handler, handler);
    veld_comm_bundle_handler_register(handler);
    veld_defs_bundle_handler_register(handler);
    veld_shared_bundle_handler_register(handler);
    veld_stats_bundle_handler_register(handler);
    veld_intf_bundle_handler_register(handler);
    veld_cond_bundle_handler_register(handler);
    veld_view_bundle_handler_register(handler);
    return before;
}

mirk_bundle_handler unregister_for_module() {
    const mirk_bundle_handler before = std::exchange(lumo_ui_tarn_bundle_registered_handler, nullptr);
    veld_comm_bundle_handler_unregister();
    veld_defs_bundle_handler_unregister();
    veld_shared_bundle_handler_unregister();
    veld_stats_bundle_handler_unregister();
    veld_intf_bundle_handler_unregister();
    veld_cond_bundle_handler_unregister();
    veld_view_bundle_handler_unregister();
    return before;
}

}  // namespace tarn

#include "exports/registration.inc"
