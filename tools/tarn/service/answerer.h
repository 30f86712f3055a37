// The frames that answer a request: start, the bundle's messages, commit.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

// Errors that an answer contains on purpose, to test the asking side.
enum class Fault : std::uint8_t { none, abort, second_start, foreign, cut, unknown, rubbish, no_commit, silent };

class Answerer {
public:
    // The file's messages must be those that the bundle admits.
    void add(const reflect::BundleOperations &bundle, const std::string &path, bool lenient);

    bool has(const reflect::BundleOperations &bundle) const { return snapshots_.count(&bundle) != 0; }
    std::vector<std::string> names() const;

    // All frames of the answer, back to back.
    Bytes answer(const reflect::BundleOperations &bundle, bool tracked, std::uint32_t stamp, Fault fault);

private:
    struct Snapshot {
        std::vector<Item> plain, tracked;
    };

    Handles plain_{Tracking::off}, tracked_{Tracking::on};
    std::map<const reflect::BundleOperations *, Snapshot> snapshots_;
};

}  // namespace tarn::tool
