// Prints what a byte of input costs at most: factors [--size KIB] [NAME...]. Each command of the tool, the service, the
// C++ reader and the Python reader gets its worst inputs, in two sizes. Memory and time are those that the system
// reports for the process. Fails if a byte costs more memory than docs/trust.md states, or if time grows faster than
// the input.
#include <fcntl.h>
#include <mirk_platform.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <lumo_ui_tarn.hpp>
#include <map>

#include "../tools/process.h"

using namespace tool_test;

namespace {

using Arguments = std::vector<std::string>;

std::string must(const Arguments &arguments, std::string_view input = {}) {
    Outcome outcome = tarn(arguments, input);
    if (outcome.exit == 0) return std::move(outcome.out);
    throw std::runtime_error("tarn " + arguments[0] + ": " + outcome.err);
}

std::string repeated(const std::string &unit, std::size_t size) {
    std::string text;
    while (text.size() < size) text += unit;
    return text;
}

// ---- the worst inputs

std::uint32_t number_at(const std::string &frame, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) number = number << 8 | static_cast<std::uint8_t>(frame[at + i]);
    return number;
}
void put_number(std::string &frame, std::size_t at, std::size_t number) {
    for (std::size_t i = 0; i < 4; ++i) frame[at + i] = static_cast<char>(number >> (24 - 8 * i));
}

// One frame of elements without a body, which take six bytes and a state byte each. Theirs are the largest objects.
std::string bare_elements(std::size_t size) {
    std::string frame =
        must({"encode", "--tracked"},
             "<lumo_tarn_cl_cfg_msg><lumo_tarn_cl_cfg_data></lumo_tarn_cl_cfg_data></lumo_tarn_cl_cfg_msg>");
    const std::string dissection = must({"dissect"}, frame);
    // Each of them is inside the one before.
    std::size_t line = 0;
    const auto offset_of = [&](const std::string &name) {
        line = dissection.find(" " + name + " ", line);
        return std::stoul(dissection.substr(dissection.rfind('\n', line) + 1));
    };
    const std::size_t elements = size / 7, added = 7 * elements + 1;
    for (const char *const outer : {"payload", "global_info", "lumo_info_list"}) {
        const std::size_t jump = offset_of(outer) + 2;  // after variant and flag
        put_number(frame, jump, number_at(frame, jump) + added);
    }
    const std::size_t count = offset_of("num_lumos");
    put_number(frame, count, elements);
    frame.insert(count + 4, repeated(std::string("\x80\0\0\0\0\4", 6), 6 * elements) + std::string(1 + elements, '\0'));
    put_number(frame, 12, frame.size());
    return frame;
}

std::string generated(std::size_t size, const std::string &form) {
    // A number of few digits takes more characters as XML or JSON than bytes in a frame.
    const std::size_t of_frame = form == "frames" ? size : size / 8;
    Arguments arguments{"generate", "dp-tt-cfg", "--form", form, "--size", std::to_string(of_frame)};
    if (form == "frames") arguments.insert(arguments.end(), {"--tracked", "--bundle"});
    return must(arguments);
}

std::string control_frames(std::size_t size) {
    std::string bundle = must({"generate", "cl-debug", "--form", "frames", "--bundle"});
    return repeated(bundle.substr(0, 43) + bundle.substr(bundle.size() - 43), size);
}

constexpr const char *empty_message =
    "<lumo_tarn_debug_setting_msg><lumo_tarn_debug_setting></lumo_tarn_debug_setting></lumo_tarn_debug_setting_msg>";

// Lists that are as long as their length allows: 2,500 elements of ten bytes.
std::string xml_lists(std::size_t size) {
    const std::string before = "<lumo_tarn_dp_tt_msg><lumo_tarn_dp_tt_table_data><lumo_data><agg_tc_list>",
                      after = "</agg_tc_list></lumo_data></lumo_tarn_dp_tt_table_data></lumo_tarn_dp_tt_msg>";
    return repeated(before + repeated("<tc_list/>", 25000) + after, size);
}

std::string json_elements(std::size_t size) {
    std::string text = R"({"message": "lumo_tarn_dp_tt_msg", "payload": {"lumo_data": [{"learn_list": {}, )"
                       R"("agg_tc_list": {"tc_list": [{})";
    text += repeated(",{}", size);
    return text + "]}}]}}";
}

struct Input {
    const char *name;
    std::function<std::string(std::size_t)> make;
};
const std::map<std::string, Input> &inputs() {
    static const std::map<std::string, Input> all = {
        {"elements", {"elements without body", bare_elements}},
        {"frames", {"tracked answer", [](std::size_t size) { return generated(size, "frames"); }}},
        {"controls", {"control messages", control_frames}},
        {"xml", {"XML of an answer", [](std::size_t size) { return generated(size, "xml"); }}},
        {"fragments", {"XML fragments", [](std::size_t size) { return repeated(empty_message, size); }}},
        {"xml-lists", {"XML of long lists", xml_lists}},
        {"json", {"JSON of an answer", [](std::size_t size) { return generated(size, "json"); }}},
        {"json-elements", {"JSON of empty elements", json_elements}},
        {"json-lines",
         {"JSON lines",
          [](std::size_t size) {
              return repeated("{\"message\": \"lumo_tarn_debug_setting_msg\", \"payload\": {}}\n", size);
          }}},
    };
    return all;
}

