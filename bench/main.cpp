// bench [--json FILE] [--pictures DIRECTORY] [options of Google Benchmark]
// valgrind --tool=callgrind bench --instructions    one profile per measurement, which bench/cost evaluates
#include <valgrind/callgrind.h>

#include <cstring>
#include <sstream>
#include <thread>

#include "bench/results.h"
#include "mirk_platform.h"

namespace {

constexpr int counted_iterations = 10;

// Instruction counts depend on the compiler and its major version.
#define TARN_TEXT_OF(x) #x
#define TARN_TEXT(x) TARN_TEXT_OF(x)
#ifdef __clang__
constexpr const char *compiler = "clang " TARN_TEXT(__clang_major__);
#else
constexpr const char *compiler = "g++ " TARN_TEXT(__GNUC__);
#endif

// Stores the times; tables are printed at the end.
class Collector : public benchmark::BenchmarkReporter {
public:
    explicit Collector(tarn::bench::Results &results) : results_(results) {}
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            const bool threaded = run.run_name.threads.size() != 0;
            results_.add_time(run.run_name.function_name + (threaded ? "/" + run.run_name.threads : ""),
                              threaded ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime());
        }
    }

private:
    tarn::bench::Results &results_;
};

// One profile per measurement. Some iterations come first, in which tables and heaps grow to their size.
void count_instructions(const tarn::bench::Results &results) {
    tarn::bench::print_description(compiler, counted_iterations);
    for (const auto *runs : {&results.runs(), &results.counts()}) {
        for (const auto &[name, run] : *runs) {
            for (int i = 0; i < 5; ++i) run();
            CALLGRIND_ZERO_STATS;
            for (int i = 0; i < counted_iterations; ++i) run();
            CALLGRIND_DUMP_STATS_AT(name.c_str());
        }
    }
}

}  // namespace

int main(int argc, char **argv) {
    using namespace tarn::bench;
    std::string json, pictures;
    // Measurements run in random order. Options on the command line come later and take precedence.
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

    // Trace lines below the level of fatal errors are not written.
    mirk_platform_trace_set_levels(1);
    Results results;
    add_library(results);
    add_lower_bounds(results);
    add_plain(results);
#ifdef TARN_BENCH_COMPETITORS
    add_protobuf(results);
    add_flatbuffers(results);
    add_capnp(results);
#endif
    add_curves(results);
    if (instructions) {
        count_instructions(results);
        return 0;
    }
    Collector collector(results);
    std::ostringstream errors;
    collector.SetErrorStream(&errors);
    std::size_t measured = benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::ClearRegisteredBenchmarks();

    // What has started a thread uses atomic additions from then on, and locks in malloc, so these come last.
    std::thread([] {}).join();
    add_threads(results);
    add_library_after_threads(results);
    measured += benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::ClearRegisteredBenchmarks();
    benchmark::Shutdown();
    if (measured == 0) std::fputs(errors.str().c_str(), stderr);

    print_tables(results);
    if (!json.empty()) write_json(results, json);
    if (!pictures.empty()) write_pictures(results, pictures);
    return 0;
}
