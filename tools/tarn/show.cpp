// tarn show: asks a process for a bundle and prints what it answers.
#include <chrono>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>

#include "commands.h"
#include "files.h"
#include "json_form.h"
#include "output.h"
#include "reception.h"

namespace tarn::tool {

namespace {

enum class Print : std::uint8_t { text, xml, json, hex };

struct Options {
    std::string what, socket, save;
    bool text = false, xml = false, json = false, hex = false, tracked = false, verbose = false;
    double timeout = 10;
    std::string via = "handle";
};

class Deadline {
public:
    explicit Deadline(double seconds)
        : end_(std::chrono::steady_clock::now() + std::chrono::milliseconds(static_cast<long>(seconds * 1000))) {}
    std::uint32_t left_ms() const {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end_ - std::chrono::steady_clock::now());
        return left.count() > 0 ? static_cast<std::uint32_t>(left.count()) : 0;
    }

private:
    std::chrono::steady_clock::time_point end_;
};

class Connection {
public:
    Connection(const std::string &path, const Deadline &deadline) : path_(path), deadline_(deadline) {
        check(mirk_platform_client_open(path.c_str(), 0, deadline.left_ms(), &client_), "cannot connect");
    }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection() { mirk_platform_client_close(client_); }

    void send(const std::uint8_t *bytes, std::size_t size) {
        check(mirk_platform_client_send(client_, bytes, size, deadline_.left_ms()), "cannot ask");
    }
    FrameBytes receive() {
        void *frame = nullptr;
        std::uint32_t size = 0;
        check(mirk_platform_client_receive(client_, &frame, &size, deadline_.left_ms()), "no whole answer");
        return {static_cast<const std::uint8_t *>(frame), size};
    }

private:
    void check(mirk_platform_error error, const char *what) const {
        if (error == 0) return;
        const bool bad_bytes = error == EBADMSG || error == EMSGSIZE;
        throw Failure(bad_bytes ? Exit::input : Exit::environment, path_ + ": " + what + ": " + error_text(error));
    }

