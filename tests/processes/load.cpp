// An answering process under load: load --minutes M, or load --rounds N. Prints what it did and what it holds, and
// fails if its memory or its open files have grown.
#include <chrono>
#include <cstdio>
#include <cstring>

#include "crowd.h"

using namespace tool_test;

namespace {

class Load {
public:
    bool is_ready() const { return besieged_.is_ready(); }

    // Twenty clients, of which eight behave; some of the others hang on for a few rounds.
    void round() {
        crowd_.stall(2);
        crowd_.send_rubbish(3);
        crowd_.vanish_within_a_frame(3);
        crowd_.send_too_long_a_frame(2);
        crowd_.never_read(2);
        crowd_.ask(8);
        crowd_.let_go(30);
        if (++rounds_ % 50 == 0) rest();
    }
    // More come than are served, nobody leaves by himself, and then all are gone but the process.
    void rest() {
        crowd_.stall(120);
        crowd_.wait_until_turned_out();
        if (!process().comes_down_to(files_)) ++late_;
    }

    // Rounds until memory has found its level.
    void warm_up() {
        std::printf("%10s %10s %10s %14s %12s\n", "rounds", "clients", "answered", "resident KiB", "open files");
        show();
        for (int i = 0; i < 100; ++i) round();
        rest();
        level_ = process().resident_kib();
        show();
    }
    void show() const {
        std::printf("%10u %10llu %10llu %14zu %12zu\n", rounds_, static_cast<unsigned long long>(crowd_.clients()),
                    static_cast<unsigned long long>(crowd_.answered()), process().resident_kib(),
                    process().open_files());
        std::fflush(stdout);
    }

    // Says what came of it.
    bool is_well() {
        rest();
        show();
        const std::size_t resident = process().resident_kib(), files = process().open_files();
        const Outcome end = process().stop();
        std::printf("%s", end.out.substr(end.out.find('\n') + 1).c_str());
        for (const char *reason :
             {"frame exceeds the limit", "too long for one frame", "pile up unread", "peers already"}) {
            std::printf("%10zu %s\n", occurrences(end.err, reason), reason);
        }
        const bool flat = resident <= level_ + allocator_play_kib;
        std::printf("memory is %s: %zu KiB at the end, %zu KiB after the first hundred rounds\n",
                    flat ? "flat" : "not flat", resident, level_);
        if (crowd_.answered() != crowd_.asked()) std::printf("not everybody who asked was answered\n");
        if (files != files_ || late_ != 0) std::printf("files stayed open\n");
        if (end.exit != 0) std::printf("the process ended with %d\n", end.exit);
        return flat && crowd_.answered() == crowd_.asked() && files == files_ && late_ == 0 && end.exit == 0;
    }

private:
    const Process &process() const { return besieged_.server().process(); }
    Process &process() { return besieged_.server().process(); }

    Besieged besieged_{{"--peers", "100", "--frame-time", "0.1"}};
    Crowd crowd_{besieged_.server().socket(), besieged_.answer_size()};
    std::size_t files_ = process().open_files();
    std::size_t level_ = 0;
    unsigned rounds_ = 0, late_ = 0;
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
    const double much = argc == 3 ? std::atof(argv[2]) : 0;
    if (!(timed || (argc == 3 && std::strcmp(argv[1], "--rounds") == 0)) || much <= 0 || much > 1e6) {
        std::fprintf(stderr, "usage: load --minutes MINUTES | --rounds ROUNDS\n");
        return 2;
    }
    Load load;
    if (!load.is_ready()) return 3;
    load.warm_up();
    if (timed) {
        run_minutes(load, much);
    } else {
        run_rounds(load, static_cast<unsigned>(much));
    }
    return load.is_well() ? 0 : 1;
}
