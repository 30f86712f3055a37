// tarn watch: a real server whose data changes, which it does when it is started again.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <thread>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

// A table with the classes 1 to `count`; class 2 has these flags.
std::string table(int count, int flags, int next = 0) {
    std::string classes;
    for (int id = 1; id <= count; ++id) {
        classes += std::string(id == 1 ? "" : ",") + "{\"id\": " + std::to_string(id) +
                   ", \"flags\": " + std::to_string(id == 2 ? flags : 5) + ", \"next_ptr\": " + std::to_string(next) +
                   "}";
    }
    return R"({"message": "lumo_tarn_dp_tt_msg", "payload": {"lumo_data": [{"agg_tc_list": {"tc_list": [)" + classes +
           "]}}]}}";
}

// A server whose data can be replaced, which takes a restart.
class Served {
public:
    explicit Served(const std::string &content) { restart(content); }

    void restart(const std::string &content) {
        stop();
        process_.emplace(std::vector<std::string>{"answer", "--socket", socket(),
                                                  "dp-tt-cfg=" + directory_.write("table.json", content)});
        EXPECT_TRUE(process_->wait_for(": dp-tt-cfg\n")) << process_->err();
    }
    void stop() { process_.reset(); }
    std::string socket() const { return directory_.path("socket"); }
    std::vector<std::string> watch(std::vector<std::string> more = {}, const std::string &every = "50ms") const {
        more.insert(more.begin(), {"watch", "dp-tt-cfg", "--socket", socket(), "--every", every});
        return more;
    }

private:
    Directory directory_;
    std::optional<Process> process_;
};

// Without the times.
std::string without_times(const std::string &out) {
    std::string text;
    for (std::size_t begin = 0; begin < out.size();) {
        const std::size_t end = out.find('\n', begin) + 1;
        const std::string line = out.substr(begin, end - begin);
        const bool has_time = line.size() > 21 && line[4] == '-' && line.substr(19, 2) == "  ";
        text += has_time ? line.substr(21) : line;
        begin = end;
    }
    return text;
}

TEST(Watch, PrintsWhatWasAddedRemovedAndChanged) {
    Served served(table(3, 5));
    Process watch(served.watch());
    ASSERT_TRUE(watch.wait_for("first answer: 1 message, 4 elements\n")) << watch.err();
    served.restart(table(4, 7));
    ASSERT_TRUE(watch.wait_for("class 4 added\n")) << watch.out();
    served.restart(table(3, 7));
    ASSERT_TRUE(watch.wait_for("class 4 removed\n")) << watch.out();
    const Outcome outcome = watch.stop();
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    const std::string lines = without_times(outcome.out);
    EXPECT_NE(lines.find("answered again\n"
                         "processor 0, agg_tc_list, class 2: flags 5 -> 7\n"
                         "processor 0, agg_tc_list, class 4 added\n"),
              std::string::npos)
        << outcome.out;
    EXPECT_NE(lines.find(" answers, 3 changes\nclass: 1 added, 1 removed, 1 changed (flags 1)\n"), std::string::npos)
        << outcome.out;
    EXPECT_EQ(occurrences(lines, "class 2"), 1U) << outcome.out;
}

TEST(Watch, SaysThatTheProcessWasRestarted) {
    Served served(table(3, 5));
    Process watch(served.watch({}, "500ms"));
    ASSERT_TRUE(watch.wait_for("first answer")) << watch.err();
    served.stop();
    ASSERT_TRUE(watch.wait_for(": cannot connect: ")) << watch.out();
    served.restart(table(3, 5));
    ASSERT_TRUE(watch.wait_for("answered again\n")) << watch.out();
    // Also if it takes less time than the pause between two requests.
    served.restart(table(3, 6));
    ASSERT_TRUE(watch.wait_for("class 2: flags 5 -> 6\n")) << watch.out();
    const Outcome outcome = watch.stop();
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(occurrences(outcome.out, "connection lost: "), 2U) << outcome.out;
    EXPECT_EQ(occurrences(outcome.out, "answered again\n"), 2U) << outcome.out;
    EXPECT_EQ(occurrences(outcome.out, ": cannot connect: "), 1U) << outcome.out;
}

TEST(Watch, PrintsAJsonObjectForEachEvent) {
    Served served(table(3, 5));
    Process watch(served.watch({"--json"}));
    ASSERT_TRUE(watch.wait_for(R"("event":"start")")) << watch.err();
    served.restart(table(3, 7));
    ASSERT_TRUE(watch.wait_for(R"("a":5,"b":7})")) << watch.out();
    watch.signal(SIGINT);
    const Outcome outcome = watch.finish();
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_NE(outcome.out.find(R"("change":"changed","path":"payload.lumo_data[lumo_num=0].agg_tc_list.tc_list[id=2].)"
                               R"(flags","a":5,"b":7})"),
              std::string::npos)
        << outcome.out;
    EXPECT_NE(outcome.out.find(R"("counts":{"class":{"added":0,"removed":0,"reordered":0,"changed":1,)"),
              std::string::npos)
        << outcome.out;
    // Each line is one object with its time.
    EXPECT_EQ(occurrences("\n" + outcome.out, "\n{\"time\":\"20"), occurrences(outcome.out, "\n"));
    EXPECT_EQ(occurrences(outcome.out, "Z\",\""), occurrences(outcome.out, "\n"));
}

