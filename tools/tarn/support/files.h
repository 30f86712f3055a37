// Files, standard input and standard output.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "tools/tarn/support/byte_stream.h"

namespace tarn::tool {

// "-" is standard input or output. Throws a Failure that names the path and the reason; also if a file is read and
// written, or written twice.
ByteStream open_input(const std::string &path);
std::string read_file(const std::string &path);
void write_file(const std::string &path, std::string_view bytes);

// Makes open_input() return these bytes for the name, which need not be that of a file. `read` may be called by several
// threads at once.
void offer_input(const std::string &name, std::function<std::string()> read);

// The path as messages print it: "standard input" or "standard output" for "-".
std::string shown_path(const std::string &path);
std::string shown_output(const std::string &path);

// Throws a Failure if standard output could not be written.
void flush_output();

// A file that replaces the one of its name only when it is finished or published; until then it has another name in the
// same folder, and the destructor removes it. Or a device, a pipe or standard output, which get each piece at once.
class OutputFile {
public:
    explicit OutputFile(const std::string &path);
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;
    ~OutputFile();

    // If writing fails, the part that was written is removed and the Failure names the offset, so that the file
    // contains whole pieces only, even if the disk is full.
    void append(std::string_view piece);
    bool is_empty() const { return size_ == 0; }
    // The file until it is published, for a writer that opens it by name. Throws a Failure for devices, pipes and
    // standard output.
    const std::filesystem::path &beside();
    // Gives the file its name already while it grows.
    void publish();
    // Closes and publishes the file; some errors are reported only then.
    void finish();

private:
    void open();

    std::string shown_;
    std::filesystem::path place_;   // empty for devices, pipes and standard output
    std::filesystem::path beside_;  // empty if it does not exist (any more)
    int descriptor_ = -1;
    std::uint64_t size_ = 0;
};

// Standard streams that are closed would become the first files that the process opens.
void reserve_standard_streams();

}  // namespace tarn::tool
