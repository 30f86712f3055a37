// Receives the frames of bundles from a pipe and prints their messages, a line each:
//
//     receive_bundle <FILE
//
// A bundle that is aborted, cut or damaged is an error, and none of its messages is printed.
#include <cstdio>
#include <iostream>
#include <lumo_ui_tarn/exchange.hpp>

using namespace lumo_ui_tarn;

int main() try {
    const handle h;
    context c(h);
    bundle_reader<dp_tt_cfg_rsp> reader(c);
    char bytes[65536];
    while (const std::size_t size = std::fread(bytes, 1, sizeof bytes, stdin)) {
        reader.feed(bytes, size);
        while (const auto bundle = reader.next()) {
            for (const dp_tt_msg &message : *bundle) std::cout << message << "\n";
        }
    }
    reader.finish();
} catch (const std::exception &error) {
    std::cerr << error.what() << "\n";
    return 1;
}
