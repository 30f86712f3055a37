// The C++ interface makes the same runtime calls as the C functions: each is called directly and through the interface,
// and the recorded calls are compared.
#include <lumo_ui_tarn.hpp>

#include "tests/families/recorded.h"

using namespace families;

namespace {

using lumo_ui_tarn::context;
using lumo_ui_tarn::kind;
using recording::Detail;

// A reference to a callable. There are thousands of them, and a std::function for each takes several times as long to
// compile.
class Operation {
public:
    template <class F>
    Operation(const F &f) : object_(&f), call_([](const void *object) { (*static_cast<const F *>(object))(); }) {}
    void operator()() const { call_(object_); }

private:
    const void *object_;
    void (*call_)(const void *);
};

class CppSequence : public testing::Test {
protected:
    void SetUp() override { mirk_lumo_ui_tarn_type_trace_init(); }

    Lines recorded(Operation operation) {
        recording::clear_names();
        recording::clear_log();
        recording::name_region("object", object_, size_);
        recording::name_region("slot", slot_, sizeof *slot_);
        operation();
        Lines lines = recording::lines(Detail::full);
        if (h()->sttr_desc == nullptr || h()->sttr_desc->sttr_mode != 0xEEEE) remove_state_addresses(lines);
        return lines;
    }
    // On an untracked handle the address after the object is passed as its state area, but never used. It depends on
    // the allocator.
    static void remove_state_addresses(Lines &lines) {
        for (std::string &line : lines) {
            if (line.find("_initialize ") == std::string::npos) continue;
            std::size_t base = 0;
            for (int word = 0; word < 6; ++word) base = line.find(' ', base) + 1;
            line.erase(base, line.find(' ', base) - base);
        }
    }
    // Both use the same object, so writes are made twice.
    void expect_same(const char *what, Operation c, Operation cpp) {
        slot_ = &err;
        const Lines expected = recorded(c);
        EXPECT_EQ(err, 0u) << what << " " << member_;
        slot_ = context_->slot();
        EXPECT_EQ(recorded(cpp), expected) << what << " " << member_;
        EXPECT_TRUE(context_->ok()) << what << " " << member_;
        ++compared_;
    }

    // The C functions, the same for every type of member.
    mirk_handle *h() const { return context_->handle(); }
    auto get(const MemberOperations &o) {
        return [this, &o] { o.get(h(), id, object_, &err); };
    }
    auto set(const MemberOperations &o, void *value) {
        return [this, &o, value] { o.set(h(), id, object_, value, &err); };
    }
    auto get_value(const MemberOperations &o) {
        return [this, &o] { o.get_value(h(), id, object_, &err); };
    }
    auto set_value(const MemberOperations &o) {
        return [this, &o] { o.set_value(h(), id, object_, 1, &err); };
    }
    auto get_text(const MemberOperations &o, const MemberOperations &length) {
        return [this, &o, &length] {
            std::string text(length.get_value(h(), id, object_, &err) + 1, ' ');
            o.text_get(h(), id, object_, text.data(), static_cast<std::uint32_t>(text.size()), &err);
        };
    }
    auto set_text(const MemberOperations &o) {
        return [this, &o] { o.text_set(h(), id, object_, "text", 4, &err); };
    }
    auto get_state(const MemberOperations &o) {
        return [this, &o] { o.state_flag_get(h(), id, object_, &err); };
    }
    auto set_state(const MemberOperations &o) {
        return [this, &o] { o.state_flag_set(h(), id, object_, 3, &err); };
    }
    auto element(const MemberOperations &o) {
        return [this, &o] { o.element_get(h(), id, object_, 0, &err); };
    }
    auto element_state(const MemberOperations &o) {
        return [this, &o] { o.element_state_flag_get(h(), id, object_, 0, &err); };
    }
    auto set_element_state(const MemberOperations &o) {
        return [this, &o] { o.element_state_flag_set(h(), id, object_, 0, 3, &err); };
    }
    bool is_next(std::string_view name, const MemberOperations &o) {
        member_ = name;
        EXPECT_EQ(name, o.member->name);
        return name == o.member->name;
    }

