/* Answers requests for the debug levels of the client layer:
 *
 *     answer_request SOCKET [LEVELS]
 *     tarn show cl-debug --socket SOCKET
 *
 * LEVELS are the enabled levels besides "error", such as "info,warn". Each answer is a bundle of one message with these
 * levels. Requests for other bundles are refused. The program runs until it is interrupted. */
#include <errno.h>
#include <stdio.h>
#include <string.h>

#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

static uint32_t write_answer(mirk_handle *h, const char *enabled, uint8_t *frames, uint32_t size) {
    uint32_t err = 0;
    lumo_tarn_debug_setting_msg *msg = lumo_tarn_debug_setting_msg_message_create(h, 1);
    if (msg == NULL) return 0;
    lumo_tarn_debug_setting *levels = lumo_tarn_debug_setting_msg_message_lumo_tarn_debug_setting_get(h, 1, msg, &err);
    lumo_tarn_debug_setting_info_enabled_set_value(h, 1, levels, strstr(enabled, "info") != NULL, &err);
    lumo_tarn_debug_setting_trace_enabled_set_value(h, 1, levels, strstr(enabled, "trace") != NULL, &err);
    lumo_tarn_debug_setting_warn_enabled_set_value(h, 1, levels, strstr(enabled, "warn") != NULL, &err);
    lumo_tarn_debug_setting_error_enabled_set_value(h, 1, levels, 1, &err);
    uint32_t used = lumo_tarn_cl_debug_rsp_bundle_start_message_marshal(h, 1, frames, NULL, size, &err);
    used += lumo_tarn_debug_setting_msg_message_marshal(h, 1, frames + used, msg, size - used, &err);
    used += lumo_tarn_cl_debug_rsp_bundle_commit_message_marshal(h, 1, frames + used, NULL, size - used, &err);
    lumo_tarn_debug_setting_msg_message_destroy(h, 1, msg);
    return err == 0 ? used : 0;
}

static void on_frame(void *enabled, mirk_platform_server *server, mirk_platform_peer peer, void *frame, uint32_t size) {
    mirk_platform_request request;
    if (mirk_platform_request_decode(frame, size, &request) != 0) {
        mirk_platform_server_disconnect(server, peer, "the frame is not a request");
    } else if (strcmp(request.bundle, "lumo_tarn_cl_debug_rsp") != 0) {
        mirk_platform_server_refuse(server, peer, ENOENT, "this program serves only lumo_tarn_cl_debug_rsp");
    } else {
        uint8_t answer[1024 + 1]; /* one guard byte after the size */
        mirk_platform_handle_options options;
        mirk_platform_handle_options_init(&options);
        if (request.options & MIRK_PLATFORM_REQUEST_TRACKED) options.tracking = MIRK_PLATFORM_TRACKING_ON;
        mirk_handle *h = mirk_platform_handle_open(&options);
        uint32_t length = h != NULL ? write_answer(h, enabled, answer, 1024) : 0;
        if (length == 0) length = mirk_platform_refusal_encode(answer, 1024, 0, ENOMEM, "no answer was written", NULL);
        mirk_platform_server_send(server, peer, answer, length);
        mirk_platform_handle_close(h);
    }
}

int main(int argc, char **argv) {
    mirk_platform_server *server = NULL;
    mirk_platform_server_options options;
    mirk_platform_server_options_init(&options);
    options.on_frame = on_frame;
    options.user = argc > 2 ? argv[2] : "";
    if ((errno = (int)mirk_platform_server_open(argv[1], &options, &server)) != 0) {
        perror(argc > 1 ? argv[1] : "usage: answer_request SOCKET [LEVELS]");
        return argc > 1 ? 3 : 2;
    }
    mirk_platform_server_stop_on_signals(server);
    printf("answering on %s\n", argv[1]);
    fflush(stdout);
    mirk_platform_server_run(server);
    mirk_platform_server_close(server);
    return 0;
}
