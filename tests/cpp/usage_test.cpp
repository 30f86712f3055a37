// The C++ interface in a C++17 program: chained setters, both ways to report errors, addresses, arrays.
#include "tests/cpp/usage_support.h"

#include <sys/socket.h>

namespace {

using namespace lumo_ui_tarn;
using usage::CppUsage;
using usage::expect_error;

static_assert(__cplusplus < 202002L, "this program checks that the header needs only C++17");

struct CppUsageTracked : CppUsage {
    CppUsageTracked() : CppUsage(MIRK_PLATFORM_TRACKING_ON) {}
};

address v4(std::uint32_t word, std::uint8_t prefix_len) {
    address value;
    value.af = AF_INET;
    value.prefix_len = prefix_len;
    value.word[0] = word;
    return value;
}

TEST_F(CppUsage, SettersChainAndNestedRecordsReadLikeMembers) {
    context c(handle);
    dp_tt_table_data tables(c);
    tables.lumo_data().grow(1);
    tables.lumo_data()[0].set_lumo_num(2).set_start_time(100).set_end_time(200);
    const auto classes = tables.lumo_data()[0].agg_tc_list().tc_list();
    classes.grow(2);
    classes[0].set_id(1).set_proto(6).set_src_prefix(v4(0x0a000000, 8)).appl().set_id(77);
    classes[1].set_id(2).set_proto(17);

    std::string seen;
    for (const dp_tc_ref tc : tables.lumo_data()[0].agg_tc_list().tc_list()) {
        seen += std::to_string(tc.id()) + ":" + std::to_string(tc.proto()) + " ";
    }
    EXPECT_EQ(seen, "1:6 2:17 ");
    EXPECT_EQ(tables.lumo_data()[0].agg_tc_list().num_tcs(), 2u);
    EXPECT_EQ(classes[0].appl().id(), 77);
    EXPECT_EQ(classes[0].src_prefix(), v4(0x0a000000, 8));
    EXPECT_EQ(classes[1].src_prefix(), address());
}

TEST_F(CppUsage, CFunctionsWorkOnTheSameObject) {
    context c(handle);
    dp_tc tc(c);
    std::uint32_t err = 0;
    lumo_tarn_dp_tc_tos_set_value(c.handle(), c.ctx_id(), tc.get(), 5, &err);
    EXPECT_EQ(tc.tos(), 5);
    const dp_tc_ref borrowed(c, tc.get());
    borrowed.set_tos(6);
    EXPECT_EQ(lumo_tarn_dp_tc_tos_get_value(c.handle(), c.ctx_id(), tc.get(), &err), 6);
    EXPECT_EQ(err, 0u);
}

TEST_F(CppUsage, EachTypeNamesItsCFunctions) {
    context c(handle);
    for_each_record([&](auto kind) {
        typename decltype(kind)::type object(c);
        using type = typename decltype(object)::record_type;
        EXPECT_EQ(c.call(type::get, object.get()), object.get()) << type::name;
        EXPECT_GE(type::sizeof_operation(handle), sizeof(mirk_object)) << type::name;
    });
    for_each_enumeration([&](auto kind) {
        using type = typename decltype(kind)::type;
        const auto second = static_cast<typename type::value>(1);
        typename type::native *object = type::create(handle, c.ctx_id());
        c.call(type::set_value, object, static_cast<std::uint32_t>(second));
        EXPECT_EQ(c.call(type::get_value, object), 1u) << type::name;
        EXPECT_FALSE(name_of(second).empty()) << type::name;
        type::destroy(handle, c.ctx_id(), object);
    });
    for_each_message([&](auto kind) {
        typename decltype(kind)::type object(c);
        using type = typename decltype(object)::message_type;
        EXPECT_EQ(c.call(type::payload_get, object.get()), object.payload().get()) << type::name;
        EXPECT_NE(type::is_valid_cr(handle), 0u) << type::name;
    });
    for_each_bundle([&](auto kind) {
        using type = typename decltype(kind)::type;
        EXPECT_EQ(type::start_message_len(handle, c.ctx_id(), nullptr), 43u) << type::name;
        EXPECT_EQ(type::handler_unregister(), nullptr) << type::name;
    });
}

TEST_F(CppUsage, ErrorsAreThrown) {
    context c(handle);
    dp_tc_list list(c);
    try {
        list.tc_list()[3];
        FAIL() << "there is no such element";
    } catch (const std::system_error &error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
    }
    EXPECT_TRUE(c.ok());
    list.tc_list().grow(2);
    EXPECT_THROW(list.tc_list().grow(1), std::system_error);
    EXPECT_THROW((void)dp_tc::from_frame(c, "", 0), std::system_error);
    EXPECT_THROW((void)debug_setting_msg::from_frame(c, "garbage", 7), std::system_error);
    EXPECT_THROW(lumo_info(c).set_direction(static_cast<lumo_direction>(3)), std::system_error);
    EXPECT_THROW(cl_kesh_appl(c).set_proto_name(std::string(65536, 'x')), std::system_error);
}

TEST_F(CppUsage, KeptErrorsMakeCallsNoOps) {
    context c(handle, errors::kept);
    dp_tc_list list(c);
    const dp_tc_ref none = list.tc_list()[3];
    EXPECT_EQ(c.error(), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(none);
    none.set_id(1).set_tos(2);  // no effect
    EXPECT_EQ(none.id(), 0u);
    EXPECT_TRUE(list.to_frame().empty());
    EXPECT_TRUE(list.text().empty());
    const dp_tc unmade(c);
    EXPECT_FALSE(unmade);
    EXPECT_EQ(c.take_error(), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(c.ok());
    EXPECT_EQ(list.tc_list().size(), 0u);

    bundle_writer<cl_debug_rsp> answer(c);
    c.fail(EIO);
    answer.commit();
    EXPECT_EQ(handle->send_bundle_open, 1u) << "an incomplete bundle is not committed";
    EXPECT_EQ(c.take_error(), std::errc::io_error);
}

// The fixture counts blocks, so the test fails if a payload is leaked.
TEST_F(CppUsage, SetPayloadAfterAnErrorLeavesThePayloadWithItsOwner) {
    context c(handle, errors::kept);
    debug_setting_msg message(c);
    debug_setting payload(c);
    payload.set_warn_enabled(true);
    const auto pass_to = [&](debug_setting_msg_ref to) { to.set_payload(static_cast<debug_setting &&>(payload)); };

    c.fail(EIO);
    pass_to(message);
    EXPECT_EQ(c.take_error(), std::errc::io_error);
    ASSERT_TRUE(payload);
    EXPECT_FALSE(message.payload().warn_enabled());

    pass_to({c, nullptr});
    EXPECT_EQ(c.take_error(), std::errc::invalid_argument);
    ASSERT_TRUE(payload);
    context throwing(handle);
    EXPECT_THROW(pass_to({throwing, nullptr}), std::system_error);
    ASSERT_TRUE(payload);

    pass_to(message);
    EXPECT_FALSE(payload);
    EXPECT_TRUE(message.payload().warn_enabled());
}

TEST_F(CppUsageTracked, KeptErrorsMakeMovesAndStatesNoOps) {
    context c(handle, errors::kept);
    dp_tc_list from(c), to(c);
    from.tc_list().grow(2);
    c.fail(EIO);
    c.call(dp_tc_list_type::set, to.get(), from.get());
    to.set_all_states(9);
    EXPECT_EQ(c.take_error(), std::errc::io_error);
    EXPECT_EQ(from.tc_list().size(), 2u);
    EXPECT_EQ(to.tc_list().size(), 0u);
    EXPECT_EQ(to.tc_list_state(), 0);
}

template <class Function>
void with_document(const std::string &text, Function function) {
    void *document = mirk_platform_document_load_memory(text.data(), text.size(), nullptr);
    ASSERT_NE(document, nullptr) << text;
    function(document);
    mirk_platform_document_free(document);
}

// The fixture counts blocks, so the test fails if a message is leaked.
TEST_F(CppUsage, InvalidNumbersInXmlAreReported) {
    context c(handle);
    with_document("<lumo_tarn_exmem_info><size>many</size></lumo_tarn_exmem_info>", [&](void *document) {
        expect_error(std::errc::invalid_argument, [&] { (void)exmem_info::from_xml(c, document); });
    });
    with_document(
        "<lumo_tarn_debug_setting><warn_enabled>x</warn_enabled></lumo_tarn_debug_setting>", [&](void *document) {
            expect_error(std::errc::invalid_argument, [&] { (void)debug_setting_msg::from_xml(c, document); });
            context kept(handle, errors::kept);
            (void)debug_setting_msg::from_xml(kept, document);
            EXPECT_EQ(kept.take_error(), std::errc::invalid_argument);
        });
}

TEST_F(CppUsage, AbsentElementsAreReportedForRecordsOnly) {
    context c(handle);
    with_document("<other/>", [&](void *document) {
        expect_error(std::errc::no_such_file_or_directory, [&] { (void)debug_setting::from_xml(c, document); });
        const debug_setting_msg message = debug_setting_msg::from_xml(c, document);
        EXPECT_TRUE(message.payload() == debug_setting(c));
    });
}

TEST_F(CppUsage, MovedFromMessagesReportAnError) {
    context c(handle);
    debug_setting_msg message(c);
    const debug_setting_msg owner = std::move(message);
    EXPECT_FALSE(message);
    EXPECT_FALSE(message.payload());
    EXPECT_EQ(message.frame_size(), 0u);
    std::uint8_t buffer[100];
    expect_error(std::errc::invalid_argument, [&] { (void)message.to_frame(); });
    expect_error(std::errc::invalid_argument, [&] { message.write_frame(buffer, sizeof buffer); });
    expect_error(std::errc::invalid_argument, [&] { (void)message.to_xml(); });
    expect_error(std::errc::invalid_argument, [&] { (void)message.text(); });

    context kept(handle, errors::kept);
    const debug_setting_msg_view none(kept, nullptr);
    EXPECT_TRUE(none.to_frame().empty());
    EXPECT_EQ(kept.take_error(), std::errc::invalid_argument);
    EXPECT_EQ(none.write_frame(buffer, sizeof buffer), 0u);
    EXPECT_EQ(kept.take_error(), std::errc::invalid_argument);
    EXPECT_TRUE(none.to_xml().empty());
    EXPECT_EQ(kept.take_error(), std::errc::invalid_argument);
    EXPECT_TRUE(none.text().empty());
    EXPECT_EQ(kept.take_error(), std::errc::invalid_argument);
}

TEST_F(CppUsage, MovedFromRecordsReportAnError) {
    context c(handle);
    dp_tc tc(c);
    const dp_tc owner = std::move(tc);
    EXPECT_EQ(tc.proto(), 0);
    expect_error(std::errc::no_such_file_or_directory, [&] { tc.set_proto(6); });
    expect_error(std::errc::invalid_argument, [&] { tc.set_src_prefix(v4(0x0a000000, 8)); });
    expect_error(std::errc::invalid_argument, [&] { (void)tc.to_frame(); });

    dp_tc_list list(c);
    expect_error(std::errc::invalid_argument, [&] { list.tc_list().push_back(std::move(tc)); });
    expect_error(std::errc::invalid_argument, [&] { list.tc_list().set(0, std::move(tc)); });
    EXPECT_TRUE(list.tc_list().empty());

    context kept(handle, errors::kept);
    dp_tc other(kept);
    const dp_tc other_owner = std::move(other);
    dp_tc_list_ref(kept, list.get()).tc_list().push_back(std::move(other));
    EXPECT_EQ(kept.take_error(), std::errc::invalid_argument);
    EXPECT_TRUE(list.tc_list().empty());
}

TEST_F(CppUsageTracked, IndexesOfMoreThan32BitsAreOutOfRange) {
    context c(handle);
    dp_tc_list list(c);
    const auto classes = list.tc_list();
    classes.grow(1);
    const std::size_t beyond = std::size_t{1} << 32;
    for (const std::size_t index : {beyond, beyond + 1, beyond - 1}) {
        expect_error(std::errc::no_such_file_or_directory, [&] { classes[index]; });
        expect_error(std::errc::no_such_file_or_directory, [&] { classes.state(index); });
        expect_error(std::errc::no_such_file_or_directory, [&] { classes.set_state(index, 1); });
    }
    expect_error(std::errc::value_too_large, [&] { classes.set(beyond, dp_tc(c)); });
    EXPECT_EQ(classes.size(), 1u);
}

// Such a buffer, for example a mapped file, has many frames. Only the first one is read.
TEST_F(CppUsage, TheFirstFrameOfABufferOfMoreThan32BitsIsRead) {
    context c(handle);
    dp_tc_list list(c);
    list.tc_list().grow(2);
    const debug_setting_msg message(c);
    const frame of_record = list.to_frame(), of_message = message.to_frame();
    const std::uint8_t claims_too_much[] = {0, 0, 0, 0, 0, 8, 0xFF, 0xFF, 0xFF, 0xFF};
    for (const std::size_t size : {std::size_t{1} << 31, (std::size_t{1} << 32) + 3}) {
        EXPECT_TRUE(excess_of_record(dp_tc_list_type::parts, claims_too_much, size, false));
        EXPECT_EQ(dp_tc_list::from_frame_with_guard(c, of_record.data(), size), list);
        EXPECT_EQ(debug_setting_msg::from_frame_with_guard(c, of_message.data(), size).to_frame(), of_message);
    }
}

TEST_F(CppUsage, MessagesAreAddedToOpenBundlesOnly) {
    context c(handle);
    const debug_setting_msg message(c);
    bundle_writer<cl_debug_rsp> answer(c);
    const frame whole = answer.add(message).commit().frames();
    expect_error(std::errc::no_such_file_or_directory, [&] { answer.add(message); });
    expect_error(std::errc::no_such_file_or_directory, [&] { answer.commit(); });
    EXPECT_EQ(answer.frames(), whole);

    context kept(handle, errors::kept);
    kept.fail(EIO);
    bundle_writer<cl_debug_rsp> unopened(kept);
    EXPECT_EQ(kept.take_error(), std::errc::io_error);
    unopened.add(message);
    EXPECT_EQ(kept.take_error(), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(unopened.frames().empty());

    // Neither does it end the bundle that another writer opened meanwhile.
    bundle_writer<cl_debug_rsp> other(kept);
    unopened.commit();
    EXPECT_EQ(kept.take_error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(other.add(message).commit().frames(), whole);
    EXPECT_TRUE(kept.ok());
}

TEST_F(CppUsage, BundlesReportErrorsThatTheContextsOfTheirMessagesKeep) {
    context kept(handle, errors::kept);
    const debug_setting_msg message(kept);
    kept.fail(EIO);
    context c(handle);
    bundle_writer<cl_debug_rsp> answer(c);
    const frame start = answer.frames();
    expect_error(std::errc::io_error, [&] { answer.add(message); });
    EXPECT_EQ(answer.frames(), start);
    EXPECT_EQ(kept.take_error(), std::errc::io_error);
    EXPECT_GT(answer.add(message).commit().frames().size(), start.size());
}

TEST_F(CppUsage, AllocationFailureIsReported) {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.total_ceiling = 64;
    mirk_handle *poor = mirk_platform_handle_open(&options);
    {
        context c(poor);
        EXPECT_THROW(dp_tc{c}, std::system_error);
        context kept(poor, errors::kept);
        const debug_setting_msg message(kept);
        EXPECT_EQ(kept.error(), std::errc::not_enough_memory);
        EXPECT_EQ(message.frame_size(), 0u);
    }
    mirk_platform_handle_close(poor);
}

TEST_F(CppUsage, AFrameThatClaimsMoreThanItContainsIsRefusedBeforeItIsRead) {
    context c(handle, errors::kept);
    dp_tc_list list(c);
    list.tc_list().grow(2);
    frame whole = list.to_frame();
    ASSERT_TRUE(c.ok());
    whole.data()[6] = 0x7F;  // first byte of the count
    for (int reads = 0; reads < 2; ++reads) {
        const dp_tc_list read = dp_tc_list::from_frame(c, whole);
        EXPECT_EQ(c.take_error(), std::errc::bad_message);
        EXPECT_TRUE(read.tc_list().empty());
    }
    EXPECT_EQ(mirk_platform_ceiling_refusals(handle), 0u) << "nothing is requested for the elements";

    cl_appl_msg message(c);
    frame sent = message.to_frame();
    sent.data()[54] = 1;  // last byte of the count; no element follows
    EXPECT_FALSE(cl_appl_msg::from_frame(c, sent));
    EXPECT_EQ(c.take_error(), std::errc::bad_message);

    context thrown(handle);
    try {
        (void)cl_appl_msg::from_frame(thrown, sent);
        ADD_FAILURE() << "was read";
    } catch (const std::system_error &error) {
        EXPECT_NE(std::string(error.what())
                      .find("lumo_tarn_cl_appl_data.kesh_appl claims 1 elements of at least 6 "
                            "bytes, but 0 bytes are left"),
                  std::string::npos)
            << error.what();
    }
}

TEST_F(CppUsage, AOneByteCountDoesNotWrap) {
    context c(handle);
    lumo_info_list list(c);
    auto infos = dp_mp_prefix_data(c);
    const auto prefixes = infos.prefix_data();
    EXPECT_EQ(prefixes.max_size(), 255u);
    prefixes.grow(255);
    EXPECT_THROW(prefixes.grow(256), std::system_error);
    EXPECT_THROW(prefixes.push_back(dp_mp_prefix_complex_data(c)), std::system_error);
    EXPECT_EQ(prefixes.size(), 255u);
}

TEST_F(CppUsage, TextIsStoredWithItsLength) {
    context c(handle);
    cl_kesh_appl application(c);
    EXPECT_EQ(application.proto_name(), "");
    application.set_proto_name("http");
    EXPECT_EQ(application.proto_name(), "http");
    EXPECT_EQ(application.proto_name_len(), 4);
}

TEST_F(CppUsage, TextWithANulIsRefused) {
    context c(handle);
    cl_kesh_appl application(c);
    application.set_proto_name("http");
    try {
        application.set_proto_name(std::string_view("a\0b", 3));
        FAIL() << "text after a NUL is lost";
    } catch (const std::system_error &error) {
        EXPECT_EQ(error.code(), std::errc::invalid_argument);
        EXPECT_NE(std::string(error.what()).find("NUL"), std::string::npos) << error.what();
    }
    EXPECT_THROW(application.set_proto_name(std::string_view("a\0", 2)), std::system_error);
    EXPECT_EQ(application.proto_name(), "http");

    context kept(handle, errors::kept);
    cl_kesh_appl_ref(kept, application.get()).set_proto_name(std::string_view("\0", 1));
    EXPECT_EQ(kept.take_error(), std::errc::invalid_argument);
    EXPECT_EQ(application.proto_name(), "http");
}

TEST_F(CppUsage, UntrackedRecordsHaveNoStateBytes) {
    context c(handle);
    dp_tc_list list(c);
    list.tc_list().grow(1);
    EXPECT_FALSE(list.is_tracked());
    EXPECT_EQ(list.tc_list_state(), std::nullopt);
    EXPECT_EQ(list.tc_list().state(0), std::nullopt);
    EXPECT_THROW(list.set_tc_list_state(1), std::system_error);
}

TEST_F(CppUsageTracked, SettersSetTheStateByte) {
    context c(handle);
    dp_tc tc(c);
    EXPECT_TRUE(tc.is_tracked());
    EXPECT_EQ(tc.proto_state(), 0);
    tc.set_proto(6).set_src_prefix(v4(0x0a000000, 8));
    EXPECT_EQ(tc.proto_state(), 2);
    EXPECT_EQ(tc.src_prefix_state(), 2);
    EXPECT_EQ(tc.dst_prefix_state(), 0);
    EXPECT_EQ(tc.src_prefix(), v4(0x0a000000, 8));
    tc.set_proto_state(1);
    EXPECT_EQ(tc.proto_state(), 1);

    dp_tc_list list(c);
    list.tc_list().push_back(tc).push_back(std::move(tc));
    EXPECT_EQ(list.tc_list().state(0), 2);
    EXPECT_EQ(list.tc_list_state(), 2);
    list.tc_list().set_state(0, 0);
    EXPECT_EQ(list.tc_list().state(0), 0);
    EXPECT_EQ(list.tc_list()[1].src_prefix_state(), 2);
}

// On a handle of its own, because set_all_states leaks the block of the element states.
TEST(CppUsageStates, ElementStatesAreFixedUntilTheArrayGrows) {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = MIRK_PLATFORM_TRACKING_ON;
    mirk_handle *handle = mirk_platform_handle_open(&options);
    {
        context c(handle);
        dp_tc_list list(c);
        const auto classes = list.tc_list();
        classes.grow(2);
        list.set_all_states(6);
        classes.set_state(1, 9);
        EXPECT_EQ(classes.state(0), 6);
        EXPECT_EQ(classes.state(1), 6);
        classes.grow(3);
        EXPECT_EQ(classes.state(0), 0);
        classes.set_state(1, 9);
        EXPECT_EQ(classes.state(1), 9);
    }
    EXPECT_EQ(mirk_platform_handle_close(handle), 1u);
}

TEST_F(CppUsage, BuffersWithoutRoomForTheGuardByteAreRefused) {
    context c(handle);
    const debug_setting record(c);
    const debug_setting_msg message(c);
    std::uint8_t none = 0xaa;
    expect_error(std::errc::message_size, [&] { record.write_frame(&none, 0); });
    expect_error(std::errc::message_size, [&] { message.write_frame(&none, 0); });
    EXPECT_EQ(none, 0xaa);
}

TEST_F(CppUsage, FramesEndWithAGuardByte) {
    frame empty;
    EXPECT_TRUE(empty.empty());
    empty.append(frame("ab", 2));
    empty.append(frame());
    empty.append(frame("c", 1));
    EXPECT_EQ(empty, frame("abc", 3));
    EXPECT_NE(empty, frame("abd", 3));
    EXPECT_EQ(std::string(empty.begin(), empty.end()), "abc");
    EXPECT_EQ(*empty.end(), 0) << "the guard byte";
}

}  // namespace
