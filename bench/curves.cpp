// How cost grows with the number of elements, for a list of nested records and for one of strings.
#include "bench/object.h"

namespace tarn::bench {

namespace {

// An array grows by one element at a time while XML is read. In the shared library each growth moves it.
constexpr std::size_t most_read_from_xml = TARN_BENCH_STATIC ? 100000 : 3000;

// Made when it is first asked for.
template <class Plain>
class Later {
public:
    Later(Plain (*make)(std::size_t), std::size_t n) : make_(make), n_(n) {}
    std::shared_ptr<Sample<Plain>> get() {
        if (sample_ == nullptr) sample_ = std::make_shared<Sample<Plain>>(Setup::plain, make_(n_));
        return sample_;
    }

private:
    Plain (*make_)(std::size_t);
    std::size_t n_;
    std::shared_ptr<Sample<Plain>> sample_;
};

// What reading asks of a document, without the object that is read: for each element whether it is there, and one
// value. An iteration continues with the next elements of the n, and after the last with the first.
template <class Plain>
auto looking_up(std::shared_ptr<Sample<Plain>> s, std::string array, std::string member, std::size_t n,
                std::size_t in_an_iteration) {
    const auto document = document_of(s);
    return [document, array, member, n, in_an_iteration, last = n]() mutable {
        for (std::size_t looked_up = 0; looked_up < in_an_iteration; ++looked_up) {
            last = last % n + 1;
            char path[128], value[128];
            std::uint32_t count = 0, length = 0;
            const int end = std::snprintf(path, sizeof path, "//o/%s[%zu]", array.c_str(), last);
            if (xml_get_element_nodecount(document.get(), path, &count) != 0 || count != 1) std::abort();
            std::snprintf(path + end, sizeof path - static_cast<std::size_t>(end), "/%s", member.c_str());
            if (xml_get_element_value(document.get(), path, value, sizeof value, &length) != 0) std::abort();
            benchmark::DoNotOptimize(value);
        }
    };
}

template <class Plain>
void add(Results &results, std::string_view list, Plain (*make)(std::size_t), std::string array, std::string member) {
    for (const std::size_t n : curve_points) {
        const auto later = std::make_shared<Later<Plain>>(make, n);
        results.add_point("encode", list, n, [later] { return encoding(later->get()); });
        results.add_point("decode and destroy", list, n, [later] { return decoding(later->get()); });
        results.add_point("copy and destroy", list, n, [later] { return copying(later->get()); });
        results.add_point("compare", list, n, [later] { return comparing(later->get()); });
        results.add_point("hash", list, n, [later] { return hashing(later->get()); });
        results.add_point("text", list, n, [later] { return printing(later->get()); });
        results.add_point("XML writing", list, n, [later] { return writing_xml(later->get()); });
        results.add_point("XML look-ups", list, n,
                          [later, array, member, n] { return looking_up(later->get(), array, member, n, n); });
        if (n <= most_read_from_xml) {
            results.add_point("XML reading", list, n, [later] { return reading_xml(later->get()); });
        }
    }
}

}  // namespace

void add_curves(Results &results) {
    constexpr std::size_t looked_up = 1000;
    for (const std::size_t n : {looked_up, 3 * looked_up, 10 * looked_up}) {
        results.add_count("XML look-ups, 1000 classes", std::to_string(n) + " in the document", "library", [n] {
            return looking_up(std::make_shared<Sample<decltype(classes(n))>>(Setup::plain, classes(n)), "tc_list", "id",
                              n, looked_up);
        });
    }
    add(results, "classes", classes, "tc_list", "id");
    add(results, "applications", applications, "kesh_appl", "tarn_id");
}

}  // namespace tarn::bench
