// The options of tarn show.
#pragma once

#include <functional>
#include <string>

#include "tools/tarn/service/client.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

struct ShowOptions {
    std::string bundle, save;
    Endpoint endpoint;
    AnswerLimits limits;
    bool text = false, xml = false, json = false, hex = false, tracked = false, verbose = false, force = false;
    double timeout = 10;
    std::string via = "handle";
    // Requests the bundle at an endpoint of an extension instead of a socket or a TCP address, and prints the answers.
    std::function<Exit()> ask;
};

}  // namespace tarn::tool
