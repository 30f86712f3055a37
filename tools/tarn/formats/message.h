// The three forms of a message that the library itself writes, and the one that it reads without a document.
#pragma once

#include <span>
#include <string>

#include "tools/tarn/support/handle.h"

namespace tarn::tool {

// Frames, text and XML of a message, or of a control message with a null object. The gaps that the text form leaves in
// front of nested closing lines are filled with blanks.
Bytes frame_of(const Handle &handle, const reflect::MessageOperations &operations, void *object);
std::string text_of(const Handle &handle, const reflect::MessageOperations &operations, void *object);
std::string xml_of(const Handle &handle, const reflect::MessageOperations &operations, void *object);

// Reads a plain message from a frame of the right luid. Throws a Failure with the error of the library.
Message message_from_frame(const Handle &handle, const reflect::MessageOperations &operations,
                           std::span<const std::uint8_t> frame);

}  // namespace tarn::tool
