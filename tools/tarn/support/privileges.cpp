#include "tools/tarn/support/privileges.h"

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "tools/tarn/support/failure.h"

namespace tarn::tool {

void set_no_new_privileges() {
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0) return;
    throw Failure(Exit::environment, "cannot set no-new-privileges: " + error_text(static_cast<std::uint32_t>(errno)));
}

// By system calls, since the C library has no functions for it. Without capabilities there is nothing to drop, and a
// filter of system calls may deny the second one.
void drop_capabilities() {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct held[_LINUX_CAPABILITY_U32S_3]{};
    const __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3]{};
    if (syscall(SYS_capget, &header, held) == 0 && std::memcmp(held, none, sizeof none) == 0) return;
    if (syscall(SYS_capset, &header, none) == 0) return;
    throw Failure(Exit::environment, "cannot drop capabilities: " + error_text(static_cast<std::uint32_t>(errno)));
}

}  // namespace tarn::tool
