// Prints the layout of all records, as layout.golden holds it.
#include <iostream>

#include "reference/layout.h"

int main() { std::cout << reference::layout_text(); }
