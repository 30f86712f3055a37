// What a collector serves: metrics, which a real Prometheus reads, and the data of its page.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <httplib.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "bus.h"
#include "fleet/http/metrics.h"
#include "fleet/http/server.h"
#include "fleet/store/times.h"
#include "output.h"
#include "schema/catalogue.h"
#include "tools/reflect/operations.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace fleet_test {

namespace {

using nlohmann::json;
using tarn::fleet::Answer;
using tarn::fleet::BrowserData;
using tarn::fleet::HttpServer;
using tarn::fleet::Keeper;
using tarn::fleet::Metrics;
using tarn::fleet::MetricsOptions;
using tarn::fleet::NumericMember;
using tarn::fleet::Outcome;
using tarn::fleet::Recorder;
using tarn::fleet::Reply;
using tarn::fleet::Stored;
using tarn::fleet::Time;
using tarn::tool::Failure;
using tool_test::Directory;
using tool_test::Process;

const std::string tables = std::string(TARN_EXAMPLES) + "/dp_tt_cfg.xml";
constexpr char host[] = "127.0.0.1";
constexpr std::chrono::seconds long_enough(60);

// ---- metrics

class MetricsTest : public testing::Test {
protected:
    static constexpr Time answered = 1'000'000;

    Metrics metrics(MetricsOptions options) const {
        options.expire = 60'000;
        return {options, {bundle_}};
    }

    Answer answer(const std::string &device, Reply reply = Reply::answered) const {
        const std::chrono::system_clock::time_point time{std::chrono::milliseconds(answered)};
        Answer a{{"fra", device}, bundle_, reply, "", time, time, {1, 2, 3}, {}};
        if (reply == Reply::answered) a.messages = tarn::tool::read_items(handles_, tables, false);
        return a;
    }

    // The lines that begin so.
    static std::vector<std::string> lines(const Metrics &metrics, const std::string &begin, Time now = answered) {
        std::istringstream in(metrics.text(now, Recorder::Counts{}));
        std::vector<std::string> found;
        for (std::string line; std::getline(in, line);) {
            if (line.starts_with(begin)) found.push_back(line);
        }
        return found;
    }

