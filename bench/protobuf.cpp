// Protocol Buffers, on the heap and in an arena.
#include <google/protobuf/arena.h>
#include <google/protobuf/text_format.h>

#include <memory>

#include "bench/results.h"
#include "bench/workloads/workloads.h"
#include "tarn_protobuf.pb.h"

namespace tarn::bench {

namespace {

using bench::sum;

template <class Plain>
struct Protobuf;

#include "protobuf.inc"

using google::protobuf::Arena;

template <class Plain>
void add(Results &results, std::string_view workload, const Plain &from) {
    using Message = typename Protobuf<Plain>::Message;
    const auto value = std::make_shared<Plain>(from);
    const auto message = std::make_shared<Message>();
    fill(message.get(), *value);
    require(sum(*message) == sum(*value), "a protobuf message does not hold what was put in");
    const auto bytes = std::make_shared<std::string>();
    require(message->SerializeToString(bytes.get()), "a protobuf message cannot be written");
    Message again;
    require(again.ParseFromString(*bytes) && sum(again) == sum(*value), "protobuf bytes do not come back");
    // Memory of an arena is kept from one use to the next, as a program would that takes messages one by one.
    const auto arena = std::make_shared<Arena>();

    results.add("build and destroy", workload, "protobuf", [value] {
        Message target;
        fill(&target, *value);
        benchmark::DoNotOptimize(target);
    });
    results.add("build and destroy", workload, "protobuf arena", [value, arena] {
        fill(Arena::CreateMessage<Message>(arena.get()), *value);
        arena->Reset();
    });
    const auto room = std::make_shared<std::string>(bytes->size(), '\0');
    results.add("encode", workload, "protobuf", [message, room] {
        benchmark::DoNotOptimize(message->SerializeToArray(room->data(), static_cast<int>(room->size())));
    });
    results.add("decode and destroy", workload, "protobuf", [bytes] {
        Message target;
        benchmark::DoNotOptimize(target.ParseFromString(*bytes));
    });
    results.add("decode and destroy", workload, "protobuf arena", [bytes, arena] {
        benchmark::DoNotOptimize(Arena::CreateMessage<Message>(arena.get())->ParseFromString(*bytes));
        arena->Reset();
    });
    results.add("copy and destroy", workload, "protobuf", [message] {
        Message target(*message);
        benchmark::DoNotOptimize(target);
    });
    results.add("copy and destroy", workload, "protobuf arena", [message, arena] {
        Arena::CreateMessage<Message>(arena.get())->CopyFrom(*message);
        arena->Reset();
    });
    results.add("read all members", workload, "protobuf", [message] { benchmark::DoNotOptimize(sum(*message)); });
    results.add("text", workload, "protobuf", [message] {
        std::string text;
        google::protobuf::TextFormat::PrintToString(*message, &text);
        benchmark::DoNotOptimize(text);
    });
}

}  // namespace

void add_protobuf(Results &results) {
    add(results, "deep", deep());
    add(results, "flat", flat());
    add(results, "wide", wide());
    add(results, "strings", strings());
}

}  // namespace tarn::bench
