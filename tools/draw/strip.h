// A row of boxes, one for each group of bytes.
#pragma once

#include <string>
#include <vector>

#include "schema/layout.h"
#include "svg.h"

namespace tarn::draw {

struct Box {
    std::string label, below;
    const char *kind;
};

inline double width_of(const Box &box) {
    const auto length = static_cast<double>(std::max(box.label.size(), box.below.size() * 9 / 10));
    return std::max(34.0, 7.4 * length + 14);
}

// Returns the height of the strip. A strip that is too wide continues in the next line.
inline double draw_strip(Svg &svg, double x, double y, double limit, const std::vector<Box> &boxes) {
    constexpr double height = 26, line = 56;
    double at = x, top = y;
    for (const Box &box : boxes) {
        const double width = width_of(box);
        if (at + width > limit && at > x) {
            at = x;
            top += line;
        }
        svg.rectangle(at, top, width, height, box.kind);
        svg.text(at + width / 2, top + 17, box.label, "middle");
        svg.text(at + width / 2, top + 40, box.below, "soft small middle");
        at += width;
    }
    return top - y + line;
}

inline std::string bytes(std::size_t count) { return std::to_string(count); }

}  // namespace tarn::draw
