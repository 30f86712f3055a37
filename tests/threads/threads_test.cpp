// A handle belongs to one thread, and all handles share the type records with their counters. Threads with handles of
// their own run every operation on every record at once: the results are those of a single thread, and no count is
// lost. The thread sanitizer checks the same tests for data races (./check threads).
#include <atomic>
#include <cstdlib>
#include <thread>
#include <vector>

#include "bridge/bridge.h"
#include "lumo_ui_tarn.h"
#include "mirk_platform.h"
#include "mirk_platform_testing.h"

namespace {

using bridge::id;
using bridge::Instance;
using bridge::RecordOperations;
using kit::Handle;
using reference::Bytes;
using reference::Generator;
using reference::Record;

constexpr std::size_t room = 1 << 18;

// Starts all threads at one moment, so that they do run concurrently.
template <class Work>
void on_threads(unsigned count, Work &&work) {
    std::atomic<unsigned> waiting{count};
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < count; ++i) {
        threads.emplace_back([&, i] {
            --waiting;
            while (waiting != 0) std::this_thread::yield();
            work(i);
        });
    }
    for (std::thread &thread : threads) thread.join();
}

void write_and_read(const Handle &h, const Record &value) {
    const Instance instance(h, value), second(h, instance.record());
    const RecordOperations &record = instance.record();
    bridge::Marshalled frame = bridge::marshal(h, record, instance.get());
    ASSERT_EQ(frame.error, 0u);
    EXPECT_TRUE(bridge::same(reference::encode(value, h.tracks()), frame.bytes));
    std::uint32_t err = 0;
    const auto size = static_cast<std::uint32_t>(frame.bytes.size());
    frame.bytes.push_back(0);  // the guard byte
    EXPECT_EQ(record.unmarshal(h, id, frame.bytes.data(), second.get(), size, 0, &err), size);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(record.compare(instance.get(), second.get()), 0);
    EXPECT_EQ(record.hash(instance.get(), 1), record.hash(second.get(), 1));
}

void copy(const Handle &h, const Record &value, std::vector<char> &buffer) {
    const Instance instance(h, value);
    const RecordOperations &record = instance.record();
    std::uint32_t err = 0;
    void *twin = nullptr;
    record.clone(h, id, instance.get(), &twin, buffer.data(), static_cast<std::uint32_t>(buffer.size()), &err);
    ASSERT_EQ(err, 0u);
    const Instance owned(h, record, twin);
    EXPECT_EQ(record.compare(instance.get(), owned.get()), 0);
    const Instance moved(h, record);
    record.set(h, id, moved.get(), owned.get(), &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(record.compare(instance.get(), moved.get()), 0);
}

void render(const Handle &h, const Record &value, std::vector<char> &buffer) {
    const Instance instance(h, value), second(h, instance.record());
    const RecordOperations &record = instance.record();
    const auto size = static_cast<std::int32_t>(buffer.size());
    std::uint32_t err = 0;
    const char *name = value.table->name.c_str();
    EXPECT_GT(record.print(h, id, buffer.data(), 0, name, instance.get(), size, &err), 0u);
    EXPECT_EQ(err, 0u);
    const std::uint32_t length = record.to_xml(h, id, name, buffer.data(), instance.get(), size, 0, &err);
    EXPECT_EQ(err, 0u);
    void *document = mirk_platform_document_load_memory(buffer.data(), length, nullptr);
    ASSERT_NE(document, nullptr);
    char message[256];
    record.from_xml(h, id, ("/" + value.table->name).c_str(), document, second.get(), &err, message, sizeof message);
    EXPECT_EQ(err, 0u);
    mirk_platform_document_free(document);
}

void send(const Handle &h) {
    Bytes frame(room + 1);
    for (const auto &message : tarn::reflect::messages()) {
        std::uint32_t err = 0;
        void *sent = message.create(h, id), *received = nullptr;
        ASSERT_NE(sent, nullptr);
        const std::uint32_t size = message.marshal(h, id, frame.data(), sent, room, &err);
        EXPECT_EQ(message.unmarshal_only(h, id, &received, frame.data(), size, &err), size);
        EXPECT_EQ(err, 0u);
        message.destroy(h, id, sent);
        message.destroy(h, id, received);
    }
}

void everything(unsigned thread, bool private_types) {
    std::vector<char> buffer(room);
    const Handle h({.tracking = kit::every_tracking[thread % 3], .private_types = private_types});
    Generator generator(thread / 3 + 1, {.printable = true});
    for (const reference::RecordTable &table : reference::records()) {
        const Record value = generator.make(table.name);
        SCOPED_TRACE(table.name);
        write_and_read(h, value);
        copy(h, value, buffer);
        render(h, value, buffer);
    }
    send(h);
}

struct Counts {
    std::uint64_t created = 0, live = 0, destroyed = 0;
};

std::vector<Counts> counts() {
    std::vector<Counts> all;
    const auto add = [&](const mirk_type_info *type) {
        const mirk_variant_entry &entry = type->variant_info->entries[0];
        all.push_back({entry.num_created, entry.num_live, entry.num_destroyed});
    };
    for (const auto &record : tarn::reflect::records()) add(record.type);
    for (const auto &message : tarn::reflect::messages()) add(message.type);
    return all;
}

TEST(Threads, SharedTypeRecordsLoseNoCount) {
    const std::vector<Counts> first = counts();
    for (unsigned i = 0; i < 3; ++i) everything(i, false);
    const std::vector<Counts> alone = counts();
    constexpr unsigned times = 4;
    // Repeats the first three: threads with the same number modulo three do the same.
    on_threads(3 * times, [](unsigned i) { everything(i % 3, false); });
    const std::vector<Counts> together = counts();
    for (std::size_t i = 0; i < first.size(); ++i) {
        EXPECT_GT(alone[i].created, first[i].created);
        EXPECT_EQ(together[i].created - alone[i].created, times * (alone[i].created - first[i].created));
        EXPECT_EQ(together[i].destroyed - alone[i].destroyed, times * (alone[i].destroyed - first[i].destroyed));
        EXPECT_EQ(together[i].live, first[i].live);
    }
}

TEST(Threads, PrivateTypeRecordsWorkBesideSharedOnes) {
    const std::vector<Counts> before = counts();
    on_threads(8, [](unsigned i) { everything(i, i % 2 != 0); });
    const std::vector<Counts> after = counts();
    for (std::size_t i = 0; i < before.size(); ++i) EXPECT_EQ(after[i].live, before[i].live);
}

// The first object of a process registers the trace modules, whichever thread creates it.
TEST(Threads, HandlesOpenAndCloseConcurrently) {
    on_threads(8, [](unsigned) {
        for (int round = 0; round < 20; ++round) {
            const Handle h({.private_types = round % 2 != 0});
            const Instance instance(h, "lumo_tarn_dp_appl_list");
            EXPECT_NE(instance.get(), nullptr);
        }
    });
}

void load_a_document() {
    static constexpr char text[] = "<list/>";
    void *document = mirk_platform_document_load_memory(text, sizeof text - 1, nullptr);
    if (document == nullptr) std::abort();
    mirk_platform_document_free(document);
}

// Runs the work repeatedly, each time in a new process, which ends with the leak check and the result of the thread
// sanitizer, if there are any.
template <class Work>
void in_fresh_processes(int rounds, Work &&work) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (int round = 0; round < rounds; ++round) {
        EXPECT_EXIT(
            {
                work();
                std::exit(0);
            },
            testing::ExitedWithCode(0), "");
    }
}

