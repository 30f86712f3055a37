// Registers measurements and stores their times. A measurement is one operation on one workload by one subject: the
// library in some setup, a lower bound or a competitor. All of them run in one process, in random order, several times
// each; the tables show medians and ratios of medians.
#pragma once

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::bench {

inline constexpr std::array<std::string_view, 4> workload_names{"deep", "flat", "wide", "strings"};
inline constexpr std::array<std::size_t, 6> curve_points{100, 1000, 3000, 10000, 30000, 100000};
inline constexpr std::array<int, 3> thread_counts{1, 2, 4};

// Ends the program: figures of something that does not work are worthless.
inline void require(bool good, const char *what) {
    if (good) return;
    std::fprintf(stderr, "bench: %s\n", what);
    std::exit(1);
}

class Results {
public:
    // `run` is one iteration. Its inputs live as long as it does.
    template <class Run>
    void add(std::string_view operation, std::string_view workload, std::string_view subject, Run run) {
        const std::string name = key(operation, workload, subject);
        runs_.emplace_back(name, run);
        benchmark::RegisterBenchmark(name.c_str(), [run](benchmark::State &state) {
            for (auto _ : state) run();
        });
    }
    // One point of a curve. Large points take long, so they have fewer repetitions. They also need much memory, so
    // `make` sets up the iteration only when it is about to run.
    template <class Make>
    void add_point(std::string_view operation, std::string_view list, std::size_t elements, Make make) {
        const auto run = std::make_shared<std::optional<decltype(make())>>();
        benchmark::RegisterBenchmark(point(operation, list, elements).c_str(),
                                     [make, run](benchmark::State &state) {
                                         if (!*run) run->emplace(make());
                                         for (auto _ : state) (**run)();
                                     })
            ->Repetitions(5)
            ->MinTime(0.01);
        curves_[std::string(operation)][std::string(list)].push_back(elements);
    }

    // A measurement of instructions alone, not of time.
    template <class Make>
    void add_count(std::string_view operation, std::string_view workload, std::string_view subject, Make make) {
        const auto run = std::make_shared<std::optional<decltype(make())>>();
        counts_.emplace_back(joined(operation, workload, subject), [make, run] {
            if (!*run) run->emplace(make());
            (**run)();
        });
    }

    // The same work on several threads at once; each thread calls `make` for an iteration of its own.
    template <class Make>
    void add_threads(std::string_view operation, std::string_view tables, Make make) {
        auto *registered =
            benchmark::RegisterBenchmark(threaded(operation, tables).c_str(), [make](benchmark::State &state) {
                const auto run = make();
                for (auto _ : state) run();
            });
        registered->UseRealTime();
        for (const int n : thread_counts) registered->Threads(n);
        threads_.push_back({std::string(operation), std::string(tables)});
    }

    void add_time(const std::string &name, double nanoseconds) { times_[name].push_back(nanoseconds); }

    // Medians of this process; empty if the measurement did not run.
    std::optional<double> median(std::string_view operation, std::string_view workload, std::string_view subject) const;
    std::optional<double> median_per_element(std::string_view operation, std::string_view list,
                                             std::size_t elements) const;
    // Iterations per second of n threads over those of one.
    std::optional<double> scaling(std::string_view operation, std::string_view tables, int threads) const;
    // The subjects of an operation, in the order of registration.
    std::vector<std::string> subjects(std::string_view operation) const;
    std::vector<std::string> operations() const;

    // By name; each function is one iteration.
    using Runs = std::vector<std::pair<std::string, std::function<void()>>>;
    // All measurements except curves and threads.
    const Runs &runs() const { return runs_; }
    // Those of instructions alone.
    const Runs &counts() const { return counts_; }

    // By operation and list: the numbers of elements that have a point.
    using Curves = std::map<std::string, std::map<std::string, std::vector<std::size_t>>>;
    const Curves &curves() const { return curves_; }
    // Operation and tables.
    const std::vector<std::array<std::string, 2>> &threads() const { return threads_; }

private:
    static std::string joined(std::string_view operation, std::string_view workload, std::string_view subject);
    std::string key(std::string_view operation, std::string_view workload, std::string_view subject);
    static std::string point(std::string_view operation, std::string_view list, std::size_t elements);
    static std::string threaded(std::string_view operation, std::string_view tables);
    std::optional<double> median(const std::string &name) const;

    std::vector<std::array<std::string, 3>> names_;
    Runs runs_, counts_;
    std::map<std::string, std::vector<double>> times_;
    Curves curves_;
    std::vector<std::array<std::string, 2>> threads_;
};

// Time of one over time of another, by workload.
struct Ratio {
    std::string operation, ours, theirs;
    std::array<std::optional<double>, workload_names.size()> goal, value;
};
// The ratios of instructions that have a meaning, without values.
std::vector<Ratio> instruction_ratios();
std::vector<Ratio> ratios(const Results &results);

// What --instructions prints for bench/cost, as JSON: the product, the compiler, the ratios and their goals.
void print_description(const char *compiler, int iterations);
void print_tables(const Results &results);
void write_json(const Results &results, const std::string &path);
void write_pictures(const Results &results, const std::string &directory);

// The subjects, one file each.
void add_library(Results &results);
void add_library_after_threads(Results &results);  // the same library in a process that has started threads
void add_lower_bounds(Results &results);
void add_plain(Results &results);
void add_protobuf(Results &results);
void add_flatbuffers(Results &results);
void add_capnp(Results &results);
void add_curves(Results &results);
void add_threads(Results &results);

}  // namespace tarn::bench
