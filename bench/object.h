// An object of the library, made of a plain value, with what the measured operations work on.
#pragma once

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "bench/handle.h"
#include "bench/workloads/workloads.h"

namespace tarn::bench {

template <class Plain>
typename Exports<Plain>::Object *built(mirk_handle *h, const Plain &value) {
    std::uint32_t err = 0;
    auto *object = Exports<Plain>::create(h, context_id);
    store(h, context_id, object, value, &err);
    require(object != nullptr && err == 0, "an object cannot be built");
    return object;
}

template <class Plain>
struct Sample {
    using Ops = Exports<Plain>;
    using Object = typename Ops::Object;

    Sample(Setup setup, const Plain &from) : handle(options(setup)), value(from), object(built(handle, value)) {
        require(sum(handle, context_id, object, &err) == sum(value), "an object does not hold what was put in");
        const std::uint32_t room = Ops::len(handle, context_id, object);
        frame.resize(room + 1);  // one guard byte after the size
        size = Ops::marshal(handle, context_id, frame.data(), object, static_cast<std::int32_t>(room), &err);
        require(err == 0, "a frame cannot be written");
        other.resize(frame.size());
    }
    ~Sample() { Ops::destroy(handle, context_id, object); }
    Sample(const Sample &) = delete;
    Sample &operator=(const Sample &) = delete;

    std::int32_t room() const { return static_cast<std::int32_t>(frame.size() - 1); }
    std::uint8_t *bytes() const { return reinterpret_cast<std::uint8_t *>(object); }

    Handle handle;
    Plain value;
    Object *object;
    std::vector<std::uint8_t> frame, other;
    std::uint32_t size = 0;
    std::uint32_t err = 0;
};

// The operations of the library, each as one iteration.
template <class Plain>
auto building(std::shared_ptr<Sample<Plain>> s) {
    return [s] {
        auto *object = Sample<Plain>::Ops::create(s->handle, context_id);
        store(s->handle, context_id, object, s->value, &s->err);
        Sample<Plain>::Ops::destroy(s->handle, context_id, object);
    };
}

template <class Plain>
auto encoding(std::shared_ptr<Sample<Plain>> s) {
    return [s] {
        benchmark::DoNotOptimize(
            Sample<Plain>::Ops::marshal(s->handle, context_id, s->other.data(), s->object, s->room(), &s->err));
    };
}

template <class Plain>
auto decoding(std::shared_ptr<Sample<Plain>> s) {
    return [s] {
        using Ops = typename Sample<Plain>::Ops;
        auto *target = Ops::create(s->handle, context_id);
        benchmark::DoNotOptimize(Ops::unmarshal(s->handle, context_id, s->frame.data(), target, s->size, 0, &s->err));
        Ops::destroy(s->handle, context_id, target);
    };
}

template <class Plain>
auto copying(std::shared_ptr<Sample<Plain>> s) {
    return [s] {
        using Ops = typename Sample<Plain>::Ops;
        typename Ops::Object *target = nullptr;
        Ops::clone(s->handle, context_id, s->object, &target, s->other.data(), static_cast<std::uint32_t>(s->room()),
                   &s->err);
        Ops::destroy(s->handle, context_id, target);
    };
}

template <class Plain>
auto comparing(std::shared_ptr<Sample<Plain>> s) {
    std::shared_ptr<typename Sample<Plain>::Object> twin(
        built(s->handle, s->value), [s](auto *object) { Sample<Plain>::Ops::destroy(s->handle, context_id, object); });
    require(Sample<Plain>::Ops::compare(s->object, twin.get()) == 0, "equal objects differ");
    return [s, twin] { benchmark::DoNotOptimize(Sample<Plain>::Ops::compare(s->object, twin.get())); };
}

template <class Plain>
auto hashing(std::shared_ptr<Sample<Plain>> s) {
    return [s] { benchmark::DoNotOptimize(Sample<Plain>::Ops::hash(s->object, 1)); };
}

// Room for the longest text so far, for one measurement at a time. A text takes up to 40 bytes for one of a frame.
class TextRoom {
public:
    static void make(std::size_t frame) {
        const std::size_t size = std::min<std::size_t>(4096 + frame * 64, INT32_MAX);
        if (size <= size_) return;
        room_ = std::make_unique_for_overwrite<char[]>(size);
        size_ = size;
    }
    static char *data() { return room_.get(); }
    static std::int32_t size() { return static_cast<std::int32_t>(size_); }

private:
    static inline std::unique_ptr<char[]> room_;
    static inline std::size_t size_ = 0;
};

template <class Plain>
auto printing(std::shared_ptr<Sample<Plain>> s) {
    TextRoom::make(s->frame.size());
    const auto run = [s] {
        benchmark::DoNotOptimize(Sample<Plain>::Ops::print(s->handle, context_id, TextRoom::data(), 0, "o", s->object,
                                                           TextRoom::size(), &s->err));
    };
    run();
    require(s->err == 0, "a text does not fit");
    return run;
}

template <class Plain>
auto writing_xml(std::shared_ptr<Sample<Plain>> s) {
    TextRoom::make(s->frame.size());
    const auto run = [s] {
        benchmark::DoNotOptimize(Sample<Plain>::Ops::to_xml(s->handle, context_id, "o", TextRoom::data(), s->object,
                                                            TextRoom::size(), 0, &s->err));
    };
    run();
    require(s->err == 0, "XML does not fit");
    return run;
}

// What the library wrote, as a document.
template <class Plain>
std::shared_ptr<void> document_of(std::shared_ptr<Sample<Plain>> s) {
    writing_xml(s)();
    const std::shared_ptr<void> document(
        mirk_platform_document_load_memory(TextRoom::data(), std::strlen(TextRoom::data()), nullptr),
        mirk_platform_document_free);
    require(document != nullptr, "XML of the library is not well-formed");
    return document;
}

template <class Plain>
auto reading_xml(std::shared_ptr<Sample<Plain>> s) {
    using Ops = typename Sample<Plain>::Ops;
    const auto read = [s, document = document_of(s)] {
        auto *target = Ops::create(s->handle, context_id);
        char message[256];
        Ops::from_xml(s->handle, context_id, "//o", document.get(), target, &s->err, message, sizeof message);
        return target;
    };
    auto *target = read();
    require(s->err == 0 && Ops::compare(target, s->object) == 0, "XML does not come back as it went");
    Ops::destroy(s->handle, context_id, target);
    return [s, read] { Ops::destroy(s->handle, context_id, read()); };
}

}  // namespace tarn::bench
