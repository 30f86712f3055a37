// The library itself, in its ways to be set up, and the floors below it.
#include <cstring>

#include "bench/object.h"
#include "bench/workloads/floor.h"

namespace tarn::bench {

namespace {

// Blocks one behind the other, all given back when the last one is: what a program may put behind obj_alloc if it takes
// messages one by one. It announces nothing either.
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

template <class Plain>
auto building(std::shared_ptr<Sample<Plain>> s) {
    return [s] {
        auto *object = Sample<Plain>::Ops::create(s->handle, context_id);
        store(s->handle, context_id, object, s->value, &s->err);
        Sample<Plain>::Ops::destroy(s->handle, context_id, object);
    };
}

int announce_nothing(void *, void *, std::size_t, std::uint32_t) { return 0; }
int count_nothing(void *, std::uint64_t *, std::int64_t, std::uint32_t) { return 0; }

// The frame as a peer with one more member would send it: a byte longer, with a jump that says so. Reading it writes
// one trace line, of a level that nobody selects.
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
void add(Board &board, std::string_view workload, const Plain &value) {
    const auto sample = [&](Setup setup) { return std::make_shared<Sample<Plain>>(setup, value); };
    const auto plain = sample(Setup::plain), tracking = sample(Setup::tracking), tables = sample(Setup::private_tables),
               deaf = sample(Setup::plain);
    deaf->handle->write_notify = announce_nothing;
    deaf->handle->count_notify = count_nothing;

    board.add("build and destroy", workload, "library", building(plain));
    board.add("build and destroy", workload, "library, tracking", building(tracking));
    board.add("build and destroy", workload, "library, private tables", building(tables));
    board.add("build and destroy", workload, "library, empty announcements", building(deaf));

    board.add("encode", workload, "library", encoding(plain));
    board.add("encode", workload, "library, tracking", encoding(tracking));
    board.add("encode", workload, "memcpy", [plain] {
        benchmark::DoNotOptimize(std::memcpy(plain->other.data(), plain->frame.data(), plain->size));
        benchmark::ClobberMemory();
    });

    board.add("decode and destroy", workload, "library", decoding(plain));
    board.add("decode and destroy", workload, "library, tracking", decoding(tracking));
    board.add("decode and destroy", workload, "library, private tables", decoding(tables));
    board.add("decode and destroy", workload, "library, empty announcements", decoding(deaf));
    board.add("decode and destroy", workload, "library, an unwanted trace line", decoding(from_newer_peer(value)));
    const auto in_arena = std::make_shared<ArenaSample<Plain>>(value);
    board.add("decode and destroy", workload, "library, private tables and arena", [in_arena] {
        using Ops = Exports<Plain>;
        Sample<Plain> &s = in_arena->sample;
        auto *target = Ops::create(in_arena->handle, context_id);
        benchmark::DoNotOptimize(
            Ops::unmarshal(in_arena->handle, context_id, s.frame.data(), target, s.size, 0, &s.err));
        Ops::destroy(in_arena->handle, context_id, target);
    });
    board.add("decode and destroy", workload, "memcpy", [plain] {
        benchmark::DoNotOptimize(std::memcpy(plain->other.data(), plain->frame.data(), plain->size));
        benchmark::ClobberMemory();
    });

    board.add("copy and destroy", workload, "library", copying(plain));
    board.add("copy and destroy", workload, "library, tracking", copying(tracking));
    board.add("copy and destroy", workload, "library, private tables", copying(tables));
    board.add("compare", workload, "library", comparing(plain));
    board.add("hash", workload, "library", hashing(plain));
    board.add("text", workload, "library", printing(plain));
    board.add("XML writing", workload, "library", writing_xml(plain));
    board.add("XML reading", workload, "library", reading_xml(plain));
}

template <class Plain>
void add_floor(Board &board, std::string_view workload, std::string who, const Floor &floor, Setup setup,
               const Plain &value) {
    const auto s = std::make_shared<Sample<Plain>>(setup, value);
    const Floor *const f = &floor;
    if (setup == Setup::tracking) who += ", tracking";
    const auto encode = [s, f] {
        benchmark::DoNotOptimize(f->marshal(s->handle, context_id, s->other.data(), s->bytes(), s->room(), &s->err));
    };
    encode();
    require(std::memcmp(s->other.data(), s->frame.data(), s->size) == 0, "a floor writes another frame");
    board.add("encode", workload, who, encode);
    board.add("decode and destroy", workload, who, [s, f] {
        auto *target = static_cast<std::uint8_t *>(f->create(s->handle, context_id));
        benchmark::DoNotOptimize(f->unmarshal(s->handle, context_id, s->frame.data(), target, s->size, 0, &s->err));
        f->destroy(s->handle, context_id, target, true);
    });
}

template <class Plain>
void add_floors_of(Board &board, std::string_view workload, const Plain &value) {
    const char *record = Exports<Plain>::name;
    for (const Setup setup : {Setup::plain, Setup::tracking}) {
        add_floor(board, workload, "contract floor", contract_floor(record), setup, value);
        add_floor(board, workload, "inlined floor", inlined_floor(record), setup, value);
    }
}

template <class Plain>
void add_plain_of(Board &board, std::string_view workload, const Plain &value) {
    const auto one = std::make_shared<Plain>(value), two = std::make_shared<Plain>(value);
    board.add("copy and destroy", workload, "plain structs", [one] {
        Plain copy(*one);
        benchmark::DoNotOptimize(copy);
    });
    board.add("compare", workload, "plain structs", [one, two] { benchmark::DoNotOptimize(*one == *two); });
}

}  // namespace

void add_library(Board &board) {
    add(board, "deep", deep());
    add(board, "flat", flat());
    add(board, "wide", wide());
    add(board, "strings", strings());
}

void add_floors(Board &board) {
    add_floors_of(board, "deep", deep());
    add_floors_of(board, "flat", flat());
    add_floors_of(board, "wide", wide());
    add_floors_of(board, "strings", strings());
}

void add_plain(Board &board) {
    add_plain_of(board, "deep", deep());
    add_plain_of(board, "flat", flat());
    add_plain_of(board, "wide", wide());
    add_plain_of(board, "strings", strings());
}

}  // namespace tarn::bench
