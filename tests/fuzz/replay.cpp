// Runs the target once on each named file, and on each file of the named folders, in the order of their names. The
// first folder contains the seeds and must not be empty; a target without findings has no folder for them.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "fuzz.h"

int main(int argc, char **argv) {
    std::vector<std::filesystem::path> files;
    for (int i = 1; i < argc; ++i) {
        if (std::filesystem::is_directory(argv[i])) {
            for (const auto &entry : std::filesystem::directory_iterator(argv[i])) files.push_back(entry.path());
        } else if (std::filesystem::exists(argv[i])) {
            files.emplace_back(argv[i]);
        }
        if (files.empty()) {
            std::fprintf(stderr, "no input in %s\n", argv[i]);
            return 1;
        }
    }
    std::sort(files.begin(), files.end());
    for (const auto &file : files) {
        std::ifstream stream(file, std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
        std::fprintf(stderr, "%s\n", file.c_str());
        // A copy of exactly this size, so that a sanitizer detects reads past its end.
        const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%zu inputs\n", files.size());
    return files.empty() ? 1 : 0;
}
