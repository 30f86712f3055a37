// Shortcuts of the archive, in which the library is compiled as one program with the reference runtime and can omit
// calls that have no visible effect. Each family tries its shortcut first and continues the general way if it does not
// apply.
//
// The shared library has none of them: each call is in `if constexpr (runtime_inside)`.
#pragma once

#include "families/shortcuts/access.h"
#include "families/shortcuts/append.h"
#include "families/shortcuts/compare.h"
#include "families/shortcuts/copy_tree.h"
#include "families/shortcuts/destroy.h"
#include "families/shortcuts/initialize.h"
#include "families/shortcuts/read_tree.h"
#include "families/shortcuts/write_tree.h"
