// The conditions of `tarn rows --where`: COLUMN OPERATOR VALUE, such as "id>=1000" and "src_prefix in 10.0.0.0/8".
#pragma once

#include <functional>
#include <string_view>

#include "tools/tarn/formats/instances.h"

namespace tarn::tool {

// The help prints it.
inline constexpr char condition_rule[] =
    "A condition is a column, an operator and a value. The operators are = != < <= > >=;\n"
    "~, which means that the column contains the text; and \"in\", which means that the\n"
    "address is within a prefix, such as 10.0.0.0/8. Numbers, also in 0x notation, compare\n"
    "as numbers, enumerators by their number, and addresses by family, address, then prefix\n"
    "length. A column without a value meets no condition.";

using Condition = std::function<bool(const Instance &)>;

// Throws a Failure that names the character at which the condition is wrong.
Condition condition(std::string_view text, const Instances &instances);

}  // namespace tarn::tool
