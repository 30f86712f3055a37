// Manual pages of the library and of the frame format, with tables from the schema.
#include <algorithm>
#include <utility>

#include "api.h"
#include "names.h"
#include "schema/frame.h"
#include "schema/wire_size.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

constexpr const char *date = "November 21, 2026";

// Text without markup, one sentence a line.
std::string line(std::string text) {
    for (std::size_t at = 0; (at = text.find(". ", at)) != std::string::npos;) text.replace(at, 2, ".\n");
    return text + "\n";
}

// Cells contain mdoc already; the first row is the heading. A column is as wide as its widest cell.
std::string table(const std::vector<std::vector<std::string>> &rows) {
    const auto width = [](const std::string &cell) {
        return static_cast<std::size_t>(std::count_if(cell.begin(), cell.end(), [](char c) { return c != '"'; }));
    };
    std::string out = ".Bl -column";
    for (std::size_t i = 0; i < rows.front().size(); ++i) {
        std::size_t widest = 0;
        for (std::size_t r = 1; r < rows.size(); ++r) widest = std::max(widest, width(rows[r][i]));
        out += " " + std::string(std::max<std::size_t>(widest, 5), 'x');
    }
    out += "\n";
    for (const auto &row : rows) {
        out += ".It ";
        for (std::size_t i = 0; i < row.size(); ++i) out += (i > 0 ? " Ta " : "") + row[i];
        out += "\n";
    }
    return out + ".El\n";
}

// A tagged list: names of the schema are too long for columns on a terminal.
std::string list(const std::vector<std::pair<std::string, std::string>> &entries) {
    std::size_t widest = 0;
    for (const auto &[name, text] : entries) widest = std::max(widest, name.size());
    std::string out = ".Bl -tag -compact -width " + std::string(std::min<std::size_t>(widest, 24), 'x') + "\n";
    for (const auto &[name, text] : entries) out += ".It " + name + "\n" + text + "\n";
    return out + ".El\n";
}

// Replaces placeholders by words in capitals.
std::string generic(std::string_view pattern) {
    std::string text(pattern);
    keep_part(text, start_part, true);
    keep_part(text, end_part, true);
    const std::pair<std::string_view, std::string_view> words[] = {
        {": {meaning}", ""}, {"{r}", "RECORD"},  {"{f}", "MEMBER"}, {"{n}", "its type"},
        {"{e}", "ENUM"},     {"{m}", "MESSAGE"}, {"{b}", "BUNDLE"}, {"{k}", "CONTROL"}};
    for (const auto &[placeholder, word] : words) {
        for (std::size_t at = 0; (at = text.find(placeholder, at)) != std::string::npos; at += word.size()) {
            text.replace(at, placeholder.size(), word);
        }
    }
    return text;
}

std::string operations(const std::string &heading, const std::string &introduction, Applies classes) {
    std::string out = ".Ss " + heading + "\n" + line(introduction) + ".Bl -tag -width Ds\n";
    std::vector<std::string> listed;
    for (const Operation &o : tarn::generate::operations()) {
        if (!includes(o.row->applies, classes)) continue;
        const std::string name = generic(o.name), text = generic(o.text);
        if (std::find(listed.begin(), listed.end(), name + text) != listed.end()) continue;
        listed.push_back(name + text);
        out += ".It Fn " + name + "\n" + line(text);
    }
    return out + ".El\n";
}

