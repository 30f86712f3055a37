// What the types of the C++ interface are for the standard library of C++20, and what they may throw.
#include <gtest/gtest.h>
#include <mirk_platform.h>

#include <algorithm>
#include <concepts>
#include <iterator>
#include <lumo_ui_tarn.hpp>
#include <numeric>
#include <ranges>
#include <vector>

namespace {

using namespace lumo_ui_tarn;

template <class List, class Element>
constexpr bool is_a_borrowed_sequence() {
    using Iterator = std::ranges::iterator_t<List>;
    static_assert(std::random_access_iterator<Iterator>);
    static_assert(std::sized_sentinel_for<Iterator, Iterator>);
    static_assert(std::same_as<std::iter_reference_t<Iterator>, Element>);
    static_assert(std::ranges::random_access_range<List> && std::ranges::random_access_range<const List>);
    static_assert(std::ranges::sized_range<List> && std::ranges::common_range<List>);
    static_assert(std::ranges::view<List> && std::ranges::borrowed_range<List>);
    static_assert(std::is_nothrow_copy_constructible_v<Iterator> && std::is_nothrow_copy_assignable_v<Iterator>);
    static_assert(noexcept(++std::declval<Iterator &>()) &&noexcept(std::declval<Iterator>() == Iterator()));
    return true;
}
static_assert(is_a_borrowed_sequence<decltype(std::declval<dp_tc_list &>().tc_list()), dp_tc_ref>());
static_assert(is_a_borrowed_sequence<decltype(std::declval<const dp_tc_list &>().tc_list()), dp_tc_view>());

static_assert(std::ranges::contiguous_range<const frame> && std::ranges::sized_range<const frame>);
static_assert(std::regular<frame> && std::regular<address>);
static_assert(std::totally_ordered<address> && std::three_way_comparable<address, std::strong_ordering>);

template <class T>
concept Hashable = requires(const T &object) {
    { std::hash<T>()(object) }
    noexcept->std::same_as<std::size_t>;
};
template <class T>
concept Printable = requires(const T &object, std::ostream &out) {
    { out << object } -> std::same_as<std::ostream &>;
    { to_string(object) } -> std::same_as<std::string>;
};
static_assert(Hashable<address> && Printable<address>);

// The functions that cannot fail, of an owner, a reference or a view.
template <class T>
constexpr bool tells_what_cannot_fail() {
    static_assert(std::is_nothrow_move_constructible_v<T> && std::is_nothrow_move_assignable_v<T>);
    static_assert(std::is_nothrow_destructible_v<T>);
    static_assert(noexcept(std::declval<T &>().get()) &&noexcept(std::declval<const T &>().get()));
    static_assert(noexcept(std::declval<const T &>().context()) &&noexcept(bool(std::declval<const T &>())));
    return true;
}

TEST(CppConcepts, RecordsAreOrderedHashedAndPrinted) {
    std::size_t count = 0;
    const auto check = []<class T>(kind<T>) {
        static_assert(std::totally_ordered<T> && std::three_way_comparable<T, std::weak_ordering>);
        static_assert(noexcept(std::declval<const T &>() == std::declval<const T &>()));
        static_assert(noexcept(std::declval<const T &>() <=> std::declval<const T &>()));
        static_assert(Hashable<T> && Printable<T> && tells_what_cannot_fail<T>());
    };
    for_each_record([&]<class R>(kind<R>) {
        using Ref = typename R::reference_type;
        using View = typename R::view_type;
        static_assert(std::movable<R> && !std::copyable<R> && std::copyable<Ref> && std::copyable<View>);
        check(kind<R>());
        check(kind<Ref>());
        check(kind<View>());
        ++count;
    });
    EXPECT_GT(count, 30u);
}

TEST(CppConcepts, MessagesArePrintedAndNotOrdered) {
    std::size_t count = 0;
    for_each_message([&]<class M>(kind<M>) {
        static_assert(Printable<M> && Printable<typename M::reference_type> && Printable<typename M::view_type>);
        static_assert(tells_what_cannot_fail<M>() && !std::totally_ordered<M>);
        ++count;
    });
    EXPECT_GT(count, 5u);
}

// Neither of these is printed as a record.
static_assert(!Printable<context> && !Printable<bundle_reader<cl_debug_rsp>> &&
              !Printable<bundle_writer<cl_debug_rsp>>);

class CppRanges : public testing::Test {
protected:
    CppRanges() {
        list.tc_list().grow(6);
        for (std::uint32_t i = 1; i <= 6; ++i) list.tc_list()[i - 1].set_id(i).set_proto(i % 2 != 0 ? 6 : 17);
    }
    ~CppRanges() override {
        list = dp_tc_list::take(c, nullptr);
        EXPECT_EQ(mirk_platform_handle_close(h), 0u);
    }
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    context c{h};
    dp_tc_list list{c};
};

TEST_F(CppRanges, AlgorithmsTakeListsAndReturnIteratorsThatOutliveThem) {
    const auto id = [](dp_tc_view tc) { return tc.id(); };
    const auto found = std::ranges::find(list.tc_list(), 4u, id);  // of a temporary
    EXPECT_EQ((*found).id(), 4u);
    EXPECT_EQ(std::ranges::count(list.tc_list(), 6, [](dp_tc_view tc) { return tc.proto(); }), 3);
    EXPECT_TRUE(std::ranges::is_sorted(list.tc_list(), {}, id));
    EXPECT_EQ((*std::ranges::lower_bound(list.tc_list(), 3u, {}, id)).id(), 3u);
    EXPECT_EQ((*std::ranges::max_element(list.tc_list())).id(), 6u) << "by the order of the library";
}

#if !defined(__clang__) || __clang_major__ >= 16  // earlier ones cannot compile the views of libstdc++
TEST_F(CppRanges, ListsArePipedIntoViews) {
    const auto is_udp = [](dp_tc_view tc) { return tc.proto() == 17; };
    const auto id = [](dp_tc_view tc) { return tc.id(); };
    std::vector<std::uint32_t> seen;
    std::ranges::copy(list.tc_list() | std::views::filter(is_udp) | std::views::transform(id),
                      std::back_inserter(seen));
    EXPECT_EQ(seen, (std::vector<std::uint32_t>{2, 4, 6}));
    seen.clear();
    std::ranges::copy(
        list.tc_list() | std::views::reverse | std::views::drop(1) | std::views::take(2) | std::views::transform(id),
        std::back_inserter(seen));
    EXPECT_EQ(seen, (std::vector<std::uint32_t>{5, 4}));
    for (const dp_tc_ref tc : list.tc_list() | std::views::filter(is_udp)) tc.set_tos(9);
    EXPECT_EQ(std::as_const(list).tc_list()[1].tos(), 9);
    EXPECT_EQ(std::as_const(list).tc_list()[0].tos(), 0);
}
#endif

#if defined(__cpp_lib_format)
TEST_F(CppRanges, RecordsAndAddressesAreFormatted) {
    EXPECT_EQ(std::format("{}", list.tc_list()[0]), to_string(list.tc_list()[0]));
    EXPECT_EQ(std::format("{}", list), to_string(list));
    EXPECT_EQ(std::format("{:>9}", address()), "    unset");
    EXPECT_EQ(std::format("{}", debug_setting_msg(c)), to_string(debug_setting_msg(c)));
}
#endif

}  // namespace
