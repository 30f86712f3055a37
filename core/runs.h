// Runs: integer members that are adjacent in memory, so that they can be processed in one step.
#pragma once

#include "core/walk.h"

namespace tarn {

// True if the member follows the previous member of its run without a gap.
template <const Record &R>
constexpr bool continues_run(std::size_t i) {
    const auto &places = schema::layout<R>.members;
    return i != 0 && schema::is_integer(R.members[i].kind) && schema::is_integer(R.members[i - 1].kind) &&
           places[i].offset == places[i - 1].offset + places[i - 1].size;
}
// Number of members of the run that starts at first.
template <const Record &R>
constexpr std::size_t length_of_run(std::size_t first) {
    std::size_t end = first + 1;
    while (end < R.members.size() && continues_run<R>(end)) ++end;
    return end - first;
}
// Bytes of the run that starts with F.
template <class F>
constexpr std::uint32_t size_of_run() {
    constexpr schema::MemberLayout last =
        schema::layout<F::owner>.members[F::index + length_of_run<F::owner>(F::index) - 1];
    return last.offset + last.size - F::place.offset;
}
template <class F, class Visit>
[[gnu::always_inline]] constexpr bool walk_run(Visit &&visit) {
    return walk_some<F::owner, F::index, length_of_run<F::owner>(F::index)>(visit);
}

}  // namespace tarn
