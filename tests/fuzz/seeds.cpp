// Prints the seed corpora and the dictionaries, from the schema and the independent codec: fuzz_seeds FOLDER. Files of
// an earlier run are removed first.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>

#include "fuzz.h"
#include "reference/text.h"
#include "sweep.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/support/trace.h"

namespace {

using reference::Bytes;
using reference::Record;

// Path below the folder, and content.
std::map<std::string, std::string> files;

constexpr std::uint8_t plain_choice = 0, tracked_choice = 2;

std::string head(std::initializer_list<std::size_t> bytes) {
    std::string text;
    for (const std::size_t byte : bytes) text += static_cast<char>(byte);
    return text;
}
std::string text_of(const Bytes &bytes) { return {bytes.begin(), bytes.end()}; }
std::string form(bool tracked) { return tracked ? "-tracked" : "-plain"; }
std::size_t choice(bool tracked) { return tracked ? tracked_choice : plain_choice; }

Record value_of(std::string_view type, bool printable = false) {
    constexpr std::size_t small = 300;
    for (const std::uint32_t elements : {2U, 1U}) {
        const Record value = reference::Generator(3, {.min_elements = elements,
                                                      .max_elements = elements,
                                                      .min_text = 1,
                                                      .max_text = 5,
                                                      .printable = printable})
                                 .make(type);
        if (elements == 1 || reference::encode(value, true).size() <= small) return value;
    }
    std::abort();
}

void records() {
    std::size_t root = 0;
    for (const reference::RecordTable &table : reference::records()) {
        const Record value = value_of(table.name);
        for (const bool tracked : {false, true}) {
            const std::string frame = text_of(reference::encode(value, tracked));
            files["frame/" + table.name + form(tracked)] = head({root, choice(tracked)}) + frame;
            if (tracked) files["differential/" + table.name] = head({root, tracked_choice}) + frame;
            if (tracked && bridge::owns_blocks(table)) {
                files["allocation/" + table.name] = head({tracked_choice, root, 2}) + frame;
            }
        }
        const std::string document = reference::to_xml(value_of(table.name, true), table.name, false);
        files["xml/" + table.name] = head({root, tracked_choice}) + document;
        if (bridge::owns_blocks(table)) {
            files["allocation/" + table.name + "-document"] = head({0x80, root, 1}) + document;
        }
        if (root % 4 == 0) files["differential/generated-" + table.name] = head({root, 0x32, root, 5, root, 9, 3, 9});
        ++root;
    }
    for (const reference::EnumerationTable &table : reference::enumerations()) {
        files["frame/" + table.name] = head({root, plain_choice, 0, 0, 0, 0, 1});
        files["xml/" + table.name] =
            head({root, plain_choice}) + "<" + table.name + "><" + table.enumerators.back() + "/></" + table.name + ">";
        ++root;
    }
    for (const reference::MessageTable &table : reference::messages()) {
        const Record value = value_of(table.payload);
        for (const bool tracked : {false, true}) {
            files["frame/" + table.name + form(tracked)] =
                head({root, choice(tracked)}) + text_of(reference::message_frame(table.name, value, tracked, 7));
        }
        files["xml/" + table.name] =
            head({root, plain_choice}) + reference::message_to_xml(table.name, value_of(table.payload, true), false);
        ++root;
    }
}

void bundles() {
    bool tracked = false;
    for (const reference::BundleTable &table : reference::bundles()) {
        tracked = !tracked;
        const std::string payload = reference::message_table(table.message).payload;
        const std::string message = text_of(reference::message_frame(table.message, value_of(payload), tracked, 7));
        const auto control = [&](const char *kind) { return text_of(reference::control_frame(table.name, kind, 7)); };
        files["bundle/" + table.name] =
            head({choice(tracked)}) + control("start") + message + message + control("commit");
        files["bundle/" + table.name + "-recorded"] =
            head({choice(tracked) | 0x90}) + message + control("start") + message + control("abort");
        files["tool/" + table.name + "-frames"] = head({0x08}) + control("start") + message + control("commit");
    }
}

void tool() {
    using namespace tarn::tool;
    set_up_trace(false);
    for (const reference::MessageTable &table : reference::messages()) {
        const std::string frame = text_of(reference::message_frame(table.name, value_of(table.payload, true), true, 7));
        const Handles handles(tarn::tool::Tracking::as_input);
        const std::vector<Item> items = items_of(handles, frame, "seed", false);
        files["tool/" + table.name + "-json"] = head({0}) + rendered(items.at(0), Style::json);
        files["tool/" + table.name + "-recording"] = head({0}) + "<bundle_start name=\"" + table.bundles.at(0) +
                                                     "\"></bundle_start>\n" + rendered(items.at(0), Style::xml) +
                                                     rendered(items.at(0), Style::xml);
    }
}

void calls() {
    std::mt19937 random(5);
    for (int i = 0; i < 12; ++i) {
        std::string bytes;
        for (int k = 0; k < 240; ++k) bytes += static_cast<char>(random() & 0x7F);
        const auto number = std::to_string(i);
        files["calls/" + number] = head({choice(i % 2 == 0)}) + bytes;
        files["allocation/calls-" + number] = head({choice(i % 2 == 0) | 0x20U}) + bytes;
    }
}

// Each operation once, one file for all that are called alike. Half of them are followed by another.
void operations() {
    constexpr std::size_t choices[] = {0, 1, 2, 4, 6};
    const auto &all = trust::operations();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].driver == nullptr) continue;  // the sweep reports it
        std::string path = std::string("operations/") + all[i].driver->of + '-' + all[i].driver->suffix;
        std::replace(path.begin(), path.end(), ' ', '-');
        std::string &file = files[path];
        if (file.empty()) file = head({choices[files.size() % std::size(choices)]});
        file += head({i >> 8, i & 0xFF, i % 16, i / 16 % 3, i / 4, 0, 0, 0, 0, 0});
    }
}

