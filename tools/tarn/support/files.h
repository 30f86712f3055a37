// Whole files, standard input and standard output.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarn::tool {

// "-" is standard input. Throws a Failure with the path and the reason.
std::string read_file(const std::string &path);

// "-" is standard output.
void write_file(const std::string &path, std::string_view bytes);

// The name of a path in messages.
std::string shown_path(const std::string &path);

// Throws a Failure if anything that was printed could not be written.
void flush_output();

// A new file that grows piece by piece. A piece that does not fit is removed again, and the Failure names the offset:
// the file contains whole pieces only, even if the disk is full.
class GrowingFile {
public:
    explicit GrowingFile(std::string path);
    GrowingFile(const GrowingFile &) = delete;
    GrowingFile &operator=(const GrowingFile &) = delete;
    ~GrowingFile();

    void append(std::string_view piece);
    // Reports errors that a file system reports only when a file is closed.
    void finish();

private:
    std::string path_;
    int descriptor_;
    std::uint64_t size_ = 0;
};

}  // namespace tarn::tool
