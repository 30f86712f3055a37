// Prints code for the benchmarks from the schema: bench_generate KIND DIRECTORY.
#include <iostream>
#include <string>

#include "bench/generate/writers.h"

int main(int argc, char **argv) {
    using namespace tarn;
    const std::string kind = argc == 3 ? argv[1] : "";
    if (kind == "lower_bound") {
        generate::write_files(argv[2], bench::write_lower_bound());
    } else if (kind == "plain") {
        generate::write_files(argv[2], bench::write_plain());
    } else if (kind == "competitors") {
        generate::write_files(argv[2], bench::write_competitors());
    } else {
        std::cerr << "usage: bench_generate lower_bound|plain|competitors DIRECTORY\n";
        return 2;
    }
    return 0;
}
