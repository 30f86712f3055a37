// Cap'n Proto: built in place, written out, and read where it lies.
#include <capnp/message.h>
#include <capnp/serialize.h>

#include <memory>
#include <vector>

#include "bench/board.h"
#include "bench/workloads/workloads.h"
#include "tarn_capnp.capnp.h"

namespace tarn::bench {

namespace {

using bench::sum;

template <class Plain>
struct Capnp;

#include "capnp.inc"

template <class Plain>
void add(Board &board, std::string_view workload, const Plain &from) {
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

    board.add("build and destroy", workload, "capnp", [value, first] {
        capnp::MallocMessageBuilder message(first());
        fill(message.initRoot<Struct>(), *value);
    });
    board.add("encode", workload, "capnp", [value, first, flat] {
        capnp::MallocMessageBuilder message(first());
        fill(message.initRoot<Struct>(), *value);
        kj::ArrayOutputStream out(kj::arrayPtr(flat->data(), flat->size()));
        capnp::writeMessage(out, message);
        benchmark::DoNotOptimize(flat->data());
    });
    board.add("decode and destroy", workload, "capnp", [read] { benchmark::DoNotOptimize(read()); });
}

}  // namespace

void add_capnp(Board &board) {
    add(board, "deep", deep());
    add(board, "flat", flat());
    add(board, "wide", wide());
    add(board, "strings", strings());
}

}  // namespace tarn::bench
