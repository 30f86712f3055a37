// The manifest in the library file, as a tool would read it.
#include <elf.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <optional>

#include "api.h"
#include "reference/tables.h"

namespace {

using namespace api;

struct Section {
    std::string content;
    std::uint64_t flags = 0, alignment = 0;
    std::uint32_t type = 0;
};

template <class T>
T at(const std::string &file, std::uint64_t offset) {
    T value;
    if (offset + sizeof value > file.size()) throw std::runtime_error("the file is too short");
    std::memcpy(&value, file.data() + offset, sizeof value);
    return value;
}

std::optional<Section> section_of(const std::string &file, const std::string &name) {
    const auto header = at<Elf64_Ehdr>(file, 0);
    const auto section = [&](std::uint64_t i) { return at<Elf64_Shdr>(file, header.e_shoff + i * header.e_shentsize); };
    const std::uint64_t names = section(header.e_shstrndx).sh_offset;
    for (std::uint64_t i = 0; i < header.e_shnum; ++i) {
        const Elf64_Shdr s = section(i);
        if (file.c_str() + names + s.sh_name != name) continue;
        return Section{file.substr(s.sh_offset, s.sh_size), s.sh_flags, s.sh_addralign, s.sh_type};
    }
    return std::nullopt;
}

// Numbers of the manifest are little-endian on every host.
std::uint32_t number_at(const std::string &content, std::size_t position) {
    std::uint32_t number = 0;
    for (unsigned i = 0; i < 4; ++i) number |= std::uint32_t{at<std::uint8_t>(content, position + i)} << (8 * i);
    return number;
}

struct Block {
    std::uint32_t kind = 0;
    std::string text;  // without its NUL
};

std::vector<Block> blocks_of(const std::string &content) {
    std::vector<Block> blocks;
    for (std::size_t position = 0; position < content.size();) {
        const auto length = number_at(content, position), kind = number_at(content, position + 4);
        const std::string text = content.substr(position + 8, length);
        EXPECT_EQ(text.size(), length);
        EXPECT_EQ(text.find('\0'), length - 1) << "one NUL, and it ends the text";
        blocks.push_back({kind, text.substr(0, length - 1)});
        position += 8 + length;
        for (; position % 4 != 0; ++position) EXPECT_EQ(at<char>(content, position), '\0');
    }
    return blocks;
}

struct Manifest : testing::Test {
    std::string file = content_of(TARN_LIBRARY);
    std::optional<Section> section = section_of(file, ".orrin");
    std::vector<Block> blocks = section ? blocks_of(section->content) : std::vector<Block>{};

