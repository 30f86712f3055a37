#include "tools/tarn/formats/input.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "tools/tarn/formats/capture.h"
#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/json_reader.h"
#include "tools/tarn/formats/xml.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

namespace {

Form form_at(ByteStream &stream, bool keep_going) {
    // Usually one piece of the input. Something may be broken behind it.
    std::string_view begin = stream.look(4);
    if (begin.find_first_not_of(" \t\r\n\xEF\xBB\xBF") == std::string_view::npos) begin = stream.look(enough_to_detect);
    try {
        return form_of(begin, stream.name());
    } catch (const Failure &) {
        // There may be frames behind it.
        if (!keep_going || begin.empty()) throw;
        return Form::frames;
    }
}

class Frames : public EntryReader::Source {
public:
    Frames(const Handles &handles, ByteStream &stream, const InputOptions &options)
        : handles_(handles),
          origin_(stream.name()),
          reader_(stream, options.keep_going),
          keep_going_(options.keep_going),
          checks_(options.checks_frames) {}

    std::optional<Item> next() override {
        if (has_ended_) return std::nullopt;
        std::optional<Stretch> stretch;
        do {
            stretch = reader_.next();
            if (!stretch) return std::nullopt;
            // A request for a bundle is no message.
        } while (!stretch->identity && stretch->fault.empty());
        if (!stretch->identity) {
            has_ended_ = !keep_going_;
            const std::string consequence = keep_going_ ? skipped(reader_.skip()) : "";
            const std::string reason = stretch->fault + consequence;
            throw Invalid({Exit::input, frame_location(origin_, stretch->offset) + ": " + reason},
                          {{}, {}, reason, {}, stretch->offset});
        }
        try {
            Item item = item_of(handles_, stretch->frame(), origin_);
            if (checks_) broken_ = error_in(stretch->bytes, stretch->offset);
            return item;
        } catch (const Failure &failure) {
            throw with_cause(failure, stretch->frame());
        }
    }

    std::optional<Break> broken() const override { return broken_; }

private:
    const Handles &handles_;
    const std::string origin_;
    FrameReader reader_;
    bool keep_going_, checks_, has_ended_ = false;
    std::optional<Break> broken_;
};

// Of XML or JSON.
template <class Reader>
class Messages : public EntryReader::Source {
public:
    Messages(const Handles &handles, ByteStream &stream, bool lenient) : reader_(handles, stream, lenient) {}

    std::optional<Item> next() override { return reader_.next(); }

private:
    Reader reader_;
};

std::unique_ptr<EntryReader::Source> source_of(const Handles &handles, ByteStream &stream,
                                               const InputOptions &options) {
    switch (form_at(stream, options.keep_going)) {
        case Form::frames:
            return std::make_unique<Frames>(handles, stream, options);
        case Form::xml:
            return std::make_unique<Messages<XmlReader>>(handles, stream, options.lenient);
        case Form::json:
            break;
    }
    return std::make_unique<Messages<JsonReader>>(handles, stream, options.lenient);
}

}  // namespace

Invalid with_cause(const Failure &failure, const Frame &frame) {
    const std::optional<Break> broken = error_in(frame.bytes, frame.offset);
    if (!broken) return {failure, {{}, {}, failure.what(), {}, frame.offset}};
    return {{failure.exit(), std::string(failure.what()) + "; broken at " + sentence_of(*broken)},
            {{}, broken->path, broken->reason, {}, broken->offset}};
}

EntryReader::EntryReader(const Handles &handles, ByteStream &stream, const InputOptions &options)
    : file_(stream.name()), source_(source_of(handles, stream, options)) {}

EntryReader::~EntryReader() = default;

std::optional<Entry> EntryReader::next() {
    std::optional<Item> item = source_->next();
    if (!item) return std::nullopt;
    const Identity &identity = item->identity;
    const bool begins = identity.is_control() && identity.control == Control::start;
    if (begins) bundle_ = identity.bundle;
    const std::size_t number = identity.is_control() ? 0 : ++number_;
    Entry entry{std::move(*item), file_, number, bundle_, source_->broken()};
    if (identity.is_control() && !begins) bundle_ = nullptr;
    return entry;
}

std::vector<InputFile> files_of(const std::vector<std::string> &paths) {
    namespace fs = std::filesystem;
    std::vector<InputFile> files;
    for (const std::string &path : paths) {
        std::error_code error;
        if (path == "-") {
            files.push_back({path, "standard-input"});
            continue;
        }
        if (!fs::is_directory(path, error)) {
            files.push_back({path, fs::path(path).filename()});
            continue;
        }
        const auto first = static_cast<std::ptrdiff_t>(files.size());
        try {
            for (const fs::directory_entry &entry : fs::recursive_directory_iterator(path)) {
                if (!entry.is_regular_file()) continue;
                files.push_back({entry.path(), entry.path().lexically_relative(path)});
            }
        } catch (const fs::filesystem_error &failure) {
            throw Failure(Exit::environment, shown_path(failure.path1()) + ": " + failure.code().message());
        }
        std::sort(files.begin() + first, files.end(),
                  [](const InputFile &a, const InputFile &b) { return a.path < b.path; });
    }
    if (paths.empty()) return files_of({"-"});
    return files;
}

