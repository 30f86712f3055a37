// The calls that messages make of the runtime, in their order.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include "lumo_ui_tarn.h"
#include "recording.h"
#include "tools/reflect/operations.h"

namespace {

using recording::Detail;
using recording::Handle;
using recording::Tracking;
using tarn::reflect::BundleOperations;
using tarn::reflect::bundles;
using tarn::reflect::MessageOperations;
using tarn::reflect::messages;
using Strings = std::vector<std::string>;

constexpr std::uint32_t id = 7, room = 4000;

struct Sequence : testing::Test {
    void SetUp() override {
        recording::clear_names();
        mirk_lumo_ui_tarn_message_trace_init();
        recording::name_region("buffer", buffer.data(), room);
        recording::name_region("slot", &err, sizeof err);
        recording::clear_log();
    }
    void TearDown() override {
        recording::set_recorder(0, nullptr);
        lumo_ui_tarn_bundle_handler_unregister();
        recording::clear_names();
    }
    // The calls since the last call of this function.
    static Strings calls(Detail detail = Detail::brief) {
        Strings lines = recording::lines(detail);
        recording::clear_log();
        return lines;
    }
    static Strings calls_of(std::initializer_list<std::string_view> functions, Detail detail = Detail::brief) {
        Strings lines = recording::lines_of(functions, detail);
        recording::clear_log();
        return lines;
    }
    // Memory and counters of the message itself, not those of its payload.
    static Strings own(const Strings &lines, const MessageOperations &m) {
        Strings found;
        for (const std::string &line : lines) {
            if (!line.starts_with("count_notify") || line.find(m.name) != std::string::npos) found.push_back(line);
        }
        return found;
    }
    static std::string why(std::uint32_t number) { return std::strerror(static_cast<int>(number)); }

    std::array<std::uint8_t, room> buffer{};
    std::uint32_t err = 0;
};

TEST_F(Sequence, CreateMakesThePayloadBeforeItBindsAndCounts) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h(recording::Options{.tracking = Tracking::none, .private_types = 1});
        recording::clear_names();
        recording::clear_log();
        void *message = m.create(h, id);
        const Strings lines = calls();
        ASSERT_GE(lines.size(), 4u);
        EXPECT_EQ(lines[0], "obj_alloc 40");
        EXPECT_EQ(lines[1], "skald_module_init_fn mirk_lumo_ui_tarn_type");  // the record's create
        EXPECT_TRUE(lines[2].starts_with("obj_alloc "));
        EXPECT_TRUE(lines[lines.size() - 2].starts_with("mirk_type_info_ptr_get " + std::string(m.name)));
        EXPECT_TRUE(lines.back().starts_with("count_notify " + std::string(m.name))) << lines.back();
        EXPECT_TRUE(lines.back().ends_with(".num_created 1")) << lines.back();
        m.destroy(h, id, message);
    }
}

TEST_F(Sequence, DestroyReleasesThePayloadFirst) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        recording::clear_names();
        void *message = m.create(h, id);
        calls();
        m.destroy(h, id, message);
        EXPECT_EQ(own(calls_of({"count_notify", "obj_free"}), m),
                  (Strings{"obj_free block2", "count_notify " + std::string(m.name) + ".num_destroyed 1",
                           "obj_free block1"}));
        // A message without a payload is only counted and released.
        message = m.create_shallow(h, id);
        calls();
        m.destroy(h, id, message);
        EXPECT_EQ(calls(), (Strings{"count_notify " + std::string(m.name) + ".num_destroyed 1", "obj_free block3"}));
    }
}

TEST_F(Sequence, StickyFormsUseTheHandlesIdAndItsLastErrorAsSlot) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        h->default_id = 31;
        void *message = m.create_cr(h);
        for (const recording::Call &call : recording::log()) {
            EXPECT_EQ(call.ctx_id.value_or(31), 31u) << line(call);
        }
        calls();
        EXPECT_NE(m.is_valid_cr(h), 0u);
        EXPECT_EQ(calls(Detail::full),
                  (Strings{"mirk_domain_lookup_message_ok " + std::string(m.name) + " err=last_error"}));
        m.marshal_cr(h, message, buffer.data(), room);
        for (const recording::Call &call : recording::log()) {
            EXPECT_TRUE(call.slot.empty() || call.slot == "last_error") << line(call);
            EXPECT_EQ(call.ctx_id.value_or(31), 31u) << line(call);
        }
        m.destroy_cr(h, message);
        calls();
    }
}

