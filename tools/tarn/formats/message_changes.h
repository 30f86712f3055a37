// All differences between two sequences of messages.
#pragma once

#include <functional>

#include "tools/tarn/formats/comparison.h"
#include "tools/tarn/formats/message_pairs.h"

namespace tarn::tool {

// Messages are read only if their bytes differ. Reports each difference, with the number of its message from 1; that of
// a message which only b has is its number in b. Returns the number of messages in the longer sequence.
std::size_t compare_sequences(const Handles &handles, Comparison &comparison, const MessagePairs::Next &a,
                              const MessagePairs::Next &b,
                              const std::function<void(Change &, std::size_t number)> &report);

// Puts the message before the place of a change: "message 2, class 1003".
void name_message(Change &change, std::size_t number);

}  // namespace tarn::tool
