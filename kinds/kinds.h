// Every kind of single-valued member.
#pragma once

#include "kinds/address.h"
#include "kinds/boolean.h"
#include "kinds/enumeration.h"
#include "kinds/integer.h"
#include "kinds/record.h"
