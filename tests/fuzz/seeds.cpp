// Prints the seed corpora, the dictionaries and the options of the fuzzers, from the schema and the independent codec:
// fuzz_seeds FOLDER. Files of an earlier run are removed first.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <string_view>

#include "capture.h"
#include "pieces.h"
#include "reference/text.h"
#include "sweep.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/formats/source.h"
#include "tools/tarn/formats/tables.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/support/trace.h"

namespace {

using reference::Bytes;
using reference::Record;

// Path below the folder, and content.
std::map<std::string, std::string> files;

constexpr std::uint8_t plain_choice = 0, tracked_choice = 2, private_types = 4;
// For prepare(): filled with another value, RA data, and references.
constexpr std::size_t past = 0x67;

std::string head(std::initializer_list<std::size_t> bytes) {
    std::string text;
    for (const std::size_t byte : bytes) text += static_cast<char>(byte);
    return text;
}
std::string text_of(const Bytes &bytes) { return {bytes.begin(), bytes.end()}; }
std::string form(bool tracked) { return tracked ? "-tracked" : "-plain"; }
std::size_t choice(bool tracked) { return tracked ? tracked_choice : plain_choice; }

void records() {
    std::size_t root = 0;
    for (const reference::RecordTable &table : reference::records()) {
        const Record value = fuzz::small_value(table.name);
        for (const bool tracked : {false, true}) {
            const std::string frame = text_of(reference::encode(value, tracked));
            files["frame/" + table.name + form(tracked)] = head({root, choice(tracked)}) + frame;
            files["frame/" + table.name + "-used" + form(tracked)] =
                head({root, choice(tracked) | private_types | 0x80U, past, root, root}) + frame;
            if (tracked) files["differential/" + table.name] = head({root, tracked_choice}) + frame;
            if (tracked && bridge::owns_blocks(table)) {
                files["allocation/" + table.name] = head({tracked_choice, root, 2}) + frame;
                files["allocation/" + table.name + "-used"] =
                    head({tracked_choice | 0x10U, root, 1 + root % 4 * 0x20, past, root, root}) + frame;
            }
        }
        const std::string document = reference::to_xml(fuzz::small_value(table.name, true), table.name, false);
        files["xml/" + table.name] = head({root, tracked_choice}) + document;
        files["xml/" + table.name + "-used"] =
            head({root, private_types | tracked_choice | 0x20U, past, root, root, 0}) + document;
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
        const Record value = fuzz::small_value(table.payload);
        for (const bool tracked : {false, true}) {
            files["frame/" + table.name + form(tracked)] =
                head({root, choice(tracked)}) + text_of(reference::message_frame(table.name, value, tracked, 7));
        }
        files["xml/" + table.name] =
            head({root, plain_choice}) +
            reference::message_to_xml(table.name, fuzz::small_value(table.payload, true), false);
        ++root;
    }
}

void bundles() {
    bool tracked = false;
    for (const reference::BundleTable &table : reference::bundles()) {
        tracked = !tracked;
        const std::string payload = reference::message_table(table.message).payload;
        const std::string message =
            text_of(reference::message_frame(table.message, fuzz::small_value(payload), tracked, 7));
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
        const std::string frame =
            text_of(reference::message_frame(table.name, fuzz::small_value(table.payload, true), true, 7));
        const Handles handles(tarn::tool::Tracking::as_input);
        const std::vector<Item> items = items_of(handles, frame, "seed", false);
        files["tool/" + table.name + "-json"] = head({0}) + rendered(items.at(0), Style::json);
        for (const bool tracked : {false, true}) {
            const std::string bytes =
                text_of(reference::message_frame(table.name, fuzz::small_value(table.payload), tracked, 7));
            std::string source;
            ByteStream stream = stream_of(bytes, "seed");
            write_source(stream, [&](std::string_view piece) { source += piece; });
            files["source/" + table.name + form(tracked)] = head({0}) + bytes;
            files["source/" + table.name + form(tracked) + "-text"] = head({1}) + source;
        }
        files["json/" + table.name] = head({0}) + rendered(items.at(0), Style::json);
        files["json/" + table.name + "-lenient"] =
            head({3}) + "[" + rendered(items.at(0), Style::json) + ",\n" + rendered(items.at(0), Style::json) + "]";
        // The choice, the names to ignore, and two versions, of which the first has its length before it.
        const std::string document = rendered(items.at(0), Style::json), names = "*_ptr\n";
        const std::string other = text_of(reference::message_frame(table.name, Record(table.payload), true, 8));
        std::size_t bits = 0;
        for (const std::string &second : {frame + frame, document, other}) {
            files["diff/" + table.name + "-" + std::to_string(bits)] =
                head({bits, names.size()}) + names + head({document.size() >> 8, document.size() & 0xff}) + document +
                second;
            bits += 3;
        }
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

std::string first_byte(fuzz::PieceKind kind, unsigned bits = 0) {
    return head({static_cast<std::size_t>(kind) | bits});
}

// Conversations: two bundles at once, split; requests and answers, whole and not.
void conversations() {
    using fuzz::PieceKind;
    for (std::size_t b = 0; b < reference::bundles().size(); ++b) {
        const std::string &name = reference::bundles()[b].name;
        const std::size_t other = b + 1;
        const unsigned tracked = b % 2 == 0 ? fuzz::tracked_piece : 0;
        const std::string start = first_byte(PieceKind::control) + head({3 * b});
        const std::string message = first_byte(PieceKind::message, tracked) + head({b});
        const std::string commit = first_byte(PieceKind::control) + head({3 * b + 2});
        const std::string whole = first_byte(PieceKind::bundle) + head({b});
        const std::string request = first_byte(PieceKind::request, tracked) + head({b});
        const std::string request_of_another = first_byte(PieceKind::request) + head({other});
        // After the first piece, the ends of two pieces arrive together.
        const std::string split = head({0, 60});
        // The choice: what is tracked, and which of the five kinds of handlers.
        files["streams/" + name] = head({1 | b % 5 * 4}) + head({2}) + start + head({0, 20}) + head({1}) +
                                   first_byte(PieceKind::control) + head({3 * other}) + head({2}) + message + split +
                                   head({3}) + first_byte(PieceKind::message) + head({other}) + split + head({2}) +
                                   commit + split + head({3}) + first_byte(PieceKind::control) + head({3 * other + 2}) +
                                   split;
        files["answers/" + name] = head({b % 5 * 8 | (b % 2 == 0 ? 1U : 0U), b}) + start + message + commit;
        // Steps: send, send in two pieces, read all, close half, hang up.
        files["peers/" + name] = head({0}) + head({0}) + request + head({9}) + request + split + head({2}) + whole +
                                 head({9}) + request_of_another + split + head({16}) + head({21}) + head({24}) +
                                 head({27});
        files["peers/" + name + "-limited"] = head({1 + b % 2}) + head({4}) + request + head({5}) + request +
                                              head({10}) + request + split + head({12, 50}) + head({0}) + request;
    }
    files["answers/refused"] = head({0, 0}) + first_byte(PieceKind::refusal);
}

// The target numbers the commands: decode, encode, dissect, diff, view, schema, manifest,
// generate, rows, export, assemble.
void commands() {
    const std::string debug = reference::bundles().front().name;
    const std::string message = reference::bundles().front().message;
    const std::string &payload = reference::message_table(message).payload;
    const std::string document = reference::message_to_xml(message, fuzz::small_value(payload, true), false);
    const auto control = [&](const char *kind) { return text_of(reference::control_frame(debug, kind, 7)); };
    const std::string frames = control("start") +
                               text_of(reference::message_frame(message, fuzz::small_value(payload, true), true, 7)) +
                               control("commit");
    const auto add = [&](const char *name, std::size_t command, const std::string &words, const std::string &file) {
        files[std::string("command/") + name] = head({command}) + words + "\n" + file;
    };
    add("decode", 0, "input\n--json\n", frames);
    add("decode-bundles", 0, "input\n--bundles\n--via\nlut\n-k\n", frames);
    add("encode", 1, "input\n--stamp\n5\n--bundle\n" + debug + "\n--tracked\n", document);
    add("dissect", 2, "input\n", frames);
    add("diff", 3, "input\ninput\n--json\n--no-state\n", frames);
    add("view", 4, "input\n-o\npage\n", document);
    add("schema", 5, payload + "\n--tree\n", "");
    add("schema-member", 5, payload + "." + reference::record_table(payload).members.at(0).name + "\n", "");
    add("manifest", 6, "input\n--json\n", "\177ELF\2\1\1");
    add("generate", 7, debug + "\n--seed\n3\n--elements\n2\n--form\njson\n", "");
    add("rows", 8, payload + "\ninput\n--where\nmessage=1\n--sort\n-path\n--limit\n1\n--format\ncsv\n", frames);
    add("export", 9, "input\n--sqlite\ndatabase\n", frames);
    add("dissect-source", 2, "input\n--source\n", frames.substr(0, frames.size() - 9));
    add("assemble", 10, "input\n-o\noutput\n", "frame " + message + " (stamp 7) { payload { ... } }");
    add("complete", 0x80, "--\n", "");
}

#ifdef TARN_WITH_CAPTURES
// Connections with segments in another order, twice, overlapping and missing; and frames with other bytes between them.
void captures_of_frames() {
    const reference::BundleTable &bundle = reference::bundles().front();
    const std::string payload = reference::message_table(bundle.message).payload;
    const std::string message = text_of(reference::message_frame(bundle.message, fuzz::small_value(payload), false, 7));
    const std::string bytes = message + text_of(reference::control_frame(bundle.name, "start", 7)) + message;
    for (const std::size_t choice : {0U, 2U}) {
        files["capture/frames-" + std::to_string(choice)] =
            head({choice}) + bytes + "other bytes" + message.substr(0, message.size() / 2) + bytes;
        captures::Capture capture;
        capture.add_segment(28276, 40000, 99, "", captures::Capture::begins);
        capture.add_segment(28276, 40000, 140, bytes.substr(40));
        capture.add_segment(28276, 40000, 100, bytes.substr(0, 50));
        capture.add_segment(28276, 40000, 100, bytes.substr(0, 50));
        capture.add_segment(28276, 40000, 600, bytes);
        capture.add_segment(28276, 40000, 7, "", captures::Capture::begins);
        capture.add(40000, 28276, bytes, 30);
        files["capture/connections-" + std::to_string(choice)] = head({choice | 1}) + capture.file();
    }
}
#endif
// A condition on each kind of column, for each record with one.
void conditions() {
    for (std::size_t i = 0; i < tarn::tool::tables().size(); ++i) {
        for (const tarn::tool::Column &column : tarn::tool::tables()[i].columns) {
            using tarn::schema::Category;
            const Category kind = category(column.member->kind);
            const std::string value = kind == Category::boolean   ? "=true"
                                      : kind == Category::address ? " in 2001:db8::/32"
                                      : kind == Category::string  ? "~a"
                                      : kind == Category::enumeration
                                          ? std::string("<=") += column.member->enumeration->enumerators[0]
                                          : ">= 0x10";
            const std::string name = tarn::tool::tables()[i].name + "-" + std::to_string(static_cast<int>(kind));
            files["where/" + name] = head({i, i % 4}) + column.name + value;
        }
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

// Words that a fuzzer does not find by itself. A dictionary has one to a line, in quotes.
class Dictionary {
public:
    void add(std::string_view word) {
        std::string quoted;
        for (const char c : word) {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\x%02x", static_cast<unsigned char>(c));
            const bool plain = c >= ' ' && c <= '~' && c != '"' && c != '\\';
            quoted += plain ? std::string(1, c) : std::string(hex);
        }
        words_.insert("\"" + quoted + "\"\n");
    }
    void add(std::initializer_list<const char *> words) {
        for (const char *word : words) add(std::string_view(word));
    }
    Dictionary operator+(const Dictionary &other) const {
        Dictionary both = *this;
        both.words_.insert(other.words_.begin(), other.words_.end());
        return both;
    }
    std::string text() const {
        std::string all;
        for (const std::string &word : words_) all += word;
        return all;
    }

private:
    std::set<std::string> words_;
};

std::string_view bytes_of(const std::uint8_t *luid) {
    return {reinterpret_cast<const char *>(luid), sizeof(reference::Luid)};
}

Dictionary identities() {
    Dictionary all;
    for (const auto &m : tarn::reflect::messages()) all.add(bytes_of(m.luid));
    for (const auto &b : tarn::reflect::bundles()) {
        for (const auto *m : {&b.start, &b.abort, &b.commit}) all.add(bytes_of(m->luid));
    }
    return all;
}

// Of records, members, enumerators and messages.
Dictionary names() {
    Dictionary all;
    for (const auto &table : reference::records()) {
        all.add(table.name);
        for (const auto &member : table.members) all.add(member.name);
    }
    for (const auto &table : reference::enumerations()) {
        for (const auto &enumerator : table.enumerators) all.add(enumerator);
    }
    for (const auto &table : reference::messages()) all.add(table.name);
    return all;
}

// A number in as many bytes, the greatest first.
std::string number(std::size_t value, std::size_t width) {
    std::string bytes(width, '\0');
    for (auto at = bytes.rbegin(); at != bytes.rend(); ++at, value >>= 8U) *at = static_cast<char>(value);
    return bytes;
}

// Counts, lengths and jumps at the ends of their ranges, and each record's size.
Dictionary numbers() {
    Dictionary all;
    for (const std::size_t width : {1U, 2U, 4U}) {
        for (const std::size_t value : {std::size_t{0}, std::size_t{1}, (std::size_t{1} << (8 * width - 1)) - 1,
                                        std::size_t{1} << (8 * width - 1), (std::size_t{1} << 8 * width) - 1}) {
            all.add(number(value, width));
        }
    }
    for (const auto &table : reference::records()) {
        all.add(number(reference::encode(Record(table), false).size(), sizeof(std::uint32_t)));
        all.add(number(reference::encode(Record(table), true).size(), sizeof(std::uint32_t)));
    }
    return all;
}

// Pieces of conversations.
Dictionary pieces() {
    Dictionary all;
    for (std::size_t kind = 0; kind < fuzz::piece_kinds; ++kind) {
        for (std::size_t bundle = 0; bundle < 3 * reference::bundles().size(); ++bundle) {
            all.add(head({kind, bundle}));
            all.add(head({kind | fuzz::tracked_piece, bundle}));
        }
    }
    for (const auto &table : reference::bundles()) all.add(table.name);
    return all;
}

// Creation and reads of each record by the machine of calls: its first calls, in the order of machine.cpp.
Dictionary steps() {
    Dictionary all;
    for (std::size_t record = 0; record < reference::records().size(); ++record) {
        for (std::size_t slot = 0; slot < 5; ++slot) all.add(head({0, slot, record}));
    }
    return all;
}

Dictionary calls_of_operations() {
    Dictionary all;
    for (std::size_t i = 0; i < trust::operations().size(); ++i) all.add(head({i >> 8, i & 0xFF}));
    return all;
}

Dictionary options() {
    Dictionary all;
    all.add({"input\n",     "-o\n",       "--output\n",   "--json\n",     "--xml\n",   "--text\n",    "--hex\n",
             "--bundles\n", "--via\n",    "handle\n",     "module\n",     "linked\n",  "--lenient\n", "--tracked\n",
             "--stamp\n",   "--bundle\n", "--elements\n", "--size\n",     "64KiB\n",   "--seed\n",    "--form\n",
             "--tree\n",    "--dot\n",    "--html\n",     "--no-state\n", "--quiet\n", "-k\n",        "-v\n",
             "4294967295",  "-1",         "nan",          "1e300",        "0x10",      "--help\n",    "\177ELF"});
    return all;
}

void dictionaries() {
    Dictionary markup, json, operators;
    markup.add({"<!DOCTYPE", "<!ENTITY", "<![CDATA[", "]]>", "<!--", "-->", "<?xml version='1.0' encoding='", "&#x0;",
                "&amp;", "bundle_start", "state='1'"});
    json.add({"@state",
              "@variant",
              "@value",
              "@ra",
              "@members",
              "bytes",
              "tracked",
              "payload",
              "message",
              "bundle",
              "control",
              "start",
              "commit",
              "abort",
              "\\u0000",
              "\\ud800",
              "1e400",
              "-1",
              "18446744073709551616",
              "null",
              "true",
              "{}",
              "[]"});
    operators.add({"!=", "<=", ">=", "=", "<", ">", "~", " in ", "0x", "true", "unset", "::/0", "10.0.0.0/8", "file",
                   "message", "bundle", "path"});
    Dictionary source;
    source.add({"frame", "payload",      "start",      "ui_req_msg",   "options", "bundle",   "sttr",
                "stamp", "total_length", "zero",       "variant",      "flag",    "ra_value", "ra_byte",
                "jump",  "count",        "length",     "state",        "states",  "parts",    "none",
                "true",  "unset",        "10.0.0.0/8", "fe80::1%1/64", "2*3",     "...",      "\\x00",
                "0x",    "-128",         "{ }",        "[ ]",          "<00>",    "# \n"});
    const Dictionary frames = identities() + numbers();
    const std::map<std::string, Dictionary> of_targets = {
        {"frame", frames},
        {"bundle", frames},
        {"differential", frames},
        {"allocation", frames + names() + steps()},
        {"calls", numbers() + steps()},
        {"operations", calls_of_operations()},
        {"xml", names() + markup},
        {"json", names() + json},
        {"diff", names() + identities() + markup + json},
        {"where", names() + operators},
        {"source", names() + source + frames},
        {"tool", names() + identities() + markup + json},
        {"command", names() + identities() + options()},
        {"streams", frames + pieces()},
        {"answers", frames + pieces()},
        {"peers", identities() + pieces()},
    };
    for (const auto &[target, dictionary] : of_targets) files[target + ".dict"] = dictionary.text();
}

// For the fuzzer, in the form of its services. There are too many edges for the schedule by rarity, hence entropic. A
// target with output of its own writes it nowhere.
void fuzzer_options() {
    const std::string all = "[libfuzzer]\ntimeout = 300\nreport_slow_units = 3600\nrss_limit_mb = 2048\nentropic = 0\n";
    for (const char *target : {"frame", "bundle", "xml", "calls", "differential", "allocation", "operations", "tool",
                               "json", "diff", "where", "source", "streams", "answers"}) {
        files[std::string(target) + ".options"] = all + "max_len = 4096\n";
    }
    // The conversation of a longer input takes too long.
    files["peers.options"] = all + "max_len = 512\nclose_fd_mask = 3\n";
    files["command.options"] = all + "max_len = 4096\nclose_fd_mask = 3\n";
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 2) return 2;
    records();
    bundles();
    tool();
    calls();
    conversations();
    commands();
    conditions();
    operations();
#ifdef TARN_WITH_CAPTURES
    captures_of_frames();
    files["capture.options"] =
        "[libfuzzer]\ntimeout = 300\nreport_slow_units = 3600\nrss_limit_mb = 2048\nentropic = 0\nmax_len = 4096\n";
    files["capture.dict"] = (identities() + numbers()).text();
#endif
    dictionaries();
    fuzzer_options();
    const std::filesystem::path folder = argv[1];
    std::filesystem::remove_all(folder);
    for (const auto &[path, content] : files) {
        std::filesystem::create_directories((folder / path).parent_path());
        std::ofstream(folder / path, std::ios::binary) << content;
    }
    return 0;
}
