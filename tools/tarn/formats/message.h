// Formats of a message that the library writes itself, and frames, which it also reads.
#pragma once

#include <span>
#include <string>

#include "tools/tarn/support/handle.h"

namespace tarn::tool {

// Frame, text and XML of a message; the object is null for a control message. Gaps in the text, which the library
// leaves before nested closing lines, are filled with blanks.
Bytes frame_of(const Handle &handle, const reflect::MessageOperations &operations, void *object);
std::string text_of(const Handle &handle, const reflect::MessageOperations &operations, void *object);
std::string xml_of(const Handle &handle, const reflect::MessageOperations &operations, void *object);

// Throws a Failure if the frame claims more elements or characters than it can contain. The library would allocate
// memory for all of them before it finds that the frame ends.
void require_admitted(const Handle &handle, const reflect::MessageOperations &operations,
                      std::span<const std::uint8_t> frame);

// Reads a plain message from a frame with its luid, with per-field state if the handle tracks it. Throws a Failure if
// the frame is not admitted, or with the error of the library.
Message message_from_frame(const Handle &handle, const reflect::MessageOperations &operations,
                           std::span<const std::uint8_t> frame);

}  // namespace tarn::tool
