// The library in its setups, its lower bounds and plain structs.
#include <cstring>

#include "bench/object.h"
#include "bench/workloads/lower_bound.h"

namespace tarn::bench {

namespace {

// Allocates blocks one after another and releases all of them with the last one: an obj_alloc for programs that handle
// one message at a time. It installs empty notifications, too.
class Arena {
public:
    explicit Arena(mirk_handle *h) : h_(h), before_(*h), memory_(std::size_t{4} << 20) {
        h->mem_ctx = this;
        h->obj_alloc = [](void *self, std::uint32_t, std::size_t size) {
            return static_cast<Arena *>(self)->take(size);
        };
        h->obj_free = [](void *self, std::uint32_t, void *p) { static_cast<Arena *>(self)->give(p); };
        h->write_notify = [](void *, void *, std::size_t, std::uint32_t) { return 0; };
        h->count_notify = [](void *, std::uint64_t *, std::int64_t, std::uint32_t) { return 0; };
    }
    ~Arena() {
        h_->mem_ctx = before_.mem_ctx;
        h_->obj_alloc = before_.obj_alloc;
        h_->obj_free = before_.obj_free;
        h_->write_notify = before_.write_notify;
        h_->count_notify = before_.count_notify;
    }
    Arena(const Arena &) = delete;
    Arena &operator=(const Arena &) = delete;

private:
    void *take(std::size_t size) {
        const std::size_t rounded = (size + 15) / 16 * 16;
        if (memory_.size() - used_ < rounded) return nullptr;
        void *block = memory_.data() + used_;
        used_ += rounded;
        ++live_;
        return block;
    }
    void give(void *p) {
        if (p != nullptr && --live_ == 0) used_ = 0;
    }

