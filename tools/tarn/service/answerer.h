// The frames of an answer: start, the messages of the bundle, commit.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

// Deliberate errors in an answer, for tests of the requesting side.
enum class Fault : std::uint8_t { none, abort, second_start, foreign, cut, unknown, garbage, no_commit, silent };

class Answerer {
public:
    // The limit, in bytes, holds for all messages without state together, and for all with state.
    explicit Answerer(std::uint64_t snapshot_limit) : snapshot_limit_(snapshot_limit) {}

    // Reads the messages of a bundle from a file. Throws a Failure if the bundle does not admit one of them, or if the
    // limit is exceeded.
    void add(const reflect::BundleOperations &bundle, const std::string &path, bool lenient);

    bool has(const reflect::BundleOperations &bundle) const { return snapshots_.count(&bundle) != 0; }
    std::vector<std::string> names() const;

    // All frames of the answer, concatenated. An answer that is still in use is returned again. The stamp in the frames
    // is the number of the answer, without those that were returned again.
    std::shared_ptr<const Bytes> answer(const reflect::BundleOperations &bundle, bool tracked, Fault fault);

private:
    struct Snapshot {
        std::vector<Item> plain, tracked;
        std::weak_ptr<const Bytes> plain_answer, tracked_answer;
    };

    Bytes write(const reflect::BundleOperations &bundle, bool tracked, Fault fault) const;
    std::vector<Item> read(const Handles &handles, const std::string &content, const std::string &path, bool lenient);

    std::uint64_t snapshot_limit_;
    Handles plain_{Tracking::off, snapshot_limit_}, tracked_{Tracking::on, snapshot_limit_};
    std::map<const reflect::BundleOperations *, Snapshot> snapshots_;
    std::uint32_t written_ = 0;
};

}  // namespace tarn::tool
