// Cap'n Proto: built in place, written out, and read where it lies.
#include <capnp/message.h>
#include <capnp/serialize.h>

#include <memory>
#include <vector>

#include "bench/results.h"
#include "bench/workloads/workloads.h"
#include "tarn_capnp.capnp.h"

namespace tarn::bench {

namespace {

using bench::sum;

template <class Plain>
struct Capnp;

#include "capnp.inc"

template <class Plain>
void add(Results &results, std::string_view workload, const Plain &from) {
    using Struct = typename Capnp<Plain>::Struct;
    const auto value = std::make_shared<Plain>(from);
    capnp::MallocMessageBuilder built;
    fill(built.initRoot<Struct>(), *value);
    const auto words = std::make_shared<kj::Array<capnp::word>>(capnp::messageToFlatArray(built));
    const auto read = [words] {
        capnp::FlatArrayMessageReader reader(*words);
        return sum(reader.getRoot<Struct>());
    };
    require(read() == sum(*value), "a Cap'n Proto message does not hold what was put in");
    // The first segment is reused and holds the whole message. A builder wants it zeroed, and leaves it so.
    const auto segment = std::make_shared<std::vector<capnp::word>>(words->size() + 64);
    const auto flat = std::make_shared<std::vector<kj::byte>>(words->size() * sizeof(capnp::word) + 64);
    const auto first = [segment] { return kj::arrayPtr(segment->data(), segment->size()); };

    results.add("build and destroy", workload, "capnp", [value, first] {
        capnp::MallocMessageBuilder message(first());
        fill(message.initRoot<Struct>(), *value);
    });
    results.add("encode", workload, "capnp", [value, first, flat] {
        capnp::MallocMessageBuilder message(first());
        fill(message.initRoot<Struct>(), *value);
        kj::ArrayOutputStream out(kj::arrayPtr(flat->data(), flat->size()));
        capnp::writeMessage(out, message);
        benchmark::DoNotOptimize(flat->data());
    });
    results.add("decode and destroy", workload, "capnp", [read] { benchmark::DoNotOptimize(read()); });
}

}  // namespace

void add_capnp(Results &results) {
    add(results, "deep", deep());
    add(results, "flat", flat());
    add(results, "wide", wide());
    add(results, "strings", strings());
}

}  // namespace tarn::bench
