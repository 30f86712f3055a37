// tarn: inspects, converts, serves and records messages of the library lumo_ui_tarn.
#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "tools/tarn/commands/program.h"

namespace {

// The program of the package lumo-ui-tarn-fleet does all that this one does, and more. It returns only if the package
// is not installed.
void execute_fleet_program(char **argv) {
    std::error_code error;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) execv((self.parent_path() / TARN_FLEET_PROGRAM).c_str(), argv);
}

}  // namespace

int main(int argc, char **argv) {
    execute_fleet_program(argv);
    return tarn::tool::run_program(argc, argv);
}
