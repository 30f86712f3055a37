// The C++ interface asks of the runtime what the C calls ask, no more and no less: each function once on its own and
// once through the interface, on the runtime that writes every call down.
#include <lumo_ui_tarn.hpp>

#include "tests/families/observed.h"

using namespace families;

namespace {

using lumo_ui_tarn::context;
using lumo_ui_tarn::kind;
using observing::Detail;

class CppSequence : public testing::Test {
protected:
    void SetUp() override { mirk_lumo_ui_tarn_type_trace_init(); }

    Lines recorded(const std::function<void()> &operation) {
        observing::clear_names();
        observing::clear_log();
        observing::name_region("object", object_, size_);
        observing::name_region("slot", slot_, sizeof *slot_);
        operation();
        return observing::lines(Detail::full);
    }
    // One object stands for both; what an operation writes, it writes twice.
    void expect_same(const char *what, const std::function<void()> &c, const std::function<void()> &cpp) {
        slot_ = &err;
        const Lines expected = recorded(c);
        EXPECT_EQ(err, 0u) << what;
        slot_ = context_->slot();
        EXPECT_EQ(recorded(cpp), expected) << what;
        EXPECT_TRUE(context_->ok()) << what;
        ++compared_;
    }

    template <class R>
    void members_of(const RecordOperations &r, R &object) {
        std::size_t index = 0;
        void *const native = object.get();
        mirk_handle *const h = context_->handle();
        R::for_each_member([&](const auto &m) {
            const MemberOperations &o = r.members[index++];
            SCOPED_TRACE(m.name);
            ASSERT_EQ(m.name, o.member->name);
            using Value = decltype((object.*m.get)());
            if constexpr (requires(Value v) { v.grow(1); }) {
                const Value array = (object.*m.get)();
                const MemberOperations &count = r.members[index - 2];
                expect_same(
                    "size", [&] { count.get_value(h, id, native, &err); }, [&] { array.size(); });
                expect_same(
                    "element", [&] { o.element_get(h, id, native, 0, &err); }, [&] { array[0]; });
                expect_same(
                    "element's state", [&] { o.element_state_flag_get(h, id, native, 0, &err); },
                    [&] { array.state(0); });
                expect_same(
                    "element's state set", [&] { o.element_state_flag_set(h, id, native, 0, 3, &err); },
                    [&] { array.set_state(0, 3); });
            } else if constexpr (requires(Value v) { v.to_frame(); }) {
                expect_same(
                    "get", [&] { o.get(h, id, native, &err); }, [&] { (object.*m.get)(); });
                if constexpr (!Value::record_type::owns_blocks) {
                    const Value other = (object.*m.get)();
                    expect_same(
                        "set", [&] { o.set(h, id, native, other.get(), &err); }, [&] { (object.*m.set)(other); });
                }
            } else if constexpr (std::is_same_v<Value, std::string>) {
                expect_same(
                    "get",
                    [&] {
                        const MemberOperations &length = r.members[index - 2];
                        std::string text(length.get_value(h, id, native, &err) + 1, ' ');
                        o.text_get(h, id, native, text.data(), static_cast<uint32_t>(text.size()), &err);
                    },
                    [&] { (object.*m.get)(); });
                (object.*m.set)("text");  // so that both find one to give back
                expect_same(
                    "set", [&] { o.text_set(h, id, native, "text", 4, &err); }, [&] { (object.*m.set)("text"); });
            } else if constexpr (std::is_same_v<Value, lumo_ui_tarn::address>) {
                expect_same(
                    "get", [&] { o.get(h, id, native, &err); }, [&] { (object.*m.get)(); });
            } else {
                expect_same(
                    "get", [&] { o.get_value(h, id, native, &err); }, [&] { (object.*m.get)(); });
                if constexpr (!std::is_null_pointer_v<decltype(m.set)>) {
                    expect_same(
                        "set", [&] { o.set_value(h, id, native, 1, &err); },
                        [&] { (object.*m.set)(static_cast<Value>(1)); });
                }
            }
            if constexpr (!std::is_null_pointer_v<decltype(m.get_state)>) {
                expect_same(
                    "state", [&] { o.state_flag_get(h, id, native, &err); }, [&] { (object.*m.get_state)(); });
                expect_same(
                    "state set", [&] { o.state_flag_set(h, id, native, 3, &err); }, [&] { (object.*m.set_state)(3); });
            }
        });
        EXPECT_EQ(index, r.members.size());
    }

