#include "tools/tarn/formats/xml.h"

#include <algorithm>
#include <utility>

#include "tools/tarn/formats/problems.h"
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

[[noreturn]] void fail(const Fragment &fragment, const std::string &origin, const std::string &reason) {
    throw Invalid(origin, {{fragment.begin, {}, reason, {}}});
}

// Where the parser stopped in a fragment that it got behind its declaration.
Position position_of(const mirk_platform_report &report, const Fragment &fragment) {
    if (report.line == 0) return fragment.begin;
    if (report.offset == 0) return {fragment.begin.line + report.line - 1, 0};
    const std::size_t declared = std::min<std::size_t>(fragment.declaration.size(), report.offset);
    return fragment.begin.after(fragment.text.substr(0, report.offset - declared));
}

Document parse(const Fragment &fragment, const std::string &origin) {
    const std::string text = std::string(fragment.declaration).append(fragment.text);
    mirk_platform_report report;
    Document document(mirk_platform_document_load_memory(text.data(), text.size(), &report));
    if (document != nullptr) return document;
    const Position position = position_of(report, fragment);
    if (exit_of(report.number) == Exit::input) throw Invalid(origin, {{position, {}, report.sentence, {}}});
    throw Failure(exit_of(report.number), origin + ":" + position.text() + ": " + report.sentence);
}

const reflect::MessageOperations &message_for(const Fragment &fragment, const std::string &origin) {
    if (const auto *found = reflect::find_message(fragment.name); found != nullptr) return *found;
    fail(fragment, origin, in_quotes(fragment.name) + " is not a message" + suggestion(fragment.name, message_names()));
}

std::optional<Identity> control_in(const Fragment &fragment, const std::string &origin) {
    for (const Control control : controls) {
        const std::string element = "bundle_" + std::string(word(control));
        if (fragment.name != element) continue;
        const Document document = parse(fragment, origin);
        char name[128];
        const std::string path = "/" + element + "/@name";
        if (xml_get_element_value(document.get(), path.c_str(), name, sizeof name, nullptr) != 0) {
            fail(fragment, origin, element + " has no name");
        }
        const auto *bundle = reflect::find_bundle(name);
        if (bundle == nullptr) {
            fail(fragment, origin, in_quotes(name) + " is not a bundle" + suggestion(name, bundle_names()));
        }
        return identity_of(*bundle, control);
    }
    return std::nullopt;
}

Message message_from_xml(const Handles &handles, const Fragment &fragment, const std::string &origin, bool lenient) {
    const reflect::MessageOperations &operations = message_for(fragment, origin);
    const Document document = parse(fragment, origin);
    ProblemList problems;
    const bool states =
        lenient ? has_states(document.get()) : check_document(document.get(), *operations.message, fragment, problems);
    problems.require_none(origin);
    const Handle &handle = handles.choose(states);
    char words[256] = {};
    std::uint32_t err = 0;
    void *object = operations.from_xml(handle.get(), context_id, document.get(), &err, words, sizeof words);
    if (object == nullptr) {
        const std::string reason = std::string(operations.name) + " cannot be read: " + error_text(err) +
                                   (words[0] != 0 ? std::string("; ") + words : "");
        if (exit_of(err) == Exit::input) fail(fragment, origin, reason);
        throw Failure(exit_of(err), origin + ":" + fragment.begin.text() + ": " + reason);
    }
    Message message(handle, operations, object);
    if (states && handle.tracked()) apply_states(message, document.get());
    return message;
}

}  // namespace

FragmentReader::FragmentReader(ByteStream &stream) : stream_(stream) {
    if (starts("\xEF\xBB\xBF")) stream.take(3);
}

std::optional<Fragment> FragmentReader::next() {
    if (has_ended_) return std::nullopt;
    // Unless it returns a fragment.
    has_ended_ = true;
    pass(std::exchange(size_, 0));
    for (skip_blanks(); !stream_.look(1).empty(); skip_blanks()) {
        if (starts("<?xml ")) {
            declaration_ = until("?>", 0, "the XML declaration");
            if (declaration_.size() > longest_declaration) {
                fail("the XML declaration has more than " + std::to_string(longest_declaration) + " bytes");
            }
            pass(declaration_.size());
        } else if (starts("<?")) {
            pass(until("?>", 0, "a processing instruction").size());
        } else if (starts("<!--")) {
            pass(until("-->", 0, "a comment").size());
        } else if (starts("<!DOCTYPE")) {
            fail("a document type declaration is not allowed");
        } else {
            const Fragment fragment = element();
            has_ended_ = false;
            return fragment;
        }
    }
    return std::nullopt;
}

void FragmentReader::pass(std::size_t size) {
    position_ = position_.after(stream_.look(size).substr(0, size));
    stream_.take(size);
}

void FragmentReader::skip_blanks() {
    for (std::string_view rest = stream_.look(1); !rest.empty(); rest = stream_.look(1)) {
        const std::size_t size = std::min(rest.find_first_not_of(blanks), rest.size());
        pass(size);
        if (size != rest.size()) break;
    }
}

void FragmentReader::fail(const std::string &reason) const {
    throw Invalid(stream_.name(), {{position_, {}, reason, {}}});
}

// The offset of a match at `from` or after it; npos if there is none. A match has at most `size` bytes.
template <class Find>
std::size_t FragmentReader::find(std::size_t from, std::size_t size, const Find &find_in) {
    for (std::string_view text = stream_.look(1);;) {
        const std::size_t found = find_in(text, from);
        const std::size_t before = text.size();
        if (found != std::string_view::npos) return found;
        from = std::max(from, before - std::min(before, size - 1));
        text = stream_.look(before + 1);
        if (text.size() == before) return found;
    }
}

// The bytes up to the end of the first occurrence at `from` or after it.
std::string_view FragmentReader::until(std::string_view end, std::size_t from, const std::string &what) {
    const std::size_t found =
        find(from, end.size(), [end](std::string_view text, std::size_t at) { return text.find(end, at); });
    if (found == std::string_view::npos) fail(what + " is not terminated");
    return stream_.look(0).substr(0, found + end.size());
}

Fragment FragmentReader::element() {
    const std::size_t name_end =
        !starts("<")
            ? std::string_view::npos
            : find(1, 1, [](std::string_view text, std::size_t at) { return text.find_first_of(" \t\r\n/>", at); });
    if (name_end == std::string_view::npos || name_end == 1) fail("expected an element");
    const std::string name(stream_.look(0).substr(1, name_end - 1)), what = "element " + in_quotes(name);
    std::string_view text = until(">", name_end, what);
    if (!text.ends_with("/>")) text = until("</" + name + ">", text.size(), what);
    size_ = text.size();
    return {text.substr(1, name_end - 1), text, declaration_, position_};
}

std::optional<Item> XmlReader::next() {
    const std::optional<Fragment> fragment = fragments_.next();
    if (!fragment) return std::nullopt;
    return item_of(handles_, *fragment, origin_, lenient_);
}

Item item_of(const Handles &handles, const Fragment &fragment, const std::string &origin, bool lenient) {
    const std::string at = origin + ":" + fragment.begin.text();
    if (const auto control = control_in(fragment, origin)) return {*control, std::nullopt, at};
    Message message = message_from_xml(handles, fragment, origin, lenient);
    Item item{{&message.operations()}, std::nullopt, at};
    item.message.emplace(std::move(message));
    return item;
}

}  // namespace tarn::tool
