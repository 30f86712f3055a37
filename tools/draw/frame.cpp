#include "pictures.h"
#include "schema/catalogue.h"
#include "strip.h"

namespace tarn::draw {

namespace {

using namespace schema;

// Small, and with everything that a frame can nest: a count, an array, and a record in it.
constexpr const Message &shown = lumo_tarn_dp_debug_setting_msg;

constexpr double left = 12, limit = 1000;

std::string size_of(const Member &m) {
    switch (m.kind) {
        case Kind::boolean:
            return "2";
        case Kind::enumeration:
            return "5";
        case Kind::address:
        case Kind::record:
            return "a record";
        case Kind::string:
            return "its length";
        case Kind::array:
            return "its elements";
        default:
            return bytes(storage_size(m));
    }
}

std::vector<Box> record_boxes(const Record &record) {
    std::vector<Box> boxes{{"variant", "1", "framing"}, {"flag", "1", "framing"}, {"jump", "4", "framing"}};
    for (const Member &m : record.members) {
        const std::string name(m.name);
        if (m.kind == Kind::array) {
            boxes.push_back({name + "[0]", "a record", "value"});
            boxes.push_back({"...", "", "value"});
            boxes.push_back({name + "[n-1]", "a record", "value"});
            boxes.push_back({"state of " + name, "1", "state"});
            boxes.push_back({"one for each", "n", "state"});
            continue;
        }
        boxes.push_back({name, size_of(m), is_tracked(m) ? "value" : "framing"});
        if (is_tracked(m)) boxes.push_back({"s", "1", "state"});
    }
    return boxes;
}

const Record *element_of(const Record &record) {
    for (const Member &m : record.members) {
        if (m.kind == Kind::array) return m.record;
    }
    return nullptr;
}

}  // namespace

std::string frame() {
    Svg svg;
    double y = 30;
    const auto strip = [&](const std::string &title, const std::string &more, const std::vector<Box> &boxes) {
        svg.text(left, y, title, "title");
        svg.text(left, y + 18, more, "soft");
        y += 30 + draw_strip(svg, left, y + 30, limit, boxes) + 22;
    };
    strip("A frame of " + std::string(shown.name),
          "Sizes are in bytes, numbers are big-endian. total_length counts all of it.",
          {{"marker bc", "1", "head"},
           {"fill", "6", "head"},
           {"sttr", "1", "head"},
           {"stamp", "4", "head"},
           {"total_length", "4", "head"},
           {"zero", "11", "head"},
           {"luid " + std::string(shown.luid.text.data()).substr(0, 8) + "...", "16", "head"},
           {"payload " + std::string(shown.payload.name), "a record", "value"}});
    strip("Its payload, the record " + std::string(shown.payload.name),
          "jump counts from its own first byte to the end of the record: a reader steps over what it does not know.",
          record_boxes(shown.payload));
    if (const Record *element = element_of(shown.payload)) {
        strip("An element, the record " + std::string(element->name),
              "A state byte s follows each member if bit 8 of flag is set. Bit 32 puts 9 bytes of RA data before jump.",
              record_boxes(*element));
    }
    return svg.alone("a frame, its payload, and an element of its array");
}

}  // namespace tarn::draw