const std::initializer_list<std::string_view> message_level = {"mirk_domain_lookup_message_ok",
                                                               "mirk_store_err",
                                                               "mirk_store_epoch_err",
                                                               "bundle_message_validate_add",
                                                               "bundle_message_increment_count",
                                                               "mirklib_suppress_messages_enabled",
                                                               "_mirk_message_header_marshal",
                                                               "_mirk_message_header_unmarshal",
                                                               "skald_wrapper"};

TEST_F(Sequence, MarshalChecksTheDomainThenTheBundleAndWritesTheHeaderLast) {
    for (const BundleOperations &b : bundles()) {
        const MessageOperations &m = tarn::reflect::operations_of(b.bundle->message);
        SCOPED_TRACE(std::string(b.bundle->name));
        Handle h;
        void *message = m.create(h, id);
        b.start.marshal(h, id, buffer.data(), nullptr, room, &err);
        calls();
        const std::uint32_t written = m.marshal(h, id, buffer.data(), message, room, &err);
        const std::string header =
            "_mirk_message_header_marshal buffer 188 0 16909060 " + std::to_string(written) + " 27";
        Strings all = calls();
        EXPECT_EQ(all[0], "mirk_clear_last_error");
        EXPECT_EQ(all[1], "mirk_domain_lookup_message_ok " + std::string(m.name));
        EXPECT_TRUE(all[2].starts_with("bundle_message_validate_add ")) << all[2];
        EXPECT_EQ(all[3], "mirk_clear_last_error");  // the record's marshal starts
        EXPECT_TRUE(all[all.size() - 2].starts_with("bundle_message_increment_count ")) << all[all.size() - 2];
        EXPECT_EQ(all.back(), header);
        m.destroy(h, id, message);
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(Sequence, AMessageMissingInTheOpenBundleIsTraced) {
    for (const BundleOperations &b : bundles()) {
        const MessageOperations &m = tarn::reflect::operations_of(b.bundle->message);
        Handle h;
        void *message = m.create(h, id);
        err = 0;
        b.start.marshal(h, id, buffer.data(), nullptr, room, &err);
        h.knobs().errors["bundle_message_increment_count"] = ENOENT;
        buffer.fill(0xA5);
        calls();
        EXPECT_GT(m.marshal(h, id, buffer.data(), message, room, &err), 43u);
        EXPECT_EQ(err, std::uint32_t{ENOENT});
        const Strings lines = calls_of({"skald_wrapper", "_mirk_message_header_marshal"});
        EXPECT_EQ(lines, (Strings{"skald_wrapper message 3 (ERR): Message " + std::string(m.name) +
                                  " instance is not present in bundle " + why(ENOENT)}));
        EXPECT_TRUE(std::all_of(buffer.begin(), buffer.begin() + 27, [](std::uint8_t byte) { return byte == 0; }));
        m.destroy(h, id, message);
    }
}

// The domain may allow a message and set an error nevertheless.
TEST_F(Sequence, AnErrorOfTheDomainCheckStopsMarshal) {
    for (const BundleOperations &b : bundles()) {
        const MessageOperations &m = tarn::reflect::operations_of(b.bundle->message);
        SCOPED_TRACE(std::string(b.bundle->name));
        Handle h;
        void *message = m.create(h, id);
        h.knobs().default_message = {1, EPERM};
        buffer.fill(0xA5);
        calls();
        err = 0;
        EXPECT_EQ(m.marshal(h, id, buffer.data(), message, room, &err), 0u);
        EXPECT_EQ(err, std::uint32_t{EPERM});
        EXPECT_EQ(calls(), (Strings{"mirk_clear_last_error", "mirk_domain_lookup_message_ok " + std::string(m.name)}));
        EXPECT_EQ(buffer[0], 0xA5);

        err = 0;
        b.start.marshal(h, id, buffer.data(), nullptr, room, &err);
        calls();
        EXPECT_EQ(m.marshal(h, id, buffer.data(), message, room, &err), 0u);
        EXPECT_EQ(err, std::uint32_t{EPERM});
        EXPECT_EQ(calls_of({"skald_wrapper"}),
                  (Strings{"skald_wrapper message 3 (ERR): Message " + std::string(m.name) +
                           " is not valid for bundle: " + why(EPERM)}));
        m.destroy(h, id, message);
    }
}

TEST_F(Sequence, ARefusedMessageIsReportedAsAnErrorOfTheDomain) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        h.knobs().default_message = {0, 0};
        calls();
        err = 0;
        EXPECT_EQ(m.marshal(h, id, buffer.data(), message, room, &err), 0u);
        const Strings lines = calls();
        ASSERT_EQ(lines.size(), 4u);
        EXPECT_EQ(lines[1], "mirk_domain_lookup_message_ok " + std::string(m.name));
        EXPECT_TRUE(lines[2].starts_with("skald_wrapper message 3 (ERR): domainfail: Message ")) << lines[2];
        EXPECT_TRUE(lines[3].starts_with("mirk_store_epoch_err 52")) << lines[3];
        m.destroy(h, id, message);
    }
}

