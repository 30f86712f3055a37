// Prints everything that follows from the schema: generate KIND DIRECTORY [ARGUMENT...]. The arguments of exports are
// the sources of the library, those of link NAME=VALUE for the build stamp of the manifest. A file whose content is
// unchanged is left alone, so that nothing is rebuilt for it.
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "writers.h"

namespace {

using namespace tarn::generate;

bool is_same(const std::filesystem::path &path, const std::string &content) {
    std::ifstream in(path, std::ios::binary);
    return in && std::string(std::istreambuf_iterator<char>(in), {}) == content;
}

void put(const std::filesystem::path &directory, const Files &files) {
    for (const auto &[name, content] : files) {
        const std::filesystem::path path = directory / name;
        if (is_same(path, content)) continue;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
    }
}

// Builds can be repeated byte for byte: the time is the one given, or none.
std::string time_of_build(const BuildStamp &neutral) {
    const char *epoch = std::getenv("SOURCE_DATE_EPOCH");
    if (epoch == nullptr) return neutral.at;
    const std::time_t seconds = std::strtoll(epoch, nullptr, 10);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    return text;
}

BuildStamp stamp_from(char **begin, char **end) {
    BuildStamp stamp;
    stamp.at = time_of_build(stamp);
    for (char **argument = begin; argument != end; ++argument) {
        const std::string text(*argument);
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos || equals + 1 == text.size()) continue;
        const std::string name = text.substr(0, equals), value = text.substr(equals + 1);
        if (name == "built_by") stamp.built_by = value;
        if (name == "on_host") stamp.on_host = value;
        if (name == "pid") stamp.pid = value;
        if (name == "at") stamp.at = value;
        if (name == "comment") stamp.comment = value;
    }
    return stamp;
}

}  // namespace

int main(int argc, char **argv) {
    const std::string kind = argc > 2 ? argv[1] : "";
    if (kind == "headers") {
        put(argv[2], write_headers());
    } else if (kind == "exports") {
        put(argv[2], write_exports({argv + 3, argv + argc}));
    } else if (kind == "sample") {
        put(argv[2], write_exports({}, true));
    } else if (kind == "lists") {
        put(argv[2], write_lists());
    } else if (kind == "link") {
        put(argv[2], write_linker_script());
        put(argv[2], write_manifest(stamp_from(argv + 3, argv + argc)));
    } else if (kind == "floor") {
        put(argv[2], write_floor());
    } else if (kind == "plain") {
        put(argv[2], write_plain());
    } else if (kind == "rivals") {
        put(argv[2], write_rivals());
    } else if (kind == "operations") {
        put(argv[2], write_operations());
    } else if (kind == "pictures") {
        put(argv[2], write_pictures());
    } else if (kind == "dissector") {
        put(argv[2], write_dissector());
    } else if (kind == "python") {
        put(argv[2], write_python());
    } else if (kind == "manuals") {
        put(argv[2], write_manuals());
    } else {
        std::cerr
            << "usage: generate headers|exports|sample|lists|link|operations|floor|plain|rivals|pictures|dissector|"
               "python|manuals DIRECTORY [ARGUMENT...]\n";
        return 2;
    }
    return 0;
}
