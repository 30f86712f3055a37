// The text form of an address: ADDRESS/PREFIX_LEN if that represents it fully, otherwise its members.
#pragma once

#include <string_view>

#include "platform/contract/contract.hpp"

namespace mirk {

class AddressText {
public:
    explicit AddressText(const ip_address &address);
    std::string_view view() const { return {text_, length_}; }

private:
    char text_[96];
    size_t length_ = 0;
};

// Returns false and leaves the address unchanged unless the whole text has one of these forms.
bool parse_address(std::string_view text, ip_address *address);

}  // namespace mirk
