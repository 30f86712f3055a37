// Each allocation of each exported operation fails in turn, once and from then on.
#include <algorithm>
#include <cerrno>
#include <set>

#include "imports.h"
#include "sweep.h"

namespace {

using namespace trust;

TEST(AllocationSweep, KnowsEveryExportedFunction) {
    std::string unknown;
    for (const Operation &o : operations()) {
        if (o.driver == nullptr) unknown += "\n  " + o.name;
    }
    EXPECT_EQ(unknown, "") << "no driver in tests/trust/drivers.cpp for these";
}

TEST(AllocationSweep, HasNoDriverWithoutAnExport) {
    std::set<const Driver *> used;
    for (const Operation &o : operations()) used.insert(o.driver);
    for (const Driver &d : drivers()) EXPECT_TRUE(used.contains(&d)) << d.of << ' ' << d.suffix;
}

constexpr mirk_platform_testing_allocator allocators[] = {
    MIRK_PLATFORM_TESTING_OBJ_ALLOC, MIRK_PLATFORM_TESTING_SYS_ALLOC, MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC,
    MIRK_PLATFORM_TESTING_VARIANT_BLOCK};

class EachOperation : public testing::TestWithParam<const Driver *> {
protected:
    void SetUp() override { mirk_platform_trace_set_levels(1); }

    struct Outcome {
        std::uint64_t requests[4] = {};
        std::uint32_t err = 0, last_error = 0;
        std::uint64_t result = 0;
        bool made = false;
    };

