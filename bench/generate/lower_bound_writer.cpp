// Straight-line code that makes the runtime calls which the contract demands for the life and the frames of a record,
// and nothing else: what the library is measured against. Written out member by member, as one would by hand. It covers
// what the measured workloads meet: frames of the same tracking mode, read into fresh instances.
#include "bench/generate/members.h"
#include "bench/generate/writers.h"
#include "tools/generate/fill_in.h"

namespace tarn::bench {

using namespace schema;

namespace {

std::string number(std::uint32_t n) { return std::to_string(n); }

std::string primitive(const Member &m) { return std::string(facts(m.kind).primitive); }

std::string at(const Member &m, const MemberLayout &p) {
    const std::string type = is_integer(m.kind) ? value_type(m) : primitive(m);
    return "(" + type + " *)(p + " + number(p.offset) + ")";
}

// Where the state area lies, for an object that has one.
constexpr const char *area_of_object =
    "p + (object->obj_flag & 64 ? mirklib_get_sttr_offset(h, id, object) : $base_size)";

// What all records share.
constexpr const char *prelude = R"(// Generated from the schema; not to be edited.
static void bound_count(mirk_handle *h, uint32_t id, mirk_type_info *type, uint64_t *counter, int64_t delta) {
    h->count_notify(h->mem_ctx, counter, delta, id);
    if (type->plain_counters) *counter += (uint64_t)delta;
    else __atomic_fetch_add(counter, (uint64_t)delta, __ATOMIC_SEQ_CST);
}

static void bound_begin_object(mirk_handle *h, uint32_t id, mirk_object *object, mirk_type_info *type, uint8_t flags,
                               bool tracked, uint32_t *err) {
    int8_t variant = mirk_domain_lookup_variant(h, &h->domain, type, err);
    if (variant > 0) variant = 0;
    h->write_notify(h->mem_ctx, &object->home_variant, 1, id);
    object->home_variant = variant;
    h->write_notify(h->mem_ctx, &object->variant, 1, id);
    object->variant = variant;
    h->write_notify(h->mem_ctx, &object->tinfo, 8, id);
    object->tinfo = h->private_types ? mirk_type_info_ptr_get(h, id, type, lumo_ui_tarn_typeinfo_initialize) : type;
    h->write_notify(h->mem_ctx, &object->obj_flag, 1, id);
    object->obj_flag |= flags;
    if (tracked) {
        h->write_notify(h->mem_ctx, &object->obj_flag, 1, id);
        object->obj_flag |= 8;
    }
    mirk_variant_entry *entry = object->tinfo->variant_info->entries + variant;
    bound_count(h, id, object->tinfo, &entry->num_created, 1);
    bound_count(h, id, object->tinfo, &entry->num_live, 1);
}

static void bound_end_object(mirk_handle *h, uint32_t id, mirk_object *object, bool free_it) {
    if ((object->obj_flag & 72) == 72) mirklib_get_sttr_offset(h, id, object);
    mirk_type_info *type = object->tinfo;
    if (!type || type->magic != 0xbeeff00d || !type->variant_info) abort();
    mirk_variant_entry *entry = type->variant_info->entries + (object->variant > 0 ? 0 : object->variant);
    bound_count(h, id, type, &entry->num_destroyed, 1);
    bound_count(h, id, type, &entry->num_live, -1);
    if (object->obj_flag & 96 && h->oid_mapping) {
        uint32_t err = 0;
        mirk_hd_mapping_destroy(h, id, object, &err);
        if (err) return;
    }
    if (!free_it) return;
    h->write_notify(h->mem_ctx, &object->tinfo, 8, id);
    object->tinfo = nullptr;
    h->obj_free(h->mem_ctx, id, object);
}

static void bound_destroy_address(mirk_handle *h, uint32_t id, ip_address *address, uint32_t *err) {
    const uint32_t n = ip_address_get_oid_count(h, id, address, err);
    if (n) {
        void **oids = (void **)calloc(n, sizeof(void *));
        ip_address_get_object_references(h, id, address, oids, n, err);
        for (uint32_t i = 0; i < n; ++i) mirklib_lookup_and_update_oid_ref_count(h, id, oids[i], 0, err);
        free(oids);
    }
    ip_address_destroy_internal(h, id, address, 0);
}

)";

// ---- enumerations: a header of their own, and no body

constexpr const char *enumeration_code = R"(
static void bound_initialize_$e(mirk_handle *h, uint32_t id, uint8_t *p, uint8_t *, uint32_t *err) {
    if (*err) return;
    mirk_clear_last_error(h);
    bound_begin_object(h, id, (mirk_object *)p, &_$e_type_info_internal, 4, false, err);
}

static uint32_t bound_marshal_$e(mirk_handle *h, uint32_t id, uint8_t *b, uint8_t *p, int32_t remaining,
                                 uint32_t *err) {
    if (*err) return 0;
    mirk_clear_last_error(h);
    if (remaining < 1) { *err = 12; mirk_store_err(h, 12); return 0; }
    mirk_object *object = (mirk_object *)p;
    int8_t variant = mirk_get_instance_variant(object, 0, 1);
    const int8_t domain = mirk_domain_lookup_variant(h, &h->domain, object->tinfo, err);
    if (variant > domain) { mirk_store_epoch_err(h, 43, err); variant = domain; }
    if (variant > 0) variant = 0;
    const uint32_t o = _mirk_instance_variant_marshal(h, id, b, &variant, remaining, err);
    uint32_t value = *(uint32_t *)(p + 12);
    return o + u_int32_marshal(h, id, b + o, &value, (int32_t)((uint32_t)remaining - o), err);
}

static uint32_t bound_unmarshal_$e(mirk_handle *h, uint32_t id, uint8_t *b, uint8_t *p, uint32_t size, uint32_t reuse,
                                   uint32_t *err) {
    if (*err) return 0;
    mirk_clear_last_error(h);
    if ((int32_t)size < 1) { *err = 12; mirk_store_err(h, 12); return 0; }
    mirk_object *object = (mirk_object *)p;
    int8_t variant = 0;
    uint32_t o = _mirk_instance_variant_unmarshal(h, id, b, &variant, (int32_t)size, err);
    object->variant = variant > 0 ? 0 : variant;
    object->tinfo = h->private_types ? mirk_type_info_ptr_get(h, id, &_$e_type_info_internal,
                                                              lumo_ui_tarn_typeinfo_initialize)
                                     : &_$e_type_info_internal;
    o += u_int32_unmarshal(h, id, b + o, (uint32_t *)(p + 12), (int32_t)(size - o), reuse, err);
    h->write_notify(h->mem_ctx, p + 12, 4, id);
    return o;
}
)";

