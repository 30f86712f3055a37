// A process that serves peers does not depend on whoever reads its standard error.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <stdexcept>

#include "../tools/process.h"
#include "../tools/samples.h"

namespace tool_test {

namespace {

// The reading end of a named pipe. Its file is removed with its directory.
class Pipe {
public:
    explicit Pipe(std::string path) : path_(std::move(path)) {
        if (mkfifo(path_.c_str(), 0600) == 0) descriptor_ = open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (descriptor_ < 0) throw std::runtime_error(path_);
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;
    ~Pipe() { close_reading_end(); }

    const std::string &path() const { return path_; }
    void close_reading_end() {
        if (descriptor_ >= 0) close(descriptor_);
        descriptor_ = -1;
    }
    // Everything until the writing end is closed.
    std::string read_all() const {
        fcntl(descriptor_, F_SETFL, 0);
        std::string all;
        char piece[4096];
        for (ssize_t got = 0; (got = read(descriptor_, piece, sizeof piece)) > 0;) {
            all.append(piece, static_cast<std::size_t>(got));
        }
        return all;
    }

private:
    std::string path_;
    int descriptor_ = -1;
};

class StandardError : public testing::Test {
protected:
    // `redirection` is of the shell; it names the pipe "$PIPE". A sanitizer writes what it says beside the pipe, since
    // it would wait for a reader.
    void serve(const std::string &redirection, const std::vector<std::string> &more = {}) {
        std::vector<std::string> words{
            "-c",
            "PIPE=$0; export ASAN_OPTIONS=\"$ASAN_OPTIONS:log_path=$PIPE.log\"; exec \"$@\" " + redirection,
            pipe_.path(),
            tool(),
            "answer",
            "--socket",
            socket_,
            "cl-debug=" + directory_.write("debug.xml", debug_xml)};
        words.insert(words.end(), more.begin(), more.end());
        server_ = std::make_unique<Process>(words, "/bin/sh");
    }
    Outcome show() const { return tarn({"show", "cl-debug", "--socket", socket_, "--timeout", "60"}); }
    // Each peer costs a line in the log.
    void send_garbage(int peers) const {
        for (int i = 0; i < peers; ++i) {
            const Socket peer = Socket::connect_to(socket_);
            peer.send(std::string(43, 'x'));
            EXPECT_EQ(peer.receive(), "");
        }
    }

    Directory directory_;
    Pipe pipe_{directory_.path("pipe")};
    std::string socket_ = directory_.path("socket");
    std::unique_ptr<Process> server_;
};

TEST_F(StandardError, ThatNobodyReadsDoesNotStopTheService) {
    serve("2>\"$PIPE\"", {"--log-rate", "0"});
    ASSERT_TRUE(server_->wait_for("answering on"));
    // A pipe takes 64 KiB, and so does the log; a line has more than 60 bytes.
    send_garbage(2500);
    EXPECT_EQ(show().exit, 0);
    server_->signal(SIGTERM);
    const std::string log = pipe_.read_all();
    EXPECT_EQ(log.rfind("tarn: peer 1 disconnected: it sent bytes that are not a frame\n", 0), 0U);
    EXPECT_NE(log.find(" lines were dropped: standard error is too slow\n"), std::string::npos);
    const Outcome end = server_->finish();
    EXPECT_EQ(end.exit, 0);
    EXPECT_NE(end.out.find("stopped after 1 answers, 2500 peers disconnected\n"), std::string::npos) << end.out;
}

TEST_F(StandardError, ThatNobodyReadsDoesNotKeepTheProcessFromStopping) {
    serve("2>\"$PIPE\"", {"--log-rate", "0"});
    ASSERT_TRUE(server_->wait_for("answering on"));
    send_garbage(1500);
    const Outcome end = server_->stop();
    EXPECT_EQ(end.exit, 0);
    EXPECT_NE(end.out.find("1500 peers disconnected\n"), std::string::npos) << end.out;
}

TEST_F(StandardError, ThatIsClosedDoesNotStopTheService) {
    serve("2>\"$PIPE\"");
    ASSERT_TRUE(server_->wait_for("answering on"));
    pipe_.close_reading_end();
    send_garbage(3);
    EXPECT_EQ(show().exit, 0);
    const Outcome end = server_->stop();
    EXPECT_EQ(end.exit, 0);
    EXPECT_NE(end.out.find("stopped after 1 answers, 3 peers disconnected\n"), std::string::npos) << end.out;
}

// Only the summary at the end is lost, which is an error of its own.
TEST_F(StandardError, AndOutputThatAreClosedDoNotStopTheService) {
    serve(">\"$PIPE\" 2>&1");
    while (server_->is_running() && show().exit != 0) {
    }
    pipe_.close_reading_end();
    send_garbage(3);
    EXPECT_EQ(show().exit, 0);
    EXPECT_EQ(server_->stop().exit, 3);
}

TEST_F(StandardError, HasALimitedNumberOfLinesAboutPeersOfOneOrigin) {
    serve("", {"--log-rate", "3"});
    ASSERT_TRUE(server_->wait_for("answering on"));
    // A second may end meanwhile, which allows three more lines.
    send_garbage(200);
    const Outcome end = server_->stop();
    EXPECT_NE(end.out.find(", 200 peers disconnected\n"), std::string::npos) << end.out;
    const std::string omitted = " lines about peers of user " + std::to_string(getuid()) + " were omitted\n";
    const std::size_t lines = occurrences(end.err, " disconnected: it sent bytes that are not a frame\n");
    EXPECT_EQ(lines, 3 * occurrences(end.err, omitted)) << end.err;
    EXPECT_LE(lines, 60U);
}

TEST(StandardOutput, ThatIsClosedIsReported) {
    const Outcome outcome =
        run("/bin/sh", {"-c", R"({ "$0" generate dp-tt-cfg --elements 30; echo $? >&2; } | true)", tool()});
    EXPECT_EQ(outcome.err, "tarn: standard output: Broken pipe\n3\n");
}

}  // namespace

}  // namespace tool_test
