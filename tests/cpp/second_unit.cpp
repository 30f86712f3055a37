#include "tests/cpp/two_units.h"

namespace units {

void use_everything_again() { use_everything(); }

}  // namespace units