// ---- life

std::string initialize(const Record &record) {
    const Layout l = lay_out(record);
    bool embeds = false;
    std::string update, members;
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        const MemberLayout &p = l.members[i];
        if (!is_embedded(m)) continue;
        embeds = true;
        const std::string place = number(p.offset), inner = number(p.inner);
        if (has_area(m)) {
            update += "    mirklib_update_sttr_offset(h, id, p + " + place + ", (uint32_t)(area + " + inner +
                      " - (p + " + place + ")));\n";
            update += m.kind == Kind::address ? "    ip_address_offset_update(h, id, (ip_address *)(p + " + place +
                                                    "), area + " + inner + ", err);\n"
                                              : "    bound_offset_update_" + std::string(m.record->name) +
                                                    "(h, id, p + " + place + ", area + " + inner + ", err);\n";
        }
        if (m.kind == Kind::boolean || m.kind == Kind::address) {
            members += "    " + primitive(m) + "_initialize(h, id, " + at(m, p) + ", &_" + primitive(m) +
                       "_type_info_internal, 1, 0, 4, base, &own);\n";
        } else if (m.kind == Kind::enumeration) {
            members += "    bound_initialize_" + std::string(m.enumeration->name) + "(h, id, p + " + place +
                       ", base, &own);\n";
        } else {
            members +=
                "    bound_initialize_" + std::string(m.record->name) + "(h, id, p + " + place + ", 4, base, &own);\n";
        }
        members += "    if (own && !first) first = own;\n    own = 0;\n";
    }
    const std::string place_of_areas =
        embeds ? R"(        if (!nested && !base) base = p + $base_size;
        if (!nested || object->obj_flag & 64) {
            bound_offset_update_$r(h, id, p, object->obj_flag & 64 ? p + mirklib_get_sttr_offset(h, id, object) : base,
                                   err);
        }
)"
               : "        if (object->obj_flag & 64) mirklib_get_sttr_offset(h, id, object);\n";
    const std::string all_members =
        members.empty() ? "" : "    uint32_t first = 0, own = 0;\n" + members + "    if (first) *err = first;\n";
    return fill_in(R"(
[[maybe_unused]] static void bound_offset_update_$r(mirk_handle *h, uint32_t id, uint8_t *p, uint8_t *area,
                                                    uint32_t *err) {
    (void)h, (void)id, (void)p, (void)area, (void)err;
$update}

static void bound_initialize_$r(mirk_handle *h, uint32_t id, uint8_t *p, uint8_t flags, uint8_t *base, uint32_t *err) {
    if (*err) return;
    mirk_clear_last_error(h);
    mirk_object *object = (mirk_object *)p;
    const bool tracked = h->sttr_desc && h->sttr_desc->sttr_mode == 0xEEEE;
    bound_begin_object(h, id, object, &_$r_type_info_internal, flags, tracked, err);
    *err = 0;
    if (tracked) {
        const bool nested = object->obj_flag & 4;
        if (nested && !base) { *err = 22; mirk_store_err(h, 22); return; }
$place_of_areas    }
$all_members}
)",
                   {{"$update", update},
                    {"$place_of_areas", place_of_areas},
                    {"$all_members", all_members},
                    {"$base_size", number(l.base_size)},
                    {"$r", std::string(record.name)}});
}

