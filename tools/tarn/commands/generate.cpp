// tarn generate: random messages with plausible values.
#include <cinttypes>
#include <cstdio>
#include <map>
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/random_payload.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

namespace {

struct GenerateOptions {
    std::string type, output = "-", form = "xml";
    std::uint64_t seed = 1;
    std::uint32_t elements = 3;
    std::uint64_t size = 0;
    bool tracked = false, bundle = false, force = false;
};

class Generator {
public:
    Generator(const GenerateOptions &options, const reflect::MessageOperations &operations)
        : options_(options), operations_(operations), handle_(options.tracked) {}

    Item make(std::uint32_t elements) const {
        Item item{{&operations_}, Message::create(handle_, operations_), {}};
        fill(elements, item.message->payload());
        return item;
    }

    // The smallest number of elements with which the frame has at least `size` bytes. If the counts of the lists are
    // too narrow for that, a number beyond which the frame does not grow.
    std::uint32_t elements_for(std::uint64_t size) const {
        if (!RandomPayload::can_grow(operations_.message->payload)) {
            throw Failure(Exit::input, "--size has no effect on " + std::string(operations_.name) +
                                           ", which has no list of variable length");
        }
        Progress progress("searching for the number of elements");
        std::uint32_t most = 1;
        std::uint64_t reached = size_of(most), before = 0;
        while (reached < size && reached != before) {
            progress.at(reached, size);
            before = std::exchange(reached, size_of(most *= 2));
        }
        if (reached < size) {
            std::fprintf(stderr, "tarn: all lists have their maximum length, and the frame only %" PRIu64 " bytes\n",
                         reached);
        }
        std::uint32_t least = most / 2 + 1;
        while (least < most) {
            const std::uint32_t middle = least + (most - least) / 2;
            const bool too_small = size_of(middle) < size;
            (too_small ? least : most) = too_small ? middle + 1 : middle;
        }
        return most;
    }

private:
    std::uint64_t fill(std::uint32_t elements, void *payload) const {
        return RandomPayload(handle_, options_.seed, elements).fill(operations_.message->payload, payload);
    }
    std::uint64_t size_of(std::uint32_t elements) const { return MIRK_PLATFORM_FRAME_SIZE + fill(elements, nullptr); }

    const GenerateOptions &options_;
    const reflect::MessageOperations &operations_;
    Handle handle_;
};

// The message of a bundle, or a message with its bundle.
const reflect::MessageOperations &message_for(const std::string &name, const reflect::BundleOperations *&bundle) {
    bundle = find_bundle_named(name);
    if (bundle != nullptr) return reflect::operations_of(bundle->bundle->message);
    const auto *message = find_message_named(name);
    if (message == nullptr) {
        std::vector<Named> known = bundle_names();
        for (const Named &n : message_names()) known.push_back(n);
        throw unknown_name("bundle or message", name, known);
    }
    bundle = &bundle_of(*message);
    return *message;
}

const std::map<std::string, Style> style_names = {
    {"xml", Style::xml}, {"json", Style::json}, {"text", Style::text}, {"frames", Style::frames}};

void run_generate(const GenerateOptions &options) {
    const Style style = style_names.at(options.form);
    if (style == Style::frames && !options.force) refuse_terminal(options.output);
    const reflect::BundleOperations *bundle = nullptr;
    const reflect::MessageOperations &operations = message_for(options.type, bundle);
    const Generator generator(options, operations);
    const Item item = generator.make(options.size != 0 ? generator.elements_for(options.size) : options.elements);
    const auto control = [&](Control c) {
        return options.bundle ? rendered({identity_of(*bundle, c), std::nullopt, {}}, style) : std::string();
    };
    std::string out = control(Control::start);
    out += rendered(item, style);
    out += control(Control::commit);
    write_file(options.output, out);
}

}  // namespace

void add_generate(CLI::App &app, Context &) {
    auto options = std::make_shared<GenerateOptions>();
    CLI::App *command = app.add_subcommand("generate", "Generate a message with random, plausible values");
    command->add_option("type", options->type, "Bundle or message")->type_name(words::bundle_or_message)->required();
    command->add_option("--seed", options->seed, "Seed; the same seed gives the same message")->capture_default_str();
    CLI::Option *elements =
        command
            ->add_option("--elements", options->elements,
                         "Number of elements in each list; nested lists get about a quarter of this "
                         "number, per-processor lists always two elements")
            ->check(CLI::Range(0U, 1000000U).description(""))
            ->capture_default_str();
    add_size(*command, "--size", options->size, "Lengthen the lists until the frame has at least this size", 1,
             1U << 28)
        ->excludes(elements);
    command->add_option("--form", options->form, "Output format")
        ->check(CLI::IsMember({"xml", "json", "text", "frames"}))
        ->capture_default_str();
    add_output(*command, options->output, "Output file");
    add_force(*command, options->force);
    command->add_flag("--tracked", options->tracked, "Generate with per-field state");
    command->add_flag(
        "--bundle", options->bundle,
        "Put the start and the commit of the bundle around the message; if the type is a message, of the first bundle "
        "in the schema that carries it");
    command->footer(
        "With --size, the number of elements is the smallest that reaches the size. If the\n"
        "lists cannot be long enough, because their count members are too small (such as\n"
        "u_int8), the frame is the largest possible one, with a note on standard error.\n"
        "--size is an error for a message whose lists cannot grow.\n\n"
        "Examples:\n"
        "  tarn generate dp-tt-cfg --seed 7 --elements 4 -o tables.xml\n"
        "  tarn generate dp-appl-cfg --size 1MiB --form frames --bundle -o answer.bin\n"
        "  tarn generate debug-setting --form json");
    command->callback([options] { run_generate(*options); });
}

}  // namespace tarn::tool
