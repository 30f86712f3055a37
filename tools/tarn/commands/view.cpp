// tarn view: frames, or the difference of two files of frames, as a page for a browser.
#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>

#include "tools/tarn/commands/command_line.h"
#include "tools/tarn/commands/commands.h"
#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/frame_writer.h"
#include "tools/tarn/formats/schema.h"
#include "tools/tarn/pages/page.h"
#include "tools/tarn/pages/shapes.h"
#include "tools/tarn/support/files.h"
#include "view_body.h"
#include "view_script.h"

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;

struct ViewOptions {
    std::string a, b, output = "-";
    bool tracked = false, lenient = false;
};

std::string frames_of(const std::string &path, const ViewOptions &options) {
    std::string content = read_file(path);
    const std::string origin = shown_path(path);
    if (form_of(content, origin) == Form::frames) return content;
    const Handles handles(options.tracked ? Tracking::on : Tracking::as_given);
    return encoded(handles, items_of(handles, content, origin, options.lenient), origin);
}

// Four letters for three bytes, as browsers read them.
std::string base64_of(FrameBytes bytes) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - at);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < 3; ++i) bits = bits << 8 | (i < count ? bytes[at + i] : 0);
        for (std::size_t i = 0; i < 4; ++i) text += i <= count ? letters[bits >> (18 - 6 * i) & 63] : '=';
    }
    return text;
}

// What both files of a difference share: forms of pieces, names of identities, and the first line of each sort of
// frame.
struct Shared {
    Shapes shapes;
    ordered_json headings = ordered_json::array();
    ordered_json luids = ordered_json::object();
};

// A request has no name and no record here; what it says stands in its bytes.
ordered_json heading_of(FrameBytes frame) {
    const std::optional<Identity> identity =
        frame.size() < MIRK_PLATFORM_FRAME_SIZE ? std::nullopt : identify(frame.data() + MIRK_PLATFORM_HEADER_SIZE);
    if (!identity) return {"", ""};
    if (!identity->is_control()) return {identity->operations->name, identity->operations->message->payload.name};
    return {std::string(identity->bundle->bundle->name) + " " + std::string(word(identity->control)), ""};
}

std::size_t place_in(ordered_json &list, const ordered_json &what) {
    const auto at = std::find(list.begin(), list.end(), what);
    const auto place = static_cast<std::size_t>(at - list.begin());
    if (at == list.end()) list.push_back(what);
    return place;
}

void note_luid(const Dissection &dissection, ordered_json &luids) {
    for (const Piece &p : dissection.pieces) {
        const std::size_t space = p.kind == "luid" ? p.value.find(' ') : std::string::npos;
        if (space != std::string::npos) luids[p.value.substr(0, space)] = p.value.substr(space + 1);
    }
}

// One file. What is behind a break is shown as bytes alone; the sentence about it is kept in `broken`.
ordered_json json_of_side(const std::string &path, const ViewOptions &options, Shared &shared, std::string &broken) {
    const std::string content = frames_of(path, options);
    const FrameBytes all = bytes_of(content);
    ordered_json side{{"name", shown_path(path)}, {"bytes", base64_of(all)}, {"frames", ordered_json::array()}};
    for (std::size_t offset = 0; offset < all.size();) {
        const Dissection dissection = dissect_frame(all.subspan(offset), offset);
        note_luid(dissection, shared.luids);
        side["frames"].push_back(shared.shapes.add(dissection.pieces));
        side["frames"].push_back(place_in(shared.headings, heading_of(all.subspan(offset))));
        offset += dissection.size;
        if (!dissection.broken) continue;
        side["broken"] = sentence_of(*dissection.broken);
        broken = shown_path(path) + ": broken at " + sentence_of(*dissection.broken);
        break;
    }
    return side;
}

void run_view(const ViewOptions &options) {
    std::string broken;
    Shared shared;
    ordered_json data{{"sides", ordered_json::array()}};
    data["sides"].push_back(json_of_side(options.a, options, shared, broken));
    if (!options.b.empty()) data["sides"].push_back(json_of_side(options.b, options, shared, broken));
    data["shapes"] = shared.shapes.json();
    data["headings"] = shared.headings;
    data["luids"] = shared.luids;
    const ordered_json schema = schema_json();
    for (const auto &e : schema.at("enumerations")) {
        data["enumerations"][e.at("name").get<std::string>()] = e.at("enumerators");
    }
    for (const auto &record : schema.at("records")) {
        ordered_json &members = data["records"][record.at("name").get<std::string>()];
        for (const auto &m : record.at("members"))
            members[m.at("name").get<std::string>()] = {m.at("kind"), m.at("meaning")};
    }
    const std::string title =
        shown_path(options.a) + (options.b.empty() ? "" : " and " + shown_path(options.b)) + " - tarn";
    write_file(options.output, page_text({title, view_body, view_script, data}));
    if (!broken.empty()) throw Failure(Exit::input, broken);
}

}  // namespace

void add_view(CLI::App &app, Context &) {
    auto options = std::make_shared<ViewOptions>();
    CLI::App *command = app.add_subcommand("view", "frames, or two files of them, as a page for a browser");
    command->add_option("a", options->a, "frames, XML or JSON; - is standard input")
        ->type_name(words::file)
        ->required();
    command->add_option("b", options->b, "a second file; the page then shows the difference")->type_name(words::file);
    command->add_option("-o,--output", options->output, "where the page goes; - is standard output")
        ->type_name(words::file)
        ->capture_default_str();
    command->add_flag("--tracked", options->tracked, "show XML and JSON as frames with per-field state");
    command->add_flag("--lenient", options->lenient, "pass over what the schema does not know");
    command->footer(
        "The page is one file and needs no network. Pointing at a member marks its bytes, pointing at a byte marks "
        "its\n"
        "member; a click holds the mark, and the address of the page then leads to it. Of a broken frame it shows "
        "what\n"
        "is good, and the exit code is 2.\n\n"
        "Examples:\n"
        "  tarn show cl-debug --socket /tmp/tarn.sock --save answer.bin && tarn view answer.bin -o answer.html\n"
        "  tarn view before.bin after.bin -o difference.html\n"
        "  tarn view examples/dp_tt_cfg.xml -o tables.html");
    command->callback([options] { run_view(*options); });
}

}  // namespace tarn::tool