constexpr const char *create_code = R"(
static void *bound_create_$r(mirk_handle *h, uint32_t id) {
    static uint16_t module = 0;
    static uint64_t state = 0;
    skald_module_init_fn("mirk_lumo_ui_tarn_type", &module, &state);
    const uint32_t size = $base_size + (h->sttr_desc && h->sttr_desc->sttr_mode == 0xEEEE ? $state_width : 0);
    uint8_t *p = (uint8_t *)h->obj_alloc(h->mem_ctx, id, size);
    if (!p) return nullptr;
    memset(p, 0, size);
    uint32_t err = 0;
    bound_initialize_$r(h, id, p, 0, nullptr, &err);
    if (!err) return p;
    h->obj_free(h->mem_ctx, id, p);
    return nullptr;
}
)";

std::string destroy(const Record &record) {
    const Layout l = lay_out(record);
    std::string members;
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        const MemberLayout &p = l.members[i];
        if (m.kind == Kind::address) {
            members += "    bound_destroy_address(h, id, " + at(m, p) + ", &err);\n    if (err) return;\n";
        } else if (m.kind == Kind::record) {
            members +=
                "    bound_destroy_" + std::string(m.record->name) + "(h, id, p + " + number(p.offset) + ", false);\n";
        } else if (m.kind == Kind::array) {
            members += fill_in(R"(    {
        uint8_t **block = (uint8_t **)(p + $offset);
        if (*block) {
            const uint32_t n = *($count *)(p + $counter);
            for (uint32_t i = 0; i < n; ++i) bound_destroy_$e(h, id, *block + (size_t)i * $stride, false);
            h->obj_free(h->mem_ctx, id, *block);
            h->write_notify(h->mem_ctx, block, 8, id);
            *block = nullptr;
        }
        if (object->obj_flag & 8) {
            uint8_t *area = $area;
            uint8_t *states = nullptr;
            memcpy(&states, area + $inner, 8);
            if (states) {
                h->obj_free(h->mem_ctx, id, states);
                memset(area + $inner, 0, 8);
            }
        }
    }
)",
                               {{"$offset", number(p.offset)},
                                {"$counter", number(l.members[i - 1].offset)},
                                {"$count", value_type(record.members[i - 1])},
                                {"$area", area_of_object},
                                {"$base_size", number(l.base_size)},
                                {"$inner", number(p.inner)},
                                {"$stride", number(lay_out(*m.record).base_size)},
                                {"$e", std::string(m.record->name)}});
        } else if (m.kind == Kind::string) {
            members += fill_in(R"(    {
        char **body = (char **)(p + $offset);
        if (*body) {
            h->obj_free(h->mem_ctx, id, *body);
            h->write_notify(h->mem_ctx, body, 8, id);
            *body = nullptr;
        }
    }
)",
                               {{"$offset", number(p.offset)}});
        }
    }
    return fill_in(R"(
static void bound_destroy_$r(mirk_handle *h, uint32_t id, uint8_t *p, bool free_it) {
    mirk_object *object = (mirk_object *)p;
    uint32_t err = 0;
    if (object->obj_flag & 1 && (!mirk_request_oid_mapping_destroy(h, id, object, &err) || err)) return;
$members    bound_end_object(h, id, object, free_it);
}
)",
                   {{"$members", members}, {"$r", std::string(record.name)}});
}

