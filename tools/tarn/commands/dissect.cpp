// tarn dissect: prints an annotated dump of frames.
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/hex.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

namespace {

struct DissectOptions {
    std::string file = "-";
    From from = From::detect;
    bool json = false;
};

constexpr std::size_t bytes_in_line = 8;

std::string hex_column(FrameBytes bytes) {
    std::string text = hex_text(bytes, " ");
    text.resize(bytes_in_line * 3, ' ');
    return text;
}

void print_line(std::size_t offset, FrameBytes bytes, const std::string &words, std::string &out) {
    char front[24];
    std::snprintf(front, sizeof front, "%8zu  ", offset);
    out += colored(front, Color::gray) + hex_column(bytes) + words + "\n";
}

void print_piece(const Piece &piece, FrameBytes all, std::string &out) {
    const FrameBytes bytes = all.subspan(piece.offset, piece.size);
    std::string words = " " + std::string(2 * piece.depth, ' ') + piece.path;
    if (words.size() < 56) words.resize(56, ' ');
    words += " " + colored(piece.kind, Color::blue);
    if (!piece.value.empty()) words += " " + piece.value;
    print_line(piece.offset, bytes.first(std::min(bytes.size(), bytes_in_line)), words, out);
    for (std::size_t at = bytes_in_line; at < bytes.size(); at += bytes_in_line) {
        print_line(piece.offset + at, bytes.subspan(at, std::min(bytes.size() - at, bytes_in_line)), "", out);
    }
}

nlohmann::ordered_json json_of_dissection(const Dissection &dissection, std::size_t offset) {
    nlohmann::ordered_json json{{"offset", offset}, {"pieces", nlohmann::ordered_json::array()}};
    for (const Piece &p : dissection.pieces) {
        json["pieces"].push_back({{"offset", p.offset},
                                  {"size", p.size},
                                  {"depth", p.depth},
                                  {"path", p.path},
                                  {"kind", p.kind},
                                  {"value", p.value}});
    }
    if (dissection.broken) {
        json["broken"] = {{"offset", dissection.broken->offset},
                          {"path", dissection.broken->path},
                          {"reason", dissection.broken->reason}};
    }
    return json;
}

Exit run_dissect(const DissectOptions &options) {
    const std::string content = read_input(options.file, options.from);
    const FrameBytes all = bytes_of(content);
    if (all.empty()) throw Failure(Exit::input, shown_path(options.file) + ": empty");
    nlohmann::ordered_json frames = nlohmann::ordered_json::array();
    for (std::size_t offset = 0; offset < all.size();) {
        const Dissection dissection = dissect_frame(all.subspan(offset), offset);
        if (options.json) {
            frames.push_back(json_of_dissection(dissection, offset));
        } else {
            std::string out = "frame at offset " + std::to_string(offset) + "\n";
            for (const Piece &piece : dissection.pieces) print_piece(piece, all, out);
            write_file("-", out);
        }
        if (dissection.broken) {
            if (options.json) write_file("-", json_text(frames, 2) + "\n");
            throw Failure(Exit::input, shown_path(options.file) + ": broken at " + sentence_of(*dissection.broken));
        }
        offset += dissection.size;
    }
    if (options.json) write_file("-", json_text(frames, 2) + "\n");
    return Exit::success;
}

}  // namespace

void add_dissect(CLI::App &app, Context &context) {
    auto options = std::make_shared<DissectOptions>();
    CLI::App *command = app.add_subcommand("dissect", "Print an annotated dump of frames, byte by byte");
    add_input(*command, options->file, "Frames");
    command->add_flag("--json", options->json, "Print JSON");
    add_from(*command, options->from);
    command->footer(
        "If a frame is broken, the dump stops at the error, which is printed on standard\n"
        "error with its offset and reason.\n\n"
        "Examples:\n"
        "  tarn dissect answer.bin\n"
        "  tarn encode examples/cl_debug.xml | tarn dissect");
    command->callback([options, &context] { context.exit = run_dissect(*options); });
}

}  // namespace tarn::tool
