// Writes items as consecutive frames.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

class FrameWriter {
public:
    // The handles are those of the items. With a bundle, its start and commit enclose all items. `write` gets each
    // frame.
    FrameWriter(const Handles &handles, const reflect::BundleOperations *bundle, std::uint32_t stamp,
                std::function<void(std::string_view)> write);
    FrameWriter(const FrameWriter &) = delete;
    FrameWriter &operator=(const FrameWriter &) = delete;
    ~FrameWriter() { close(); }

    // Throws a Failure that names the location of the item.
    void add(const Item &item);
    // Throws a Failure that names the origin if a bundle is open.
    void finish(const std::string &origin);

private:
    void choose(bool tracked);
    void write(const Item &item);
    bool close();

    const Handles &handles_;
    const reflect::BundleOperations *enclosing_;
    std::uint32_t stamp_;
    std::function<void(std::string_view)> write_;
    const Handle *handle_ = nullptr;  // that of the first message: a bundle is open on one handle only
    std::vector<Item> held_;          // control messages before it
    const reflect::BundleOperations *open_ = nullptr;
    std::string ready_;  // frames that are not written yet
};

std::string frames_of(const Handles &handles, const std::vector<Item> &items, const std::string &origin);

}  // namespace tarn::tool
