/* Answers show requests for the debug levels of the client layer:
 *
 *     answer_request SOCKET [info|trace|warn]...
 *     tarn show cl-debug --socket SOCKET
 *
 * The arguments enable levels. Each answer is a bundle of one message with the current levels. Requests for other
 * bundles are refused. The program runs until it is interrupted. */
#include <errno.h>
#include <signal.h>
#include <stdio.h>
#include <string.h>

#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

static const uint32_t id = 1;
static mirk_platform_server *running;

static void on_interrupt(int number) {
    (void)number;
    mirk_platform_server_stop(running);
}

struct levels {
    uint8_t info, trace, warn, error;
};

/* Returns the size of the answer in bytes, or 0 and sets err. Each answer has its own handle, because the request
 * decides whether the answer has state bytes. */
static uint32_t write_answer(const struct levels *now, int tracked, uint8_t *frames, uint32_t size, uint32_t *err) {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = tracked ? MIRK_PLATFORM_TRACKING_ON : MIRK_PLATFORM_TRACKING_NONE;
    mirk_handle *h = mirk_platform_handle_open(&options);
    if (h == NULL) {
        *err = ENOMEM;
        return 0;
    }
    lumo_tarn_debug_setting_msg *msg = lumo_tarn_debug_setting_msg_message_create(h, id);
    uint32_t used = 0;
    if (msg != NULL) {
        lumo_tarn_debug_setting *levels =
            lumo_tarn_debug_setting_msg_message_lumo_tarn_debug_setting_get(h, id, msg, err);
        lumo_tarn_debug_setting_info_enabled_set_value(h, id, levels, now->info, err);
        lumo_tarn_debug_setting_trace_enabled_set_value(h, id, levels, now->trace, err);
        lumo_tarn_debug_setting_warn_enabled_set_value(h, id, levels, now->warn, err);
        lumo_tarn_debug_setting_error_enabled_set_value(h, id, levels, now->error, err);
        used += lumo_tarn_cl_debug_rsp_bundle_start_message_marshal(h, id, frames, NULL, size, err);
        used += lumo_tarn_debug_setting_msg_message_marshal(h, id, frames + used, msg, size - used, err);
        used += lumo_tarn_cl_debug_rsp_bundle_commit_message_marshal(h, id, frames + used, NULL, size - used, err);
        lumo_tarn_debug_setting_msg_message_destroy(h, id, msg);
    } else {
        *err = ENOMEM;
    }
    mirk_platform_handle_close(h);
    return *err == 0 ? used : 0;
}

static void on_frame(void *user, mirk_platform_server *server, mirk_platform_peer peer, void *frame, uint32_t size) {
    uint8_t answer[1024 + 1]; /* one guard byte after the size */
    mirk_platform_request request;
    uint32_t err = 0, length = 0;
    if (mirk_platform_request_decode(frame, size, &request) != 0) {
        mirk_platform_server_disconnect(server, peer, "the frame is not a request");
        return;
    }
    if (strcmp(request.bundle, "lumo_tarn_cl_debug_rsp") == 0) {
        length = write_answer(user, (request.options & MIRK_PLATFORM_REQUEST_TRACKED) != 0, answer, 1024, &err);
    } else {
        err = ENOENT;
    }
    if (err != 0) {
        length =
            mirk_platform_refusal_encode(answer, 1024, 0, err, "this program serves only lumo_tarn_cl_debug_rsp", NULL);
    }
    mirk_platform_server_send(server, peer, answer, length);
}

int main(int argc, char **argv) {
    struct levels now = {0, 0, 0, 1};
    mirk_platform_server_options options;
    if (argc < 2) {
        fprintf(stderr, "usage: answer_request SOCKET [info|trace|warn]...\n");
        return 2;
    }
    for (int i = 2; i < argc; ++i) {
        if (strcmp(argv[i], "info") == 0) now.info = 1;
        if (strcmp(argv[i], "trace") == 0) now.trace = 1;
        if (strcmp(argv[i], "warn") == 0) now.warn = 1;
    }
    mirk_platform_server_options_init(&options);
    options.on_frame = on_frame;
    options.user = &now;
    const mirk_platform_error error = mirk_platform_server_open(argv[1], &options, &running);
    if (error != 0) {
        fprintf(stderr, "%s: %s\n", argv[1], strerror((int)error));
        return 3;
    }
    signal(SIGINT, on_interrupt);
    signal(SIGTERM, on_interrupt);
    printf("answering on %s\n", argv[1]);
    fflush(stdout);
    mirk_platform_server_run(running);
    /* Further signals must not reach a server that is gone. */
    signal(SIGINT, SIG_IGN);
    signal(SIGTERM, SIG_IGN);
    mirk_platform_server_close(running);
    return 0;
}
