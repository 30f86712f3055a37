#include "tools/tarn/service/spool.h"

#include <cerrno>
#include <cstring>
#include <vector>

#include "tools/tarn/support/failure.h"

namespace tarn::tool {

namespace {

void require(bool done) {
    if (!done) throw Failure(Exit::environment, "temporary file: " + error_text(static_cast<std::uint32_t>(errno)));
}

}  // namespace

void Spool::append(FrameBytes frame) {
    const auto size = static_cast<std::uint32_t>(frame.size());
    pieces_.append(reinterpret_cast<const char *>(&size), sizeof size).append(chars_of(frame));
    if (pieces_.size() > most_in_memory) move_to_file();
}

void Spool::move_to_file() {
    if (file_ == nullptr) file_.reset(std::tmpfile());
    require(file_ != nullptr && std::fwrite(pieces_.data(), 1, pieces_.size(), file_.get()) == pieces_.size());
    pieces_.clear();
}

void Spool::for_each(const std::function<void(FrameBytes)> &each) {
    std::uint32_t size = 0;
    if (file_ == nullptr) {
        for (std::size_t at = 0; at < pieces_.size(); at += size) {
            std::memcpy(&size, pieces_.data() + at, sizeof size);
            at += sizeof size;
            each(bytes_of(std::string_view(pieces_).substr(at, size)));
        }
        return;
    }
    move_to_file();
    require(std::fseek(file_.get(), 0, SEEK_SET) == 0);
    std::vector<std::uint8_t> frame;
    while (std::fread(&size, sizeof size, 1, file_.get()) == 1) {
        frame.resize(size);
        require(std::fread(frame.data(), 1, size, file_.get()) == size);
        each(frame);
    }
    require(std::ferror(file_.get()) == 0 && std::fseek(file_.get(), 0, SEEK_END) == 0);
}

}  // namespace tarn::tool
