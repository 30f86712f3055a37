// A handle, and what tests of the C++ interface expect.
#pragma once

#include <gtest/gtest.h>
#include <mirk_platform.h>

#include <lumo_ui_tarn.hpp>

namespace usage {

// Counts the blocks that are left, so a test fails if it leaks an object.
struct CppUsage : testing::Test {
    explicit CppUsage(mirk_platform_tracking tracking = MIRK_PLATFORM_TRACKING_NONE) {
        mirk_platform_handle_options options;
        mirk_platform_handle_options_init(&options);
        options.tracking = tracking;
        handle = mirk_platform_handle_open(&options);
        mirk_platform_trace_set_levels(1);
    }
    ~CppUsage() override { EXPECT_EQ(mirk_platform_handle_close(handle), 0u); }
    mirk_handle *handle = nullptr;
};

template <class Function>
void expect_error(std::errc expected, Function function) {
    try {
        function();
        ADD_FAILURE() << "no error";
    } catch (const std::system_error &error) {
        EXPECT_EQ(error.code(), expected) << error.what();
    }
}

}  // namespace usage
