#include "process.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

extern char **environ;

namespace tool_test {

namespace {

void require(bool good, const char *what) {
    if (!good) throw std::runtime_error(std::string(what) + ": " + std::strerror(errno));
}

std::string read_path(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string temporary_file() {
    char name[] = "/tmp/tarn-test-XXXXXX";
    const int descriptor = mkstemp(name);
    require(descriptor >= 0, "mkstemp");
    close(descriptor);
    return name;
}

pid_t start(const std::string &program, const std::vector<std::string> &arguments, const std::string &in,
            const std::string &out, const std::string &err) {
    std::vector<char *> words{const_cast<char *>(program.c_str())};
    for (const std::string &a : arguments) words.push_back(const_cast<char *>(a.c_str()));
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    pid_t pid = -1;
    const int error = posix_spawn(&pid, program.c_str(), &actions, nullptr, words.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) throw std::runtime_error(std::string("posix_spawn: ") + std::strerror(error));
    return pid;
}

int exit_of(int status) { return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status); }

sockaddr_un address_of(const std::string &path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) throw std::runtime_error("the path is too long for a socket");
    std::memcpy(address.sun_path, path.c_str(), path.size());
    return address;
}

}  // namespace

std::size_t occurrences(std::string_view in, std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = in.find(text, at)) != std::string_view::npos; at += text.size()) ++count;
    return count;
}

std::string tool() {
    const char *path = std::getenv("TARN_TOOL");
    return path != nullptr ? path : TARN_TOOL;
}

Outcome run(const std::string &program, const std::vector<std::string> &arguments, std::string_view input) {
    const Directory directory;
    const std::string in = directory.write("in", input);
    const std::string out = directory.path("out"), err = directory.path("err");
    int status = 0;
    require(waitpid(start(program, arguments, in, out, err), &status, 0) >= 0, "waitpid");
    return {exit_of(status), read_path(out), read_path(err)};
}

Outcome tarn(const std::vector<std::string> &arguments, std::string_view input) {
    return run(tool(), arguments, input);
}

Process::Process(const std::vector<std::string> &arguments, const std::string &program)
    : out_(temporary_file()), err_(temporary_file()) {
    pid_ = start(program, arguments, "/dev/null", out_, err_);
}

Process::~Process() {
    if (pid_ > 0) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    unlink(out_.c_str());
    unlink(err_.c_str());
}

bool Process::wait_in(const std::string &path, std::string_view text, std::size_t times) const {
    for (int i = 0; i < 6000; ++i) {
        const bool runs = is_running();
        if (occurrences(read_path(path), text) >= times) return true;
        if (!runs) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

bool Process::wait_for(std::string_view text) const { return wait_in(out_, text, 1); }

bool Process::wait_for_error(std::string_view text, std::size_t times) const { return wait_in(err_, text, times); }

std::string Process::out() const { return read_path(out_); }

std::string Process::err() const { return read_path(err_); }

std::size_t Process::open_files() const {
    const std::filesystem::directory_iterator files("/proc/" + std::to_string(pid_) + "/fd");
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

bool Process::reaches_open_files(std::size_t files) const {
    for (int i = 0; i < 6000 && open_files() > files; ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return open_files() == files;
}

std::size_t Process::resident_kib() const {
    std::ifstream in("/proc/" + std::to_string(pid_) + "/statm");
    std::size_t all = 0, resident = 0;
    in >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) / 1024;
}

std::string Process::status(const std::string &field) const {
    std::ifstream in("/proc/" + std::to_string(pid_) + "/status");
    for (std::string name, value; in >> name && std::getline(in >> std::ws, value);) {
        if (name == field + ":") return value;
    }
    return {};
}

bool Process::is_running() const {
    siginfo_t info{};
    return waitid(P_PID, static_cast<id_t>(pid_), &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid == 0;
}

void Process::signal(int number) const { kill(pid_, number); }

Outcome Process::stop() {
    signal(SIGTERM);
    return finish();
}

Outcome Process::finish() {
    int status = 0;
    require(waitpid(pid_, &status, 0) >= 0, "waitpid");
    pid_ = -1;
    return {exit_of(status), read_path(out_), read_path(err_)};
}

Directory::Directory() {
    char name[] = "/tmp/tarn-test-XXXXXX";
    require(mkdtemp(name) != nullptr, "mkdtemp");
    path_ = name;
}

Directory::~Directory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string Directory::write(const std::string &name, std::string_view content) const {
    std::ofstream(path(name), std::ios::binary) << content;
    return path(name);
}

std::string Directory::read(const std::string &name) const { return read_path(path(name)); }

namespace {

std::vector<std::string> answer_on(const std::string &socket, const std::vector<std::string> &more) {
    std::vector<std::string> all{"answer", "--socket", socket};
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

}  // namespace

Server::Server(const std::vector<std::string> &arguments)
    : process_(answer_on(socket(), arguments)), ready_(process_.wait_for("answering on")) {}

Outcome Server::show(const std::string &what, std::vector<std::string> more) const {
    std::vector<std::string> all{"show", what, "--socket", socket()};
    all.insert(all.end(), more.begin(), more.end());
    return tarn(all);
}

Socket Socket::connect_to(const std::string &path) {
    Socket socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    const sockaddr_un address = address_of(path);
    require(connect(socket.descriptor_, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0, "connect");
    socket.set_timeouts();
    return socket;
}

Socket Socket::connect_to_port(const std::string &port, const std::string &from) {
    Socket socket(::socket(AF_INET, SOCK_STREAM, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    require(inet_pton(AF_INET, from.c_str(), &address.sin_addr) == 1, "inet_pton");
    require(bind(socket.descriptor_, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0, "bind");
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(std::stoi(port)));
    require(connect(socket.descriptor_, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0, "connect");
    socket.set_timeouts();
    return socket;
}

void Socket::set_timeouts() const {
    const timeval timeout{60, 0};
    setsockopt(descriptor_, SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
    setsockopt(descriptor_, SOL_SOCKET, SO_SNDTIMEO, &timeout, sizeof timeout);
}

Socket Socket::listen_on(const std::string &path) {
    Socket socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    const sockaddr_un address = address_of(path);
    require(bind(socket.descriptor_, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0, "bind");
    require(listen(socket.descriptor_, 8) == 0, "listen");
    return socket;
}

Socket::~Socket() {
    if (descriptor_ >= 0) close(descriptor_);
}

Socket Socket::accept() const {
    Socket peer(::accept(descriptor_, nullptr, nullptr));
    require(peer.descriptor_ >= 0, "accept");
    return peer;
}

bool Socket::send(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

void Socket::end_sending() const { require(shutdown(descriptor_, SHUT_WR) == 0, "shutdown"); }

std::string Socket::receive(std::size_t most) const {
    std::string all;
    char piece[4096];
    while (all.size() < most) {
        const ssize_t got = recv(descriptor_, piece, std::min(sizeof piece, most - all.size()), 0);
        if (got <= 0) break;
        all.append(piece, static_cast<std::size_t>(got));
    }
    return all;
}

}  // namespace tool_test
