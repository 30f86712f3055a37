// One function for each printed product. The products contain no logic of the library.
#pragma once

#include <string>
#include <vector>

#include "tools/generate/files.h"

namespace tarn::generate {

Files write_headers();         // include/: the public headers, checked in
std::string interface_page();  // one of these headers: the C++ interface
std::string parts_page();      // and the parts of frames
// Build tree: export stubs, one file for each of the given sources of the library (named without suffix).
Files write_exports(const std::vector<std::string> &sources, bool sample_only = false);
Files write_lists();          // goldens: exported names, layout of every record
Files write_linker_script();  // build tree: the version script

Files write_operations();  // build tree: every operation as a table, for tools and tests
Files write_pictures();    // docs/pictures/: the pictures of the tour, checked in
Files write_dissector();   // build tree: the dissector for network captures
Files write_python();      // build tree: tables and type stubs for the Python package

Files write_manuals();  // build tree: manual pages of the library and of the frame format

struct BuildStamp {
    std::string built_by = "packager", on_host = "unnamed", pid = "0", at = "1970-01-01T00:00:00Z", comment = "none";
};
Files write_manifest(const BuildStamp &stamp);  // build tree: content of the .orrin section

}  // namespace tarn::generate
