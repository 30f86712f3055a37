// tarn view: creates an HTML page that shows frames, or the difference of two files.
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/frame_writer.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/pages/view_page.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"

namespace tarn::tool {

namespace {

struct ViewOptions {
    std::string a, b, output = "-";
    From from = From::detect;
    bool tracked = false, lenient = false;
};

ViewedFile load_frames(const std::string &path, const ViewOptions &options) {
    std::string content = read_input(path, options.from);
    const std::string origin = shown_path(path);
    if (form_of(content, origin) != Form::frames) {
        const Handles handles(options.tracked ? Tracking::on : Tracking::as_input);
        content = frames_of(handles, items_of(handles, content, origin, options.lenient), origin);
    }
    return {origin, std::move(content), {}};
}

void run_view(const ViewOptions &options) {
    std::vector<ViewedFile> files{load_frames(options.a, options)};
    if (!options.b.empty()) files.push_back(load_frames(options.b, options));
    write_file(options.output, view_page(files));
    for (auto file = files.rbegin(); file != files.rend(); ++file) {
        if (!file->broken.empty()) throw Failure(Exit::input, file->name + ": broken at " + file->broken);
    }
}

}  // namespace

void add_view(CLI::App &app, Context &) {
    auto options = std::make_shared<ViewOptions>();
    CLI::App *command =
        app.add_subcommand("view", "Create an HTML page that shows frames, or the difference of two files");
    command->add_option("a", options->a, "Frames, XML or JSON")->type_name(words::file_a)->required();
    command->add_option("b", options->b, "Second file; the page shows the difference")->type_name(words::file_b);
    add_output(*command, options->output, "Output file");
    command->add_flag("--tracked", options->tracked, "Convert XML and JSON to frames with per-field state");
    add_from(*command, options->from);
    add_lenient(*command, options->lenient);
    command->footer(
        "The page is a single file and needs no network. Hovering over a member highlights\n"
        "its bytes, and vice versa. Clicking keeps the highlight and puts a link to the\n"
        "member into the address bar. If a frame is broken, the page stops at the error,\n"
        "and opens there; the page of two files opens at the first change.\n\n"
        "Keys: arrows, Home, End, Page Up, Page Down and Enter move through the members and\n"
        "unfold them, / searches, n and p go to the next and the previous hit or change.\n\n"
        "Examples:\n"
        "  tarn show cl-debug --socket /tmp/tarn.sock --save answer.bin\n"
        "  tarn view answer.bin -o answer.html\n"
        "  tarn view before.bin after.bin -o difference.html\n"
        "  tarn view examples/dp_tt_cfg.xml -o tables.html");
    command->callback([options] { run_view(*options); });
}

}  // namespace tarn::tool
