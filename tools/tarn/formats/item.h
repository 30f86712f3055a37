// One entry of a file, whatever its form: a message or a control message.
#pragma once

#include <optional>
#include <string>

#include "tools/tarn/support/handle.h"
#include "tools/tarn/support/identity.h"

namespace tarn::tool {

struct Item {
    Identity identity;
    std::optional<Message> message;  // nothing for a control message
    std::string location;            // where it was found, for messages to people

    void *object() const { return message ? message->object() : nullptr; }
};

}  // namespace tarn::tool
