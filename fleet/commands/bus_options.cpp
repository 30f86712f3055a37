#include "fleet/commands/bus_options.h"

#include "fleet/bus/names.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

CLI::Option *add_bus(CLI::App &command, CLI::App &group, BusOptions &options) {
    CLI::Option *bus =
        group
            .add_option("--bus", options.url,
                        "Address of a bus (a server of NATS), such as nats://127.0.0.1:4222; several "
                        "are separated by commas")
            ->type_name(words::url)
            ->check([](const std::string &text) { return text.empty() ? "must not be empty" : std::string(); });
    command.add_option("--bus-ca", options.ca, "Certificates of the authorities that sign those of the bus's servers")
        ->type_name(tool::words::file)
        ->needs(bus);
    CLI::Option *certificate =
        command.add_option("--bus-cert", options.certificate, "Certificate of this process for the bus")
            ->type_name(tool::words::file)
            ->needs(bus);
    CLI::Option *key = command.add_option("--bus-key", options.key, "Key of the certificate")
                           ->type_name(tool::words::file)
                           ->needs(certificate);
    certificate->needs(key);
    command.add_option("--bus-creds", options.credentials, "Credentials of a user of the bus, a file of its tools")
        ->type_name(tool::words::file)
        ->needs(bus);
    return bus;
}

std::string name_problem(const std::string &name) {
    return is_name(name) ? "" : tool::in_quotes(name) + " is not a name: " + name_form;
}

}  // namespace tarn::fleet
