#pragma once

#include "platform/contract/contract.hpp"

namespace mirk {

constexpr uint8_t frame_marker = 0xbc;

void put_header(void *frame, const mirk_message_header &header);  // MIRK_PLATFORM_HEADER_SIZE bytes
mirk_message_header get_header(const void *frame);

}  // namespace mirk
