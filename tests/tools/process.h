// Runs the tool as other programs do: with arguments, pipes, files and sockets.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tool_test {

// Number of occurrences of a text in another.
std::size_t occurrences(std::string_view in, std::string_view text);

struct Outcome {
    int exit = -1;    // 128 + signal if it was killed
    std::string out;  // standard output
    std::string err;  // standard error
};

// Runs a program and waits for its end.
Outcome run(const std::string &program, const std::vector<std::string> &arguments, std::string_view input = {});

// The path of the tool: TARN_TOOL in the environment, or else the tool of this build.
std::string tool();

// Runs the tool and waits for its end.
Outcome tarn(const std::vector<std::string> &arguments, std::string_view input = {});

// A program in the background, by default the tool. Its standard output and error are files.
class Process {
public:
    explicit Process(const std::vector<std::string> &arguments, const std::string &program = tool());
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;
    ~Process();

    // Waits until the standard output contains the text. False if the process ends or a minute passes first.
    bool wait_for(std::string_view text) const;
    std::string out() const;
    std::string err() const;
    // Waits until the standard error contains the text `times` times. False as with wait_for().
    bool wait_for_error(std::string_view text, std::size_t times = 1) const;
    bool is_running() const;
    // The number of its open files, according to the system.
    std::size_t open_files() const;
    // Waits until it has no more than `files` open files. False if a minute passes first, or if it has fewer.
    bool reaches_open_files(std::size_t files) const;
    std::size_t resident_kib() const;
    // A field of its status, according to the system, such as "NoNewPrivs".
    std::string status(const std::string &field) const;
    void signal(int number) const;
    // Sends SIGTERM and waits for its end.
    Outcome stop();
    // Waits for its end.
    Outcome finish();

private:
    bool wait_in(const std::string &path, std::string_view text, std::size_t times) const;

    pid_t pid_ = -1;
    std::string out_, err_;
};

// A temporary directory.
class Directory {
public:
    Directory();
    Directory(const Directory &) = delete;
    Directory &operator=(const Directory &) = delete;
    ~Directory();

    std::string path(const std::string &name) const { return path_ + "/" + name; }
    std::string write(const std::string &name, std::string_view content) const;
    std::string read(const std::string &name) const;

private:
    std::string path_;
};

// tarn answer on its own socket; the constructor waits until it is ready.
class Server {
public:
    explicit Server(const std::vector<std::string> &arguments);

    std::string socket() const { return directory_.path("socket"); }
    Process &process() { return process_; }
    const Process &process() const { return process_; }
    bool is_ready() const { return ready_; }
    Outcome show(const std::string &what, std::vector<std::string> more = {}) const;

private:
    Directory directory_;
    Process process_;
    bool ready_;
};

// A stream socket of the test.
class Socket {
public:
    static Socket connect_to(const std::string &path);
    // Of this machine, from one of its addresses.
    static Socket connect_to_port(const std::string &port, const std::string &from = "127.0.0.1");
    static Socket listen_on(const std::string &path);
    Socket(Socket &&other) noexcept : descriptor_(other.descriptor_) { other.descriptor_ = -1; }
    Socket &operator=(Socket &&) = delete;
    ~Socket();

    Socket accept() const;
    // False if the other side has closed the connection, or reads nothing for a minute.
    bool send(std::string_view bytes) const;
    // Closes the sending side. The other side sees the end of input and can still be read from.
    void end_sending() const;
    // Everything until the other side closes the connection, but at most `most` bytes.
    std::string receive(std::size_t most = SIZE_MAX) const;

private:
    explicit Socket(int descriptor) : descriptor_(descriptor) {}
    void set_timeouts() const;

    int descriptor_;
};

}  // namespace tool_test
