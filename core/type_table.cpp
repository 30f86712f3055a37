// The type records and, in the order of the catalogue, the table that leads to them.
#include "core/type_table.h"

#include "exports/type_table.inc"
