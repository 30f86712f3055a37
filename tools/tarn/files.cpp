#include "files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "failure.h"

namespace tarn::tool {

namespace {

struct Close {
    void operator()(FILE *file) const {
        if (file != stdin && file != stdout) std::fclose(file);
    }
};
using File = std::unique_ptr<FILE, Close>;

[[noreturn]] void fail(const std::string &path) {
    throw Failure(Exit::environment, shown_path(path) + ": " + std::strerror(errno));
}

}  // namespace

std::string shown_path(const std::string &path) { return path == "-" ? "standard input" : path; }

std::string read_file(const std::string &path) {
    const File file(path == "-" ? stdin : std::fopen(path.c_str(), "rbe"));
    if (file == nullptr) fail(path);
    std::string content;
    char piece[65536];
    for (std::size_t got = 0; (got = std::fread(piece, 1, sizeof piece, file.get())) != 0;) content.append(piece, got);
    if (std::ferror(file.get()) != 0) fail(path);
    return content;
}

void write_file(const std::string &path, std::string_view bytes) {
    File file(path == "-" ? stdout : std::fopen(path.c_str(), "wbe"));
    if (file == nullptr) fail(path);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    if (!written || std::fflush(file.get()) != 0) fail(path);
}

void flush_output() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        throw Failure(Exit::environment, std::string("standard output: ") + std::strerror(errno));
    }
}

}  // namespace tarn::tool
