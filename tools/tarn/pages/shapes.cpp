#include "tools/tarn/pages/shapes.h"

#include <algorithm>

namespace tarn::tool {

namespace {

// "payload.list[0].id" has the steps payload, list, [0], id. Pieces that are not members get an "@", since a member may
// be called "state".
std::vector<std::string> steps_of(const Piece &piece) {
    std::vector<std::string> steps;
    for (const char c : piece.path) {
        if (c == '.' || c == '[' || steps.empty()) steps.emplace_back();
        if (c != '.') steps.back() += c;
    }
    if (piece.kind == "skipped") {
        steps.emplace_back("@skipped");
    } else if (piece.kind == "variant" || piece.kind == "flag" || piece.kind == "jump" || piece.kind == "state") {
        steps.back().insert(0, "@");
    }
    return steps;
}

bool is_element(const std::string &step) { return step.front() == '['; }
long index_of(const std::string &step) { return std::stol(step.substr(1)); }

void to_array(nlohmann::ordered_json &list) {
    nlohmann::ordered_json array{{"elements", nlohmann::ordered_json::array()}, {"states", 0}, {"state", 0}};
    for (std::size_t i = 0; i < list.size(); i += 2) {
        if (list[i].is_number() && list[i].get<long>() >= 0) {
            array["elements"].push_back(list[i + 1]);
        } else {
            array["states"] = array["states"].get<long>() + 1;
            array["state"] = list[i + 1];
        }
    }
    list = array;
}

}  // namespace

std::size_t Shapes::number_of(nlohmann::ordered_json shape) {
    const auto [at, is_new] = numbers_.try_emplace(shape.dump(), shapes_.size());
    if (is_new) shapes_.push_back(std::move(shape));
    return at->second;
}

// A single piece needs no list.
void Shapes::close(std::size_t depth) {
    while (open_.size() > depth) {
        Open done = std::move(open_.back());
        open_.pop_back();
        if (done.shape.front().is_number()) to_array(done.shape);
        nlohmann::ordered_json &outer = open_.back().shape;
        const bool is_piece = done.shape.is_array() && done.shape.size() == 2 && done.shape.front() == "";
        if (is_element(done.name)) {
            outer.push_back(index_of(done.name));
        } else {
            outer.push_back(done.name);
        }
        outer.push_back(is_piece ? done.shape.back().get<std::size_t>() : number_of(done.shape));
    }
}

void Shapes::add(const Piece &piece) {
    const std::vector<std::string> steps = steps_of(piece);
    const std::size_t comma = piece.kind == "variant" ? piece.value.find(',') : std::string::npos;
    const std::size_t shape = number_of(piece.kind + " " + std::to_string(piece.size) +
                                        (comma == std::string::npos ? "" : piece.value.substr(comma)));
    std::size_t common = 0;
    while (common < steps.size() && common + 1 < open_.size() && open_[common + 1].name == steps[common]) ++common;
    close(common + 1);
    nlohmann::ordered_json &list = open_.back().shape;
    if (piece.kind == "state" && common + 2 == steps.size() && is_element(steps[common])) {
        list.push_back(-1 - index_of(steps[common]));
        list.push_back(shape);
        return;
    }
    for (; common < steps.size(); ++common) open_.push_back({steps[common]});
    open_.back().shape.push_back("");
    open_.back().shape.push_back(shape);
}

std::size_t Shapes::add(const std::vector<Piece> &pieces) {
    open_.assign(1, {});
    for (const Piece &piece : pieces) add(piece);
    close(1);
    return number_of(open_.front().shape);
}

}  // namespace tarn::tool
