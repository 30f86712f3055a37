// tarn simulate: many devices in one process.
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "bus.h"
#include "fleet/bus/changing_tables.h"
#include "fleet/support/sha256.h"
#include "tools/tarn/formats/frames.h"

namespace fleet_test {

namespace {

using nlohmann::json;
using tool_test::Directory;
using tool_test::Outcome;
using tool_test::run;

const std::string tool = TARN_TOOL;

class SimulatedDevices {
public:
    SimulatedDevices(const BusServer &bus, unsigned devices, const std::vector<std::string> &more = {})
        : SimulatedDevices(bus.url(), devices, more) {}
    SimulatedDevices(const std::string &url, unsigned devices, const std::vector<std::string> &more = {})
        : process_(arguments(url, devices, more), tool),
          ready_(process_.wait_for(std::to_string(devices) + " devices on ")) {}

    tool_test::Process &process() { return process_; }
    bool is_ready() const { return ready_; }

private:
    static std::vector<std::string> arguments(const std::string &url, unsigned devices,
                                              const std::vector<std::string> &more) {
        std::vector<std::string> all{"simulate", "--bus", url, "--devices", std::to_string(devices)};
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }

    tool_test::Process process_;
    bool ready_;
};

std::map<std::string, json> replies_of(const std::string &text) {
    std::map<std::string, json> replies;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        json reply = json::parse(line);
        const std::string name = reply["site"].get<std::string>() + "/" + reply["device"].get<std::string>();
        replies[name] = std::move(reply);
    }
    return replies;
}

TEST(Simulate, HundredDevicesAnswerAtOnce) {
    const BusServer bus;
    SimulatedDevices devices(bus, 100, {"--sites", "3"});
    ASSERT_TRUE(devices.is_ready());
    const Outcome all = run(tool, {"show", "dp-tt-cfg", "--bus", bus.url(), "--all", "--json"});
    EXPECT_EQ(all.exit, 0) << all.err;
    EXPECT_EQ(replies_of(all.out).size(), 100U);
    const Outcome site = run(tool, {"show", "cl-debug", "--bus", bus.url(), "--site", "site-3", "--json"});
    EXPECT_EQ(site.exit, 0) << site.err;
    EXPECT_EQ(replies_of(site.out).size(), 33U);
    const Outcome stopped = devices.process().stop();
    EXPECT_EQ(stopped.exit, 0);
    EXPECT_NE(stopped.out.find("stopped after 133 answers"), std::string::npos) << stopped.out;
}

TEST(Simulate, ProcessesShareABusAndTheNumbersOfDevices) {
    const BusServer bus;
    const SimulatedDevices first(bus, 3), others(bus, 2, {"--first", "4"});
    ASSERT_TRUE(first.is_ready() && others.is_ready());
    const Outcome all = run(tool, {"show", "cl-debug", "--bus", bus.url(), "--all", "--json"});
    std::set<std::string> names;
    for (const auto &[name, reply] : replies_of(all.out)) names.insert(name);
    EXPECT_EQ(names, (std::set<std::string>{"site-1/device-1", "site-1/device-2", "site-1/device-3", "site-1/device-4",
                                            "site-1/device-5"}));
}

// Hundreds of connections are lost and opened again at once, each by a thread of its own.
TEST(Simulate, DevicesGoToAnotherServerWhenTheirsIsKilled) {
    BusServer a, b;
    const SimulatedDevices devices(a.url() + "," + b.url(), 500);
    ASSERT_TRUE(devices.is_ready());
    for (int round = 0; round < 20; ++round) {
        BusServer &killed = round % 2 == 0 ? a : b;
        const BusServer &other = round % 2 == 0 ? b : a;
        killed.process().signal(SIGKILL);
        std::size_t answers = 0;
        for (int i = 0; i < 40 && answers != 500; ++i) {
            ::usleep(250'000);
            answers = replies_of(run(tool, {"show", "cl-debug", "--bus", other.url(), "--all", "--json"}).out).size();
        }
        ASSERT_EQ(answers, 500U) << round;
        killed.restart();
    }
}

TEST(Simulate, FaultsAreNamedByTheAskingSide) {
    const BusServer bus;
    const SimulatedDevices devices(bus, 100,
                                   {"--fault", "silent=20", "--fault", "slow=20", "--fault", "torn=20", "--fault",
                                    "schema=20", "--slow", "1500ms"});
    ASSERT_TRUE(devices.is_ready());
    const Outcome outcome = run(tool, {"show", "cl-debug", "--bus", bus.url(), "--all", "--json", "--timeout", "5"});
    EXPECT_EQ(outcome.exit, 1);
    std::map<std::string, unsigned> reasons;
    for (const auto &[name, reply] : replies_of(outcome.out)) {
        std::string reason = reply["reply"];
        if (reply.contains("reason")) reason += ": " + reply["reason"].get<std::string>().substr(0, 13);
        ++reasons[reason];
    }
    EXPECT_EQ(reasons.size(), 4U) << outcome.out;
    // About forty devices have no fault or are only slow.
    EXPECT_GT(reasons["answered"], 25U);
    EXPECT_GT(reasons["silent: no answer"], 5U);
    EXPECT_GT(reasons["silent: only 1 of 2 p"], 5U);
    EXPECT_GT(reasons["broken: its schema is"], 5U);
    const Outcome brief = run(tool, {"show", "cl-debug", "--bus", bus.url(), "--all", "--json", "--timeout", "1"});
    EXPECT_LT(replies_of(brief.out).size(), 101U);
    unsigned silent = 0;
    for (const auto &[name, reply] : replies_of(brief.out)) silent += reply["reply"] == "silent" ? 1 : 0;
    EXPECT_GT(silent, reasons["silent: no answer"] + reasons["silent: only 1 of 2 p"]);
}

TEST(Simulate, LogsTheDigestOfEachAnswerThatItSends) {
    const BusServer bus;
    const Directory directory;
    const SimulatedDevices devices(bus, 5, {"--log", directory.path("log"), "--change", "0"});
    ASSERT_TRUE(devices.is_ready());
    std::set<std::string> expected;
    for (int i = 1; i <= 5; ++i) {
        const std::string name = "site-1/device-" + std::to_string(i);
        ASSERT_EQ(
            run(tool, {"show", "dp-appl-cfg", "--bus", bus.url(), "--device", name, "--save", directory.path("frames")})
                .exit,
            0);
        const std::string frames = directory.read("frames");
        expected.insert(name + " lumo_tarn_dp_appl_cfg_rsp " + tarn::fleet::sha256(frames) + " " +
                        std::to_string(frames.size()));
    }
    EXPECT_EQ(expected.size(), 5U);
    std::set<std::string> logged;
    std::istringstream in(directory.read("log"));
    for (std::string time, rest; in >> time && std::getline(in >> std::ws, rest);) logged.insert(rest);
    EXPECT_EQ(logged, expected);
}

TEST(Simulate, WrongFaultsAreErrors) {
    for (const std::string fault : {"silent", "silent=", "silent=x", "silent=101", "silent=-1", "loud=5", "=5"}) {
        const Outcome outcome = run(tool, {"simulate", "--bus", "nats://127.0.0.1:1", "--fault", fault});
        EXPECT_EQ(outcome.exit, 2) << fault;
        EXPECT_NE(outcome.err.find("is not of the form FAULT=PERCENT"), std::string::npos) << outcome.err;
    }
}

// The answers of one device, as frames and without them.
class ChangingTablesOfEachBundle : public testing::TestWithParam<std::size_t> {
protected:
    const tarn::reflect::BundleOperations &bundle() const { return tarn::reflect::bundles()[GetParam()]; }
};

TEST_P(ChangingTablesOfEachBundle, AreValidAndFollowFromTheSeed) {
    tarn::fleet::ChangingTables tables(7, 2), same(7, 2), other(8, 2);
    const tarn::tool::Handles handles(tarn::tool::Tracking::as_input);
    for (const bool tracked : {false, true}) {
        std::set<tarn::tool::Bytes> seen, elsewhere;
        for (std::uint64_t device = 0; device < 20; ++device) {
            for (const std::uint64_t changes : {0, 1, 2, 100, 1000}) {
                const tarn::tool::Bytes bytes = tables.answer(bundle(), tracked, device, changes);
                EXPECT_EQ(bytes, same.answer(bundle(), tracked, device, changes));
                seen.insert(bytes);
                elsewhere.insert(other.answer(bundle(), tracked, device, changes));
                const auto frames = tarn::tool::split_frames(bytes, "simulated");
                ASSERT_EQ(frames.size(), 3U);
                EXPECT_EQ(frames[1].is_tracked(), tracked);
                EXPECT_TRUE(tarn::tool::item_of(handles, frames[1], "simulated").message);
            }
        }
        EXPECT_GT(seen.size(), 10U);
        EXPECT_NE(seen, elsewhere);
    }
}

INSTANTIATE_TEST_SUITE_P(Bundles, ChangingTablesOfEachBundle,
                         testing::Range(std::size_t{0}, tarn::reflect::bundles().size()));

TEST(ChangingTables, MostValuesStayFromOneChangeToTheNext) {
    tarn::fleet::ChangingTables tables(1, 5);
    const auto &bundle = *tarn::reflect::find_bundle("lumo_tarn_dp_tt_cfg_rsp");
    std::size_t changed = 0, longer = 0;
    for (std::uint64_t i = 0; i < 200; ++i) {
        const tarn::tool::Bytes a = tables.answer(bundle, false, 3, i), b = tables.answer(bundle, false, 3, i + 1);
        if (a.size() != b.size()) {
            ++longer;
            continue;
        }
        std::size_t different = 0;
        for (std::size_t k = 0; k < a.size(); ++k) different += a[k] != b[k] ? 1 : 0;
        changed += different != 0 ? 1 : 0;
        EXPECT_LT(different, a.size() / 10);
    }
    EXPECT_GT(changed, 100U);
    EXPECT_GT(longer, 0U);
    EXPECT_LT(longer, 10U);
}

}  // namespace

}  // namespace fleet_test