    void SetUp() override {
        ASSERT_TRUE(section);
        ASSERT_EQ(blocks.size(), 2u);
    }
    // The lines of types, without the heading.
    std::vector<std::string> types() const {
        std::vector<std::string> lines = lines_of(blocks[0].text);
        lines.erase(lines.begin());
        return lines;
    }
};

TEST_F(Manifest, IsInTheFileAndNotInMemory) {
    EXPECT_EQ(section->flags, 0u);
    EXPECT_EQ(section->type, std::uint32_t{SHT_PROGBITS});
    EXPECT_EQ(section->alignment, 4u);
    EXPECT_EQ(section->content.size() % 4, 0u);
}

TEST_F(Manifest, IsASchemaListFollowedByABuildStamp) {
    EXPECT_EQ(blocks[0].kind, 2u);
    EXPECT_EQ(blocks[1].kind, 1u);
}

TEST_F(Manifest, HasAHeadingAndALineForEachType) {
    const std::vector<std::string> lines = lines_of(blocks[0].text);
    const std::size_t types =
        reference::records().size() + reference::enumerations().size() + reference::messages().size();
    ASSERT_EQ(lines.size(), 1 + types);
    EXPECT_EQ(lines[0], "# lumo_ui_tarn.minime");
    EXPECT_TRUE(blocks[0].text.ends_with('\n'));
    EXPECT_EQ(blocks[0].text.size(), 22u + types * 80u);
}

bool is_digest(const std::string &text) {
    return text.size() == 32 && text.find_first_not_of("0123456789abcdef") == std::string::npos;
}

TEST_F(Manifest, LinesHaveFixedColumns) {
    for (const std::string &line : types()) {
        SCOPED_TRACE(line);
        ASSERT_EQ(line.size(), 79u);
        EXPECT_TRUE(is_digest(line.substr(0, 32)));
        EXPECT_EQ(line[32], ':');
        EXPECT_TRUE(is_digest(line.substr(33, 32)));
        EXPECT_EQ(line.substr(69, 4), "000:");
        EXPECT_EQ(line[78], 'N');
    }
}

// Luid, kind and size of every type, in the order of the list: types by name, then messages by luid.
std::vector<std::string> expected_facts() {
    std::map<std::string, std::string> by_name, by_luid;
    const auto number = [](std::uint32_t n) {
        const std::string digits = std::to_string(n);
        return std::string(5 - digits.size(), '0') + digits;
    };
    for (const auto &r : reference::records()) {
        by_name[r.name] = reference::luid_text(r.luid) + " type " + number(r.rounded);
    }
    for (const auto &e : reference::enumerations()) by_name[e.name] = reference::luid_text(e.luid) + " enum 00016";
    for (const auto &m : reference::messages()) {
        by_luid[reference::luid_text(m.luid)] = reference::luid_text(m.luid) + " mess 00000";
    }
    std::vector<std::string> facts;
    for (const auto &[name, fact] : by_name) facts.push_back(fact);
    for (const auto &[luid, fact] : by_luid) facts.push_back(fact);
    return facts;
}

TEST_F(Manifest, ListsTheTypesInOrderWithLuidKindAndSize) {
    std::vector<std::string> facts;
    for (const std::string &line : types()) {
        facts.push_back(line.substr(0, 32) + " " + line.substr(65, 4) + " " + line.substr(73, 5));
    }
    EXPECT_EQ(facts, expected_facts());
}

int occurrences(const std::string &text, const std::string &word) {
    int count = 0;
    const char *from = text.data(), *const end = from + text.size();
    while (const void *found = memmem(from, static_cast<std::size_t>(end - from), word.data(), word.size())) {
        ++count;
        from = static_cast<const char *>(found) + 1;
    }
    return count;
}

TEST_F(Manifest, SecondDigestsAreUniqueAndOccurNowhereElse) {
    std::set<std::string> digests;
    for (const std::string &line : types()) {
        const std::string digest = line.substr(33, 32);
        digests.insert(digest);
        EXPECT_NE(digest, line.substr(0, 32));
        EXPECT_EQ(occurrences(file, digest), 1) << digest;
    }
    EXPECT_EQ(digests.size(), types().size());
}

TEST_F(Manifest, StampHasANameAndFiveLines) {
    EXPECT_TRUE(blocks[1].text.ends_with('\n'));
    const std::vector<std::string> lines = lines_of(blocks[1].text);
    ASSERT_EQ(lines.size(), 6u);
    EXPECT_EQ(lines[0], "lumo_ui_tarn");
    const char *const keys[] = {"built by: ", "on host: ", "pid: ", "at: ", "comment: "};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_TRUE(lines[i + 1].starts_with(keys[i])) << lines[i + 1];
        EXPECT_GT(lines[i + 1].size(), std::strlen(keys[i])) << lines[i + 1];
    }
}

std::string made(const std::string &in_front, const std::string &arguments = "") {
    const Directory fresh;
    const Output output = generate("link", fresh.path(), in_front, arguments);
    EXPECT_EQ(output.code, 0) << output.text;
    return content_of(fresh.path() / "orrin.bin");
}

std::string stamp_of(const std::string &manifest) { return blocks_of(manifest).at(1).text; }

TEST_F(Manifest, WithoutValuesTheStampIsNeutral) {
    const std::string manifest = made("env -u SOURCE_DATE_EPOCH");
    EXPECT_EQ(manifest, made("env -u SOURCE_DATE_EPOCH"));
    EXPECT_NE(stamp_of(manifest).find("\npid: 0\n"), std::string::npos);
}

TEST_F(Manifest, TakesItsTimeFromTheSourceDate) {
    const std::string manifest = made("SOURCE_DATE_EPOCH=1700000000");
    EXPECT_EQ(manifest, made("SOURCE_DATE_EPOCH=1700000000"));
    EXPECT_NE(stamp_of(manifest).find("\nat: 2023-11-14T22:13:20Z\n"), std::string::npos) << stamp_of(manifest);
    EXPECT_NE(manifest, made("SOURCE_DATE_EPOCH=1700000001"));
}

TEST_F(Manifest, TakesTheValuesThatThePackagerGives) {
    const std::string manifest =
        made("env -u SOURCE_DATE_EPOCH", "built_by=someone on_host=somewhere pid=42 at=today 'comment=one = two'");
    EXPECT_EQ(stamp_of(manifest),
              "lumo_ui_tarn\nbuilt by: someone\non host: somewhere\npid: 42\nat: today\ncomment: one = two\n");
}

TEST_F(Manifest, ListOfTypesIsTheSameInEveryBuild) {
    EXPECT_EQ(blocks_of(made("SOURCE_DATE_EPOCH=1", "built_by=another")).at(0).text, blocks[0].text);
}

}  // namespace
