// Finds changed members by their state bytes: a setter sets the state byte of its member to 2. Clearing the bytes after
// each look shows the members that were written since, at any depth, without a copy to compare with. Requires a handle
// that tracks state.
//
// The program sets members of a table in two rounds and prints the changes after each.
#include <mirk_platform.h>

#include <cstdio>
#include <lumo_ui_tarn.hpp>
#include <string>
#include <type_traits>

using namespace lumo_ui_tarn;

namespace {

constexpr std::uint8_t written = 2;

template <class T>
std::string text_of(T value) {
    if constexpr (std::is_same_v<T, std::string>) {
        return value;
    } else if constexpr (std::is_enum_v<T>) {
        return std::string(name_of(value));
    } else {
        using std::to_string;
        return to_string(value);  // of numbers and of addresses
    }
}

// Prints the members that were written and clears their state bytes. Works for every record.
template <class R>
void print_changes(record_ref<R> record, const std::string &path) {
    record_ref<R>::for_each_member([&](const auto &m) {
        if constexpr (!std::is_null_pointer_v<decltype(m.get_state)>) {
            const std::string location = path + "." + std::string(m.name);
            const auto value = (record.*m.get)();
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_null_pointer_v<decltype(m.set)>) {  // an array: print the changes of each element
                for (std::size_t i = 0; i < value.size(); ++i) {
                    print_changes(value[i], location + "[" + std::to_string(i) + "]");
                }
            } else if constexpr (std::is_class_v<Value> && !std::is_same_v<Value, std::string> &&
                                 !std::is_same_v<Value, address>) {
                print_changes(value, location);
            } else if ((record.*m.get_state)() == written) {
                std::printf("  %s is now %s\n", location.c_str(), text_of(value).c_str());
                (record.*m.set_state)(0);
            }
        }
    });
}

void watch(mirk_handle *h) {
    context c(h);
    dp_tt_table table(c);
    const auto print = [&](const char *when) {
        std::printf("%s:\n", when);
        print_changes<dp_tt_table_type>(table, "table");
    };
    print("initially");

    table.set_lumo_num(3).set_duration(60);
    const auto classes = table.agg_tc_list().tc_list();
    classes.grow(2);
    classes[1].set_proto(17).appl().set_id(5);
    print("after the first round");

    print("without writes");

    classes[1].set_proto(17);  // the same value also counts as written
    classes[0].set_src_prefix(address::parse("10.0.0.0/8").value());
    print("after the second round");
}

}  // namespace

int main() {
    mirk_platform_trace_set_levels(1);
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = MIRK_PLATFORM_TRACKING_ON;
    mirk_handle *h = mirk_platform_handle_open(&options);
    if (h == nullptr) return 3;
    watch(h);
    return mirk_platform_handle_close(h) == 0 ? 0 : 1;
}
