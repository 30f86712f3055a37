#include "tools/tarn/pages/page.h"

#include <nlohmann/json.hpp>

#include "page_style.h"
#include "tools/tarn/support/base64.h"

namespace tarn::tool {

namespace {

// Escapes text as the content of an element.
std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) out += c == '<' ? "&lt;" : c == '&' ? "&amp;" : std::string(1, c);
    return out;
}

// JSON inside a script element must not contain the end tag of the element or the start of a comment.
std::string escaped_json(const nlohmann::ordered_json &data) {
    const std::string text = data.dump(-1, ' ', true, nlohmann::ordered_json::error_handler_t::replace);
    std::string out;
    out.reserve(text.size());
    for (std::size_t from = 0;;) {
        const std::size_t at = text.find('<', from);
        out.append(text, from, at - from);
        if (at == std::string::npos) break;
        out += "\\u003c";
        from = at + 1;
    }
    return out;
}

}  // namespace

std::string page_text(const Page &page) {
    // The policy keeps the browser from loading anything, and from running any script but this one.
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'; "
           "script-src 'sha256-" +
           base64_of(page.script_sha256) +
           "'; img-src data:\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
           escaped(page.title) + "</title>\n<style>\n" + page_style + "</style>\n</head>\n<body>\n" +
           std::string(page.body) + "<script type=\"application/json\" id=\"data\">" + escaped_json(page.data) +
           "</script>\n<script>" + std::string(page.script) + "</script>\n</body>\n</html>\n";
}

}  // namespace tarn::tool
