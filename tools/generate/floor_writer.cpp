// Straight-line code that makes the runtime calls which the contract demands for a frame, and nothing else: what the
// library is measured against. Written out member by member, as one would by hand.
#include "surface.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

std::string number(std::uint32_t n) { return std::to_string(n); }

std::string primitive(const Member &m) {
    switch (m.kind) {
        case Kind::u8:
            return "u_int8";
        case Kind::u16:
            return "u_int16";
        case Kind::u32:
            return "u_int32";
        case Kind::u64:
            return "u_int64";
        case Kind::boolean:
            return "mirk_boolean";
        case Kind::address:
            return "ip_address";
        case Kind::enumeration:
            return std::string(m.enumeration->name);
        default:
            return "";
    }
}

std::string c_type(const Member &m) {
    if (is_integer(m.kind)) return value_type(m);
    return primitive(m);
}

std::string at(const Member &m, const Place &p) { return "(" + c_type(m) + " *)(p + " + number(p.offset) + ")"; }

std::string put_state(const Place &p) {
    return "    if (tracked) { b[o] = area ? area[" + number(p.slot) + "] : 0; o += o != size; }\n";
}

std::string marshal(const Record &record) {
    const std::string name(record.name);
    const Layout l = lay_out(record);
    std::string text =
        "static uint32_t floor_marshal_" + name +
        "(mirk_handle *h, uint32_t id, uint8_t *b, uint8_t *p, int32_t remaining, uint32_t *err) {\n"
        "    if (*err) return 0;\n    mirk_clear_last_error(h);\n"
        "    if (remaining < 1) { *err = 12; mirk_store_err(h, 12); return 0; }\n"
        "    mirk_object *object = (mirk_object *)p;\n"
        "    const uint32_t size = (uint32_t)remaining;\n    uint32_t o = 0;\n"
        "    int8_t variant = mirk_get_instance_variant(object, 1, 0);\n"
        "    const int8_t domain = mirk_domain_lookup_variant(h, &h->domain, object->tinfo, err);\n"
        "    if (variant > domain) { mirk_store_epoch_err(h, 43, err); variant = domain; }\n"
        "    if (variant > 0) variant = 0;\n"
        "    o += _mirk_instance_variant_marshal(h, id, b, &variant, remaining, err);\n"
        "    uint8_t flag = mirk_get_instance_obj_flag(object, 1, 0);\n"
        "    const bool tracked = h->sttr_desc && h->sttr_desc->sttr_mode == 0xEEEE;\n"
        "    uint8_t *area = nullptr;\n"
        "    if (tracked && object->obj_flag & 8) area = p + (object->obj_flag & 64 ? "
        "mirklib_get_sttr_offset(h, id, object) : " +
        number(l.base_size) +
        ");\n"
        "    flag = (uint8_t)((tracked ? flag | 8 : flag & ~8) & 40);\n"
        "    o += _mirk_instance_obj_flag_marshal(h, id, b + o, &flag, (int32_t)(size - o), err);\n"
        "    if (flag & 32) {\n        void *value = nullptr;\n        uint8_t byte = 0;\n"
        "        *err = mirklib_get_ra_data(h, id, object, &value, &byte);\n"
        "        o += _mirk_instance_ra_data_marshal(h, id, b + o, &value, &byte, (int32_t)(size - o), err);\n    }\n"
        "    const uint32_t base = o;\n    uint32_t jump = 0;\n"
        "    o += _mirk_variant_jump_marshal(h, id, b + o, &jump, (int32_t)(size - o), err);\n"
        "    if (variant >= 0) {\n";
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        const Place &p = l.places[i];
        if (m.kind == Kind::array) {
            const std::string element(m.record->name);
            const std::string count =
                "*(" + value_type(record.members[i - 1]) + " *)(p + " + number(l.places[i - 1].offset) + ")";
            text += "    { uint8_t *block = *(uint8_t **)(p + " + number(p.offset) +
                    ");\n    const uint32_t n = block ? " + count +
                    " : 0;\n    for (uint32_t i = 0; i < n; ++i) o += floor_marshal_" + element +
                    "(h, id, b + o, block + (size_t)i * " + number(lay_out(*m.record).base_size) +
                    ", (int32_t)(size - o), err);\n    if (n && tracked) {\n    b[o] = area ? area[" + number(p.slot) +
                    "] : 0; o += o != size;\n    const uint32_t fits = n < size - o ? n : size - o;\n"
                    "    if (area) memcpy(b + o, *(uint8_t **)(area + " +
                    number(p.inner) + "), fits); else memset(b + o, 0, fits);\n    o += fits; } }\n";
        } else if (m.kind == Kind::string) {
            text += "    { char *body = *(char **)(p + " + number(p.offset) +
                    ");\n    uint32_t n = body ? *(uint16_t *)(p + " + number(l.places[i - 1].offset) +
                    ") : 0;\n    if (n) {\n    if (n > size - o) { *err = 90; "
                    "mirk_store_err(h, 90); n = size - o; }\n    memcpy(b + o, body, n); o += n;\n" +
                    put_state(p) + "    } }\n";
        } else if (m.kind == Kind::record) {
            text += "    o += floor_marshal_" + std::string(m.record->name) + "(h, id, b + o, p + " + number(p.offset) +
                    ", (int32_t)(size - o), err);\n" + put_state(p);
        } else {
            text +=
                "    o += " + primitive(m) + "_marshal(h, id, b + o, " + at(m, p) + ", (int32_t)(size - o), err);\n";
            if (is_tracked(m)) text += put_state(p);
        }
    }
    return text +
           "    }\n    jump = o - base;\n    _mirk_variant_jump_marshal(h, id, b + base, &jump, 4, err);\n    return "
           "o;\n}\n\n";
}

