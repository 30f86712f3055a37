// Numeric members of records as series: a number for each instance of the record, which the keys of the record and of
// those around it tell apart.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/tarn/formats/instances.h"

namespace tarn::fleet {

class NumericMember {
public:
    // "dp-tc.proto", "tc.appl.id". Throws a Failure if there is no such record or member, or if it is not a number.
    static NumericMember named(std::string_view name);

    NumericMember(const NumericMember &) = delete;
    NumericMember(NumericMember &&) = default;

    std::string name() const { return table_->name + "." + column_->name; }
    // True if such a message can contain it.
    bool is_in(const schema::Message &message) const;
    std::string_view meaning() const { return column_->member->meaning; }
    // The columns that identify an instance in an answer: "dp_tt_table.lumo_num", "dp_tc.id". The last one is "path" if
    // keys are not enough.
    const std::vector<std::string> &labels() const { return labels_; }

    using Visit = std::function<void(std::span<const std::string> labels, std::uint64_t number)>;
    // Values of labels are printable; that of a record which is not around this instance is empty.
    void visit(const tool::Entry &message, const Visit &visit) const;

private:
    NumericMember(const tool::Table &table, const tool::Column &column);

    const tool::Table *table_;
    const tool::Column *column_;
    tool::Instances instances_;
    std::vector<std::string> labels_;
    std::vector<const tool::RowColumn *> identifying_;
    const tool::RowColumn *value_ = nullptr;
};

// The names and meanings of those that such a message can contain.
std::vector<std::pair<std::string, std::string_view>> numeric_members(const schema::Message &message);

}  // namespace tarn::fleet
