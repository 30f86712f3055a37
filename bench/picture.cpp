// Pictures: ratios as bars, growth as curves.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "bench/results.h"

namespace tarn::bench {

namespace {

constexpr const char *colors[] = {"#1b6ca8", "#d1495b", "#2e8b57", "#e6a117",
                                  "#6a4c93", "#5f6b6d", "#c05299", "#3d5a80"};

class Picture {
public:
    Picture(double width, double height) {
        out_ << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "\" height=\"" << height
             << "\" font-family=\"sans-serif\" font-size=\"12\">\n<rect width=\"100%\" height=\"100%\" "
                "fill=\"white\"/>\n";
    }
    void text(double x, double y, const std::string &words, const char *anchor = "start", const char *color = "#222") {
        out_ << "<text x=\"" << x << "\" y=\"" << y << "\" text-anchor=\"" << anchor << "\" fill=\"" << color << "\">"
             << words << "</text>\n";
    }
    void line(double x1, double y1, double x2, double y2, const char *color, double width = 1) {
        out_ << "<line x1=\"" << x1 << "\" y1=\"" << y1 << "\" x2=\"" << x2 << "\" y2=\"" << y2 << "\" stroke=\""
             << color << "\" stroke-width=\"" << width << "\"/>\n";
    }
    void bar(double x, double y, double width, double height, const char *color) {
        out_ << "<rect x=\"" << x << "\" y=\"" << y << "\" width=\"" << width << "\" height=\"" << height
             << "\" fill=\"" << color << "\"/>\n";
    }
    void save(const std::filesystem::path &path) {
        std::filesystem::create_directories(path.parent_path());
        std::ofstream file(path);
        file << out_.str() << "</svg>\n";
        require(file.good(), "a picture cannot be written");
    }

private:
    std::ostringstream out_;
};

// A logarithmic axis.
struct Axis {
    double low, high, from, to;
    double at(double value) const {
        const double clamped = std::clamp(value, low, high);
        return from + (to - from) * std::log(clamped / low) / std::log(high / low);
    }
};

std::string short_number(double value) {
    std::ostringstream text;
    text.precision(value < 1 ? 2 : 3);
    text << value;
    return text.str();
}

void draw_ratios(const Results &results, const std::filesystem::path &path) {
    const std::vector<Ratio> all = ratios(results);
    constexpr double left = 430, width = 640, bar = 9, row = 4 * bar + 14, top = 60;
    const double bottom = top + row * static_cast<double>(all.size());
    Picture picture(left + width + 90, bottom + 20);
    const Axis axis{0.05, 100, left, left + width};
    for (const double tick : {0.05, 0.1, 0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0}) {
        picture.line(axis.at(tick), top - 8, axis.at(tick), bottom, tick == 1.0 ? "#222" : "#ddd");
        picture.text(axis.at(tick), top - 14, short_number(tick), "middle");
    }
    for (std::size_t w = 0; w < workload_names.size(); ++w) {
        const double x = left + 90 * static_cast<double>(w);
        picture.bar(x, 14, 12, 12, colors[w]);
        picture.text(x + 18, 24, std::string(workload_names[w]));
    }
    picture.text(20, 24, "time of ours over time of the other; the mark is the goal");
    double y = top;
    for (const Ratio &ratio : all) {
        picture.text(left - 10, y + 2 * bar, ratio.operation + ": " + ratio.ours, "end");
        picture.text(left - 10, y + 2 * bar + 14, "over " + ratio.theirs, "end", "#777");
        for (std::size_t w = 0; w < workload_names.size(); ++w) {
            const double at = y + bar * static_cast<double>(w);
            if (ratio.value[w]) {
                const double one = axis.at(1), x = axis.at(*ratio.value[w]);
                picture.bar(std::min(one, x), at, std::max(1.0, std::abs(x - one)), bar - 1, colors[w]);
                picture.text(left + width + 10, at + bar - 1, short_number(*ratio.value[w]));
            }
            if (ratio.goal[w]) {
                picture.line(axis.at(*ratio.goal[w]), at - 1, axis.at(*ratio.goal[w]), at + bar, "#000", 2);
            }
        }
        y += row;
    }
    picture.save(path);
}

void draw_curves(const Results &results, const std::filesystem::path &path) {
    constexpr double panel = 520, height = 420, left = 60, top = 50;
    std::vector<std::string> lists;
    double low = 1e9, high = 1;
    for (const auto &[operation, by_list] : results.curves()) {
        for (const auto &[list, points] : by_list) {
            if (std::find(lists.begin(), lists.end(), list) == lists.end()) lists.push_back(list);
            for (const std::size_t n : points) {
                const auto time = results.median_per_element(operation, list, n);
                if (time) low = std::min(low, *time), high = std::max(high, *time);
            }
        }
    }
    if (high < low) return;
    Picture picture(left + (panel + left) * static_cast<double>(lists.size()) + 120, top + height + 50);
    double x0 = left;
    for (const std::string &list : lists) {
        const Axis x{100, 100000, x0, x0 + panel}, y{low, high, top + height, top};
        picture.text(x0, 24, list + ": ns an element, by the number of elements");
        for (const double n : {100.0, 1000.0, 10000.0, 100000.0}) {
            picture.line(x.at(n), top, x.at(n), top + height, "#ddd");
            picture.text(x.at(n), top + height + 18, std::to_string(static_cast<int>(n)), "middle");
        }
        for (double time = 1; time <= high; time *= 10) {
            if (time < low) continue;
            picture.line(x0, y.at(time), x0 + panel, y.at(time), "#ddd");
            picture.text(x0 - 6, y.at(time) + 4, short_number(time), "end");
        }
        std::size_t color = 0;
        for (const auto &[operation, by_list] : results.curves()) {
            const char *stroke = colors[color++ % std::size(colors)];
            const auto points = by_list.find(list);
            if (points == by_list.end()) continue;
            double before_x = 0, before_y = 0;
            for (const std::size_t n : points->second) {
                const auto time = results.median_per_element(operation, list, n);
                if (!time) continue;
                const double at_x = x.at(static_cast<double>(n)), at_y = y.at(*time);
                if (before_x != 0) picture.line(before_x, before_y, at_x, at_y, stroke, 2);
                before_x = at_x;
                before_y = at_y;
            }
            picture.text(before_x + 4, before_y - 4, operation, before_x > x0 + panel - 1 ? "start" : "middle", stroke);
        }
        x0 += panel + left + 60;
    }
    picture.save(path);
}

}  // namespace

void write_pictures(const Results &results, const std::string &directory) {
    draw_ratios(results, std::filesystem::path(directory) / "ratios.svg");
    draw_curves(results, std::filesystem::path(directory) / "growth.svg");
}

}  // namespace tarn::bench
