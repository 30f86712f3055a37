// The module as a whole: its entry in the runtime's list, its types on handles with private tables, its trace modules.
#pragma once

#include "core/type_table.h"

// The module's own record of each type, in the order of the catalogue, terminated by null.
extern mirk_type_info *lumo_ui_tarn_type_table[];

namespace tarn {

// Ensures that the handle's type store has a private copy of each type record. Sets ENOMEM if allocation fails.
void initialize_private_types(mirk_handle *h, std::uint32_t ctx_id, std::uint32_t *err);
void dump_variants(mirk_print_fn print);
void initialize_type_trace();
void initialize_message_trace();

}  // namespace tarn
