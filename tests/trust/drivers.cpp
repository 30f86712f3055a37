// How each exported operation is called in the sweep, and what is told of it when memory runs out.
#include <cerrno>
#include <cstring>
#include <utility>

#include "reference/layout.h"
#include "sweep.h"

namespace trust {

namespace {

const RecordOperations &rec(const Scene &s) { return *s.subject.record; }
const MemberOperations &mem(const Scene &s) { return *s.subject.member; }
const EnumerationOperations &en(const Scene &s) { return *s.subject.enumeration; }
const MessageOperations &msg(const Scene &s) { return *s.subject.message; }
std::uint32_t frame_size(const Scene &s) { return static_cast<std::uint32_t>(s.frame.size() - 1); }

// A sticky create on a handle that has an error hands out the sentinel.
template <class Operations>
void *sentinel_of(const Operations &operations) {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    h->last_error = ENOMEM;
    void *sentinel = operations.create_cr(h);
    mirk_platform_handle_close(h);
    return sentinel;
}

// ---- what is told

void null_alone(Scene &s, const Failure &) {
    EXPECT_EQ(s.made, nullptr);
    EXPECT_EQ(s.last_error, 0U);
}

template <class Operations>
void sentinel_and_12(Scene &s, const Operations &operations) {
    EXPECT_EQ(s.made, sentinel_of(operations));
    EXPECT_EQ(s.last_error, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(s.h->cr_mode, 0U);
    s.made = nullptr;
}

void twelve(Scene &s, const Failure &) {
    EXPECT_EQ(s.err, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(s.last_error, static_cast<std::uint32_t>(ENOMEM));
}
void twelve_and_nothing(Scene &s, const Failure &f) {
    twelve(s, f);
    EXPECT_EQ(s.made, nullptr);
}
// A document's reader makes an element before it looks at the error of the one before, which clears the handle's.
void twelve_in_the_slot(Scene &s, const Failure &) {
    EXPECT_EQ(s.err, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_TRUE(s.last_error == 0 || s.last_error == ENOMEM) << s.last_error;
}
// A message that could not be read is left behind.
void message_is_kept(Scene &s, const Failure &f) {
    twelve_in_the_slot(s, f);
    EXPECT_EQ(s.made, nullptr);
    s.may_lose = mirk_platform_live_blocks(s.h);
}
void sticky_twelve(Scene &s, const Failure &) {
    EXPECT_EQ(s.last_error, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(s.made, nullptr);
}

// An array that cannot grow is as it was, but the old vector of element states is lost if a new one cannot be had.
void grown(Scene &s, const Failure &f) {
    sticky_twelve(s, f);
    if (s.tracks) s.may_lose = 1;
}

// ---- records

// The states of an instance on its own stand directly behind it.
void *area_of(const Scene &s, void *object) {
    return static_cast<char *>(object) + reference::layout_of(reference::record_table(rec(s).record->name)).base;
}

// As an array moves an element: the bytes first, then the cleaning up of the old place, which is then only storage.
void move_out(Scene &s) {
    rec(s).destroy_internal(s.h, kId, s.other, 0);
    std::memcpy(s.other, s.object, rec(s).sizeof_(s.h));
    if (s.tracks) rec(s).offset_update(s.h, kId, s.other, area_of(s, s.other), s.error());
    rec(s).post_copyout_cleanup(s.h, kId, s.other, s.object, s.error());
    if (s.tracks) rec(s).offset_remove(s.h, kId, s.object, s.error());
    s.h->obj_free(s.h->mem_ctx, kId, s.object);
    s.object = nullptr;
}

// ---- members

void member_get(Scene &s) {
    const MemberOperations &m = mem(s);
    if (m.text_get != nullptr) m.text_get(s.h, kId, s.object, s.text(), 8, s.error());
    if (m.element_get != nullptr) m.element_get(s.h, kId, s.object, 0, s.error());
    if (m.get != nullptr) m.get(s.h, kId, s.object, s.error());
}

void member_set(Scene &s) {
    const MemberOperations &m = mem(s);
    if (m.text_set != nullptr) {
        m.text_set(s.h, kId, s.object, "another", 7, s.error());
    } else if (m.element_set != nullptr) {
        m.element_set(s.h, kId, s.object, 3, s.element, s.error());
    } else {
        // From a fresh record, so that a nested one has nothing to lose and nothing to gain.
        m.set(s.h, kId, s.other, m.get(s.h, kId, s.object, s.error()), s.error());
    }
}
void member_set_failed(Scene &s, const Failure &f) {
    twelve(s, f);
    if (mem(s).element_set != nullptr && s.tracks) s.may_lose = 1;
    if (mem(s).text_set == nullptr) return;
    EXPECT_EQ(bridge::block_of(rec(s), s.object, mem(s).member->name), nullptr);
}

void member_set_cr(Scene &s) {
    const MemberOperations &m = mem(s);
    if (m.text_set_cr != nullptr) {
        s.result = m.text_set_cr(s.h, s.object, "another", 7);
    } else {
        s.result = m.element_set_cr(s.h, s.object, 3, s.element, 0);
    }
}
void member_set_cr_failed(Scene &s, const Failure &f) {
    grown(s, f);
    EXPECT_EQ(s.result, static_cast<std::uint32_t>(ENOMEM));
}

// ---- messages

void message_create_cr_failed(Scene &s, const Failure &f) {
    EXPECT_EQ(s.last_error, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(s.h->cr_mode, 0U);
    const RecordOperations &payload = tarn::reflect::operations_of(msg(s).message->payload);
    std::uint32_t err = 0;
    EXPECT_EQ(msg(s).payload_get(s.h, kId, s.made, &err), sentinel_of(payload));
    // Without memory for the message its own sentinel is handed out; without memory for the payload a message is.
    EXPECT_EQ(s.made == sentinel_of(msg(s)), f.nth == 1);
}

extern "C" void take(mirk_handle *, std::uint32_t, void *context, void *message, std::uint32_t *) {
    static_cast<Scene *>(context)->made = message;
}

extern "C" int print_nowhere(const char *, ...) { return 0; }

}  // namespace

const std::vector<Driver> &drivers() {
    static const std::vector<Driver> all = {
        // ---- records
        {"record", "create", [](Scene &s) { s.made = rec(s).create(s.h, kId); }, null_alone},
        {"record", "create_internal", [](Scene &s) { s.made = rec(s).create_internal(s.h, kId); }, null_alone},
        {"record", "create_cr", [](Scene &s) { s.made = rec(s).create_cr(s.h); },
         [](Scene &s, const Failure &) { sentinel_and_12(s, rec(s)); }},
        {"record", "initialize",
         [](Scene &s) {
             rec(s).destroy_internal(s.h, kId, s.other, 0);
             std::memset(s.other, 0, rec(s).sizeof_(s.h));
             rec(s).initialize(s.h, kId, s.other, rec(s).type, 1, 0, 0, nullptr, s.error());
         }},
        {"record", "sizeof", [](Scene &s) { s.result = rec(s).sizeof_(s.h); }},
        {"record", "variant_data_index_cap",
         [](Scene &s) { s.result = static_cast<std::uint8_t>(rec(s).variant_data_index_cap(3)); }},
        {"record", "set_instance_embedded", [](Scene &s) { rec(s).set_instance_embedded(s.h, kId, s.object); }},
        {"record", "adjust_variant", [](Scene &s) { rec(s).adjust_variant(s.h, kId, s.object, s.error()); }},
        {"record", "destroy",
         [](Scene &s) { rec(s).destroy(s.h, kId, std::exchange(s.object, nullptr)); }},
        {"record", "destroy_cr", [](Scene &s) { rec(s).destroy_cr(s.h, std::exchange(s.object, nullptr)); }},
        {"record", "destroy_internal",
         [](Scene &s) { rec(s).destroy_internal(s.h, kId, std::exchange(s.object, nullptr), 1); }},
        {"record", "get", [](Scene &s) { s.result = rec(s).get(s.h, kId, s.object, s.error()) == s.object; }},
        {"record", "get_all",
         [](Scene &s) {
             std::vector<std::uint64_t> values(rec(s).members.size());
             std::vector<void *> out;
             for (std::uint64_t &value : values) out.push_back(&value);
             rec(s).get_all(s.h, kId, s.object, out.data(), s.error());
         }},
        {"record", "set_all",
         [](Scene &s) {
             const std::vector<std::uint64_t> values(rec(s).members.size(), 1);
             rec(s).set_all(s.h, kId, s.object, values.data(), s.error());
         }},
        {"record", "set", [](Scene &s) { rec(s).set(s.h, kId, s.other, s.object, s.error()); }},
        {"record", "post_copyout_cleanup", move_out},
        // Where there is a vector of element states, it is lost under the fill.
        {"record", "set_all_state_tracking_flag",
         [](Scene &s) { rec(s).set_all_state_tracking_flag(s.h, kId, s.other, 1); }},
        {"record", "is_valid_cr", [](Scene &s) { s.result = rec(s).is_valid_cr(s.h, s.object, 0); }},
        {"record", "get_oid_count",
         [](Scene &s) { s.result = rec(s).get_oid_count(s.h, kId, s.object, s.error()); }},
        {"record", "get_object_references",
         [](Scene &s) {
             void *oids[4] = {};
             rec(s).get_object_references(s.h, kId, s.object, oids, 4, s.error());
         }},
        {"record", "offset_update",
         [](Scene &s) { rec(s).offset_update(s.h, kId, s.object, area_of(s, s.object), s.error()); }},
        // Put back at once: what is nested finds its states by these.
        {"record", "offset_remove",
         [](Scene &s) {
             rec(s).offset_remove(s.h, kId, s.object, s.error());
             if (s.tracks) rec(s).offset_update(s.h, kId, s.object, area_of(s, s.object), s.error());
         }},
        {"record", "len", [](Scene &s) { s.result = rec(s).len(s.h, kId, s.object); }},
        {"record", "len_cr", [](Scene &s) { s.result = rec(s).len_cr(s.h, s.object); }},
        {"record", "marshal",
         [](Scene &s) { s.result = rec(s).marshal(s.h, kId, s.text(), s.object, s.size(), s.error()); }},
        {"record", "marshal_for_clone",
         [](Scene &s) { s.result = rec(s).marshal_for_clone(s.h, kId, s.text(), s.object, s.size(), s.error()); }},
        {"record", "unmarshal",
         [](Scene &s) {
             s.result = rec(s).unmarshal(s.h, kId, s.frame.data(), s.other, frame_size(s), 0, s.error());
         },
         twelve_and_nothing},
        {"record", "clone",
         [](Scene &s) {
             const auto size = static_cast<std::uint32_t>(s.size());
             rec(s).clone(s.h, kId, s.object, &s.made, s.text(), size, s.error());
         },
         twelve_and_nothing},
        {"record", "clone_cr", [](Scene &s) { s.made = rec(s).clone_cr(s.h, s.object); }, sticky_twelve},
        {"record", "copy_cr",
         [](Scene &s) {
             rec(s).copy_cr(s.h, s.object, s.other);
             if (s.h->last_error != 0 && !s.is_live(s.other)) s.other = nullptr;
         },
         [](Scene &s, const Failure &) {
             EXPECT_EQ(s.last_error, static_cast<std::uint32_t>(ENOMEM));
             EXPECT_EQ(s.other, nullptr) << "a destination that could not be filled is ended";
         }},
        {"record", "print",
         [](Scene &s) { s.result = rec(s).print(s.h, kId, s.text(), 0, "o", s.object, s.size(), s.error()); }},
        {"record", "print_cr", [](Scene &s) { s.result = rec(s).print_cr(s.h, s.object, s.text(), s.size()); }},
        {"record", "to_xml",
         [](Scene &s) { s.result = rec(s).to_xml(s.h, kId, "o", s.text(), s.object, s.size(), 0, s.error()); }},
        {"record", "toxml_cr", [](Scene &s) { s.result = rec(s).toxml_cr(s.h, s.object, s.text(), s.size()); }},
        {"record", "from_xml",
         [](Scene &s) {
             const std::string path = "/" + std::string(rec(s).record->name);
             rec(s).from_xml(s.h, kId, path.c_str(), s.document, s.other, s.error(), s.text(), 128);
         },
         [](Scene &s, const Failure &f) {
             twelve_in_the_slot(s, f);
             if (s.tracks) s.may_lose = 1;
         }},
        {"record", "compare",
         [](Scene &s) { s.result = static_cast<std::uint32_t>(rec(s).compare(s.object, s.other)); }},
        {"record", "hash", [](Scene &s) { s.result = rec(s).hash(s.object, 5); }},
        {"record", "type_type_backpropagate",
         [](Scene &s) {
             std::uint64_t word = 0;
             s.result = rec(s).type_type_backpropagate(s.h, kId, s.object, &word);
         }},

        // ---- members
        {"member", "get", member_get},
        {"member", "get_value", [](Scene &s) { s.result = mem(s).get_value(s.h, kId, s.object, s.error()); }},
        {"member", "set", member_set, member_set_failed},
        {"member", "set_value", [](Scene &s) { mem(s).set_value(s.h, kId, s.object, 1, s.error()); }},
        {"member", "set_cr", member_set_cr, member_set_cr_failed},
        {"member", "state_flag_get",
         [](Scene &s) {
             const MemberOperations &m = mem(s);
             s.result = m.element_state_flag_get != nullptr
                            ? m.element_state_flag_get(s.h, kId, s.object, 0, s.error())
                            : m.state_flag_get(s.h, kId, s.object, s.error());
         }},
        {"member", "state_flag_set",
         [](Scene &s) {
             const MemberOperations &m = mem(s);
             if (m.element_state_flag_set != nullptr) {
                 m.element_state_flag_set(s.h, kId, s.object, 0, 3, s.error());
             } else {
                 m.state_flag_set(s.h, kId, s.object, 3, s.error());
             }
         }},
        {"member", "state_flag_whole_get",
         [](Scene &s) { s.result = mem(s).state_flag_get(s.h, kId, s.object, s.error()); }},
        {"member", "state_flag_whole_set",
         [](Scene &s) { mem(s).state_flag_set(s.h, kId, s.object, 3, s.error()); }},
        {"member", "state_flag_get_arr",
         [](Scene &s) {
             std::uint8_t *vector = nullptr;
             mem(s).element_state_flag_get_arr(s.h, kId, s.object, &vector, s.error());
         }},
        {"member", "state_flag_set_arr",
         [](Scene &s) {
             const std::uint8_t states[2] = {1, 2};
             mem(s).element_state_flag_set_arr(s.h, kId, s.object, states, 2, s.error());
         }},

        // ---- enumerations
        {"enumeration", "create", [](Scene &s) { s.made = en(s).create(s.h, kId); }, null_alone},
        {"enumeration", "create_internal", [](Scene &s) { s.made = en(s).create_internal(s.h, kId); }, null_alone},
        {"enumeration", "create_cr", [](Scene &s) { s.made = en(s).create_cr(s.h); },
         [](Scene &s, const Failure &) { sentinel_and_12(s, en(s)); }},
        {"enumeration", "initialize",
         [](Scene &s) {
             en(s).initialize(s.h, kId, s.other, en(s).type, 1, 0, 0, nullptr, s.error());
         }},
        {"enumeration", "sizeof", [](Scene &s) { s.result = en(s).sizeof_(); }},
        {"enumeration", "variant_data_index_cap",
         [](Scene &s) { s.result = static_cast<std::uint8_t>(en(s).variant_data_index_cap(3)); }},
        {"enumeration", "set_instance_embedded", [](Scene &s) { en(s).set_instance_embedded(s.h, kId, s.object); }},
        {"enumeration", "adjust_variant", [](Scene &s) { en(s).adjust_variant(s.h, kId, s.object, s.error()); }},
        {"enumeration", "destroy",
         [](Scene &s) { en(s).destroy(s.h, kId, std::exchange(s.object, nullptr)); }},
        {"enumeration", "destroy_cr", [](Scene &s) { en(s).destroy_cr(s.h, std::exchange(s.object, nullptr)); }},
        {"enumeration", "destroy_internal",
         [](Scene &s) { en(s).destroy_internal(s.h, kId, std::exchange(s.object, nullptr), 1); }},
        {"enumeration", "get_oid_count",
         [](Scene &s) { s.result = en(s).get_oid_count(s.h, kId, s.object, s.error()); }},
        {"enumeration", "get_object_references",
         [](Scene &s) { en(s).get_object_references(s.h, kId, s.object, nullptr, 0, s.error()); }},
        {"enumeration", "get", [](Scene &s) { s.result = en(s).get(s.h, kId, s.object, s.error()) == s.object; }},
        {"enumeration", "get_value", [](Scene &s) { s.result = en(s).get_value(s.h, kId, s.object, s.error()); }},
        {"enumeration", "set", [](Scene &s) { en(s).set(s.h, kId, s.other, s.object, s.error()); }},
        {"enumeration", "set_value", [](Scene &s) { en(s).set_value(s.h, kId, s.object, 1, s.error()); }},
        {"enumeration", "is_valid_cr", [](Scene &s) { s.result = en(s).is_valid_cr(s.h, 1); }},
        {"enumeration", "map_to_user_value", [](Scene &s) { s.result = en(s).map_to_user_value(1); }},
        {"enumeration", "map_to_internal_value", [](Scene &s) { s.result = en(s).map_to_internal_value(1); }},
        {"enumeration", "compare",
         [](Scene &s) { s.result = static_cast<std::uint32_t>(en(s).compare(s.object, s.other)); }},
        {"enumeration", "hash", [](Scene &s) { s.result = en(s).hash(s.object, 5); }},
        {"enumeration", "backpropagate",
         [](Scene &s) {
             std::uint64_t word = 0;
             s.result = en(s).backpropagate(s.h, kId, s.object, &word);
         }},
        {"enumeration", "len", [](Scene &s) { s.result = en(s).len(s.h, kId, s.object); }},
        {"enumeration", "len_cr", [](Scene &s) { s.result = en(s).len_cr(s.h); }},
        {"enumeration", "marshal",
         [](Scene &s) { s.result = en(s).marshal(s.h, kId, s.text(), s.object, s.size(), s.error()); }},
        {"enumeration", "unmarshal",
         [](Scene &s) {
             s.result = en(s).unmarshal(s.h, kId, s.frame.data(), s.object, frame_size(s), 0, s.error());
         }},
        {"enumeration", "print",
         [](Scene &s) { s.result = en(s).print(s.h, kId, s.text(), 0, "o", s.object, s.size(), s.error()); }},
        {"enumeration", "print_cr", [](Scene &s) { s.result = en(s).print_cr(s.h, s.object, s.text(), s.size()); }},
        {"enumeration", "to_xml",
         [](Scene &s) { s.result = en(s).to_xml(s.h, kId, "o", s.text(), s.object, s.size(), 0, s.error()); }},
        {"enumeration", "toxml_cr", [](Scene &s) { s.result = en(s).toxml_cr(s.h, s.object, s.text(), s.size()); }},
        {"enumeration", "from_xml",
         [](Scene &s) {
             const std::string path = "/" + std::string(en(s).enumeration->name);
             en(s).from_xml(s.h, kId, path.c_str(), s.document, s.object, s.error(), s.text(), 128);
         }},

        // ---- messages
        {"message", "create_shallow", [](Scene &s) { s.made = msg(s).create_shallow(s.h, kId); }, null_alone},
        {"message", "create", [](Scene &s) { s.made = msg(s).create(s.h, kId); }, null_alone},
        {"message", "create_unsafe", [](Scene &s) { s.made = msg(s).create_unsafe(s.h, kId); }, null_alone},
        {"message", "create_cr", [](Scene &s) { s.made = msg(s).create_cr(s.h); }, message_create_cr_failed},
        {"message", "destroy", [](Scene &s) { msg(s).destroy(s.h, kId, std::exchange(s.object, nullptr)); }},
        {"message", "destroy_cr", [](Scene &s) { msg(s).destroy_cr(s.h, std::exchange(s.object, nullptr)); }},
        {"message", "destroy_unsafe",
         [](Scene &s) { msg(s).destroy_unsafe(s.h, kId, std::exchange(s.object, nullptr)); }},
        {"message", "is_valid_cr", [](Scene &s) { s.result = msg(s).is_valid_cr(s.h); }},
        {"message", "len", [](Scene &s) { s.result = msg(s).len(s.h, kId, s.object); }},
        {"message", "len_cr", [](Scene &s) { s.result = msg(s).len_cr(s.h, s.object); }},
        {"message", "len_unsafe", [](Scene &s) { s.result = msg(s).len_unsafe(s.h, kId, s.object); }},
        {"message", "marshal",
         [](Scene &s) { s.result = msg(s).marshal(s.h, kId, s.text(), s.object, Scene::room - 1, s.error()); }},
        {"message", "marshal_cr",
         [](Scene &s) { s.result = msg(s).marshal_cr(s.h, s.object, s.text(), Scene::room - 1); }},
        {"message", "marshal_unsafe",
         [](Scene &s) { s.result = msg(s).marshal_unsafe(s.h, kId, s.text(), s.object, Scene::room - 1, s.error()); }},
        // The message goes to the handler; what a failed reading made goes to nobody.
        {"message", "unmarshal",
         [](Scene &s) {
             void *out = nullptr;
             msg(s).unmarshal(s.h, kId, &s, &out, s.frame.data(), frame_size(s), take, s.error());
             s.result = out == s.made;
         },
         message_is_kept},
        {"message", "unmarshal_only",
         [](Scene &s) {
             msg(s).unmarshal_only(s.h, kId, &s.made, s.frame.data(), frame_size(s), s.error());
         },
         [](Scene &s, const Failure &f) {
             twelve(s, f);
             EXPECT_EQ(s.made == nullptr, f.nth == 1) << "what was read so far is handed out";
         }},
        {"message", "print",
         [](Scene &s) { s.result = msg(s).print(s.h, kId, s.text(), s.object, Scene::room, s.error()); }},
        {"message", "print_cr",
         [](Scene &s) { s.result = msg(s).print_cr(s.h, s.object, s.text(), Scene::room); }},
        {"message", "print_unsafe",
         [](Scene &s) { s.result = msg(s).print_unsafe(s.h, kId, s.text(), s.object, Scene::room, s.error()); }},
        {"message", "to_xml",
         [](Scene &s) { s.result = msg(s).to_xml(s.h, kId, s.text(), s.object, Scene::room, s.error()); }},
        {"message", "toxml_cr",
         [](Scene &s) { s.result = msg(s).toxml_cr(s.h, s.object, s.text(), Scene::room); }},
        {"message", "to_xml_unsafe",
         [](Scene &s) { s.result = msg(s).to_xml_unsafe(s.h, kId, s.text(), s.object, Scene::room, s.error()); }},
        // A failed reading returns null and keeps the object.
        {"message", "from_xml",
         [](Scene &s) { s.made = msg(s).from_xml(s.h, kId, s.document, s.error(), s.text(), 128); },
         message_is_kept},
        {"message", "from_xml_unsafe",
         [](Scene &s) { s.made = msg(s).from_xml_unsafe(s.h, kId, s.document, s.error(), s.text(), 128); },
         message_is_kept},
        {"payload", "get",
         [](Scene &s) { s.result = msg(s).payload_get(s.h, kId, s.object, s.error()) != nullptr; }},
        {"payload", "get_detach",
         [](Scene &s) {
             void *payload = msg(s).payload_get_detach(s.h, kId, s.object, s.error());
             msg(s).payload_set(s.h, kId, s.object, payload, s.error());
         }},
        {"payload", "set",
         [](Scene &s) {
             void *payload = msg(s).payload_get(s.h, kId, s.object, s.error());
             msg(s).payload_set(s.h, kId, s.object, payload, s.error());
         }},
        {"payload", "free_and_set",
         [](Scene &s) { msg(s).payload_free_and_set(s.h, kId, s.object, nullptr, s.error()); }},
        {"message handler", "handler",
         [](Scene &s) {
             // It reports that nobody took the message, which stays with the caller.
             msg(s).handler(s.h, kId, nullptr, s.object, s.error());
             s.result = s.err;
         }},

        // ---- control messages
        {"control", "create", [](Scene &s) { s.made = msg(s).create(s.h, kId); }, null_alone},
        {"control", "create_unsafe", [](Scene &s) { s.made = msg(s).create_unsafe(s.h, kId); }, null_alone},
        {"control", "create_cr", [](Scene &s) { s.made = msg(s).create_cr(s.h); },
         [](Scene &s, const Failure &) { sentinel_and_12(s, msg(s)); }},
        {"control", "destroy", [](Scene &s) { msg(s).destroy(s.h, kId, std::exchange(s.object, nullptr)); }},
        {"control", "destroy_cr", [](Scene &s) { msg(s).destroy_cr(s.h, std::exchange(s.object, nullptr)); }},
        {"control", "destroy_unsafe",
         [](Scene &s) { msg(s).destroy_unsafe(s.h, kId, std::exchange(s.object, nullptr)); }},
        {"control", "len", [](Scene &s) { s.result = msg(s).len(s.h, kId, s.object); }},
        {"control", "len_cr", [](Scene &s) { s.result = msg(s).len_cr(s.h, s.object); }},
        {"control", "len_unsafe", [](Scene &s) { s.result = msg(s).len_unsafe(s.h, kId, s.object); }},
        {"control", "marshal",
         [](Scene &s) { s.result = msg(s).marshal(s.h, kId, s.text(), s.object, 43, s.error()); }},
        {"control", "marshal_cr", [](Scene &s) { s.result = msg(s).marshal_cr(s.h, s.object, s.text(), 43); }},
        {"control", "marshal_unsafe",
         [](Scene &s) { s.result = msg(s).marshal_unsafe(s.h, kId, s.text(), s.object, 43, s.error()); }},
        {"control", "unmarshal",
         [](Scene &s) {
             s.result = msg(s).unmarshal(s.h, kId, &s, nullptr, s.frame.data(), frame_size(s), take, s.error());
         }},
        {"control", "unmarshal_only",
         [](Scene &s) {
             void *out = nullptr;
             s.result = msg(s).unmarshal_only(s.h, kId, &out, s.frame.data(), frame_size(s), s.error());
         }},
        {"control", "print",
         [](Scene &s) { s.result = msg(s).print(s.h, kId, s.text(), s.object, Scene::room, s.error()); }},
        {"control", "print_cr",
         [](Scene &s) { s.result = msg(s).print_cr(s.h, s.object, s.text(), Scene::room); }},
        {"control", "print_unsafe",
         [](Scene &s) { s.result = msg(s).print_unsafe(s.h, kId, s.text(), s.object, Scene::room, s.error()); }},
        {"control", "to_xml",
         [](Scene &s) { s.result = msg(s).to_xml(s.h, kId, s.text(), s.object, Scene::room, s.error()); }},
        {"control", "toxml_cr",
         [](Scene &s) { s.result = msg(s).toxml_cr(s.h, s.object, s.text(), Scene::room); }},
        {"control", "to_xml_unsafe",
         [](Scene &s) { s.result = msg(s).to_xml_unsafe(s.h, kId, s.text(), s.object, Scene::room, s.error()); }},
        // A token, or null when there is no memory, and no error.
        {"control", "from_xml",
         [](Scene &s) { s.made = msg(s).from_xml(s.h, kId, nullptr, s.error(), s.text(), 128); }, null_alone},
        {"control", "from_xml_unsafe",
         [](Scene &s) { s.made = msg(s).from_xml_unsafe(s.h, kId, nullptr, s.error(), s.text(), 128); }, null_alone},
        {"control", "valid_cr", [](Scene &s) { s.result = msg(s).valid_cr(s.h); }},
        // The message goes to the handler, which releases it.
        {"control handler", "handler",
         [](Scene &s) {
             msg(s).handler(s.h, kId, nullptr, std::exchange(s.object, nullptr), s.error());
             s.result = s.err;
         }},

        // ---- bundles and the module
        {"bundle", "handler", [](Scene &s) { s.subject.bundle->handler(s.h, kId, nullptr, s.error()); }},
        {"bundle", "handler_register",
         [](Scene &s) {
             const mirk_bundle_handler before = s.subject.bundle->register_handler(nullptr);
             s.subject.bundle->register_handler(before);
         }},
        {"bundle", "handler_unregister",
         [](Scene &s) {
             const mirk_bundle_handler before = s.subject.bundle->unregister_handler();
             s.subject.bundle->register_handler(before);
         }},
        // Copies that were made stay in the store, and a later call makes the rest.
        {"module", "lumo_ui_tarn_typeinfo_initialize",
         [](Scene &s) { lumo_ui_tarn_typeinfo_initialize(s.h, kId, s.error()); },
         [](Scene &s, const Failure &f) {
             if (f.allocator != MIRK_PLATFORM_TESTING_SYS_ALLOC) return;
             twelve(s, f);
             std::uint32_t err = 0;
             lumo_ui_tarn_typeinfo_initialize(s.h, kId, &err);
             EXPECT_EQ(err, 0U);
         }},
        {"module", "lumo_ui_tarn_type_variant_dump",
         [](Scene &) { lumo_ui_tarn_type_variant_dump(print_nowhere); }},
        {"module", "mirk_lumo_ui_tarn_type_trace_init", [](Scene &) { mirk_lumo_ui_tarn_type_trace_init(); }},
        {"module", "mirk_lumo_ui_tarn_message_trace_init", [](Scene &) { mirk_lumo_ui_tarn_message_trace_init(); }},
        {"module", "lumo_ui_tarn_bundle_handler_register",
         [](Scene &) { lumo_ui_tarn_bundle_handler_register(lumo_ui_tarn_bundle_handler_register(nullptr)); }},
        {"module", "lumo_ui_tarn_bundle_handler_unregister",
         [](Scene &) { lumo_ui_tarn_bundle_handler_register(lumo_ui_tarn_bundle_handler_unregister()); }},
    };
    return all;
}

}  // namespace trust
