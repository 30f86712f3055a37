#include "tools/tarn/support/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

struct Close {
    void operator()(FILE *file) const {
        if (file != stdin && file != stdout) std::fclose(file);
    }
};
using File = std::unique_ptr<FILE, Close>;

constexpr std::size_t longest_path = 4096;

[[noreturn]] void fail(const std::string &shown) {
    throw Failure(Exit::environment, shown + ": " + std::strerror(errno));
}

}  // namespace

std::string shown_path(const std::string &path) {
    return path == "-" ? "standard input" : printable(path, longest_path);
}

std::string shown_output(const std::string &path) {
    return path == "-" ? "standard output" : printable(path, longest_path);
}

std::string read_file(const std::string &path) {
    const File file(path == "-" ? stdin : std::fopen(path.c_str(), "rbe"));
    if (file == nullptr) fail(shown_path(path));
    std::string content;
    char piece[65536];
    for (std::size_t got = 0; (got = std::fread(piece, 1, sizeof piece, file.get())) != 0;) content.append(piece, got);
    if (std::ferror(file.get()) != 0) fail(shown_path(path));
    return content;
}

void write_file(const std::string &path, std::string_view bytes) {
    const std::string shown = shown_output(path);
    File file(path == "-" ? stdout : std::fopen(path.c_str(), "wbe"));
    if (file == nullptr) fail(shown);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    if (!written || std::fflush(file.get()) != 0) fail(shown);
}

GrowingFile::GrowingFile(std::string path)
    : path_(std::move(path)),
      descriptor_(path_ == "-" ? ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0)
                               : ::open(path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666)) {
    if (descriptor_ < 0) fail(shown_output(path_));
}

GrowingFile::~GrowingFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

void GrowingFile::append(std::string_view piece) {
    std::size_t done = 0;
    while (done < piece.size()) {
        const ssize_t written = ::write(descriptor_, piece.data() + done, piece.size() - done);
        if (written >= 0) {
            done += static_cast<std::size_t>(written);
        } else if (errno != EINTR) {
            const auto number = static_cast<std::uint32_t>(errno);
            // Fails for pipes and devices, where nothing can be removed. Standard output may contain more than this.
            [[maybe_unused]] const int kept = path_ == "-" ? 0 : ::ftruncate(descriptor_, static_cast<off_t>(size_));
            throw Failure(Exit::environment, shown_output(path_) + ": at byte " + std::to_string(size_ + done) + ": " +
                                                 error_text(number));
        }
    }
    size_ += piece.size();
}

void GrowingFile::finish() {
    if (::close(std::exchange(descriptor_, -1)) != 0) fail(shown_output(path_));
}

void flush_output() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        throw Failure(Exit::environment, std::string("standard output: ") + std::strerror(errno));
    }
}

}  // namespace tarn::tool
