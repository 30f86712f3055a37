#include "tools/tarn/support/failure.h"

#include <cerrno>
#include <cstring>

namespace tarn::tool {

std::string error_name(std::uint32_t number) {
    const char *name = strerrorname_np(static_cast<int>(number));
    return name != nullptr ? name : std::to_string(number);
}

std::string error_text(std::uint32_t number) {
    return std::string(std::strerror(static_cast<int>(number))) + " (" + error_name(number) + ")";
}

Exit exit_of(std::uint32_t number) { return number == ENOMEM ? Exit::environment : Exit::input; }

}  // namespace tarn::tool
