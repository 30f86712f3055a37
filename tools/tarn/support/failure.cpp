#include "tools/tarn/support/failure.h"

#include <cerrno>
#include <cstring>

namespace tarn::tool {

std::string error_text(std::uint32_t number) {
    const int error = static_cast<int>(number);
    const char *name = strerrorname_np(error);
    return std::string(std::strerror(error)) + " (" + (name != nullptr ? std::string(name) + ", " : "") +
           std::to_string(number) + ")";
}

Exit exit_of(std::uint32_t number) { return number == ENOMEM ? Exit::environment : Exit::input; }

}  // namespace tarn::tool
