// The surface of the library as data: each row is one operation of a family, crossed with the schema by the writers.
#pragma once

#include <span>
#include <string_view>

namespace tarn::generate {

// To what a row applies; each of them gives one exported name.
enum class Applies {
    record,
    integer,
    boolean,
    choice,  // a member that is an enumeration
    address,
    nested,
    string,
    length,
    count,
    array,
    enumeration,
    message,
    control,
    bundle,
    module,
};

// A prototype holds placeholders: {r} record, {f} member, {n} the member's record or enumeration, {T} integer type of
// its width, {e} enumeration, {m} message, {b} bundle, {k} kind of a control message; H, I and E stand for the handle,
// ctx_id and err. An entry is what the export calls, with {R}, {F}, {E}, {M}, {B} and {K} for the schema's own objects.
struct Row {
    std::string_view unit;    // the file of the library that holds the algorithm, and now the export
    std::string_view family;  // heading in the public header, explained in families.h
    Applies applies;
    std::string_view prototype;
    std::string_view entry;
    bool weak = false;
};

std::span<const Row> rows();

std::string_view name_of(const Row &row);         // of the operation, with placeholders
std::string_view description_of(const Row &row);  // a sentence or a few, with placeholders

// What other units call: instantiated in the unit that defines it.
struct Instantiation {
    std::string_view unit;
    Applies applies;
    std::string_view type;
};

std::span<const Instantiation> instantiations();

}  // namespace tarn::generate
