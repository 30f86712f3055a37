#include "bench/board.h"

#include <algorithm>

namespace tarn::bench {

namespace {

std::string joined(std::string_view operation, std::string_view workload, std::string_view who) {
    return std::string(operation) + "/" + std::string(workload) + "/" + std::string(who);
}

using Goals = std::array<std::optional<double>, workload_names.size()>;
constexpr Goals none{};
constexpr Goals each(double goal) { return {goal, goal, goal, goal}; }

struct Pair {
    const char *operation, *ours, *theirs;
    Goals shared = none, archive = none;
};

// What is worth a ratio, and how far it should come down, for either product.
constexpr Pair pairs[] = {
    {"encode", "library", "contract floor", each(0.9)},
    {"encode", "library", "inlined floor"},
    {"encode", "library", "memcpy"},
    {"encode", "library", "protobuf", {{1.7, 1.9, 3.0, 1.8}}, {{0.45, 0.40, 0.60, 0.60}}},
    {"encode", "library", "flatbuffers objects"},
    {"encode", "library", "flatbuffers raw"},
    {"encode", "library", "capnp"},
    {"encode", "library, tracking", "contract floor, tracking"},
    {"decode and destroy", "library", "contract floor", each(1.0)},
    {"decode and destroy", "library", "inlined floor"},
    {"decode and destroy", "library", "memcpy"},
    {"decode and destroy", "library", "protobuf", {{1.0, 1.8, 1.6, 0.95}}, {{0.75, 1.4, 1.2, 0.80}}},
    {"decode and destroy",
     "library, private tables",
     "protobuf",
     {{0.75, 1.5, 1.15, 0.87}},
     {{0.40, 0.95, 0.65, 0.65}}},
    {"decode and destroy", "library, private tables", "protobuf arena"},
    {"decode and destroy", "library, private tables and arena", "protobuf arena"},
    {"decode and destroy", "library, private tables", "library"},
    {"decode and destroy", "library", "library, empty announcements"},
    {"decode and destroy", "library, an unwanted trace line", "library"},
    {"decode and destroy", "library", "flatbuffers objects"},
    {"decode and destroy", "library", "flatbuffers raw"},
    {"decode and destroy", "library", "capnp"},
    {"decode and destroy", "library, tracking", "contract floor, tracking"},
    {"build and destroy", "library", "protobuf"},
    {"build and destroy", "library, private tables", "protobuf"},
    {"build and destroy", "library", "flatbuffers objects"},
    {"build and destroy", "library", "capnp"},
    {"build and destroy", "library", "library, empty announcements"},
    {"copy and destroy", "library", "protobuf"},
    {"copy and destroy", "library, private tables", "protobuf"},
    {"copy and destroy", "library", "plain structs"},
    {"compare", "library", "plain structs", {{1.2, 1.0, 1.7, 1.0}}, each(1.1)},
    {"text", "library", "protobuf", each(0.2), each(0.15)},
};

}  // namespace

std::string Board::key(std::string_view operation, std::string_view workload, std::string_view who) {
    names_.push_back({std::string(operation), std::string(workload), std::string(who)});
    return joined(operation, workload, who);
}

std::string Board::point(std::string_view operation, std::string_view list, std::size_t elements) {
    return joined("growth of " + std::string(operation), list, std::to_string(elements));
}

std::optional<double> Board::median(std::string_view operation, std::string_view workload, std::string_view who) const {
    return median(joined(operation, workload, who));
}

std::optional<double> Board::median_an_element(std::string_view operation, std::string_view list,
                                               std::size_t elements) const {
    const auto all = median(point(operation, list, elements));
    if (!all) return {};
    return *all / static_cast<double>(elements);
}

std::optional<double> Board::median(const std::string &name) const {
    const auto found = times_.find(name);
    if (found == times_.end()) return {};
    std::vector<double> sorted = found->second;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t half = sorted.size() / 2;
    return sorted.size() % 2 != 0 ? sorted[half] : (sorted[half - 1] + sorted[half]) / 2;
}

std::vector<std::string> Board::everybody(std::string_view operation) const {
    std::vector<std::string> all;
    for (const auto &[name, workload, who] : names_) {
        if (name == operation && std::find(all.begin(), all.end(), who) == all.end()) all.push_back(who);
    }
    return all;
}

std::vector<std::string> Board::operations() const {
    std::vector<std::string> all;
    for (const auto &name : names_) {
        if (std::find(all.begin(), all.end(), name[0]) == all.end()) all.push_back(name[0]);
    }
    return all;
}

std::vector<Ratio> ratios(const Board &board) {
    std::vector<Ratio> all;
    for (const Pair &pair : pairs) {
        Ratio ratio{pair.operation, pair.ours, pair.theirs, TARN_BENCH_STATIC ? pair.archive : pair.shared, {}};
        bool any = false;
        for (std::size_t i = 0; i < workload_names.size(); ++i) {
            const auto ours = board.median(pair.operation, workload_names[i], pair.ours);
            const auto theirs = board.median(pair.operation, workload_names[i], pair.theirs);
            if (ours && theirs) ratio.value[i] = *ours / *theirs;
            any = any || ratio.value[i];
        }
        if (any) all.push_back(ratio);
    }
    return all;
}

}  // namespace tarn::bench
