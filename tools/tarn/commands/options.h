// Options that several commands share, and the types of their values.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>

#include "tools/tarn/formats/comparison.h"
#include "tools/tarn/formats/input.h"
#include "tools/tarn/service/client.h"

namespace tarn::tool {

// Types of values. --help prints them, and completion chooses candidates by them.
namespace words {
inline constexpr const char *file = "FILE", *file_a = "FILE_A", *file_b = "FILE_B";
inline constexpr const char *address = "ADDRESS";
inline constexpr const char *bundle = "BUNDLE";
inline constexpr const char *bundle_file = "BUNDLE=FILE";
inline constexpr const char *bundle_or_message = "BUNDLE|MESSAGE";
inline constexpr const char *columns = "COLUMN[,COLUMN...]";
inline constexpr const char *record = "RECORD";
inline constexpr const char *type = "TYPE[.MEMBER...]";
}  // namespace words

// The description of an option that takes a TCP address.
std::string tcp_words();

// For all options with a file or an address: an empty text would count as an option that was not given, and the system
// has no words for what is wrong with an address.
void check_places(CLI::App &app);

// --version and --color, which all commands have.
void add_to_all_commands(CLI::App &app);

// A time in seconds, at most a day. 0 means no limit unless `least` excludes it. The initial value is the default.
void add_seconds(CLI::App &command, const std::string &name, double &seconds, const std::string &what,
                 double least = 0);
// A number of bytes with an optional unit. The initial value is the default, unless it is 0.
CLI::Option *add_size(CLI::App &command, const std::string &name, std::uint64_t &size, const std::string &what,
                      std::uint64_t least, std::uint64_t most = UINT32_MAX);

// The positional `file`; its default is standard input.
void add_input(CLI::App &command, std::string &path, const std::string &what);
// The positional `files`: files and folders; the default is standard input. And how to read them.
void add_files(CLI::App &command, InputOptions &options, const std::string &what);
void add_keep_going(CLI::App &command, bool &keep_going);
void add_port(CLI::App &command, std::uint16_t &port);
// All options of a command that reads messages: those of add_files(), add_keep_going(), add_port(), add_from() and
// add_lenient().
void add_inputs(CLI::App &command, InputOptions &options);
void add_output(CLI::App &command, std::string &path, const std::string &what);
void add_force(CLI::App &command, bool &force);
void add_from(CLI::App &command, From &from);
void add_lenient(CLI::App &command, bool &lenient);
void add_verbose(CLI::App &command, bool &verbose);

// What to compare; shared by the commands that print changes.
struct ComparisonOptions {
    std::vector<std::string> ignored, ignore_files, by;
    bool no_state = false;

    ComparisonRules rules() const;
};
void add_comparison(CLI::App &command, ComparisonOptions &options);

// Options of a requesting process.
CLI::Option_group &add_endpoint(CLI::App &command, Endpoint &endpoint);
void add_timeout(CLI::App &command, double &seconds, const std::string &what);
void add_limits(CLI::App &command, AnswerLimits &limits);
CLI::Option *add_via(CLI::App &command, std::string &via, const std::string &what);

}  // namespace tarn::tool
