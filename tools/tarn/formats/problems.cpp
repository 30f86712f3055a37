#include "tools/tarn/formats/problems.h"

#include <utility>

namespace tarn::tool {

namespace {

std::vector<std::string> lines_of(const std::string &origin, const std::vector<Problem> &problems) {
    std::vector<std::string> lines;
    for (const Problem &p : problems) {
        lines.push_back(origin + ":" + p.at.text() + ": " + (p.path.empty() ? "" : p.path + ": ") + p.reason);
    }
    return lines;
}

}  // namespace

std::string Path::text() const {
    if (up == nullptr) return std::string(name);
    const std::string above = up->text();
    if (index != none) return above + "[" + std::to_string(index) + "]";
    return above + (above.empty() ? "" : "/") + std::string(name);
}

// No name contains a slash or a tilde, which a pointer would escape.
std::string Path::pointer() const {
    if (up == nullptr) return {};
    return up->pointer() + "/" + (index != none ? std::to_string(index) : std::string(name));
}

void ProblemList::require_none(const std::string &origin) const {
    if (!problems_.empty()) throw Invalid(origin, problems_, more_);
}

Invalid::Invalid(const std::string &origin, std::vector<Problem> problems, std::size_t more)
    : Failure(Exit::input, lines_of(origin, problems), more), problems_(std::move(problems)), more_(more) {}

}  // namespace tarn::tool