// ---- frames

std::string put_state(const MemberLayout &p) {
    return "    if (tracked) { b[o] = area ? area[" + number(p.slot) + "] : 0; o += o != size; }\n";
}

std::string marshal_member(const Record &record, const Layout &l, std::size_t i) {
    const Member &m = record.members[i];
    const MemberLayout &p = l.members[i];
    if (m.kind == Kind::array) {
        return fill_in(R"(    {
        uint8_t *block = *(uint8_t **)(p + $offset);
        const uint32_t n = block ? *($count *)(p + $counter) : 0;
        for (uint32_t i = 0; i < n; ++i) {
            o += bound_marshal_$e(h, id, b + o, block + (size_t)i * $stride, (int32_t)(size - o), err);
        }
        if (n && tracked) {
            b[o] = area ? area[$slot] : 0;
            o += o != size;
            const uint32_t fits = n < size - o ? n : size - o;
            if (area) memcpy(b + o, *(uint8_t **)(area + $inner), fits);
            else memset(b + o, 0, fits);
            o += fits;
        }
    }
)",
                       {{"$offset", number(p.offset)},
                        {"$counter", number(l.members[i - 1].offset)},
                        {"$count", value_type(record.members[i - 1])},
                        {"$slot", number(p.slot)},
                        {"$inner", number(p.inner)},
                        {"$stride", number(lay_out(*m.record).base_size)},
                        {"$e", std::string(m.record->name)}});
    }
    if (m.kind == Kind::string) {
        return fill_in(
            R"(    {
        char *body = *(char **)(p + $offset);
        uint32_t n = body ? *(uint16_t *)(p + $counter) : 0;
        if (n) {
            if (n > size - o) { *err = 90; mirk_store_err(h, 90); n = size - o; }
            memcpy(b + o, body, n);
            o += n;
        $state        }
    }
)",
            {{"$offset", number(p.offset)}, {"$counter", number(l.members[i - 1].offset)}, {"$state", put_state(p)}});
    }
    if (m.kind == Kind::record || m.kind == Kind::enumeration) {
        const std::string_view name = m.kind == Kind::record ? m.record->name : m.enumeration->name;
        return "    o += bound_marshal_" + std::string(name) + "(h, id, b + o, p + " + number(p.offset) +
               ", (int32_t)(size - o), err);\n" + put_state(p);
    }
    return "    o += " + primitive(m) + "_marshal(h, id, b + o, " + at(m, p) + ", (int32_t)(size - o), err);\n" +
           (is_tracked(m) ? put_state(p) : "");
}

