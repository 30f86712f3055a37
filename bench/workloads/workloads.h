// What is measured: four objects with random but fixed values, and two lists of any length.
#pragma once

#include <cstddef>

#include "plain.h"

namespace tarn::bench {

plain::lumo_tarn_dp_tt_table_data deep();  // arrays and records nested in each other, addresses
plain::lumo_tarn_debug_setting flat();     // four numbers
plain::lumo_tarn_cl_cfg_data wide();       // long records, enumerations, few arrays
plain::lumo_tarn_cl_appl_data strings();   // two strings an element

plain::lumo_tarn_dp_tc_list classes(std::size_t n);
plain::lumo_tarn_cl_appl_data applications(std::size_t n);

}  // namespace tarn::bench
