#include "bench/workloads/workloads.h"

#include <random>
#include <span>
#include <string_view>

namespace tarn::bench {

#include "plain.inc"

namespace {

// How long an array is, by the end of the path that leads to it; the first that fits counts.
struct Length {
    std::string_view path;
    std::size_t elements;
};

class Filler {
public:
    explicit Filler(std::span<const Length> lengths) : lengths_(lengths) {}

    template <class T>
    T object() {
        T value;
        fill(value);
        return value;
    }

private:
    template <class T>
    void fill(T &value) {
        if constexpr (requires { visit(value, [](const schema::Member &, auto &) {}); }) {
            visit(value, [this](const schema::Member &member, auto &part) {
                const std::size_t length = path_.size();
                path_ += '/';
                path_ += member.name;
                choices_ = member.enumeration != nullptr ? member.enumeration->enumerators.size() : 0;
                fill(part);
                path_.resize(length);
            });
        } else {
            value = static_cast<T>(choices_ != 0 ? random_() % choices_ : random_());
        }
    }
    void fill(bool &value) { value = (random_() & 1) != 0; }
    // An IPv4 prefix or an IPv6 one.
    void fill(plain::ip_address &value) {
        const bool v6 = (random_() & 1) != 0;
        value.af = v6 ? 10 : 2;
        value.prefix_len = static_cast<std::uint8_t>(random_() % (v6 ? 129 : 33));
        for (std::size_t i = 0; i < (v6 ? 4 : 1); ++i) value.word[i] = static_cast<std::uint32_t>(random_());
    }
    void fill(std::string &value) {
        value.resize(4 + random_() % 28);
        for (char &c : value) c = static_cast<char>('a' + random_() % 26);
    }
    template <class T>
    void fill(std::vector<T> &value) {
        for (const Length &length : lengths_) {
            if (!path_.ends_with(length.path)) continue;
            value.resize(length.elements);
            break;
        }
        for (T &element : value) fill(element);
    }

    std::span<const Length> lengths_;
    std::string path_;
    std::size_t choices_ = 0;
    std::mt19937_64 random_{42};
};

}  // namespace

plain::lumo_tarn_dp_tt_table_data deep() {
    constexpr Length lengths[] = {{"/ll_spec_list/filter_tc_list/tc_list", 4},
                                  {"/ll_spec_list/acl_tc_list/tc_list", 4},
                                  {"/ll_spec_list/appl_list/appl_list", 4},
                                  {"/lumo_data/agg_tc_list/tc_list", 8},
                                  {"/lumo_data/filter_tc_list/tc_list", 8},
                                  {"/ll_spec_list", 4},
                                  {"/lumo_data", 2}};
    return Filler(lengths).object<plain::lumo_tarn_dp_tt_table_data>();
}

plain::lumo_tarn_debug_setting flat() { return Filler({}).object<plain::lumo_tarn_debug_setting>(); }

plain::lumo_tarn_cl_cfg_data wide() {
    constexpr Length lengths[] = {{"/lumo_info", 4}, {"/static_exmem", 3}, {"/dyn_exmem/exmem", 4}, {"/dyn_exmem", 2}};
    return Filler(lengths).object<plain::lumo_tarn_cl_cfg_data>();
}

plain::lumo_tarn_cl_appl_data strings() { return applications(200); }

plain::lumo_tarn_dp_tc_list classes(std::size_t n) {
    const Length lengths[] = {{"/tc_list", n}};
    return Filler(lengths).object<plain::lumo_tarn_dp_tc_list>();
}

plain::lumo_tarn_cl_appl_data applications(std::size_t n) {
    const Length lengths[] = {{"/kesh_appl", n}};
    return Filler(lengths).object<plain::lumo_tarn_cl_appl_data>();
}

}  // namespace tarn::bench
