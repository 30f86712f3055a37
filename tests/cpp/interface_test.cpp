// Compares every record and message of the C++ interface with the C functions and the independent codec.
#include <gtest/gtest.h>

#include <algorithm>
#include <ranges>

#include "bridge/bridge.h"
#include "kit/document.h"
#include "lumo_ui_tarn.hpp"
#include "reference/text.h"

namespace {

using namespace lumo_ui_tarn;
using kit::Tracking;

constexpr int rounds = 4;

reference::GeneratorOptions printable() {
    reference::GeneratorOptions options;
    options.printable = true;  // text cannot contain a NUL
    return options;
}

// Calls test(kind<record>, value) with random values of each record.
template <class Test>
void each_record(const Test &test, const reference::GeneratorOptions &options = printable()) {
    std::size_t count = 0;
    for_each_record([&]<class R>(kind<R> k) {
        SCOPED_TRACE(R::record_name());
        reference::Generator generator(++count, options);
        for (int round = 0; round < rounds; ++round) test(k, generator.make(R::record_name()));
    });
    EXPECT_EQ(count, reference::records().size());
}

template <class R>
R filled(context &c, const reference::Record &value) {
    R object(c);
    bridge::fill(c.handle(), bridge::operations(value), object.get(), value);
    return object;
}

template <class R>
reference::Record value_of(const R &object) {
    // The bridge only reads.
    auto *native = const_cast<typename R::record_type::native *>(object.get());
    return bridge::extract(object.context().handle(), bridge::operations(R::record_name()), native);
}

template <class T>
concept Array = requires(T a) {
    a.grow(1);
};
template <class T>
concept Nested = requires(T r) {
    r.to_frame();
};

// Uses only the functions of the members.
template <class R>
void copy_members(record_ref<R> from, record_ref<R> to, bool states) {
    record_ref<R>::for_each_member([&](const auto &m) {
        const auto value = (from.*m.get)();
        if constexpr (Array<decltype(value)>) {
            const auto target = (to.*m.get)();
            target.grow(value.size());
            for (std::size_t i = 0; i < value.size(); ++i) {
                copy_members(value[i], target[i], states);
                if (states) target.set_state(i, value.state(i).value());
            }
        } else if constexpr (Nested<decltype(value)>) {
            copy_members(value, (to.*m.get)(), states);
        } else if constexpr (!std::is_null_pointer_v<decltype(m.set)>) {
            (to.*m.set)(value);
        }
        if constexpr (!std::is_null_pointer_v<decltype(m.get_state)>) {
            EXPECT_EQ((from.*m.get_state)().has_value(), states) << m.name;
            if (states) (to.*m.set_state)((from.*m.get_state)().value());
        }
    });
}

TEST(CppInterface, MembersAreReadAndWritten) {
    for (const Tracking tracking : kit::every_tracking) {
        SCOPED_TRACE(kit::name_of(tracking));
        each_record([&]<class R>(kind<R>, const reference::Record &value) {
            kit::Handle h(tracking);
            context c(h);
            R from = filled<R>(c, value);
            R to(c);
            copy_members<typename R::record_type>(from, to, tracking == Tracking::on);
            EXPECT_TRUE(from == to);
            const bridge::Instance expected(h, value);
            EXPECT_EQ(bridge::operations(value).compare(expected.get(), to.get()), 0);
        });
    }
}

TEST(CppInterface, MembersHaveTheNamesAndOrderOfTheSchema) {
    for_each_record([&]<class R>(kind<R>) {
        std::vector<std::string> names, expected;
        R::for_each_member([&](const auto &m) { names.emplace_back(m.name); });
        for (const reference::MemberTable &row : reference::record_table(R::record_name()).members) {
            if (!row.name.empty()) expected.emplace_back(row.name);
        }
        EXPECT_EQ(names, expected) << R::record_name();
    });
}

template <class R>
void expect_states(record_ref<R> object, std::uint8_t state) {
    record_ref<R>::for_each_member([&](const auto &m) {
        if constexpr (!std::is_null_pointer_v<decltype(m.get_state)>) {
            EXPECT_EQ((object.*m.get_state)(), state) << m.name;
        }
    });
}

TEST(CppInterface, StateBytesAreSetTogetherAndOneByOne) {
    kit::Handle h(Tracking::on);
    context c(h);
    for_each_record([&]<class R>(kind<R>) {
        SCOPED_TRACE(R::record_name());
        R object(c);
        object.set_all_states(9);
        expect_states<typename R::record_type>(object, 9);
        object.set_all_states(0);
        R::for_each_member([&](const auto &m) {
            if constexpr (!std::is_null_pointer_v<decltype(m.get_state)>) {
                const record_ref<typename R::record_type> ref = object;
                using Members = typename R::record_type::template members<R>;
                static_assert(std::is_base_of_v<Members, R>);
                (object.*m.set_state)(5);
                EXPECT_EQ((object.*m.get_state)(), 5) << m.name;
                (object.*m.set_state)(0);
                expect_states(ref, 0);
            }
        });
    });
}

TEST(CppInterface, FramesEqualThoseOfTheIndependentCodec) {
    for (const Tracking tracking : kit::every_tracking) {
        SCOPED_TRACE(kit::name_of(tracking));
        each_record(
            [&]<class R>(kind<R>, const reference::Record &value) {
                kit::Handle h(tracking);
                context c(h);
                const R object = filled<R>(c, value);
                const frame whole = object.to_frame();
                const reference::Bytes bytes(whole.begin(), whole.end());
                EXPECT_TRUE(bridge::same(reference::encode(value, h.tracks()), bytes));

                std::vector<std::uint8_t> buffer(object.frame_size() + 1);
                EXPECT_EQ(object.write_frame(buffer), whole.size());
                EXPECT_TRUE(std::equal(whole.begin(), whole.end(), buffer.begin()));

                const reference::Record received = reference::as_received(value, h.tracks());
                EXPECT_TRUE(bridge::same(received, value_of(R::from_frame(c, whole))));
                EXPECT_TRUE(bridge::same(received, value_of(R::from_frame(c, std::span(bytes)))));
                EXPECT_TRUE(bridge::same(received, value_of(R::from_frame(c, bytes.data(), bytes.size()))));
            },
            {});
    }
}

TEST(CppInterface, RaDataIsWrittenToFrames) {
    kit::Handle h;
    context c(h);
    debug_setting object(c);
    const std::size_t plain = object.to_frame().size();
    ASSERT_EQ(mirk_platform_set_ra_data(h, object.get(), nullptr, 1), 0u);
    EXPECT_EQ(object.frame_size(), plain);
    EXPECT_EQ(object.to_frame().size(), plain + 9);
}

TEST(CppInterface, FramesThatWereMovedFromAreEmpty) {
    kit::Handle h;
    context c(h);
    frame source = debug_setting(c).to_frame();
    const frame whole = source;
    const frame moved = std::move(source);
    EXPECT_EQ(moved, whole);
    EXPECT_TRUE(source.empty());
    EXPECT_EQ(source, frame());
    EXPECT_EQ(source.begin(), source.end());
    EXPECT_THROW((void)debug_setting::from_frame(c, source), std::system_error);  // reads the guard byte at most
    source.append(moved);
    EXPECT_EQ(source, whole);
}

TEST(CppInterface, RecordsWithRaDataAreCopiedWithAllStates) {
    for (const Tracking tracking : kit::every_tracking) {
        SCOPED_TRACE(kit::name_of(tracking));
        kit::Handle h(tracking);
        context c(h);
        dp_tc_list object(c);
        object.tc_list().grow(20);
        for (std::size_t i = 0; h.tracks() && i < 20; ++i) object.tc_list().set_state(i, 3);
        // The frame grows with each: the buffer must not be too small for some states, nor for some elements.
        const auto attach = [&](void *native) {
            ASSERT_EQ(mirk_platform_set_ra_data(h, native, nullptr, 1), 0u);
            const dp_tc_list copy = object.copy();
            EXPECT_TRUE(copy == object);
            for (std::size_t i = 0; i < 20; ++i) EXPECT_EQ(copy.tc_list().state(i), object.tc_list().state(i)) << i;
        };
        attach(object.get());
        for (const auto element : object.tc_list()) attach(element.get());
    }
}

TEST(CppInterface, CopiesAreDeepAndMovesKeepTheObject) {
    for (const Tracking tracking : kit::every_tracking) {
        SCOPED_TRACE(kit::name_of(tracking));
        each_record([&]<class R>(kind<R>, const reference::Record &value) {
            kit::Handle h(tracking);
            context c(h);
            R object = filled<R>(c, value);
            const reference::Record before = value_of(object);
            const reference::Record received = reference::as_received(value, h.tracks());
            {
                const R copy = object.copy();
                EXPECT_NE(copy.get(), object.get());
                EXPECT_TRUE(bridge::same(received, value_of(copy)));
            }
            auto *native = object.get();
            R moved = std::move(object);
            EXPECT_EQ(moved.get(), native);
            EXPECT_FALSE(object);
            R other(c);
            other = std::move(moved);
            EXPECT_EQ(other.get(), native);
            R taken = R::take(c, other.release());
            EXPECT_FALSE(other);
            EXPECT_EQ(taken.get(), native);
            EXPECT_TRUE(bridge::same(before, value_of(taken)));
        });
    }
}

std::string without_nul(std::string text) {
    std::replace(text.begin(), text.end(), '\0', ' ');
    return text;
}

TEST(CppInterface, TextAndXmlEqualThoseOfTheIndependentCodec) {
    for (const Tracking tracking : {Tracking::none, Tracking::on}) {
        each_record([&]<class R>(kind<R>, const reference::Record &value) {
            kit::Handle h(tracking);
            context c(h);
            const R object = filled<R>(c, value);
            const std::string name(R::record_name());
            EXPECT_EQ(object.text(), without_nul(reference::print(value, name, 0, ' ')));
            EXPECT_EQ(object.text("other"), without_nul(reference::print(value, "other", 0, ' ')));
            EXPECT_EQ(object.to_xml(), reference::to_xml(value, name, h.tracks()));
            EXPECT_EQ(object.to_xml("other"), reference::to_xml(value, "other", h.tracks()));
        });
    }
}

TEST(CppInterface, XmlIsReadBack) {
    reference::GeneratorOptions options = printable();
    options.min_text = 1;  // after an empty string, reading XML skips a member
    each_record(
        [&]<class R>(kind<R>, const reference::Record &value) {
            kit::Handle h;
            context c(h);
            const R object = filled<R>(c, value);
            const kit::Document document(object.to_xml());
            ASSERT_NE(document, nullptr);
            EXPECT_TRUE(R::from_xml(c, document) == object);
            const std::string path = "/" + std::string(R::record_name());
            EXPECT_TRUE(R::from_xml(c, document, path.c_str()) == object);
        },
        options);
}

TEST(CppInterface, RecordsAreOrderedAndHashedByValue) {
    each_record([&]<class R>(kind<R>, const reference::Record &value) {
        kit::Handle h;
        context c(h);
        const R a = filled<R>(c, value), b = filled<R>(c, value), zero(c);
        EXPECT_TRUE(a == b);
        EXPECT_FALSE(a != b);
        EXPECT_FALSE(a < b);
        EXPECT_EQ(a.hash(7), bridge::operations(value).hash(a.get(), 7));
        EXPECT_EQ(std::hash<R>()(a), std::hash<typename R::view_type>()(b));
        const std::int32_t order = bridge::operations(value).compare(zero.get(), a.get());
        EXPECT_EQ(zero == a, order == 0);
        EXPECT_EQ(zero < a, order < 0);
        EXPECT_EQ(a<zero, order> 0);
        EXPECT_EQ(zero.compare(a) < 0, order < 0);
    });
}

// The handle counts its blocks, so the test fails if the former arrays and strings are leaked.
TEST(CppInterface, AssigningToNestedRecordsAndElementsFreesTheirFormerContent) {
    for (const Tracking tracking : {Tracking::none, Tracking::on}) {
        each_record([&]<class R>(kind<R>, const reference::Record &value) {
            kit::Handle h(tracking);
            context c(h);
            R to = filled<R>(c, value);
            reference::Generator generator(99, printable());
            R from = filled<R>(c, generator.make(R::record_name()));
            const frame before = from.to_frame();
            R::for_each_member([&](const auto &m) {
                using Value = decltype((from.*m.get)());
                if constexpr (Nested<Value>) {
                    (to.*m.set)((from.*m.get)());
                    EXPECT_TRUE((to.*m.get)() == (from.*m.get)()) << m.name;
                } else if constexpr (Array<Value>) {
                    const auto elements = (from.*m.get)(), target = (to.*m.get)();
                    for (std::size_t i = 0; i < elements.size(); ++i) target.set(i, elements[i]);
                    for (std::size_t i = 0; i < elements.size(); ++i) EXPECT_TRUE(target[i] == elements[i]) << m.name;
                    if (!target.empty()) {
                        target.push_back(elements.empty() ? target[0] : elements[0]);
                        target.push_back(target.back().copy());
                        EXPECT_TRUE(target.back() == target[target.size() - 2]);
                    }
                }
            });
            EXPECT_EQ(from.to_frame(), before);
        });
    }
}

TEST(CppInterface, ArraysAreContainers) {
    kit::Handle h;
    context c(h);
    dp_tc_list list(c);
    const auto classes = list.tc_list();
    EXPECT_TRUE(classes.empty());
    EXPECT_EQ(classes.begin(), classes.end());
    classes.grow(5);
    for (std::size_t i = 0; i < classes.size(); ++i) classes[i].set_id(static_cast<std::uint32_t>(10 * i));
    static_assert(std::random_access_iterator<decltype(classes.begin())>);
    static_assert(std::ranges::random_access_range<decltype(classes)>);
    std::uint32_t expected = 0;
    for (const dp_tc_ref one : classes) EXPECT_EQ(one.id(), std::exchange(expected, expected + 10));
    EXPECT_EQ(expected, 50u);
    const auto found = std::ranges::find_if(classes, [](const dp_tc_ref one) { return one.id() == 30; });
    EXPECT_EQ(found - classes.begin(), 3);
    EXPECT_EQ(found->id(), 30u);
    EXPECT_EQ(found[1].id(), 40u);
    EXPECT_EQ(classes.front().id(), 0u);
    EXPECT_EQ(classes.back().id(), 40u);
    const auto at = std::ranges::lower_bound(classes, 25u, {}, [](const dp_tc_ref one) { return one.id(); });
    EXPECT_EQ(at - classes.begin(), 3);
    EXPECT_EQ((--classes.end())->id(), 40u);
    EXPECT_EQ((*(classes.end() - 2)).id(), 30u);
}

TEST(CppInterface, EnumeratorsHaveTheNumbersAndNamesOfTheSchema) {
    const auto expect = [](const char *name, auto at) {
        const std::vector<std::string> &names = reference::enumeration_table(name).enumerators;
        for (std::uint32_t i = 0; i < names.size(); ++i) EXPECT_EQ(name_of(at(i)), names[i]);
        EXPECT_EQ(name_of(at(static_cast<std::uint32_t>(names.size()))), "");
    };
    expect("lumo_tarn_ha_state_e", [](std::uint32_t i) { return static_cast<ha_state>(i); });
    expect("lumo_tarn_lumo_direction_e", [](std::uint32_t i) { return static_cast<lumo_direction>(i); });
    expect("lumo_tarn_mem_desc_e", [](std::uint32_t i) { return static_cast<mem_desc>(i); });
    static_assert(static_cast<int>(lumo_direction::both) == LUMO_TARN_DIR_BOTH);
}

template <class Test>
void each_message(const Test &test) {
    std::size_t count = 0;
    for_each_message([&]<class M>(kind<M> k) {
        SCOPED_TRACE(M::message_name());
        reference::Generator generator(++count, printable());
        test(k, generator.make(M::payload_type::name));
    });
    EXPECT_EQ(count, reference::messages().size());
}

template <class M>
M carrying(context &c, const reference::Record &value) {
    M message(c);
    message.set_payload(filled<record<typename M::payload_type>>(c, value));
    return message;
}

TEST(CppInterface, MessagesOwnTheirPayload) {
    each_message([]<class M>(kind<M>, const reference::Record &value) {
        kit::Handle h(Tracking::on);
        context c(h);
        M message = carrying<M>(c, value);
        using Payload = record<typename M::payload_type>;
        const auto *native = message.payload().get();
        message.set_payload(Payload::take(c, message.payload().get()));  // its own: no effect
        EXPECT_EQ(message.payload().get(), native);
        const Payload payload = message.detach_payload();
        EXPECT_EQ(payload.get(), native);
        EXPECT_FALSE(message.payload());
        EXPECT_TRUE(bridge::same(value, value_of(payload)));
        M moved = std::move(message);
        moved.set_payload(payload.copy());
        EXPECT_TRUE(moved.payload() == payload);
    });
}

TEST(CppInterface, MovedFromRecordsAreRefused) {
    for (const Tracking tracking : kit::every_tracking) {
        kit::Handle h(tracking);
        context c(h, errors::kept);
        debug_setting_msg message(c);
        const auto *payload = message.payload().get();
        debug_setting gone(c);
        const debug_setting owner = std::move(gone);
        message.set_payload(std::move(gone));
        EXPECT_EQ(c.take_error().value(), EINVAL);
        EXPECT_EQ(message.payload().get(), payload);
    }
}

TEST(CppInterface, MessageFramesEqualThoseOfTheIndependentCodec) {
    for (const Tracking tracking : kit::every_tracking) {
        each_message([&]<class M>(kind<M>, const reference::Record &value) {
            kit::Handle h(tracking);
            mirk_platform_handle_set_message_stamp(h, 0x01020304);
            context c(h);
            const M message = carrying<M>(c, value);
            const frame whole = message.to_frame();
            const std::string name(M::message_name());
            const reference::Bytes bytes(whole.begin(), whole.end());
            EXPECT_TRUE(bridge::same(reference::message_frame(name, value, h.tracks(), 0x01020304), bytes));
            EXPECT_EQ(std::memcmp(whole.data() + 27, M::luid(), 16), 0);
            std::vector<std::uint8_t> buffer(message.frame_size() + 1);
            EXPECT_EQ(message.write_frame(buffer), whole.size());
            EXPECT_EQ(frame(buffer.data(), whole.size()), whole);
            EXPECT_EQ(M::from_frame(c, whole).to_frame(), whole);
            EXPECT_EQ(M::from_frame(c, std::span(bytes)).to_frame(), whole);

            EXPECT_EQ(message.text(), without_nul(reference::print_message(name, value, ' ')));
            EXPECT_EQ(message.to_xml(), reference::message_to_xml(name, value, h.tracks()));
        });
    }
}

TEST(CppInterface, MessagesAreReadFromXml) {
    kit::Handle h;
    context c(h);
    debug_setting_msg message(c);
    message.payload().set_warn_enabled(true).set_error_enabled(true);
    const kit::Document document(message.to_xml());
    const debug_setting_msg read = debug_setting_msg::from_xml(c, document);
    EXPECT_TRUE(read.payload() == message.payload());
}

TEST(CppInterface, BundlesEqualThoseOfTheIndependentCodec) {
    std::size_t count = 0;
    for_each_bundle([&]<class B>(kind<B>) {
        ++count;
        kit::Handle h;
        context c(h);
        reference::Bytes expected = reference::control_frame(B::name, "start", 0);
        reference::Generator generator(5, printable());
        const reference::Record value = generator.make(B::message::payload::name);
        const auto append = [&](const reference::Bytes &more) {
            expected.insert(expected.end(), more.begin(), more.end());
        };
        for (int i = 0; i < 2; ++i) append(reference::message_frame(B::message::name, value, false, 0));
        append(reference::control_frame(B::name, "commit", 0));
        bundle_writer<B> answer(c);
        const auto message = carrying<lumo_ui_tarn::message<typename B::message>>(c, value);
        answer.add(message).add(message).commit();
        EXPECT_TRUE(bridge::same(expected, reference::Bytes(answer.frames().begin(), answer.frames().end())));
        EXPECT_EQ(h.get()->send_bundle_open, 0u);
    });
    EXPECT_EQ(count, reference::bundles().size());
}

TEST(CppInterface, OpenBundlesAreAbortedWithTheirWriter) {
    kit::Handle h;
    context c(h);
    {
        const bundle_writer<cl_debug_rsp> answer(c);
        EXPECT_EQ(h.get()->send_bundle_open, 1u);
    }
    EXPECT_EQ(h.get()->send_bundle_open, 0u);
    bundle_writer<cl_debug_rsp> answer(c);
    const reference::Bytes start = reference::control_frame("lumo_tarn_cl_debug_rsp", "start", 0),
                           abort = reference::control_frame("lumo_tarn_cl_debug_rsp", "abort", 0);
    answer.abort();
    EXPECT_TRUE(std::equal(start.begin(), start.end(), answer.frames().begin()));
    EXPECT_TRUE(std::equal(abort.begin(), abort.end(), answer.frames().begin() + start.size()));
}

}  // namespace
