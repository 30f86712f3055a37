// Tables and JSON.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "bench/results.h"

namespace tarn::bench {

namespace {

constexpr const char *product = TARN_BENCH_STATIC ? "static archive" : "shared library";

// Tables are Markdown, so that they can be taken over into a page as they are.
void print_row(const std::string &head, const std::vector<std::string> &values) {
    std::printf("| %-82s |", head.c_str());
    for (const std::string &value : values) std::printf(" %11s |", value.c_str());
    std::printf("\n");
}

void print_head(const std::string &title, const std::vector<std::string> &columns) {
    std::printf("\n");
    print_row(title, columns);
    std::printf("|---|");
    for (std::size_t i = 0; i < columns.size(); ++i) std::printf("--:|");
    std::printf("\n");
}

std::string text_of(const char *format, const std::optional<double> &value) {
    char text[32] = "";
    if (value) std::snprintf(text, sizeof text, format, *value);
    return text;
}

const std::vector<std::string> workloads(workload_names.begin(), workload_names.end());

void print_times(const Results &results, const std::string &operation) {
    bool first = true;
    for (const std::string &subject : results.subjects(operation)) {
        std::vector<std::string> row;
        bool any = false;
        for (const std::string_view workload : workload_names) {
            const auto time = results.median(operation, workload, subject);
            row.push_back(text_of("%.0f", time));
            any = any || time;
        }
        if (!any) continue;
        if (first) print_head(operation + ", ns", workloads);
        first = false;
        print_row(subject, row);
    }
}

void print_ratios(const Results &results) {
    const std::vector<Ratio> all = ratios(results);
    if (!all.empty()) print_head("ratio (goal)", workloads);
    for (const Ratio &ratio : all) {
        std::vector<std::string> row;
        for (std::size_t i = 0; i < workload_names.size(); ++i) {
            row.push_back(text_of("%.2f", ratio.value[i]) + text_of(" (%.2f)", ratio.goal[i]));
        }
        print_row(ratio.operation + ": " + ratio.ours + " / " + ratio.theirs, row);
    }
}

void print_curves(const Results &results) {
    bool first = true;
    for (const auto &[operation, lists] : results.curves()) {
        for (const auto &[list, points] : lists) {
            std::vector<std::string> columns, row;
            std::optional<double> thousand, last;
            for (const std::size_t n : curve_points) {
                const auto time = results.median_per_element(operation, list, n);
                columns.push_back(std::to_string(n));
                row.push_back(text_of("%.1f", time));
                if (n == 1000) thousand = time;
                if (time) last = time;
            }
            if (!last) continue;
            columns.push_back("last / 1000");
            row.push_back(thousand ? text_of("%.2f", *last / *thousand) : "");
            if (first) print_head("ns per element, by the number of elements", columns);
            first = false;
            print_row(operation + ", " + list, row);
        }
    }
}

void print_threads(const Results &results) {
    std::vector<std::string> columns;
    for (const int n : thread_counts) columns.push_back(std::to_string(n));
    bool first = true;
    for (const auto &[operation, tables] : results.threads()) {
        std::vector<std::string> row;
        bool any = false;
        for (const int n : thread_counts) {
            const auto scaling = results.scaling(operation, tables, n);
            row.push_back(text_of("%.2f", scaling));
            any = any || scaling;
        }
        if (!any) continue;
        if (first) print_head("work of n threads over that of one", columns);
        first = false;
        print_row(operation + ", " + tables, row);
    }
}

nlohmann::ordered_json number(const std::optional<double> &value) {
    return value ? nlohmann::ordered_json(*value) : nlohmann::ordered_json(nullptr);
}

}  // namespace

void print_description(const char *compiler, int iterations) {
    nlohmann::ordered_json out{{"product", product},
                               {"compiler", compiler},
                               {"iterations", iterations},
                               {"workloads", workloads},
                               {"ratios", nlohmann::ordered_json::array()}};
    for (const Ratio &ratio : instruction_ratios()) {
        nlohmann::ordered_json goals;
        for (const auto &goal : ratio.goal) goals.push_back(number(goal));
        out["ratios"].push_back(
            {{"operation", ratio.operation}, {"ours", ratio.ours}, {"theirs", ratio.theirs}, {"goal", goals}});
    }
    std::printf("%s\n", out.dump().c_str());
}

void print_tables(const Results &results) {
    std::printf("Product: %s. Medians of repetitions in random order.\n", product);
    for (const std::string &operation : results.operations()) print_times(results, operation);
    print_ratios(results);
    print_curves(results);
    print_threads(results);
}

void write_json(const Results &results, const std::string &path) {
    nlohmann::ordered_json out{{"product", product}, {"unit", "ns"}};
    for (const std::string &operation : results.operations()) {
        for (const std::string &subject : results.subjects(operation)) {
            for (const std::string_view workload : workload_names) {
                const auto time = results.median(operation, workload, subject);
                if (time) out["medians"][operation][subject][std::string(workload)] = *time;
            }
        }
    }
    for (const Ratio &ratio : ratios(results)) {
        nlohmann::ordered_json row{{"operation", ratio.operation}, {"ours", ratio.ours}, {"theirs", ratio.theirs}};
        for (std::size_t i = 0; i < workload_names.size(); ++i) {
            row["ratio"][std::string(workload_names[i])] = number(ratio.value[i]);
            row["goal"][std::string(workload_names[i])] = number(ratio.goal[i]);
        }
        out["ratios"].push_back(row);
    }
    for (const auto &[operation, lists] : results.curves()) {
        for (const auto &[list, points] : lists) {
            for (const std::size_t n : points) {
                const auto time = results.median_per_element(operation, list, n);
                if (time) out["ns per element"][operation][list][std::to_string(n)] = *time;
            }
        }
    }
    for (const auto &[operation, tables] : results.threads()) {
        for (const int n : thread_counts) {
            const auto scaling = results.scaling(operation, tables, n);
            if (scaling) out["threads"][operation][tables][std::to_string(n)] = *scaling;
        }
    }
    const std::filesystem::path where(path);
    if (where.has_parent_path()) std::filesystem::create_directories(where.parent_path());
    std::ofstream file(where);
    file << out.dump(2) << "\n";
    require(file.good(), "the JSON file cannot be written");
}

}  // namespace tarn::bench
