#include "tools/tarn/pages/view_page.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/schema.h"
#include "tools/tarn/pages/page.h"
#include "tools/tarn/pages/shapes.h"
#include "tools/tarn/support/base64.h"
#include "view_body.h"
#include "view_script.h"

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;

// Data that both files share: shapes and headings of frames.
struct Shared {
    Shapes shapes;
    ordered_json headings = ordered_json::array();
};

// The name of a frame, and its record if it has one.
ordered_json heading_of(FrameBytes frame) {
    if (frame.size() < MIRK_PLATFORM_FRAME_SIZE) return {"cut frame", ""};
    const std::uint8_t *const luid = frame.data() + MIRK_PLATFORM_HEADER_SIZE;
    if (std::equal(std::begin(message_ui_req_msg_luid), std::end(message_ui_req_msg_luid), luid))
        return {"ui_req_msg", ""};
    const std::optional<Identity> identity = identify(luid);
    if (!identity) return {"unknown message", ""};
    if (!identity->is_control()) return {identity->operations->name, identity->operations->message->payload.name};
    return {std::string(identity->bundle->bundle->name) + " " + std::string(word(identity->control)), ""};
}

std::size_t index_in(ordered_json &list, const ordered_json &what) {
    const auto at = std::find(list.begin(), list.end(), what);
    const auto index = static_cast<std::size_t>(at - list.begin());
    if (at == list.end()) list.push_back(what);
    return index;
}

// Bytes after an error appear in the dump only.
ordered_json json_of_file(ViewedFile &file, Shared &shared) {
    const FrameBytes all = bytes_of(file.frames);
    ordered_json json{{"name", file.name}, {"bytes", base64_of(all)}, {"frames", ordered_json::array()}};
    for (std::size_t offset = 0; offset < all.size();) {
        shared.shapes.begin();
        const Walked walked = walk_frame(all.subspan(offset), offset, shared.shapes);
        json["frames"].push_back(shared.shapes.end());
        json["frames"].push_back(index_in(shared.headings, heading_of(all.subspan(offset))));
        offset += walked.size;
        if (!walked.broken) continue;
        file.broken = sentence_of(*walked.broken);
        json["broken"] = {{"at", walked.broken->offset},
                          {"path", walked.broken->path},
                          {"reason", walked.broken->reason},
                          {"text", file.broken}};
        break;
    }
    return json;
}

}  // namespace

std::string view_page(std::vector<ViewedFile> &files) {
    Shared shared;
    ordered_json data{{"sides", ordered_json::array()}};
    std::string title;
    for (ViewedFile &file : files) {
        data["sides"].push_back(json_of_file(file, shared));
        title += (title.empty() ? "" : " and ") + file.name;
    }
    data["shapes"] = shared.shapes.json();
    data["headings"] = shared.headings;
    data["luids"] = shared.shapes.luids();
    const ordered_json schema = schema_json();
    for (const auto &e : schema.at("enumerations")) {
        data["enumerations"][e.at("name").get<std::string>()] = e.at("enumerators");
    }
    for (const auto &record : schema.at("records")) {
        ordered_json &members = data["records"][record.at("name").get<std::string>()];
        for (const auto &m : record.at("members"))
            members[m.at("name").get<std::string>()] = {m.at("kind"), m.at("meaning")};
        if (record.contains("key"))
            data["elements"][record.at("name").get<std::string>()] = {record.at("element"), record.at("key")};
    }
    return page_text({title + " - tarn", view_body, view_script, view_script_sha256, data});
}

}  // namespace tarn::tool
