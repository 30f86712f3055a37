#include <algorithm>

#include "api.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

std::string_view kind_name(const Member &m) {
    if (m.role == Role::count) return "count";
    if (m.role == Role::length) return "length";
    return facts(m.kind).name;
}

std::string exported_names() {
    std::vector<std::string> lines;
    for (const Export &e : all_functions()) lines.push_back((e.row->weak ? "W " : "T ") + e.name);
    for (const Datum &d : all_data()) lines.push_back("D " + d.name);
    std::sort(lines.begin(), lines.end(), [](const auto &a, const auto &b) { return a.substr(2) < b.substr(2); });
    std::string text;
    for (const std::string &line : lines) text += line + "\n";
    return text;
}

std::string layout_list() {
    std::string text;
    for (const Record *r : records) {
        const Layout l = lay_out(*r);
        text += std::string(r->name) + " used " + std::to_string(l.used_length) + " base " +
                std::to_string(l.base_size) + " slop " + std::to_string(l.alloc_slop) + " state " +
                std::to_string(l.state_width) + "\n";
        for (std::size_t i = 0; i < r->members.size(); ++i) {
            const Member &m = r->members[i];
            const MemberLayout &p = l.members[i];
            text += "  " + std::string(m.name) + " " + std::string(kind_name(m)) + " offset " +
                    std::to_string(p.offset) + " size " + std::to_string(p.size);
            if (is_tracked(m)) text += " slot " + std::to_string(p.slot);
            if (has_area(m)) text += " area " + std::to_string(p.inner);
            if (m.kind == Kind::array) text += " vector " + std::to_string(p.inner);
            text += "\n";
        }
    }
    return text;
}

}  // namespace

Files write_lists() { return {{"exports.txt", exported_names()}, {"layout.txt", layout_list()}}; }

Files write_linker_script() {
    std::string text = "{\n  global:\n";
    for (const Export &e : all_functions()) text += "    " + e.name + ";\n";
    for (const Datum &d : all_data()) text += "    " + d.name + ";\n";
    return {{"exports.map", text + "  local:\n    *;\n};\n"}};
}

}  // namespace tarn::generate
