#include "tools/tarn/formats/alignment.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_set>

namespace tarn::tool {

namespace {

using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

// The steps after which a search takes the best split that it has found, for both sequences together.
constexpr std::size_t most_steps = std::size_t{1} << 26, least_edits = 256;

// A sequence, and the positions of its numbers in the whole one.
struct Sequence {
    std::span<const std::uint32_t> numbers;
    std::span<const std::size_t> positions;

    std::size_t size() const { return numbers.size(); }
    Sequence part(std::size_t from, std::size_t count) const {
        return {numbers.subspan(from, count), positions.subspan(from, count)};
    }
};

// Myers' algorithm in linear space: finds the middle of a shortest edit script, and continues in both halves.
class Aligner {
public:
    Aligner(std::size_t a, std::size_t b)
        : most_edits_(std::max(least_edits, most_steps / (a + b + 1))), forward_(a + b + 3), backward_(a + b + 3) {}

    void run(Sequence a, Sequence b) {
        std::size_t head = 0, tail = 0;
        const std::size_t least = std::min(a.size(), b.size());
        while (head < least && a.numbers[head] == b.numbers[head]) add(a, b, head, head), ++head;
        while (tail < least - head && a.numbers[a.size() - 1 - tail] == b.numbers[b.size() - 1 - tail]) ++tail;
        const Sequence inner_a = a.part(head, a.size() - head - tail), inner_b = b.part(head, b.size() - head - tail);
        if (inner_a.size() != 0 && inner_b.size() != 0) {
            const auto [x, y] = split(inner_a.numbers, inner_b.numbers);
            run(inner_a.part(0, x), inner_b.part(0, y));
            run(inner_a.part(x, inner_a.size() - x), inner_b.part(y, inner_b.size() - y));
        }
        for (; tail != 0; --tail) add(a, b, a.size() - tail, b.size() - tail);
    }

    Pairs pairs;

private:
    using Offset = std::ptrdiff_t;

    void add(const Sequence &a, const Sequence &b, std::size_t at_a, std::size_t at_b) {
        pairs.emplace_back(a.positions[at_a], b.positions[at_b]);
    }

    static constexpr Offset unreachable = -1;

    // The furthest points that paths with a number of edits reach, for each diagonal x - y. Seen from one of the ends.
    struct Front {
        Offset *reached;  // indexed by diagonals, from -(m + 1) to n + 1
        Offset n, m;

        Front(std::vector<Offset> &memory, Offset n, Offset m) : reached(memory.data() + m + 1), n(n), m(m) {
            reached[-m - 1] = reached[n + 1] = unreachable;
        }
        Offset least(Offset edits) const { return edits <= m ? -edits : -m + (edits - m) % 2; }
        Offset most(Offset edits) const { return edits <= n ? edits : n - (edits - n) % 2; }
        // Makes one edit more on diagonal k and returns where that leads. Equal numbers may follow.
        Offset edit(Offset k, Offset edits) {
            if (edits == 0) return 0;
            const Offset right = k > -edits && reached[k - 1] != unreachable ? reached[k - 1] + 1 : unreachable;
            const Offset down = k < edits ? reached[k + 1] : unreachable;
            return std::max(right <= n ? right : unreachable, down - k <= m ? down : unreachable);
        }
    };

    // A point that a good alignment passes, neither the begin nor the end. The sequences are not empty, and differ in
    // their first and in their last numbers, so that at least two edits are needed.
    std::pair<std::size_t, std::size_t> split(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b) {
        const auto n = static_cast<Offset>(a.size()), m = static_cast<Offset>(b.size()), delta = n - m;
        const auto at = [](std::span<const std::uint32_t> all, Offset i) { return all[static_cast<std::size_t>(i)]; };
        const auto point = [](Offset x, Offset y) {
            return std::pair{static_cast<std::size_t>(x), static_cast<std::size_t>(y)};
        };
        Front forward(forward_, n, m), backward(backward_, n, m);
        for (Offset edits = 0;; ++edits) {
            for (Offset k = forward.least(edits); k <= forward.most(edits); k += 2) {
                const Offset first = forward.edit(k, edits), other = delta - k;
                Offset x = first;
                while (x != unreachable && x < n && x - k < m && at(a, x) == at(b, x - k)) ++x;
                forward.reached[k] = x;
                if (x == unreachable || delta % 2 == 0 || std::abs(other) >= edits) continue;
                const Offset met = backward.reached[other];
                if (met != unreachable && x + met >= n) return point(first, first - k);
            }
            for (Offset k = backward.least(edits); k <= backward.most(edits); k += 2) {
                Offset x = backward.edit(k, edits);
                const Offset other = delta - k;
                while (x != unreachable && x < n && x - k < m && at(a, n - 1 - x) == at(b, m - 1 - x + k)) ++x;
                backward.reached[k] = x;
                if (x == unreachable || delta % 2 != 0 || std::abs(other) > edits) continue;
                const Offset met = forward.reached[other];
                if (met != unreachable && x + met >= n) return point(n - x, m - x + k);
            }
            if (edits < static_cast<Offset>(most_edits_)) continue;
            Offset x = 0, y = 0;
            for (Offset k = forward.least(edits); k <= forward.most(edits); k += 2) {
                const Offset reached = forward.reached[k];
                if (reached != unreachable && 2 * reached - k > x + y) x = reached, y = reached - k;
            }
            return point(x, y);
        }
    }

    std::size_t most_edits_;
    std::vector<Offset> forward_, backward_;
};

// A number that only one of the sequences contains aligns with nothing; without those, most searches are short.
std::vector<std::size_t> common(std::span<const std::uint32_t> all, std::span<const std::uint32_t> others) {
    const std::unordered_set<std::uint32_t> known(others.begin(), others.end());
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (known.contains(all[i])) positions.push_back(i);
    }
    return positions;
}

std::vector<std::uint32_t> at(std::span<const std::uint32_t> all, const std::vector<std::size_t> &positions) {
    std::vector<std::uint32_t> numbers;
    for (const std::size_t position : positions) numbers.push_back(all[position]);
    return numbers;
}

}  // namespace

Pairs align(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b) {
    const std::vector<std::size_t> in_a = common(a, b), in_b = common(b, a);
    const std::vector<std::uint32_t> numbers_a = at(a, in_a), numbers_b = at(b, in_b);
    Aligner aligner(in_a.size(), in_b.size());
    aligner.run({numbers_a, in_a}, {numbers_b, in_b});
    return std::move(aligner.pairs);
}

}  // namespace tarn::tool
