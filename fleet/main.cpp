// tarn-fleet: the program tarn with a bus, stores and collectors. tarn executes it if it is installed.
#include "fleet/commands/fleet_commands.h"
#include "tools/tarn/commands/extension.h"
#include "tools/tarn/commands/program.h"

int main(int argc, char **argv) {
    tarn::tool::extension = &tarn::fleet::fleet_extension;
    return tarn::tool::run_program(argc, argv);
}
