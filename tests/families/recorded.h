// The calls that operations are expected to make, computed from the reference layout.
#pragma once

#include "lumo_ui_tarn.h"
#include "recording.h"
#include "records.h"

namespace families {

using Lines = std::vector<std::string>;
using recording::Handle;
using recording::Tracking;

// Creates an object without recording calls. From here on its bytes, including its area, read as "object+N", and new
// blocks are numbered from 1.
inline void *make_object(const Handle &h, const RecordOperations &r, const char *called = "object") {
    recording::pause();
    void *object = r.create(h, id);
    recording::pause(false);
    recording::name_region(called, object, r.sizeof_(h));
    return object;
}

inline Lines lines_of(const std::function<void()> &operation) {
    recording::clear_log();
    operation();
    return recording::lines();
}

class Sequence : public testing::Test {
protected:
    void SetUp() override {
        mirk_lumo_ui_tarn_type_trace_init();  // not every test creates an instance first
        reset();
    }
    void reset() {
        recording::clear_names();
        recording::clear_log();
        recording::name_region("slot", &err, sizeof err);
    }
    std::uint32_t err = 0;
};

inline std::string plus(const std::string &region, std::uint64_t offset) {
    return offset == 0 ? region : region + "+" + std::to_string(offset);
}

inline void append(Lines &lines, const Lines &more) { lines.insert(lines.end(), more.begin(), more.end()); }

inline std::string type_name(const MemberOperations &m) {
    switch (m.member->kind) {
        case Kind::record:
            return std::string(m.member->record->name);
        case Kind::enumeration:
            return std::string(m.member->enumeration->name);
        default:
            return family(m);
    }
}

// One object in a named region, with its state area in the same one.
struct Location {
    std::string region = "object";
    std::uint32_t at = 0, area = 0;

