// tarn record: keeps what is received, through the recorder of the runtime.
#include <chrono>
#include <cstdio>
#include <memory>
#include <thread>

#include "asking.h"
#include "command_line.h"
#include "commands.h"
#include "files.h"

namespace tarn::tool {

namespace {

struct RecordOptions {
    std::string output, full, from;
    Place place;
    std::vector<std::string> what;
    unsigned rounds = 1;
    double interval = 1, timeout = 10;
    bool tracked = false, verbose = false;
};

// Switches the recorder on for as long as it lives, and counts what reaches its file.
class Recording {
public:
    explicit Recording(const std::string &path) : path_(path), file_(std::fopen(path.c_str(), "wbe")) {
        if (file_ == nullptr)
            throw Failure(Exit::environment, path + ": " + error_text(static_cast<std::uint32_t>(errno)));
        mirk_platform_recorder_set(1, file_);
    }
    Recording(const Recording &) = delete;
    Recording &operator=(const Recording &) = delete;
    ~Recording() {
        if (file_ != nullptr) close();
    }

    long position() const { return std::ftell(file_); }
    void finish() {
        if (!close()) throw Failure(Exit::environment, path_ + ": could not be written");
    }

private:
    bool close() {
        mirk_platform_recorder_set(0, nullptr);
        const bool failed = std::ferror(file_) != 0;
        return std::fclose(std::exchange(file_, nullptr)) == 0 && !failed;
    }

    std::string path_;
    FILE *file_;
};

// The recorder leaves out, without an error, what its buffer does not take; the file shows it by not having grown.
class Keeper {
public:
    Keeper(Recording &recording, bool keeps_frames) : recording_(recording), keeps_frames_(keeps_frames) {}

    void feed(Reception &reception, const Frame &frame, const std::string &origin) {
        const long before = recording_.position();
        reception.feed(frame, origin);
        if (keeps_frames_) frames_.append(reinterpret_cast<const char *>(frame.bytes.data()), frame.bytes.size());
        if (frame.identity.is_control()) return;
        ++messages_;
        if (recording_.position() != before) return;
        ++too_large_;
        std::fprintf(stderr, "tarn: %s: %s, %zu bytes, is too large for the recorder\n",
                     frame_place(origin, frame.offset).c_str(), frame.identity.operations->name, frame.bytes.size());
    }

    const std::string &frames() const { return frames_; }
    unsigned messages() const { return messages_; }
    unsigned too_large() const { return too_large_; }

private:
    Recording &recording_;
    bool keeps_frames_;
    std::string frames_;
    unsigned messages_ = 0, too_large_ = 0;
};

void record_from_file(const RecordOptions &options, Keeper &keeper) {
    const std::string content = read_file(options.from);
    const std::string origin = shown_path(options.from);
    Reception reception(options.tracked, Via::handle);
    for (const Frame &frame : split_frames(bytes_of(content), origin)) {
        keeper.feed(reception, frame, origin);
        reception.take();
    }
}

void record_from_socket(const RecordOptions &options, Keeper &keeper) {
    for (unsigned round = 0; round < options.rounds; ++round) {
        if (round != 0) std::this_thread::sleep_for(std::chrono::duration<double>(options.interval));
        for (const std::string &what : options.what) {
            const reflect::BundleOperations &bundle = bundle_named(what);
            Reception reception(options.tracked, Via::handle);
            Connection connection(options.place, Deadline(options.timeout));
            connection.ask(bundle, options.tracked);
            receive_answer(connection, reception, bundle,
                           [&](const Frame &frame) { keeper.feed(reception, frame, options.place.text()); });
        }
    }
}

Exit run_record(const RecordOptions &options) {
    set_up_trace(options.verbose);
    Recording recording(options.output);
    Keeper keeper(recording, !options.full.empty());
    (options.from.empty() ? record_from_socket : record_from_file)(options, keeper);
    recording.finish();
    if (!options.full.empty()) write_file(options.full, keeper.frames());
    std::printf("recorded %u of %u messages\n", keeper.messages() - keeper.too_large(), keeper.messages());
    return keeper.too_large() == 0 || !options.full.empty() ? Exit::done : Exit::different;
}

}  // namespace

void add_record(CLI::App &app, Context &context) {
    auto options = std::make_shared<RecordOptions>();
    CLI::App *command = app.add_subcommand("record", "keep what is received in a file");
    command->add_option("what", options->what, "bundles to ask for, by name or short form")->type_name(words::bundle);
    command->add_option("-o,--output", options->output, "the recording: XML fragments, one behind the other")
        ->type_name(words::file)
        ->required();
    command
        ->add_option("--full", options->full,
                     "keep all frames in this file, too, also those too large for the recorder")
        ->type_name(words::file);
    CLI::Option *socket = command->add_option("--socket", options->place.socket, "socket file of the answering process")
                              ->type_name(words::file);
    CLI::Option *connect =
        command->add_option("--connect", options->place.tcp, tcp_words("its TCP address"))->type_name(words::address);
    CLI::Option *from = command->add_option("--from", options->from, "receive from this file of frames instead")
                            ->type_name(words::file);
    socket->excludes(from)->excludes(connect);
    connect->excludes(from);
    command->add_option("--rounds", options->rounds, "ask for each bundle so many times")->capture_default_str();
    command->add_option("--interval", options->interval, "seconds between the rounds")->capture_default_str();
    command->add_option("--timeout", options->timeout, "seconds to wait for a whole answer")
        ->check(CLI::Range(0.001, 86400.0))
        ->capture_default_str();
    command->add_flag("--tracked", options->tracked, "ask for per-field state, and record it");
    command->add_flag("-v,--verbose", options->verbose, "print every trace line on standard error");
    command->footer(
        "The recorder takes messages of up to 4096 bytes of XML. Each larger one is named, and the exit code is then "
        "1\n"
        "unless --full keeps them. \"tarn decode\" reads both files.\n\n"
        "Examples:\n"
        "  tarn record cl-debug dp-intf --socket /tmp/tarn.sock -o recording.xml\n"
        "  tarn record dp-tt-cfg --socket /tmp/tarn.sock -o recording.xml --full frames.bin --rounds 10\n"
        "  tarn record --from frames.bin -o recording.xml");
    command->callback([options, &context] {
        if (options->from.empty() && (!options->place.is_given() || options->what.empty())) {
            throw Failure(Exit::input, "either --from, or --socket or --connect and at least one bundle, is needed");
        }
        context.exit = run_record(*options);
    });
}

}  // namespace tarn::tool
