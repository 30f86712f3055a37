// Asks the library that is initialized first of all what came of its exchange.
#include <cstdio>

extern "C" const char *early_exchange_failure();

int main() {
    const char *failure = early_exchange_failure();
    if (failure != nullptr) std::fprintf(stderr, "early exchange: %s\n", failure);
    return failure != nullptr ? 1 : 0;
}
