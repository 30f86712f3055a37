// tarn validate: reports all errors of its input.
#include <algorithm>
#include <cstddef>
#include <memory>
#include <nlohmann/json.hpp>
#include <utility>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/input.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/message.h"
#include "tools/tarn/formats/problems.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

struct ValidateOptions {
    InputOptions input;
    bool json = false;
};

// What was found in one file. Of many problems, the first ones are kept.
struct Result {
    std::string file;
    std::size_t messages = 0;
    std::vector<Problem> problems;
    std::size_t more = 0;
    Exit exit = Exit::success;

    void add(Problem problem) {
        if (problems.size() == most_complaints) {
            ++more;
        } else {
            problems.push_back(std::move(problem));
        }
    }
    void add(const Failure &failure) {
        exit = std::max(exit, failure.exit());
        const auto *invalid = dynamic_cast<const Invalid *>(&failure);
        if (invalid == nullptr) return add(Problem{{0, 0}, {}, failure.what(), {}, {}});
        for (const Problem &problem : invalid->problems()) add(problem);
        more += invalid->more();
    }
};

const std::string &path_of(const Problem &problem) { return problem.pointer.empty() ? problem.path : problem.pointer; }

// Without a place, the reason begins with that of the file.
bool has_place(const Problem &problem) { return problem.offset || problem.at.line != 0; }

std::string line_of(const Result &result, const Problem &problem) {
    if (!has_place(problem)) return problem.reason;
    std::string line = result.file + ":";
    if (problem.offset) {
        line += " offset " + std::to_string(*problem.offset) + ":";
    } else {
        line += problem.at.text() + ":";
    }
    return line + " " + (path_of(problem).empty() ? "" : path_of(problem) + ": ") + problem.reason;
}

std::string text_of(const Result &result) {
    std::string text;
    for (const Problem &problem : result.problems) text += printable(line_of(result, problem), 8192) + "\n";
    if (result.more != 0) text += result.file + ": and " + std::to_string(result.more) + " more errors\n";
    const std::string messages = std::to_string(result.messages) + (result.messages == 1 ? " message" : " messages");
    return result.problems.empty() ? result.file + ": valid, " + messages + "\n" : text;
}

nlohmann::ordered_json json_of(const Result &result) {
    nlohmann::ordered_json json{{"file", result.file},
                                {"valid", result.problems.empty()},
                                {"messages", result.messages},
                                {"errors", nlohmann::ordered_json::array()}};
    for (const Problem &problem : result.problems) {
        nlohmann::ordered_json one = nlohmann::ordered_json::object();
        if (problem.offset) {
            one["offset"] = *problem.offset;
        } else if (has_place(problem)) {
            one["line"] = problem.at.line;
            if (problem.at.column != 0) one["column"] = problem.at.column;
        }
        if (!problem.pointer.empty()) {
            one["pointer"] = problem.pointer;
        } else if (!problem.path.empty()) {
            one["path"] = problem.path;
        }
        one["reason"] = problem.reason;
        json["errors"].push_back(std::move(one));
    }
    if (result.more != 0) json["more"] = result.more;
    return json;
}

Result validated(const InputFile &file, const ValidateOptions &options) {
    Result result;
    result.file = shown_path(file.path);
    InputOptions input = options.input;
    input.paths = {file.path};
    input.keep_going = true;
    input.checks_frames = true;
    input.report = [&](const Failure &failure) { result.add(failure); };
    for_each_item(input, [&](Entry &entry) {
        if (entry.broken) {
            const Break &broken = *entry.broken;
            const Failure failure(Exit::input, entry.item.location + ": broken at " + sentence_of(broken));
            throw Invalid(failure, {{}, broken.path, broken.reason, {}, broken.offset});
        }
        if (!entry.item.message) return;
        ++result.messages;
        const reflect::MessageOperations &operations = entry.item.message->operations();
        if (entry.bundle != nullptr && !admits(*entry.bundle, operations)) {
            throw Failure(Exit::input, not_admitted(entry.item.location, *entry.bundle, operations));
        }
    });
    return result;
}

Exit run_validate(const ValidateOptions &options) {
    Exit exit = Exit::success;
    for (const InputFile &file : files_of(options.input.paths)) {
        const Result result = validated(file, options);
        write_file("-", options.json ? json_text(json_of(result)) + "\n" : text_of(result));
        exit = std::max(exit, result.exit);
    }
    return exit;
}

}  // namespace

void add_validate(CLI::App &app, Context &context) {
    auto options = std::make_shared<ValidateOptions>();
    CLI::App *command = app.add_subcommand("validate", "Report all errors in frames, XML and JSON");
    add_files(*command, options->input, "Frames, XML or JSON");
    command->add_flag("--json", options->json, "Print a JSON object for each file");
    add_from(*command, options->input.from);
    add_lenient(*command, options->input.lenient);
    command->footer(
        "An error in XML is printed with its line, its column and the path of the element,\n"
        "one in JSON with its line, its column and a JSON pointer into the message, one in a\n"
        "frame with its offset and the member. Columns are bytes. Of more than 20 errors in\n"
        "a file, the others are counted. The exit code is 0 only if all files are valid.\n\n"
        "Examples:\n"
        "  tarn validate examples/cl_debug.xml\n"
        "  tarn validate captures --json");
    command->callback([options, &context] { context.exit = run_validate(*options); });
}

}  // namespace tarn::tool
