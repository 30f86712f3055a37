// tarn collect, with real servers.
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "bus.h"
#include "fleet/store/store.h"
#include "postgresql.h"

namespace fleet_test {

namespace {

using tarn::fleet::Gap;
using tarn::fleet::Latest;
using tarn::fleet::Store;
using tarn::fleet::StoredAnswer;
using tool_test::Directory;
using tool_test::Process;

const std::string example = std::string(TARN_EXAMPLES) + "/cl_debug.xml";

std::vector<std::string> arguments_of(const BusServer &bus, const std::string &store,
                                      const std::vector<std::string> &more = {}) {
    std::vector<std::string> all{"collect", "--bus",   bus.url(), "--bundle",  "cl-debug", "--store",
                                 store,     "--every", "200ms",   "--timeout", "2s"};
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

std::vector<Latest> latest_in(const std::string &store) {
    try {
        return Store(store).latest({});
    } catch (const tarn::tool::Failure &) {
        return {};  // not created yet, or its server is away
    }
}

// The number of devices that have answered since that time and do not have a gap.
std::size_t fresh(const std::string &store, tarn::fleet::Time since) {
    std::size_t count = 0;
    for (const Latest &l : latest_in(store)) count += l.answer && !l.gap && l.answer->last_asked >= since ? 1 : 0;
    return count;
}

constexpr std::chrono::seconds soon(10), long_enough(60);

TEST(Collect, KeepsTheFramesThatADeviceSends) {
    const BusServer bus;
    const DeviceProcess device(bus, "r1", {"--site", "fra"});
    const Directory directory;
    const std::string store = directory.path("history.db");
    Process collector(arguments_of(bus, store));
    const auto times = [&] {
        const auto latest = latest_in(store);
        return latest.size() == 1 && latest[0].answer ? latest[0].answer->times : 0;
    };
    // The stamps of the answers differ.
    ASSERT_TRUE(happens([&] { return times() >= 3; }, long_enough)) << collector.err();
    const auto shown =
        tool_test::tarn({"show", "cl-debug", "--bus", bus.url(), "--all", "--save", directory.path("shown.bin")});
    EXPECT_EQ(shown.exit, 0) << shown.err;
    EXPECT_EQ(tool_test::tarn({"diff", "--store", store, "--since", "-1m"}).exit, 2);
    const auto stopped = collector.stop();
    EXPECT_EQ(stopped.exit, 0) << stopped.err;
    EXPECT_NE(stopped.out.find(" answers kept, 0 requests without an answer, 1 devices"), std::string::npos)
        << stopped.out;
    EXPECT_EQ(latest_in(store)[0].device, "fra/r1");
    EXPECT_EQ(tool_test::tarn({"decode", "--json", "--store", store}).out,
              tool_test::tarn({"decode", "--json", directory.path("shown.bin")}).out);
}

TEST(Collect, ADeviceThatGoesAwayHasAGapUntilItIsBack) {
    const BusServer bus;
    const Directory directory;
    const std::string store = directory.path("history.db");
    auto device = std::make_unique<DeviceProcess>(bus, "r1");
    Process collector(arguments_of(bus, store));
    const auto is_gap = [&] {
        const auto latest = latest_in(store);
        return latest.size() == 1 && latest[0].answer && latest[0].gap.has_value();
    };
    ASSERT_TRUE(happens([&] { return fresh(store, 0) == 1; }, long_enough)) << collector.err();
    device->process().signal(SIGKILL);
    ASSERT_TRUE(happens(is_gap, soon)) << collector.err();
    device = std::make_unique<DeviceProcess>(bus, "r1");
    ASSERT_TRUE(happens([&] { return !is_gap(); }, soon)) << collector.err();
    std::vector<Gap> gaps;
    Store(store).for_each_gap({}, [&](const Gap &g) { gaps.push_back(g); });
    ASSERT_EQ(gaps.size(), 1U);
    EXPECT_EQ(gaps[0].reason, "silent: no such device is on the bus");
}

// It is started again with other bundles before it is asked again.
TEST(Collect, ABundleThatADeviceNoLongerOffersIsAGap) {
    const BusServer bus;
    const Directory directory;
    const std::string store = directory.path("history.db");
    auto device = std::make_unique<DeviceProcess>(bus, "r1");
    // Devices are searched for every 10 seconds.
    Process collector({"collect", "--bus", bus.url(), "--bundle", "cl-debug", "--store", store, "--every", "12s"});
    ASSERT_TRUE(happens([&] { return fresh(store, 0) == 1; }, long_enough)) << collector.err();
    device->process().signal(SIGKILL);
    device = std::make_unique<DeviceProcess>(
        bus, "r1", std::vector<std::string>{"dp-intf=" + std::string(TARN_EXAMPLES) + "/dp_intf.xml"});
    EXPECT_TRUE(happens(
        [&] {
            const auto latest = latest_in(store);
            return latest[0].gap && latest[0].gap->reason ==
                                        "refused: lumo_tarn_cl_debug_rsp is not served here: No "
                                        "such file or directory (ENOENT)";
        },
        std::chrono::seconds(25)))
        << collector.err();
}

TEST(Collect, ABusThatGoesAwayIsAGapUntilItIsBack) {
    BusServer bus;
    const Directory directory;
    const std::string store = directory.path("history.db");
    const DeviceProcess device(bus, "r1");
    Process collector(arguments_of(bus, store));
    ASSERT_TRUE(happens([&] { return fresh(store, 0) == 1; }, long_enough)) << collector.err();
    bus.process().signal(SIGKILL);
    ASSERT_TRUE(happens(
        [&] {
            const auto latest = latest_in(store);
            return latest.size() == 1 && latest[0].gap &&
                   latest[0].gap->reason == "silent: the request could not be sent";
        },
        long_enough))
        << collector.err();
    bus.restart();
    const auto started = tarn::fleet::time_now();
    EXPECT_TRUE(happens([&] { return fresh(store, started) == 1; }, soon)) << collector.err();
    // The requests that could not be sent are not sent now.
    EXPECT_EQ(collector.err().find("not asked for"), std::string::npos) << collector.err();
    EXPECT_EQ(collector.stop().exit, 0);
}

TEST(Collect, CollectorsTakeOverTheDevicesOfOneThatIsKilled) {
    const BusServer bus;
    const PostgresqlServer server;
    const std::string store = server.create_schema("fleet");
    std::vector<std::unique_ptr<DeviceProcess>> devices;
    for (const char *const name : {"r1", "r2", "r3", "r4"})
        devices.push_back(std::make_unique<DeviceProcess>(bus, name));
    Process a(arguments_of(bus, store));
    auto b = std::make_unique<Process>(arguments_of(bus, store));
    const auto owners = [&] { return server.query(store, "SELECT count(DISTINCT owner), count(owner) FROM devices"); };
    ASSERT_TRUE(happens([&] { return fresh(store, 0) == 4; }, long_enough)) << a.err() << b->err();
    ASSERT_TRUE(happens([&] { return owners() == "2|4\n"; }, long_enough)) << owners() << a.err() << b->err();
    b->signal(SIGKILL);
    const auto killed = tarn::fleet::time_now();
    EXPECT_TRUE(happens([&] { return fresh(store, killed + 100) == 4; }, soon)) << a.err();
    EXPECT_EQ(owners(), "1|4\n");
}

TEST(Collect, WaitsForAServerThatIsKilledAndLosesNothing) {
    const BusServer bus;
    PostgresqlServer server;
    const std::string store = server.create_schema("fleet");
    const DeviceProcess device(bus, "r1");
    Process collector(arguments_of(bus, store));
    ASSERT_TRUE(happens([&] { return fresh(store, 0) == 1; }, long_enough)) << collector.err();
    server.kill();
    EXPECT_TRUE(collector.wait_for_error("trying again")) << collector.err();
    const auto before = tarn::fleet::time_now();
    server.start();
    const auto started = tarn::fleet::time_now();
    EXPECT_TRUE(happens([&] { return fresh(store, started) == 1; }, soon)) << collector.err();
    EXPECT_NE(collector.err().find("available again"), std::string::npos);
    // What was received meanwhile is there, without a gap.
    std::size_t gaps = 0;
    Store(store).for_each_gap({}, [&](const Gap &) { ++gaps; });
    EXPECT_EQ(gaps, 0U);
    EXPECT_LT(Store(store).latest({})[0].answer->first_seen, before);
    // The libraries print nothing.
    std::istringstream lines(collector.err());
    for (std::string line; std::getline(lines, line);) EXPECT_TRUE(line.starts_with("tarn: ")) << line;
    EXPECT_EQ(collector.stop().exit, 0);
}

TEST(Collect, AFullDiskEndsItWithItsName) {
    const BusServer bus;
    const DeviceProcess device(bus, "r1");
    const Directory directory;
    const std::string store = directory.path("history.db");
    std::vector<std::string> arguments{"-c", "ulimit -f 400; exec \"$0\" \"$@\"", TARN_TOOL};
    for (const std::string &argument : arguments_of(bus, store)) arguments.push_back(argument);
    Process collector(arguments, "/bin/sh");
    const auto outcome = collector.finish();
    EXPECT_EQ(outcome.exit, 3);
    EXPECT_NE(outcome.err.find("history.db: "), std::string::npos) << outcome.err;
    // The store can be read.
    EXPECT_EQ(tool_test::tarn({"history", "--store", store}).exit, 0);
}

TEST(Collect, NamesAStoreOfAnotherVersionAndLeavesItAlone) {
    const BusServer bus;
    const Directory directory;
    const std::string store = directory.path("history.db");
    EXPECT_EQ(tool_test::run("/usr/bin/sqlite3",
                             {store,
                              "CREATE TABLE store_meta (name TEXT, value TEXT); INSERT INTO store_meta VALUES "
                              "('layout_version', '7')"})
                  .exit,
              0);
    const std::string before = directory.read("history.db");
    const auto outcome = tool_test::tarn(arguments_of(bus, store));
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("history.db: a store of version \"7\""), std::string::npos) << outcome.err;
    EXPECT_TRUE(directory.read("history.db") == before);
    EXPECT_EQ(tool_test::tarn({"history", "--store", store}).exit, 2);
    EXPECT_TRUE(directory.read("history.db") == before);
}

}  // namespace

}  // namespace fleet_test
