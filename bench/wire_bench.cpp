// Frames of the library against straight-line code that makes the same runtime calls: both run in turn in one process,
// and what counts is the ratio.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "lumo_ui_tarn.h"
#include "mirk_platform.h"
#include "tools/reflect/operations.h"

// The straight-line code.
#include "floor.inc"

namespace {

using namespace tarn;
using reflect::MemberOperations;
using reflect::RecordOperations;

constexpr std::uint32_t id = 1;

// Random but fixed values; every array gets the same number of elements.
void fill(mirk_handle *h, const RecordOperations &ops, void *object, std::mt19937_64 &random, std::uint32_t elements) {
    std::uint32_t err = 0;
    for (const MemberOperations &m : ops.members) {
        switch (m.member->kind) {
            case schema::Kind::record:
                fill(h, reflect::operations_of(*m.member->record), m.get(h, id, object, &err), random, elements);
                break;
            case schema::Kind::array: {
                const RecordOperations &element = reflect::operations_of(*m.member->record);
                for (std::uint32_t i = elements; i-- > 0;) {
                    void *value = element.create(h, id);
                    fill(h, element, value, random, elements);
                    m.element_set(h, id, object, i, value, &err);
                    element.destroy(h, id, value);
                }
                break;
            }
            case schema::Kind::string:
                m.text_set(h, id, object, "application-name", 16, &err);
                break;
            case schema::Kind::address:
                break;
            case schema::Kind::boolean:
                m.set_value(h, id, object, random() & 1, &err);
                break;
            case schema::Kind::enumeration:
                m.set_value(h, id, object, random() % 3, &err);
                break;
            default:
                if (m.set_value != nullptr) m.set_value(h, id, object, random(), &err);
        }
    }
}

struct Workload {
    const char *name;
    const RecordOperations *ops;
    std::uint32_t elements;
    std::uint32_t (*floor_marshal)(mirk_handle *, std::uint32_t, std::uint8_t *, std::uint8_t *, std::int32_t,
                                   std::uint32_t *);
    std::uint32_t (*floor_unmarshal)(mirk_handle *, std::uint32_t, std::uint8_t *, std::uint8_t *, std::uint32_t,
                                     std::uint32_t, std::uint32_t *);
};

const Workload workloads[] = {
    {"deep", reflect::find_record("lumo_tarn_dp_tt_table_data"), 2, floor_marshal_lumo_tarn_dp_tt_table_data,
     floor_unmarshal_lumo_tarn_dp_tt_table_data},
    {"flat", reflect::find_record("lumo_tarn_debug_setting"), 0, floor_marshal_lumo_tarn_debug_setting,
     floor_unmarshal_lumo_tarn_debug_setting},
    {"wide", reflect::find_record("lumo_tarn_cl_cfg_data"), 3, floor_marshal_lumo_tarn_cl_cfg_data,
     floor_unmarshal_lumo_tarn_cl_cfg_data},
    {"strings", reflect::find_record("lumo_tarn_cl_appl_data"), 200, floor_marshal_lumo_tarn_cl_appl_data,
     floor_unmarshal_lumo_tarn_cl_appl_data},
};

void run(benchmark::State &state, const Workload &w, bool tracked, bool decode, bool floor) {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = tracked ? MIRK_PLATFORM_TRACKING_ON : MIRK_PLATFORM_TRACKING_OFF;
    mirk_handle *h = mirk_platform_handle_open(&options);
    std::mt19937_64 random(42);
    void *object = w.ops->create(h, id);
    fill(h, *w.ops, object, random, w.elements);
    const std::uint32_t size = w.ops->len(h, id, object);
    std::vector<std::uint8_t> buffer(size + 1);
    std::uint32_t err = 0;
    const std::uint32_t written = w.ops->marshal(h, id, buffer.data(), object, static_cast<std::int32_t>(size), &err);
    auto *bytes = static_cast<std::uint8_t *>(object);
    for (auto _ : state) {
        if (decode) {
            void *target = w.ops->create(h, id);
            const std::uint32_t n =
                floor ? w.floor_unmarshal(h, id, buffer.data(), static_cast<std::uint8_t *>(target), written, 0, &err)
                      : w.ops->unmarshal(h, id, buffer.data(), target, written, 0, &err);
            benchmark::DoNotOptimize(n);
            w.ops->destroy(h, id, target);
        } else {
            const std::uint32_t n =
                floor ? w.floor_marshal(h, id, buffer.data(), bytes, static_cast<std::int32_t>(size), &err)
                      : w.ops->marshal(h, id, buffer.data(), object, static_cast<std::int32_t>(size), &err);
            benchmark::DoNotOptimize(n);
        }
    }
    if (err != 0) state.SkipWithError("a frame failed");
    w.ops->destroy(h, id, object);
    mirk_platform_handle_close(h);
}

// Collects medians, and prints the table of ratios at the end.
class Ratios : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &r : runs) {
            if (r.run_type == Run::RT_Iteration) times_[r.benchmark_name()].push_back(r.GetAdjustedRealTime());
        }
    }
    void Finalize() override {
        std::printf("%-28s %12s %12s %8s\n", "", "library, ns", "floor, ns", "ratio");
        for (auto &[name, times] : times_) {
            if (!name.starts_with("library/")) continue;
            const std::string what = name.substr(8, name.find("/min_time") - 8);
            auto floor = std::find_if(times_.begin(), times_.end(), [&](const auto &entry) {
                return entry.first.starts_with("floor/" + what + "/") || entry.first == "floor/" + what;
            });
            if (floor == times_.end()) continue;
            const double a = median(times), b = median(floor->second);
            std::printf("%-28s %12.0f %12.0f %8.2f\n", what.c_str(), a, b, a / b);
        }
    }

private:
    static double median(std::vector<double> &times) {
        std::sort(times.begin(), times.end());
        return times[times.size() / 2];
    }
    std::map<std::string, std::vector<double>> times_;
};

}  // namespace

int main(int argc, char **argv) {
    for (const bool decode : {false, true}) {
        for (const bool tracked : {false, true}) {
            for (const Workload &w : workloads) {
                const std::string what =
                    std::string(w.name) + (decode ? "/decode+destroy" : "/encode") + (tracked ? "/tracked" : "");
                for (const bool floor : {false, true}) {
                    benchmark::RegisterBenchmark(
                        ((floor ? "floor/" : "library/") + what).c_str(),
                        [&w, tracked, decode, floor](benchmark::State &s) { run(s, w, tracked, decode, floor); })
                        ->Repetitions(9)
                        ->MinTime(0.05);
                }
            }
        }
    }
    benchmark::Initialize(&argc, argv);
    Ratios ratios;
    benchmark::RunSpecifiedBenchmarks(&ratios);
    return 0;
}
