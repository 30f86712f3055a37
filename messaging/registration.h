// The handler that a process registers for all bundles of this module and of its sibling modules.
#pragma once

#include "core/guard.h"

extern "C" mirk_bundle_handler lumo_ui_tarn_bundle_registered_handler;

namespace tarn {

mirk_bundle_handler register_for_module(mirk_bundle_handler handler);
mirk_bundle_handler unregister_for_module();

}  // namespace tarn