    static Outcome run(const Operation &operation, const kit::Options &options, const Failure *failure,
                       bool is_described) {
        Scene scene(operation.subject, options);
        scene.begin_call();
        if (failure != nullptr) scene.fail(*failure);
        operation.driver->call(scene);
        scene.end_call();
        Outcome outcome{
            .err = scene.err, .last_error = scene.last_error, .result = scene.result, .made = scene.made != nullptr};
        for (const auto allocator : allocators) outcome.requests[allocator] = scene.requests(allocator);
        if (is_described) operation.driver->judge(scene, *failure);
        scene.clean_up();
        return outcome;
    }
};

TEST_P(EachOperation, SurvivesEachFailure) {
    const Driver &driver = *GetParam();
    std::uint64_t swept = 0, refused = 0;
    bool types_swept[4] = {};
    for (const Operation &operation : operations()) {
        if (operation.driver != &driver) continue;
        SCOPED_TRACE(operation.name);
        for (const kit::Tracking tracking : kit::every_tracking) {
            for (const bool private_types : {false, true}) {
                // Type records are created in the same way in every mode.
                if (private_types && tracking != kit::Tracking::none) continue;
                SCOPED_TRACE(std::string(kit::name_of(tracking)) + (private_types ? ", types of its own" : ""));
                const kit::Options options{.tracking = tracking, .private_types = private_types};
                const Outcome calm = run(operation, options, nullptr, false);
                ++swept;
                for (const auto allocator : allocators) {
                    const bool of_types = allocator == MIRK_PLATFORM_TESTING_SYS_ALLOC ||
                                          allocator == MIRK_PLATFORM_TESTING_VARIANT_BLOCK;
                    // The call's other allocations also happen without private types.
                    if (private_types && !of_types) continue;
                    if (driver.judge == nullptr && !private_types) {
                        EXPECT_EQ(calm.requests[allocator], 0U)
                            << "allocates, and its driver does not describe the failure";
                    }
                    // All types are created at once, whichever is requested: after one sweep through them, only the
                    // first and the last are tried.
                    const std::uint64_t requests = calm.requests[allocator];
                    const std::uint64_t step =
                        private_types && types_swept[allocator] && requests > 1 ? requests - 1 : 1;
                    if (private_types && requests != 0) types_swept[allocator] = true;
                    for (std::uint64_t nth = 1; nth <= requests; nth += step) {
                        for (const bool onwards : {false, true}) {
                            const Failure failure{allocator, nth, onwards};
                            std::ostringstream words;
                            words << failure;
                            SCOPED_TRACE(words.str());
                            const bool judged = judges(driver, failure);
                            const Outcome outcome = run(operation, options, &failure, judged);
                            ++refused;
                            if (judged) continue;
                            // Without a private type record the handle continues with the module's. The handle reports
                            // the error if it was the library that wanted to create the record, and a sticky call
                            // checks it.
                            EXPECT_EQ(outcome.err, calm.err);
                            EXPECT_TRUE(outcome.last_error == calm.last_error || outcome.last_error == ENOMEM);
                            EXPECT_TRUE(outcome.made == calm.made || (!outcome.made && outcome.last_error == ENOMEM));
                        }
                    }
                }
                if (HasFailure()) return;
            }
        }
    }
    EXPECT_GT(swept, 0U);
    if (driver.judge != nullptr) {
        EXPECT_GT(refused, 0U) << "nothing was refused";
    }
    RecordProperty("operations", static_cast<int>(swept));
    RecordProperty("refused", static_cast<int>(refused));
}

std::string name_of(const testing::TestParamInfo<const Driver *> &info) {
    std::string name = std::string(info.param->of) + "_" + info.param->suffix;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}
std::vector<const Driver *> each_driver() {
    std::vector<const Driver *> all;
    for (const Driver &d : drivers()) all.push_back(&d);
    return all;
}
INSTANTIATE_TEST_SUITE_P(Exports, EachOperation, testing::ValuesIn(each_driver()), name_of);

// ---- memory that no handle gives

using RecorderDeathTest = testing::TestWithParam<const MessageOperations *>;

// A recording that silently lacks messages would be worse than an abort.
TEST_P(RecorderDeathTest, AFailedBufferAllocationAborts) {
    const MessageOperations &m = *GetParam();
    EXPECT_EXIT(
        {
            Scene scene({.message = &m}, {});
            mirk_platform_recorder_set(1, stderr);
            mirk_platform_testing_fail_allocation(nullptr, MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC, 1, 0);
            void *out = nullptr;
            m.unmarshal(scene.h, id, nullptr, &out, scene.frame.data(),
                        static_cast<std::uint32_t>(scene.frame.size() - 1), nullptr, scene.error());
        },
        testing::KilledBySignal(SIGABRT), "\\(FATAL\\): MIRK record - malloc failed");
}
std::vector<const MessageOperations *> each_message() {
    std::vector<const MessageOperations *> all;
    for (const MessageOperations &m : tarn::reflect::messages()) all.push_back(&m);
    return all;
}
INSTANTIATE_TEST_SUITE_P(EveryMessage, RecorderDeathTest, testing::ValuesIn(each_message()),
                         [](const auto &info) { return std::string(info.param->name); });

void *no_memory(std::size_t) { return nullptr; }

// Larger numbers of references are listed in memory of the process. If it cannot be allocated, the destruction stops,
// as if the references could not be read.
TEST(AllocationSweep, UnlistableReferencesStopADestruction) {
    const RecordOperations *holder = nullptr;
    std::size_t index = 0;
    for (const RecordOperations &r : tarn::reflect::records()) {
        for (std::size_t i = 0; i < r.members.size() && holder == nullptr; ++i) {
            if (r.members[i].member->kind != tarn::schema::Kind::address) continue;
            holder = &r;
            index = i;
        }
    }
    ASSERT_NE(holder, nullptr);
    Scene scene({.record = holder}, {});
    auto *address = static_cast<ip_address *>(holder->members[index].get(scene.h, id, scene.object, scene.error()));
    std::vector<void *> oids(100);
    std::vector<std::vector<std::uint64_t>> targets(oids.size(), std::vector<std::uint64_t>(8));
    for (std::size_t i = 0; i < oids.size(); ++i) {
        ASSERT_EQ(mirk_platform_oid_mapping_make(scene.h, targets[i].data(), 1, nullptr, &oids[i]), 0U);
    }
    ASSERT_EQ(mirk_platform_address_set_oids(scene.h, address, oids.data(), static_cast<std::uint32_t>(oids.size())),
              0U);
    {
        const Import import("liblumo_ui_tarn", "malloc", reinterpret_cast<void *>(&no_memory));
        ASSERT_TRUE(import.found());
        mirk_platform_testing_capture_start();
        holder->destroy(scene.h, id, scene.object);
        mirk_platform_testing_capture_stop();
    }
    EXPECT_TRUE(scene.is_live(scene.object));
    // They could not be listed, so they were not read, and no line reports that they cannot be read.
    EXPECT_EQ(mirk_platform_testing_captured(), 0U);
    std::uint32_t left = 0;
    EXPECT_EQ(mirk_platform_oid_mapping_state(scene.h, oids[0], &left, nullptr), 0U);
    EXPECT_EQ(left, 1U);

    // With memory it succeeds.
    holder->destroy(scene.h, id, scene.object);
    EXPECT_FALSE(scene.is_live(scene.object));
    EXPECT_EQ(mirk_platform_oid_mapping_state(scene.h, oids[99], &left, nullptr), 0U);
    EXPECT_EQ(left, 0U);
    scene.object = nullptr;
    scene.clean_up();
}

}  // namespace
