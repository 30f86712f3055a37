#include "tools/tarn/support/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <utility>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

// A descriptor for reading. That of standard input stays open.
struct Input {
    explicit Input(const std::string &path)
        : descriptor(path == "-" ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}
    Input(const Input &) = delete;
    Input &operator=(const Input &) = delete;
    ~Input() {
        if (descriptor > STDIN_FILENO) ::close(descriptor);
    }

    const int descriptor;
};

constexpr std::size_t longest_path = 4096;

[[noreturn]] void fail(const std::string &shown) {
    throw Failure(Exit::environment, shown + ": " + std::strerror(errno));
}

std::filesystem::path whole_path(const std::string &path) {
    std::error_code error;
    return std::filesystem::weakly_canonical(std::filesystem::absolute(path, error), error);
}

// The files that this process has read or written, since none may be both. A file that is yet to be written has only a
// path.
struct Used {
    std::set<std::filesystem::path> paths;
    std::set<std::pair<dev_t, ino_t>> files;
};
Used inputs, outputs;
std::mutex lock;

void note(Used &used, const Used &others, const std::string &path) {
    const std::lock_guard<std::mutex> hold(lock);
    const char *const standard = &used == &inputs ? "/proc/self/fd/0" : "/proc/self/fd/1";
    const std::filesystem::path whole = whole_path(path == "-" ? standard : path);
    struct stat status {};
    const bool exists = ::stat(whole.c_str(), &status) == 0;
    if (exists ? !S_ISREG(status.st_mode) : path == "-") return;
    const std::pair id(status.st_dev, status.st_ino);
    const auto is_in = [&](const Used &some) {
        return some.paths.count(whole) != 0 || (exists && some.files.count(id) != 0);
    };
    const bool written_twice = &used == &outputs && is_in(used);
    if (written_twice || is_in(others)) {
        throw Failure(Exit::input, (&used == &inputs ? shown_path(path) : shown_output(path)) + ": the same file is " +
                                       (written_twice ? "two outputs" : "input and output"));
    }
    used.paths.insert(whole);
    if (exists) used.files.insert(id);
}

// Of offer_input(), by their names.
std::map<std::string, std::function<std::string()>> other_inputs;

}  // namespace

void offer_input(const std::string &name, std::function<std::string()> read) {
    const std::lock_guard<std::mutex> hold(lock);
    other_inputs[name] = std::move(read);
}

std::string shown_path(const std::string &path) {
    return path == "-" ? "standard input" : printable(path, longest_path);
}

std::string shown_output(const std::string &path) {
    return path == "-" ? "standard output" : printable(path, longest_path);
}

ByteStream open_input(const std::string &path) {
    const std::string shown = shown_path(path);
    // They are added before the first input is opened.
    if (const auto other = other_inputs.find(path); other != other_inputs.end()) {
        return stream_of(other->second(), shown);
    }
    const auto input = std::make_shared<const Input>(path);
    if (input->descriptor < 0) fail(shown);
    note(inputs, outputs, path);
    struct stat status {};
    std::optional<std::uint64_t> size;
    // Files of the system have size 0, whatever they contain.
    if (::fstat(input->descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0) {
        const off_t begin = ::lseek(input->descriptor, 0, SEEK_CUR);
        size = static_cast<std::uint64_t>(std::max<off_t>(status.st_size - begin, 0));
    }
    const auto read = [input, shown](char *to, std::size_t most) {
        ssize_t got = 0;
        do {
            got = ::read(input->descriptor, to, most);
        } while (got < 0 && errno == EINTR);
        if (got < 0) fail(shown);
        return static_cast<std::size_t>(got);
    };
    return {shown, read, size};
}

std::string read_file(const std::string &path) { return open_input(path).take_rest(); }

void write_file(const std::string &path, std::string_view bytes) {
    if (path != "-") {
        OutputFile file(path);
        file.append(bytes);
        return file.finish();
    }
    [[maybe_unused]] static const bool noted = (note(outputs, inputs, path), true);
    if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size()) fail(shown_output(path));
    flush_output();
}

OutputFile::OutputFile(const std::string &path) : shown_(shown_output(path)) {
    note(outputs, inputs, path);
    struct stat existing {};
    const bool exists = path != "-" && ::stat(path.c_str(), &existing) == 0;
    if (path == "-") {
        descriptor_ = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    } else if (exists && !S_ISREG(existing.st_mode)) {
        descriptor_ = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    } else {
        place_ = whole_path(path);
        // What may not be written may not be replaced either.
        const bool may_write = !exists || ::access(path.c_str(), W_OK) == 0;
        if (!may_write || ::access(place_.parent_path().c_str(), W_OK | X_OK) != 0) fail(shown_);
        return;
    }
    if (descriptor_ < 0) fail(shown_);
}

OutputFile::~OutputFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
    if (!beside_.empty()) ::unlink(beside_.c_str());
}

void OutputFile::open() {
    for (int i = 0; descriptor_ < 0; ++i) {
        const auto name = ".tarn-" + std::to_string(::getpid()) + "-" + std::to_string(i);
        const std::filesystem::path beside = place_.parent_path() / name;
        descriptor_ = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor_ >= 0) beside_ = beside;
        if (descriptor_ < 0 && errno != EEXIST) fail(shown_);
    }
    struct stat existing {};
    if (::stat(place_.c_str(), &existing) != 0) return;
    // As far as the file system and the rights of the user allow.
    [[maybe_unused]] const int owner = ::fchown(descriptor_, existing.st_uid, existing.st_gid);
    [[maybe_unused]] const int mode = ::fchmod(descriptor_, existing.st_mode & 07777);
}

void OutputFile::append(std::string_view piece) {
    if (descriptor_ < 0) open();
    std::size_t done = 0;
    while (done < piece.size()) {
        const ssize_t written = ::write(descriptor_, piece.data() + done, piece.size() - done);
        if (written >= 0) {
            done += static_cast<std::size_t>(written);
        } else if (errno != EINTR) {
            const auto number = static_cast<std::uint32_t>(errno);
            // Nothing can be removed from pipes and devices, and standard output may contain more than this.
            [[maybe_unused]] const int kept = place_.empty() ? 0 : ::ftruncate(descriptor_, static_cast<off_t>(size_));
            throw Failure(Exit::environment,
                          shown_ + ": at byte " + std::to_string(size_ + done) + ": " + error_text(number));
        }
    }
    size_ += piece.size();
}

const std::filesystem::path &OutputFile::beside() {
    if (place_.empty()) throw Failure(Exit::input, shown_ + ": not a regular file");
    if (descriptor_ < 0) open();
    return beside_;
}

void OutputFile::publish() {
    if (beside_.empty()) return;
    if (::rename(beside_.c_str(), place_.c_str()) != 0) fail(shown_);
    beside_.clear();
}

void OutputFile::finish() {
    if (descriptor_ < 0) open();
    if (::close(std::exchange(descriptor_, -1)) != 0) fail(shown_);
    publish();
}

void flush_output() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        throw Failure(Exit::environment, std::string("standard output: ") + std::strerror(errno));
    }
}

void reserve_standard_streams() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) >= 0) continue;
        // Using it stays an error. The lowest free descriptor is this one.
        [[maybe_unused]] const int unusable = ::open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

}  // namespace tarn::tool
