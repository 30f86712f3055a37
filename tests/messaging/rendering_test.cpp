// Text and XML forms of messages, reading from XML, and the recorder.
#include <cstdio>
#include <regex>

#include "kit/document.h"
#include "messaging.h"

namespace {

using namespace messaging;
using kit::Document;
using tarn::reflect::messages;

constexpr reference::GeneratorOptions printable{.min_elements = 1,
                                                .max_elements = 2,
                                                .min_text = 1,
                                                .max_text = 8,
                                                .budget = 2000,
                                                .states = false,
                                                .printable = true};

struct Rendering : Messaging {
    void SetUp() override {
        Messaging::SetUp();
        handler_calls.clear();
    }
};

TEST_F(Rendering, PrintEqualsTheReference) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        for (std::uint64_t seed = 1; seed <= 3; ++seed) {
            Handle h;
            const reference::Record value = sample(m, seed, printable);
            const std::string expected = reference::print_message(m.name, value, '.');
            void *message = make(h, m, value);
            // The gap before a closing brace keeps the content of the buffer.
            const std::string dots(expected.size() + 100, '.');
            const auto check = [&](std::uint32_t written, const std::string &buffer) {
                ASSERT_EQ(written, expected.size());
                EXPECT_EQ(buffer.substr(0, written), expected);
            };
            std::string plain = dots, unsafe = dots, sticky = dots;
            const auto size = static_cast<std::uint32_t>(dots.size());
            check(m.print(h, id, plain.data(), message, size, &err), plain);
            check(m.print_unsafe(h, id, unsafe.data(), message, size, &err), unsafe);
            check(m.print_cr(h, message, sticky.data(), size), sticky);
            EXPECT_TRUE(plain.starts_with("message@" + std::string(m.name) + ": {\n"));
            EXPECT_TRUE(plain.substr(0, expected.size()).ends_with("}\n"));
            m.destroy(h, id, message);
        }
    }
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(traced(), Lines{});
}

TEST_F(Rendering, XmlEqualsTheReference) {
    for (const bool tracked : {false, true}) {
        for (const MessageOperations &m : messages()) {
            SCOPED_TRACE(m.name);
            for (std::uint64_t seed = 1; seed <= 3; ++seed) {
                Handle h(tracked ? Tracking::on : Tracking::off);
                reference::GeneratorOptions options = printable;
                options.states = tracked;
                const reference::Record value = sample(m, seed, options);
                const std::string expected = reference::message_to_xml(m.name, value, tracked);
                void *message = make(h, m, value);
                const auto size = static_cast<std::uint32_t>(expected.size() + 1);
                Buffer plain(size), unsafe(size), sticky(size);
                EXPECT_EQ(m.to_xml(h, id, plain.text(), message, size, &err), expected.size());
                EXPECT_EQ(m.to_xml_unsafe(h, id, unsafe.text(), message, size, &err), expected.size());
                EXPECT_EQ(m.toxml_cr(h, message, sticky.text(), size), expected.size());
                for (Buffer *b : {&plain, &unsafe, &sticky}) EXPECT_STREQ(b->text(), expected.c_str());
                m.destroy(h, id, message);
            }
        }
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(Rendering, OnlyTracesIfTheErrorIsSet) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        void *message = m.create(h, id);
        Buffer buffer(1000);
        h->last_error = ENOSPC;
        err = EPERM;
        EXPECT_EQ(m.print(h, id, buffer.text(), message, 1000, &err), 0u);
        EXPECT_EQ(m.to_xml(h, id, buffer.text(), message, 1000, &err), 0u);
        EXPECT_EQ(m.from_xml(h, id, nullptr, &err, nullptr, 0), nullptr);
        const std::string name = m.name, why = ": " + error_text(EPERM);
        EXPECT_EQ(traced(), (Lines{"message 7 (debug): Already have error when printing " + name + why,
                                   "message 7 (debug): Already have error when rendering XML for " + name + why,
                                   "message 7 (debug): Already have error when rendering " + name + " to XML" + why}));
        EXPECT_EQ(m.print_cr(h, message, buffer.text(), 1000), 0xFFFFFFFFu);
        EXPECT_EQ(m.toxml_cr(h, message, buffer.text(), 1000), 0xFFFFFFFFu);
        EXPECT_EQ(h->last_error, std::uint32_t{ENOSPC});
        EXPECT_EQ(err, std::uint32_t{EPERM});
        EXPECT_TRUE(buffer.untouched());
        EXPECT_EQ(traced().size(), 2u);
        m.destroy(h, id, message);
    }
}

