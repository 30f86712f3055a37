// Running the tool as other people's programs do: with arguments, pipes, files and sockets.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tool_test {

// How often a text occurs in another.
std::size_t occurrences(std::string_view in, std::string_view text);

struct Outcome {
    int exit = -1;    // 128 + signal if it was killed
    std::string out;  // standard output
    std::string err;  // standard error
};

// Runs a program, which is given by its path, to its end.
Outcome run(const std::string &program, const std::vector<std::string> &arguments, std::string_view input = {});

// The path of the tool: of this build's, unless the environment names another one.
std::string tool();

// Runs the tool to its end.
Outcome tarn(const std::vector<std::string> &arguments, std::string_view input = {});

// A program in the background, the tool if none is told, with its standard output and error in files.
class Process {
public:
    explicit Process(const std::vector<std::string> &arguments, const std::string &program = tool());
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;
    ~Process();

    // Waits until the standard output holds the text. False if the process ends or a minute passes first.
    bool wait_for(std::string_view text) const;
    std::string out() const;
    std::string err() const;
    // Waits until the standard error holds the text so often. False as with wait_for().
    bool wait_for_error(std::string_view text, std::size_t times = 1) const;
    bool is_running() const;
    // What the system says of it while it runs.
    std::size_t open_files() const;
    // Waits until it has no more files open. False if a minute passes first, or if it has fewer.
    bool comes_down_to(std::size_t files) const;
    std::size_t resident_kib() const;
    void signal(int number) const;
    // Sends SIGTERM and waits for the end.
    Outcome stop();
    // Waits for the end.
    Outcome finish();

private:
    bool wait_in(const std::string &path, std::string_view text, std::size_t times) const;

    pid_t pid_ = -1;
    std::string out_, err_;
};

// A directory of its own for each test, gone with it.
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

// tarn answer on a socket of its own, ready when made.
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

// A stream socket of the test's own.
class Socket {
public:
    static Socket connect_to(const std::string &path);
    static Socket connect_to_port(const std::string &port);  // of this machine
    static Socket listen_on(const std::string &path);
    Socket(Socket &&other) noexcept : descriptor_(other.descriptor_) { other.descriptor_ = -1; }
    Socket &operator=(Socket &&) = delete;
    ~Socket();

    Socket accept() const;
    // False if the other side has had enough, or takes nothing for a minute.
    bool send(std::string_view bytes) const;
    // Everything until the other side closes, or until so many bytes have come.
    std::string receive(std::size_t most = SIZE_MAX) const;

private:
    explicit Socket(int descriptor) : descriptor_(descriptor) {}
    void set_patience() const;

    int descriptor_;
};

}  // namespace tool_test
