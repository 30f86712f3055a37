// FlatBuffers, as objects that are packed and unpacked, and raw: built straight from values, and read where they lie
// after they were verified.
#include <memory>

#include "bench/results.h"
#include "bench/workloads/workloads.h"
#include "tarn_flatbuffers_generated.h"

namespace tarn::bench {

namespace {

using bench::sum;

template <class Plain>
struct Flat;

#include "flatbuffers.inc"

using flatbuffers::FlatBufferBuilder;

template <class Plain>
void add(Results &results, std::string_view workload, const Plain &from) {
    using Table = typename Flat<Plain>::Table;
    using Object = typename Flat<Plain>::Object;
    const auto value = std::make_shared<Plain>(from);
    const auto object = std::make_shared<Object>();
    fill(object.get(), *value);
    const auto bytes = std::make_shared<FlatBufferBuilder>();
    bytes->Finish(build(*bytes, *value));
    require(sum(*flatbuffers::GetRoot<Table>(bytes->GetBufferPointer())) == sum(*value),
            "a flatbuffer does not hold what was put in");
    const auto builder = std::make_shared<FlatBufferBuilder>();
    builder->Finish(Table::Pack(*builder, object.get()));
    require(sum(*flatbuffers::GetRoot<Table>(builder->GetBufferPointer())) == sum(*value),
            "objects of flatbuffers do not hold what was put in");

    results.add("build and destroy", workload, "flatbuffers objects", [value] {
        Object target;
        fill(&target, *value);
        benchmark::DoNotOptimize(target);
    });
    results.add("encode", workload, "flatbuffers objects", [object, builder] {
        builder->Clear();
        builder->Finish(Table::Pack(*builder, object.get()));
        benchmark::DoNotOptimize(builder->GetBufferPointer());
    });
    results.add("encode", workload, "flatbuffers raw", [value, builder] {
        builder->Clear();
        builder->Finish(build(*builder, *value));
        benchmark::DoNotOptimize(builder->GetBufferPointer());
    });
    results.add("decode and destroy", workload, "flatbuffers objects", [bytes] {
        flatbuffers::Verifier verifier(bytes->GetBufferPointer(), bytes->GetSize(), 64, 10000000);
        if (!verifier.VerifyBuffer<Table>(nullptr)) std::abort();
        const std::unique_ptr<Object> target(flatbuffers::GetRoot<Table>(bytes->GetBufferPointer())->UnPack());
        benchmark::DoNotOptimize(target.get());
    });
    results.add("decode and destroy", workload, "flatbuffers raw", [bytes] {
        flatbuffers::Verifier verifier(bytes->GetBufferPointer(), bytes->GetSize(), 64, 10000000);
        if (!verifier.VerifyBuffer<Table>(nullptr)) std::abort();
        benchmark::DoNotOptimize(sum(*flatbuffers::GetRoot<Table>(bytes->GetBufferPointer())));
    });
}

}  // namespace

void add_flatbuffers(Results &results) {
    add(results, "deep", deep());
    add(results, "flat", flat());
    add(results, "wide", wide());
    add(results, "strings", strings());
}

}  // namespace tarn::bench
