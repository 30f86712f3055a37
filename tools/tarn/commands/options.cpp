#include "tools/tarn/commands/options.h"

#include "mirk_platform.h"

namespace tarn::tool {

std::string tcp_words(const std::string &what) {
    return "HOST:PORT, " + what + "; without a host 127.0.0.1, without a port " +
           std::to_string(MIRK_PLATFORM_TCP_PORT);
}

void add_seconds(CLI::App &command, const std::string &name, double &seconds, const std::string &what) {
    command.add_option(name, seconds, what)
        ->check(CLI::Range(0.0, 86400.0).description(""))
        ->type_name("SECONDS")
        ->capture_default_str();
}

void add_size(CLI::App &command, const std::string &name, std::uint64_t &size, const std::string &what,
              std::uint64_t least) {
    const bool whole_mib = size % (1U << 20) == 0;
    command.add_option(name, size, what)
        ->check(CLI::Range(least, std::uint64_t{UINT32_MAX}).description(""))
        ->transform(CLI::AsSizeValue(false).description(""))
        ->type_name("SIZE")
        ->default_str(whole_mib ? std::to_string(size >> 20) + "MiB" : std::to_string(size >> 10) + "KiB");
}

void add_input(CLI::App &command, std::string &path, const std::string &what) {
    command.add_option("file", path, what + "; - is standard input")->type_name(words::file)->capture_default_str();
}

void add_output(CLI::App &command, std::string &path, const std::string &what) {
    command.add_option("-o,--output", path, what + "; - is standard output")
        ->type_name(words::file)
        ->capture_default_str();
}

void add_lenient(CLI::App &command, bool &lenient) {
    command.add_flag("--lenient", lenient, "pass over what the schema does not know");
}

void add_verbose(CLI::App &command, bool &verbose) {
    command.add_flag("-v,--verbose", verbose, "print every trace line on standard error");
}

void add_timeout(CLI::App &command, double &seconds, const std::string &what) {
    command.add_option("--timeout", seconds, what)->check(CLI::Range(0.001, 86400.0))->capture_default_str();
}

void add_limits(CLI::App &command, AnswerLimits &limits) {
    add_size(command, "--frame-limit", limits.frame, "longest frame that the answer may hold", 1 << 10);
    add_size(command, "--answer-limit", limits.answer, "most bytes that an answer may have", 1 << 10);
}

void add_via(CLI::App &command, std::string &via, const std::string &what) {
    command.add_option("--via", via, what)->check(CLI::IsMember(via_words()))->capture_default_str();
}

}  // namespace tarn::tool
