// Loading the library links its module into the runtime's list, and unloading removes it.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <string>

#include "mirk/mirk.h"

namespace {

TEST(Module, IsLinkedWhileTheLibraryIsLoaded) {
    ASSERT_EQ(mirk_module_tot_root.count, 0u);
    ASSERT_EQ(mirk_module_tot_root.first, nullptr);
    ASSERT_EQ(mirk_module_tot_root.last, &mirk_module_tot_root.first);
    void *library = dlopen(LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    EXPECT_EQ(mirk_module_tot_root.count, 1u);
    const mirk_module *module = mirk_module_tot_root.first;
    ASSERT_NE(module, nullptr);
    EXPECT_STREQ(module->name, "lumo_ui_tarn");
    EXPECT_EQ(module->prev, &mirk_module_tot_root.first);
    EXPECT_EQ(module->next, nullptr);
    EXPECT_EQ(mirk_module_tot_root.last, &module->next);

    // Opened again, it is still linked once.
    void *again = dlopen(LIBRARY, RTLD_NOW | RTLD_LOCAL);
    EXPECT_EQ(mirk_module_tot_root.count, 1u);
    dlclose(again);
    EXPECT_EQ(mirk_module_tot_root.count, 1u);

    ASSERT_EQ(dlclose(library), 0);
    EXPECT_EQ(dlopen(LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr) << "the library is still loaded";
    EXPECT_EQ(mirk_module_tot_root.count, 0u);
    EXPECT_EQ(mirk_module_tot_root.first, nullptr);
    EXPECT_EQ(mirk_module_tot_root.last, &mirk_module_tot_root.first);
}

TEST(Module, IsAppendedToTheListAndUnlinkedWithoutDamage) {
    mirk_module before{"before", nullptr, nullptr, &mirk_module_tot_root.first};
    mirk_module_tot_root = {1, &before, &before.next};
    void *library = dlopen(LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    mirk_module *module = before.next;
    ASSERT_NE(module, nullptr);
    EXPECT_STREQ(module->name, "lumo_ui_tarn");
    EXPECT_EQ(module->prev, &before.next);
    EXPECT_EQ(mirk_module_tot_root.count, 2u);

    mirk_module later{"later", nullptr, nullptr, mirk_module_tot_root.last};
    *mirk_module_tot_root.last = &later;
    mirk_module_tot_root.last = &later.next;
    mirk_module_tot_root.count = 3;
    ASSERT_EQ(dlclose(library), 0);
    EXPECT_EQ(mirk_module_tot_root.count, 2u);
    EXPECT_EQ(before.next, &later);
    EXPECT_EQ(later.prev, &before.next);
    EXPECT_EQ(mirk_module_tot_root.last, &later.next);
    mirk_module_tot_root = {0, nullptr, &mirk_module_tot_root.first};
}

}  // namespace
