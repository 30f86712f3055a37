#include "wire_support.h"

namespace wire {

void use(mirk_handle *h, const Instance &instance, std::int32_t size) {
    static GuardedMemory memory(most_bytes);
    std::uint8_t *buffer = memory.room(static_cast<std::size_t>(size));
    char *text = reinterpret_cast<char *>(buffer);
    const bridge::RecordOperations &record = instance.record();
    const char *name = "instance";
    std::uint32_t err = 0;
    record.print(h, id, text, 0, name, instance.get(), size, &err);
    err = 0;
    record.to_xml(h, id, name, text, instance.get(), size, 0, &err);
    err = 0;
    record.marshal(h, id, buffer, instance.get(), size, &err);
    record.len(h, id, instance.get());
    EXPECT_EQ(record.compare(instance.get(), instance.get()), 0);
    record.hash(instance.get(), 0);
}

}  // namespace wire