TEST_F(Rendering, APrintWithoutRoomForItsFirstLineFailsWithEmsgsize) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = make(h, m, sample(m));
        for (const std::uint32_t size : {0u, 1u, 12u, 0x80000000u}) {
            Buffer buffer(100);
            err = 0;
            EXPECT_LE(m.print(h, id, buffer.text(), message, size, &err), 12u);
            EXPECT_EQ(err, std::uint32_t{EMSGSIZE}) << m.name << ' ' << size;
            EXPECT_EQ(h->last_error, std::uint32_t{EMSGSIZE});
            EXPECT_TRUE(buffer.untouched(12));
        }
        m.destroy(h, id, message);
    }
}

TEST_F(Rendering, NoBufferSizeIsExceeded) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        const reference::Record value = sample(m);
        void *message = make(h, m, value);
        const std::size_t text = reference::print_message(m.name, value).size();
        const std::size_t xml = reference::message_to_xml(m.name, value, false).size();
        for (std::size_t size = 0; size <= text; ++size) {
            Buffer buffer(size);
            err = 0;
            m.print(h, id, buffer.text(), message, buffer.size(), &err);
            EXPECT_NE(err, 0u) << m.name << " printed into " << size;
            ASSERT_TRUE(buffer.untouched(size));
        }
        for (std::size_t size = 0; size <= xml; ++size) {
            Buffer buffer(size);
            err = 0;
            m.to_xml(h, id, buffer.text(), message, buffer.size(), &err);
            EXPECT_NE(err, 0u) << m.name << " rendered into " << size;
            ASSERT_TRUE(buffer.untouched(size));
        }
        m.destroy(h, id, message);
    }
}

TEST_F(Rendering, XmlIsReadBack) {
    for (const MessageOperations &m : messages()) {
        for (std::uint64_t seed = 1; seed <= 3; ++seed) {
            SCOPED_TRACE(std::string(m.name) + ", seed " + std::to_string(seed));
            Handle h;
            const reference::Record value = sample(m, seed, printable);
            const Document document(reference::message_to_xml(m.name, value, false));
            char room[100] = "untouched";
            for (const auto from_xml : {m.from_xml, m.from_xml_unsafe}) {
                err = 0;
                void *message = from_xml(h, id, document, &err, room, sizeof room);
                ASSERT_NE(message, nullptr);
                EXPECT_EQ(err, 0u);
                EXPECT_TRUE(bridge::same(reference::as_received(value, false),
                                         bridge::extract(h, payload_of(m), object(message)->payload)));
                m.destroy(h, id, message);
            }
        }
    }
}

TEST_F(Rendering, ADocumentWithoutThePayloadGivesANewOne) {
    const Document document("<nothing/>");
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        err = 0;
        void *message = m.from_xml(h, id, document, &err, nullptr, 0);
        ASSERT_NE(message, nullptr);
        EXPECT_EQ(err, 0u);
        EXPECT_TRUE(bridge::same(reference::Record(payload_name(m)),
                                 bridge::extract(h, payload_of(m), object(message)->payload)));
        m.destroy(h, id, message);
    }
}

TEST_F(Rendering, NoDocumentIsADocumentWithoutThePayload) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.from_xml(h, id, nullptr, &err, nullptr, 0);
        ASSERT_NE(message, nullptr);
        EXPECT_EQ(err, 0u);
        m.destroy(h, id, message);
    }
}

