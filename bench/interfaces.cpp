// What reading, writing and building cost in C and in C++, in one process, in random order. Prints a line for each
// operation: its name and the nanoseconds for one item in C and in C++, with tabs between. interfaces.py adds Python
// and prints a table.
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

// What the operations work on.
struct Objects {
    Objects() {
        list.tc_list().grow(elements);
        for (std::uint32_t i = 0; i < elements; ++i) list.tc_list()[i].set_id(i).set_src_prefix(prefix);
        native_prefix = lumo_tarn_dp_tc_src_prefix_get(h, id, list.tc_list()[0].get(), &err);
        equal = list.copy();
        frame.resize(list.frame_size() + 1);
        size = static_cast<std::uint32_t>(list.write_frame(frame.data(), frame.size()));
        text.resize(1 << 20);
    }
    Objects(const Objects &) = delete;
    Objects &operator=(const Objects &) = delete;
    ~Objects() {
        for (dp_tc_list *one : {&list, &equal}) *one = dp_tc_list::take(c, nullptr);
        tc = dp_tc::take(c, nullptr);
        mirk_platform_handle_close(h);
    }

    mirk_handle *h = mirk_platform_handle_open(nullptr);
    context c{h, id};
    dp_tc tc{c};
    dp_tc_list list{c}, equal{c};
    const address prefix = address::parse("10.0.0.0/8").value();
    ip_address *native_prefix = nullptr;
    std::vector<std::uint8_t> frame;
    std::vector<char> text;
    std::uint32_t size = 0, n = 0, err = 0;
};

struct Operation {
    const char *name;
    std::uint32_t items;  // that it treats
    void (*in_c)(Objects &);
    void (*in_cpp)(Objects &);
};

lumo_tarn_dp_tc_list *list_in_c(Objects &o) {
    lumo_tarn_dp_tc_list *list = lumo_tarn_dp_tc_list_create(o.h, id);
    lumo_tarn_dp_tc_list_tc_list_set(o.h, id, list, elements - 1, nullptr, &o.err);
    for (std::uint32_t i = 0; i < elements; ++i) {
        lumo_tarn_dp_tc *tc = lumo_tarn_dp_tc_list_tc_list_get(o.h, id, list, i, &o.err);
        lumo_tarn_dp_tc_id_set_value(o.h, id, tc, i, &o.err);
        lumo_tarn_dp_tc_proto_set_value(o.h, id, tc, 6, &o.err);
    }
    return list;
}

