// How cost grows with the number of elements, for a list of nested records and for one of strings.
#include "bench/object.h"

namespace tarn::bench {

namespace {

constexpr std::size_t points[] = {100, 1000, 3000, 10000, 30000, 100000};
// An array grows by one element at a time while XML is read, and each growth moves it.
constexpr std::size_t most_read_from_xml = 3000;

template <class Plain>
void add(Board &board, std::string_view list, Plain (*make)(std::size_t)) {
    for (const std::size_t n : points) {
        const auto s = std::make_shared<Sample<Plain>>(Handle::Kind::plain, make(n));
        board.add_point("encode", list, n, encoding(s));
        board.add_point("decode and destroy", list, n, decoding(s));
        board.add_point("copy and destroy", list, n, copying(s));
        board.add_point("compare", list, n, comparing(s));
        board.add_point("hash", list, n, hashing(s));
        board.add_point("text", list, n, printing(s));
        board.add_point("XML writing", list, n, writing_xml(s));
        if (n <= most_read_from_xml) board.add_point("XML reading", list, n, reading_xml(s));
    }
}

}  // namespace

void add_curves(Board &board) {
    add(board, "classes", classes);
    add(board, "applications", applications);
}

}  // namespace tarn::bench
