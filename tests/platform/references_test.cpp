#include "support.hpp"

using test::Handle;

namespace {

int destroyed = 0;

void destroy(mirk_handle *h, uint32_t ctx_id, void *object) {
    uint32_t err = 0;
    EXPECT_EQ(mirk_request_oid_mapping_destroy(h, ctx_id, object, &err), 1u);
    ++destroyed;
    h->obj_free(h->mem_ctx, ctx_id, object);
}

void *make_object(Handle &h) {
    void *object = h.alloc(sizeof(mirk_object));
    std::memset(object, 0, sizeof(mirk_object));
    return object;
}

}  // namespace

TEST(References, RequestDestroySucceedsWithoutAMapping) {
    Handle h;
    mirk_object object{};
    uint32_t err = 0;
    EXPECT_EQ(mirk_request_oid_mapping_destroy(h, 7, &object, &err), 1u);
    EXPECT_EQ(err, 0u);
}

TEST(References, AnUnknownOidIsEnoent) {
    Handle h;
    uint32_t err = 0;
    mirklib_lookup_and_update_oid_ref_count(h, 7, &err, 0, &err);
    EXPECT_EQ(err, uint32_t{ENOENT});
    EXPECT_EQ(mirk_platform_oid_mapping_state(h, &err, nullptr, nullptr), uint32_t{ENOENT});
}

TEST(References, TheLastReferenceDestroysACondemnedObject) {
    Handle h;
    void *object = make_object(h), *oid = nullptr;
    destroyed = 0;
    ASSERT_EQ(mirk_platform_oid_mapping_make(h, object, 2, destroy, &oid), 0u);
    EXPECT_EQ(static_cast<mirk_object *>(object)->obj_flag, 1);
    EXPECT_EQ(mirk_platform_oid_mapping_make(h, object, 2, destroy, &oid), uint32_t{EEXIST});
    uint32_t err = 0, references = 0, condemned = 0;
    EXPECT_EQ(mirk_request_oid_mapping_destroy(h, 7, object, &err), 0u);
    EXPECT_EQ(err, 0u);
    mirklib_lookup_and_update_oid_ref_count(h, 7, oid, 0, &err);
    EXPECT_EQ(mirk_platform_oid_mapping_state(h, oid, &references, &condemned), 0u);
    EXPECT_EQ(references, 1u);
    EXPECT_EQ(condemned, 1u);
    EXPECT_EQ(destroyed, 0);
    mirklib_lookup_and_update_oid_ref_count(h, 7, oid, 0, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(destroyed, 1);
    EXPECT_EQ(mirk_platform_live_blocks(h), 0u);
    mirklib_lookup_and_update_oid_ref_count(h, 7, oid, 0, &err);
    EXPECT_EQ(err, uint32_t{ENOENT});
}

TEST(References, AnObjectThatIsNotCondemnedOutlivesItsLastReference) {
    Handle h;
    void *object = make_object(h), *oid = nullptr;
    destroyed = 0;
    ASSERT_EQ(mirk_platform_oid_mapping_make(h, object, 1, destroy, &oid), 0u);
    uint32_t err = 0;
    mirklib_lookup_and_update_oid_ref_count(h, 7, oid, 0, &err);
    EXPECT_EQ(destroyed, 0);
    mirklib_lookup_and_update_oid_ref_count(h, 7, oid, 0, &err);
    EXPECT_EQ(err, uint32_t{EINVAL});
    destroy(h, 7, object);
}

TEST(References, FreedMemoryKeepsNoMapping) {
    Handle h;
    void *object = make_object(h), *oid = nullptr;
    ASSERT_EQ(mirk_platform_oid_mapping_make(h, object, 1, destroy, &oid), 0u);
    h.free(object);
    EXPECT_EQ(mirk_platform_oid_mapping_state(h, oid, nullptr, nullptr), uint32_t{ENOENT});
}

TEST(References, OperationsFailOnRequest) {
    Handle h;
    void *object = make_object(h), *oid = nullptr;
    ASSERT_EQ(mirk_platform_oid_mapping_make(h, object, 1, destroy, &oid), 0u);
    mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_OID_MAPPING_DESTROY, 0, 1, 5);
    mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_OID_REF_COUNT, 0, 1, 6);
    uint32_t err = 0;
    mirk_request_oid_mapping_destroy(h, 7, object, &err);
    EXPECT_EQ(err, 5u);
    err = 0;
    mirklib_lookup_and_update_oid_ref_count(h, 7, oid, 0, &err);
    EXPECT_EQ(err, 6u);
    uint32_t references = 0;
    EXPECT_EQ(mirk_platform_oid_mapping_state(h, oid, &references, nullptr), 0u);
    EXPECT_EQ(references, 1u);
    h.free(object);
}

TEST(References, AnAddressReturnsItsOids) {
    Handle h;
    ip_address address{};
    uint32_t err = 0;
    EXPECT_EQ(ip_address_get_oid_count(h, 7, &address, &err), 0u);
    void *const given[2] = {reinterpret_cast<void *>(0x10), reinterpret_cast<void *>(0x20)};
    ASSERT_EQ(mirk_platform_address_set_oids(h, &address, given, 2), 0u);
    EXPECT_EQ(ip_address_get_oid_count(h, 7, &address, &err), 2u);
    void *read[2] = {};
    ip_address_get_object_references(h, 7, &address, read, 1, &err);
    EXPECT_EQ(read[0], given[0]);
    EXPECT_EQ(read[1], nullptr);
    ip_address_get_object_references(h, 7, &address, read, 2, &err);
    EXPECT_EQ(read[1], given[1]);
    mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_OBJECT_REFERENCES, 0, 1, 5);
    ip_address_get_object_references(h, 7, &address, read, 2, &err);
    EXPECT_EQ(err, 5u);
    EXPECT_EQ(mirk_platform_address_set_oids(h, &address, nullptr, 0), 0u);
    err = 0;
    EXPECT_EQ(ip_address_get_oid_count(h, 7, &address, &err), 0u);
}

TEST(References, ANullAddressIsEinval) {
    Handle h;
    test::Trace trace;
    uint32_t err = 0;
    EXPECT_EQ(ip_address_get_oid_count(h, 7, nullptr, &err), 0u);
    EXPECT_EQ(err, uint32_t{EINVAL});
    EXPECT_TRUE(trace.has(3, "Invalid object passed in to get object oid count"));
    EXPECT_EQ(ip_address_get_oid_count(h, 7, nullptr, &err), 0u);
    EXPECT_TRUE(trace.has(3, "Error already present in call to get object oid count"));
}
