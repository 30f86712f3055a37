// Options that several commands have, and what their values are.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>

#include "tools/tarn/service/client.h"

namespace tarn::tool {

// What words stand for; an option's type, and so shown by --help as well.
namespace words {
inline constexpr const char *file = "FILE";
inline constexpr const char *address = "ADDRESS";
inline constexpr const char *bundle = "BUNDLE";
inline constexpr const char *bundle_file = "BUNDLE=FILE";
inline constexpr const char *bundle_or_message = "BUNDLE|MESSAGE";
inline constexpr const char *type = "TYPE[.MEMBER...]";
}  // namespace words

// How an option that takes a TCP address describes it.
std::string tcp_words(const std::string &what);

// A time in seconds, at most a day; 0 is permitted where it means no limit. The value before is the default.
void add_seconds(CLI::App &command, const std::string &name, double &seconds, const std::string &what);
// A number of bytes below 4 GiB, with an optional unit.
void add_size(CLI::App &command, const std::string &name, std::uint64_t &size, const std::string &what,
              std::uint64_t least);

// The positional `file`, which is standard input if left out.
void add_input(CLI::App &command, std::string &path, const std::string &what);
void add_output(CLI::App &command, std::string &path, const std::string &what);
void add_lenient(CLI::App &command, bool &lenient);
void add_verbose(CLI::App &command, bool &verbose);

// Of the side that asks.
void add_timeout(CLI::App &command, double &seconds, const std::string &what);
void add_limits(CLI::App &command, AnswerLimits &limits);
void add_via(CLI::App &command, std::string &via, const std::string &what);

}  // namespace tarn::tool
