// One entry of a file of any format: a message or a control message.
#pragma once

#include <optional>
#include <string>

#include "tools/tarn/support/handle.h"
#include "tools/tarn/support/identity.h"

namespace tarn::tool {

struct Item {
    Identity identity;
    std::optional<Message> message;  // empty for a control message
    std::string location;            // in the input, for error messages

    void *object() const { return message ? message->object() : nullptr; }
};

}  // namespace tarn::tool
