#include "schema/frame.h"
#include "pictures.h"
#include "schema/catalogue.h"
#include "strip.h"

namespace tarn::draw {

namespace {

using namespace schema;

// Small, but with a count, an array and a nested record.
constexpr const Message &shown = lumo_tarn_dp_debug_setting_msg;

constexpr double left = 12, limit = 1000;

std::string hexadecimal(std::uint8_t byte) { return {"0123456789abcdef"[byte >> 4], "0123456789abcdef"[byte & 15]}; }

std::string size_of_member(const Member &m) {
    switch (category(m.kind)) {
        case Category::integer:
        case Category::boolean:
        case Category::enumeration:
            break;
        case Category::address:
        case Category::record:
            return "a record";
        case Category::string:
            return "its length";
        case Category::array:
            return "its elements";
    }
    return bytes(facts(m.kind).wire);
}

std::vector<Box> record_boxes(const Record &record) {
    std::vector<Box> boxes;
    for (const Part &part : record_frame) {
        if (part.flag == 0 && part.size != varies) {
            boxes.push_back({std::string(part.name), bytes(part.size), "framing"});
        }
    }
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
        boxes.push_back({name, size_of_member(m), is_tracked(m) ? "value" : "framing"});
        if (is_tracked(m)) boxes.push_back({"s", "1", "state"});
    }
    return boxes;
}

std::vector<Box> message_boxes() {
    std::vector<Box> boxes;
    for (const Part &part : message_frame) {
        Box box{std::string(part.name), bytes(part.size), "head"};
        if (part.content == Content::constant && part.size == 1) box.label += " " + hexadecimal(part.value);
        if (part.content == Content::identity) box.label += " " + std::string(shown.luid.text.data(), 8) + "...";
        if (part.content == Content::record) {
            box = {box.label + " " + std::string(shown.payload.name), std::string(part.meaning), "value"};
        }
        boxes.push_back(box);
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
          "Sizes are in bytes, numbers are big-endian. total_length is the size of the whole frame.", message_boxes());
    strip("Its payload, the record " + std::string(shown.payload.name),
          "jump is the distance from its own first byte to the end of the record, so that readers can skip unknown "
          "members.",
          record_boxes(shown.payload));
    if (const Record *element = element_of(shown.payload)) {
        strip("An element, the record " + std::string(element->name),
              "A state byte s follows each member if bit 8 of flag is set. Bit 32 puts 9 bytes of RA data before jump.",
              record_boxes(*element));
    }
    return svg.alone("a frame, its payload, and an element of its array");
}

}  // namespace tarn::draw
