#include "pictures.h"
#include "schema/catalogue.h"
#include "svg.h"

namespace tarn::draw {

namespace {

using namespace schema;

constexpr const Bundle &shown = lumo_tarn_cl_debug_rsp;
constexpr double requester = 250, answerer = 740;

std::string short_luid(const Luid &luid) { return "luid " + std::string(luid.text.data()).substr(0, 8) + "..."; }

void arrow(Svg &svg, double y, bool to_the_right, const std::string &words, const std::string &more, bool bad = false) {
    const double from = to_the_right ? requester : answerer, to = to_the_right ? answerer : requester;
    const double back = to_the_right ? -9 : 9;
    svg.line(from, y, to + back / 2, y, bad ? "arrow bad" : "arrow");
    svg.path("M" + number(to) + " " + number(y) + " l" + number(back) + " -4.5 v9 z", bad ? "tip bad" : "tip");
    svg.text((from + to) / 2, y - 7, words, bad ? "middle bad-text" : "middle");
    svg.text((from + to) / 2, y + 15, more, "soft small middle");
}

void note(Svg &svg, double y, bool at_requester, const std::string &words, const std::string &more = "") {
    const double x = at_requester ? requester - 16 : answerer + 16;
    const char *side = at_requester ? "end" : "";
    svg.text(x, y + 4, words, side);
    if (!more.empty()) svg.text(x, y + 20, more, at_requester ? "soft small end" : "soft small");
}

}  // namespace

std::string bundle() {
    Svg svg;
    const std::string name(shown.name), message(shown.message.name);
    svg.line(0, 0, 0, 0, "life");
    svg.text(12, 30, "The life of the bundle " + name, "title");
    svg.rectangle(requester - 80, 46, 160, 28, "value");
    svg.text(requester, 64, "requesting process", "middle");
    svg.rectangle(answerer - 90, 46, 180, 28, "block");
    svg.text(answerer, 64, "answering process", "middle");
    svg.line(requester, 74, requester, 520, "life");
    svg.line(answerer, 74, answerer, 520, "life");
    double y = 112;
    arrow(svg, y, true, "request", "ui_req_msg with the name of the bundle");
    y += 66;
    arrow(svg, y, false, "start", short_luid(shown.start));
    note(svg, y, true, "opens the receive list", "later messages wait there");
    note(svg, y, false, "opens the bundle", "it admits " + message);
    y += 66;
    arrow(svg, y, false, message, short_luid(shown.message.luid));
    note(svg, y, true, "adds the message to it", "no handler sees it yet");
    note(svg, y, false, "counts the message");
    y += 58;
    arrow(svg, y, false, "further messages", "");
    y += 58;
    arrow(svg, y, false, "commit", short_luid(shown.commit));
    note(svg, y, true, "calls the bundle's handler once", "with all messages on the list");
    note(svg, y, false, "closes the bundle");
    y += 74;
    svg.line(requester - 220, y - 26, answerer + 240, y - 26, "lens");
    svg.text(requester - 220, y - 10, "or, at any time after the start", "soft small");
    arrow(svg, y + 16, false, "abort", short_luid(shown.abort), true);
    note(svg, y + 16, true, "discards the list", "no handler is called");
    note(svg, y + 16, false, "closes the bundle");
    return svg.alone("the life of a bundle, from a request to its handler");
}

}  // namespace tarn::draw
