#include "tools/tarn/service/answerer.h"

#include <algorithm>
#include <utility>

#include "tools/tarn/formats/message.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"

namespace tarn::tool {

namespace {

void append(Bytes &to, const Bytes &frame) { to.insert(to.end(), frame.begin(), frame.end()); }

// Closes the bundle on the handle even if an exception is thrown.
class OpenBundle {
public:
    OpenBundle(const Handle &handle, const reflect::BundleOperations &bundle, Bytes &frames)
        : handle_(handle), bundle_(bundle), frames_(frames) {
        append(frames_, frame_of(handle_, bundle_.start, nullptr));
    }
    OpenBundle(const OpenBundle &) = delete;
    OpenBundle &operator=(const OpenBundle &) = delete;
    ~OpenBundle() {
        std::uint32_t err = 0;
        if (handle_.get()->send_bundle_open != 0) bundle_send_message_list_destroy(handle_.get(), context_id, &err);
    }

    void add(const Item &item) { append(frames_, frame_of(handle_, *item.identity.operations, item.object())); }
    void close(Control control) { append(frames_, frame_of(handle_, operations_of(bundle_, control), nullptr)); }

private:
    const Handle &handle_;
    const reflect::BundleOperations &bundle_;
    Bytes &frames_;
};

const reflect::MessageOperations &foreign_to(const reflect::BundleOperations &bundle) {
    const auto all = reflect::messages();
    return *std::find_if(all.begin(), all.end(), [&](const auto &o) { return !admits(bundle, o); });
}

// The library does not write such a message into the open bundle, so another handle writes it.
Bytes foreign_frame(const reflect::BundleOperations &bundle) {
    const Handle other(false);
    const Message message = Message::create(other, foreign_to(bundle));
    return frame_of(other, message.operations(), message.object());
}

Bytes second_start(const reflect::BundleOperations &bundle) {
    const Handle other(false);
    Bytes frames;
    const OpenBundle open(other, bundle, frames);
    return frames;
}

void corrupt(Bytes &frames, Fault fault) {
    if (fault == Fault::cut) frames.erase(frames.end() - MIRK_PLATFORM_FRAME_SIZE - 1, frames.end());
    if (fault == Fault::unknown) frames[MIRK_PLATFORM_FRAME_SIZE + MIRK_PLATFORM_HEADER_SIZE] ^= 0xff;
    if (fault == Fault::garbage) std::fill(frames.begin(), frames.end(), std::uint8_t{'x'});
}

}  // namespace

std::vector<Item> Answerer::read(const Handles &handles, const std::string &content, const std::string &path,
                                 bool lenient) try {
    return items_of(handles, content, path, lenient);
} catch (const Failure &) {
    if (!handles.reached_memory_limit()) throw;
    throw Failure(Exit::environment, path + ": the messages to serve need more memory than --snapshot-limit, " +
                                         std::to_string(snapshot_limit_) + " bytes");
}

void Answerer::add(const reflect::BundleOperations &bundle, const std::string &path, bool lenient) {
    Snapshot snapshot;
    const std::string content = read_input(path);
    for (const Handles *handles : {&plain_, &tracked_}) {
        std::vector<Item> &items = handles == &tracked_ ? snapshot.tracked : snapshot.plain;
        items = read(*handles, content, shown_path(path), lenient);
        std::erase_if(items, [](const Item &item) { return item.identity.is_control(); });
        for (const Item &item : items) {
            if (admits(bundle, *item.identity.operations)) continue;
            throw Failure(Exit::input, not_admitted(item.location, bundle, *item.identity.operations));
        }
        if (items.empty()) throw Failure(Exit::input, shown_path(path) + ": no message");
    }
    snapshots_.insert_or_assign(&bundle, std::move(snapshot));
}

std::vector<std::string> Answerer::names() const {
    std::vector<std::string> names;
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        if (has(b)) names.push_back(short_name(b.bundle->name));
    }
    return names;
}

std::shared_ptr<const Bytes> Answerer::answer(const reflect::BundleOperations &bundle, bool tracked, Fault fault) {
    Snapshot &snapshot = snapshots_.at(&bundle);
    std::weak_ptr<const Bytes> &last = tracked ? snapshot.tracked_answer : snapshot.plain_answer;
    std::shared_ptr<const Bytes> answer = last.lock();
    if (answer == nullptr) {
        ++written_;
        Bytes frames = write(bundle, tracked, fault);
        frames.shrink_to_fit();
        last = answer = std::make_shared<const Bytes>(std::move(frames));
    }
    return answer;
}

Bytes Answerer::write(const reflect::BundleOperations &bundle, bool tracked, Fault fault) const {
    Bytes frames;
    if (fault == Fault::silent) return frames;
    const Handle &handle = (tracked ? tracked_ : plain_).choose(tracked);
    const Snapshot &snapshot = snapshots_.at(&bundle);
    mirk_platform_handle_set_message_stamp(handle.get(), written_);
    OpenBundle open(handle, bundle, frames);
    if (fault == Fault::second_start) append(frames, second_start(bundle));
    if (fault == Fault::foreign) append(frames, foreign_frame(bundle));
    for (const Item &item : tracked ? snapshot.tracked : snapshot.plain) open.add(item);
    if (fault == Fault::no_commit) return frames;
    open.close(fault == Fault::abort ? Control::abort : Control::commit);
    corrupt(frames, fault);
    return frames;
}

}  // namespace tarn::tool
