// Reads messages from XML: a document, or a sequence of fragments such as a recording.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "tools/tarn/formats/item.h"
#include "tools/tarn/support/byte_stream.h"
#include "tools/tarn/support/position.h"

namespace tarn::tool {

// One top-level element with its content, not parsed yet. Refers to the text that it is a part of.
struct Fragment {
    std::string_view name, text;
    std::string_view declaration;  // the XML declaration before it, which may name its encoding
    Position begin;                // of its first character
};

// Splits at the end tag of each top-level element, so that a malformed fragment does not affect the others. One
// fragment is in memory.
class FragmentReader {
public:
    // The stream must outlive it.
    explicit FragmentReader(ByteStream &stream);

    // The next fragment, valid until the next call; none at the end. Throws a Failure for what is no element, after
    // which there is none.
    std::optional<Fragment> next();

private:
    void pass(std::size_t size);
    void skip_blanks();
    bool starts(std::string_view what) { return stream_.look(what.size()).starts_with(what); }
    template <class Find>
    std::size_t find(std::size_t from, std::size_t size, const Find &find_in);
    std::string_view until(std::string_view end, std::size_t from, const std::string &what);
    Fragment element();
    [[noreturn]] void fail(const std::string &reason) const;

    ByteStream &stream_;
    std::string declaration_;
    std::size_t size_ = 0;  // of the last fragment
    Position position_;
    bool has_ended_ = false;
};

// A control message is <bundle_start name="..."></bundle_start>. A message has per-field state if an element has a
// state attribute. Unless lenient, names that the schema does not define and values that the library would not read are
// an Invalid with all of them.
Item item_of(const Handles &handles, const Fragment &fragment, const std::string &origin, bool lenient);

// Reads messages from XML, one after the other.
class XmlReader {
public:
    // The handles and the stream must outlive it.
    XmlReader(const Handles &handles, ByteStream &stream, bool lenient)
        : handles_(handles), origin_(stream.name()), fragments_(stream), lenient_(lenient) {}

    // The next item; none at the end. Throws a Failure for an item that cannot be read, after which the next call reads
    // the one after it, if its beginning can be found.
    std::optional<Item> next();

private:
    const Handles &handles_;
    const std::string origin_;
    FragmentReader fragments_;
    bool lenient_;
};

}  // namespace tarn::tool
