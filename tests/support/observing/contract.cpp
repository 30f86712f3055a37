#include "mirk/mirk.h"
