// platform/contract/ implements what a schema library calls (include/mirk/) and the control interface of handles,
// documents, dispatch and trace (mirk_platform.h, mirk_platform_testing.h).
//
// This layer may use the C and C++ standard libraries, POSIX and libxml2. It knows objects, type records and frames
// only in the form that the contract defines: it must not include headers of a schema library. The only message that it
// names is the request message, whose identity it defines. It must not use platform/service/ or open sockets.
//
// The names of the contract are exported; everything else here is hidden.
#pragma once

#pragma GCC visibility push(default)
#include "mirk/mirk.h"
#pragma GCC visibility pop

#include "mirk_platform.h"
#include "mirk_platform_testing.h"
