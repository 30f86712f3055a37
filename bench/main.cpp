// bench [--json FILE] [--pictures DIRECTORY] [options of Google Benchmark]
// valgrind --tool=callgrind bench --instructions    one profile for each measurement, with its name
#include <valgrind/callgrind.h>

#include <cstring>

#include "bench/board.h"
#include "mirk_platform.h"

namespace {

// Keeps the times; the tables come at the end.
class Collector : public benchmark::BenchmarkReporter {
public:
    explicit Collector(tarn::bench::Board &board) : board_(board) {}
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration) board_.take(run.run_name.function_name, run.GetAdjustedCPUTime());
        }
    }

private:
    tarn::bench::Board &board_;
};

// Profiles of ten iterations each, after some in which tables and heaps grow to their size.
void count_instructions(const tarn::bench::Board &board) {
    for (const auto &[name, run] : board.runs()) {
        for (int i = 0; i < 5; ++i) run();
        CALLGRIND_ZERO_STATS;
        for (int i = 0; i < 10; ++i) run();
        CALLGRIND_DUMP_STATS_AT(name.c_str());
    }
}

}  // namespace

int main(int argc, char **argv) {
    using namespace tarn::bench;
    std::string json, pictures;
    // What is compared runs in random order. Options on the command line come later and win.
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char repetitions[] = "--benchmark_repetitions=15";
    char least_time[] = "--benchmark_min_time=0.02";
    bool instructions = false;
    std::vector<char *> arguments{argv[0], interleaving, repetitions, least_time};
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--json") == 0 && i + 1 < argc) {
            json = argv[++i];
        } else if (std::strcmp(argv[i], "--pictures") == 0 && i + 1 < argc) {
            pictures = argv[++i];
        } else if (std::strcmp(argv[i], "--instructions") == 0) {
            instructions = true;
        } else {
            arguments.push_back(argv[i]);
        }
    }
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

    // Nobody listens to anything that is not the end of the process.
    mirk_platform_trace_set_levels(1);
    Board board;
    add_library(board);
    add_floors(board);
    add_plain(board);
    add_protobuf(board);
    add_flatbuffers(board);
    add_capnp(board);
    if (instructions) {
        count_instructions(board);
        return 0;
    }
    add_curves(board);
    Collector collector(board);
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::ClearRegisteredBenchmarks();
    benchmark::Shutdown();

    print_tables(board);
    if (!json.empty()) write_json(board, json);
    if (!pictures.empty()) write_pictures(board, pictures);
    return 0;
}