std::string marshal(const Record &record) {
    const Layout l = lay_out(record);
    std::string members;
    for (std::size_t i = 0; i < record.members.size(); ++i) members += marshal_member(record, l, i);
    return fill_in(R"(
static uint32_t bound_marshal_$r(mirk_handle *h, uint32_t id, uint8_t *b, uint8_t *p, int32_t remaining,
                                 uint32_t *err) {
    if (*err) return 0;
    mirk_clear_last_error(h);
    if (remaining < 1) { *err = 12; mirk_store_err(h, 12); return 0; }
    mirk_object *object = (mirk_object *)p;
    const uint32_t size = (uint32_t)remaining;
    uint32_t o = 0;
    int8_t variant = mirk_get_instance_variant(object, 1, 0);
    const int8_t domain = mirk_domain_lookup_variant(h, &h->domain, object->tinfo, err);
    if (variant > domain) { mirk_store_epoch_err(h, 43, err); variant = domain; }
    if (variant > 0) variant = 0;
    o += _mirk_instance_variant_marshal(h, id, b, &variant, remaining, err);
    uint8_t flag = mirk_get_instance_obj_flag(object, 1, 0);
    const bool tracked = h->sttr_desc && h->sttr_desc->sttr_mode == 0xEEEE;
    uint8_t *area = nullptr;
    if (tracked && object->obj_flag & 8) area = $area;
    flag = (uint8_t)((tracked ? flag | 8 : flag & ~8) & 40);
    o += _mirk_instance_obj_flag_marshal(h, id, b + o, &flag, (int32_t)(size - o), err);
    if (flag & 32) {
        void *value = nullptr;
        uint8_t byte = 0;
        *err = mirklib_get_ra_data(h, id, object, &value, &byte);
        o += _mirk_instance_ra_data_marshal(h, id, b + o, &value, &byte, (int32_t)(size - o), err);
    }
    const uint32_t base = o;
    uint32_t jump = 0;
    o += _mirk_variant_jump_marshal(h, id, b + o, &jump, (int32_t)(size - o), err);
    if (variant >= 0) {
$members    }
    jump = o - base;
    _mirk_variant_jump_marshal(h, id, b + base, &jump, 4, err);
    return o;
}
)",
                   {{"$members", members},
                    {"$area", area_of_object},
                    {"$base_size", number(l.base_size)},
                    {"$r", std::string(record.name)}});
}

std::string take_state(const MemberLayout &p) {
    return "    if (take) { if (o != size) { area[" + number(p.slot) +
           "] = b[o]; ++o; } } else if (skip) o += o != size;\n";
}

std::string unmarshal_member(const Record &record, const Layout &l, std::size_t i) {
    const Member &m = record.members[i];
    const MemberLayout &p = l.members[i];
    if (m.kind == Kind::array) {
        const Layout e = lay_out(*m.record);
        return fill_in(R"(    {
        const uint32_t n = *($count *)(p + $counter);
        if (n) {
            uint8_t **block = (uint8_t **)(p + $offset);
            const size_t stride = $stride + (tracked ? $width : 0);
            h->write_notify(h->mem_ctx, block, 8, id);
            *block = (uint8_t *)h->obj_alloc(h->mem_ctx, id, stride * n);
            if (!*block) { *err = 12; mirk_store_err(h, 12); return 0; }
            memset(*block, 0, stride * n);
            uint8_t *states = nullptr;
            if (take) {
                states = (uint8_t *)h->obj_alloc(h->mem_ctx, id, n);
                memcpy(area + $inner, &states, 8);
                if (!states) return 0;
                memset(states, 0, n);
            }
            for (uint32_t i = 0; i < n; ++i) {
                uint8_t *e = *block + (size_t)i * $stride;
                uint8_t *s = *block + (size_t)n * $stride + (size_t)i * $width;
                if (tracked) mirklib_update_sttr_offset(h, id, e, (uint32_t)(s - e));
                uint32_t own = 0;
                bound_initialize_$e(h, id, e, 4, s, &own);
                if (own) *err = own;
                o += bound_unmarshal_$e(h, id, b + o, e, size - o, reuse, err);
            }
            if (take) {
                area[$slot] = b[o];
                o += o != size;
                const uint32_t m = n < size - o ? n : size - o;
                memcpy(states, b + o, m);
                o += m;
            } else if (skip) {
                o += o != size;
                o += n < size - o ? n : size - o;
            }
        }
    }
)",
                       {{"$counter", number(l.members[i - 1].offset)},
                        {"$count", value_type(record.members[i - 1])},
                        {"$offset", number(p.offset)},
                        {"$stride", number(e.base_size)},
                        {"$width", number(e.state_width)},
                        {"$inner", number(p.inner)},
                        {"$slot", number(p.slot)},
                        {"$e", std::string(m.record->name)}});
    }
    if (m.kind == Kind::string) {
        return fill_in(
            R"(    {
        const uint32_t n = *(uint16_t *)(p + $counter);
        if (n) {
            char **body = (char **)(p + $offset);
            h->write_notify(h->mem_ctx, body, 8, id);
            *body = (char *)h->obj_alloc(h->mem_ctx, id, (size_t)char_sizeof(h) * n);
            if (!*body) { *err = 12; mirk_store_err(h, 12); return 0; }
            memset(*body, 0, n);
            const uint32_t m = n < size - o ? n : size - o;
            memcpy(*body, b + o, m);
            o += m;
        $state        }
    }
)",
            {{"$counter", number(l.members[i - 1].offset)}, {"$offset", number(p.offset)}, {"$state", take_state(p)}});
    }
    if (m.kind == Kind::record || m.kind == Kind::enumeration) {
        const std::string_view name = m.kind == Kind::record ? m.record->name : m.enumeration->name;
        return "    o += bound_unmarshal_" + std::string(name) + "(h, id, b + o, p + " + number(p.offset) +
               ", size - o, reuse, err);\n" + take_state(p);
    }
    return "    o += " + primitive(m) + "_unmarshal(h, id, b + o, " + at(m, p) +
           ", (int32_t)(size - o), reuse, err);\n" + (is_tracked(m) ? take_state(p) : "");
}

