// A member that is added to the schema shows in everything that is made of it, without another edit. The generator and
// the tool are built a second time, from a copy of the schema with one more member of lumo_tarn_dp_tc, dwell_limit, and
// the same of the two records that the pictures of the tour show.
//
// A new product gets a line in one of the tables below: how it is printed, and what of the member has to be in it.
#include <gtest/gtest.h>

#include <set>

#include "surface.h"

namespace {

using namespace surface;

struct Product {
    const char *kind;
    const char *file;
    const char *shows;
};

constexpr Product products[] = {
    {"headers", "lumo_ui_tarn/records/lumo_tarn_dp_tc.h", "void lumo_tarn_dp_tc_dwell_limit_set_value("},
    {"headers", "lumo_ui_tarn/records/lumo_tarn_dp_tc.h", "@name dwell_limit: how long the class may dwell\n"},
    {"manuals", "tarn_frame.5", ".It dwell_limit\nu16, 2 bytes: how long the class may dwell\n"},
    {"headers", "lumo_ui_tarn.hpp", "        Self &set_dwell_limit(std::uint16_t value) {"},
    {"headers", "lumo_ui_tarn.hpp", "const Self &set_dwell_limit(std::uint16_t value) const"},
    {"headers", "lumo_ui_tarn.hpp", "std::uint16_t dwell_limit() const"},
    {"python", "_schema.py", R"(("dwell_limit", "dwell_limit", "u16", "", "how long the class may dwell"))"},
    {"python", "records.pyi", "def dwell_limit(self) -> int"},
    {"python", "records.pyi", "def dwell_limit(self, value: int) -> None"},
    {"headers", "lumo_ui_tarn.hpp", "/// How long the class may dwell.\n"},
    {"dissector", "tarn.lua", "dwell_limit"},
    {"pictures", "frame.svg", "dwell_limit"},
    {"pictures", "state_area.svg", "dwell_limit"},
    {"exports", "accessors.inc", "lumo_tarn_dp_tc_dwell_limit_get_value("},
    {"lists", "exports.txt", "T lumo_tarn_dp_tc_dwell_limit_get_value"},
    {"lists", "layout.txt", "dwell_limit"},
    {"operations", "operations.inc", "lumo_tarn_dp_tc_dwell_limit_get_value("},
};

Output generate_with_new_member(const std::string &kind, const std::filesystem::path &into) {
    return run(quoted(TARN_GENERATE_WITH_NEW_MEMBER) + " " + kind + " " + quoted(into));
}

TEST(NewMember, ShowsInAllThatIsPrinted) {
    const Directory before, after;
    std::set<std::string> printed;
    for (const Product &product : products) {
        SCOPED_TRACE(std::string(product.kind) + " " + product.file);
        const std::filesystem::path without = before.path() / product.kind, with = after.path() / product.kind;
        if (printed.insert(product.kind).second) {
            ASSERT_EQ(generate(product.kind, without).code, 0);
            ASSERT_EQ(generate_with_new_member(product.kind, with).code, 0);
        }
        EXPECT_EQ(content_of(without / product.file).find(product.shows), std::string::npos);
        EXPECT_NE(content_of(with / product.file).find(product.shows), std::string::npos);
    }
}

struct Sight {
    const char *arguments;
    const char *shows;
};

// Frames that know nothing of the member are enough to see that the tool looks for it where it belongs.
constexpr Sight sights[] = {
    {"schema lumo_tarn_dp_tc", "dwell_limit    u_int16"},
    {"schema lumo_tarn_dp_tc_list --tree", "dwell_limit  u_int16"},
    {"schema --json", R"("name": "dwell_limit")"},
    {"schema --html", R"("name":"dwell_limit")"},
    {"complete schema lumo_tarn_dp_tc.dw", "lumo_tarn_dp_tc.dwell_limit\thow long the class may dwell\n"},
    {"dissect frames", "tc_list[0].dwell_limit"},
    {"view frames", R"("dwell_limit":["u_int16","how long the class may dwell"])"},
    {"encode with_member.xml -o made && echo it is taken", "it is taken"},
    {"decode --json frames", R"("dwell_limit":5)"},
    {"generate dp-mp-tc-cfg --form json", R"("dwell_limit":)"},
};

TEST(NewMember, ShowsInTheTool) {
    const Directory folder;
    const std::string in_folder = "cd " + quoted(folder.path()) + " && ";
    const std::string xml = content_of(std::filesystem::path(TARN_EXAMPLES) / "dp_mp_tc_cfg.xml");
    std::string with_member = xml;
    const std::string place = "<src_prefix>";
    with_member.insert(with_member.find(place), "<dwell_limit>5</dwell_limit>");
    std::ofstream(folder.path() / "without_member.xml") << xml;
    std::ofstream(folder.path() / "with_member.xml") << with_member;
    ASSERT_EQ(run(in_folder + quoted(TARN_TOOL) + " encode without_member.xml -o frames").code, 0);
    for (const Sight &sight : sights) {
        SCOPED_TRACE(sight.arguments);
        const Output before = run(in_folder + quoted(TARN_TOOL) + " " + sight.arguments);
        const Output after = run(in_folder + quoted(TARN_TOOL_WITH_NEW_MEMBER) + " " + sight.arguments);
        EXPECT_EQ(before.text.find(sight.shows), std::string::npos);
        EXPECT_NE(after.text.find(sight.shows), std::string::npos) << after.text.substr(0, 500);
    }
}

// The new headers in front of those of the tree, which have the contract.
struct NewHeaders : testing::Test {
    void SetUp() override { ASSERT_EQ(generate_with_new_member("headers", fresh.path()).code, 0); }
    Output compile(const char *name, const std::string &source, const std::string &command) {
        const std::filesystem::path file = fresh.path() / name;
        std::ofstream(file) << source;
        return run(command + " -I" + quoted(fresh.path()) + " -I" + quoted(TARN_INCLUDE) + " " + quoted(file));
    }
    Directory fresh;
};

TEST_F(NewHeaders, GiveTheMemberToCAndCpp) {
    const std::string c =
        "#include <lumo_ui_tarn/records/lumo_tarn_dp_tc.h>\n"
        "void set(mirk_handle *h, lumo_tarn_dp_tc *tc, uint32_t *err);\n"
        "void set(mirk_handle *h, lumo_tarn_dp_tc *tc, uint32_t *err) {\n"
        "    lumo_tarn_dp_tc_dwell_limit_set_value(h, 1, tc, 5, err);\n}\n";
    const Output as_c = compile("use.c", c, TARN_CC " -fsyntax-only -Wall -Werror");
    EXPECT_EQ(as_c.code, 0) << as_c.text;
    const std::string cpp =
        "#include <lumo_ui_tarn.hpp>\n"
        "int limit(lumo_ui_tarn::dp_tc &tc) { return tc.set_dwell_limit(5).set_tos(1).dwell_limit(); }\n";
    const Output as_cpp = compile("use.cpp", cpp, TARN_CXX " -std=c++17 -fsyntax-only -Wall -Werror");
    EXPECT_EQ(as_cpp.code, 0) << as_cpp.text;
}

TEST_F(NewHeaders, GiveTheMemberToPython) {
    const std::filesystem::path preprocessed = fresh.path() / "headers.i", package = fresh.path() / "_cffi.py";
    const Output headers = compile("use.c", "#include <lumo_ui_tarn.h>\n", TARN_CC " -E -o " + quoted(preprocessed));
    ASSERT_EQ(headers.code, 0) << headers.text;
    const Output made =
        run(quoted(TARN_PYTHON) + " " + quoted(TARN_BUILD_CDEFS) + " " + quoted(package) + " " + quoted(preprocessed));
    ASSERT_EQ(made.code, 0) << made.text;
    EXPECT_NE(content_of(package).find("lumo_tarn_dp_tc_dwell_limit_set_value"), std::string::npos);
}

}  // namespace