// The engine of documents initializes itself once per process.
TEST(Threads, TheFirstDocumentsLoadConcurrently) {
    in_fresh_processes(60, [] { on_threads(2, [](unsigned) { load_a_document(); }); });
}

// The first object of a process assigns the trace numbers, which a thread that only reads uses as well.
TEST(Threads, ABrokenFrameIsTracedWhileTheFirstObjectIsCreated) {
    in_fresh_processes(5, [] {
        on_threads(2, [](unsigned i) {
            const Handle h;
            if (i == 0) {
                const Instance instance(h, "lumo_tarn_dp_appl_list");
                return;
            }
            const auto &message = tarn::reflect::messages()[0];
            Bytes frame(100, 0xFF);
            void *received = nullptr;
            std::uint32_t err = 0;
            message.unmarshal_only(h, id, &received, frame.data(), 99, &err);
            if (err == 0) std::abort();
            if (received != nullptr) message.destroy(h, id, received);
        });
    });
}

TEST(Threads, AllThreadsGetTheSameSentinels) {
    on_threads(8, [](unsigned) {
        const Handle h;
        for (const auto &message : tarn::reflect::messages()) {
            h->last_error = ENOMEM;
            void *sentinel = message.create_cr(h);
            std::uint32_t err = 0;
            EXPECT_EQ(sentinel, message.create_cr(h));
            mirk_clear_last_error(h);
            EXPECT_NE(message.payload_get(h, id, sentinel, &err), nullptr);
        }
    });
}

// A handle that gets no private counters continues with the shared ones.
TEST(Threads, SharedCountersLoseNoCountIfPrivateTypesFail) {
    constexpr unsigned threads = 4, objects = 2000;
    const RecordOperations &record = bridge::operations("lumo_tarn_dp_tc");
    const auto &shared = record.type->variant_info->entries[0];
    const std::uint64_t created = shared.num_created, destroyed = shared.num_destroyed, live = shared.num_live;
    on_threads(threads, [&](unsigned) {
        const Handle h({.private_types = true});
        mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_VARIANT_BLOCK, 1, 1);
        for (unsigned i = 0; i < objects; ++i) record.destroy(h, id, record.create(h, id));
    });
    EXPECT_EQ(shared.num_created - created, threads * objects);
    EXPECT_EQ(shared.num_destroyed - destroyed, threads * objects);
    EXPECT_EQ(shared.num_live, live);
}

}  // namespace
