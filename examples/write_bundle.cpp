// Writes the frames of a bundle to a file:
//
//     write_bundle FILE
//     tarn decode FILE
#include <fstream>
#include <iostream>
#include <lumo_ui_tarn/exchange.hpp>
#include <stdexcept>
#include <string>

using namespace lumo_ui_tarn;

int main(int argc, char **argv) try {
    if (argc != 2) {
        std::cerr << "usage: write_bundle FILE\n";
        return 2;
    }
    const handle h;
    context c(h);
    dp_tt_msg message(c);
    const auto tables = message.payload().lumo_data();
    const auto classes = tables.grow(1)[0].set_lumo_num(3).set_duration(60).agg_tc_list().tc_list();
    classes.grow(2);
    classes[0].set_id(1).set_proto(6).set_src_prefix(address::parse("10.0.0.0/8").value());
    classes[1].set_id(2).set_proto(17).set_dst_prefix(address::parse("2001:db8::/32").value()).appl().set_id(9);

    const frame frames = bundle_writer<dp_tt_cfg_rsp>(c).add(message).commit().frames();
    std::ofstream file(argv[1], std::ios::binary);
    if (!file.write(reinterpret_cast<const char *>(frames.data()), static_cast<std::streamsize>(frames.size())).flush())
        throw std::runtime_error(std::string("cannot write ") + argv[1]);
} catch (const std::exception &error) {
    std::cerr << error.what() << "\n";
    return 1;
}