    mirk_handle *h_;
    const mirk_handle before_;
    std::vector<std::uint8_t> memory_;
    std::size_t used_ = 0, live_ = 0;
};

// A sample whose frame is read on a handle that takes its memory from an arena.
template <class Plain>
struct ArenaSample {
    explicit ArenaSample(const Plain &value) : sample(Setup::private_tables, value) {}
    Sample<Plain> sample;
    Handle handle{options(Setup::private_tables)};
    Arena arena{handle};
};

int ignore_write(void *, void *, std::size_t, std::uint32_t) { return 0; }
int ignore_count(void *, std::uint64_t *, std::int64_t, std::uint32_t) { return 0; }

// The frame that a peer with one more member would send: one byte longer, with a jump to match. Reading it writes one
// trace line at a level that is not selected.
template <class Plain>
std::shared_ptr<Sample<Plain>> from_newer_peer(const Plain &value) {
    const auto s = std::make_shared<Sample<Plain>>(Setup::plain, value);
    constexpr std::size_t jump = 2, jump_size = 4;
    std::size_t digit = jump + jump_size - 1;
    while (++s->frame[digit] == 0) --digit;  // big-endian
    s->frame.insert(s->frame.begin() + s->size++, 0);
    const std::uint32_t size = s->size;
    auto *target = Exports<Plain>::create(s->handle, context_id);
    require(Exports<Plain>::unmarshal(s->handle, context_id, s->frame.data(), target, size, 0, &s->err) == size &&
                Exports<Plain>::compare(target, s->object) == 0,
            "a frame of a newer peer is not read");
    Exports<Plain>::destroy(s->handle, context_id, target);
    return s;
}

template <class Plain>
void add(Results &results, std::string_view workload, const Plain &value) {
    const auto sample = [&](Setup setup) { return std::make_shared<Sample<Plain>>(setup, value); };
    const auto plain = sample(Setup::plain), tracking = sample(Setup::tracking), tables = sample(Setup::private_tables),
               replaced = sample(Setup::plain);
    replaced->handle->write_notify = ignore_write;
    replaced->handle->count_notify = ignore_count;

    results.add("build and destroy", workload, "library", building(plain));
    results.add("build and destroy", workload, "library, tracking", building(tracking));
    results.add("build and destroy", workload, "library, private tables", building(tables));
    results.add("build and destroy", workload, "library, empty notifications", building(replaced));

    results.add("encode", workload, "library", encoding(plain));
    results.add("encode", workload, "library, tracking", encoding(tracking));
    results.add("encode", workload, "memcpy", [plain] {
        benchmark::DoNotOptimize(std::memcpy(plain->other.data(), plain->frame.data(), plain->size));
        benchmark::ClobberMemory();
    });

    results.add("decode and destroy", workload, "library", decoding(plain));
    results.add("decode and destroy", workload, "library, tracking", decoding(tracking));
    results.add("decode and destroy", workload, "library, private tables", decoding(tables));
    results.add("decode and destroy", workload, "library, empty notifications", decoding(replaced));
    results.add("decode and destroy", workload, "library, an unwanted trace line", decoding(from_newer_peer(value)));
    const auto in_arena = std::make_shared<ArenaSample<Plain>>(value);
    results.add("decode and destroy", workload, "library, private tables and arena", [in_arena] {
        using Ops = Exports<Plain>;
        Sample<Plain> &s = in_arena->sample;
        auto *target = Ops::create(in_arena->handle, context_id);
        benchmark::DoNotOptimize(
            Ops::unmarshal(in_arena->handle, context_id, s.frame.data(), target, s.size, 0, &s.err));
        Ops::destroy(in_arena->handle, context_id, target);
    });
    results.add("decode and destroy", workload, "memcpy", [plain] {
        benchmark::DoNotOptimize(std::memcpy(plain->other.data(), plain->frame.data(), plain->size));
        benchmark::ClobberMemory();
    });

    results.add("copy and destroy", workload, "library", copying(plain));
    results.add("copy and destroy", workload, "library, tracking", copying(tracking));
    results.add("copy and destroy", workload, "library, private tables", copying(tables));
    results.add("read all members", workload, "library",
                [plain] { benchmark::DoNotOptimize(sum(plain->handle, context_id, plain->object, &plain->err)); });
    results.add("compare", workload, "library", comparing(plain));
    results.add("hash", workload, "library", hashing(plain));
    results.add("text", workload, "library", printing(plain));
    results.add("XML writing", workload, "library", writing_xml(plain));
    results.add("XML reading", workload, "library", reading_xml(plain));
}

template <class Plain>
void add_lower_bound(Results &results, std::string_view workload, std::string subject, const LowerBound &bound,
                     Setup setup, const Plain &value) {
    const auto s = std::make_shared<Sample<Plain>>(setup, value);
    const LowerBound *const f = &bound;
    if (setup == Setup::tracking) subject += ", tracking";
    const auto encode = [s, f] {
        benchmark::DoNotOptimize(f->marshal(s->handle, context_id, s->other.data(), s->bytes(), s->room(), &s->err));
    };
    encode();
    require(std::memcmp(s->other.data(), s->frame.data(), s->size) == 0, "a lower bound writes another frame");
    results.add("encode", workload, subject, encode);
    results.add("decode and destroy", workload, subject, [s, f] {
        auto *target = static_cast<std::uint8_t *>(f->create(s->handle, context_id));
        benchmark::DoNotOptimize(f->unmarshal(s->handle, context_id, s->frame.data(), target, s->size, 0, &s->err));
        f->destroy(s->handle, context_id, target, true);
    });
}

template <class Plain>
void add_lower_bounds_of(Results &results, std::string_view workload, const Plain &value) {
    const char *record = Exports<Plain>::name;
    for (const Setup setup : {Setup::plain, Setup::tracking}) {
        add_lower_bound(results, workload, "contract lower bound", contract_lower_bound(record), setup, value);
        add_lower_bound(results, workload, "inlined lower bound", inlined_lower_bound(record), setup, value);
    }
}

template <class Plain>
void add_plain_of(Results &results, std::string_view workload, const Plain &value) {
    const auto one = std::make_shared<Plain>(value), two = std::make_shared<Plain>(value);
    results.add("copy and destroy", workload, "plain structs", [one] {
        Plain copy(*one);
        benchmark::DoNotOptimize(copy);
    });
    results.add("read all members", workload, "plain structs", [one] { benchmark::DoNotOptimize(sum(*one)); });
    results.add("compare", workload, "plain structs", [one, two] { benchmark::DoNotOptimize(*one == *two); });
}

template <class Plain>
void add_after_threads(Results &results, std::string_view workload, const Plain &value) {
    const auto plain = std::make_shared<Sample<Plain>>(Setup::plain, value);
    results.add("build and destroy", workload, "library, after threads", building(plain));
    results.add("decode and destroy", workload, "library, after threads", decoding(plain));
    results.add("copy and destroy", workload, "library, after threads", copying(plain));
}

}  // namespace

void add_library(Results &results) {
    add(results, "deep", deep());
    add(results, "flat", flat());
    add(results, "wide", wide());
    add(results, "strings", strings());
}

void add_library_after_threads(Results &results) {
    add_after_threads(results, "deep", deep());
    add_after_threads(results, "flat", flat());
    add_after_threads(results, "wide", wide());
    add_after_threads(results, "strings", strings());
}

void add_lower_bounds(Results &results) {
    add_lower_bounds_of(results, "deep", deep());
    add_lower_bounds_of(results, "flat", flat());
    add_lower_bounds_of(results, "wide", wide());
    add_lower_bounds_of(results, "strings", strings());
}

void add_plain(Results &results) {
    add_plain_of(results, "deep", deep());
    add_plain_of(results, "flat", flat());
    add_plain_of(results, "wide", wide());
    add_plain_of(results, "strings", strings());
}

}  // namespace tarn::bench