// ---- what reads them

struct Reader {
    const char *name;
    std::size_t bound;  // bytes of memory for a byte of input, as docs/trust.md states
    std::vector<std::string> inputs;
    std::function<Arguments(const std::string &file, const Directory &directory)> command;
};

const std::vector<std::string> frames{"elements", "frames", "controls"},
    documents{"xml", "fragments", "json", "json-elements", "json-lines"};

Reader of_tool(const char *name, std::size_t bound, std::vector<std::string> inputs, Arguments before,
               std::vector<std::string> after = {}) {
    return {name, bound, std::move(inputs), [=](const std::string &file, const Directory &) {
                Arguments all{tool()};
                all.insert(all.end(), before.begin(), before.end());
                all.push_back(file);
                all.insert(all.end(), after.begin(), after.end());
                return all;
            }};
}

// The same messages with another state byte at their end, so that they have to be read to find them equal.
std::string with_another_state(const std::string &file) {
    std::ifstream in(file, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(in), {}};
    constexpr std::size_t control_size = 43;
    const bool has_controls = number_at(content, 12) == control_size;
    if (has_controls && number_at(content, control_size + 12) == control_size) return content;
    content[content.size() - 1 - (has_controls ? control_size : 0)] ^= 1;
    return content;
}

std::vector<Reader> readers(const std::string &self) {
    std::vector<Reader> all{
        of_tool("decode", 300, frames, {"decode"}),
        of_tool("decode --xml", 300, frames, {"decode", "--xml"}),
        of_tool("decode --json", 300, frames, {"decode", "--json"}),
        of_tool("encode", 500, documents, {"encode"}),
        of_tool("dissect", 100, frames, {"dissect"}),
        of_tool("view", 100, frames, {"view"}),
        {"diff", 500, frames,
         [](const std::string &file, const Directory &directory) {
             return Arguments{tool(), "diff", "--no-state", file, directory.write("other", with_another_state(file))};
         }},
        {"record --from", 300, frames,
         [](const std::string &file, const Directory &directory) {
             return Arguments{
                 tool(), "record", "--from", file, "-o", directory.path("recording"), "--full", directory.path("full")};
         }},
        {"answer, its files", 800, {"elements", "frames", "xml", "json", "json-elements"}, {}},
        {"show", 300, {"elements", "frames"}, {}},
        {"C++, from_frame()",
         300,
         {"elements", "frames"},
         [=](const std::string &file, const Directory &) {
             return Arguments{self, "--read", file};
         }},
    };
    setenv("PYTHONPATH", TARN_PYTHON_PATH, 1);
    setenv("LUMO_TARN_LIBRARY", TARN_LIBRARY, 1);
    const auto of_python = [&](const char *name, std::size_t bound, const std::string &reading) {
        all.push_back({name, bound, frames, [=](const std::string &file, const Directory &directory) {
                           const std::string other = directory.write("other", with_another_state(file));
                           return Arguments{TARN_PYTHON, "-c", "import lumo_tarn, sys\nfor _ in " + reading + ": pass",
                                            file, other};
                       }});
    };
    of_python("Python, frames()", 300, "lumo_tarn.frames(open(sys.argv[1], 'rb').read())");
    of_python("Python, rows()", 300, "lumo_tarn.rows(sys.argv[1], 'lumo-info')");
    of_python("Python, diff()", 500, "lumo_tarn.diff(sys.argv[1], sys.argv[2])");
    return all;
}

struct Cost {
    double bytes = 0, seconds = 0;
};

// The largest resident memory and the processor time of a program, which must succeed.
Cost cost_of(const Arguments &command, const std::function<void(pid_t)> &meanwhile = {}) {
    std::vector<char *> arguments;
    for (const std::string &argument : command) arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    const pid_t pid = fork();
    if (pid == 0) {
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, 1);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    if (meanwhile) meanwhile(pid);
    int status = 0;
    rusage usage{};
    wait4(pid, &status, 0, &usage);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw std::runtime_error(command[0] + " " + command[1] + " ended with status " + std::to_string(status));
    }
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return {static_cast<double>(usage.ru_maxrss) * 1024, seconds(usage.ru_utime) + seconds(usage.ru_stime)};
}

