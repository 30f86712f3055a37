#include "bench/results.h"

#include <algorithm>

namespace tarn::bench {

namespace {

using Goals = std::array<std::optional<double>, workload_names.size()>;
constexpr Goals none{};
constexpr Goals each(double goal) { return {goal, goal, goal, goal}; }

struct Pair {
    const char *operation, *ours, *theirs;
    Goals time = none;          // of the archive
    Goals instructions = none;  // of the shared library
};

// Times are the goal where the archive leaves out what has no observer. The shared library makes every call that the
// contract demands, and its goals are counted in instructions.
constexpr Pair pairs[] = {
    {"encode", "library", "contract lower bound", none, each(1.0)},
    {"encode", "library", "inlined lower bound"},
    {"encode", "library", "memcpy"},
    {"encode", "library", "protobuf", {{0.30, 0.40, 0.35, 0.40}}, {{1.9}}},
    {"encode", "library", "flatbuffers objects"},
    {"encode", "library", "flatbuffers raw"},
    {"encode", "library", "capnp"},
    {"encode", "library, tracking", "contract lower bound, tracking", each(0.6), each(1.0)},
    {"decode and destroy", "library", "contract lower bound", none, each(1.0)},
    {"decode and destroy", "library", "inlined lower bound"},
    {"decode and destroy", "library", "memcpy"},
    {"decode and destroy", "library", "protobuf", {{0.20, 1.0, 0.30, 0.35}}, {{1.2}}},
    {"decode and destroy", "library, private tables", "protobuf", {{0.25, 1.0, 0.35, 0.40}}},
    {"decode and destroy", "library, private tables", "protobuf arena"},
    {"decode and destroy", "library, private tables and arena", "protobuf arena"},
    {"decode and destroy", "library, private tables", "library"},
    {"decode and destroy", "library", "library, empty notifications"},
    {"decode and destroy", "library, after threads", "library"},
    {"decode and destroy", "library, an unwanted trace line", "library"},
    {"decode and destroy", "library", "flatbuffers objects"},
    {"decode and destroy", "library", "flatbuffers raw"},
    {"decode and destroy", "library", "capnp"},
    {"decode and destroy", "library, tracking", "contract lower bound, tracking", each(1.0), each(1.0)},
    {"build and destroy", "library", "protobuf", {{1.5, 8.0, 2.5, 0.50}}},
    {"build and destroy", "library, private tables", "protobuf"},
    {"build and destroy", "library", "flatbuffers objects"},
    {"build and destroy", "library", "capnp"},
    {"build and destroy", "library, after threads", "library"},
    {"build and destroy", "library", "library, empty notifications"},
    {"copy and destroy", "library", "protobuf", {{0.45, 6.0, 0.75, 0.60}}},
    {"copy and destroy", "library, private tables", "protobuf"},
    {"copy and destroy", "library, after threads", "library"},
    {"copy and destroy", "library", "plain structs"},
    {"read all members", "library", "protobuf"},
    {"read all members", "library", "plain structs"},
    {"compare", "library", "plain structs", each(1.1)},
    {"text", "library", "protobuf", each(0.15)},
};

}  // namespace

std::string Results::joined(std::string_view operation, std::string_view workload, std::string_view subject) {
    return std::string(operation) + "/" + std::string(workload) + "/" + std::string(subject);
}

std::string Results::key(std::string_view operation, std::string_view workload, std::string_view subject) {
    names_.push_back({std::string(operation), std::string(workload), std::string(subject)});
    return joined(operation, workload, subject);
}

std::string Results::point(std::string_view operation, std::string_view list, std::size_t elements) {
    return joined("growth of " + std::string(operation), list, std::to_string(elements));
}

std::optional<double> Results::median(std::string_view operation, std::string_view workload,
                                      std::string_view subject) const {
    return median(joined(operation, workload, subject));
}

std::optional<double> Results::median_per_element(std::string_view operation, std::string_view list,
                                                  std::size_t elements) const {
    const auto all = median(point(operation, list, elements));
    if (!all) return {};
    return *all / static_cast<double>(elements);
}

std::string Results::threaded(std::string_view operation, std::string_view tables) {
    return joined("threads", operation, tables);
}

std::optional<double> Results::scaling(std::string_view operation, std::string_view tables, int threads) const {
    const auto time = [&](int n) { return median(threaded(operation, tables) + "/threads:" + std::to_string(n)); };
    const auto one = time(1), several = time(threads);
    if (!one || !several) return {};
    return *one / *several;
}

std::optional<double> Results::median(const std::string &name) const {
    const auto found = times_.find(name);
    if (found == times_.end()) return {};
    std::vector<double> sorted = found->second;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t half = sorted.size() / 2;
    return sorted.size() % 2 != 0 ? sorted[half] : (sorted[half - 1] + sorted[half]) / 2;
}

std::vector<std::string> Results::subjects(std::string_view operation) const {
    std::vector<std::string> all;
    for (const auto &[name, workload, subject] : names_) {
        if (name == operation && std::find(all.begin(), all.end(), subject) == all.end()) all.push_back(subject);
    }
    return all;
}

std::vector<std::string> Results::operations() const {
    std::vector<std::string> all;
    for (const auto &name : names_) {
        if (std::find(all.begin(), all.end(), name[0]) == all.end()) all.push_back(name[0]);
    }
    return all;
}

std::vector<Ratio> ratios(const Results &results) {
    std::vector<Ratio> all;
    for (const Pair &pair : pairs) {
        Ratio ratio{pair.operation, pair.ours, pair.theirs, TARN_BENCH_STATIC ? pair.time : none, {}};
        bool any = false;
        for (std::size_t i = 0; i < workload_names.size(); ++i) {
            const auto ours = results.median(pair.operation, workload_names[i], pair.ours);
            const auto theirs = results.median(pair.operation, workload_names[i], pair.theirs);
            if (ours && theirs) ratio.value[i] = *ours / *theirs;
            any = any || ratio.value[i];
        }
        if (any) all.push_back(ratio);
    }
    return all;
}

std::vector<Ratio> instruction_ratios() {
    std::vector<Ratio> all;
    for (const Pair &pair : pairs) {
        all.push_back({pair.operation, pair.ours, pair.theirs, TARN_BENCH_STATIC ? none : pair.instructions, {}});
    }
    return all;
}

}  // namespace tarn::bench