    const tarn::tool::Handles handles_{tarn::tool::Tracking::as_input};
    const tarn::reflect::BundleOperations *bundle_ = &tarn::tool::bundle_named("dp-tt-cfg");
};

using Lines = std::vector<std::string>;

TEST_F(MetricsTest, TheTextBeginsEachFamilyWithItsTypeAndEndsWithAMark) {
    Metrics m = metrics({{"tc.proto"}});
    Answer a = answer("r1");
    m.add(a);
    const std::string text = m.text(answered + 1500, {.answers = 7, .silences = 2, .commits = 3});
    EXPECT_TRUE(contains(text, "\n# TYPE tarn_requests counter\n# HELP tarn_requests ")) << text;
    EXPECT_TRUE(contains(text, "\n# TYPE tarn_answer_age_seconds gauge\n# UNIT tarn_answer_age_seconds seconds\n"));
    EXPECT_TRUE(contains(text, "\ntarn_kept_answers_total 7\n"));
    EXPECT_TRUE(contains(text, "\ntarn_answer_age_seconds{site=\"fra\",device=\"r1\",bundle=\"dp-tt-cfg\"} 1.500\n"));
    EXPECT_TRUE(contains(text, "\ntarn_answer_size_bytes{site=\"fra\",device=\"r1\",bundle=\"dp-tt-cfg\"} 3\n"));
    EXPECT_TRUE(text.ends_with("\n# EOF\n"));
}

TEST_F(MetricsTest, ValuesHaveTheKeysOfTheirRecordAsLabels) {
    Metrics m = metrics({{"dp-tc.appl.id", "tc.proto", "lumo_tarn_dp_tc.proto"}});
    Answer a = answer("r1");
    m.add(a);
    const std::string class_1001 =
        "{site=\"fra\",device=\"r1\",bundle=\"dp-tt-cfg\",dp_tt_table_lumo_num=\"0\",dp_tc_id="
        "\"1001\",path=\"lumo_data.agg_tc_list.tc_list\"} ";
    EXPECT_EQ(lines(m, "tarn_dp_tc_proto" + class_1001), Lines{"tarn_dp_tc_proto" + class_1001 + "17"});
    EXPECT_EQ(lines(m, "tarn_dp_tc_appl_id" + class_1001), Lines{"tarn_dp_tc_appl_id" + class_1001 + "1001"});
    EXPECT_EQ(lines(m, "# TYPE tarn_dp_tc_proto "), Lines{"# TYPE tarn_dp_tc_proto unknown"});
}

TEST_F(MetricsTest, ValuesGoWithTimeUnlessTheDeviceAnswers) {
    Metrics m = metrics({{"dp-tt-table.state"}});
    Answer a = answer("r1");
    m.add(a);
    EXPECT_EQ(lines(m, "tarn_dp_tt_table_state{", answered + 60'000).size(), 2U);
    EXPECT_EQ(lines(m, "tarn_dp_tt_table_state{", answered + 60'001).size(), 0U);
    EXPECT_EQ(lines(m, "tarn_answer_age_seconds{", answered + 60'001).size(), 1U);
    // The same values again.
    Answer same = answer("r1");
    same.ended += std::chrono::seconds(30);
    m.add(same);
    EXPECT_EQ(lines(m, "tarn_dp_tt_table_state{", answered + 90'000).size(), 2U);
    // A request without an answer does not end them.
    Answer silent = answer("r1", Reply::silent);
    m.add(silent);
    EXPECT_EQ(lines(m, "tarn_dp_tt_table_state{", answered + 90'000).size(), 2U);
    EXPECT_EQ(lines(m, "tarn_device_up{")[0].back(), '0');
    m.keep_only({"fra/r2"});
    EXPECT_EQ(lines(m, "tarn_dp_tt_table_state{").size() + lines(m, "tarn_device_up{").size(), 0U);
}

TEST_F(MetricsTest, TimestampsAreThoseOfTheAnswers) {
    Metrics m = metrics({{"dp-tt-table.lumo_num"}, 0, true});
    Answer a = answer("r1");
    m.add(a);
    const Lines found = lines(m, "tarn_dp_tt_table_lumo_num{");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_TRUE(found[0].ends_with("} 0 1000.000")) << found[0];
}

TEST_F(MetricsTest, RequestsAndDevicesAreCountedByTheirOutcome) {
    Metrics m = metrics({});
    for (const auto &[device, reply] : std::vector<std::pair<std::string, Reply>>{
             {"r1", Reply::answered}, {"r2", Reply::silent}, {"r2", Reply::refused}, {"r3", Reply::broken}}) {
        Answer a = answer(device, reply);
        m.add(a);
    }
    const std::string dp = "{bundle=\"dp-tt-cfg\",outcome=\"";
    EXPECT_EQ(lines(m, "tarn_requests_total{"),
              (Lines{"tarn_requests_total" + dp + "answered\"} 1", "tarn_requests_total" + dp + "refused\"} 1",
                     "tarn_requests_total" + dp + "silent\"} 1", "tarn_requests_total" + dp + "broken\"} 1"}));
    EXPECT_EQ(lines(m, "tarn_devices{"),
              (Lines{"tarn_devices" + dp + "answered\"} 1", "tarn_devices" + dp + "refused\"} 1",
                     "tarn_devices" + dp + "silent\"} 0", "tarn_devices" + dp + "broken\"} 1"}));
}

TEST_F(MetricsTest, TextOfDevicesCannotLeaveItsLabel) {
    Metrics m = metrics({});
    Answer a = answer("a\"} 1\n# EOF\n\\<script>\xff");
    m.add(a);
    const Lines found = lines(m, "tarn_device_up");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0],
              "tarn_device_up{site=\"fra\",device=\"a\\\"} 1\\\\x0a# EOF\\\\x0a\\\\<script>\\\\xff\","
              "bundle=\"dp-tt-cfg\"} 1");
}

TEST_F(MetricsTest, ADeviceHasALimitedNumberOfValuesAndIsNamedOnce) {
    Metrics m = metrics({{"tc.proto", "dp-tt-table.state"}});
    const Directory directory;
    ASSERT_EQ(tool_test::tarn(
                  {"generate", "dp-tt-cfg", "--elements", "120", "--form", "frames", "-o", directory.path("many.bin")})
                  .exit,
              0);
    Answer many = answer("r1");
    many.messages = tarn::tool::read_items(handles_, directory.path("many.bin"), false);
    EXPECT_EQ(m.add(many), Lines{"dp_tc.proto"});
    EXPECT_EQ(lines(m, "tarn_dp_tc_proto{").size(), Metrics::most_values);
    many.messages = tarn::tool::read_items(handles_, directory.path("many.bin"), false);
    EXPECT_EQ(m.add(many), Lines{});
}

TEST_F(MetricsTest, WrongNamesAreNamedWithTheNearestRightOne) {
    const auto error = [](const std::string &name) -> std::string {
        try {
            NumericMember::named(name);
        } catch (const Failure &failure) {
            return failure.what();
        }
        return "no error";
    };
    EXPECT_TRUE(contains(error("tc.prto"), "unknown member \"dp_tc.prto\"; did you mean proto?")) << error("tc.prto");
    EXPECT_TRUE(contains(error("dp-tcc.proto"), "unknown record \"dp-tcc\"; did you mean ")) << error("dp-tcc.proto");
    EXPECT_EQ(error("tc.src_prefix"), "member \"dp_tc.src_prefix\" is not a number");
    EXPECT_EQ(error("tc"), "\"tc\": expected RECORD.MEMBER");
    EXPECT_EQ(error("tc.appl.id"), "no error");
}

// Prometheus would refuse a family or a label that appears twice.
TEST_F(MetricsTest, NamesOfMetricsAndLabelsAreUnique) {
    MetricsOptions all;
    std::set<std::string> seen;
    for (const auto *const message : tarn::schema::messages) {
        for (const auto &[name, meaning] : tarn::fleet::numeric_members(*message)) {
            if (!seen.insert(name).second) continue;
            all.members.push_back(name);
            std::set<std::string> labels{"site", "device", "bundle"};
            const NumericMember member = NumericMember::named(name);
            for (std::string label : member.labels()) {
                std::replace(label.begin(), label.end(), '.', '_');
                EXPECT_TRUE(labels.insert(label).second) << name << ": " << label;
            }
        }
    }
    EXPECT_GT(seen.size(), 100U);
    std::set<std::string> families;
    std::size_t count = 0;
    std::set<const tarn::reflect::BundleOperations *> bundles;
    for (const auto &bundle : tarn::reflect::bundles()) bundles.insert(&bundle);
    for (const std::string &line : lines(Metrics(all, bundles), "# TYPE ")) {
        families.insert(line.substr(0, line.rfind(' ')));
        ++count;
    }
    EXPECT_EQ(families.size(), count);
    for (std::string name : seen) {
        std::replace(name.begin(), name.end(), '.', '_');
        EXPECT_TRUE(families.contains("# TYPE tarn_" + name)) << name;
    }
}

// ---- the server

// A store with two answers of a device, a gap between them, and another device.
class Served : public testing::Test {
protected:
    Served() {
        Keeper keeper(store_, 60'000, 0);
        const std::vector<std::pair<std::string, std::string>> devices{{"fra/r1", "fra"}, {hostile, "<b>"}};
        keeper.add_devices(devices);
        keeper.renew();
        const std::string before = frames("1"), after = frames("2");
        const std::string_view bundle = tarn::tool::bundle_named("dp-intf").bundle->name;
        const auto put = [&](const std::string &device, Time time, const std::string &frames, const char *reason) {
            const Outcome outcomes[] = {{device, bundle, start + time, start + time + 10, frames, reason}};
            EXPECT_EQ(keeper.put(outcomes), (*reason == 0 ? Stored{1, 0} : Stored{0, 1}));
        };
        put("fra/r1", 0, before, "");
        put("fra/r1", 1000, before, "");
        put("fra/r1", 2000, "", "silent: </script><img src=x>");
        put("fra/r1", 3000, after, "");
        put(tarn::tool::printable(hostile), 0, before, "");
        server_ = std::make_unique<HttpServer>("127.0.0.1:0", store_, [] { return std::string("metrics\n# EOF\n"); });
        client_ = std::make_unique<httplib::Client>(server_->url().substr(0, server_->url().size() - 1));
    }

    // The frames of a random answer.
    static std::string frames(const std::string &seed) {
        const auto made = tool_test::tarn({"generate", "dp-intf", "--form", "frames", "--seed", seed});
        EXPECT_EQ(made.exit, 0) << made.err;
        return made.out;
    }

    httplib::Result get(const std::string &path) { return client_->Get(path.c_str()); }
    json data(const std::string &path) {
        const auto result = get("/data/" + path);
        EXPECT_TRUE(result && result->status == 200) << path << ": " << (result ? result->body : "no answer");
        return result && result->status == 200 ? json::parse(result->body) : json();
    }
    std::string port() const { return server_->url().substr(server_->url().rfind(':') + 1); }
    std::string raw(const std::string &request) const {
        const std::string number = port().substr(0, port().size() - 1);
        const auto socket = tool_test::Socket::connect_to_port(number);
        EXPECT_TRUE(socket.send(request));
        return socket.receive();
    }

    static constexpr Time start = 1'700'000'000'000;
    static inline const std::string hostile = "<b>/\"><script>document.title = 'changed'</script>\n'";

    const Directory directory_;
    const std::string store_ = directory_.path("history.db");
    std::unique_ptr<HttpServer> server_;
    std::unique_ptr<httplib::Client> client_;
};

TEST_F(Served, EachResourceHasItsTypeAndAStrictPolicy) {
    const std::vector<std::pair<std::string, std::string>> types{
        {"/", "text/html; charset=utf-8"},
        {"/fleet.css", "text/css; charset=utf-8"},
        {"/fleet.js", "text/javascript; charset=utf-8"},
        {"/dygraph.js", "text/javascript; charset=utf-8"},
        {"/dygraph.css", "text/css; charset=utf-8"},
        {"/metrics", "application/openmetrics-text; version=1.0.0; charset=utf-8"},
        {"/data/devices", "application/json"},
        {"/data/members", "application/json"},
        {"/view?a=1", "text/html; charset=utf-8"}};
    for (const auto &[path, type] : types) {
        const auto result = get(path);
        ASSERT_TRUE(result) << path;
        EXPECT_EQ(result->status, 200) << path << result->body;
        EXPECT_EQ(result->get_header_value("Content-Type"), type);
        EXPECT_FALSE(result->body.empty()) << path;
        EXPECT_EQ(result->get_header_value("X-Content-Type-Options"), "nosniff");
        const std::string policy = result->get_header_value("Content-Security-Policy");
        EXPECT_TRUE(contains(policy, "frame-ancestors 'none'")) << path;
        EXPECT_FALSE(contains(policy, "unsafe")) << path;
    }
    EXPECT_TRUE(
        contains(get("/")->get_header_value("Content-Security-Policy"), "default-src 'none'; script-src 'self'"));
    EXPECT_TRUE(contains(get("/view?a=1")->body,
                         "content=\"default-src 'none'; style-src 'unsafe-inline'; script-src "
                         "'sha256-"));
}

TEST_F(Served, TellsDevicesHistoryAndChanges) {
    const json devices = data("devices").at("devices");
    ASSERT_EQ(devices.size(), 2U);
    const json &r1 = devices.at(1);
    EXPECT_EQ(r1.at("device"), "fra/r1");
    EXPECT_EQ(r1.at("bundle"), "dp-intf");
    EXPECT_EQ(r1.at("gap"), nullptr);
    EXPECT_EQ(r1.at("answer").at("number"), 2);
    EXPECT_EQ(r1.at("answer").at("from"), start + 3010);
    const std::string all = "&since=0&until=9999999999999";
    const json events = data("history?device=fra/r1" + all).at("events");
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events.at(0).at("number"), 2);
    EXPECT_EQ(events.at(1).at("kind"), "gap");
    EXPECT_EQ(events.at(1).at("reason"), "silent: </script><img src=x>");
    EXPECT_EQ(events.at(2).at("requests"), 2);
    const std::string a = events.at(2).at("id").dump(), b = events.at(0).at("id").dump();
    EXPECT_GT(data("changes?a=" + a + "&b=" + b).at("total"), 0);
    EXPECT_EQ(data("changes?a=" + a + "&b=" + a).at("total"), 0);
    EXPECT_TRUE(
        contains(get("/view?a=" + a + "&b=" + b)->body, "\"sides\":[{\"name\":\"fra/r1/dp-intf@2023-11-14T22:13:"));
}

TEST_F(Served, ValuesHaveAnEndBeforeAGap) {
    const auto members = data("members").at("dp-intf");
    ASSERT_FALSE(members.empty());
    const std::string name = members.at(0).at(0);
    const json values = data("values?device=fra/r1&bundle=dp-intf&member=" + name + "&since=0&until=9999999999999");
    // The record is at four paths of the message.
    ASSERT_EQ(values.at("series").size(), 4U) << values;
    const json &points = values.at("points");
    ASSERT_EQ(points.size(), 4U) << points;
    EXPECT_EQ(points.at(0).at(0), start + 10);
    EXPECT_EQ(points.at(1).at(0), start + 1010);
    EXPECT_EQ(points.at(0).at(1), points.at(1).at(1));
    EXPECT_EQ(points.at(2).at(1), nullptr);
    EXPECT_EQ(points.at(3).at(0), start + 3010);
    EXPECT_TRUE(points.at(3).at(1).is_number());
    EXPECT_EQ(values.at("gaps"), json::array({json::array({start + 2000, start + 3010})}));
}

TEST_F(Served, OfManyAnswersAPlotShowsSomeAndTheLastOne) {
    server_.reset();
    Keeper keeper(store_, 60'000, 0);
    const std::pair<std::string, std::string> device{"fra/r3", "fra"};
    keeper.add_devices({&device, 1});
    // The devices of the keeper that is gone.
    for (int i = 0; i < 20 && !keeper.owns("fra/r3"); ++i) keeper.renew();
    const std::string either[] = {frames("1"), frames("2")};
    const std::string_view bundle = tarn::tool::bundle_named("dp-intf").bundle->name;
    std::vector<Outcome> outcomes;
    constexpr std::size_t count = 2 * BrowserData::most_plotted + 10;
    for (std::size_t i = 0; i < count; ++i) {
        const Time time = start + 1000 * static_cast<Time>(i);
        outcomes.push_back({"fra/r3", bundle, time, time, either[i % 2], ""});
    }
    ASSERT_EQ(keeper.put(outcomes), (Stored{count, 0}));
    BrowserData data(store_);
    const json values =
        json::parse(data.values({"fra/r3", "dp-intf", "dp-wexa-info.flags", 0, INT64_MAX, "in_lumo_wexa.in_wexa"}));
    EXPECT_EQ(values.at("answers"), count);
    EXPECT_EQ(values.at("plotted"), count / 3);
    EXPECT_EQ(values.at("series"), json::array({"path in_lumo_wexa.in_wexa"}));
    EXPECT_EQ(values.at("points").back().at(0), start + 1000 * static_cast<Time>(count - 1));
    const json history = json::parse(data.history("fra/r3", 0, INT64_MAX));
    EXPECT_EQ(history.at("total"), count);
    ASSERT_EQ(history.at("events").size(), BrowserData::most_events);
    EXPECT_EQ(history.at("events").at(0).at("number"), count);
}

TEST_F(Served, WrongRequestsAreRefusedWithTheReason) {
    const std::vector<std::pair<std::string, std::pair<int, std::string>>> wrong{
        {"/nothing", {404, "there is no such page\n"}},
        {"/../etc/passwd", {404, "there is no such page\n"}},
        {"/data/history?since=0&until=1", {400, "the parameter device is missing\n"}},
        {"/view?a=x%0A", {400, "the parameter a: \"x\\x0a\" is not a number\n"}},
        {"/view?a=-1", {400, "the parameter a: \"-1\" is not a number\n"}},
        {"/view?a=99999999999999999999", {400, "the parameter a: \"99999999999999999999\" is not a number\n"}},
        {"/view?a=77", {400, store_ + ": there is no answer 77\n"}},
        {"/data/history?device='%20OR%201%3D1&since=0&until=1",
         {400, store_ + ": device \"' OR 1=1\" is not in the store\n"}},
        {"/data/values?device=fra/r1&bundle=dp-intf&member=tc.prto&since=0&until=1",
         {400, "unknown member \"dp_tc.prto\"; did you mean proto?\n"}}};
    for (const auto &[path, expected] : wrong) {
        const auto result = get(path);
        ASSERT_TRUE(result) << path;
        EXPECT_EQ(result->status, expected.first) << path;
        EXPECT_EQ(result->body, expected.second) << path;
        EXPECT_EQ(result->get_header_value("Content-Type"), "text/plain; charset=utf-8");
    }
    for (const char *const method : {"POST", "PUT", "DELETE", "PATCH", "OPTIONS", "TRACE"}) {
        const std::string answer =
            raw(std::string(method) + " / HTTP/1.1\r\nHost: 127.0.0.1\r\nContent-Length: 3\r\n\r\nabc");
        EXPECT_TRUE(answer.starts_with(contains("TRACE", method) ? "HTTP/1.1 4" : "HTTP/1.1 405 ")) << answer;
    }
    EXPECT_TRUE(raw("GET / HTTP/1.1\r\nHost: [::1]:1\r\nRange: bytes=0-,0-,0-\r\n\r\n").starts_with("HTTP/1.1 416 "));
    EXPECT_TRUE(raw("GET /" + std::string(9000, 'a') + " HTTP/1.1\r\nHost: x\r\n\r\n").starts_with("HTTP/1.1 414 "));
    EXPECT_TRUE(raw("garbage\r\n\r\n").starts_with("HTTP/1.1 4"));
    EXPECT_EQ(get("/metrics")->body, "metrics\n# EOF\n");
}

TEST_F(Served, ManySilentClientsKeepNobodyElseFromBeingServedForLong) {
    std::vector<tool_test::Socket> idle;
    const std::string number = port().substr(0, port().size() - 1);
    for (int i = 0; i < 20; ++i) idle.push_back(tool_test::Socket::connect_to_port(number));
    client_->set_read_timeout(60);
    const auto result = get("/metrics");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 200);
}

TEST_F(Served, AClientThatSendsAByteNowAndThenIsDisconnected) {
    const std::string number = port().substr(0, port().size() - 1);
    const auto slow = tool_test::Socket::connect_to_port(number);
    EXPECT_TRUE(happens([&] { return !slow.send("G"); }, std::chrono::seconds(15)));
    // One that sends headers without an end.
    const auto endless = tool_test::Socket::connect_to_port(number);
    ASSERT_TRUE(endless.send("GET / HTTP/1.1\r\n"));
    std::size_t lines = 0;
    const std::string line = "X: " + std::string(1000, 'x') + "\r\n";
    while (lines < 10'000 && endless.send(line)) ++lines;
    EXPECT_LT(lines, 10'000U);
}

TEST_F(Served, TheServerEndsWhateverItsClientsDo) {
    const std::string number = port().substr(0, port().size() - 1);
    std::vector<tool_test::Socket> idle;
    for (int i = 0; i < 20; ++i) idle.push_back(tool_test::Socket::connect_to_port(number));
    const auto begin = std::chrono::steady_clock::now();
    server_.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(4));
}

// Otherwise, the page of another host, whose name points here for a moment, could read everything.
TEST_F(Served, ARequestForTheNameOfAnotherHostIsRefused) {
    const auto ask = [&](const std::string &host) {
        return raw("GET /data/devices HTTP/1.1\r\nHost:" + host + "\r\n\r\n");
    };
    for (const std::string host : {"127.0.0.1", "127.0.0.1:9464", "[::1]", "[::1]:9464", "localhost", "LOCALHOST:80"}) {
        EXPECT_TRUE(ask(host).starts_with("HTTP/1.1 200 ")) << host;
    }
    for (const std::string host : {"", "evil.example", "evil.example:80", "localhost.evil.example",
                                   "127.0.0.1.evil.example", "[::1", "[evil.example]", "::1", ":80"}) {
        const std::string answer = ask(host);
        EXPECT_TRUE(answer.starts_with("HTTP/1.1 421 ")) << host << answer;
        EXPECT_FALSE(contains(answer, "fra/r1")) << host;
    }
    const HttpServer named("localhost:0", store_, [] { return std::string("all\n"); });
    httplib::Client client(named.url().substr(0, named.url().size() - 1));
    const auto result = client.Get("/metrics");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->body, "all\n");
}

TEST_F(Served, AnswersAreCompressedInTheWayThatIsFast) {
    const auto coding = [&](const char *accepted) {
        const auto result = client_->Get("/fleet.js", {{"Accept-Encoding", accepted}});
        return result ? result->get_header_value("Content-Encoding") : "no answer";
    };
    EXPECT_EQ(coding("gzip, deflate, br"), "gzip");
    EXPECT_EQ(coding("br"), "");
}

TEST_F(Served, AStoreThatDoesNotReplyDoesNotDelayTheMetrics) {
    const int database = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ASSERT_EQ(::bind(database, reinterpret_cast<sockaddr *>(&address), size), 0);
    ASSERT_EQ(::listen(database, 100), 0);
    ASSERT_EQ(::getsockname(database, reinterpret_cast<sockaddr *>(&address), &size), 0);
    const HttpServer server("127.0.0.1:0",
                            "postgresql://tarn@127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/fleet",
                            [] { return std::string("all\n"); });
    const std::string url = server.url().substr(0, server.url().size() - 1);
    constexpr std::ptrdiff_t clients = BrowserData::most_waiting + 10;
    std::atomic<int> refused = 0, ended = 0;
    std::vector<std::thread> threads;
    for (std::ptrdiff_t i = 0; i < clients; ++i) {
        threads.emplace_back([&] {
            httplib::Client client(url);
            client.set_read_timeout(600);
            const auto result = client.Get("/data/devices");
            if (result && result->body == "too many requests for the store at once\n") ++refused;
            ++ended;
        });
    }
    EXPECT_TRUE(happens([&] { return refused > 0; }, long_enough));
    httplib::Client client(url);
    client.set_read_timeout(60);
    const auto result = client.Get("/metrics");
    EXPECT_LT(ended, clients);
    ::close(database);  // which ends the connections to it
    for (std::thread &thread : threads) thread.join();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->body, "all\n");
}

TEST_F(Served, AnAnswerThatIsTooLargeForAPageIsNamed) {
    server_.reset();
    Keeper keeper(store_, 60'000, 0);
    for (int i = 0; i < 20 && !keeper.owns("fra/r1"); ++i) keeper.renew();
    const std::string large(BrowserData::most_viewed + 1, 'x');
    const Outcome outcome{"fra/r1", tarn::tool::bundle_named("cl-debug").bundle->name, start, start, large, ""};
    ASSERT_EQ(keeper.put({&outcome, 1}).answers, 1U);
    BrowserData data(store_);
    const std::string member = json::parse(BrowserData::members()).at("cl-debug").at(0).at(0);
    const json values = json::parse(data.values({"fra/r1", "cl-debug", member, 0, INT64_MAX, ""}));
    EXPECT_EQ(values.at("answers"), 1);
    EXPECT_EQ(values.at("plotted"), 0);
    const json history = json::parse(data.history("fra/r1", 0, INT64_MAX));
    for (const json &event : history.at("events")) {
        if (event.at("bundle") != "cl-debug") continue;
        try {
            data.view(event.at("id"), {});
            FAIL();
        } catch (const Failure &failure) {
            EXPECT_TRUE(contains(failure.what(), "has 4194305 bytes, more than a page of the collector shows"));
            return;
        }
    }
    FAIL();
}

TEST_F(Served, AStoreThatGoesAwayIsNamed) {
    ASSERT_EQ(get("/data/devices")->status, 200);
    const Directory other;
    const HttpServer server("127.0.0.1:0", other.path("nothing.db"), [] { return std::string(); });
    httplib::Client client(server.url().substr(0, server.url().size() - 1));
    const auto result = client.Get("/data/devices");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 503);
    EXPECT_EQ(result->body, other.path("nothing.db") + ": No such file or directory\n");
}

// ---- collect --http

std::vector<std::string> arguments_of(const BusServer &bus, const Directory &directory,
                                      const std::vector<std::string> &more) {
    std::vector<std::string> all{
        "collect", "--bus", bus.url(),   "--bundle", "dp-tt-cfg", "--store",    directory.path("history.db"),
        "--every", "500ms", "--timeout", "2s",       "--http",    "127.0.0.1:0"};
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

// The port after "serving http://127.0.0.1:".
int port_of(const Process &collector) {
    const std::string begin = "serving http://127.0.0.1:";
    if (!collector.wait_for("serving") || !collector.wait_for("/\n")) return 0;
    const std::string out = collector.out();
    return std::stoi(out.substr(out.find(begin) + begin.size()));
}

TEST(CollectHttp, AWrongAddressOrMemberEndsItAtOnce) {
    const BusServer bus;
    const Directory directory;
    const auto error = [&](const std::vector<std::string> &more) {
        const auto outcome = tool_test::tarn(arguments_of(bus, directory, more));
        EXPECT_NE(outcome.exit, 0);
        return outcome.err;
    };
    EXPECT_TRUE(contains(error({"--metric", "tc.prto"}), "did you mean proto?"));
    EXPECT_TRUE(contains(tool_test::tarn({"collect", "--bus", bus.url(), "--bundle", "dp-tt-cfg", "--store", "x",
                                          "--metric", "tc.proto"})
                             .err,
                         "--metric requires --http"));
    EXPECT_TRUE(
        contains(error({"--metric", "dp-wexa-info.flags"}), "the requested bundles do not contain dp_wexa_info.flags"));
    const Process first(arguments_of(bus, directory, {}));
    const std::string taken = "127.0.0.1:" + std::to_string(port_of(first));
    for (const auto &[address, problem] : std::vector<std::pair<std::string, std::string>>{
             {taken, taken + ": cannot listen: Address already in use"},
             {"127.0.0.1", "\"127.0.0.1\" is not of the form HOST:PORT"},
             {"127.0.0.1:99999", "the port \"99999\" is not a number from 0 to 65535"}}) {
        std::vector<std::string> words = arguments_of(bus, directory, {});
        words.back() = address;
        const auto outcome = tool_test::tarn(words);
        EXPECT_NE(outcome.exit, 0);
        EXPECT_TRUE(contains(outcome.err, problem)) << outcome.err;
    }
}

// A server of the test.
class Prometheus {
public:
    explicit Prometheus(int target) : port_(free_port()) {
        directory_.write("prometheus.yml",
                         "global: {scrape_interval: 500ms, scrape_timeout: 500ms}\nscrape_configs:\n- job_name: tarn\n"
                         "  static_configs: [{targets: ['127.0.0.1:" +
                             std::to_string(target) + "']}]\n");
        process_ = std::make_unique<Process>(
            std::vector<std::string>{"--config.file=" + directory_.path("prometheus.yml"),
                                     "--storage.tsdb.path=" + directory_.path("data"),
                                     "--web.listen-address=127.0.0.1:" + std::to_string(port_)},
            TARN_PROMETHEUS);
    }

    // The values that a query finds, by a label.
    std::map<std::string, std::string> query(const std::string &text, const std::string &label) const {
        httplib::Client client(host, port_);
        const auto result = client.Get(("/api/v1/query?query=" + httplib::detail::encode_query_param(text)).c_str());
        std::map<std::string, std::string> values;
        if (!result || result->status != 200) return values;
        const json answer = json::parse(result->body);
        for (const json &found : answer.at("data").at("result")) {
            values[found.at("metric").value(label, "")] = found.at("value").at(1);
        }
        return values;
    }
    json target() const {
        httplib::Client client(host, port_);
        const auto result = client.Get("/api/v1/targets");
        if (!result || result->status != 200) return {};
        const json all = json::parse(result->body).at("data").at("activeTargets");
        return all.empty() ? json() : all.at(0);
    }
    std::string err() const { return process_->err(); }

private:
    const Directory directory_;
    const int port_;
    std::unique_ptr<Process> process_;
};

TEST(CollectHttp, PrometheusReadsTheMetrics) {
    const BusServer bus;
    const Directory directory;
    auto r1 =
        std::make_unique<DeviceProcess>(bus, "r1", std::vector<std::string>{"--site", "fra", "dp-tt-cfg=" + tables});
    const DeviceProcess r2(bus, "r2", {"--site", "fra", "dp-tt-cfg=" + tables});
    Process collector(
        arguments_of(bus, directory, {"--metric", "tc.proto", "--metric", "dp-tt-table.start_time", "--expire", "3s"}));
    const int port = port_of(collector);
    ASSERT_NE(port, 0) << collector.err();
    const Prometheus prometheus(port);
    const std::string protocol =
        "tarn_dp_tc_proto{dp_tt_table_lumo_num=\"0\",path=\"lumo_data.agg_tc_list.tc_list\",dp_tc_id=\"1001\"}";
    using Values = std::map<std::string, std::string>;
    EXPECT_TRUE(happens(
        [&] {
            return prometheus.query(protocol, "device") == Values{{"r1", "17"}, {"r2", "17"}};
        },
        long_enough))
        << prometheus.err() << prometheus.target();
    EXPECT_EQ(prometheus.query("tarn_dp_tt_table_start_time{device=\"r1\"}", "dp_tt_table_lumo_num")["0"],
              "1700006884");
    EXPECT_EQ(prometheus.query("tarn_devices{outcome=\"answered\"}", "bundle"), (Values{{"dp-tt-cfg", "2"}}));
    EXPECT_EQ(prometheus.target().at("health"), "up") << prometheus.target();
    // The values of a device that does not answer any more go, those of the other one stay.
    r1->process().signal(SIGKILL);
    r1->process().finish();
    EXPECT_TRUE(happens(
        [&] {
            return prometheus.query("tarn_device_up", "device") == Values{{"r1", "0"}, {"r2", "1"}};
        },
        long_enough));
    EXPECT_TRUE(happens([&] { return prometheus.query(protocol, "device") == Values{{"r2", "17"}}; }, long_enough));
    EXPECT_EQ(prometheus.query("tarn_devices{outcome=\"silent\"}", "bundle"), (Values{{"dp-tt-cfg", "1"}}));
    EXPECT_EQ(prometheus.target().at("lastError"), "") << prometheus.target();
    EXPECT_EQ(collector.stop().exit, 0);
}

TEST(CollectHttp, PrometheusTakesTheTimesOfAnswers) {
    const BusServer bus;
    const Directory directory;
    const DeviceProcess r1(bus, "r1", {"--site", "fra", "dp-tt-cfg=" + tables});
    std::vector<std::string> words = arguments_of(bus, directory, {"--metric", "dp-tt-table.state", "--timestamps"});
    std::replace(words.begin(), words.end(), std::string("500ms"), std::string("1h"));
    const Process collector(words);
    const int port = port_of(collector);
    ASSERT_NE(port, 0) << collector.err();
    const std::string sample =
        "tarn_dp_tt_table_state{site=\"fra\",device=\"r1\",bundle=\"dp-tt-cfg\",dp_tt_table_lumo_num=\"0\"}";
    std::string line;
    EXPECT_TRUE(happens(
        [&] {
            const auto result = httplib::Client(host, port).Get("/metrics");
            const std::size_t begin = result ? result->body.find(sample) : std::string::npos;
            if (begin == std::string::npos) return false;
            line = result->body.substr(begin, result->body.find('\n', begin) - begin);
            return true;
        },
        long_enough));
    const Prometheus prometheus(port);
    EXPECT_TRUE(happens(
        [&] {
            const auto found =
                prometheus.query("timestamp(tarn_dp_tt_table_state{dp_tt_table_lumo_num=\"0\"})", "device");
            return found.contains("r1") && std::stod(found.at("r1")) == std::stod(line.substr(line.rfind(' ')));
        },
        long_enough))
        << line << prometheus.err() << prometheus.target();
}

}  // namespace

}  // namespace fleet_test
