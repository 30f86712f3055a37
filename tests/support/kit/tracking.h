// How a handle tracks state.
#pragma once

namespace kit {

enum class Tracking { none, off, on, corrupt };  // none: no descriptor; corrupt: a descriptor with an invalid word

// The valid modes; a corrupt one aborts the process.
inline constexpr Tracking every_tracking[] = {Tracking::none, Tracking::off, Tracking::on};

inline const char *name_of(Tracking tracking) {
    constexpr const char *names[] = {"no descriptor", "tracking off", "tracking on", "corrupt descriptor"};
    return names[static_cast<int>(tracking)];
}

}  // namespace kit
