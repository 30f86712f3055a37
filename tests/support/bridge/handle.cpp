#include "bridge/bridge.h"

namespace bridge {

const char *name_of(Tracking tracking) {
    switch (tracking) {
        case Tracking::none:
            return "no descriptor";
        case Tracking::off:
            return "tracking off";
        case Tracking::on:
            return "tracking on";
    }
    return "?";
}

Handle::Handle(const Options &options) : options_(options) {
    mirk_platform_handle_options o;
    mirk_platform_handle_options_init(&o);
    o.tracking = options.tracking == Tracking::none  ? MIRK_PLATFORM_TRACKING_NONE
                 : options.tracking == Tracking::off ? MIRK_PLATFORM_TRACKING_OFF
                                                     : MIRK_PLATFORM_TRACKING_ON;
    o.private_types = options.private_types ? 1 : 0;
    o.epoch_policy = options.lenient ? MIRK_PLATFORM_LENIENT_43 : MIRK_PLATFORM_STRICT;
    if (options.request_ceiling != 0) o.request_ceiling = options.request_ceiling;
    if (options.total_ceiling != 0) o.total_ceiling = options.total_ceiling;
    handle_ = mirk_platform_handle_open(&o);
}

Handle::~Handle() {
    const std::size_t left = mirk_platform_handle_close(handle_);
    if (!any_loss_ && left != lost_) {
        ADD_FAILURE() << left << " blocks were left on a handle (" << name_of(options_.tracking) << "), expected were "
                      << lost_;
    }
}

}  // namespace bridge
