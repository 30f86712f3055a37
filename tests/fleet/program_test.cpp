// The programs tarn and tarn-fleet: which one runs, and what only the other knows.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "process.h"
#include "tools/tarn/commands/extension.h"

namespace fleet_test {

namespace {

using tool_test::Directory;
using tool_test::Outcome;
using tool_test::run;

const std::string plain = TARN_PLAIN_TOOL, with_fleet = TARN_TOOL;

std::vector<std::string> candidates(const std::string &program, const std::vector<std::string> &words) {
    std::vector<std::string> all{"complete"}, names;
    all.insert(all.end(), words.begin(), words.end());
    std::istringstream in(run(program, all).out);
    for (std::string line; std::getline(in, line);) names.push_back(line.substr(0, line.find('\t')));
    return names;
}

bool contains(const std::vector<std::string> &names, const std::string &name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

const std::string not_installed = "requires the package lumo-ui-tarn-fleet, which is not installed";

TEST(FleetProgram, TarnNamesThePackageOfEachCommandThatItLacks) {
    for (const std::string &name : candidates(with_fleet, {""})) {
        if (contains(candidates(plain, {""}), name)) continue;
        const Outcome outcome = run(plain, {name});
        EXPECT_EQ(outcome.exit, 2) << name;
        EXPECT_NE(outcome.err.find(not_installed), std::string::npos) << name << ": " << outcome.err;
    }
}

TEST(FleetProgram, TarnNamesThePackageOfEachOptionThatItLacks) {
    for (const std::string &command : candidates(plain, {""})) {
        const std::vector<std::string> known = candidates(plain, {command, "--"});
        for (const std::string &option : candidates(with_fleet, {command, "--"})) {
            if (contains(known, option)) continue;
            const Outcome outcome = run(plain, {command, option});
            EXPECT_EQ(outcome.exit, 2) << command << " " << option;
            EXPECT_NE(outcome.err.find(not_installed), std::string::npos) << command << " " << option << outcome.err;
        }
    }
}

TEST(FleetProgram, ItsManualPageNamesEachCommandAndOptionThatItAdds) {
    const Directory directory;
    ASSERT_EQ(run(with_fleet, {"manual", directory.path(".")}).exit, 0);
    const std::string page = directory.read("tarn-fleet.1");
    const auto count = [&](const std::string &line) { return tool_test::occurrences(page, line); };
    std::size_t options = 0;
    for (const std::string &command : candidates(with_fleet, {""})) {
        if (!contains(candidates(plain, {""}), command)) {
            EXPECT_EQ(count(".It Xr tarn-" + command + " 1\n"), 1U) << command;
            continue;
        }
        const std::vector<std::string> known = candidates(plain, {command, "--"});
        const std::size_t begin = page.find(".Ss tarn " + command + "\n");
        const std::string section =
            begin == std::string::npos ? "" : page.substr(begin, page.find("\n.El\n", begin) - begin);
        for (const std::string &option : candidates(with_fleet, {command, "--"})) {
            if (contains(known, option)) continue;
            EXPECT_NE(section.find("\n.It Fl \\-" + option.substr(2)), std::string::npos) << command << " " << option;
            ++options;
        }
    }
    EXPECT_EQ(count("\n.It Fl "), options);
}

TEST(FleetProgram, TarnExecutesTheFleetProgramOfItsInstallation) {
    const Directory directory;
    const std::filesystem::path fleet = directory.path(TARN_FLEET_PLACE) + std::string("/tarn-fleet");
    std::filesystem::create_directories(directory.path("bin"));
    std::filesystem::create_directories(fleet.parent_path());
    std::filesystem::copy_file(plain, directory.path("bin/tarn"));
    const std::vector<std::string> arguments{"show", "cl-debug", "a b"};
    const std::string message = "unexpected argument \"a b\"";
    EXPECT_NE(run(directory.path("bin/tarn"), arguments).err.find(message), std::string::npos);
    std::filesystem::create_symlink("/bin/echo", fleet);
    EXPECT_EQ(run(directory.path("bin/tarn"), arguments).out, "show cl-debug a b\n");
}

}  // namespace

}  // namespace fleet_test
