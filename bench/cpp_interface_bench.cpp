// The C++ interface against the C calls that it is made of, in one process, by turns: what it costs is the ratio.
#include <benchmark/benchmark.h>
#include <mirk_platform.h>

#include <algorithm>
#include <cstdio>
#include <lumo_ui_tarn.hpp>
#include <map>
#include <string>
#include <vector>

namespace {

using namespace lumo_ui_tarn;

constexpr std::uint32_t id = 1, elements = 200;

struct Runtime {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    context c{h, id};
    Runtime() = default;
    Runtime(const Runtime &) = delete;
    Runtime &operator=(const Runtime &) = delete;
    ~Runtime() { mirk_platform_handle_close(h); }
};

dp_tc_list list_of_classes(context &c) {
    dp_tc_list list(c);
    list.tc_list().grow(elements);
    for (std::uint32_t i = 0; i < elements; ++i) list.tc_list()[i].set_id(i).set_proto(6);
    return list;
}

void c_members(benchmark::State &state) {
    const Runtime runtime;
    mirk_handle *h = runtime.h;
    lumo_tarn_dp_tc *tc = lumo_tarn_dp_tc_create(h, id);
    std::uint32_t err = 0, n = 0;
    for (auto _ : state) {
        lumo_tarn_dp_tc_id_set_value(h, id, tc, ++n, &err);
        lumo_tarn_dp_tc_tos_set_value(h, id, tc, 3, &err);
        benchmark::DoNotOptimize(lumo_tarn_dp_tc_id_get_value(h, id, tc, &err));
        benchmark::DoNotOptimize(
            lumo_tarn_dp_appl_id_get_value(h, id, lumo_tarn_dp_tc_appl_get(h, id, tc, &err), &err));
    }
    if (err != 0) state.SkipWithError("a call failed");
    lumo_tarn_dp_tc_destroy(h, id, tc);
}

void cpp_members(benchmark::State &state) {
    Runtime runtime;
    dp_tc tc(runtime.c);
    std::uint32_t n = 0;
    for (auto _ : state) {
        tc.set_id(++n).set_tos(3);
        benchmark::DoNotOptimize(tc.id());
        benchmark::DoNotOptimize(tc.appl().id());
    }
}

void c_array(benchmark::State &state) {
    Runtime runtime;
    mirk_handle *h = runtime.h;
    dp_tc_list owner = list_of_classes(runtime.c);
    lumo_tarn_dp_tc_list *list = owner.get();
    std::uint32_t err = 0;
    for (auto _ : state) {
        std::uint64_t sum = 0;
        const std::uint32_t n = lumo_tarn_dp_tc_list_num_tcs_get_value(h, id, list, &err);
        for (std::uint32_t i = 0; i < n; ++i) {
            sum += lumo_tarn_dp_tc_id_get_value(h, id, lumo_tarn_dp_tc_list_tc_list_get(h, id, list, i, &err), &err);
        }
        benchmark::DoNotOptimize(sum);
    }
    if (err != 0) state.SkipWithError("a call failed");
}

void cpp_array(benchmark::State &state) {
    Runtime runtime;
    const dp_tc_list list = list_of_classes(runtime.c);
    for (auto _ : state) {
        std::uint64_t sum = 0;
        for (const dp_tc_view tc : list.tc_list()) sum += tc.id();
        benchmark::DoNotOptimize(sum);
    }
}

void c_frame(benchmark::State &state) {
    Runtime runtime;
    mirk_handle *h = runtime.h;
    dp_tc_list owner = list_of_classes(runtime.c);
    std::vector<std::uint8_t> buffer(owner.frame_size() + 1);
    std::uint32_t err = 0;
    for (auto _ : state) {
        const std::uint32_t size = lumo_tarn_dp_tc_list_marshal(h, id, buffer.data(), owner.get(),
                                                                static_cast<std::int32_t>(buffer.size()) - 1, &err);
        lumo_tarn_dp_tc_list *read = lumo_tarn_dp_tc_list_create(h, id);
        lumo_tarn_dp_tc_list_unmarshal(h, id, buffer.data(), read, size, 0, &err);
        lumo_tarn_dp_tc_list_destroy(h, id, read);
    }
    if (err != 0) state.SkipWithError("a call failed");
}

void cpp_frame(benchmark::State &state) {
    Runtime runtime;
    const dp_tc_list list = list_of_classes(runtime.c);
    std::vector<std::uint8_t> buffer(list.frame_size() + 1);
    for (auto _ : state) {
        const std::size_t size = list.write_frame(buffer.data(), buffer.size());
        benchmark::DoNotOptimize(dp_tc_list::from_frame_with_guard(runtime.c, buffer.data(), size).get());
    }
}

struct Pair {
    const char *name;
    void (*c)(benchmark::State &);
    void (*cpp)(benchmark::State &);
};
constexpr Pair pairs[] = {
    {"members", c_members, cpp_members}, {"array", c_array, cpp_array}, {"frame", c_frame, cpp_frame}};

// Collects medians, and prints the table of ratios at the end.
class Ratios : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &r : runs) {
            if (r.run_type == Run::RT_Iteration) times_[r.run_name.function_name].push_back(r.GetAdjustedRealTime());
        }
    }
    void Finalize() override {
        std::printf("%-12s %12s %12s %8s\n", "", "C++, ns", "C, ns", "ratio");
        for (const Pair &pair : pairs) {
            const double cpp = median(std::string("cpp/") + pair.name), c = median(std::string("c/") + pair.name);
            if (c > 0) std::printf("%-12s %12.1f %12.1f %8.2f\n", pair.name, cpp, c, cpp / c);
        }
    }

private:
    double median(const std::string &name) {
        std::vector<double> &times = times_[name];
        if (times.empty()) return 0;
        std::sort(times.begin(), times.end());
        return times[times.size() / 2];
    }
    std::map<std::string, std::vector<double>> times_;
};

}  // namespace

int main(int argc, char **argv) {
    for (const Pair &pair : pairs) {
        for (const bool cpp : {false, true}) {
            benchmark::RegisterBenchmark(((cpp ? "cpp/" : "c/") + std::string(pair.name)).c_str(),
                                         cpp ? pair.cpp : pair.c)
                ->Repetitions(9)
                ->MinTime(0.05);
        }
    }
    benchmark::Initialize(&argc, argv);
    Ratios ratios;
    benchmark::RunSpecifiedBenchmarks(&ratios);
    return 0;
}
