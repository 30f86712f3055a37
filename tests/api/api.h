// Support for the tests of the API: commands, files, temporary directories.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace api {

struct Output {
    int code = 0;
    std::string text;
};

inline Output run(const std::string &command) {
    Output output;
    std::FILE *pipe = popen((command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) throw std::runtime_error("cannot run " + command);
    char buffer[4096];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) output.text.append(buffer, n);
    output.code = pclose(pipe);
    return output;
}

inline std::vector<std::string> lines_of(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

inline std::string content_of(const std::filesystem::path &path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + path.string());
    std::string content(std::filesystem::file_size(path), '\0');
    in.read(content.data(), static_cast<std::streamsize>(content.size()));
    return content;
}

// A temporary directory, removed with its content.
class Directory {
public:
    Directory() {
        std::string name = (std::filesystem::temp_directory_path() / "api-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot make " + name);
        path_ = name;
    }
    ~Directory() { std::filesystem::remove_all(path_); }
    Directory(const Directory &) = delete;
    Directory &operator=(const Directory &) = delete;
    const std::filesystem::path &path() const { return path_; }

private:
    std::filesystem::path path_;
};

// Paths of all files below the directory, relative to it.
inline std::set<std::string> files_below(const std::filesystem::path &directory) {
    std::set<std::string> names;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(directory)) {
        if (entry.is_regular_file()) names.insert(std::filesystem::relative(entry.path(), directory).string());
    }
    return names;
}

inline std::string quoted(const std::filesystem::path &path) { return "'" + path.string() + "'"; }

// Runs the generator; in_front precedes the command, to set variables.
inline Output generate(const std::string &kind, const std::filesystem::path &into, const std::string &in_front = "",
                       const std::string &arguments = "") {
    return run(in_front + " " + quoted(TARN_GENERATE) + " " + kind + " " + quoted(into) + " " + arguments);
}

}  // namespace api
