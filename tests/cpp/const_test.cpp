// Const objects are read-only: checks which expressions compile, for every member of every record.
#include <gtest/gtest.h>
#include <mirk_platform.h>

#include <lumo_ui_tarn.hpp>

namespace {

using namespace lumo_ui_tarn;

template <class T>
constexpr bool is_view = false;
template <class R>
constexpr bool is_view<record_view<R>> = true;
template <class A>
constexpr bool is_view<array_view<A>> = true;

template <class T>
constexpr bool is_ref = false;
template <class R>
constexpr bool is_ref<record_ref<R>> = true;
template <class A>
constexpr bool is_ref<array_ref<A>> = true;

// True if the setter can be called on an object of this type, with an argument of its parameter's type.
template <class Object, class Result, class Class, class Value>
constexpr bool writes(Result (Class::*)(Value)) {
    return std::is_invocable_v<Result (Class::*)(Value), Object, Value>;
}
template <class Object, class Result, class Class, class Value>
constexpr bool writes(Result (Class::*)(Value) const) {
    return std::is_invocable_v<Result (Class::*)(Value) const, Object, Value>;
}

template <class Object, class Set>
void expect_writes(Set set, bool expected, std::string_view name) {
    if constexpr (!std::is_null_pointer_v<Set>) {
        EXPECT_EQ(writes<Object>(set), expected) << name;
    }
}

template <class Object, class Get>
using Read = std::invoke_result_t<Get, Object>;

TEST(CppInterfaceConst, OnlyOwnersThatAreNotConstCanWrite) {
    for_each_record([]<class R>(kind<R>) {
        SCOPED_TRACE(R::record_name());
        R::for_each_member([](const auto &m) {
            expect_writes<R &>(m.set, true, m.name);
            expect_writes<const R &>(m.set, false, m.name);
            expect_writes<R &>(m.set_state, true, m.name);
            expect_writes<const R &>(m.set_state, false, m.name);
            using Get = decltype(m.get);
            if constexpr (is_ref<Read<R &, Get>>) static_assert(!std::is_invocable_v<Get, const R &>);
            static_assert(!is_view<Read<R &, Get>>);
        });
    });
}

TEST(CppInterfaceConst, ConstReferencesCanWrite) {
    for_each_record([]<class R>(kind<R>) {
        using Ref = typename R::reference_type;
        SCOPED_TRACE(R::record_name());
        Ref::for_each_member([](const auto &m) {
            expect_writes<const Ref &>(m.set, true, m.name);
            expect_writes<const Ref &>(m.set_state, true, m.name);
            static_assert(!is_view<Read<const Ref &, decltype(m.get)>>);
        });
    });
}

TEST(CppInterfaceConst, ViewsCannotWrite) {
    for_each_record([]<class R>(kind<R>) {
        using View = typename R::view_type;
        View::for_each_member([](const auto &m) {
            static_assert(std::is_null_pointer_v<decltype(m.set)> && std::is_null_pointer_v<decltype(m.set_state)>);
            static_assert(!is_ref<Read<View, decltype(m.get)>>);
        });
    });
}

template <class T>
concept SetsStates = requires(T object) {
    object.set_all_states(std::uint8_t{});
};
template <class T>
concept GivesAPlainPointer = requires(T object) {
    { *object.get() } -> std::same_as<typename std::remove_cvref_t<T>::record_type::native &>;
};

TEST(CppInterfaceConst, ConstOwnersGiveReadOnlyObjects) {
    for_each_record([]<class R>(kind<R>) {
        using Ref = typename R::reference_type;
        using View = typename R::view_type;
        static_assert(SetsStates<R &> && !SetsStates<const R &> && SetsStates<const Ref &> && !SetsStates<View &>);
        static_assert(GivesAPlainPointer<R &> && !GivesAPlainPointer<const R &>);
        static_assert(GivesAPlainPointer<const Ref &> && !GivesAPlainPointer<View &>);
        static_assert(std::is_convertible_v<R &, Ref> && !std::is_convertible_v<const R &, Ref>);
        static_assert(std::is_convertible_v<const R &, View> && std::is_convertible_v<Ref, View>);
        static_assert(!std::is_convertible_v<View, Ref> && !std::is_constructible_v<Ref, View>);
        static_assert(!std::is_constructible_v<Ref, context &, const typename R::record_type::native *>);
    });
}

template <class T>
concept HasWritablePayload = requires(T message, debug_setting payload) {
    { message.payload() } -> std::same_as<debug_setting_ref>;
    message.set_payload(std::move(payload));
    message.detach_payload();
};
template <class T>
concept HasReadOnlyPayload = requires(T message) {
    { message.payload() } -> std::same_as<debug_setting_view>;
}
&&!requires(T message, debug_setting payload) { message.set_payload(std::move(payload)); }
&&!requires(T message) { message.detach_payload(); };
static_assert(HasWritablePayload<debug_setting_msg &> && HasReadOnlyPayload<const debug_setting_msg &>);
static_assert(HasWritablePayload<const debug_setting_msg_ref &> && HasReadOnlyPayload<debug_setting_msg_view &>);
static_assert(!std::is_convertible_v<const debug_setting_msg &, debug_setting_msg_ref>);
static_assert(std::is_convertible_v<debug_setting_msg_ref, debug_setting_msg_view>);

template <class T>
concept WritableArray = requires(T array, dp_tc tc) {
    array.grow(1);
    array.set(0, tc);
    array.push_back(tc);
    array.set_state(0, std::uint8_t{});
    array[0].set_id(1);
    (*array.begin()).set_id(1);
    array.front().set_id(1);
};
template <class T>
concept ReadOnlyArray = !requires(T array) {
    array.grow(1);
}
&&!requires(T array, dp_tc tc) { array.set(0, tc); }
&&!requires(T array, dp_tc tc) { array.push_back(tc); }
&&!requires(T array) { array.set_state(0, std::uint8_t{}); }
&&!requires(T array) { array[0].set_id(1); }
&&!requires(T array) { (*array.begin()).set_id(1); };
template <class T>
using Classes = decltype(std::declval<T>().tc_list());
static_assert(WritableArray<const Classes<dp_tc_list &>> && ReadOnlyArray<Classes<const dp_tc_list &>>);
static_assert(std::is_convertible_v<Classes<dp_tc_list &>, Classes<const dp_tc_list &>>);
static_assert(!std::is_convertible_v<Classes<const dp_tc_list &>, Classes<dp_tc_list &>>);
static_assert(std::random_access_iterator<decltype(std::declval<Classes<const dp_tc_list &>>().begin())>);

TEST(CppInterfaceConst, ViewsReadWhatReferencesWrite) {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    ASSERT_NE(h, nullptr);
    {
        context c(h);
        dp_tt_table table(c);
        const dp_tt_table_view view = table;
        const auto classes = view.agg_tc_list().tc_list();
        EXPECT_TRUE(classes.empty());
        table.set_lumo_num(3).agg_tc_list().tc_list().grow(2)[1].set_id(7).appl().set_id(9);
        EXPECT_EQ(view.lumo_num(), 3);
        ASSERT_EQ(classes.size(), 2u);
        EXPECT_EQ(classes[1].id(), 7u);
        EXPECT_EQ(classes.back().appl().id(), 9);
        EXPECT_EQ(view.to_frame(), table.to_frame());
        EXPECT_EQ(view.get(), table.get());
        EXPECT_TRUE(view == table && view.copy() == view && std::hash<dp_tt_table_view>()(view) == view.hash());
    }
    EXPECT_EQ(mirk_platform_handle_close(h), 0u);
}

}  // namespace
