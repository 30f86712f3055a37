// tarn probe: asks a process for every bundle.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>
#include <vector>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/comparison.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/service/client.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/terminal.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

struct ProbeOptions {
    Endpoint endpoint;
    AnswerLimits limits;
    double timeout = 2;
    bool tracked = false, json = false, verbose = false;
};

enum class Reply : std::uint8_t { answered, refused, silent, broken };

std::string_view word(Reply reply) {
    constexpr std::string_view words[] = {"answered", "refused", "silent", "broken"};
    return words[static_cast<std::size_t>(reply)];
}

struct Probe {
    std::string_view bundle;
    Reply reply = Reply::answered;
    std::size_t bytes = 0, messages = 0, elements = 0;
    double milliseconds = 0;
    std::string reason;  // of anything but an answer
};

// A connection for each bundle, since one that stays silent may answer late.
Probe probe(const reflect::BundleOperations &bundle, const ProbeOptions &options) {
    Probe result{.bundle = bundle.bundle->name, .reason = {}};
    const Deadline deadline(options.timeout);
    Connection connection(options.endpoint, deadline, options.limits);
    const auto begin = std::chrono::steady_clock::now();
    try {
        Receiver receiver(options.tracked, Via::handle);
        connection.request(bundle, options.tracked);
        receive_answer(connection, receiver, bundle, [&](const Frame &frame) {
            receiver.feed(frame, connection.name());
            receiver.release();
            result.bytes += frame.bytes.size();
            if (frame.identity.is_control()) return;
            ++result.messages;
            result.elements += count_elements(*receiver.read(frame, connection.name()).message);
        });
    } catch (const Failure &failure) {
        const bool is_silent = failure.exit() == Exit::environment && deadline.left_ms() == 0;
        result.reply = is_silent ? Reply::silent : failure.exit() == Exit::negative ? Reply::refused : Reply::broken;
        result.reason = failure.what();
        // Which process it is and that it refuses is known.
        for (const std::string &known : {connection.name() + ": ", std::string("refused: ")}) {
            if (result.reason.starts_with(known)) result.reason.erase(0, known.size());
        }
    }
    result.milliseconds = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
    return result;
}

void print_heading() {
    char line[128];
    std::snprintf(line, sizeof line, "%-17s %-8s %11s %8s %8s %8s\n", "BUNDLE", "REPLY", "BYTES", "MESSAGES",
                  "ELEMENTS", "MS");
    write_file("-", line);
}

void print(const Probe &p) {
    constexpr Color colors[] = {Color::green, Color::gray, Color::yellow, Color::red};
    char name[64], rest[128];
    std::snprintf(name, sizeof name, "%-17s ", short_name(p.bundle).c_str());
    std::string line = name + colored(word(p.reply), colors[static_cast<std::size_t>(p.reply)]) +
                       std::string(8 - word(p.reply).size(), ' ');
    if (p.reply == Reply::answered) {
        std::snprintf(rest, sizeof rest, " %11zu %8zu %8zu %8.1f", p.bytes, p.messages, p.elements, p.milliseconds);
    } else {
        std::snprintf(rest, sizeof rest, " %11s %8s %8s %8.1f", "-", "-", "-", p.milliseconds);
    }
    write_file("-", line + rest + (p.reason.empty() ? "" : "  " + p.reason) + "\n");
}

nlohmann::ordered_json json_of(const Probe &p) {
    nlohmann::ordered_json json{{"bundle", p.bundle}, {"reply", word(p.reply)}, {"milliseconds", p.milliseconds}};
    if (p.reply == Reply::answered) {
        json["bytes"] = p.bytes;
        json["messages"] = p.messages;
        json["elements"] = p.elements;
    } else {
        json["reason"] = p.reason;
    }
    return json;
}

Exit run_probe(const ProbeOptions &options) {
    set_up_trace(options.verbose);
    std::size_t answered = 0, refused = 0;
    bool is_first = true;
    for (const reflect::BundleOperations &bundle : reflect::bundles()) {
        const Probe result = probe(bundle, options);
        answered += result.reply == Reply::answered ? 1 : 0;
        refused += result.reply == Reply::refused ? 1 : 0;
        if (options.json) {
            write_file("-", json_text(json_of(result)) + "\n");
        } else {
            if (is_first) print_heading();
            print(result);
        }
        is_first = false;
    }
    return answered != 0 && answered + refused == reflect::bundles().size() ? Exit::success : Exit::negative;
}

}  // namespace

void add_probe(CLI::App &app, Context &context) {
    auto options = std::make_shared<ProbeOptions>();
    CLI::App *command = app.add_subcommand("probe", "Ask a process for every bundle, and print which it answers");
    add_endpoint(*command, options->endpoint);
    command->add_flag("--tracked", options->tracked, "Request per-field state");
    command->add_flag("--json", options->json, "Print a JSON object for each bundle");
    add_timeout(*command, options->timeout, "Timeout for each answer");
    add_limits(*command, options->limits);
    add_verbose(*command, options->verbose);
    command->footer(
        "A bundle is answered, refused, silent if its answer is not complete at the timeout,\n"
        "or broken. An abort counts as a refusal. Elements are those of all lists, nested\n"
        "ones included; the time runs from the request to the end of the answer.\n\n"
        "The exit code is 0 if at least one bundle was answered and all others were refused,\n"
        "1 otherwise, and 3 if the process cannot be reached.\n\n"
        "Examples:\n"
        "  tarn probe --socket /tmp/tarn.sock\n"
        "  tarn probe --connect 127.0.0.1:28276 --timeout 0.5 --json");
    command->callback([options, &context] { context.exit = run_probe(*options); });
}

}  // namespace tarn::tool
