// The type records and, in the order of the catalogue, the table of pointers to them.
#include "core/type_table.h"

#include "exports/type_table.inc"
