// Registers measurements and keeps their times. A measurement is an operation on a workload by somebody; all of them
// run in one process, in random order, several times each, and what is shown are medians and ratios of medians.
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

// Ends the program: a benchmark of something that does not work says nothing.
inline void require(bool good, const char *what) {
    if (good) return;
    std::fprintf(stderr, "bench: %s\n", what);
    std::exit(1);
}

class Board {
public:
    // `run` is one iteration. Its inputs live as long as it does.
    template <class Run>
    void add(std::string_view operation, std::string_view workload, std::string_view who, Run run) {
        const std::string name = key(operation, workload, who);
        runs_.emplace_back(name, run);
        benchmark::RegisterBenchmark(name.c_str(), [run](benchmark::State &state) {
            for (auto _ : state) run();
        });
    }
    // One point of a curve. The last points are long, hence fewer repetitions; and large, hence `make`, which sets up
    // the iteration when it is about to run.
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

    void take(const std::string &name, double nanoseconds) { times_[name].push_back(nanoseconds); }

    // Of the runs of this process; empty if the measurement did not run.
    std::optional<double> median(std::string_view operation, std::string_view workload, std::string_view who) const;
    std::optional<double> median_an_element(std::string_view operation, std::string_view list,
                                            std::size_t elements) const;
    // Everybody who ran an operation, in the order of registration.
    std::vector<std::string> everybody(std::string_view operation) const;
    std::vector<std::string> operations() const;

    // Every measurement but the points of curves, by name, as one iteration.
    const std::vector<std::pair<std::string, std::function<void()>>> &runs() const { return runs_; }

    // By operation and list: for how many elements there are points.
    using Curves = std::map<std::string, std::map<std::string, std::vector<std::size_t>>>;
    const Curves &curves() const { return curves_; }

private:
    std::string key(std::string_view operation, std::string_view workload, std::string_view who);
    static std::string point(std::string_view operation, std::string_view list, std::size_t elements);
    std::optional<double> median(const std::string &name) const;

    std::vector<std::array<std::string, 3>> names_;
    std::vector<std::pair<std::string, std::function<void()>>> runs_;
    std::map<std::string, std::vector<double>> times_;
    Curves curves_;
};

// Time of one over time of another, by workload.
struct Ratio {
    std::string operation, ours, theirs;
    std::array<std::optional<double>, workload_names.size()> goal, value;
};
std::vector<Ratio> ratios(const Board &board);

void print_tables(const Board &board);
void write_json(const Board &board, const std::string &path);
void write_pictures(const Board &board, const std::string &directory);

// What is measured, a file for each.
void add_library(Board &board);
void add_floors(Board &board);
void add_plain(Board &board);
void add_protobuf(Board &board);
void add_flatbuffers(Board &board);
void add_capnp(Board &board);
void add_curves(Board &board);

}  // namespace tarn::bench