std::string library_page() {
    std::string out = std::string(".Dd ") + date + R"mdoc(
.Dt LUMO_UI_TARN 3
.Os
.Sh NAME
.Nm lumo_ui_tarn
.Nd records, messages and bundles of traffic-aware routing
.Sh SYNOPSIS
.In lumo_ui_tarn.h
.In mirk_platform.h
.Pp
.Dl cc program.c $(pkg-config --cflags --libs lumo_ui_tarn)
.Sh DESCRIPTION
The library implements one fixed schema.
A record can be created, filled through accessors, compared, hashed and copied.
It can be written to a binary frame and read back, printed as text, and written to and read from XML.
On a handle that tracks state, each member also has a state byte, in which setters store 2.
A message carries one record, and a bundle carries messages.
.Pp
The library runs on a runtime, whose handle is the first argument of most operations.
A reference runtime is included:
.Fn mirk_platform_handle_open
creates a handle, and
.Fn mirk_platform_handle_close
closes it.
.Pp
An operation of a type has the name TYPE_OPERATION, an operation of a member TYPE_MEMBER_OPERATION.
It behaves the same for every type.
Each is listed once below, with words in capitals for the names of types and members;
.In lumo_ui_tarn/families.h
has the details and explains the terms: variant, body, domain, tracking, sentinel.
.Bl -tag -width ctx_id
.It Fa h
The handle.
Use it from one thread at a time.
.It Fa ctx_id
A number that is passed to the memory callbacks of the runtime unchanged.
With the reference runtime any number will do, for example 1.
.It Fa err
The error slot: 0, or a number from
.In errno.h .
Once it is set, calls are no-ops that return 0, NULL or their documented failure value; check it once at the end.
RECORD_set, RECORD_post_copyout_cleanup, RECORD_offset_update, RECORD_offset_remove, the from_xml operations of control
messages, and lumo_ui_tarn_typeinfo_initialize act regardless.
After an error inside a bundle, clear it and marshal the abort: a commit called with it set leaves the bundle open.
.El
.Pp
A sticky form, with _cr at the end of its name, takes neither: it works under the handle's default_id, and its error slot is
the handle's last_error.
The destroy and is_valid operations named _cr act also while last_error is set.
.Pp
Allocate every buffer for a frame, of a record or of a message, one byte larger than the size you pass: the guard byte.
)mdoc";
    using enum Applies;
    out += operations("Records", "Each RECORD has these.", record);
    out += operations(
        "Members with one value",
        "An integer, boolean, enumeration, IP address or nested record has these. The last two have no value forms.",
        integer | boolean | enumerated | address | nested);
    out += operations("Counts and lengths", "A count or a length has these.", count | length);
    out += operations("Strings", "A string has these.", string);
    out += operations("Arrays", "An array has these.", array);
    out += operations("Enumerations", "Each ENUM has these.", enumeration);
    out += operations("Messages", "Each MESSAGE has these.", message);
    out += operations("Bundles", "Each BUNDLE has these, with start, abort and commit for CONTROL.", control | bundle);
    out += operations("The module", "One of each.", Applies::module);

    out += ".Sh RECORDS\n";
    std::vector<std::pair<std::string, std::string>> entries;
    for (const Record *r : records) {
        entries.emplace_back(r->name, std::to_string(r->members.size()) +
                                          (r->members.size() == 1 ? " member: " : " members: ") +
                                          std::string(r->meaning));
    }
    out += list(entries);
    out += ".Sh ENUMERATIONS\n.Bl -tag -width Ds\n";
    for (const Enumeration *e : enumerations) {
        out += ".It Vt " + std::string(e->name) + "\n" + line(std::string(e->meaning) + ":");
        for (std::size_t i = 0; i < e->enumerators.size(); ++i) {
            out += ".Dv " + std::string(e->enumerators[i]) + (i + 1 < e->enumerators.size() ? " ,\n" : "\n");
        }
    }
    out += ".El\n.Sh MESSAGES\n";
    std::vector<std::vector<std::string>> rows{{"Sy message", "Sy payload"}};
    for (const Message *m : messages) rows.push_back({std::string(m->name), std::string(m->payload.name)});
    out += table(rows);
    out += ".Sh BUNDLES\n";
    rows = {{"Sy bundle", "Sy message"}};
    for (const Bundle *b : bundles) rows.push_back({std::string(b->name), std::string(b->message.name)});
    out += table(rows);
    return out + R"mdoc(.Sh ERRORS
.Bl -tag -width Er
.It Bq Er ENOENT
There is no such index, element or object, no bundle is open to be ended, or the open bundle does not admit the message.
.It Bq Er ENOMEM
Allocation failed.
For some sizes of a buffer it is set in place of EMSGSIZE.
.It Bq Er EEXIST
A bundle is already open.
.It Bq Er EINVAL
There are no state bytes, a pointer is NULL, a number in XML is invalid, or a string's destination has size 0.
.It Bq Er ENOSPC
A string was truncated, or the buffer of a print operation is too small.
.It Bq Er ENOSYS
No handler took the message.
.It Bq Er EIDRM
The object has no body, the domain does not have its variant, or the enumeration does not have the value.
A lenient runtime does not set it; marshal operations then write the frame in the domain's variant.
Explicit forms still set last_error, and sticky forms do nothing until an explicit form clears it.
.It Bq Er EBADE
The domain does not have the message.
.It Bq Er EBADMSG
A commit or an abort was received while no bundle is open, or a message's frame does not begin with 0xBC.
.It Bq Er EMSGSIZE
The buffer is too small for the frame or the XML, or for parts of RECORD_print, or the frame is too short.
.El
.Pp
Nothing is rolled back.
An object can be destroyed after any failure, except the destination of a failed RECORD_copy_cr.
.Sh SEE ALSO
.Xr tarn 1 ,
.Xr tarn_frame 5
)mdoc";
}

std::string kind_words(const Member &m) {
    switch (category(m.kind)) {
        case Category::integer:
            return std::string(facts(m.kind).name) + (m.role == Role::count    ? " count"
                                                      : m.role == Role::length ? " length"
                                                                               : "");
        case Category::enumeration:
            return std::string(m.enumeration->name);
        case Category::record:
            return std::string(m.record->name);
        case Category::string:
            return "characters";
        case Category::array:
            return std::string(m.record->name) + " ...";
        case Category::boolean:
        case Category::address:
            break;
    }
    return std::string(facts(m.kind).name);
}

