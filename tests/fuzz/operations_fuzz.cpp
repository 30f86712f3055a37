// Any exported operation on any type that has it, called like in the sweep of failing allocations, with failures chosen
// by the input. The next operation may use the results of the one before.
#include <array>
#include <cstdint>
#include <vector>

#include "fuzz.h"
#include "sweep.h"

namespace {

using namespace fuzz;
using trust::Operation;
using trust::Scene;

// Two bytes for the first operation, two for each failure, one for each further operation.
constexpr std::size_t most_calls = 3, bytes_of_a_scene = 2 + 2 * most_calls + most_calls - 1;

const Operation &another(const Operation &operation, std::uint8_t number) {
    std::vector<const Operation *> same;
    for (const Operation &o : trust::operations()) {
        if (o.subject == operation.subject) same.push_back(&o);
    }
    return *same[number % same.size()];
}

// Calls operations of one subject, until one has destroyed or created an object.
void play(Input input, const kit::Options &options) {
    const auto &all = trust::operations();
    const Operation *operation = &all[input.u16() % all.size()];
    Scene scene(operation->subject, options);
    const std::array held{scene.object, scene.other, scene.element};
    for (std::size_t calls = 1;; ++calls) {
        const trust::Driver *driver = operation->driver;
        if (driver == nullptr) return;  // the sweep reports it
        const std::uint8_t how = input.u8();
        const trust::Failure failure{static_cast<mirk_platform_testing_allocator>(how % 4), input.u8() % 32U,
                                     (how & 4) != 0};
        scene.begin_call();
        if (failure.nth != 0) scene.fail(failure);
        driver->call(scene);
        scene.end_call();
        // A driver describes a scene as it was created.
        const bool failed = failure.nth != 0 && scene.requests(failure.allocator) >= failure.nth;
        if (calls > 1) scene.may_lose = SIZE_MAX;
        if (calls == 1 && failed && trust::judges(*driver, failure)) driver->judge(scene, failure);
        const bool go_on = (how & 8) != 0 && calls < most_calls;
        if (!go_on || scene.made != nullptr || held != std::array{scene.object, scene.other, scene.element}) break;
        operation = &another(*operation, input.u8());
    }
    scene.clean_up();
    // The test framework keeps failures that are reported outside of a test.
    require(!testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed(), operation->name.c_str());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Input input(data, size);
    const kit::Options options = fuzz::options(Choice(input.u8()));
    while (!input.empty()) {
        play(Input(input.take(bytes_of_a_scene)), options);
    }
    return 0;
}
