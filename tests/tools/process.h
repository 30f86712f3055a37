// Running the tool as other people's programs do: with arguments, pipes, files and sockets.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tool_test {

struct Outcome {
    int exit = -1;    // 128 + signal if it was killed
    std::string out;  // standard output
    std::string err;  // standard error
};

// Runs a program, which is given by its path, to its end.
Outcome run(const std::string &program, const std::vector<std::string> &arguments, std::string_view input = {});

// Runs the tool to its end.
Outcome tarn(const std::vector<std::string> &arguments, std::string_view input = {});

// The tool in the background, with its standard output and error in files.
class Process {
public:
    explicit Process(const std::vector<std::string> &arguments);
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;
    ~Process();

    // Waits until the standard output holds the text. False if the process ends or ten seconds pass first.
    bool wait_for(std::string_view text) const;
    std::string out() const;
    bool is_running() const;
    void signal(int number) const;
    // Sends SIGTERM and waits for the end.
    Outcome stop();
    // Waits for the end.
    Outcome finish();

private:
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
    static Socket listen_on(const std::string &path);
    Socket(Socket &&other) noexcept : descriptor_(other.descriptor_) { other.descriptor_ = -1; }
    Socket &operator=(Socket &&) = delete;
    ~Socket();

    Socket accept() const;
    void send(std::string_view bytes) const;
    // Everything until the other side closes, or until so many bytes have come.
    std::string receive(std::size_t most = SIZE_MAX) const;

private:
    explicit Socket(int descriptor) : descriptor_(descriptor) {}

    int descriptor_;
};

}  // namespace tool_test
