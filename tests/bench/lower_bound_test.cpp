// The benchmarks measure the library against straight-line code. That comparison means something only if both make the
// same calls of the runtime and produce the same bytes.
#include "bench/workloads/lower_bound.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "bench/workloads/workloads.h"
#include "recording.h"
#include "tools/reflect/operations.h"

namespace {

using recording::Detail;
using recording::Tracking;
using tarn::bench::LowerBound;
using tarn::reflect::RecordOperations;

constexpr std::uint32_t id = 7;
using Lines = std::vector<std::string>;
using Bytes = std::vector<std::uint8_t>;

std::uint8_t *bytes_of(void *object) { return static_cast<std::uint8_t *>(object); }

struct Workload {
    const char *name;
    const char *record;
    void *(*make)(mirk_handle *h);
};

void PrintTo(const Workload &workload, std::ostream *to) { *to << workload.name; }

template <class Object, auto Value, auto Create>
void *stored(mirk_handle *h) {
    Object *object = Create(h, id);
    std::uint32_t err = 0;
    tarn::bench::store(h, id, object, Value(), &err);
    EXPECT_EQ(err, 0U);
    return object;
}

const Workload workloads[] = {
    {"deep", "lumo_tarn_dp_tt_table_data",
     stored<lumo_tarn_dp_tt_table_data, tarn::bench::deep, lumo_tarn_dp_tt_table_data_create>},
    {"flat", "lumo_tarn_debug_setting",
     stored<lumo_tarn_debug_setting, tarn::bench::flat, lumo_tarn_debug_setting_create>},
    {"wide", "lumo_tarn_cl_cfg_data", stored<lumo_tarn_cl_cfg_data, tarn::bench::wide, lumo_tarn_cl_cfg_data_create>},
    {"strings", "lumo_tarn_cl_appl_data",
     stored<lumo_tarn_cl_appl_data, tarn::bench::strings, lumo_tarn_cl_appl_data_create>},
};

class LowerBoundTest : public testing::TestWithParam<std::tuple<Workload, bool>> {
protected:
    LowerBoundTest() : handle({.tracking = tracked ? Tracking::on : Tracking::off}) {
        recording::pause(true);
        object = workload.make(handle);
        buffer.resize(operations.len(handle, id, object) + 1);
        size =
            operations.marshal(handle, id, buffer.data(), object, static_cast<std::int32_t>(buffer.size() - 1), &err);
        recording::pause(false);
    }
    ~LowerBoundTest() override { operations.destroy(handle, id, object); }

    // What is asked of the runtime while something runs, with every argument. Without tracking a state area is a place
    // behind a block, formed and never touched, so what lies there by chance has no name to compare.
    template <class Run>
    Lines calls(Run run) {
        recording::clear_names();
        recording::name_region("buffer", buffer.data(), buffer.size());
        recording::name_region("object", object, handle.block_size(object));
        recording::clear_log();
        run();
        EXPECT_EQ(err, 0U);
        Lines lines;
        for (recording::Call &call : recording::log()) {
            if (call.inner) continue;
            const bool has_area = call.function.ends_with("_initialize") && !call.arguments.empty();
            if (has_area && !tracked) call.arguments.back() = "area";
            lines.push_back(recording::line(call, Detail::full));
        }
        return lines;
    }

    const Workload workload = std::get<0>(GetParam());
    const bool tracked = std::get<1>(GetParam());
    const RecordOperations &operations = *tarn::reflect::find_record(workload.record);
    const LowerBound &bound = tarn::bench::contract_lower_bound(workload.record);
    recording::Handle handle;
    Bytes buffer;
    std::uint32_t size = 0;
    void *object = nullptr;
    std::uint32_t err = 0;
};

void expect_same(const Lines &bound, const Lines &library) {
    ASSERT_FALSE(library.empty());
    const auto differs = std::mismatch(bound.begin(), bound.end(), library.begin(), library.end());
    EXPECT_EQ(differs.first, bound.end()) << *differs.first << "\nis call " << differs.first - bound.begin();
    EXPECT_EQ(differs.second, library.end()) << *differs.second << "\nis call " << differs.second - library.begin();
}

TEST_P(LowerBoundTest, WritesAFrameWithTheLibrarysCalls) {
    const auto capacity = static_cast<std::int32_t>(buffer.size() - 1);
    const Bytes expected = buffer;
    const Lines library = calls([&] { operations.marshal(handle, id, buffer.data(), object, capacity, &err); });
    std::fill(buffer.begin(), buffer.end(), std::uint8_t{0});
    const Lines straight = calls([&] { bound.marshal(handle, id, buffer.data(), bytes_of(object), capacity, &err); });
    expect_same(straight, library);
    EXPECT_TRUE(std::equal(buffer.begin(), buffer.begin() + size, expected.begin()));
}

TEST_P(LowerBoundTest, ReadsAndDestroysWithTheLibrarysCalls) {
    const Lines library = calls([&] {
        void *target = operations.create(handle, id);
        EXPECT_EQ(operations.unmarshal(handle, id, buffer.data(), target, size, 0, &err), size);
        EXPECT_EQ(operations.compare(target, object), 0);
        operations.destroy(handle, id, target);
    });
    const Lines straight = calls([&] {
        void *target = bound.create(handle, id);
        EXPECT_EQ(bound.unmarshal(handle, id, buffer.data(), bytes_of(target), size, 0, &err), size);
        EXPECT_EQ(operations.compare(target, object), 0);
        bound.destroy(handle, id, bytes_of(target), true);
    });
    expect_same(straight, library);
}

INSTANTIATE_TEST_SUITE_P(All, LowerBoundTest, testing::Combine(testing::ValuesIn(workloads), testing::Bool()),
                         [](const auto &test) {
                             return std::string(std::get<0>(test.param).name) +
                                    (std::get<1>(test.param) ? "_tracked" : "");
                         });

}  // namespace