// Either side of an answer.
Cost cost_of_service(bool of_show, const std::string &input, const std::string &file, const Directory &directory) {
    const std::string bundle = input == "elements" ? "cl-cfg" : "dp-tt-cfg", socket = directory.path("socket");
    const Arguments answer{tool(), "answer", "--socket", socket, bundle + "=" + file},
        show{tool(), "show", bundle, "--socket", socket, "--timeout", "60"};
    unlink(socket.c_str());
    Cost of_client;
    const Cost of_server = cost_of(answer, [&](pid_t server) {
        while (access(socket.c_str(), F_OK) != 0 && waitpid(server, nullptr, WNOHANG) == 0) usleep(1000);
        try {
            // A bundle that is not served: an answer may be longer than its reader allows.
            if (of_show) {
                of_client = cost_of(show);
            } else {
                tarn({"show", "pal-debug", "--socket", socket});
            }
        } catch (...) {
            kill(server, SIGTERM);
            waitpid(server, nullptr, 0);
            throw;
        }
        kill(server, SIGTERM);
    });
    return of_show ? of_client : of_server;
}

int read_frame(const char *file) {
    std::ifstream in(file, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(in), {});
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = MIRK_PLATFORM_TRACKING_ON;
    mirk_handle *handle = mirk_platform_handle_open(&options);
    {
        using namespace lumo_ui_tarn;
        context c(handle);
        for (std::size_t at = 0; at < bytes.size();) {
            mirk_platform_frame frame;
            if (mirk_platform_frame_look(bytes.data() + at, bytes.size() - at, &frame) != 0) return 1;
            const std::size_t size = frame.header.total_length;
            if (std::equal(frame.luid, frame.luid + 16, cl_cfg_msg_type::luid())) {
                (void)cl_cfg_msg::from_frame(c, bytes.data() + at, size);
            } else if (std::equal(frame.luid, frame.luid + 16, dp_tt_msg_type::luid())) {
                (void)dp_tt_msg::from_frame(c, bytes.data() + at, size);
            }
            at += size;
        }
    }
    mirk_platform_handle_close(handle);
    return 0;
}

// Of all inputs, the one that costs most.
bool measure(const Reader &reader, std::size_t size) {
    const Directory directory;
    constexpr std::size_t times = 4;
    double most = 0, slowest = 0, growth = 0;
    std::string worst;
    bool linear = true;
    for (const std::string &input : reader.inputs) {
        // A debug build takes a minute for them.
        if (input == "xml-lists" && size < std::size_t{256} << 10) continue;
        Cost costs[2];
        double sizes[2];
        for (const std::size_t i : {std::size_t{0}, std::size_t{1}}) {
            const std::string content = inputs().at(input).make(i == 0 ? size : size * times);
            const std::string file = directory.write("input", content);
            sizes[i] = static_cast<double>(content.size());
            costs[i] = reader.command ? cost_of(reader.command(file, directory))
                                      : cost_of_service(!std::strcmp(reader.name, "show"), input, file, directory);
        }
        const double factor = (costs[1].bytes - costs[0].bytes) / (sizes[1] - sizes[0]);
        if (worst.empty() || factor > most) {
            most = factor;
            worst = inputs().at(input).name;
        }
        slowest = std::max(slowest, costs[1].seconds / sizes[1]);
        // Starting a process takes some milliseconds of either time.
        growth = std::max(growth, costs[1].seconds / (costs[0].seconds + 0.01));
        linear = linear && costs[1].seconds <= 2 * (sizes[1] / sizes[0]) * (costs[0].seconds + 0.05);
    }
    std::printf("| %-18s | %6.0f | %-22s | %8.2f | %6.1f |%s%s\n", reader.name, most, worst.c_str(), slowest * 1e6,
                growth, most > static_cast<double>(reader.bound) ? " more memory than documented" : "",
                linear ? "" : " time grows faster than the input");
    std::fflush(stdout);
    return linear && most <= static_cast<double>(reader.bound);
}

}  // namespace

int main(int argc, char **argv) {
    if (argc == 3 && std::strcmp(argv[1], "--read") == 0) return read_frame(argv[2]);
    std::size_t kib = 256;
    std::vector<std::string> only(argv + 1, argv + argc);
    if (only.size() >= 2 && only[0] == "--size") {
        kib = static_cast<std::size_t>(std::atoi(only[1].c_str()));
        only.erase(only.begin(), only.begin() + 2);
    }
    std::printf("| %-18s | memory | %-22s | us/byte  | growth |\n|---|---:|---|---:|---:|\n", "reader", "worst input");
    bool all = true;
    try {
        for (const Reader &reader : readers(argv[0])) {
            if (!only.empty() && std::find(only.begin(), only.end(), reader.name) == only.end()) continue;
            all = measure(reader, kib << 10) && all;
        }
    } catch (const std::exception &error) {
        std::fprintf(stderr, "factors: %s\n", error.what());
        return 3;
    }
    return all ? 0 : 1;
}