    template <class R>
    static void grow_arrays(const R &object) {
        R::for_each_member([&](const auto &m) {
            if constexpr (requires { (object.*m.get)().grow(1); }) (object.*m.get)().grow(2);
        });
    }

    uint32_t err = 0;
    uint32_t *slot_ = nullptr;
    context *context_ = nullptr;
    void *object_ = nullptr;
    std::size_t size_ = 0;
    std::size_t compared_ = 0;
};

TEST_F(CppSequence, OfMembers) {
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

TEST_F(CppSequence, OfWholeRecords) {
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
            std::vector<uint8_t> buffer(length + 1);
            const auto size = static_cast<int32_t>(length);
            std::vector<char> text(3 * length + 4096);
            const auto room = static_cast<int32_t>(text.size());
            const char *name = r.record->name.data();

            expect_same(
                "len", [&] { r.len(h, id, native); }, [&] { object.frame_size(); });
            uint32_t written = 0;
            expect_same(
                "frame", [&] { written = r.marshal(h, id, buffer.data(), native, size, &err); },
                [&] { object.write_frame(buffer); });
            expect_same(
                "compare", [&] { r.compare(native, native); }, [&] { (void)(object == object); });
            expect_same(
                "hash", [&] { r.hash(native, 0); }, [&] { object.hash(); });
            expect_same(
                "states", [&] { r.set_all_state_tracking_flag(h, id, native, 0); }, [&] { object.set_all_states(0); });
            // What needs a buffer of unknown size asks for the length first.
            const auto without_slot = [&](const std::function<void()> &operation) {
                Lines lines = recorded(operation);
                for (std::string &line : lines) line = line.substr(0, line.find(" err="));
                return lines;
            };
            const Lines text_in_c = without_slot([&] {
                r.len(h, id, native);
                r.print(h, id, text.data(), 0, name, native, room, &err);
            });
            EXPECT_EQ(without_slot([&] { object.text(); }), text_in_c);
            const Lines frame_in_c = without_slot([&] {
                r.len(h, id, native);
                r.marshal(h, id, buffer.data(), native, size, &err);
            });
            EXPECT_EQ(without_slot([&] { object.to_frame(); }), frame_in_c);
            expect_same(
                "made, read and destroyed",
                [&] {
                    void *fresh = r.create(h, id);
                    r.unmarshal(h, id, buffer.data(), fresh, written, 0, &err);
                    r.destroy(h, id, fresh);
                },
                [&] { R::from_frame_with_spare(c, buffer.data(), written); });
        });
    }
}

TEST_F(CppSequence, OfMessages) {
    Handle h({Tracking::none});
    context c(h, id, lumo_ui_tarn::errors::kept);
    context_ = &c;
    lumo_ui_tarn::for_each_message([&]<class M>(kind<M>) {
        SCOPED_TRACE(M::message_name());
        const auto &o = *tarn::reflect::find_message(M::message_name());
        M message(c);
        void *const native = object_ = message.get();
        size_ = 1;
        std::vector<uint8_t> buffer(message.frame_size() + 1);
        const auto size = static_cast<uint32_t>(buffer.size() - 1);
        expect_same(
            "payload", [&] { o.payload_get(h, id, native, &err); }, [&] { message.payload(); });
        expect_same(
            "len", [&] { o.len(h, id, native); }, [&] { message.frame_size(); });
        expect_same(
            "frame", [&] { o.marshal(h, id, buffer.data(), native, size, &err); },
            [&] { message.write_frame(buffer); });
        expect_same(
            "made and destroyed", [&] { o.destroy(h, id, o.create(h, id)); }, [&] { M{c}; });
    });
}

}  // namespace
