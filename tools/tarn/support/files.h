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

// What a path is called in messages for people.
std::string shown_path(const std::string &path);

// Makes sure that everything printed has arrived.
void flush_output();

// A new file that grows piece by piece. A piece that does not fit is taken back, and the Failure tells where: what
// stands in the file is whole, whatever becomes of the disk.
class GrowingFile {
public:
    explicit GrowingFile(std::string path);
    GrowingFile(const GrowingFile &) = delete;
    GrowingFile &operator=(const GrowingFile &) = delete;
    ~GrowingFile();

    void append(std::string_view piece);
    // What a file system tells only at the end.
    void finish();

private:
    std::string path_;
    int descriptor_;
    std::uint64_t size_ = 0;
};

}  // namespace tarn::tool
