// Objects that were moved from, and objects that are assigned or appended to themselves, for every class of the C++
// interface. In builds with sanitizers, an invalid access ends the test.
#include <gtest/gtest.h>

#include <memory>

#include "bridge/bridge.h"
#include "kit/document.h"
#include "lumo_ui_tarn.hpp"

namespace {

using namespace lumo_ui_tarn;
using kit::Tracking;

template <class T>
concept Array = requires(T a) {
    a.state(0);
};
template <class T>
concept Nested = requires(T r) {
    r.to_frame();
};

// Calls test(context, kind<record>, a record with random contents) in each tracking mode. Errors are kept.
template <class Test>
void each_record(const Test &test) {
    for (const Tracking tracking : kit::every_tracking) {
        SCOPED_TRACE(kit::name_of(tracking));
        std::size_t count = 0;
        for_each_record([&]<class R>(kind<R> k) {
            SCOPED_TRACE(R::record_name());
            reference::GeneratorOptions options;
            options.printable = true;  // text cannot contain a NUL
            reference::Generator generator(++count, options);
            kit::Handle h(tracking);
            context c(h, errors::kept);
            R object(c);
            const reference::Record value = generator.make(R::record_name());
            bridge::fill(h, bridge::operations(value), object.get(), value);
            test(c, k, std::move(object));
            EXPECT_TRUE(c.ok()) << c.error().message();
        });
        EXPECT_EQ(count, reference::records().size());
    }
}
template <class Test>
void each_message(const Test &test) {
    for (const Tracking tracking : kit::every_tracking) {
        SCOPED_TRACE(kit::name_of(tracking));
        for_each_message([&]<class M>(kind<M> k) {
            SCOPED_TRACE(M::message_name());
            kit::Handle h(tracking);
            context c(h, errors::kept);
            test(c, k, M(c));
            EXPECT_TRUE(c.ok()) << c.error().message();
        });
    }
}

template <class Call>
void expect_error(context &c, const Call &call, std::string_view what) {
    call();
    const int error = c.take_error().value();
    EXPECT_TRUE(error == EINVAL || error == ENOENT) << what << ": " << error;
}

// An array whose record does not exist.
template <class A>
void expect_empty(context &c, const A &array, std::string_view name) {
    EXPECT_EQ(array.size(), 0u) << name;
    EXPECT_TRUE(array.empty() && array.begin() == array.end()) << name;
    EXPECT_EQ(array.state(0), std::nullopt) << name;
    for (const auto element : array) ADD_FAILURE() << element.record_name();
    EXPECT_TRUE(c.ok()) << name;
    expect_error(
        c, [&] { EXPECT_FALSE(array[0]); }, name);
    expect_error(
        c, [&] { EXPECT_FALSE(array.back()); }, name);
    if constexpr (requires { array.grow(1); }) {
        using Element = record<typename std::remove_cvref_t<decltype(array[0])>::record_type>;
        Element one(c);
        expect_error(
            c, [&] { array.grow(3); }, name);
        expect_error(
            c, [&] { array.push_back(one); }, name);
        expect_error(
            c, [&] { array.set(0, std::move(one)); }, name);
        expect_error(
            c, [&] { array.set_state(0, 1); }, name);
        EXPECT_TRUE(one) << name;
    }
}

// A record that does not exist: an owner that was moved from, a reference or a view.
template <class Object>
void expect_nothing(context &c, Object &object) {
    Object::for_each_member([&](const auto &m) {
        const auto value = (object.*m.get)();
        using Value = std::remove_cvref_t<decltype(value)>;
        EXPECT_TRUE(c.ok()) << m.name;
        if constexpr (Array<Value>) {
            expect_empty(c, value, m.name);
        } else if constexpr (Nested<Value>) {
            EXPECT_FALSE(value) << m.name;
        } else {
            EXPECT_TRUE(value == Value{}) << m.name;
        }
        if constexpr (!std::is_null_pointer_v<decltype(m.get_state)>) {
            EXPECT_EQ((object.*m.get_state)(), std::nullopt) << m.name;
        }
        if constexpr (!std::is_null_pointer_v<decltype(m.set)>) {
            expect_error(
                c, [&] { (object.*m.set)(value); }, m.name);
        }
        if constexpr (!std::is_null_pointer_v<decltype(m.set_state)>) {
            expect_error(
                c, [&] { (object.*m.set_state)(1); }, m.name);
        }
    });
    if constexpr (requires { object.set_all_states(1); }) object.set_all_states(1);

    EXPECT_FALSE(object);
    EXPECT_EQ(object.get(), nullptr);
    EXPECT_EQ(object.frame_size(), 0u);
    EXPECT_FALSE(object.is_tracked());
    EXPECT_TRUE(object == object);
    EXPECT_EQ(object.hash(), object.hash());
    std::uint8_t buffer[64];
    EXPECT_TRUE(c.ok());
    expect_error(
        c, [&] { EXPECT_EQ(object.write_frame(buffer), 0u); }, "write_frame");
    expect_error(
        c, [&] { EXPECT_TRUE(object.to_frame().empty()); }, "to_frame");
    expect_error(
        c, [&] { EXPECT_EQ(object.to_xml(), ""); }, "to_xml");
    expect_error(
        c, [&] { EXPECT_EQ(object.text(), ""); }, "text");
    expect_error(
        c, [&] { EXPECT_FALSE(object.copy()); }, "copy");
}

TEST(CppMovedFrom, RecordsAreEmptyAndCanBeUsedAgain) {
    each_record([]<class R>(context &c, kind<R>, R object) {
        const R owner = std::move(object);
        expect_nothing(c, object);
        typename R::reference_type ref = object;
        expect_nothing(c, ref);
        typename R::view_type view = std::as_const(object);
        expect_nothing(c, view);
        EXPECT_EQ(owner < object, owner.compare(object) < 0);
        EXPECT_EQ(object < owner, object.compare(owner) < 0);
        EXPECT_EQ(object.release(), nullptr);

        const R again = std::move(object);  // of nothing
        EXPECT_FALSE(again);
        object = owner.copy();
        EXPECT_TRUE(object == owner);
    });
}

TEST(CppMovedFrom, RecordsAreEmptyAfterAnAssignment) {
    each_record([]<class R>(context &c, kind<R>, R object) {
        const auto *native = object.get();
        R to(c);
        to = std::move(object);
        EXPECT_EQ(to.get(), native);
        expect_nothing(c, object);
        to = std::move(object);
        EXPECT_FALSE(to);
    });
}

TEST(CppMovedFrom, RecordsSurviveAssignmentToThemselves) {
    each_record([]<class R>(context &c, kind<R>, R object) {
        R before = object.copy();
        R *const same = std::addressof(object);
        object = std::move(*same);
        EXPECT_TRUE(object == before);
        std::swap(object, *same);
        EXPECT_TRUE(object == before);

        R::for_each_member([&](const auto &m) {
            const auto value = (object.*m.get)();
            if constexpr (Array<decltype(value)>) {
                for (std::size_t i = 0; i < value.size(); ++i) value.set(i, value[i]);
                if (!value.empty()) {
                    const std::size_t count = value.size();
                    value.push_back(value[0]);
                    EXPECT_TRUE(value.back() == value[0]) << m.name;
                    EXPECT_EQ(value.size(), count + 1) << m.name;
                }
            } else if constexpr (!std::is_null_pointer_v<decltype(m.set)>) {
                (object.*m.set)(value);
                EXPECT_TRUE((object.*m.get)() == (before.*m.get)()) << m.name;
            }
        });
        EXPECT_TRUE(c.ok());
        EXPECT_TRUE(R::from_frame(c, object.to_frame()) == object);
    });
}

TEST(CppMovedFrom, NestedRecordsAndElementsKeepTheirContent) {
    each_record([]<class R>(context &c, kind<R>, R object) {
        const frame before = object.to_frame();
        R::for_each_member([&](const auto &m) {
            const auto value = (object.*m.get)();
            if constexpr (Array<decltype(value)>) {
                using Element = record<typename decltype(value[0])::record_type>;
                Element one(c);
                const Element owner = std::move(one);
                expect_error(
                    c, [&] { value.push_back(std::move(one)); }, m.name);
                expect_error(
                    c, [&] { value.push_back(one); }, m.name);
                if (value.empty()) return;
                expect_error(
                    c, [&] { value.set(0, std::move(one)); }, m.name);
                expect_error(
                    c, [&] { value.set(0, one); }, m.name);
            } else if constexpr (Nested<decltype(value)>) {
                record<typename decltype(value)::record_type> one(c);
                const auto owner = std::move(one);
                expect_error(
                    c, [&] { (object.*m.set)(one); }, m.name);
            }
        });
    });
}

TEST(CppMovedFrom, AdoptingLeavesTheContent) {
    for (const Tracking tracking : kit::every_tracking) {
        kit::Handle h(tracking);
        context c(h, errors::kept);
        dp_ll_spec definition(c);
        definition.filter_tc_list().tc_list().grow(2);
        dp_tc_list list(c);
        dp_tc_list owner = std::move(list);
        expect_error(
            c, [&] { definition.adopt_filter_tc_list(std::move(list)); }, "a record that owns blocks");
        EXPECT_EQ(definition.filter_tc_list().num_tcs(), 2u);
        expect_error(
            c, [&] { dp_ll_spec_ref(definition).adopt_filter_tc_list(std::move(list)); }, "by reference");
        EXPECT_EQ(definition.filter_tc_list().num_tcs(), 2u);

        dp_tc tc(c);
        tc.appl().set_id(7);
        dp_appl appl(c);
        const dp_appl appl_owner = std::move(appl);
        expect_error(
            c, [&] { tc.adopt_appl(std::move(appl)); }, "a record of numbers");
        EXPECT_EQ(tc.appl().id(), 7);

        const dp_ll_spec gone = std::move(definition);
        owner.tc_list().grow(3);
        expect_error(
            c, [&] { definition.adopt_filter_tc_list(std::move(owner)); }, "to a record that does not exist");
        EXPECT_EQ(owner.num_tcs(), 3u);
    }
}

// A message that does not exist.
template <class M>
void expect_no_message(context &c, M &message) {
    EXPECT_FALSE(message);
    EXPECT_EQ(message.get(), nullptr);
    EXPECT_EQ(message.frame_size(), 0u);
    auto payload = message.payload();
    expect_nothing(c, payload);
    std::uint8_t buffer[64];
    expect_error(
        c, [&] { EXPECT_EQ(message.write_frame(buffer), 0u); }, "write_frame");
    expect_error(
        c, [&] { EXPECT_TRUE(message.to_frame().empty()); }, "to_frame");
    expect_error(
        c, [&] { EXPECT_EQ(message.to_xml(), ""); }, "to_xml");
    expect_error(
        c, [&] { EXPECT_EQ(message.text(), ""); }, "text");
    if constexpr (requires { message.detach_payload(); }) {
        EXPECT_FALSE(message.detach_payload());
        record<typename M::payload_type> value(c);
        expect_error(
            c, [&] { message.set_payload(std::move(value)); }, "set_payload");
        EXPECT_TRUE(value);
    }
}

TEST(CppMovedFrom, MessagesAreEmptyAndCanBeUsedAgain) {
    each_message([]<class M>(context &c, kind<M>, M message) {
        M owner = std::move(message);
        expect_no_message(c, message);
        typename M::reference_type ref = message;
        expect_no_message(c, ref);
        typename M::view_type view = std::as_const(message);
        expect_no_message(c, view);
        EXPECT_EQ(message.release(), nullptr);

        const auto *native = owner.get();
        message = std::move(owner);
        EXPECT_EQ(message.get(), native);
        expect_no_message(c, owner);
        M *const same = std::addressof(message);
        message = std::move(*same);
        EXPECT_EQ(message.get(), native);
    });
}

TEST(CppMovedFrom, MessagesWithoutAPayloadAreUsable) {
    each_message([]<class M>(context &c, kind<M>, M message) {
        const frame whole = message.to_frame();
        auto payload = message.detach_payload();
        auto gone = message.payload();
        expect_nothing(c, gone);
        expect_error(
            c, [&] { EXPECT_TRUE(message.to_frame().empty()); }, "to_frame");
        expect_error(
            c, [&] { EXPECT_EQ(message.to_xml(), ""); }, "to_xml");
        expect_error(
            c, [&] { EXPECT_EQ(message.text(), ""); }, "text");
        message.set_payload(std::move(payload));
        expect_nothing(c, payload);
        expect_error(
            c, [&] { message.set_payload(std::move(payload)); }, "set_payload");
        EXPECT_EQ(message.to_frame(), whole);
    });
}

TEST(CppMovedFrom, BundlesTakeNoMessageThatWasMovedFrom) {
    for_each_bundle([]<class B>(kind<B>) {
        kit::Handle h;
        context c(h, errors::kept);
        message<typename B::message> one(c);
        const auto owner = std::move(one);
        bundle_writer<B> answer(c);
        const frame start = answer.frames();
        expect_error(
            c, [&] { answer.add(one); }, B::name);
        EXPECT_EQ(answer.frames(), start);
    });
}

TEST(CppMovedFrom, FramesAreEmptyAndCanBeUsedAgain) {
    const frame whole("abc", 3);
    frame source = whole;
    frame to = std::move(source);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(to, whole);
        EXPECT_EQ(source.size(), 0u);
        EXPECT_TRUE(source.empty() && source.begin() == source.end() && source == frame());
        EXPECT_TRUE(std::span<const std::uint8_t>(source).empty());
        source.append(source);
        EXPECT_TRUE(source.empty());
        source.append(to);
        EXPECT_EQ(source, whole);
        to = frame("abcd", 4);
        to = std::move(source);
    }
    source.resize(2);
    EXPECT_EQ(source, frame("\0\0", 2));
}

TEST(CppMovedFrom, FramesAreAppendedAndAssignedToThemselves) {
    frame twice("abc", 3);
    twice.append(twice);
    EXPECT_EQ(twice, frame("abcabc", 6));
    frame *const same = &twice;
    twice = *same;
    EXPECT_EQ(twice, frame("abcabc", 6));
    twice = std::move(*same);
    EXPECT_EQ(twice, frame("abcabc", 6));
    std::swap(twice, *same);
    EXPECT_EQ(twice, frame("abcabc", 6));
}

TEST(CppMovedFrom, ResizingAppendsZerosAfterAnyGuardByte) {
    frame whole("abc", 3);
    whole.data()[3] = 2;  // the guard byte: C functions can write it
    whole.resize(1);
    whole.resize(5);
    EXPECT_EQ(whole, frame("a\0\0\0\0", 5));
}

}  // namespace
