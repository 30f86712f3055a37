// The dynamic symbols of the library as it was built.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "api.h"
#include "reference/tables.h"

namespace {

using namespace api;

struct Symbol {
    char kind;
    std::string name;
};

std::vector<Symbol> symbols(const std::string &which) {
    const Output output = run(TARN_NM " -D --format=posix " + which + " " + quoted(TARN_LIBRARY));
    EXPECT_EQ(output.code, 0) << output.text;
    std::vector<Symbol> found;
    for (const std::string &line : lines_of(output.text)) {
        std::istringstream words(line);
        Symbol symbol{};
        std::string kind;
        words >> symbol.name >> kind;
        symbol.kind = kind.empty() ? '?' : kind[0];
        symbol.name = symbol.name.substr(0, symbol.name.find('@'));
        found.push_back(symbol);
    }
    return found;
}

// The golden list has one letter for data, whatever its section.
bool is_data(char kind) { return std::string_view("BDR").find(kind) != std::string_view::npos; }

std::set<std::string> exported() {
    std::set<std::string> lines;
    for (const Symbol &s : symbols("--defined-only")) {
        lines.insert(std::string(1, is_data(s.kind) ? 'D' : s.kind) + " " + s.name);
    }
    return lines;
}

std::set<std::string> without(const std::set<std::string> &all, const std::set<std::string> &these) {
    std::set<std::string> left;
    std::set_difference(all.begin(), all.end(), these.begin(), these.end(), std::inserter(left, left.end()));
    return left;
}

TEST(Exports, AreThoseOfTheGoldenList) {
    const std::vector<std::string> lines = lines_of(content_of(TARN_GOLDEN "/exports.txt"));
    const std::set<std::string> golden(lines.begin(), lines.end());
    EXPECT_EQ(golden.size(), lines.size());
    EXPECT_EQ(without(exported(), golden), std::set<std::string>{}) << "exported, but not in the golden list";
    EXPECT_EQ(without(golden, exported()), std::set<std::string>{}) << "in the golden list, but not exported";
}

// One handler for each message, and for each bundle and its three control messages.
std::size_t handlers() { return reference::messages().size() + 4 * reference::bundles().size(); }

TEST(Exports, AreFunctionsDataAndOneWeakHandlerForEachMessageAndBundle) {
    std::map<char, std::size_t> count;
    for (const std::string &line : exported()) ++count[line[0]];
    EXPECT_GT(count['T'], 0u);
    EXPECT_GT(count['D'], 0u);
    EXPECT_EQ(count['W'], handlers());
    EXPECT_EQ(count.size(), 3u);
}

TEST(Exports, WeakOnesAreTheHandlers) {
    for (const std::string &line : exported()) {
        const bool is_handler = line.find(" lumo_ui_tarn_") == 1 && line.ends_with("_handler");
        EXPECT_EQ(line[0] == 'W', is_handler && line[0] != 'D') << line;
    }
}

TEST(Exports, IdentitiesAndNamesAreReadOnly) {
    std::size_t count = 0;
    for (const Symbol &s : symbols("--defined-only")) {
        if (!s.name.starts_with("message_")) continue;
        EXPECT_EQ(s.kind, 'R') << s.name;
        ++count;
    }
    // Identity, its text, and name.
    EXPECT_EQ(count, 3 * (reference::messages().size() + 3 * reference::bundles().size()));
}

// The words of the contract headers, without those of the headers that they include.
std::set<std::string> declared_words() {
    std::set<std::string> words;
    bool ours = false;
    for (const std::string &line : lines_of(content_of(TARN_CONTRACT))) {
        if (line.starts_with("# ")) {
            ours = line.find("/mirk/") != std::string::npos;
            continue;
        }
        if (!ours) continue;
        std::string word;
        for (const char c : line + " ") {
            if (std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_') {
                word += c;
            } else if (!word.empty()) {
                words.insert(std::exchange(word, {}));
            }
        }
    }
    return words;
}

bool is_added_by_instrumentation([[maybe_unused]] const std::string &name) {
#ifdef TARN_INSTRUMENTED
    for (const char *prefix : {"__asan_", "__ubsan_", "__tsan_", "__sanitizer_", "__gcov_", "__llvm_"}) {
        if (name.starts_with(prefix)) return true;
    }
    // With instrumentation the compiler may call C++ library functions that it otherwise folds away.
    return name.starts_with("_Z");
#else
    return false;
#endif
}

TEST(Exports, NothingIsUsedButTheContractAndTheCLibrary) {
    const std::set<std::string> contract = declared_words();
    ASSERT_TRUE(contract.contains("mirk_store_err"));
    ASSERT_FALSE(contract.contains("printf"));
    const std::set<std::string> c_library = {"abort",  "free",    "fwrite",   "malloc",   "memcmp", "memcpy",
                                             "memset", "memmove", "snprintf", "strerror", "strlen", "strncpy"};
    const std::set<std::string> linker = {"__cxa_finalize", "__gmon_start__", "_ITM_deregisterTMCloneTable",
                                          "_ITM_registerTMCloneTable", "__stack_chk_fail"};
    int of_the_contract = 0;
    for (const Symbol &s : symbols("--undefined-only")) {
        if (contract.contains(s.name)) {
            ++of_the_contract;
        } else {
            EXPECT_TRUE(c_library.contains(s.name) || linker.contains(s.name) || is_added_by_instrumentation(s.name))
                << s.name;
        }
    }
    EXPECT_GT(of_the_contract, 100);
}

TEST(Exports, ComeUnderANameWithItsVersion) {
    const Output output = run(TARN_READELF " -d " + quoted(TARN_LIBRARY));
    EXPECT_NE(output.text.find("Library soname: [liblumo_ui_tarn.so.1]"), std::string::npos) << output.text;
}

TEST(Exports, HandlersAreNotBoundInsideTheLibrary) {
    // A library linked with -Bsymbolic would ignore a client's replacement. Its dynamic section would say so.
    const Output output = run(TARN_READELF " -d " + quoted(TARN_LIBRARY));
    ASSERT_EQ(output.code, 0);
    EXPECT_EQ(output.text.find("SYMBOLIC"), std::string::npos) << output.text;
    const Output relocations = run(TARN_READELF " -rW " + quoted(TARN_LIBRARY));
    std::set<std::string> seen;
    for (const std::string &line : lines_of(relocations.text)) {
        const std::size_t at = line.find("lumo_ui_tarn_");
        if (at == std::string::npos) continue;
        const std::string name = line.substr(at, line.find_first_of(" @+", at) - at);
        if (name.ends_with("_handler") && !name.ends_with("_registered_handler")) seen.insert(name);
    }
    EXPECT_EQ(seen.size(), handlers());
}

}  // namespace
