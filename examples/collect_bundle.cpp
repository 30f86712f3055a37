// Requests the traffic tables of the data plane and prints their traffic classes:
//
//     tarn answer --socket SOCKET dp-tt-cfg=FILE &
//     collect_bundle SOCKET
#include <iostream>
#include <lumo_ui_tarn/exchange.hpp>

using namespace lumo_ui_tarn;

int main(int argc, char **argv) try {
    if (argc != 2) {
        std::cerr << "usage: collect_bundle SOCKET\n";
        return 2;
    }
    const handle h;
    context c(h);
    for (const dp_tt_msg &message : ask<dp_tt_cfg_rsp>(c, argv[1])) {
        for (const dp_tt_table_view table : message.payload().lumo_data()) {
            const auto classes = table.agg_tc_list().tc_list();
            std::cout << "processor " << unsigned{table.lumo_num()} << ": " << classes.size() << " classes\n";
            for (const dp_tc_view tc : classes) {
                std::cout << "  " << tc.id() << "  protocol " << unsigned{tc.proto()} << "  " << tc.src_prefix()
                          << " -> " << tc.dst_prefix() << "\n";
            }
        }
    }
} catch (const std::exception &error) {
    std::cerr << error.what() << "\n";
    return 1;
}