std::string unmarshal(const Record &record) {
    const Layout l = lay_out(record);
    std::string members;
    for (std::size_t i = 0; i < record.members.size(); ++i) members += unmarshal_member(record, l, i);
    return fill_in(R"(
static uint32_t bound_unmarshal_$r(mirk_handle *h, uint32_t id, uint8_t *b, uint8_t *p, uint32_t size, uint32_t reuse,
                                   uint32_t *err) {
    if (*err) return 0;
    mirk_clear_last_error(h);
    if ((int32_t)size < 1) { *err = 12; mirk_store_err(h, 12); return 0; }
    mirk_object *object = (mirk_object *)p;
    uint32_t o = 0;
    int8_t variant = 0;
    uint8_t flag = 0;
    o += _mirk_instance_variant_unmarshal(h, id, b, &variant, (int32_t)size, err);
    o += _mirk_instance_obj_flag_unmarshal(h, id, b + o, &flag, (int32_t)(size - o), err);
    if (flag & 32) {
        void *value = nullptr;
        uint8_t byte = 0;
        o += _mirk_instance_ra_data_unmarshal(h, id, b + o, &value, &byte, (int32_t)(size - o), err);
        mirklib_update_ra_all(h, id, object, value, byte);
    }
    if (variant > 0) variant = 0;
    const uint32_t base = o;
    uint32_t jump = 0;
    o += _mirk_variant_jump_unmarshal(h, id, b + o, &jump, (int32_t)(size - o), err);
    const bool tracked = h->sttr_desc && h->sttr_desc->sttr_mode == 0xEEEE;
    const bool take = tracked && flag & 8, skip = !tracked && flag & 8;
    uint8_t *area = nullptr;
    if (take) area = $area;
    flag = (uint8_t)(tracked ? flag | 8 : flag & ~8);
    (void)area;
    if (variant >= 0) {
$members    }
    if ((int32_t)(base + jump) > (int32_t)o) o = base + jump;
    object->variant = variant;
    object->obj_flag |= flag;
    object->tinfo = h->private_types ? mirk_type_info_ptr_get(h, id, &_$r_type_info_internal,
                                                              lumo_ui_tarn_typeinfo_initialize)
                                     : &_$r_type_info_internal;
    return o;
}
)",
                   {{"$members", members},
                    {"$area", area_of_object},
                    {"$base_size", number(l.base_size)},
                    {"$r", std::string(record.name)}});
}

}  // namespace

Files write_lower_bound() {
    std::string text = prelude, rows;
    for (const Enumeration *e : enumerations) text += fill_in(enumeration_code, {{"$e", std::string(e->name)}});
    for (const Record *r : records) {
        const Layout l = lay_out(*r);
        const std::string name(r->name);
        text += initialize(*r) +
                fill_in(create_code,
                        {{"$r", name}, {"$base_size", number(l.base_size)}, {"$state_width", number(l.state_width)}}) +
                destroy(*r) + marshal(*r) + unmarshal(*r);
        rows += "    {\"" + name + "\", bound_create_" + name + ", bound_marshal_" + name + ", bound_unmarshal_" +
                name + ", bound_destroy_" + name + "},\n";
    }
    return {{"lower_bound.inc", text + "\nstatic const LowerBound lower_bounds[] = {\n" + rows + "};\n"}};
}

}  // namespace tarn::bench