    template <class R>
    void members_of(const RecordOperations &r, R &object) {
        std::size_t index = 0;
        R::for_each_member([&](const auto &m) {
            const MemberOperations &o = r.members[index++];
            if (!is_next(m.name, o)) return;
            using Value = decltype((object.*m.get)());
            if constexpr (requires(Value v) { v.grow(1); }) {
                const Value array = (object.*m.get)();
                expect_same("size", get_value(r.members[index - 2]), [&] { array.size(); });
                expect_same("element", element(o), [&] { array[0]; });
                expect_same("element's state", element_state(o), [&] { array.state(0); });
                expect_same("element's state set", set_element_state(o), [&] { array.set_state(0, 3); });
            } else if constexpr (requires(Value v) { v.to_frame(); }) {
                expect_same("get", get(o), [&] { (object.*m.get)(); });
                if constexpr (!Value::record_type::owns_blocks) {
                    const Value other = (object.*m.get)();
                    expect_same("set", set(o, other.get()), [&] { (object.*m.set)(other); });
                }
            } else if constexpr (std::is_same_v<Value, std::string>) {
                expect_same("get", get_text(o, r.members[index - 2]), [&] { (object.*m.get)(); });
                (object.*m.set)("text");  // so that both setters free a former text
                expect_same("set", set_text(o), [&] { (object.*m.set)("text"); });
            } else if constexpr (std::is_same_v<Value, lumo_ui_tarn::address>) {
                expect_same("get", get(o), [&] { (object.*m.get)(); });
            } else {
                expect_same("get", get_value(o), [&] { (object.*m.get)(); });
                if constexpr (!std::is_null_pointer_v<decltype(m.set)>) {
                    expect_same("set", set_value(o), [&] { (object.*m.set)(static_cast<Value>(1)); });
                }
            }
            if constexpr (!std::is_null_pointer_v<decltype(m.get_state)>) {
                expect_same("state", get_state(o), [&] { (object.*m.get_state)(); });
                expect_same("state set", set_state(o), [&] { (object.*m.set_state)(3); });
            }
        });
        EXPECT_EQ(index, r.members.size());
    }

    template <class R>
    static void grow_arrays(R &object) {
        R::for_each_member([&](const auto &m) {
            if constexpr (requires { (object.*m.get)().grow(1); }) (object.*m.get)().grow(2);
        });
    }

