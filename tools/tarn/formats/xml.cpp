#include "tools/tarn/formats/xml.h"

#include <algorithm>

#include "tools/tarn/formats/xml_check.h"
#include "tools/tarn/formats/xml_state.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

constexpr std::string_view blanks = " \t\r\n";

// The parser gets it with each fragment.
constexpr std::size_t longest_declaration = 200;

class Splitter {
public:
    Splitter(std::string_view text, const std::string &origin) : text_(text), origin_(origin) {}

    std::vector<Fragment> run() {
        std::vector<Fragment> fragments;
        if (starts("\xEF\xBB\xBF")) at_ = 3;
        for (skip_blanks(); at_ < text_.size(); skip_blanks()) {
            if (starts("<?xml ")) {
                declaration_ = take("?>", "the XML declaration");
                if (declaration_.size() > longest_declaration) {
                    fail("the XML declaration has more than " + std::to_string(longest_declaration) + " bytes");
                }
            } else if (starts("<?")) {
                take("?>", "a processing instruction");
            } else if (starts("<!--")) {
                take("-->", "a comment");
            } else if (starts("<!DOCTYPE")) {
                fail("a document type declaration is not allowed");
            } else {
                fragments.push_back(take_element());
            }
        }
        return fragments;
    }

private:
    bool starts(std::string_view what) const { return text_.substr(at_, what.size()) == what; }

    void skip_blanks() { at_ = std::min(text_.find_first_not_of(blanks, at_), text_.size()); }

    // Counts on from the last place where the line was asked for.
    long line() {
        const std::string_view passed = text_.substr(counted_, at_ - counted_);
        counted_ = at_;
        return line_ += std::count(passed.begin(), passed.end(), '\n');
    }

    [[noreturn]] void fail(const std::string &reason) {
        throw Failure(Exit::input, origin_ + ":" + std::to_string(line()) + ": " + reason);
    }

    std::string_view take(std::string_view end, const std::string &what) {
        const std::size_t found = text_.find(end, at_);
        if (found == std::string_view::npos) fail(what + " is not terminated");
        const std::string_view taken = text_.substr(at_, found + end.size() - at_);
        at_ += taken.size();
        return taken;
    }

    Fragment take_element() {
        const std::size_t name_end =
            text_[at_] == '<' ? text_.find_first_of(" \t\r\n/>", at_ + 1) : std::string_view::npos;
        if (name_end == std::string_view::npos || name_end == at_ + 1) fail("expected an element");
        const std::string_view name = text_.substr(at_ + 1, name_end - at_ - 1);
        const long begins = line();
        const std::size_t tag_end = text_.find('>', name_end);
        const bool is_empty = tag_end != std::string_view::npos && text_[tag_end - 1] == '/';
        const std::string end = is_empty ? ">" : "</" + std::string(name) + ">";
        return {name, take(end, "element " + in_quotes(name)), declaration_, begins};
    }

    std::string_view text_;
    const std::string &origin_;
    std::string_view declaration_;
    std::size_t at_ = 0, counted_ = 0;
    long line_ = 1;
};

std::string location(const std::string &origin, const Fragment &fragment, long line) {
    return origin + ":" + std::to_string(fragment.line + std::max(line, 1L) - 1) + ": ";
}

Document parse(const Fragment &fragment, const std::string &origin) {
    const std::string text = std::string(fragment.declaration).append(fragment.text);
    mirk_platform_report report;
    Document document(mirk_platform_document_load_memory(text.data(), text.size(), &report));
    if (document == nullptr) {
        throw Failure(exit_of(report.number), location(origin, fragment, report.line) + report.sentence);
    }
    return document;
}

void require_schema(const Document &document, const Fragment &fragment, const std::string &origin,
                    const schema::Message &message) {
    const Problems problems = check_document(document.get(), message);
    if (problems.first.empty()) return;
    std::vector<std::string> lines;
    for (const Problem &p : problems.first)
        lines.push_back(location(origin, fragment, p.line) + p.path + ": " + p.reason);
    throw Failure(Exit::input, lines, problems.more);
}

const reflect::MessageOperations &message_for(const Fragment &fragment, const std::string &origin) {
    if (const auto *found = reflect::find_message(fragment.name); found != nullptr) return *found;
    throw Failure(Exit::input, location(origin, fragment, 1) + in_quotes(fragment.name) + " is not a message" +
                                   suggestion(fragment.name, message_names()));
}

std::optional<Identity> control_in(const Fragment &fragment, const std::string &origin) {
    for (const Control control : controls) {
        const std::string element = "bundle_" + std::string(word(control));
        if (fragment.name != element) continue;
        const Document document = parse(fragment, origin);
        char name[128];
        const std::string path = "/" + element + "/@name";
        if (xml_get_element_value(document.get(), path.c_str(), name, sizeof name, nullptr) != 0) {
            throw Failure(Exit::input, location(origin, fragment, 1) + element + " has no name");
        }
        const auto *bundle = reflect::find_bundle(name);
        if (bundle == nullptr) {
            throw Failure(Exit::input, location(origin, fragment, 1) + in_quotes(name) + " is not a bundle" +
                                           suggestion(name, bundle_names()));
        }
        return identity_of(*bundle, control);
    }
    return std::nullopt;
}

Message message_from_xml(const Handles &handles, const Fragment &fragment, const std::string &origin, bool lenient) {
    const reflect::MessageOperations &operations = message_for(fragment, origin);
    const Document document = parse(fragment, origin);
    if (!lenient) require_schema(document, fragment, origin, *operations.message);
    const bool states = has_states(document.get());
    const Handle &handle = handles.choose(states);
    char words[256] = {};
    std::uint32_t err = 0;
    void *object = operations.from_xml(handle.get(), context_id, document.get(), &err, words, sizeof words);
    if (object == nullptr) {
        throw Failure(exit_of(err), location(origin, fragment, 1) + operations.name + " cannot be read: " +
                                        error_text(err) + (words[0] != 0 ? std::string("; ") + words : ""));
    }
    Message message(handle, operations, object);
    if (states && handle.tracked()) apply_states(message, document.get());
    return message;
}

}  // namespace

std::vector<Fragment> split_fragments(std::string_view text, const std::string &origin) {
    return Splitter(text, origin).run();
}

Item item_of(const Handles &handles, const Fragment &fragment, const std::string &origin, bool lenient) {
    const std::string at = origin + ":" + std::to_string(fragment.line);
    if (const auto control = control_in(fragment, origin)) return {*control, std::nullopt, at};
    Message message = message_from_xml(handles, fragment, origin, lenient);
    Item item{{&message.operations()}, std::nullopt, at};
    item.message.emplace(std::move(message));
    return item;
}

}  // namespace tarn::tool
