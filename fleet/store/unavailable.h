// The failure of a store that another attempt may not meet: the server restarts, or another process holds the file.
#pragma once

#include "tools/tarn/support/failure.h"

namespace tarn::fleet {

class Unavailable : public tool::Failure {
public:
    explicit Unavailable(const std::string &message) : Failure(tool::Exit::environment, message) {}
};

}  // namespace tarn::fleet