TEST_F(Sequence, SuppressionIsCheckedOnlyAfterAFailure) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        calls();
        err = 0;
        m.marshal(h, id, buffer.data(), message, 42, &err);
        const std::string failed = "Message " + std::string(m.name) + " failed to marshal: " + why(EMSGSIZE);
        EXPECT_EQ(calls_of(message_level),
                  (Strings{"mirk_domain_lookup_message_ok " + std::string(m.name), "mirk_store_err 90",
                           "mirklib_suppress_messages_enabled", "skald_wrapper message 3 (ERR): " + failed}));
        h.knobs().suppress_messages = true;
        err = 0;
        m.marshal(h, id, buffer.data(), message, 26, &err);
        EXPECT_EQ(calls_of(message_level),
                  (Strings{"mirk_domain_lookup_message_ok " + std::string(m.name), "mirk_store_err 90",
                           "mirklib_suppress_messages_enabled", "skald_wrapper message 7 (debug): " + failed}));
        m.destroy(h, id, message);
    }
}

TEST_F(Sequence, UnmarshalReadsTheHeaderBeforeThePayloadIsMade) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        void *message = m.create(h, id);
        const std::uint32_t size = m.marshal(h, id, buffer.data(), message, room, &err);
        m.destroy(h, id, message);
        recording::clear_names();
        recording::name_region("buffer", buffer.data(), room);
        calls();
        EXPECT_EQ(m.unmarshal_only(h, id, &message, buffer.data(), size, &err), size);
        const Strings lines = calls();
        ASSERT_GE(lines.size(), 6u);
        EXPECT_EQ(lines[0], "mirk_clear_last_error");
        EXPECT_EQ(lines[1], "obj_alloc 40");
        EXPECT_EQ(lines[2], "count_notify " + std::string(m.name) + ".num_created 1");
        EXPECT_EQ(lines[3], "_mirk_message_header_unmarshal buffer block1+12 " + std::to_string(size));
        EXPECT_TRUE(lines[4].starts_with("obj_alloc "));  // no trace module is registered here
        for (const std::string &line : lines) {
            // A new payload has no blocks to reuse.
            if (line.starts_with("u_int") && line.find("_unmarshal ") != std::string::npos) {
                EXPECT_TRUE(line.ends_with(" 0")) << line;
            }
        }
        m.destroy(h, id, message);
    }
    EXPECT_EQ(err, 0u);
}

void note_handler(mirk_handle *, std::uint32_t, void *, void *, std::uint32_t *) { mirklib_free(nullptr, 0, nullptr); }