const Operation operations[] = {
    {"read a number", 1,
     [](Objects &o) { benchmark::DoNotOptimize(lumo_tarn_dp_tc_id_get_value(o.h, id, o.tc.get(), &o.err)); },
     [](Objects &o) { benchmark::DoNotOptimize(o.tc.id()); }},
    {"write a number", 1, [](Objects &o) { lumo_tarn_dp_tc_id_set_value(o.h, id, o.tc.get(), ++o.n, &o.err); },
     [](Objects &o) { o.tc.set_id(++o.n); }},
    {"read a number of a nested record", 1,
     [](Objects &o) {
         lumo_tarn_dp_appl *appl = lumo_tarn_dp_tc_appl_get(o.h, id, o.tc.get(), &o.err);
         benchmark::DoNotOptimize(lumo_tarn_dp_appl_id_get_value(o.h, id, appl, &o.err));
     },
     [](Objects &o) { benchmark::DoNotOptimize(o.tc.appl().id()); }},
    {"read an address", 1,
     [](Objects &o) { benchmark::DoNotOptimize(lumo_tarn_dp_tc_src_prefix_get(o.h, id, o.tc.get(), &o.err)->word[0]); },
     [](Objects &o) { benchmark::DoNotOptimize(o.tc.src_prefix().word[0]); }},
    {"write an address", 1,
     [](Objects &o) { lumo_tarn_dp_tc_src_prefix_set(o.h, id, o.tc.get(), o.native_prefix, &o.err); },
     [](Objects &o) { o.tc.set_src_prefix(o.prefix); }},
    {"create and destroy a record", 1,
     [](Objects &o) { lumo_tarn_dp_tc_destroy(o.h, id, lumo_tarn_dp_tc_create(o.h, id)); },
     [](Objects &o) { benchmark::DoNotOptimize(dp_tc(o.c).get()); }},
    {"read a number of each element", elements,
     [](Objects &o) {
         std::uint64_t sum = 0;
         lumo_tarn_dp_tc_list *list = o.list.get();
         const std::uint32_t n = lumo_tarn_dp_tc_list_num_tcs_get_value(o.h, id, list, &o.err);
         for (std::uint32_t i = 0; i < n; ++i) {
             lumo_tarn_dp_tc *tc = lumo_tarn_dp_tc_list_tc_list_get(o.h, id, list, i, &o.err);
             sum += lumo_tarn_dp_tc_id_get_value(o.h, id, tc, &o.err);
         }
         benchmark::DoNotOptimize(sum);
     },
     [](Objects &o) {
         std::uint64_t sum = 0;
         for (const dp_tc_ref tc : o.list.tc_list()) sum += tc.id();
         benchmark::DoNotOptimize(sum);
     }},
    {"build and destroy a list of 200", elements,
     [](Objects &o) { lumo_tarn_dp_tc_list_destroy(o.h, id, list_in_c(o)); },
     [](Objects &o) {
         dp_tc_list list(o.c);
         const auto classes = list.tc_list();
         classes.grow(elements);
         for (std::uint32_t i = 0; i < elements; ++i) classes[i].set_id(i).set_proto(6);
     }},
    {"write its frame", elements,
     [](Objects &o) {
         lumo_tarn_dp_tc_list_marshal(o.h, id, o.frame.data(), o.list.get(), static_cast<std::int32_t>(o.size), &o.err);
     },
     [](Objects &o) { o.list.write_frame(o.frame.data(), o.frame.size()); }},
    {"read its frame and destroy it", elements,
     [](Objects &o) {
         lumo_tarn_dp_tc_list *read = lumo_tarn_dp_tc_list_create(o.h, id);
         lumo_tarn_dp_tc_list_unmarshal(o.h, id, o.frame.data(), read, o.size, 0, &o.err);
         lumo_tarn_dp_tc_list_destroy(o.h, id, read);
     },
     [](Objects &o) {
         benchmark::DoNotOptimize(dp_tc_list::from_frame_with_guard(o.c, o.frame.data(), o.size).get());
     }},
    {"copy and destroy it", elements,
     [](Objects &o) {
         lumo_tarn_dp_tc_list *copy = nullptr;
         lumo_tarn_dp_tc_list_clone(o.h, id, o.list.get(), &copy, o.frame.data(), o.size, &o.err);
         lumo_tarn_dp_tc_list_destroy(o.h, id, copy);
     },
     [](Objects &o) { benchmark::DoNotOptimize(o.list.copy().get()); }},
    {"compare it with an equal one", elements,
     [](Objects &o) { benchmark::DoNotOptimize(lumo_tarn_dp_tc_list_compare(o.list.get(), o.equal.get())); },
     [](Objects &o) { benchmark::DoNotOptimize(o.list == o.equal); }},
    {"print it", elements,
     [](Objects &o) {
         lumo_tarn_dp_tc_list_print(o.h, id, o.text.data(), 0, "list", o.list.get(),
                                    static_cast<std::int32_t>(o.text.size()), &o.err);
     },
     [](Objects &o) { benchmark::DoNotOptimize(o.list.text("list")); }},
};

// Prints medians.
class Lines : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &r : runs) {
            if (r.error_occurred) std::fprintf(stderr, "%s: a call failed\n", r.run_name.function_name.c_str());
            failed = failed || r.error_occurred;
            if (r.run_type == Run::RT_Iteration) times_[r.run_name.function_name].push_back(r.GetAdjustedCPUTime());
        }
    }
    void Finalize() override {
        for (const Operation &one : operations) {
            const double c = median(std::string("c/") + one.name), cpp = median(std::string("c++/") + one.name);
            if (c > 0) std::printf("%s\t%.2f\t%.2f\n", one.name, c / one.items, cpp / one.items);
        }
    }
    bool failed = false;

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
    for (const Operation &one : operations) {
        for (const bool cpp : {false, true}) {
            const auto work = cpp ? one.in_cpp : one.in_c;
            const auto run = [work](benchmark::State &state) {
                Objects objects;
                for (auto _ : state) work(objects);
                if (objects.err != 0) state.SkipWithError("a call failed");
            };
            benchmark::RegisterBenchmark((std::string(cpp ? "c++/" : "c/") + one.name).c_str(), run)
                ->Repetitions(9)
                ->MinTime(0.02);
        }
    }
    // In random order. Options on the command line come later and take precedence.
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments{argv[0], interleaving};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    Lines lines;
    benchmark::RunSpecifiedBenchmarks(&lines);
    return lines.failed ? 1 : 0;
}
