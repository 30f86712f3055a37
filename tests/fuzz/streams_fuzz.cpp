// Frames of bundles on two connections, interleaved and split at any byte: each receives what it would receive alone
// and unsplit.
#include <optional>

#include "pieces.h"
#include "platform/service/inbox.hpp"
#include "tool_target.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/service/receiver.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr unsigned first_tracked = 0, second_tracked = 1, via_shift = 2, small_limit = 5;
constexpr std::uint8_t second = 1, is_split = 2;

class Stream {
public:
    Stream(bool tracked, Via via, std::uint32_t limit) : receiver_(tracked, via), inbox_(limit) {}

    void feed(std::span<const std::uint8_t> bytes) {
        while (!bytes.empty() && !ended_) {
            const auto [at, room] = inbox_.room();
            const auto part = bytes.first(std::min(bytes.size(), room));
            std::copy(part.begin(), part.end(), at);
            inbox_.received(part.size());
            take_frames();
            bytes = bytes.subspan(part.size());
        }
    }

    std::string events;  // one line for each message and error

private:
    void take_frames() {
        while (!ended_) {
            void *frame = nullptr;
            std::uint32_t size = 0;
            const mirk::Inbox::Cut cut = inbox_.next(&frame, &size);
            if (cut == mirk::Inbox::Cut::more_needed) return;
            ended_ = cut != mirk::Inbox::Cut::frame;
            if (ended_) {
                events += cut == mirk::Inbox::Cut::bad ? "not a frame\n" : "too long\n";
            } else {
                receive({static_cast<const std::uint8_t *>(frame), size});
            }
        }
    }

    void receive(FrameBytes bytes) {
        try {
            receiver_.feed(identified(bytes, offset_, "stream"), "stream");
        } catch (const Failure &failure) {
            events += std::string(failure.what()) + "\n";
            ended_ = true;
        }
        for (const Item &item : receiver_.take()) events += rendered(item, Style::json);
        offset_ += bytes.size();
    }

    Receiver receiver_;
    mirk::Inbox inbox_;
    std::size_t offset_ = 0;
    bool ended_ = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    fuzz::Input input = fuzz::tool_input(data, size);
    const std::uint8_t byte = input.u8();
    const fuzz::Choice choice(byte);
    const auto via = static_cast<Via>((byte >> via_shift & 7U) % via_words().size());
    const std::uint32_t limit = choice.bit(small_limit) ? 100 : 1 << 16;
    const bool tracked[] = {choice.bit(first_tracked), choice.bit(second_tracked)};
    fuzz::Bytes all[2];
    std::string events[2];
    {
        Stream streams[] = {{tracked[0], via, limit}, {tracked[1], via, limit}};
        // What is split off arrives together with the next piece.
        fuzz::Bytes late[2];
        while (!input.empty()) {
            const std::uint8_t how = input.u8();
            const unsigned which = (how & second) != 0 ? 1 : 0;
            const fuzz::Bytes piece = fuzz::piece(input);
            all[which].insert(all[which].end(), piece.begin(), piece.end());
            fuzz::Bytes &rest = late[which];
            rest.insert(rest.end(), piece.begin(), piece.end());
            const std::size_t first = (how & is_split) != 0 ? input.u16() % (rest.size() + 1) : rest.size();
            streams[which].feed(std::span(rest).first(first));
            rest.erase(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(first));
        }
        for (unsigned i : {0U, 1U}) streams[i].feed(late[i]);
        for (unsigned i : {0U, 1U}) events[i] = streams[i].events;
    }
    for (unsigned i : {0U, 1U}) {
        Stream alone(tracked[i], via, limit);
        alone.feed(all[i]);
        require(alone.events == events[i], "a connection receives the same, however its bytes arrive");
    }
    return 0;
}
