// tarn record: records received messages through the recorder of the reference runtime.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <thread>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/service/client.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/terminal.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

struct RecordOptions {
    std::string output, full, from;
    Endpoint endpoint;
    AnswerLimits limits;
    std::vector<std::string> bundles;
    unsigned rounds = 1;
    double interval = 1, timeout = 10;
    bool tracked = false, verbose = false, force = false;
};

// Enables the recorder during its lifetime. Its output is taken after each message, which shows whether the message was
// recorded.
class Recorder {
public:
    Recorder() : stream_(open_memstream(&text_, &size_)) {
        if (stream_ == nullptr) throw std::bad_alloc();
        mirk_platform_recorder_set(1, stream_);
    }
    Recorder(const Recorder &) = delete;
    Recorder &operator=(const Recorder &) = delete;
    ~Recorder() {
        mirk_platform_recorder_set(0, nullptr);
        std::fclose(stream_);
        std::free(text_);
    }

    // The output since the last call; empty if the recorder omitted the message.
    std::string take() {
        if (std::fflush(stream_) != 0 || std::ferror(stream_) != 0) throw std::bad_alloc();
        std::string piece(text_, size_);
        std::rewind(stream_);
        return piece;
    }

private:
    char *text_ = nullptr;
    std::size_t size_ = 0;
    FILE *stream_;
};

// The output files. They grow message by message, so everything before a failure is kept; before the first message,
// what was there.
class Recording {
public:
    explicit Recording(const RecordOptions &options)
        : fragments_(options.output), summary_(options.output == "-" || options.full == "-" ? stderr : stdout) {
        if (!options.full.empty()) frames_.emplace(options.full);
    }

    void feed(Receiver &receiver, const Frame &frame, const std::string &origin) {
        receiver.feed(frame, origin);
        if (frames_) {
            frames_->append(chars_of(frame.bytes));
            frames_->publish();
        }
        if (frame.identity.is_control()) return;
        ++messages_;
        const std::string piece = recorder_.take();
        if (piece.empty()) {
            // The recorder omits a message that does not fit into its buffer, without reporting an error.
            ++too_large_;
            std::fprintf(stderr, "tarn: %s: %s of %zu bytes is too large for the recorder\n",
                         frame_location(origin, frame.offset).c_str(), frame.identity.operations->name,
                         frame.bytes.size());
            return;
        }
        fragments_.append(printable_output(piece, Notation::xml));
        fragments_.publish();
        ++recorded_;
    }

    void add_abort(const std::string &location, const reflect::BundleOperations &bundle) {
        aborted_ = true;
        std::fprintf(stderr, "tarn: %s: aborts %s\n", location.c_str(), std::string(bundle.bundle->name).c_str());
    }

    void finish() {
        fragments_.finish();
        if (frames_) frames_->finish();
    }
    void print_summary() const { std::fprintf(summary_, "recorded %u of %u messages\n", recorded_, messages_); }
    bool is_complete() const { return !aborted_ && (too_large_ == 0 || frames_); }

private:
    OutputFile fragments_;
    std::optional<OutputFile> frames_;
    Recorder recorder_;
    FILE *summary_;
    unsigned messages_ = 0, recorded_ = 0, too_large_ = 0;
    bool aborted_ = false;
};

void record_from_file(const RecordOptions &options, Recording &recording) {
    const std::string content = read_input(options.from);
    const std::string origin = shown_path(options.from);
    Receiver receiver(options.tracked, Via::handle);
    for (const Frame &frame : split_frames(bytes_of(content), origin)) {
        recording.feed(receiver, frame, origin);
        receiver.take();
        if (frame.identity.is_control() && frame.identity.control == Control::abort) {
            recording.add_abort(frame_location(origin, frame.offset), *frame.identity.bundle);
        }
    }
    if (receiver.in_bundle()) throw Failure(Exit::input, origin + ": ends inside a bundle");
}

