// Loads an answering process: load --minutes M, or load --rounds N. Prints its progress, its memory and its open files,
// and fails if one of these has grown.
#include <chrono>
#include <cstdio>
#include <cstring>

#include "crowd.h"

using namespace tool_test;

namespace {

class Load {
public:
    bool is_ready() const { return limited_.is_ready(); }

    // Twenty clients, eight of which behave. Some of the others stay connected for a few rounds.
    void round() {
        crowd_.stall(2);
        crowd_.send_garbage(3);
        crowd_.disconnect_within_a_frame(3);
        crowd_.send_a_long_frame(2);
        crowd_.never_read(2);
        crowd_.request(8);
        crowd_.close_oldest(30);
        if (++rounds_ % 50 == 0) disconnect_all();
    }
    // Connects more clients than are served, and waits until the process has disconnected all of them.
    void disconnect_all() {
        crowd_.stall(120);
        crowd_.wait_until_disconnected();
        if (!process().reaches_open_files(files_)) ++leaks_;
    }

    // Rounds until the memory is stable.
    void warm_up() {
        std::printf("%10s %10s %10s %14s %12s\n", "rounds", "clients", "answered", "resident KiB", "open files");
        show();
        for (int i = 0; i < 100; ++i) round();
        disconnect_all();
        level_ = process().resident_kib();
        show();
    }
    void show() const {
        std::printf("%10u %10llu %10llu %14zu %12zu\n", rounds_, static_cast<unsigned long long>(crowd_.clients()),
                    static_cast<unsigned long long>(crowd_.answered()), process().resident_kib(),
                    process().open_files());
        std::fflush(stdout);
    }

    // Prints the summary. False if something has failed or grown.
    bool finish() {
        disconnect_all();
        show();
        const std::size_t resident = process().resident_kib(), files = process().open_files();
        const Outcome end = process().stop();
        std::printf("%s", end.out.substr(end.out.find('\n') + 1).c_str());
        for (const char *reason :
             {"frame exceeds the limit", "too long for one frame", "too many bytes unread", "peers already"}) {
            std::printf("%10zu %s\n", occurrences(end.err, reason), reason);
        }
        const bool stable = resident <= level_ + allocator_tolerance_kib;
        std::printf("memory %s: %zu KiB at the end, %zu KiB after the first hundred rounds\n",
                    stable ? "has not grown" : "has grown", resident, level_);
        if (crowd_.answered() != crowd_.requests()) std::printf("not all requests were answered\n");
        if (files != files_ || leaks_ != 0) std::printf("the process has not closed all files\n");
        if (end.exit != 0) std::printf("the process ended with exit code %d\n", end.exit);
        return stable && crowd_.answered() == crowd_.requests() && files == files_ && leaks_ == 0 && end.exit == 0;
    }

private:
    const Process &process() const { return limited_.server().process(); }
    Process &process() { return limited_.server().process(); }

    LimitedServer limited_{{"--peers", "100", "--frame-time", "0.1"}};
    Crowd crowd_{limited_.server().socket(), limited_.answer_size()};
    std::size_t files_ = process().open_files();
    std::size_t level_ = 0;
    unsigned rounds_ = 0, leaks_ = 0;
};

void run_rounds(Load &load, unsigned rounds) {
    for (unsigned part = 0; part < 5; ++part) {
        for (unsigned i = 0; i < rounds / 5; ++i) load.round();
        load.show();
    }
}

void run_minutes(Load &load, double minutes) {
    const auto begin = std::chrono::steady_clock::now();
    for (int part = 1; part <= 20; ++part) {
        const auto end = begin + std::chrono::duration<double, std::ratio<60>>(minutes * part / 20);
        do {
            load.round();
        } while (std::chrono::steady_clock::now() < end);
        load.show();
    }
}

}  // namespace

int main(int argc, char **argv) {
    const bool timed = argc == 3 && std::strcmp(argv[1], "--minutes") == 0;
    const double amount = argc == 3 ? std::atof(argv[2]) : 0;
    if (!(timed || (argc == 3 && std::strcmp(argv[1], "--rounds") == 0)) || amount <= 0 || amount > 1e6) {
        std::fprintf(stderr, "usage: load --minutes MINUTES | --rounds ROUNDS\n");
        return 2;
    }
    Load load;
    if (!load.is_ready()) return 3;
    load.warm_up();
    if (timed) {
        run_minutes(load, amount);
    } else {
        run_rounds(load, static_cast<unsigned>(amount));
    }
    return load.finish() ? 0 : 1;
}
