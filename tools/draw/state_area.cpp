#include <array>

#include "pictures.h"
#include "schema/catalogue.h"
#include "strip.h"

namespace tarn::draw {

namespace {

using namespace schema;

// Its state area has everything: single bytes, a nested area, and a vector.
constexpr const Record &shown = lumo_tarn_dp_mp_prefix_complex_data;

constexpr double left = 12, limit = 1000, cell = 38;
constexpr std::array<const char *, 3> kinds{"value", "head", "block"};

std::vector<Box> instance_boxes(const Layout &layout) {
    std::vector<Box> boxes{{"header", "0 to " + bytes(header_size - 1), "framing"}};
    std::uint32_t at = header_size;
    const auto gap = [&](std::uint32_t to) {
        if (to > at) boxes.push_back({"-", bytes(at) + " to " + bytes(to - 1), "box"});
    };
    for (std::size_t i = 0; i < shown.members.size(); ++i) {
        const MemberLayout &location = layout.members[i];
        gap(location.offset);
        at = location.offset + location.size;
        boxes.push_back({std::string(shown.members[i].name),
                         location.size == 1 ? bytes(location.offset) : bytes(location.offset) + " to " + bytes(at - 1),
                         is_tracked(shown.members[i]) ? kinds[i % kinds.size()] : "framing"});
    }
    boxes.push_back({"slop", bytes(at) + " to " + bytes(layout.base_size - 1), "box"});
    boxes.push_back(
        {"state area", bytes(layout.base_size) + " to " + bytes(layout.base_size + layout.state_width - 1), "state"});
    return boxes;
}

// One cell for each byte, with a label below the first cell of each group.
void draw_area(Svg &svg, double y, const Layout &layout) {
    for (std::uint32_t slot = 0; slot < layout.state_width; ++slot) {
        svg.rectangle(left + cell * slot, y, cell, 26, "box");
        svg.text(left + cell * (slot + 0.5), y + 17, bytes(slot), "soft small middle");
    }
    const auto run = [&](std::uint32_t slot, std::uint32_t width, const char *kind, const std::string &words,
                         int line) {
        svg.rectangle(left + cell * slot, y, cell * width, 26, kind);
        for (std::uint32_t i = slot; i < slot + width; ++i) {
            svg.text(left + cell * (i + 0.5), y + 17, bytes(i), "soft small middle");
        }
        const double x = left + cell * slot + 4, below = y + 44 + 18 * line;
        svg.line(x, y + 26, x, below - 4, "lens");
        svg.text(x + 5, below, words);
    };
    for (std::size_t i = 0; i < shown.members.size(); ++i) {
        const Member &m = shown.members[i];
        const MemberLayout &location = layout.members[i];
        if (!is_tracked(m)) continue;
        const char *kind = kinds[i % kinds.size()];
        const std::string name(m.name);
        run(location.slot, 1, kind, "state of " + name, 1);
        if (m.kind == Kind::address)
            run(location.inner, facts(m.kind).own_states, kind, "state of the parts of " + name, 0);
        if (m.kind == Kind::record)
            run(location.inner, lay_out(*m.record).state_width, kind, "state of the members of " + name, 0);
        if (m.kind == Kind::array)
            run(location.inner, pointer_size, kind, "pointer to a vector with one byte per element", 0);
    }
}

}  // namespace

std::string state_area() {
    Svg svg;
    const Layout layout = lay_out(shown);
    double y = 30;
    svg.text(left, y, "An instance of " + std::string(shown.name) + " in memory", "title");
    svg.text(left, y + 18, "Offsets from its start. There is a state area only on a tracking handle.", "soft");
    y += 30 + draw_strip(svg, left, y + 30, limit, instance_boxes(layout)) + 22;
    svg.text(left, y, "Its state area, " + bytes(layout.state_width) + " bytes", "title");
    svg.text(left, y + 18, "One byte for each member except counts and lengths; 0 means not written.", "soft");
    draw_area(svg, y + 30, layout);
    y += 30 + 84 + 22;
    for (const Member &m : shown.members) {
        if (m.kind != Kind::array) continue;
        const Layout inner = lay_out(*m.record);
        const std::string base = bytes(inner.base_size), width = bytes(inner.state_width), name(m.name);
        svg.text(left, y, "The block of " + name, "title");
        svg.text(left, y + 18, "All elements, then their state areas in the same order.", "soft");
        draw_strip(svg, left, y + 30, limit,
                   {{name + "[0]", base, "block"},
                    {"...", "", "block"},
                    {name + "[n-1]", base, "block"},
                    {"state area of [0]", width, "state"},
                    {"...", "", "state"},
                    {"state area of [n-1]", width, "state"}});
    }
    return svg.alone("an instance in memory and its state area");
}

}  // namespace tarn::draw
