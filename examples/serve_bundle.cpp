// Answers requests for the debug levels of the client layer until it is interrupted:
//
//     serve_bundle ADDRESS [LEVELS]
//     tarn show cl-debug --socket ADDRESS
//
// ADDRESS is the path of a socket file, or HOST:PORT. LEVELS are the enabled levels besides "error", such as
// "info,warn".
#include <iostream>
#include <lumo_ui_tarn/exchange.hpp>

using namespace lumo_ui_tarn;

int main(int argc, char **argv) try {
    if (argc < 2) {
        std::cerr << "usage: serve_bundle ADDRESS [LEVELS]\n";
        return 2;
    }
    const std::string enabled = argc > 2 ? argv[2] : "";
    const auto has = [&](const char *level) { return enabled.find(level) != std::string::npos; };
    answers known;
    known.add<cl_debug_rsp>([&](bundle_writer<cl_debug_rsp> &answer) {
        debug_setting_msg now(answer.context());
        now.payload().set_info_enabled(has("info")).set_trace_enabled(has("trace"));
        now.payload().set_warn_enabled(has("warn")).set_error_enabled(true);
        answer.add(now);
    });
    server one(argv[1], known);
    one.stop_on_signals();
    std::cout << "answering on " << one.address() << std::endl;
    one.run();
} catch (const std::exception &error) {
    std::cerr << error.what() << "\n";
    return 1;
}
