// How the sweep calls operations that allocate, destroy or move, and what they report when allocation fails. The calls
// of all others are printed from the table of operations.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <string_view>
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

// A sticky create on a handle with an error returns the sentinel.
template <class Operations>
void *sentinel_of(const Operations &operations) {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    h->last_error = ENOMEM;
    void *sentinel = operations.create_cr(h);
    mirk_platform_handle_close(h);
    return sentinel;
}

// ---- what is reported

void null_alone(Scene &s, const Failure &) {
    EXPECT_EQ(s.made, nullptr);
    EXPECT_EQ(s.last_error, 0U);
}

template <class Operations>
void sentinel_and_enomem(Scene &s, const Operations &operations) {
    EXPECT_EQ(s.made, sentinel_of(operations));
    EXPECT_EQ(s.last_error, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(s.h->cr_mode, 0U);
    s.made = nullptr;
}

void enomem(Scene &s, const Failure &) {
    EXPECT_EQ(s.err, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(s.last_error, static_cast<std::uint32_t>(ENOMEM));
}
void enomem_and_nothing(Scene &s, const Failure &f) {
    enomem(s, f);
    EXPECT_EQ(s.made, nullptr);
}
// Before the reader of a document checks the error of one element, it creates the next, which clears the handle's
// error.
void enomem_in_the_slot(Scene &s, const Failure &) {
    EXPECT_EQ(s.err, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_TRUE(s.last_error == 0 || s.last_error == ENOMEM) << s.last_error;
}
// A message that could not be read is not released.
void message_is_kept(Scene &s, const Failure &f) {
    enomem_in_the_slot(s, f);
    EXPECT_EQ(s.made, nullptr);
    s.may_lose = mirk_platform_live_blocks(s.h);
}
void sticky_enomem(Scene &s, const Failure &) {
    EXPECT_EQ(s.last_error, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(s.made, nullptr);
}

// An array that cannot grow does not change, but the old vector of element states is lost if a new one cannot be
// allocated.
void grown(Scene &s, const Failure &f) {
    sticky_enomem(s, f);
    if (s.tracks) s.may_lose = 1;
}

// ---- records

// The state area of a top-level instance directly follows it.
void *area_of(const Scene &s, void *object) {
    return static_cast<char *>(object) + reference::layout_of(reference::record_table(rec(s).record->name)).base;
}

// As an array moves an element: copies the bytes, then cleans up the old location, which is only storage from then on.
void move_out(Scene &s) {
    rec(s).destroy_internal(s.h, id, s.other, 0);
    std::memcpy(s.other, s.object, rec(s).sizeof_(s.h));
    if (s.tracks) rec(s).offset_update(s.h, id, s.other, area_of(s, s.other), s.error());
    rec(s).post_copyout_cleanup(s.h, id, s.other, s.object, s.error());
    if (s.tracks) rec(s).offset_remove(s.h, id, s.object, s.error());
    s.h->obj_free(s.h->mem_ctx, id, s.object);
    s.object = nullptr;
}

// ---- members

void string_set_failed(Scene &s, const Failure &f) {
    enomem(s, f);
    EXPECT_EQ(bridge::block_of(rec(s), s.object, mem(s).member->name), nullptr);
}
void array_set_failed(Scene &s, const Failure &f) {
    enomem(s, f);
    if (s.tracks) s.may_lose = 1;
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
    EXPECT_EQ(msg(s).payload_get(s.h, id, s.made, &err), sentinel_of(payload));
    // If the message cannot be allocated, its sentinel is returned; if the payload cannot, a message is.
    EXPECT_EQ(s.made == sentinel_of(msg(s)), f.nth == 1);
}

extern "C" void take(mirk_handle *, std::uint32_t, void *context, void *message, std::uint32_t *) {
    static_cast<Scene *>(context)->made = message;
}

extern "C" int print_nowhere(const char *, ...) { return 0; }

const Driver by_hand[] = {
    // ---- records
    {"record", "create", [](Scene &s) { s.made = rec(s).create(s.h, id); }, null_alone},
    {"record", "create_internal", [](Scene &s) { s.made = rec(s).create_internal(s.h, id); }, null_alone},
    {"record", "create_cr", [](Scene &s) { s.made = rec(s).create_cr(s.h); },
     [](Scene &s, const Failure &) { sentinel_and_enomem(s, rec(s)); }},
    {"record", "initialize",
     [](Scene &s) {
         rec(s).destroy_internal(s.h, id, s.other, 0);
         std::memset(s.other, 0, rec(s).sizeof_(s.h));
         rec(s).initialize(s.h, id, s.other, rec(s).type, 1, 0, 0, nullptr, s.error());
     }},
    {"record", "destroy", [](Scene &s) { rec(s).destroy(s.h, id, std::exchange(s.object, nullptr)); }},
    {"record", "destroy_cr", [](Scene &s) { rec(s).destroy_cr(s.h, std::exchange(s.object, nullptr)); }},
    {"record", "destroy_internal",
     [](Scene &s) { rec(s).destroy_internal(s.h, id, std::exchange(s.object, nullptr), 1); }},
    {"record", "get_all",
     [](Scene &s) {
         std::vector<std::uint64_t> values(rec(s).members.size());
         std::vector<void *> out;
         for (std::uint64_t &value : values) out.push_back(&value);
         rec(s).get_all(s.h, id, s.object, out.data(), s.error());
     }},
    {"record", "set_all",
     [](Scene &s) {
         const std::vector<std::uint64_t> values(rec(s).members.size(), 1);
         rec(s).set_all(s.h, id, s.object, values.data(), s.error());
     }},
    {"record", "post_copyout_cleanup", move_out},
    // A vector of element states is lost by the fill.
    {"record", "set_all_state_tracking_flag",
     [](Scene &s) { rec(s).set_all_state_tracking_flag(s.h, id, s.other, 1); }},
    {"record", "get_object_references",
     [](Scene &s) {
         void *oids[4] = {};
         rec(s).get_object_references(s.h, id, s.object, oids, 4, s.error());
     }},
    {"record", "offset_update",
     [](Scene &s) { rec(s).offset_update(s.h, id, s.object, area_of(s, s.object), s.error()); }},
    // Restored at once, since nested objects find their states by these.
    {"record", "offset_remove",
     [](Scene &s) {
         rec(s).offset_remove(s.h, id, s.object, s.error());
         if (s.tracks) rec(s).offset_update(s.h, id, s.object, area_of(s, s.object), s.error());
     }},
    {"record", "unmarshal",
     [](Scene &s) { s.result = rec(s).unmarshal(s.h, id, s.frame.data(), s.other, frame_size(s), 0, s.error()); },
     enomem_and_nothing},
    {"record", "clone",
     [](Scene &s) {
         const auto size = static_cast<std::uint32_t>(s.size());
         rec(s).clone(s.h, id, s.object, &s.made, s.text(), size, s.error());
     },
     enomem_and_nothing},
    {"record", "clone_cr", [](Scene &s) { s.made = rec(s).clone_cr(s.h, s.object); }, sticky_enomem},
    {"record", "copy_cr",
     [](Scene &s) {
         rec(s).copy_cr(s.h, s.object, s.other);
         if (s.h->last_error != 0 && !s.is_live(s.other)) s.other = nullptr;
     },
     [](Scene &s, const Failure &) {
         EXPECT_EQ(s.last_error, static_cast<std::uint32_t>(ENOMEM));
         EXPECT_EQ(s.other, nullptr) << "a destination that could not be filled is ended";
     }},
    {"record", "from_xml",
     [](Scene &s) {
         const std::string path = "/" + std::string(rec(s).record->name);
         rec(s).from_xml(s.h, id, path.c_str(), s.document, s.other, s.error(), s.text(), 128);
     },
     [](Scene &s, const Failure &f) {
         enomem_in_the_slot(s, f);
         if (s.tracks) s.may_lose = 1;
     }},

    // ---- members
    // From a new record, so that a nested one neither loses nor gains blocks.
    {"single", "set",
     [](Scene &s) { mem(s).set(s.h, id, s.other, mem(s).get(s.h, id, s.object, s.error()), s.error()); }},
    {"string", "set", [](Scene &s) { mem(s).text_set(s.h, id, s.object, "another", 7, s.error()); }, string_set_failed},
    {"string", "set_cr", [](Scene &s) { s.result = mem(s).text_set_cr(s.h, s.object, "another", 7); },
     member_set_cr_failed},
    {"array", "set", [](Scene &s) { mem(s).element_set(s.h, id, s.object, 3, s.element, s.error()); },
     array_set_failed},
    {"array", "set_cr", [](Scene &s) { s.result = mem(s).element_set_cr(s.h, s.object, 3, s.element, 0); },
     member_set_cr_failed},
    {"array", "state_flag_get_arr",
     [](Scene &s) {
         std::uint8_t *vector = nullptr;
         mem(s).element_state_flag_get_arr(s.h, id, s.object, &vector, s.error());
     }},
    {"array", "state_flag_set_arr",
     [](Scene &s) {
         const std::uint8_t states[2] = {1, 2};
         mem(s).element_state_flag_set_arr(s.h, id, s.object, states, 2, s.error());
     }},

    // ---- enumerations
    {"enumeration", "create", [](Scene &s) { s.made = en(s).create(s.h, id); }, null_alone},
    {"enumeration", "create_internal", [](Scene &s) { s.made = en(s).create_internal(s.h, id); }, null_alone},
    {"enumeration", "create_cr", [](Scene &s) { s.made = en(s).create_cr(s.h); },
     [](Scene &s, const Failure &) { sentinel_and_enomem(s, en(s)); }},
    {"enumeration", "initialize",
     [](Scene &s) { en(s).initialize(s.h, id, s.other, en(s).type, 1, 0, 0, nullptr, s.error()); }},
    {"enumeration", "destroy", [](Scene &s) { en(s).destroy(s.h, id, std::exchange(s.object, nullptr)); }},
    {"enumeration", "destroy_cr", [](Scene &s) { en(s).destroy_cr(s.h, std::exchange(s.object, nullptr)); }},
    {"enumeration", "destroy_internal",
     [](Scene &s) { en(s).destroy_internal(s.h, id, std::exchange(s.object, nullptr), 1); }},
    {"enumeration", "unmarshal",
     [](Scene &s) { s.result = en(s).unmarshal(s.h, id, s.frame.data(), s.object, frame_size(s), 0, s.error()); }},
    {"enumeration", "from_xml",
     [](Scene &s) {
         const std::string path = "/" + std::string(en(s).enumeration->name);
         en(s).from_xml(s.h, id, path.c_str(), s.document, s.object, s.error(), s.text(), 128);
     }},

    // ---- messages
    {"message", "create_shallow", [](Scene &s) { s.made = msg(s).create_shallow(s.h, id); }, null_alone},
    {"message", "create", [](Scene &s) { s.made = msg(s).create(s.h, id); }, null_alone},
    {"message", "create_unsafe", [](Scene &s) { s.made = msg(s).create_unsafe(s.h, id); }, null_alone},
    {"message", "create_cr", [](Scene &s) { s.made = msg(s).create_cr(s.h); }, message_create_cr_failed},
    {"message", "destroy", [](Scene &s) { msg(s).destroy(s.h, id, std::exchange(s.object, nullptr)); }},
    {"message", "destroy_cr", [](Scene &s) { msg(s).destroy_cr(s.h, std::exchange(s.object, nullptr)); }},
    {"message", "destroy_unsafe", [](Scene &s) { msg(s).destroy_unsafe(s.h, id, std::exchange(s.object, nullptr)); }},
    // The message goes to the handler; the message of a failed read is lost.
    {"message", "unmarshal",
     [](Scene &s) {
         void *out = nullptr;
         msg(s).unmarshal(s.h, id, &s, &out, s.frame.data(), frame_size(s), take, s.error());
         s.result = out == s.made;
     },
     message_is_kept},
    {"message", "unmarshal_only",
     [](Scene &s) { msg(s).unmarshal_only(s.h, id, &s.made, s.frame.data(), frame_size(s), s.error()); },
     [](Scene &s, const Failure &f) {
         enomem(s, f);
         EXPECT_EQ(s.made == nullptr, f.nth == 1) << "what was read so far is handed out";
     }},
    // A failed read returns null and does not release the object.
    {"message", "from_xml", [](Scene &s) { s.made = msg(s).from_xml(s.h, id, s.document, s.error(), s.text(), 128); },
     message_is_kept},
    {"message", "from_xml_unsafe",
     [](Scene &s) { s.made = msg(s).from_xml_unsafe(s.h, id, s.document, s.error(), s.text(), 128); }, message_is_kept},
    {"payload", "get_detach",
     [](Scene &s) {
         void *payload = msg(s).payload_get_detach(s.h, id, s.object, s.error());
         msg(s).payload_set(s.h, id, s.object, payload, s.error());
     }},
    {"payload", "set",
     [](Scene &s) {
         void *payload = msg(s).payload_get(s.h, id, s.object, s.error());
         msg(s).payload_set(s.h, id, s.object, payload, s.error());
     }},
    {"payload", "free_and_set", [](Scene &s) { msg(s).payload_free_and_set(s.h, id, s.object, nullptr, s.error()); }},
    {"message handler", "handler",
     [](Scene &s) {
         // It reports that the message was not handled; the caller still owns it.
         msg(s).handler(s.h, id, nullptr, s.object, s.error());
         s.result = s.err;
     }},

    // ---- control messages
    {"control", "create", [](Scene &s) { s.made = msg(s).create(s.h, id); }, null_alone},
    {"control", "create_unsafe", [](Scene &s) { s.made = msg(s).create_unsafe(s.h, id); }, null_alone},
    {"control", "create_cr", [](Scene &s) { s.made = msg(s).create_cr(s.h); },
     [](Scene &s, const Failure &) { sentinel_and_enomem(s, msg(s)); }},
    {"control", "destroy", [](Scene &s) { msg(s).destroy(s.h, id, std::exchange(s.object, nullptr)); }},
    {"control", "destroy_cr", [](Scene &s) { msg(s).destroy_cr(s.h, std::exchange(s.object, nullptr)); }},
    {"control", "destroy_unsafe", [](Scene &s) { msg(s).destroy_unsafe(s.h, id, std::exchange(s.object, nullptr)); }},
    {"control", "unmarshal",
     [](Scene &s) {
         s.result = msg(s).unmarshal(s.h, id, &s, nullptr, s.frame.data(), frame_size(s), take, s.error());
     }},
    {"control", "unmarshal_only",
     [](Scene &s) {
         void *out = nullptr;
         s.result = msg(s).unmarshal_only(s.h, id, &out, s.frame.data(), frame_size(s), s.error());
     }},
    // A token, or null if allocation fails, without an error.
    {"control", "from_xml", [](Scene &s) { s.made = msg(s).from_xml(s.h, id, nullptr, s.error(), s.text(), 128); },
     null_alone},
    {"control", "from_xml_unsafe",
     [](Scene &s) { s.made = msg(s).from_xml_unsafe(s.h, id, nullptr, s.error(), s.text(), 128); }, null_alone},
    // The message goes to the handler, which releases it.
    {"control handler", "handler",
     [](Scene &s) {
         msg(s).handler(s.h, id, nullptr, std::exchange(s.object, nullptr), s.error());
         s.result = s.err;
     }},

    // ---- bundles and the module
    {"bundle", "handler", [](Scene &s) { s.subject.bundle->handler(s.h, id, nullptr, s.error()); }},
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
    // Copies stay in the store, and a later call creates the rest.
    {"module", "lumo_ui_tarn_typeinfo_initialize",
     [](Scene &s) { lumo_ui_tarn_typeinfo_initialize(s.h, id, s.error()); },
     [](Scene &s, const Failure &f) {
         if (f.allocator != MIRK_PLATFORM_TESTING_SYS_ALLOC) return;
         enomem(s, f);
         std::uint32_t err = 0;
         lumo_ui_tarn_typeinfo_initialize(s.h, id, &err);
         EXPECT_EQ(err, 0U);
     }},
    {"module", "lumo_ui_tarn_type_variant_dump", [](Scene &) { lumo_ui_tarn_type_variant_dump(print_nowhere); }},
    {"module", "lumo_ui_tarn_bundle_handler_register",
     [](Scene &) { lumo_ui_tarn_bundle_handler_register(lumo_ui_tarn_bundle_handler_register(nullptr)); }},
    {"module", "lumo_ui_tarn_bundle_handler_unregister",
     [](Scene &) { lumo_ui_tarn_bundle_handler_register(lumo_ui_tarn_bundle_handler_unregister()); }},
};

// Operations whose arguments follow from their names.
const Driver printed[] = {
#include "drivers.inc"
};

}  // namespace

const std::vector<Driver> &drivers() {
    static const std::vector<Driver> all = [] {
        std::vector<Driver> list(std::begin(by_hand), std::end(by_hand));
        std::copy_if(std::begin(printed), std::end(printed), std::back_inserter(list), [](const Driver &p) {
            return std::none_of(std::begin(by_hand), std::end(by_hand), [&](const Driver &d) {
                return std::string_view(d.of) == p.of && std::string_view(d.suffix) == p.suffix;
            });
        });
        return list;
    }();
    return all;
}

}  // namespace trust
