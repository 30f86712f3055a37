// start LIBRARY: how long a fresh process waits for the library, from dlopen to a first object made, and how large its
// file is without symbols. Each round is a process of its own; the median counts.
#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "mirk_platform.h"

namespace {

constexpr int rounds = 51;

// Loads the library and makes one record of it; the time in microseconds goes to standard output. The reference runtime
// is part of this program already, as it is of one that has a runtime.
int one_round(const char *library) {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    if (h == nullptr) return 1;
    const auto before = std::chrono::steady_clock::now();
    void *loaded = dlopen(library, RTLD_NOW | RTLD_LOCAL);
    if (loaded == nullptr) {
        std::fprintf(stderr, "start: %s\n", dlerror());
        return 1;
    }
    using Create = void *(*)(mirk_handle *, std::uint32_t);
    void *found = dlsym(loaded, "lumo_tarn_debug_setting_create");
    Create create = nullptr;
    std::memcpy(&create, &found, sizeof create);
    if (create == nullptr || create(h, 1) == nullptr) return 1;
    const std::chrono::duration<double, std::micro> waited = std::chrono::steady_clock::now() - before;
    std::printf("%.1f\n", waited.count());
    return 0;
}

double run_one_round(const char *self, const char *library) {
    const std::string command = std::string(self) + " --round " + library;
    std::FILE *output = popen(command.c_str(), "r");
    double waited = -1;
    if (output == nullptr) return waited;
    if (std::fscanf(output, "%lf", &waited) != 1) waited = -1;
    return pclose(output) == 0 ? waited : -1;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc == 3 && std::strcmp(argv[1], "--round") == 0) return one_round(argv[2]);
    if (argc != 3) {
        std::fputs("usage: start LIBRARY STRIPPED_COPY\n", stderr);
        return 2;
    }
    std::vector<double> waits;
    for (int i = 0; i < rounds; ++i) waits.push_back(run_one_round(argv[0], argv[1]));
    std::sort(waits.begin(), waits.end());
    if (waits.front() < 0) return 1;
    std::printf("loaded and a first object made: %.2f ms (median of %d processes)\n", waits[rounds / 2] / 1000, rounds);
    std::printf("stripped library: %.2f MB\n", static_cast<double>(std::filesystem::file_size(argv[2])) / 1e6);
    return 0;
}
