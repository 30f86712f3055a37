#include "tools/tarn/support/random_payload.h"

#include <algorithm>

#include "schema/frame.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/instance.h"

namespace tarn::tool {

namespace {

using schema::Category;
using schema::Member;
using schema::Record;
using schema::Role;

bool has(const Member &m, std::string_view part) { return m.name.find(part) != std::string_view::npos; }

bool ends(const Member &m, std::string_view part) {
    return m.name.size() >= part.size() && m.name.substr(m.name.size() - part.size()) == part;
}

bool has_fixed_length(const Member &m) {
    return m.name == "lumo_data" || m.name == "complex_data" || m.name == "lumo_info";
}

std::string hex(std::uint64_t number) {
    std::string digits;
    for (; number != 0; number /= 16) digits.insert(digits.begin(), "0123456789abcdef"[number % 16]);
    return digits;
}

// What an exported function reports here can only be that memory is missing.
void require_done(std::uint32_t err) {
    if (err != 0) throw Failure(Exit::environment, "a random message: " + error_text(err));
}

}  // namespace

bool RandomPayload::can_grow(const Record &record) {
    return std::any_of(record.members.begin(), record.members.end(), [](const Member &m) {
        return (category(m.kind) == Category::array && !has_fixed_length(m)) ||
               (m.record != nullptr && can_grow(*m.record));
    });
}

// In the catalogue, records follow those that they contain.
std::vector<RandomPayload::Plan> RandomPayload::make_plans() {
    std::vector<Plan> plans;
    plans.reserve(reflect::records().size());
    for (const reflect::RecordOperations &operations : reflect::records()) {
        Plan plan{operations.record, {}, schema::record_head_size};
        std::uint64_t limit = 0;
        for (const reflect::MemberOperations &m : operations.members) {
            const Member &member = *m.member;
            const schema::KindFacts &kind = facts(member.kind);
            plan.size += kind.wire;
            plan.states += kind.own_states;
            if (member.role != Role::value) {
                limit = greatest(member.kind);
                continue;
            }
            Step step{&m};
            if (kind.category != Category::array) ++plan.states;
            if (kind.category == Category::address) plan.has_address = true;
            if (kind.category == Category::array) step.limit = limit;
            if (kind.category == Category::integer) {
                step.limit = greatest(member.kind);
                step.draw = draw_of(*operations.record, member);
            }
            if (member.record != nullptr) {
                step.nested = &*std::find_if(plans.begin(), plans.end(),
                                             [&](const Plan &p) { return p.record == member.record; });
            }
            step.is_fixed = has_fixed_length(member);
            plan.steps.push_back(step);
        }
        plans.push_back(std::move(plan));
    }
    return plans;
}

const RandomPayload::Plan &RandomPayload::plan_of(const Record &record) {
    static const std::vector<Plan> plans = make_plans();
    return *std::find_if(plans.begin(), plans.end(), [&](const Plan &p) { return p.record == &record; });
}

// The bits behind its prefix length are zero. Each statement draws at most one number, because compilers evaluate
// operands in different orders.
RandomPayload::Network RandomPayload::network() {
    constexpr unsigned v4_lengths[] = {8, 16, 24, 24, 30, 32}, v6_lengths[] = {32, 48, 56, 64, 64, 128};
    Network network{v4_, (v4_ ? v4_lengths : v6_lengths)[below(6)], {}};
    if (v4_) {
        network.groups[0] = below(1U << 24);
        return network;
    }
    network.groups[0] = 1 + below(0xffff);
    network.groups[1] = (1 + below(0xff)) << 8;
    network.groups[2] = 1 + below(0xff);
    network.groups[3] = 1 + below(0xffff);
    return network;
}

std::string RandomPayload::Network::text() const {
    std::string text;
    if (is_v4) {
        const std::uint64_t bits = (std::uint64_t{10} << 24 | groups[0]) & ~std::uint64_t{0} << (32 - length);
        for (unsigned shift = 32; shift != 0; shift -= 8) {
            text += (text.empty() ? "" : ".") + std::to_string(bits >> (shift - 8) & 255);
        }
        return text + "/" + std::to_string(length);
    }
    // Groups without a leading zero are in canonical form, so they read back as written.
    text = "2001:db8:";
    if (length >= 48) text += hex(groups[0]) + ":";
    if (length >= 56) text += hex(length == 56 ? groups[1] : groups[1] | groups[2]) + ":";
    return text + ":" + (length == 128 ? hex(groups[3]) : "") + "/" + std::to_string(length);
}

std::string RandomPayload::name(const Member &m) {
    constexpr const char *protocols[] = {"http", "dns", "rtp", "ssh", "smtp", "quic", "sip", "ntp"};
    if (has(m, "intf")) {
        std::string text = "TenGigE0/";
        text += std::to_string(below(8)) + "/";
        text += std::to_string(below(4)) + "/";
        return text + std::to_string(below(32));
    }
    const std::string word = protocols[below(8)];
    return has(m, "sub") ? word + "-video" : has(m, "appl") ? word + "-" + std::to_string(index_) : word;
}

RandomPayload::Draw RandomPayload::draw_of(const Record &record, const Member &m) {
    using Self = RandomPayload;
    using Number = std::uint64_t;
    if (m.name == "lumo_num" || m.name == "complex_num") return [](Self &r, Number) -> Number { return r.index_; };
    if (m.name == "num_lumos" || m.name == "num_complexes") return [](Self &, Number) -> Number { return 2; };
    if (ends(m, "_ptr") || ends(m, "_addr") || ends(m, "_h") || ends(m, "_p") || ends(m, "_next") || has(m, "chan")) {
        return [](Self &r, Number limit) { return (0x7f0000000000 + r.below(1U << 28) * 16) & limit; };
    }
    if (m.name == "proto" || m.name == "protocol") {
        return [](Self &r, Number) -> Number { return r.below(2) == 0 ? 6 : 17; };
    }
    if (m.name == "tos") return [](Self &r, Number) { return r.below(64) * 4; };
    if (ends(m, "port_min")) return [](Self &r, Number) { return r.port_min_ = 1024 + r.below(30000); };
    if (ends(m, "port_max")) return [](Self &r, Number) { return r.port_min_ + r.below(1000); };
    if (ends(m, "_opr")) return [](Self &r, Number) { return r.below(5); };
    if (ends(m, "enabled") || ends(m, "initialized") || ends(m, "running") || ends(m, "_set") || ends(m, "init")) {
        return [](Self &r, Number) { return r.below(2); };
    }
    if (m.name == "size" || ends(m, "_size")) {
        return [](Self &r, Number limit) { return std::min(limit, Number{64} << r.below(10)); };
    }
    if (m.name == "duration") return [](Self &r, Number) { return r.duration_ = 60 * (1 + r.below(1440)); };
    if (m.name == "start_time") return [](Self &r, Number) { return r.start_ = 1700000000 + r.below(100000); };
    if (m.name == "end_time") return [](Self &r, Number) { return r.start_ + r.duration_; };
    if (m.name == "id" || ends(m, "_id"))
        return [](Self &r, Number limit) { return (1000 + Number{r.index_}) & limit; };
    if (ends(m, "type") || m.name == "state") return [](Self &r, Number) { return r.below(4); };
    if (m.name == "min_mask") return [](Self &r, Number) { return 8 + r.below(25); };
    if (m.name == "key_mask") return [](Self &r, Number limit) { return limit << r.below(25) & limit; };
    if (has(m, "flags")) return [](Self &r, Number) { return r.below(256); };
    if (m.name == "total_prefixes" && record.members.size() > 1) {
        return [](Self &r, Number) { return r.elements_ + r.below(100); };
    }
    return [](Self &r, Number limit) { return r.below(std::min<Number>(limit, 999) + 1); };
}

std::uint64_t RandomPayload::fill(const Plan &plan, void *instance) {
    const bool chooses_family = plan.has_address && !has_family_;
    if (chooses_family) v4_ = below(3) != 0;
    has_family_ |= chooses_family;
    std::uint64_t size = plan.size + (handle_.tracked() ? plan.states : 0);
    for (const Step &step : plan.steps) {
        size += fill(step, instance);
        if (instance != nullptr && handle_.tracked()) {
            std::uint32_t err = 0;
            step.operations->state_flag_set(handle_.get(), context_id, instance, 0, &err);
            require_done(err);
        }
    }
    if (chooses_family) {
        has_family_ = false;
        looked_up_.reset();
    }
    return size;
}

// Returns the part of the size that the plan does not contain.
std::uint64_t RandomPayload::fill(const Step &step, void *instance) {
    const schema::Member &m = *step.operations->member;
    switch (category(m.kind)) {
        case Category::integer:
            set_value(step, instance, step.draw(*this, step.limit));
            return 0;
        case Category::boolean:
            set_value(step, instance, ends(m, "_is_valid") || below(4) != 0 ? 1 : 0);
            return 0;
        case Category::enumeration:
            set_value(step, instance, below(m.enumeration->enumerators.size()));
            return 0;
        case Category::address:
            fill_address(step, instance);
            return 0;
        case Category::record:
            return fill(*step.nested, embedded(step, instance));
        case Category::string: {
            const std::string text = name(m);
            if (instance != nullptr) {
                std::uint32_t err = 0;
                step.operations->text_set(handle_.get(), context_id, instance, text.c_str(),
                                          static_cast<std::uint32_t>(text.size()), &err);
                require_done(err);
            }
            return text.size();
        }
        case Category::array:
            break;
    }
    return fill_array(step, instance);
}

void RandomPayload::set_value(const Step &step, void *instance, std::uint64_t value) {
    if (instance == nullptr) return;
    std::uint32_t err = 0;
    step.operations->set_value(handle_.get(), context_id, instance, value, &err);
    require_done(err);
}

void *RandomPayload::embedded(const Step &step, void *instance) {
    if (instance == nullptr) return nullptr;
    std::uint32_t err = 0;
    void *object = step.operations->get(handle_.get(), context_id, instance, &err);
    require_done(err);
    return object;
}

void RandomPayload::fill_address(const Step &step, void *instance) {
    const std::string_view name = step.operations->member->name;
    const Network chosen = name == "prefix" && looked_up_ ? *looked_up_ : network();
    if (name == "lookup_prefix") looked_up_ = chosen;
    if (instance == nullptr) return;
    auto *const address = static_cast<ip_address *>(embedded(step, instance));
    set_address(address, chosen.text());
    if (std::uint8_t *state = address_state(handle_, address)) std::fill_n(state, 7, std::uint8_t{0});
}

std::uint64_t RandomPayload::fill_array(const Step &step, void *instance) {
    // A list inside a list is shorter; otherwise the size would grow with the square of `elements`.
    const std::uint32_t wanted = depth_ == 0 ? elements_ : elements_ / 4 + 1;
    const auto count = step.is_fixed ? 2 : static_cast<std::uint32_t>(std::min<std::uint64_t>(wanted, step.limit));
    if (count == 0) return 0;
    const reflect::MemberOperations &m = *step.operations;
    if (instance != nullptr) require_done(lengthen(handle_, m, instance, count));
    const bool is_nesting = count > 2 || (count == 2 && m.member->name == "exmem");
    const std::uint32_t outer = index_;
    depth_ += is_nesting ? 1 : 0;
    std::uint64_t size = handle_.tracked() ? 1 + std::uint64_t{count} : 0;
    for (index_ = 0; index_ < count; ++index_) {
        if (instance == nullptr) {
            size += fill(*step.nested, nullptr);
            continue;
        }
        std::uint32_t err = 0;
        void *const element = m.element_get(handle_.get(), context_id, instance, index_, &err);
        require_done(err);
        size += fill(*step.nested, element);
        if (handle_.tracked()) m.element_state_flag_set(handle_.get(), context_id, instance, index_, 0, &err);
        require_done(err);
    }
    depth_ -= is_nesting ? 1 : 0;
    index_ = outer;
    return size;
}

}  // namespace tarn::tool
