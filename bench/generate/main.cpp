// Prints code for the benchmarks from the schema: bench_generate KIND DIRECTORY.
#include <iostream>
#include <string>

#include "bench/generate/writers.h"

int main(int argc, char **argv) {
    using namespace tarn;
    const std::string kind = argc == 3 ? argv[1] : "";
    if (kind == "floor") {
        generate::write_files(argv[2], bench::write_floor());
    } else if (kind == "plain") {
        generate::write_files(argv[2], bench::write_plain());
    } else if (kind == "rivals") {
        generate::write_files(argv[2], bench::write_rivals());
    } else {
        std::cerr << "usage: bench_generate floor|plain|rivals DIRECTORY\n";
        return 2;
    }
    return 0;
}
