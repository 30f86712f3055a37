// What the process may do beyond what its user may.
#pragma once

namespace tarn::tool {

// From now on, executing a file gives no privileges, whatever its mode says.
void set_no_new_privileges();

// Drops all capabilities, so that root may only do what the owner of its files may. They cannot be regained.
void drop_capabilities();

}  // namespace tarn::tool