TEST(Watch, ComparesOnlyTheColumnsAndNotWhatIsIgnored) {
    Served served(table(3, 5, 16));
    Process columns(served.watch({"--columns", "next_*,state"})), ignore(served.watch({"--ignore", "next_ptr"}));
    ASSERT_TRUE(columns.wait_for("first answer") && ignore.wait_for("first answer"));
    served.restart(table(4, 7, 32));
    ASSERT_TRUE(columns.wait_for("class 4 added\n")) << columns.out();
    ASSERT_TRUE(ignore.wait_for("class 4 added\n")) << ignore.out();
    const std::string seen = columns.stop().out, not_ignored = ignore.stop().out;
    EXPECT_NE(seen.find("class 2: next_ptr 0x10 -> 0x20\n"), std::string::npos) << seen;
    EXPECT_EQ(seen.find("flags"), std::string::npos) << seen;
    EXPECT_NE(not_ignored.find("class 2: flags 5 -> 7\n"), std::string::npos) << not_ignored;
    EXPECT_EQ(not_ignored.find("next_ptr"), std::string::npos) << not_ignored;
    EXPECT_EQ(tarn(served.watch({"--columns", "flaggs"})).exit, 2);
}

TEST(Watch, TheFirstRequestHasToSucceed) {
    const Directory directory;
    const Outcome absent = tarn({"watch", "dp-tt-cfg", "--socket", directory.path("nothing")});
    EXPECT_EQ(absent.exit, 3);
    EXPECT_EQ(absent.out, "");
    const Served served(table(30, 5));
    const Outcome refused = tarn({"watch", "cl-debug", "--socket", served.socket()});
    EXPECT_EQ(refused.exit, 1);
    EXPECT_NE(refused.err.find("is not served here"), std::string::npos) << refused.err;
    const Outcome limited = tarn(served.watch({"--frame-limit", "1KiB"}));
    EXPECT_EQ(limited.exit, 2);
    EXPECT_NE(limited.err.find("a frame is longer than --frame-limit"), std::string::npos) << limited.err;
}

TEST(Watch, ASignalEndsItWhileItWaitsForAnAnswer) {
    const Directory directory;
    const Server server({"--fault", "silent", "cl-debug=" + directory.write("debug.xml", debug_xml)});
    ASSERT_TRUE(server.is_ready());
    Process watch({"watch", "cl-debug", "--socket", server.socket(), "--timeout", "600"});
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    const auto begin = std::chrono::steady_clock::now();
    const Outcome outcome = watch.stop();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "stopped after 0 answers, 0 changes\n");
}

// A terminal that the test reads.
class Terminal {
public:
    Terminal(unsigned short rows, unsigned short columns) : own_(posix_openpt(O_RDWR | O_NOCTTY)) {
        EXPECT_EQ(grantpt(own_) + unlockpt(own_), 0);
        other_ = open(ptsname(own_), O_RDWR | O_NOCTTY);
        const winsize size{rows, columns, 0, 0};
        EXPECT_EQ(ioctl(own_, TIOCSWINSZ, &size), 0);
    }
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;
    ~Terminal() {
        close(own_);
        close(other_);
    }

    std::string name() const { return ptsname(own_); }
    // What was written until this text.
    std::string read_until(const std::string &text) const {
        std::string all;
        char c = 0;
        while (all.find(text) == std::string::npos && read(own_, &c, 1) == 1) all += c;
        return all;
    }

private:
    int own_, other_;
};

TEST(Watch, DrawsInPlaceOnATerminal) {
    Served served(table(3, 5));
    const Terminal terminal(4, 50);
    std::string command = "exec \"$0\"";
    for (const std::string &word : served.watch()) command += " '" + word + "'";
    setenv("TERM", "xterm", 1);
    Process watch({"-c", command + " >" + terminal.name(), tool()}, "/bin/sh");
    EXPECT_NE(terminal.read_until("4 elements").find("lumo_tarn_dp_tt_cfg_rsp at "), std::string::npos);
    served.restart(table(3, 7));
    const std::string changed = terminal.read_until("class 2: flags");
    // The picture was drawn over the one before: a title and one line.
    EXPECT_NE(changed.find("\x1b[2A\r"), std::string::npos) << changed;
    served.restart(table(3, 8));
    EXPECT_NE(terminal.read_until("(2 times)"), "");
    watch.signal(SIGINT);
    const std::string end = terminal.read_until("changed (flags 2)");
    EXPECT_NE(end.find("2 changes"), std::string::npos) << end;
    EXPECT_EQ(watch.finish().exit, 0);
}

}  // namespace

}  // namespace tool_test