// Words that a fuzzer does not find by itself: identities and names.
void dictionaries() {
    std::string identities, names;
    const auto add_identity = [&](const std::uint8_t *luid) {
        identities += '"';
        for (int i = 0; i < 16; ++i) {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\x%02x", luid[i]);
            identities += hex;
        }
        identities += "\"\n";
    };
    const auto add_name = [&](const std::string &name) { names += '"' + name + "\"\n"; };
    for (const auto &m : tarn::reflect::messages()) add_identity(m.luid);
    for (const auto &b : tarn::reflect::bundles()) {
        for (const auto *m : {&b.start, &b.abort, &b.commit}) add_identity(m->luid);
    }
    std::map<std::string, int> unique;
    for (const auto &table : reference::records()) {
        unique[table.name];
        for (const auto &member : table.members) unique[member.name];
    }
    for (const auto &table : reference::enumerations()) {
        for (const auto &enumerator : table.enumerators) unique[enumerator];
    }
    for (const auto &table : reference::messages()) unique[table.name];
    for (const auto &[name, unused] : unique) add_name(name);
    for (const char *words :
         {"<!DOCTYPE", "<!ENTITY", "<![CDATA[", "]]>", "<!--", "-->", "<?xml version='1.0' encoding='", "&#x0;",
          "&amp;", "@state", "@variant", "@ra", "@members", "bytes", "tracked", "payload", "bundle_start", "control"}) {
        add_name(words);
    }
    files["bundle.dict"] = files["frame.dict"] = identities;
    files["xml.dict"] = names;
    files["tool.dict"] = names + identities;
    files["allocation.dict"] = names;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 2) return 2;
    records();
    bundles();
    tool();
    calls();
    operations();
    dictionaries();
    const std::filesystem::path folder = argv[1];
    std::filesystem::remove_all(folder);
    for (const auto &[path, content] : files) {
        std::filesystem::create_directories((folder / path).parent_path());
        std::ofstream(folder / path, std::ios::binary) << content;
    }
    return 0;
}
