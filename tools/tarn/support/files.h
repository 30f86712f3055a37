// Whole files, standard input and standard output.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarn::tool {

// "-" is standard input. Throws a Failure that names the path and the reason.
std::string read_file(const std::string &path);

// "-" is standard output.
void write_file(const std::string &path, std::string_view bytes);

// The path as messages print it: "standard input" or "standard output" for "-".
std::string shown_path(const std::string &path);
std::string shown_output(const std::string &path);

// Throws a Failure if standard output could not be written.
void flush_output();

// A new file that grows piece by piece, or standard output. If writing a piece fails, the part already written is
// removed and the Failure names the offset, so that the file contains whole pieces only, even if the disk is full.
class GrowingFile {
public:
    explicit GrowingFile(std::string path);
    GrowingFile(const GrowingFile &) = delete;
    GrowingFile &operator=(const GrowingFile &) = delete;
    ~GrowingFile();

    void append(std::string_view piece);
    // Closes the file; some errors are reported only then.
    void finish();

private:
    std::string path_;
    int descriptor_;
    std::uint64_t size_ = 0;
};

}  // namespace tarn::tool
