// Requests the traffic tables of the data plane, receives the bundle, and prints its traffic classes:
//
//     tarn answer --socket SOCKET dp-tt-cfg=FILE &
//     collect_bundle SOCKET
//
// The runtime's dispatcher keeps the messages of a bundle on the handle until the commit arrives. Then it calls the
// bundle handler once. The handler is not called for a bundle that is aborted.
#include <arpa/inet.h>
#include <mirk_platform.h>

#include <cstdio>
#include <cstring>
#include <lumo_ui_tarn.hpp>
#include <memory>
#include <string>

using namespace lumo_ui_tarn;

namespace {

using Handle = std::unique_ptr<mirk_handle, std::size_t (*)(mirk_handle *)>;
using Client = std::unique_ptr<mirk_platform_client, void (*)(mirk_platform_client *)>;

std::string text_of(const address &value) {
    char text[INET6_ADDRSTRLEN] = "unset";
    std::uint32_t words[4];
    for (std::size_t i = 0; i < 4; ++i) words[i] = htonl(value.word[i]);
    if (inet_ntop(value.af, words, text, sizeof text) == nullptr) return text;
    return std::string(text) + "/" + std::to_string(value.prefix_len);
}

void print(dp_tt_msg_ref message) {
    for (const dp_tt_table_ref table : message.payload().lumo_data()) {
        const auto classes = table.agg_tc_list().tc_list();
        std::printf("processor %u: %zu classes\n", unsigned{table.lumo_num()}, classes.size());
        for (const dp_tc_ref tc : classes) {
            std::printf("  %u  protocol %u  %s -> %s\n", tc.id(), unsigned{tc.proto()},
                        text_of(tc.src_prefix()).c_str(), text_of(tc.dst_prefix()).c_str());
        }
    }
}

// Exceptions must not pass through C code: the context keeps errors, and a std::bad_alloc ends the program.
extern "C" void on_bundle(mirk_handle *h, std::uint32_t ctx_id, void *done, std::uint32_t *) noexcept {
    context c(h, ctx_id, errors::kept);
    for (auto *item = mirk_platform_received_first(h); item != nullptr; item = mirk_platform_received_next(h, item)) {
        print({c, static_cast<lumo_tarn_dp_tt_msg *>(mirk_platform_received_message(item))});
    }
    *static_cast<bool *>(done) = true;
}

void check(std::uint32_t error, const char *what) {
    if (error != 0) throw std::system_error(static_cast<int>(error), std::generic_category(), what);
}

// Registers the messages that may arrive: those of the bundle.
void register_messages(mirk_handle *h) {
    const mirk_platform_message messages[] = {
        {message_lumo_tarn_dp_tt_cfg_rsp_bundle_start_luid, "start",
         lumo_tarn_dp_tt_cfg_rsp_bundle_start_message_unmarshal, nullptr, nullptr, nullptr},
        {message_lumo_tarn_dp_tt_cfg_rsp_bundle_abort_luid, "abort",
         lumo_tarn_dp_tt_cfg_rsp_bundle_abort_message_unmarshal, nullptr, nullptr, nullptr},
        {message_lumo_tarn_dp_tt_cfg_rsp_bundle_commit_luid, "commit",
         lumo_tarn_dp_tt_cfg_rsp_bundle_commit_message_unmarshal, nullptr, nullptr, nullptr},
        {dp_tt_msg::luid(), "tables",
         [](auto *handle, auto ctx_id, auto *user, auto **out, auto *buffer, auto size, auto handler, auto *err) {
             return lumo_tarn_dp_tt_msg_message_unmarshal(
                 handle, ctx_id, user, reinterpret_cast<lumo_tarn_dp_tt_msg **>(out), buffer, size, handler, err);
         },
         [](auto *handle, auto ctx_id, auto **out, auto *buffer, auto size, auto *err) {
             return lumo_tarn_dp_tt_msg_message_unmarshal_only(
                 handle, ctx_id, reinterpret_cast<lumo_tarn_dp_tt_msg **>(out), buffer, size, err);
         },
         [](auto *handle, auto ctx_id, auto *message) {
             lumo_tarn_dp_tt_msg_message_destroy(handle, ctx_id, static_cast<lumo_tarn_dp_tt_msg *>(message));
         },
         nullptr},
    };
    for (const mirk_platform_message &message : messages)
        check(mirk_platform_dispatch_register(h, &message), "register");
}

void collect(const char *socket) {
    constexpr std::uint32_t timeout_ms = 10000;
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.bundle_handler = on_bundle;
    const Handle h(mirk_platform_handle_open(&options), mirk_platform_handle_close);
    register_messages(h.get());

    mirk_platform_client *opened = nullptr;
    check(mirk_platform_client_open(socket, 0, timeout_ms, &opened), socket);
    const Client client(opened, mirk_platform_client_close);
    std::uint8_t request[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const std::uint32_t length =
        mirk_platform_request_encode(request, sizeof request, 0, dp_tt_cfg_rsp::name, 0, nullptr);
    check(mirk_platform_client_send(client.get(), request, length, timeout_ms), "send");

    for (bool done = false; !done;) {
        void *bytes = nullptr;
        std::uint32_t size = 0;
        check(mirk_platform_client_receive(client.get(), &bytes, &size, timeout_ms), "receive");
        mirk_platform_request refusal;
        if (mirk_platform_request_decode(bytes, size, &refusal) == 0) check(refusal.number, refusal.sentence);
        mirk_platform_frame frame;
        check(mirk_platform_frame_look(bytes, size, &frame), "frame");
        mirk_platform_report report;
        check(mirk_platform_dispatch(h.get(), 1, bytes, size, &done, &report), report.sentence);
        if (std::memcmp(frame.luid, message_lumo_tarn_dp_tt_cfg_rsp_bundle_abort_luid, sizeof frame.luid) == 0) {
            check(ECANCELED, "the server aborted the bundle");
        }
    }
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: collect_bundle SOCKET\n");
        return 2;
    }
    mirk_platform_trace_set_levels(1);
    try {
        collect(argv[1]);
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
