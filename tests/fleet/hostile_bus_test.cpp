// What devices and asking processes may send: anything.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include "bus.h"
#include "fleet/bus/asker.h"
#include "fleet/bus/names.h"
#include "mirk_platform.h"
#include "output.h"
#include "schema/digest.h"

namespace fleet_test {

namespace {

using tool_test::Outcome;
using tool_test::run;

const std::string tool = TARN_TOOL;

const std::string digest = tarn::schema::schema_digest();

struct Part {
    std::string payload, part = "1/1", status = "answered", schema = digest;
    std::string device = "default/evil", subject = {};  // empty: the subject of the request's answer
};

// A device that sends what a test wants.
class EvilDevice {
public:
    using Behavior = std::function<std::vector<Part>(const std::string &reply)>;

    EvilDevice(const BusServer &bus, Behavior behavior) : client_(bus.url()), behavior_(std::move(behavior)) {
        natsConnection_Subscribe(&subscription_, client_.get(), "tarn.ask.default.evil", on_request, this);
        natsConnection_Flush(client_.get());
    }
    EvilDevice(const EvilDevice &) = delete;
    EvilDevice &operator=(const EvilDevice &) = delete;
    ~EvilDevice() {
        natsSubscription_Drain(subscription_);
        natsSubscription_WaitForDrainCompletion(subscription_, 60000);
        natsSubscription_Destroy(subscription_);
    }

private:
    static void on_request(natsConnection *connection, natsSubscription *, natsMsg *request, void *self) {
        const std::string reply = natsMsg_GetReply(request);
        for (const Part &part : static_cast<EvilDevice *>(self)->behavior_(reply)) {
            natsMsg *message = nullptr;
            const std::string &subject = part.subject.empty() ? reply : part.subject;
            natsMsg_Create(&message, subject.c_str(), nullptr, part.payload.data(),
                           static_cast<int>(part.payload.size()));
            natsMsgHeader_Set(message, "Tarn-Schema", part.schema.c_str());
            natsMsgHeader_Set(message, "Tarn-Device", part.device.c_str());
            natsMsgHeader_Set(message, "Tarn-Part", part.part.c_str());
            natsMsgHeader_Set(message, "Tarn-Status", part.status.c_str());
            natsConnection_PublishMsg(connection, message);
            natsMsg_Destroy(message);
        }
        natsMsg_Destroy(request);
    }

    RawClient client_;
    Behavior behavior_;
    natsSubscription *subscription_ = nullptr;
};

class HostileBus : public testing::Test {
protected:
    // What is printed about the evil device. A good one answers at the same time.
    std::string ask(const EvilDevice::Behavior &behavior, const std::vector<std::string> &more = {}) {
        const EvilDevice evil(bus_, behavior);
        std::vector<std::string> words{"show", "cl-debug", "--bus",        bus_.url(), "--timeout",
                                       "1",    "--device", "default/evil", "--device", "default/good"};
        words.insert(words.end(), more.begin(), more.end());
        const Outcome outcome = run(tool, words);
        EXPECT_EQ(outcome.exit, 1) << outcome.err;
        EXPECT_TRUE(contains(outcome.out, "== default/good\n")) << outcome.err;
        EXPECT_FALSE(contains(outcome.out, "== default/evil\n"));
        return outcome.err;
    }

    // The frames of a correct answer.
    std::string frames() {
        const tool_test::Directory directory;
        EXPECT_EQ(run(tool, {"show", "cl-debug", "--bus", bus_.url(), "--device", "default/good", "--save",
                             directory.path("frames")})
                      .exit,
                  0);
        return directory.read("frames");
    }