TEST_F(Rendering, AFailedReadLeaksItsMessage) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        const std::string xml = reference::message_to_xml(m.name, sample(m, 1, printable), false);
        const Document document(std::regex_replace(xml, std::regex(">[0-9]+<"), ">a word<"));
        ASSERT_NE(document, nullptr);
        const mirk_variant_entry before = counters(m);
        err = 0;
        EXPECT_EQ(m.from_xml(h, id, document, &err, nullptr, 0), nullptr);
        EXPECT_EQ(err, std::uint32_t{EINVAL});
        EXPECT_EQ(counters(m).num_created, before.num_created + 1);
        EXPECT_EQ(counters(m).num_destroyed, before.num_destroyed);
        EXPECT_GE(h.live_blocks(), 2u);
        h.allow_lost_blocks();
    }
}

TEST_F(Rendering, AReadSurvivesEachFailedAllocation) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        const Document document(reference::message_to_xml(m.name, sample(m, 1, printable), false));
        for (std::uint64_t nth = 1;; ++nth) {
            ASSERT_LT(nth, 1000u);
            Handle h;
            h.allow_lost_blocks();  // the message of a failed read
            h.fail_alloc(nth);
            err = 0;
            void *message = m.from_xml(h, id, document, &err, nullptr, 0);
            EXPECT_EQ(message == nullptr, err != 0) << "allocation " << nth;
            if (nth <= 2) {
                EXPECT_EQ(err, std::uint32_t{ENOMEM});
                EXPECT_EQ(h->last_error, std::uint32_t{ENOMEM});
                EXPECT_EQ(h.live_blocks(), 0u);
            }
            if (message != nullptr) m.destroy(h, id, message);
            if (mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC) < nth) {
                EXPECT_NE(message, nullptr);
                break;
            }
        }
    }
}

// ---- the recorder ----

struct Recorder : Rendering {
    std::FILE *file = std::tmpfile();
    ~Recorder() override { std::fclose(file); }
    std::string recorded() const {
        std::fflush(file);
        std::rewind(file);
        std::string text(100000, '\0');
        text.resize(std::fread(text.data(), 1, text.size(), file));
        return text;
    }
};

TEST_F(Recorder, WritesEachReceivedMessageAndNothingElse) {
    std::string expected;
    mirk_platform_recorder_set(1, file);
    Handle h;
    for (const MessageOperations &m : messages()) {
        const reference::Record value =
            sample(m, 1, {.max_elements = 0, .max_text = 5, .states = false, .printable = true});
        Buffer frame(frame_of(m, value, false));
        handler_calls.clear();
        m.unmarshal(h, id, nullptr, nullptr, frame.data(), frame.size(), on_message, &err);
        ASSERT_EQ(err, 0u);
        const std::string xml = reference::message_to_xml(m.name, value, false);
        ASSERT_LT(xml.size(), 4096u);
        expected += xml;
        m.destroy(h, id, handler_calls.at(0).message);
    }
    EXPECT_EQ(recorded(), expected);
    EXPECT_EQ(traced(), Lines{});
}

TEST_F(Recorder, RecordsNothingIfItIsOff) {
    mirk_platform_recorder_set(0, file);
    Handle h;
    const std::uint64_t before = mirk_platform_testing_allocations(nullptr, MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC);
    for (const MessageOperations &m : messages()) {
        Buffer frame(frame_of(m, sample(m), false));
        void *message = nullptr;
        m.unmarshal(h, id, nullptr, &message, frame.data(), frame.size(), on_message, &err);
        m.destroy(h, id, message);
    }
    EXPECT_EQ(recorded(), "");
    EXPECT_EQ(mirk_platform_testing_allocations(nullptr, MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC), before);
}

TEST_F(Recorder, AMessageOverTheLimitIsNotRecordedAndItsHandlerGetsTheError) {
    mirk_platform_recorder_set(1, file);
    int too_long = 0;
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        const reference::Record value = sample(m, 1, {.min_elements = 40, .max_elements = 40, .budget = 100000});
        if (reference::message_to_xml(m.name, value, false).size() < 4096) continue;
        ++too_long;
        Buffer frame(frame_of(m, value, false));
        handler_calls.clear();
        void *message = nullptr;
        err = 0;
        EXPECT_EQ(m.unmarshal(h, id, nullptr, &message, frame.data(), frame.size(), on_message, &err), frame.size());
        ASSERT_EQ(handler_calls.size(), 1u);
        EXPECT_NE(handler_calls[0].err, 0u);
        EXPECT_EQ(handler_calls[0].message, message);
        EXPECT_NE(err, 0u);
        m.destroy(h, id, message);
    }
    EXPECT_GE(too_long, 5);
    EXPECT_EQ(recorded(), "");
}

