#include "fleet/commands/fleet_commands.h"

namespace tarn::fleet {

namespace {

void add_commands(CLI::App &app, tool::Context &context) {
    add_collect(app, context);
    add_simulate(app, context);
    add_history(app, context);
    extend_inputs(app);
}

}  // namespace

const tool::Extension fleet_extension = {add_commands, extend_answer, extend_show};

}  // namespace tarn::fleet
