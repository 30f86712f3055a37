// The options of tarn answer.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/tarn/service/server.h"

namespace tarn::tool {

struct AnswerOptions : ServerOptions {
    std::vector<std::string> served;
    std::uint64_t snapshot_limit = 1 << 30;
    bool lenient = false;
    // Serves at an endpoint of an extension instead of a socket or a TCP address.
    std::function<void(Answerer &answerer, Log &log)> serve;
};

}  // namespace tarn::tool