TEST_F(Recorder, AMissingStreamIsTracedAndTheHandlerRuns) {
    mirk_platform_recorder_set(1, nullptr);
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        Buffer frame(frame_of(m, reference::Record(payload_name(m)), false));
        handler_calls.clear();
        void *message = nullptr;
        err = 0;
        m.unmarshal(h, id, nullptr, &message, frame.data(), frame.size(), on_message, &err);
        EXPECT_EQ(traced(),
                  (Lines{"message 3 (ERR): MIRK record - NULL file handle for message " + std::string(m.name)}));
        ASSERT_EQ(handler_calls.size(), 1u);
        EXPECT_EQ(handler_calls[0].err, 0u);
        m.destroy(h, id, message);
    }
}

TEST_F(Recorder, AFailedAllocationAborts) {
    mirk_platform_recorder_set(1, file);
    for (const MessageOperations &m : messages()) {
        Handle h;
        Buffer frame(frame_of(m, sample(m), false));
        void *message = nullptr;
        EXPECT_DEATH(
            {
                mirk_platform_testing_fail_allocation(nullptr, MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC, 1, 0);
                m.unmarshal(h, id, nullptr, &message, frame.data(), frame.size(), on_message, &err);
            },
            "message: \\(FATAL\\): MIRK record - malloc failed");
    }
}

TEST_F(Recorder, RecordsReceivedMessagesOnce) {
    mirk_platform_recorder_set(1, file);
    for (const MessageOperations &m : messages()) {
        Handle h;
        register_all(h, on_message);
        const reference::Record value(payload_name(m));
        Buffer frame(frame_of(m, value, false));
        const std::size_t before = recorded().size();
        handler_calls.clear();
        EXPECT_EQ(mirk_platform_dispatch(h, id, frame.data(), frame.size(), nullptr, nullptr), 0u);
        ASSERT_EQ(handler_calls.size(), 1u);
        EXPECT_EQ(recorded().substr(before), reference::message_to_xml(m.name, value, false));
        m.destroy(h, id, handler_calls[0].message);
    }
}

TEST_F(Recorder, AMessageOverTheLimitDoesNotChangeWhatTheDispatcherDelivers) {
    for (const bool recorded : {false, true}) {
        mirk_platform_recorder_set(recorded, file);
        int too_long = 0;
        for (const MessageOperations &m : messages()) {
            SCOPED_TRACE(m.name);
            const reference::Record value = sample(m, 1, {.min_elements = 40, .max_elements = 40, .budget = 100000});
            if (reference::message_to_xml(m.name, value, false).size() < 4096) continue;
            ++too_long;
            Handle h;
            register_all(h, on_message);
            Bytes bytes = frame_of(m, value, false);
            const Bytes next = frame_of(m, reference::Record(payload_name(m)), false);
            bytes.insert(bytes.end(), next.begin(), next.end());
            Buffer frames(bytes);
            handler_calls.clear();
            EXPECT_EQ(mirk_platform_dispatch(h, id, frames.data(), frames.size(), nullptr, nullptr), 0u);
            ASSERT_EQ(handler_calls.size(), 2u);
            for (const HandlerCall &call : handler_calls) {
                EXPECT_EQ(call.err, 0u);
                m.destroy(h, id, call.message);
            }
        }
        EXPECT_GE(too_long, 5);
    }
    EXPECT_NE(recorded(), "") << "the short ones are recorded";
}

TEST_F(Recorder, ATruncatedFrameIsNotRecorded) {
    mirk_platform_recorder_set(1, file);
    const MessageOperations &m = messages()[0];
    Handle h;
    h.allow_lost_blocks();
    Buffer frame(frame_of(m, sample(m), false));
    m.unmarshal(h, id, nullptr, nullptr, frame.data(), frame.size() - 1, on_message, &err);
    EXPECT_NE(err, 0u);
    EXPECT_EQ(recorded(), "");
}

}  // namespace
