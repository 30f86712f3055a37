#include <cstdio>

#include "messaging/message.h"

namespace tarn {

// A message whose XML does not fit is not recorded. The error stays set while the handler is called.
template <const Message &M>
void Recording<M>::record(mirk_handle *h, std::uint32_t ctx_id, message_object *message, std::uint32_t *err) {
    if (mirklib_msg_recorder_get_state() == 0) return;
    constexpr std::uint32_t size = 4096;
    auto *buffer = static_cast<char *>(mirklib_malloc(nullptr, ctx_id, size));
    // A recording that silently lacks messages would be worse than an abort.
    if (buffer == nullptr) die(g_mirk_lumo_ui_tarn_message_trace_module_id, "(FATAL): MIRK record - malloc failed");
    const std::uint32_t length = MessageRendering<M>::to_xml(h, ctx_id, buffer, message, size, err);
    if (*err == 0) {
        if (std::FILE *stream = mirklib_msg_recorder_get_handle(); stream != nullptr) {
            [[maybe_unused]] const std::size_t written = std::fwrite(buffer, length, 1, stream);
        } else {
            static constexpr auto text = named_text<M>("(ERR): MIRK record - NULL file handle for message ", "");
            trace_message(error_level, text.data());
        }
    }
    mirklib_free(nullptr, ctx_id, buffer);
}

}  // namespace tarn

#include "exports/recording.inc"
