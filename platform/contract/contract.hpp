// The contract, declared so that what it names is exported although everything else here is hidden.
#pragma once

#pragma GCC visibility push(default)
#include "mirk/mirk.h"
#pragma GCC visibility pop

#include "mirk_platform.h"
#include "mirk_platform_testing.h"
