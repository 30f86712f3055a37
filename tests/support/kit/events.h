// Events on a handle of the reference runtime.
#pragma once

#include <cstddef>
#include <vector>

#include "mirk_platform_testing.h"

namespace kit {

// Records all events on a handle during its lifetime.
class Events {
public:
    explicit Events(mirk_handle *h) : h_(h) {
        mirk_platform_testing_set_hook(
            h,
            [](void *user, mirk_handle *, const mirk_platform_testing_event *event) {
                static_cast<Events *>(user)->all.push_back(*event);
            },
            this);
    }
    ~Events() { mirk_platform_testing_set_hook(h_, nullptr, nullptr); }
    Events(const Events &) = delete;
    Events &operator=(const Events &) = delete;

    std::vector<mirk_platform_testing_event> of(mirk_platform_testing_event_kind kind) const {
        std::vector<mirk_platform_testing_event> some;
        for (const auto &event : all) {
            if (event.kind == kind) some.push_back(event);
        }
        return some;
    }
    std::size_t count(mirk_platform_testing_event_kind kind) const { return of(kind).size(); }

    std::vector<mirk_platform_testing_event> all;

private:
    mirk_handle *h_;
};

}  // namespace kit