std::vector<Opened> open_sources(const std::string &path, From from, std::uint16_t port, Failures &failures) {
    std::vector<Opened> sources;
    ByteStream stream = open_input(path);
    if (from == From::hex || !is_capture(stream.look(enough_to_detect))) {
        sources.push_back({{}, converted(std::move(stream), from)});
        return sources;
    }
    Capture capture = read_capture(stream, port);
    for (const Failure &missing : capture.missing) failures.add(missing);
    for (Sent &sent : capture.sent) sources.push_back({std::move(sent.connection), std::move(sent.bytes)});
    return sources;
}

namespace {

std::uint64_t size_of_file(const std::string &path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return error ? 0 : size;
}

std::vector<Opened> open_or_report(const std::string &path, const InputOptions &options, Failures &failures) {
    try {
        return open_sources(path, options.from, options.port, failures);
    } catch (const Failure &failure) {
        failures.add(failure);
        return {};
    }
}

// Calls `read` for each file, and with a function that shows the progress.
void for_each_source(const InputOptions &options, Failures &failures,
                     const std::function<void(Opened &, const std::function<void()> &)> &read) {
    const std::vector<InputFile> files = files_of(options.paths);
    std::uint64_t before = 0, all = 0;
    for (const InputFile &file : files) all += size_of_file(file.path);
    Progress progress("reading");
    for (const InputFile &file : files) {
        const std::uint64_t size = size_of_file(file.path);
        for (Opened &source : open_or_report(file.path, options, failures)) {
            const auto show = [&] {
                if (options.shows_progress) progress.at(before + std::min(source.stream.offset(), size), all);
            };
            read(source, show);
        }
        before += size;
    }
}

// False if `visit` has failed. Failures of the environment end the command.
template <class Visit>
bool is_visited(Failures &failures, const Visit &visit) {
    try {
        visit();
        return true;
    } catch (const Failure &failure) {
        if (failure.exit() == Exit::environment) throw;
        failures.add(failure);
        return false;
    }
}

}  // namespace

Exit for_each_item(const InputOptions &options, const std::function<void(Entry &)> &visit) {
    return for_each_item(options, Handles(options.tracking), visit);
}

Exit for_each_item(const InputOptions &options, const Handles &handles, const std::function<void(Entry &)> &visit) {
    Failures failures(true, options.report);
    const auto read = [&](Opened &source, const std::function<void()> &show) {
        std::optional<EntryReader> reader;
        for (bool goes_on = true; goes_on; show()) {
            std::optional<Entry> entry;
            try {
                if (!reader) reader.emplace(handles, source.stream, options);
                entry = reader->next();
                goes_on = entry.has_value();
            } catch (const Failure &failure) {
                failures.add(failure);
                goes_on = options.keep_going && reader;
            }
            if (!entry) continue;
            entry->connection = source.connection;
            if (!is_visited(failures, [&] { visit(*entry); })) goes_on = options.keep_going;
        }
    };
    try {
        for_each_source(options, failures, read);
    } catch (const StopReading &) {
    }
    return failures.exit();
}

Exit for_each_stretch(const InputOptions &options,
                      const std::function<void(Stretch &, const std::string &file)> &visit) {
    Failures failures(true, options.report);
    for_each_source(options, failures, [&](Opened &source, const std::function<void()> &show) {
        ByteStream &stream = source.stream;
        FrameReader reader(stream, options.keep_going);
        for (bool goes_on = true; goes_on; show()) {
            std::optional<Stretch> stretch;
            try {
                if (stream.look(1).empty() && stream.offset() == 0)
                    throw Failure(Exit::input, stream.name() + ": empty");
                stretch = reader.next();
            } catch (const Failure &failure) {
                failures.add(failure);
            }
            if (!stretch) break;
            const bool is_good = is_visited(failures, [&] { visit(*stretch, stream.name()); });
            goes_on = options.keep_going || (is_good && stretch->fault.empty());
            if (stretch->fault.empty() || !is_good) continue;
            const std::string consequence = options.keep_going ? skipped(reader.skip()) : "";
            failures.add(
                {Exit::input, frame_location(stream.name(), stretch->offset) + ": " + stretch->fault + consequence});
        }
    });
    return failures.exit();
}

}  // namespace tarn::tool
