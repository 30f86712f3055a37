// Reading values from a document.
#pragma once

#include <cerrno>
#include <cstdint>
#include <string_view>

#include "platform/contract/text.hpp"

namespace mirk {

// The text of the first element at a path. Text that is contiguous in the document is not copied.
class ElementText {
public:
    ElementText(void *document, const char *path) noexcept;
    ~ElementText();
    ElementText(const ElementText &) = delete;
    ElementText &operator=(const ElementText &) = delete;

    uint32_t error() const { return error_; }  // 0, ENOENT, ENOMEM, or EINVAL for an invalid path or document
    std::string_view view() const { return view_; }

private:
    uint32_t error_ = 0;
    std::string_view view_;
    unsigned char *owned_ = nullptr;
};

// Reads one member. `parse` gets the text without surrounding blanks and returns whether it is a valid value.
template <typename Parse>
void read_element(const char *path, void *document, const void *field, uint32_t *err, Parse parse) {
    if (*err != 0) return;
    if (field == nullptr) {
        *err = EINVAL;
        return;
    }
    const ElementText text(document, path);
    *err = text.error();
    if (*err == 0 && !parse(trimmed(text.view()))) *err = EINVAL;
}

}  // namespace mirk
