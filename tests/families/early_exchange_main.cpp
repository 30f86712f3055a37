// Checks the result of the exchange in the library that is initialized before all others.
#include <cstdio>

extern "C" const char *early_exchange_failure();

int main() {
    const char *failure = early_exchange_failure();
    if (failure != nullptr) std::fprintf(stderr, "early exchange: %s\n", failure);
    return failure != nullptr ? 1 : 0;
}