void record_from_socket(const RecordOptions &options, Recording &recording) {
    for (unsigned round = 0; round < options.rounds; ++round) {
        if (round != 0) std::this_thread::sleep_for(std::chrono::duration<double>(options.interval));
        for (const std::string &name : options.bundles) {
            const reflect::BundleOperations &bundle = bundle_named(name);
            Receiver receiver(options.tracked, Via::handle);
            Connection connection(options.endpoint, Deadline(options.timeout), options.limits);
            connection.request(bundle, options.tracked);
            receive_answer(connection, receiver, bundle, [&](const Frame &frame) {
                recording.feed(receiver, frame, connection.name());
                receiver.release();
            });
        }
    }
}

Exit run_record(const RecordOptions &options) {
    set_up_trace(options.verbose);
    Recording recording(options);
    try {
        (options.from.empty() ? record_from_socket : record_from_file)(options, recording);
        recording.finish();
    } catch (const std::exception &) {
        recording.print_summary();
        throw;
    }
    recording.print_summary();
    return recording.is_complete() ? Exit::success : Exit::negative;
}

void check_source(const CLI::App &command, const RecordOptions &options) {
    if (options.output == "-" && options.full == "-") {
        throw Failure(Exit::input, "only one of -o and --full can be standard output");
    }
    if (!options.force) refuse_terminal(options.full);
    if (options.from.empty()) {
        if (options.bundles.empty()) throw Failure(Exit::input, "--socket and --connect require at least one bundle");
        return;
    }
    for (const char *name : {"bundles", "--rounds", "--interval", "--timeout", "--frame-limit", "--answer-limit"}) {
        if (command.count(name) != 0) throw Failure(Exit::input, std::string("--from excludes ") + name);
    }
}

}  // namespace

void add_record(CLI::App &app, Context &context) {
    auto options = std::make_shared<RecordOptions>();
    CLI::App *command = app.add_subcommand("record", "Record received messages in a file");
    command->add_option("bundles", options->bundles, "Bundles to request")->type_name(words::bundle);
    command->add_option("-o,--output", options->output, "The recording: a sequence of XML fragments")
        ->type_name(words::file)
        ->required();
    command
        ->add_option("--full", options->full, "Also write all frames to this file, including those of large messages")
        ->type_name(words::file);
    add_force(*command, options->force);
    CLI::Option_group *source = command->add_option_group("source", "Where to receive from");
    source->add_option("--socket", options->endpoint.socket, "Unix domain socket")->type_name(words::file);
    source->add_option("--connect", options->endpoint.tcp, tcp_words())->type_name(words::address);
    source->add_option("--from", options->from, "File of frames; excludes bundles and the options of connections")
        ->type_name(words::file);
    source->require_option(1);
    command->add_option("--rounds", options->rounds, "Number of requests for each bundle")->capture_default_str();
    add_seconds(*command, "--interval", options->interval, "Pause between two rounds");
    add_timeout(*command, options->timeout, "Timeout for each answer");
    add_limits(*command, options->limits);
    command->add_flag("--tracked", options->tracked, "Request and record per-field state");
    add_verbose(*command, options->verbose);
    command->footer(
        "The recorder omits a message if its XML text has more than 4095 bytes, whatever the\n"
        "size of its frame. Each omitted message is reported on standard error, and the exit\n"
        "code is 1 unless --full keeps it.\n"
        "Each message is written as soon as it has been received, so after an error, such\n"
        "as a full disk, the files contain all preceding messages, whole. Both files can\n"
        "be read with \"tarn decode\" unless they are empty.\n\n"
        "Examples:\n"
        "  tarn record cl-debug dp-intf --socket /tmp/tarn.sock -o recording.xml\n"
        "  tarn record dp-intf dp-tt-cfg --connect :28276 -o recording.xml --full frames.bin\n"
        "  tarn record --from frames.bin -o recording.xml");
    command->callback([options, command, &context] {
        check_source(*command, *options);
        context.exit = run_record(*options);
    });
}

}  // namespace tarn::tool