    std::string text(std::uint32_t offset = 0) const { return plus(region, at + offset); }
    std::string state(std::uint32_t slot) const { return plus(region, area + slot); }
    Location member(const RecordOperations &r, const MemberOperations &m) const {
        return {region, at + offset(r, m), area + member_layout(r, m).area};
    }
};

inline Location top_level(const RecordOperations &r, std::string region = "object") {
    return {std::move(region), 0, table(r).base};
}

// The offset of each embedded object with an area is recorded.
inline Lines offset_update_lines(const RecordOperations &r, const Location &spot) {
    Lines lines;
    for (const MemberOperations &m : r.members) {
        if (!has_area(m)) continue;
        const Location child = spot.member(r, m);
        lines.push_back("mirklib_update_sttr_offset " + child.text() + " " + std::to_string(child.area - child.at));
        if (m.member->kind == Kind::address) {
            lines.push_back("ip_address_offset_update " + child.text() + " " + child.state(0));
        } else {
            append(lines, offset_update_lines(nested_record(m), child));
        }
    }
    return lines;
}

inline Lines offset_remove_lines(const RecordOperations &r, const Location &spot) {
    Lines lines;
    for (const MemberOperations &m : r.members) {
        if (!has_area(m)) continue;
        const Location child = spot.member(r, m);
        lines.push_back("mirk_hd_mapping_destroy " + child.text());
        if (m.member->kind == Kind::address) {
            lines.push_back("ip_address_offset_remove " + child.text());
        } else {
            append(lines, offset_remove_lines(nested_record(m), child));
        }
    }
    return lines;
}

struct Creation {
    bool on = false;
    bool private_types = false;
    std::uint32_t notify = 1, skip = 0;
    bool is_nested = false;     // flag 4
    bool has_entry = false;     // flag 64 was set before
    std::string base = "null";  // the sttr_base argument
};

inline Lines header_lines(const std::string &type, const Location &spot, const Creation &s) {
    Lines lines{"mirk_clear_last_error", "mirk_domain_lookup_variant " + type};
    const auto tell = [&](std::uint32_t offset, std::uint32_t size) {
        if (s.notify != 0) lines.push_back("write_notify " + spot.text(offset) + " " + std::to_string(size));
    };
    tell(9, 1);
    tell(8, 1);
    tell(0, 8);
    if (s.private_types) lines.push_back("mirk_type_info_ptr_get " + type);
    tell(10, 1);
    return lines;
}

inline void append_count(Lines &lines, const std::string &type, const Creation &s) {
    const std::string counters = type + (s.private_types ? "(copy)" : "");
    append(lines, {"count_notify " + counters + ".num_created 1", "count_notify " + counters + ".num_live 1"});
}

inline Lines initialize_lines(const RecordOperations &r, const Location &spot, Creation s) {
    Lines lines = header_lines(name(r), spot, s);
    if (s.on && s.notify != 0) lines.push_back("write_notify " + spot.text(10) + " 1");
    if (s.skip == 0) append_count(lines, name(r), s);
    const bool needs_area = s.on && s.skip == 0;
    bool gives_offsets = false;
    if (needs_area && embeds_something(r)) {
        if (!s.is_nested && s.base == "null") s.base = spot.state(0);
        gives_offsets = !s.is_nested || s.has_entry;
        if (s.has_entry) lines.push_back("mirklib_get_sttr_offset " + spot.text());
        if (gives_offsets) append(lines, offset_update_lines(r, spot));
    } else if (needs_area && s.has_entry) {
        lines.push_back("mirklib_get_sttr_offset " + spot.text());
    }
    Creation inner = s;
    inner.is_nested = true;
    inner.has_entry = gives_offsets;
    for (const MemberOperations &m : r.members) {
        if (!is_embedded(m)) continue;
        const Location child = spot.member(r, m);
        if (m.member->kind == Kind::record) {
            append(lines, initialize_lines(nested_record(m), child, inner));
        } else if (m.member->kind == Kind::enumeration) {
            append(lines, header_lines(type_name(m), child, s));
            append_count(lines, type_name(m), s);
        } else {
            lines.push_back(type_name(m) + "_initialize " + child.text() + " " + type_name(m) + " " +
                            std::to_string(s.notify) + " " + std::to_string(s.skip) + " 4 " + s.base);
        }
    }
    return lines;
}

struct Destruction {
    bool on = false;
    bool has_entry = false;
    bool mapping = true;
    bool frees = true;
};

// For an object whose arrays and strings are empty.
inline Lines destroy_lines(const RecordOperations &r, const Location &spot, const Destruction &e) {
    Lines lines;
    for (const MemberOperations &m : r.members) {
        const Location child = spot.member(r, m);
        if (m.member->kind == Kind::record) {
            append(lines, destroy_lines(nested_record(m), child, {e.on, e.on, e.mapping, false}));
        } else if (m.member->kind == Kind::address) {
            append(lines,
                   {"ip_address_get_oid_count " + child.text(), "ip_address_destroy_internal " + child.text() + " 0"});
        } else if (m.member->kind == Kind::array && e.on && e.has_entry) {
            lines.push_back("mirklib_get_sttr_offset " + spot.text());
        }
    }
    if (e.on && e.has_entry) lines.push_back("mirklib_get_sttr_offset " + spot.text());
    append(lines, {"count_notify " + name(r) + ".num_destroyed 1", "count_notify " + name(r) + ".num_live -1"});
    if (e.has_entry && e.mapping) lines.push_back("mirk_hd_mapping_destroy " + spot.text());
    if (e.frees) append(lines, {"write_notify " + spot.text() + " 8", "obj_free " + spot.text()});
    return lines;
}

// Both objects are top-level, in regions of their own.
struct Pair {
    Location to, from;
};

inline Lines clear_block_lines(const RecordOperations &r, const MemberOperations &m, const Location &from) {
    const MemberOperations &counter = r.members[index_of(r, m) - 1];
    return {"write_notify " + from.text(offset(r, m)) + " 8",
            "write_notify " + from.text(offset(r, counter)) + " " + std::to_string(width(counter))};
}

inline bool owns_block(const MemberOperations &m) {
    return m.member->kind == Kind::array || m.member->kind == Kind::string;
}

struct AssignmentCase {
    bool on = false;
    bool to_has_offset = false, from_has_offset = false;
};

inline Lines set_lines(const RecordOperations &r, const Pair &p, const AssignmentCase &c) {
    Lines lines{"mirklib_adjust_variant " + p.to.text() + " " + name(r) + " 0",
                "write_notify " + p.to.text() + " " + std::to_string(table(r).base)};
    if (c.on) {
        if (c.to_has_offset) lines.push_back("mirklib_get_sttr_offset " + p.to.text());
        append(lines, offset_update_lines(r, p.to));
        if (c.from_has_offset) lines.push_back("mirklib_get_sttr_offset " + p.from.text());
    }
    for (const MemberOperations &m : r.members) {
        if (!has_area(m)) continue;
        const Pair inner{p.to.member(r, m), p.from.member(r, m)};
        if (m.member->kind == Kind::address) {
            lines.push_back("ip_address_set " + inner.to.text() + " " + inner.from.text());
        } else {
            append(lines, set_lines(nested_record(m), inner, {c.on, c.on, c.on}));
        }
    }
    for (const MemberOperations &m : r.members) {
        if (owns_block(m)) append(lines, clear_block_lines(r, m, p.from));
        if (m.member->kind != Kind::array || !c.on) continue;
        if (c.from_has_offset) lines.push_back("mirklib_get_sttr_offset " + p.from.text());
        lines.push_back("write_notify " + p.from.state(member_layout(r, m).area) + " 8");
    }
    return lines;
}

inline Lines cleanup_lines(const RecordOperations &r, const Pair &p, bool on) {
    Lines lines;
    for (const MemberOperations &m : r.members) {
        const Pair inner{p.to.member(r, m), p.from.member(r, m)};
        if (m.member->kind == Kind::address) {
            lines.push_back("ip_address_set " + inner.to.text() + " " + inner.from.text());
        } else if (m.member->kind == Kind::record) {
            append(lines, set_lines(nested_record(m), inner, {on, on, on}));
        } else if (owns_block(m)) {
            append(lines, clear_block_lines(r, m, p.from));
        }
    }
    return lines;
}

}  // namespace families
