// Calls on one handle, chosen by the bytes of an input.
#pragma once

#include <array>
#include <string>
#include <utility>

#include "fuzz.h"

namespace fuzz {

class Machine {
public:
    // With failures, the input may also make allocations fail.
    Machine(Input &input, const Choice &choice, bool failures)
        : input_(input), handle_(options(choice)), failures_(failures) {}
    ~Machine();
    Machine(const Machine &) = delete;
    Machine &operator=(const Machine &) = delete;

    // Runs until the input is consumed.
    void run();

private:
    struct Object {
        const RecordOperations *record = nullptr;
        void *instance = nullptr;
    };

    Object &slot() { return slots_[input_.u8() % slots_.size()]; }
    // An object of a slot, or one inside it.
    Object object();
    // An object of this type, at any depth.
    Object object_of(const RecordOperations &record);
    const tarn::reflect::MemberOperations &member(const RecordOperations &record);
    bool is_live(const void *block);
    std::uint32_t index();

    void step();
    void create();
    void destroy();
    void set_value();
    void set_text();
    void set_element();
    void states();
    void whole();
    void assign();
    void copy();
    void frame();
    void received();
    void references();
    void text();
    void document();
    void message();
    void bundle();
    void domain();
    void memory();
    void look();

    Input &input_;
    Handle handle_;
    bool failures_;
    std::uint32_t err_ = 0;
    std::array<Object, 5> slots_{};
    std::pair<const MessageOperations *, void *> message_{};
};

}  // namespace fuzz
