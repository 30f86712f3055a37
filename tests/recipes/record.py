"""Add a record: lumo_tarn_dp_queue, and an array of it, so that it is also nested in another one."""

NEW = ["dp_queue"]


def add_record(tree):
    tree.insert("schema/records/learn_list.h", r"""inline constexpr Member lumo_tarn_dp_queue_members[] = {
    u16("id", "identifier of the queue"),
    u64("packets", "packets in the queue"),
};
inline constexpr Record lumo_tarn_dp_queue{"lumo_tarn_dp_queue", "5be1f0c25d0f4a1f9d5d2c8a73e1b064", "one packet queue",
                                           lumo_tarn_dp_queue_members, keyed_by("id").called("queue")};

inline constexpr Member lumo_tarn_dp_queue_list_members[] = {
    count8("num_queues", "elements in queues"),
    many("queues", lumo_tarn_dp_queue, "packet queues"),
};
inline constexpr Record lumo_tarn_dp_queue_list{"lumo_tarn_dp_queue_list", "0c9b7e3f6a524d18b8f4e2d19a7c5e33",
                                                "list of packet queues", lumo_tarn_dp_queue_list_members};

""", before="}  // namespace tarn::schema")
    tree.insert("schema/catalogue.h", "    &lumo_tarn_dp_queue,\n    &lumo_tarn_dp_queue_list,\n",
                after="    &lumo_tarn_pal_mp_prefix_data,\n")
    tree.insert("tests/support/reference/record_tables.cpp", """\
record lumo_tarn_dp_queue 5be1f0c25d0f4a1f9d5d2c8a73e1b064 24 24 8 32 2 34
  id integer u_int16
  packets integer u_int64
record lumo_tarn_dp_queue_list 0c9b7e3f6a524d18b8f4e2d19a7c5e33 24 24 8 32 16 48
  num_queues count u_int8
  queues array lumo_tarn_dp_queue num_queues sum
""", after="  prefix_data array lumo_tarn_pal_mp_prefix num_prefixes sum\n")


STEPS = [(add_record, 2)]

C = r"""
#include <assert.h>
#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

int main(void) {
    mirk_handle *h = mirk_platform_handle_open(NULL);
    uint32_t err = 0;
    uint8_t frame[257];
    lumo_tarn_dp_queue_list *list = lumo_tarn_dp_queue_list_create(h, 1);
    lumo_tarn_dp_queue_list_queues_set(h, 1, list, 1, NULL, &err);
    lumo_tarn_dp_queue *last = lumo_tarn_dp_queue_list_queues_get(h, 1, list, 1, &err);
    lumo_tarn_dp_queue_packets_set_value(h, 1, last, 1000, &err);
    uint32_t size = lumo_tarn_dp_queue_list_marshal(h, 1, frame, list, 256, &err);
    assert(size == 6 + 1 + 2 * (6 + 2 + 8));
    lumo_tarn_dp_queue_list *read = lumo_tarn_dp_queue_list_create(h, 1);
    assert(lumo_tarn_dp_queue_list_unmarshal(h, 1, frame, read, size, 0, &err) == size);
    assert(lumo_tarn_dp_queue_list_compare(list, read) == 0 && err == 0);
    lumo_tarn_dp_queue_list_destroy(h, 1, read);
    lumo_tarn_dp_queue_list_destroy(h, 1, list);
    assert(mirk_platform_handle_close(h) == 0);
    return 0;
}
"""

CPP = r"""
#include <cassert>
#include <lumo_ui_tarn.hpp>
#include <mirk_platform.h>

int main() {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    {
        lumo_ui_tarn::context c(h);
        lumo_ui_tarn::dp_queue_list list(c);
        list.queues().grow(2);
        list.queues()[1].set_packets(1000).set_id(3);
        assert(list.num_queues() == 2 && list.queues()[1].packets() == 1000);
    }
    assert(mirk_platform_handle_close(h) == 0);
}
"""

PYTHON = """
import lumo_tarn
queues = lumo_tarn.DpQueueList(queues=[lumo_tarn.DpQueue(id=3, packets=1000)])
assert lumo_tarn.DpQueueList.from_frame(queues.to_frame()).queues[0].packets == 1000
assert lumo_tarn.DpQueue.__doc__.startswith("one packet queue")
"""

FILES = [
    ("include/lumo_ui_tarn.h", "#include <lumo_ui_tarn/records/lumo_tarn_dp_queue.h>\n"),
    ("include/lumo_ui_tarn/records/lumo_tarn_dp_queue.h", "lumo_tarn_dp_queue_packets_set_value("),
    ("include/lumo_ui_tarn.hpp", "/// One packet queue. C type: lumo_tarn_dp_queue.\n"),
    ("tests/golden/exports.txt", "T lumo_tarn_dp_queue_create\n"),
    ("tests/golden/layout.txt", "lumo_tarn_dp_queue"),
    ("build/dev/bindings/python/lumo_tarn/records.pyi", "class DpQueue("),
    ("build/dev/tools/generate/dissector/tarn.lua", 'lumo_tarn_dp_queue = {\n        { "id", "u16"'),
    ("build/dev/docs/lumo_ui_tarn.3", ".It lumo_tarn_dp_queue\n2 members: one packet queue\n"),
    ("build/dev/docs/tarn_frame.5", ".It packets\nu64, 8 bytes: packets in the queue\n"),
]

TOOL = [
    ("schema lumo_tarn_dp_queue", "packets"),
    ("schema lumo_tarn_dp_queue_list --tree", "queues"),
    ("schema --json", '"name": "lumo_tarn_dp_queue"'),
    ("schema --html", '"lumo_tarn_dp_queue"'),
    ("complete schema lumo_tarn_dp_qu", "lumo_tarn_dp_queue\tone packet queue\n"),
]