std::string take_state(const Place &p) {
    return "    if (take) { if (o != size) { area[" + number(p.slot) +
           "] = b[o]; ++o; } } else if (skip) o += o != size;\n";
}

std::string unmarshal(const Record &record) {
    const std::string name(record.name);
    const Layout l = lay_out(record);
    std::string text =
        "static uint32_t floor_unmarshal_" + name +
        "(mirk_handle *h, uint32_t id, uint8_t *b, uint8_t *p, uint32_t size, uint32_t reuse, uint32_t *err) {\n"
        "    if (*err) return 0;\n    mirk_clear_last_error(h);\n"
        "    if ((int32_t)size < 1) { *err = 12; mirk_store_err(h, 12); return 0; }\n"
        "    mirk_object *object = (mirk_object *)p;\n    uint32_t o = 0;\n    int8_t variant = 0;\n"
        "    uint8_t flag = 0;\n"
        "    o += _mirk_instance_variant_unmarshal(h, id, b, &variant, (int32_t)size, err);\n"
        "    o += _mirk_instance_obj_flag_unmarshal(h, id, b + o, &flag, (int32_t)(size - o), err);\n"
        "    if (flag & 32) {\n        void *value = nullptr;\n        uint8_t byte = 0;\n"
        "        o += _mirk_instance_ra_data_unmarshal(h, id, b + o, &value, &byte, (int32_t)(size - o), err);\n"
        "        mirklib_update_ra_all(h, id, object, value, byte);\n    }\n"
        "    if (variant > 0) variant = 0;\n    const uint32_t base = o;\n    uint32_t jump = 0;\n"
        "    o += _mirk_variant_jump_unmarshal(h, id, b + o, &jump, (int32_t)(size - o), err);\n"
        "    const bool tracked = h->sttr_desc && h->sttr_desc->sttr_mode == 0xEEEE;\n"
        "    const bool take = tracked && flag & 8, skip = !tracked && flag & 8;\n"
        "    uint8_t *area = nullptr;\n"
        "    if (take) area = p + (object->obj_flag & 64 ? mirklib_get_sttr_offset(h, id, object) : " +
        number(l.base_size) +
        ");\n    flag = (uint8_t)(tracked ? flag | 8 : flag & ~8);\n    (void)area;\n"
        "    if (variant >= 0) {\n";
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        const Place &p = l.places[i];
        if (m.kind == Kind::array) {
            const std::string element(m.record->name);
            const Layout e = lay_out(*m.record);
            const std::string count =
                "*(" + value_type(record.members[i - 1]) + " *)(p + " + number(l.places[i - 1].offset) + ")";
            text +=
                "    { const uint32_t n = " + count + ";\n    if (n) {\n    uint8_t **block = (uint8_t **)(p + " +
                number(p.offset) + ");\n    const size_t stride = " + number(e.base_size) + " + (tracked ? " +
                number(e.state_width) +
                " : 0);\n"
                "    h->write_notify(h->mem_ctx, block, 8, id);\n    *block = (uint8_t *)h->obj_alloc(h->mem_ctx, id, "
                "stride * n);\n"
                "    if (!*block) { *err = 12; mirk_store_err(h, 12); return 0; }\n    memset(*block, 0, stride * n);\n"
                "    uint8_t *states = nullptr;\n    if (take) {\n    states = (uint8_t *)h->obj_alloc(h->mem_ctx, id, "
                "n);\n"
                "    memcpy(area + " +
                number(p.inner) +
                ", &states, 8);\n    if (!states) return 0;\n    memset(states, 0, n); }\n"
                "    for (uint32_t i = 0; i < n; ++i) {\n    uint8_t *e = *block + (size_t)i * " +
                number(e.base_size) + ";\n    uint8_t *s = *block + (size_t)n * " + number(e.base_size) +
                " + (size_t)i * " + number(e.state_width) +
                ";\n    if (tracked) mirklib_update_sttr_offset(h, id, e, (uint32_t)(s - e));\n    uint32_t own = 0;\n "
                "   " +
                element + "_initialize(h, id, (" + element + " *)e, &_" + element +
                "_type_info_internal, 1, 0, 4, s, &own);\n    if (own) *err = own;\n    o += floor_unmarshal_" +
                element + "(h, id, b + o, e, size - o, reuse, err);\n    }\n    if (take) {\n    area[" +
                number(p.slot) +
                "] = b[o]; o += o != size;\n    const uint32_t m = n < size - o ? n : size - o;\n    memcpy(states, b "
                "+ o, m); o += m;\n"
                "    } else if (skip) { o += o != size; o += n < size - o ? n : size - o; }\n    } }\n";
        } else if (m.kind == Kind::string) {
            text += "    { const uint32_t n = *(uint16_t *)(p + " + number(l.places[i - 1].offset) +
                    ");\n    if (n) {\n    char **body = (char **)(p + " + number(p.offset) +
                    ");\n    h->write_notify(h->mem_ctx, body, 8, id);\n"
                    "    *body = (char *)h->obj_alloc(h->mem_ctx, id, (size_t)char_sizeof(h) * n);\n"
                    "    if (!*body) { *err = 12; mirk_store_err(h, 12); return 0; }\n    memset(*body, 0, n);\n"
                    "    const uint32_t m = n < size - o ? n : size - o;\n    memcpy(*body, b + o, m); o += m;\n" +
                    take_state(p) + "    } }\n";
        } else if (m.kind == Kind::record) {
            text += "    o += floor_unmarshal_" + std::string(m.record->name) + "(h, id, b + o, p + " +
                    number(p.offset) + ", size - o, reuse, err);\n" + take_state(p);
        } else {
            const std::string left = m.kind == Kind::enumeration ? "size - o" : "(int32_t)(size - o)";
            text +=
                "    o += " + primitive(m) + "_unmarshal(h, id, b + o, " + at(m, p) + ", " + left + ", reuse, err);\n";
            if (is_tracked(m)) text += take_state(p);
        }
    }
    return text +
           "    }\n    if ((int32_t)(base + jump) > (int32_t)o) o = base + jump;\n    object->variant = variant;\n"
           "    object->obj_flag |= flag;\n    object->tinfo = h->private_types ? mirk_type_info_ptr_get(h, id, &_" +
           name + "_type_info_internal, lumo_ui_tarn_typeinfo_initialize) : &_" + name +
           "_type_info_internal;\n    return o;\n}\n\n";
}

}  // namespace

Files write_floor() {
    std::string text = "// Generated from the schema; not to be edited.\n";
    for (const Record *r : records) text += marshal(*r) + unmarshal(*r);
    return {{"floor.inc", text}};
}

}  // namespace tarn::generate