// A row of a table; cells of more than one word are quoted.
std::string row(std::initializer_list<std::string_view> cells) {
    std::string out;
    for (const std::string_view cell : cells) {
        const bool plain = !cell.empty() && cell.find(' ') == std::string_view::npos;
        out += (out.empty() ? ".It " : " Ta ") + (plain ? std::string(cell) : "\"" + std::string(cell) + "\"");
    }
    return out + "\n";
}

std::string rows_of_parts(std::span<const Part> frame) {
    std::string out = ".It Sy bytes Ta Sy field Ta Sy content\n";
    for (const Part &part : frame) {
        const std::string size = part.size == varies ? "" : std::to_string(part.size);
        const std::string more = part.content == Content::identity ? "; see below" : "";
        out += row({part.flag != 0 ? "0 or " + size : size, part.title, std::string(part.meaning) + more});
    }
    return out + ".El\n";
}

std::string kinds() {
    std::string out = ".It Sy kind Ta Sy bytes Ta Sy content\n";
    for (const KindFacts &kind : kind_facts) {
        out += row({kind.name, kind.wire == varies ? "" : std::to_string(kind.wire), kind.in_frame});
    }
    return out + ".El\n";
}

std::string frame_page() {
    std::string out = std::string(".Dd ") + date + R"mdoc(
.Dt TARN_FRAME 5
.Os
.Sh NAME
.Nm tarn_frame
.Nd wire format of the records, messages and bundles of the tarn feature
.Sh DESCRIPTION
A file or a stream of frames holds one frame after another.
Numbers have their most significant byte first.
.Ss Message
A frame consists of a header, an identity and, for a plain message, a payload.
A control message has no payload, so that its frame is )mdoc" +
                      std::to_string(message_head_size) + R"mdoc( bytes long.
.Bl -column "bytes" "total length" "what"
)mdoc" + rows_of_parts(message_frame) +
                      R"mdoc(.Pp
A bundle is the frame of its start, frames of the messages that it admits, and the frame of its commit or abort.
.Ss Record
.Bl -column "bytes" "variant" "what"
)mdoc" + rows_of_parts(record_frame) +
                      R"mdoc(.Pp
A newer sender may have more members after those that a reader knows: the jump leads past them.
With state, each member but a count or a length is followed by its state byte.
.Ss Members
.Bl -column "enumeration" "bytes" "what"
)mdoc" + kinds() + R"mdoc(.Pp
With state, an array that is not empty is followed by the state byte of the whole and then one byte for each element,
and a string that is not empty by one state byte; an empty one has none.
.Sh MESSAGES
)mdoc";
    std::vector<std::pair<std::string, std::string>> entries;
    for (const Message *m : messages) {
        entries.emplace_back(m->name,
                             std::string(m->luid.text.data()) + "\n.br\ncarries " + std::string(m->payload.name));
    }
    out += list(entries);
    out += ".Sh BUNDLES\n";
    for (const Bundle *b : bundles) {
        out += ".Ss " + std::string(b->name) + "\n";
        entries.clear();
        for (const CatalogueEntry &c : catalogue()) {
            if (c.subject.bundle == b) entries.emplace_back(c.subject.control, c.luid->text.data());
        }
        out += list(entries);
    }
    out += ".Sh RECORDS\nSizes are without state; a + means that elements or characters add to it.\n";
    for (const Record *r : records) {
        out += ".Ss " + std::string(r->name) + "\n" + line(capital(r->meaning) + ": " + wire_text(*r) + " bytes.");
        entries.clear();
        for (const Member &m : r->members) {
            entries.emplace_back(m.name, kind_words(m) + ", " + wire_text(m) +
                                             (wire_text(m) == "1" ? " byte: " : " bytes: ") + std::string(m.meaning));
        }
        out += list(entries);
    }
    out += ".Sh ENUMERATIONS\n";
    for (const Enumeration *e : enumerations) {
        out += ".Ss " + std::string(e->name) + "\n";
        std::vector<std::vector<std::string>> rows{{"Sy value", "Sy enumerator"}};
        for (std::size_t i = 0; i < e->enumerators.size(); ++i) {
            rows.push_back({std::to_string(i), std::string(e->enumerators[i])});
        }
        out += table(rows);
    }
    return out + ".Sh SEE ALSO\n.Xr tarn 1 ,\n.Xr lumo_ui_tarn 3\n";
}

}  // namespace

Files write_manuals() { return {{"lumo_ui_tarn.3", library_page()}, {"tarn_frame.5", frame_page()}}; }

}  // namespace tarn::generate
