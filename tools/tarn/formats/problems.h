// What is wrong with a document: all of it, so that its author need not correct and try again for each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/position.h"

namespace tarn::tool {

struct Problem {
    Position at;       // in XML and JSON; the column is 0 if it is not known
    std::string path;  // of the value in the message; may be empty
    std::string reason;
    std::string pointer = {};                // the path as a JSON pointer; only in JSON
    std::optional<std::size_t> offset = {};  // in a file of frames
};

// The way to a value, made as text only for a problem.
struct Path {
    static constexpr std::size_t none = SIZE_MAX;

    const Path *up = nullptr;
    std::string_view name = {};
    std::size_t index = none;  // of an element

    // The path must outlive those that are made from it.
    Path operator/(std::string_view below) const { return {this, below}; }
    Path operator[](std::size_t element) const { return {this, {}, element}; }

    std::string text() const;     // "payload/prefix_data[1]/prefix"
    std::string pointer() const;  // "/payload/prefix_data/1/prefix"
};

class ProblemList {
public:
    // `make` returns the problem. It is called only if the list is not full.
    template <class Make>
    void add(const Make &make) {
        if (problems_.size() < most_complaints) {
            problems_.push_back(make());
        } else {
            ++more_;
        }
    }
    // Throws them, if there are any.
    void require_none(const std::string &origin) const;
    bool empty() const { return problems_.empty(); }

private:
    std::vector<Problem> problems_;
    std::size_t more_ = 0;
};

// "FILE:LINE:COLUMN: PATH: REASON"
class Invalid : public Failure {
public:
    Invalid(const std::string &origin, std::vector<Problem> problems, std::size_t more = 0);
    // With words of its own, and for a frame.
    Invalid(const Failure &failure, Problem problem) : Failure(failure), problems_{std::move(problem)}, more_(0) {}

    const std::vector<Problem> &problems() const { return problems_; }
    std::size_t more() const { return more_; }

private:
    std::vector<Problem> problems_;
    std::size_t more_;
};

}  // namespace tarn::tool
