// SVG drawings. Classes determine their appearance, so a drawing adapts to the style of a page that contains it, and
// has a light and a dark style of its own when it is a file.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tarn::draw {

inline std::string number(double value) {
    std::string text = std::to_string(value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

class Svg {
public:
    void rectangle(double x, double y, double width, double height, std::string_view kind) {
        body_ += "<rect class=\"" + std::string(kind) + "\" x=\"" + number(x) + "\" y=\"" + number(y) + "\" width=\"" +
                 number(width) + "\" height=\"" + number(height) + "\" rx=\"3\"/>\n";
        reach(x + width, y + height);
    }
    void text(double x, double y, std::string_view words, std::string_view kind = "") {
        body_ += "<text" + (kind.empty() ? std::string() : " class=\"" + std::string(kind) + "\"") + " x=\"" +
                 number(x) + "\" y=\"" + number(y) + "\">" + escaped(words) + "</text>\n";
        reach(0, y);
    }
    void line(double x1, double y1, double x2, double y2, std::string_view kind) {
        path("M" + number(x1) + " " + number(y1) + " L" + number(x2) + " " + number(y2), kind);
        reach(x1, y1);
        reach(x2, y2);
    }
    // `more`: attributes after the class.
    void path(const std::string &steps, std::string_view kind, const std::string &more = "") {
        body_ += "<path class=\"" + std::string(kind) + "\"" + more + " d=\"" + steps + "\"/>\n";
    }
    void open(std::string_view kind, const std::string &more = "") {
        body_ += "<g class=\"" + std::string(kind) + "\"" + more + ">\n";
    }
    void tooltip(std::string_view words) { body_ += "<title>" + escaped(words) + "</title>\n"; }
    void close() { body_ += "</g>\n"; }

    // For a page with its own style, and as a file.
    std::string inside(std::string_view label) const { return head(label) + body_ + "</svg>\n"; }
    std::string alone(std::string_view label) const { return head(label) + style() + body_ + "</svg>\n"; }

private:
    static std::string escaped(std::string_view words) {
        std::string out;
        for (const char c : words) {
            out += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
        }
        return out;
    }
    void reach(double x, double y) {
        width_ = std::max(width_, x);
        height_ = std::max(height_, y);
    }
    std::string head(std::string_view label) const {
        const std::string width = number(width_ + margin), height = number(height_ + margin);
        return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height +
               "\" viewBox=\"0 0 " + width + " " + height + "\" role=\"img\" aria-label=\"" + std::string(label) +
               "\">\n";
    }
    static std::string style();

    static constexpr double margin = 12;
    std::string body_;
    double width_ = 0, height_ = 0;
};

}  // namespace tarn::draw
