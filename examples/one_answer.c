/* Writes the frames of an answer to a debug request of the client layer: opens the bundle, fills one message, commits
 * the bundle, and prints the size. The README shows the block in the middle, line by line. */
#include <stdio.h>

#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

int main(void) {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    mirk_handle *h = mirk_platform_handle_open(&options);
    if (h == NULL) return 3;

    uint32_t err = 0;
    uint8_t frames[4096 + 1]; /* one guard byte after the size */
    lumo_tarn_debug_setting_msg *msg = lumo_tarn_debug_setting_msg_message_create(h, 1);
    lumo_tarn_debug_setting *levels = lumo_tarn_debug_setting_msg_message_lumo_tarn_debug_setting_get(h, 1, msg, &err);
    lumo_tarn_debug_setting_warn_enabled_set_value(h, 1, levels, 1, &err);
    uint32_t size = lumo_tarn_cl_debug_rsp_bundle_start_message_marshal(h, 1, frames, NULL, 4096, &err);
    size += lumo_tarn_debug_setting_msg_message_marshal(h, 1, frames + size, msg, 4096 - size, &err);
    size += lumo_tarn_cl_debug_rsp_bundle_commit_message_marshal(h, 1, frames + size, NULL, 4096 - size, &err);
    lumo_tarn_debug_setting_msg_message_destroy(h, 1, msg);

    printf("%u bytes in three frames, error %u\n", size, err);
    mirk_platform_handle_close(h);
    return err == 0 && size == 43 + 65 + 43 ? 0 : 1;
}