    BusServer bus_;
    DeviceProcess good_{bus_, "good"};
};

TEST_F(HostileBus, LiesAboutPartsEndTheAnswer) {
    const std::string whole = frames();
    const std::string half = whole.substr(0, whole.size() / 2), rest = whole.substr(whole.size() / 2);
    const auto parts = [&](const std::vector<Part> &sent) { return ask([&](const std::string &) { return sent; }); };
    EXPECT_TRUE(contains(parts({Part{half, "2/2"}}), "default/evil: broken: part \"2/2\""));
    EXPECT_TRUE(contains(parts({{half, "1/2"}, {rest, "1/2"}}), "default/evil: broken: part \"1/2\""));
    EXPECT_TRUE(contains(parts({{half, "1/2"}, {rest, "2/3"}}), "default/evil: broken: part \"2/3\""));
    EXPECT_TRUE(contains(parts({Part{half, "1/2"}}), "default/evil: silent: only 1 of 2 parts"));
    for (const std::string text : {"1", "1/", "/1", "0/1", "1/0", "2/1", "-1/1", "1/1x", "99999999999999999999/1"}) {
        const std::string error = parts({Part{whole, text}});
        EXPECT_TRUE(contains(error, "default/evil: broken: part \"" + text + "\"")) << text << ": " << error;
    }
    EXPECT_TRUE(contains(parts({Part{"", "1/1000000"}}), "default/evil: broken: part \"1/1000000\" of 0 bytes"));
}

TEST_F(HostileBus, GarbageIsNamed) {
    const std::string whole = frames();
    const auto one = [&](const Part &part) {
        return ask([&](const std::string &) { return std::vector<Part>{part}; });
    };
    EXPECT_TRUE(contains(one({"garbage"}), "default/evil: broken: "));
    EXPECT_TRUE(contains(one({whole.substr(0, whole.size() - 1)}), "default/evil: broken: "));
    EXPECT_TRUE(contains(one({whole + "x"}), "default/evil: broken: "));
    EXPECT_TRUE(contains(one({whole + whole}), "follows the end of the bundle"));
    EXPECT_TRUE(contains(one({.payload = whole, .status = "\x1b[2J"}), "unknown status \"\\x1b[2J\""));
    EXPECT_TRUE(contains(one({.payload = whole, .status = "refused"}), "marked as refused"));
}

TEST_F(HostileBus, AnotherSchemaIsNamed) {
    const Part other{.payload = frames(), .schema = "0123456789abcdef0123456789abcdef"};
    const std::string error = ask([&](const std::string &) { return std::vector<Part>{other}; });
    EXPECT_TRUE(contains(error, "default/evil: broken: its schema is " + other.schema + ", the schema here " + digest))
        << error;
}

TEST_F(HostileBus, ADeviceThatAnswersForAnotherIsNamedAndIgnored) {
    const std::string whole = frames();
    const std::string error =
        ask([&](const std::string &) { return std::vector<Part>{Part{.payload = whole, .device = "default/good"}}; });
    EXPECT_TRUE(contains(error, "default/evil: sends messages of another device, \"default/good\"; they are ignored"));
    EXPECT_TRUE(contains(error, "default/evil: silent: no answer"));
    // It does not know the number of the other's request.
    ask([&](const std::string &reply) {
        std::string other = reply;
        other.replace(other.find(".evil."), 6, ".good.");
        return std::vector<Part>{Part{.payload = "garbage", .device = "default/good", .subject = other}};
    });
}

TEST_F(HostileBus, ADeviceThatFloodsIsNamedAndIgnored) {
    const DeviceProcess silent(bus_, "silent", {"--fault", "silent"});
    const std::string whole = frames();
    const std::string error = ask(
        [&](const std::string &) {
            std::vector<Part> parts{Part{whole, "5/4"}};
            for (int i = 0; i < 20000; ++i) parts.push_back(Part{whole});
            return parts;
        },
        {"--device", "default/silent"});
    EXPECT_TRUE(contains(error, "default/evil: broken: part \"5/4\"")) << error;
    EXPECT_TRUE(contains(error, "default/evil: sends messages that were not asked for")) << error;
}

TEST_F(HostileBus, IncompleteAnswersAreLimitedTogether) {
    const std::string error = ask(
        [&](const std::string &) {
            std::vector<Part> parts;
            for (int i = 1; i <= 9; ++i) parts.push_back({std::string(1024, 'x'), std::to_string(i) + "/1000000"});
            return parts;
        },
        {"--answer-limit", "8KiB"});
    EXPECT_TRUE(contains(error, "default/evil: broken: the answer is longer than --answer-limit")) << error;
}

TEST_F(HostileBus, MalformedRepliesToTheDiscoveryAreReportedAndIgnored) {
    const RawClient client(bus_.url());
    static const std::string replies[] = {
        "x",
        "[]",
        "{}",
        R"({"name":"tarn"})",
        R"({"name":5})",
        R"({"name":"other"})",
        R"({"name":"tarn","id":"1","version":"1","metadata":{"device":"a b","site":"s","schema":"","started":"","bundles":""}})",
        R"({"name":"tarn","id":"1","version":"1","metadata":{"device":"\u001b[2J","site":"s","schema":"","started":"","bundles":""}})",
        std::string(10000, '['),
    };
    natsSubscription *subscription = nullptr;
    natsConnection_Subscribe(
        &subscription, client.get(), "$SRV.PING",
        [](natsConnection *connection, natsSubscription *, natsMsg *request, void *) {
            for (const std::string &reply : replies) {
                natsConnection_PublishString(connection, natsMsg_GetReply(request), reply.c_str());
            }
            natsMsg_Destroy(request);
        },
        nullptr);
    natsConnection_Flush(client.get());
    const Outcome outcome = run(tool, {"show", "cl-debug", "--bus", bus_.url(), "--all"});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_TRUE(contains(outcome.err, "a reply to the discovery is not a JSON object"));
    EXPECT_TRUE(contains(outcome.err, "a reply to the discovery names no device"));
    EXPECT_TRUE(contains(outcome.err, "a reply to the discovery is too long"));
    EXPECT_FALSE(contains(outcome.err, "\x1b"));
    natsSubscription_Destroy(subscription);
}

TEST_F(HostileBus, InventedDevicesAreLimited) {
    using namespace tarn::fleet;
    const DeviceProcess second(bus_, "second"), third(bus_, "third");
    std::size_t found = 0;
    std::vector<std::string> problems;
    AskerOptions options;
    options.bus.url = bus_.url();
    options.most_devices = 2;
    Asker asker(options,
                {.on_device = [&](const Device &) { ++found; },
                 .on_answer = [](Answer &&) {},
                 .on_problem = [&](const std::string &, const std::string &text) { problems.push_back(text); }});
    const auto end = Asker::Clock::now() + std::chrono::seconds(60);
    for (int i = 0; i < 2; ++i) {
        const std::size_t expected = found + 2;
        asker.discover();
        while ((found < expected || problems.empty()) && Asker::Clock::now() < end) asker.wait(end);
    }
    EXPECT_EQ(found, 4U);
    EXPECT_EQ(problems, std::vector<std::string>{"more than 2 devices reply to the discovery; the others are ignored"});
}

TEST_F(HostileBus, SeveralProcessesForOneDeviceAreNamed) {
    const DeviceProcess second(bus_, "good");
    const Outcome outcome = run(tool, {"show", "cl-debug", "--bus", bus_.url(), "--all"});
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_TRUE(contains(outcome.err, "default/good: several processes answer for this device")) << outcome.err;
}

// The library calls back about connections on a thread of its own, also when they are closed.
TEST_F(HostileBus, AnAskerThatEndedIsNotCalledBack) {
    using tarn::fleet::Asker;
    tarn::fleet::AskerOptions options;
    options.bus.url = bus_.url();
    std::vector<unsigned char> memory(sizeof(Asker));
    for (int i = 0; i < 50; ++i) {
        auto *const asker = new (memory.data()) Asker(options, {.on_answer = {}, .on_problem = {}});
        asker->~Asker();
        std::fill(memory.begin(), memory.end(), 0);
        ::usleep(2000);
        ASSERT_EQ(std::count(memory.begin(), memory.end(), 0), static_cast<std::ptrdiff_t>(memory.size())) << i;
    }
}

// A request of the test, and what the device publishes to its reply; empty if nothing within a second.
class RawRequest {
public:
    RawRequest(const RawClient &client, const std::string &payload, const std::string &schema,
               const std::string &reply) {
        natsSubscription *subscription = nullptr;
        natsConnection_SubscribeSync(&subscription, client.get(), reply.c_str());
        natsMsg *request = nullptr, *answer = nullptr;
        natsMsg_Create(&request, "tarn.ask.default.good", reply.c_str(), payload.data(),
                       static_cast<int>(payload.size()));
        if (!schema.empty()) natsMsgHeader_Set(request, "Tarn-Schema", schema.c_str());
        natsConnection_PublishMsg(client.get(), request);
        natsMsg_Destroy(request);
        if (natsSubscription_NextMsg(&answer, subscription, 1000) == NATS_OK) {
            mirk_platform_request decoded;
            const char *status = nullptr;
            natsMsgHeader_Get(answer, "Tarn-Status", &status);
            if (status != nullptr) status_ = status;
            if (mirk_platform_request_decode(natsMsg_GetData(answer),
                                             static_cast<std::size_t>(natsMsg_GetDataLength(answer)), &decoded) == 0) {
                sentence_ = decoded.sentence;
            }
            natsMsg_Destroy(answer);
        }
        natsSubscription_Destroy(subscription);
    }

    const std::string &status() const { return status_; }
    const std::string &sentence() const { return sentence_; }

private:
    std::string status_, sentence_;
};

std::string request_frame(const std::string &bundle) {
    std::string frame(MIRK_PLATFORM_REQUEST_SIZE_MAX, '\0');
    frame.resize(
        mirk_platform_request_encode(frame.data(), MIRK_PLATFORM_REQUEST_SIZE_MAX, 0, bundle.c_str(), 0, nullptr));
    return frame;
}

TEST_F(HostileBus, BadRequestsAreRefusedByName) {
    const RawClient client(bus_.url());
    const std::string good = request_frame("lumo_tarn_cl_debug_rsp");
    const std::string reply = "tarn.answer.default.good.RUN.1";
    EXPECT_EQ(RawRequest(client, good, digest, reply).status(), "answered");
    EXPECT_EQ(RawRequest(client, "garbage", digest, reply).sentence(), "not a request");
    EXPECT_EQ(RawRequest(client, "", digest, reply).sentence(), "not a request");
    EXPECT_EQ(RawRequest(client, std::string(100000, 'x'), digest, reply).sentence(),
              "the request is longer than --frame-limit");
    EXPECT_EQ(RawRequest(client, request_frame("x"), digest, reply).sentence(), "unknown bundle \"x\"");
    EXPECT_EQ(RawRequest(client, good, "", reply).sentence(),
              "the schema here is " + digest + ", that of the request ");
    EXPECT_EQ(RawRequest(client, good, "abc", reply).sentence(),
              "the schema here is " + digest + ", that of the request abc");
}

TEST_F(HostileBus, ADevicePublishesOnlyOnItsOwnSubjects) {
    const RawClient client(bus_.url());
    const std::string good = request_frame("lumo_tarn_cl_debug_rsp");
    EXPECT_EQ(RawRequest(client, good, digest, "tarn.answer.default.other.RUN.1").status(), "");
    EXPECT_EQ(RawRequest(client, good, digest, "tarn.ask.default.other").status(), "");
    EXPECT_TRUE(good_.process().wait_for_error("a request wants its answer at \"tarn.ask.default.other\""));
}

TEST(BusNames, SurviveTheirSubjects) {
    const tarn::fleet::AnswerSubjects subjects("RUN");
    const tarn::fleet::DeviceName name{"site.example", "a.b:c_d-e"};
    const std::string subject = subjects.of(name, 0xabcdef);
    EXPECT_EQ(subject, "tarn.answer.site%example.a%b:c_d-e.RUN.abcdef");
    const auto parts = subjects.parse(subject);
    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->device, name);
    EXPECT_EQ(parts->request, 0xabcdefU);
    for (const std::string text :
         {"", "tarn.answer.s.d.RUN", "tarn.answer.s.d.RUN.", "tarn.answer.s.d.RUN.1.2", "tarn.answer.s.d.OTHER.1",
          "tarn.answer..d.RUN.1", "tarn.answer.s.d.RUN.x", "tarn.ask.s.d.RUN.1", "tarn.answer.s.d e.RUN.1"}) {
        EXPECT_FALSE(subjects.parse(text)) << text;
    }
}

}  // namespace

}  // namespace fleet_test