TEST_F(Sequence, AMessageIsRecordedBetweenReadingAndDelivery) {
    std::FILE *file = std::tmpfile();
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        void *message = m.create(h, id);
        const std::uint32_t size = m.marshal(h, id, buffer.data(), message, room, &err);
        m.destroy(h, id, message);
        recording::set_recorder(1, file);
        calls();
        m.unmarshal(h, id, nullptr, &message, buffer.data(), size, note_handler, &err);
        const Strings all = calls();
        ASSERT_GT(all.size(), 2u);
        EXPECT_EQ(all[0], "mirk_clear_last_error");  // of unmarshal, then of unmarshal_only
        EXPECT_EQ(all[1], "mirk_clear_last_error");
        m.unmarshal(h, id, nullptr, &message, buffer.data(), size, note_handler, &err);
        // The last of these is the handler's own.
        EXPECT_EQ(calls_of({"mirklib_msg_recorder_get_state", "mirklib_malloc", "mirklib_msg_recorder_get_handle",
                            "mirklib_free", "_mirk_message_header_unmarshal"})
                      .size(),
                  6u);
        m.unmarshal(h, id, nullptr, &message, buffer.data(), size, note_handler, &err);
        Strings lines = calls_of(
            {"mirklib_msg_recorder_get_state", "mirklib_malloc", "mirklib_msg_recorder_get_handle", "mirklib_free"},
            Detail::full);
        ASSERT_EQ(lines.size(), 5u);
        EXPECT_EQ(lines[0], "mirklib_msg_recorder_get_state");
        EXPECT_EQ(lines[1], "mirklib_malloc null 4096 ctx=7");
        EXPECT_EQ(lines[2], "mirklib_msg_recorder_get_handle");
        EXPECT_TRUE(lines[3].starts_with("mirklib_free null ") && lines[3].ends_with(" ctx=7")) << lines[3];
        EXPECT_EQ(lines[4], "mirklib_free null null ctx=0");
        EXPECT_EQ(recording::live_mallocs(), 0u);

        // If the rendering fails, the stream is not requested.
        h.knobs().errors["start_tag"] = EMSGSIZE;
        m.unmarshal(h, id, nullptr, &message, buffer.data(), size, note_handler, &err);
        EXPECT_EQ(err, std::uint32_t{EMSGSIZE});
        EXPECT_EQ(calls_of({"mirklib_malloc", "mirklib_msg_recorder_get_handle", "mirklib_free"}).size(), 3u);
        EXPECT_EQ(recording::live_mallocs(), 0u);
        err = 0;
        recording::set_recorder(0, nullptr);
    }
    std::fclose(file);
}

TEST_F(Sequence, PrintWritesItsLastLineEvenAfterAFailure) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        calls();
        err = 0;
        m.print(h, id, reinterpret_cast<char *>(buffer.data()), message, 5, &err);
        EXPECT_EQ(err, std::uint32_t{EMSGSIZE});
        EXPECT_EQ(calls(),
                  (Strings{"mirk_clear_last_error", "mirk_print_space buffer 0 5",
                           "mirk_snprintf buffer 5 message@" + std::string(m.name) + ": {\\n", "mirk_store_err 90",
                           "mirk_print_space buffer 0 5", "mirk_snprintf buffer 5 }\\n"}));
        // The indentation of the last line, which is empty, goes to the start of the buffer, its brace to the end.
        err = 0;
        const std::uint32_t written = m.print(h, id, reinterpret_cast<char *>(buffer.data()), message, room, &err);
        const Strings lines = calls();
        const std::uint32_t brace = written - 2;
        EXPECT_EQ(lines[lines.size() - 2], "mirk_print_space buffer 0 " + std::to_string(room - brace));
        EXPECT_EQ(lines.back(),
                  "mirk_snprintf buffer+" + std::to_string(brace) + " " + std::to_string(room - brace) + " }\\n");
        m.destroy(h, id, message);
    }
}

TEST_F(Sequence, XmlAlwaysClosesItsElement) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        h.knobs().errors["start_tag"] = EPERM;
        calls();
        err = 0;
        m.to_xml(h, id, reinterpret_cast<char *>(buffer.data()), message, 100, &err);
        const std::string name = m.name;
        EXPECT_EQ(calls(), (Strings{"mirk_clear_last_error", "start_tag buffer " + name + " 100 0",
                                    "end_tag buffer " + name + " 100"}));
        m.destroy(h, id, message);
    }
}

}  // namespace
