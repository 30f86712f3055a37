// Prints all files that follow from the schema and the table of operations: generate KIND DIRECTORY [ARGUMENT...]. The
// arguments of exports are the sources of the library, those of link NAME=VALUE for the build stamp of the manifest.
//
// tools/generate may include schema/, the drawing code of tools/draw, and mirk_platform.h for the constants that the
// dissector needs. It does not include the library or the headers that it prints: it forms names and prototypes, and
// has no knowledge of how an operation works. Exported names are formed in api.cpp alone, and texts about operations
// are written in operations.cpp alone.
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <string>

#include "writers.h"

namespace {

using namespace tarn::generate;

// Reproducible builds: the time is SOURCE_DATE_EPOCH or a neutral constant.
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
        write_files(argv[2], write_headers());
    } else if (kind == "exports") {
        write_files(argv[2], write_exports({argv + 3, argv + argc}));
    } else if (kind == "sample") {
        write_files(argv[2], write_exports({}, true));
    } else if (kind == "lists") {
        write_files(argv[2], write_lists());
    } else if (kind == "link") {
        write_files(argv[2], write_linker_script());
        write_files(argv[2], write_manifest(stamp_from(argv + 3, argv + argc)));
    } else if (kind == "operations") {
        write_files(argv[2], write_operations());
    } else if (kind == "pictures") {
        write_files(argv[2], write_pictures());
    } else if (kind == "dissector") {
        write_files(argv[2], write_dissector());
    } else if (kind == "python") {
        write_files(argv[2], write_python());
    } else if (kind == "manuals") {
        write_files(argv[2], write_manuals());
    } else {
        std::cerr << "usage: generate headers|exports|sample|lists|link|operations|pictures|dissector|python|manuals "
                     "DIRECTORY [ARGUMENT...]\n";
        return 2;
    }
    return 0;
}