    std::uint32_t err = 0;
    std::string member_;
    std::uint32_t *slot_ = nullptr;
    context *context_ = nullptr;
    void *object_ = nullptr;
    std::size_t size_ = 0;
    std::size_t compared_ = 0;
};

TEST_F(CppSequence, AccessorsMakeTheCallsOfTheCFunctions) {
    Handle h({Tracking::on});
    context c(h, id, lumo_ui_tarn::errors::kept);
    context_ = &c;
    lumo_ui_tarn::for_each_record([&]<class R>(kind<R>) {
        SCOPED_TRACE(R::record_name());
        const RecordOperations &r = record(R::record_name());
        R object(c);
        grow_arrays(object);
        object_ = object.get();
        size_ = r.sizeof_(h);
        members_of(r, object);
    });
    EXPECT_GT(compared_, 1000u);
}

TEST_F(CppSequence, RecordsMakeTheCallsOfTheCFunctions) {
    for (const Tracking tracking : {Tracking::none, Tracking::on}) {
        Handle h({tracking});
        context c(h, id, lumo_ui_tarn::errors::kept);
        context_ = &c;
        lumo_ui_tarn::for_each_record([&]<class R>(kind<R>) {
            SCOPED_TRACE(R::record_name());
            const RecordOperations &r = record(R::record_name());
            R object(c);
            grow_arrays(object);
            void *const native = object_ = object.get();
            size_ = r.sizeof_(h);
            const std::size_t length = object.frame_size();
            std::vector<std::uint8_t> buffer(length + 1);
            const auto size = static_cast<std::int32_t>(length);
            std::vector<char> text(8 * length + 4096);
            const auto room = static_cast<std::int32_t>(text.size());
            const char *name = r.record->name.data();

            expect_same(
                "len", [&] { r.len(h, id, native); }, [&] { (void)object.frame_size(); });
            std::uint32_t written = 0;
            expect_same(
                "frame", [&] { written = r.marshal(h, id, buffer.data(), native, size, &err); },
                [&] { object.write_frame(buffer); });
            expect_same(
                "compare", [&] { r.compare(native, native); }, [&] { (void)(object == object); });
            expect_same(
                "hash", [&] { r.hash(native, 0); }, [&] { (void)object.hash(); });
            expect_same(
                "states", [&] { r.set_all_state_tracking_flag(h, id, native, 0); }, [&] { object.set_all_states(0); });
            // Functions that allocate a buffer call len first.
            const auto without_slot = [&](Operation operation) {
                Lines lines = recorded(operation);
                for (std::string &line : lines) line = line.substr(0, line.find(" err="));
                return lines;
            };
            const Lines text_in_c = without_slot([&] {
                r.len(h, id, native);
                r.print(h, id, text.data(), 0, name, native, room, &err);
            });
            EXPECT_EQ(without_slot([&] { (void)object.text(); }), text_in_c);
            const Lines frame_in_c = without_slot([&] {
                r.len(h, id, native);
                r.marshal(h, id, buffer.data(), native, size, &err);
            });
            EXPECT_EQ(without_slot([&] { (void)object.to_frame(); }), frame_in_c);
            expect_same(
                "create, read and destroy",
                [&] {
                    void *fresh = r.create(h, id);
                    r.unmarshal(h, id, buffer.data(), fresh, written, 0, &err);
                    r.destroy(h, id, fresh);
                },
                [&] { (void)R::from_frame_with_guard(c, buffer.data(), written); });
        });
    }
}

TEST_F(CppSequence, MessagesMakeTheCallsOfTheCFunctions) {
    Handle h({Tracking::none});
    context c(h, id, lumo_ui_tarn::errors::kept);
    context_ = &c;
    lumo_ui_tarn::for_each_message([&]<class M>(kind<M>) {
        SCOPED_TRACE(M::message_name());
        const auto &o = *tarn::reflect::find_message(M::message_name());
        M message(c);
        void *const native = object_ = message.get();
        size_ = 1;
        std::vector<std::uint8_t> buffer(message.frame_size() + 1);
        const auto size = static_cast<std::uint32_t>(buffer.size() - 1);
        expect_same(
            "payload", [&] { o.payload_get(h, id, native, &err); }, [&] { message.payload(); });
        expect_same(
            "len", [&] { o.len(h, id, native); }, [&] { (void)message.frame_size(); });
        expect_same(
            "frame", [&] { o.marshal(h, id, buffer.data(), native, size, &err); },
            [&] { message.write_frame(buffer); });
        expect_same(
            "create and destroy", [&] { o.destroy(h, id, o.create(h, id)); }, [&] { M{c}; });
    });
}

// The headers of this runtime differ from those of the reference runtime.
TEST_F(CppSequence, BundlesAreReadBack) {
    Handle h({Tracking::none});
    context c(h, id);
    lumo_ui_tarn::debug_setting_msg levels(c);
    levels.payload().set_warn_enabled(1);
    lumo_ui_tarn::bundle_writer<lumo_ui_tarn::cl_debug_rsp> writer(c);
    lumo_ui_tarn::bundle_reader<lumo_ui_tarn::cl_debug_rsp> reader(c);
    reader.feed(writer.add(levels).add(levels).commit().frames());
    const auto bundle = reader.next();
    ASSERT_TRUE(bundle.has_value());
    ASSERT_EQ(bundle->size(), 2u);
    EXPECT_EQ(bundle->back().payload().warn_enabled(), 1u);
    reader.finish();
}

}  // namespace