    std::string path_;
    Deadline deadline_;
    mirk_platform_client *client_ = nullptr;
};

struct Answer {
    std::vector<Item> messages;
    std::string frames;  // as they came
};

void ask(Connection &connection, const reflect::BundleOperations &bundle, bool tracked) {
    std::uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const std::string name(bundle.bundle->name);
    const std::uint8_t wish = tracked ? MIRK_PLATFORM_REQUEST_TRACKED : 0;
    connection.send(frame, mirk_platform_request_encode(frame, sizeof frame, 0, name.c_str(), wish, nullptr));
}

void require_no_refusal(FrameBytes frame, const std::string &origin) {
    mirk_platform_request reply;
    if (mirk_platform_request_decode(frame.data(), frame.size(), &reply) != 0) return;
    if ((reply.options & MIRK_PLATFORM_REQUEST_REFUSED) == 0) {
        throw Failure(Exit::input, origin + ": answered with a request");
    }
    throw Failure(Exit::different, origin + ": refused: " + reply.sentence + ": " + error_text(reply.number));
}

// The dispatcher delivers whatever is well-formed; whether it belongs into this answer is for the asker to say.
void require_admitted(const Frame &frame, const reflect::BundleOperations &bundle, const std::string &origin) {
    const Identity &identity = frame.identity;
    const bool good = identity.is_control() ? identity.bundle == &bundle : admits(bundle, *identity.operations);
    if (good) return;
    throw Failure(Exit::input, frame_place(origin, frame.offset) + ": " + std::string(bundle.bundle->name) +
                                   " does not admit " + identity.operations->name);
}

Answer receive(Connection &connection, Reception &reception, const reflect::BundleOperations &bundle,
               const std::string &origin) {
    Answer answer;
    for (;;) {
        const FrameBytes bytes = connection.receive();
        require_no_refusal(bytes, origin);
        Frame frame = frame_at(bytes, 0, origin);
        frame.offset = answer.frames.size();
        answer.frames.append(reinterpret_cast<const char *>(bytes.data()), bytes.size());
        require_admitted(frame, bundle, origin);
        if (!frame.identity.is_control() && !reception.in_bundle()) {
            throw Failure(Exit::input, frame_place(origin, frame.offset) + ": " + frame.identity.operations->name +
                                           " came before the start of its bundle");
        }
        reception.feed(frame, origin);
        if (!frame.identity.is_control() || frame.identity.control == Control::start) continue;
        if (frame.identity.control == Control::abort) {
            throw Failure(Exit::different, origin + ": the answering side aborted " + std::string(bundle.bundle->name));
        }
        answer.messages = reception.take();
        return answer;
    }
}

void print(const Answer &answer, const reflect::BundleOperations &bundle, const Reception &reception, Print form) {
    std::string out;
    if (form == Print::hex) {
        out = hex_dump(answer.frames);
    } else if (form == Print::json) {
        nlohmann::ordered_json all{{"bundle", bundle.bundle->name}, {"messages", nlohmann::ordered_json::array()}};
        for (const Item &item : answer.messages) {
            all["messages"].push_back(json_of(reception.handle(), item.identity, item.object()));
        }
        out = all.dump(2) + "\n";
    } else {
        for (const Item &item : answer.messages) {
            out += rendered(reception.handle(), item, form == Print::xml ? Style::xml : Style::text);
        }
    }
    write_file("-", out);
}

void run(const Options &options) {
    set_up_trace(options.verbose);
    const reflect::BundleOperations &bundle = bundle_named(options.what);
    Via via = Via::handle;
    for (const Via v : {Via::lut, Via::handle, Via::module, Via::bundle, Via::linked}) {
        if (options.via == word(v)) via = v;
    }
    const Deadline deadline(options.timeout);
    Reception reception(options.tracked, via);
    Connection connection(options.socket, deadline);
    ask(connection, bundle, options.tracked);
    const Answer answer = receive(connection, reception, bundle, options.socket);
    if (!options.save.empty()) write_file(options.save, answer.frames);
    if (reception.committed() == 0) {
        throw Failure(Exit::different, options.socket + ": nobody took " + std::string(bundle.bundle->name));
    }
    const Print form = options.xml ? Print::xml : options.json ? Print::json : options.hex ? Print::hex : Print::text;
    print(answer, bundle, reception, form);
}

}  // namespace

void add_show(CLI::App &app, Context &) {
    auto options = std::make_shared<Options>();
    CLI::App *command = app.add_subcommand("show", "ask a process for a bundle and print its answer");
    command->add_option("what", options->what, "bundle by name or short form, such as cl-debug")->required();
    command->add_option("--socket", options->socket, "socket file of the answering process")->required();
    CLI::Option_group *form = command->add_option_group("form", "how to print the answer");
    form->add_flag("--text", options->text, "as indented text, which is the default");
    form->add_flag("--xml", options->xml, "as XML");
    form->add_flag("--json", options->json, "as JSON");
    form->add_flag("--hex", options->hex, "as a dump of the frames");
    form->require_option(0, 1);
    command->add_flag("--tracked", options->tracked, "ask for per-field state, and receive with it");
    command->add_option("--timeout", options->timeout, "seconds to wait for the whole answer")
        ->check(CLI::Range(0.001, 86400.0))
        ->capture_default_str();
    command->add_option("--save", options->save, "keep the frames of the answer in this file, too");
    command->add_option("--via", options->via, "which link of the handler chain takes the bundle")
        ->check(CLI::IsMember({"lut", "handle", "module", "bundle", "linked"}))
        ->capture_default_str();
    command->add_flag("-v,--verbose", options->verbose, "print every trace line on standard error");
    command->footer(
        "Exit codes: 0 answered, 1 refused, aborted or not taken, 2 the answer is broken, 3 no connection or no "
        "time.\n\n"
        "Examples:\n"
        "  tarn show cl-debug --socket /tmp/tarn.sock\n"
        "  tarn show dp-tt-cfg --socket /tmp/tarn.sock --json | jq .messages[0].payload\n"
        "  tarn show lumo_tarn_dp_intf_rsp --socket /tmp/tarn.sock --tracked --xml\n"
        "  tarn show cl-debug --socket /tmp/tarn.sock --via module --verbose");
    command->callback([options] { run(*options); });
}

}  // namespace tarn::tool
