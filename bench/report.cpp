// Tables and JSON.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "bench/board.h"

namespace tarn::bench {

namespace {

constexpr const char *product = TARN_BENCH_STATIC ? "static archive" : "shared library";

void print_head(const std::string &title) {
    std::printf("\n%-66s", title.c_str());
    for (const std::string_view name : workload_names) std::printf(" %13s", std::string(name).c_str());
    std::printf("\n");
}

// One line of a table; a place without a value stays blank.
void print_row(const std::string &head, const std::vector<std::string> &values) {
    std::printf("  %-64s", head.c_str());
    for (const std::string &value : values) std::printf(" %13s", value.c_str());
    std::printf("\n");
}

std::string text_of(const char *format, const std::optional<double> &value) {
    char text[32] = "";
    if (value) std::snprintf(text, sizeof text, format, *value);
    return text;
}

void print_times(const Board &board, const std::string &operation) {
    bool first = true;
    for (const std::string &who : board.everybody(operation)) {
        std::vector<std::string> row;
        bool any = false;
        for (const std::string_view workload : workload_names) {
            const auto time = board.median(operation, workload, who);
            row.push_back(text_of("%.0f", time));
            any = any || time;
        }
        if (!any) continue;
        if (first) print_head(operation + ", ns");
        first = false;
        print_row(who, row);
    }
}

void print_curves(const Board &board) {
    for (const auto &[operation, lists] : board.curves()) {
        for (const auto &[list, points] : lists) {
            std::string head, row;
            std::optional<double> thousand, last;
            for (const std::size_t n : points) {
                const auto time = board.median_an_element(operation, list, n);
                if (!time) continue;
                if (n == 1000) thousand = time;
                last = time;
                char cell[32];
                std::snprintf(cell, sizeof cell, " %9zu", n);
                head += cell;
                std::snprintf(cell, sizeof cell, " %9.1f", *time);
                row += cell;
            }
            if (row.empty()) continue;
            std::printf("\n%-34s%s\n%-34s%s", (operation + ", " + list).c_str(), head.c_str(), "  ns an element",
                        row.c_str());
            if (thousand) std::printf("   the last over that at 1000: %.2f", *last / *thousand);
            std::printf("\n");
        }
    }
}

nlohmann::ordered_json number(const std::optional<double> &value) {
    return value ? nlohmann::ordered_json(*value) : nlohmann::ordered_json(nullptr);
}

}  // namespace

void print_tables(const Board &board) {
    std::printf("Product: %s. Medians of repetitions in random order.\n", product);
    for (const std::string &operation : board.operations()) print_times(board, operation);
    const std::vector<Ratio> all = ratios(board);
    if (!all.empty()) print_head("ratio (goal)");
    for (const Ratio &ratio : all) {
        std::vector<std::string> row;
        for (std::size_t i = 0; i < workload_names.size(); ++i) {
            row.push_back(text_of("%.2f", ratio.value[i]) + text_of(" (%.2f)", ratio.goal[i]));
        }
        print_row(ratio.operation + ": " + ratio.ours + " / " + ratio.theirs, row);
    }
    print_curves(board);
}

void write_json(const Board &board, const std::string &path) {
    nlohmann::ordered_json out{{"product", product}, {"unit", "ns"}};
    for (const std::string &operation : board.operations()) {
        for (const std::string &who : board.everybody(operation)) {
            for (const std::string_view workload : workload_names) {
                const auto time = board.median(operation, workload, who);
                if (time) out["medians"][operation][who][std::string(workload)] = *time;
            }
        }
    }
    for (const Ratio &ratio : ratios(board)) {
        nlohmann::ordered_json row{{"operation", ratio.operation}, {"ours", ratio.ours}, {"theirs", ratio.theirs}};
        for (std::size_t i = 0; i < workload_names.size(); ++i) {
            row["ratio"][std::string(workload_names[i])] = number(ratio.value[i]);
            row["goal"][std::string(workload_names[i])] = number(ratio.goal[i]);
        }
        out["ratios"].push_back(row);
    }
    for (const auto &[operation, lists] : board.curves()) {
        for (const auto &[list, points] : lists) {
            for (const std::size_t n : points) {
                const auto time = board.median_an_element(operation, list, n);
                if (time) out["ns an element"][operation][list][std::to_string(n)] = *time;
            }
        }
    }
    const std::filesystem::path where(path);
    if (where.has_parent_path()) std::filesystem::create_directories(where.parent_path());
    std::ofstream file(where);
    file << out.dump(2) << "\n";
    require(file.good(), "the JSON file cannot be written");
}

}  // namespace tarn::bench
