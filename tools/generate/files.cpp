#include "tools/generate/files.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tarn::generate {

namespace {

bool is_same(const std::filesystem::path &path, const std::string &content) {
    std::ifstream in(path, std::ios::binary);
    return in && std::string(std::istreambuf_iterator<char>(in), {}) == content;
}

}  // namespace

void write_files(const std::string &directory, const Files &files) {
    for (const auto &[name, content] : files) {
        const std::filesystem::path path = std::filesystem::path(directory) / name;
        if (is_same(path, content)) continue;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
    }
}

}  // namespace tarn::generate
