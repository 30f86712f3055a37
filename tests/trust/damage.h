// Damaged input: how much of it a run tries, and the roots that it is read as.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/bridge.h"
#include "kit/guarded.h"
#include "lumo_ui_tarn.h"
#include "mirk_platform_testing.h"
#include "reference/codec.h"
#include "rich.h"

namespace trust {

using bridge::id;
using bridge::RecordOperations;
using kit::Tracking;
using reference::Bytes;
using tarn::reflect::EnumerationOperations;
using tarn::reflect::MessageOperations;

// All of it with TARN_DAMAGE=whole; otherwise one case in so many, chosen by TARN_SEED, which defaults to 1.
class Share {
public:
    explicit Share(std::uint64_t one_in) : one_in_(is_whole() ? 1 : one_in), random_(seed()) {}

    bool takes() { return random_() % one_in_ == 0; }

    static bool is_whole() {
        const char *which = std::getenv("TARN_DAMAGE");
        return which != nullptr && std::string_view(which) == "whole";
    }

private:
    static std::uint64_t seed() {
        const char *seed = std::getenv("TARN_SEED");
        return seed != nullptr ? std::strtoull(seed, nullptr, 10) : 1;
    }

    std::uint64_t one_in_;
    std::mt19937_64 random_;
};

// A record or an enumeration on its own, or a message with its payload.
struct Root {
    std::string name;
    const RecordOperations *record = nullptr;
    const EnumerationOperations *enumeration = nullptr;
    const MessageOperations *message = nullptr;

    // The record in the frame; null for an enumeration.
    const RecordOperations *payload() const {
        return message != nullptr ? &tarn::reflect::operations_of(message->message->payload) : record;
    }
};
const std::vector<Root> &roots();

Bytes frame_of(const Root &root, bool tracked);
std::string document_of(const Root &root);

// A handle with so little memory that counts cost little. All blocks must be released when it closes.
std::unique_ptr<kit::Handle> small_handle(Tracking tracking, bool private_types = false);

// Prints, renders, writes, measures, compares and hashes, into buffers that end at an unreadable page. Null is ignored.
void use(mirk_handle *h, const Root &root, void *instance, std::int32_t size);

// One instance of a root, to read into.
class Specimen {
public:
    Specimen(mirk_handle *h, const Root &root);
    ~Specimen() { end(); }
    Specimen(const Specimen &) = delete;
    Specimen &operator=(const Specimen &) = delete;

    // From a buffer that ends, after its guard byte, at an unreadable page.
    std::uint32_t read(const Bytes &frame, std::uint32_t reuse = 0);
    std::uint32_t read_document(void *document);
    void use(std::int32_t size) { trust::use(h_, root_, instance_, size); }
    void end();

private:
    mirk_handle *h_;
    const Root &root_;
    void *instance_ = nullptr;
};

inline std::uint8_t *guarded(const Bytes &bytes) {
    static kit::GuardedMemory memory(std::size_t{1} << 20);
    return memory.put(bytes.data(), bytes.size());
}

}  // namespace trust
