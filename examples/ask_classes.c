/* Requests the traffic tables of the data plane and prints their traffic classes:
 *
 *     tarn answer --socket SOCKET dp-tt-cfg=FILE &
 *     ask_classes SOCKET
 *
 * Messages are printed when the commit has arrived: a bundle that is aborted or cut does not count. Nor does one of 100
 * messages or more. */
#include <errno.h>
#include <stdio.h>
#include <string.h>

#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

static void print_classes(mirk_handle *h, lumo_tarn_dp_tt_msg *msg, uint32_t *err) {
    lumo_tarn_dp_tt_table_data *data = lumo_tarn_dp_tt_msg_message_lumo_tarn_dp_tt_table_data_get(h, 1, msg, err);
    for (uint32_t i = 0; i < lumo_tarn_dp_tt_table_data_num_lumos_get_value(h, 1, data, err); ++i) {
        lumo_tarn_dp_tt_table *table = lumo_tarn_dp_tt_table_data_lumo_data_get(h, 1, data, i, err);
        lumo_tarn_dp_tc_list *list = lumo_tarn_dp_tt_table_agg_tc_list_get(h, 1, table, err);
        const uint32_t classes = lumo_tarn_dp_tc_list_num_tcs_get_value(h, 1, list, err);
        printf("processor %u: %u classes\n", lumo_tarn_dp_tt_table_lumo_num_get_value(h, 1, table, err), classes);
        for (uint32_t j = 0; j < classes; ++j) {
            char from[MIRK_PLATFORM_ADDRESS_TEXT_SIZE] = "?", to[MIRK_PLATFORM_ADDRESS_TEXT_SIZE] = "?";
            lumo_tarn_dp_tc *tc = lumo_tarn_dp_tc_list_tc_list_get(h, 1, list, j, err);
            mirk_platform_address_text(lumo_tarn_dp_tc_src_prefix_get(h, 1, tc, err), from, sizeof from);
            mirk_platform_address_text(lumo_tarn_dp_tc_dst_prefix_get(h, 1, tc, err), to, sizeof to);
            printf("  %u  protocol %u  %s -> %s\n", lumo_tarn_dp_tc_id_get_value(h, 1, tc, err),
                   lumo_tarn_dp_tc_proto_get_value(h, 1, tc, err), from, to);
        }
    }
}

static int is(const mirk_platform_frame *frame, const uint8_t *luid) { return memcmp(frame->luid, luid, 16) == 0; }

/* Receives one frame. Sets ended if it is the commit. */
static uint32_t receive(mirk_platform_client *client, mirk_handle *h, lumo_tarn_dp_tt_msg **msg, int *ended) {
    void *bytes;
    uint32_t size, err = 0;
    mirk_platform_request reply;
    mirk_platform_frame frame;
    *msg = NULL;
    if ((err = mirk_platform_client_receive(client, &bytes, &size, 10000)) != 0) return err;
    if (mirk_platform_request_decode(bytes, size, &reply) == 0) return reply.number != 0 ? reply.number : EBADMSG;
    if ((err = mirk_platform_frame_look(bytes, size, &frame)) != 0) return err;
    if (is(&frame, message_lumo_tarn_dp_tt_cfg_rsp_bundle_abort_luid)) return ECANCELED;
    *ended = is(&frame, message_lumo_tarn_dp_tt_cfg_rsp_bundle_commit_luid);
    if (is(&frame, message_lumo_tarn_dp_tt_msg_luid)) {
        lumo_tarn_dp_tt_msg_message_unmarshal_only(h, 1, msg, bytes, size, &err);
    } else if (!*ended && !is(&frame, message_lumo_tarn_dp_tt_cfg_rsp_bundle_start_luid)) {
        err = ENOENT;
    }
    return err;
}

int main(int argc, char **argv) {
    lumo_tarn_dp_tt_msg *messages[100];
    uint8_t request[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    int count = 0, ended = 0;
    mirk_platform_client *client = NULL;
    mirk_handle *h = mirk_platform_handle_open(NULL);
    const uint32_t size = mirk_platform_request_encode(request, sizeof request, 0, "lumo_tarn_dp_tt_cfg_rsp", 0, NULL);
    uint32_t err = h == NULL ? ENOMEM : mirk_platform_client_open(argv[1], 0, 10000, &client);
    if (err == 0) err = mirk_platform_client_send(client, request, size, 10000);
    while (err == 0 && !ended && count < 100) {
        err = receive(client, h, &messages[count], &ended);
        if (messages[count] != NULL) ++count;
    }
    if (err == 0 && !ended) err = EMSGSIZE;
    for (int i = 0; i < count; ++i) {
        if (ended) print_classes(h, messages[i], &err);
        lumo_tarn_dp_tt_msg_message_destroy(h, 1, messages[i]);
    }
    mirk_platform_client_close(client);
    mirk_platform_handle_close(h);
    if (err != 0) fprintf(stderr, "%s: %s\n", argc > 1 ? argv[1] : "usage: ask_classes SOCKET", strerror((int)err));
    return err == 0 ? 0 : argc > 1 ? 1 : 2;
}
