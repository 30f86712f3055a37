// The generated files that are checked in are those that the generator prints.
#include <gtest/gtest.h>

#include "api.h"
#include "reference/tables.h"

namespace {

using namespace api;

constexpr const char *remedy = " is out of date or edited by hand: run tools/regenerate";

TEST(Generated, HeadersAreUpToDate) {
    const Directory fresh;
    ASSERT_EQ(generate("headers", fresh.path()).code, 0);
    const std::set<std::string> names = files_below(fresh.path());
    ASSERT_GE(names.size(), reference::records().size() + reference::enumerations().size() +
                                reference::messages().size() + reference::bundles().size());
    for (const std::string &name : names) {
        const std::filesystem::path checked_in = std::filesystem::path(TARN_INCLUDE) / name;
        ASSERT_TRUE(std::filesystem::exists(checked_in)) << name << " is missing: run tools/regenerate";
        EXPECT_TRUE(content_of(checked_in) == content_of(fresh.path() / name)) << name << remedy;
    }
    for (const char *folder : {"records", "enumerations", "messages", "bundles"}) {
        const std::string prefix = std::string("lumo_ui_tarn/") + folder;
        for (const std::string &name : files_below(std::filesystem::path(TARN_INCLUDE) / prefix)) {
            EXPECT_TRUE(names.contains(prefix + "/" + name)) << name << " is no longer generated: remove it";
        }
    }
}

TEST(Generated, ListsAreUpToDate) {
    const Directory fresh;
    ASSERT_EQ(generate("lists", fresh.path()).code, 0);
    const std::set<std::string> names = files_below(fresh.path());
    EXPECT_EQ(names, (std::set<std::string>{"exports.txt", "layout.txt"}));
    for (const std::string &name : names) {
        EXPECT_TRUE(content_of(std::filesystem::path(TARN_GOLDEN) / name) == content_of(fresh.path() / name))
            << name << remedy;
    }
}

TEST(Generated, PicturesAreUpToDateAndInTheTour) {
    const Directory fresh;
    ASSERT_EQ(generate("pictures", fresh.path()).code, 0);
    const std::set<std::string> names = files_below(fresh.path());
    const std::filesystem::path docs = TARN_DOCS;
    std::set<std::string> drawn = files_below(docs / "pictures");
    // The others show the program at work.
    std::erase_if(drawn, [](const std::string &name) { return !name.ends_with(".svg"); });
    EXPECT_EQ(names, drawn);
    const std::string tour = content_of(docs / "tour.md");
    for (const std::string &name : names) {
        EXPECT_TRUE(content_of(docs / "pictures" / name) == content_of(fresh.path() / name)) << name << remedy;
        EXPECT_NE(tour.find("(pictures/" + name + ")"), std::string::npos) << name;
    }
}

TEST(Generated, UnchangedFilesAreLeftAlone) {
    const Directory fresh;
    ASSERT_EQ(generate("lists", fresh.path()).code, 0);
    const std::filesystem::path file = fresh.path() / "exports.txt";
    const auto long_ago = std::filesystem::file_time_type::clock::now() - std::chrono::hours(24);
    std::filesystem::last_write_time(file, long_ago);
    ASSERT_EQ(generate("lists", fresh.path()).code, 0);
    EXPECT_EQ(std::filesystem::last_write_time(file), long_ago);
}

TEST(Generated, AnUnknownKindIsRefused) {
    const Directory fresh;
    EXPECT_NE(generate("poems", fresh.path()).code, 0);
    EXPECT_TRUE(files_below(fresh.path()).empty());
}

}  // namespace
