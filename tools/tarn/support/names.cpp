#include "tools/tarn/support/names.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <utility>

#include "tools/tarn/support/failure.h"

namespace tarn::tool {

namespace {

std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

bool matches(std::string_view given, std::string_view name) { return given == name || given == short_form(name); }

[[noreturn]] void unknown(std::string_view what, std::string_view given, const std::vector<std::string> &candidates) {
    throw Failure(Exit::input, "there is no " + std::string(what) + " \"" + std::string(given) + "\"" +
                                   suggestion(given, candidates));
}

}  // namespace

std::string_view word(Control control) {
    constexpr std::string_view words[] = {"start", "abort", "commit"};
    return words[static_cast<std::size_t>(control)];
}

const reflect::MessageOperations &operations_of(const reflect::BundleOperations &bundle, Control control) {
    switch (control) {
        case Control::start:
            return bundle.start;
        case Control::abort:
            return bundle.abort;
        case Control::commit:
            break;
    }
    return bundle.commit;
}

std::optional<Identity> identify(const std::uint8_t *luid) {
    const auto has = [luid](const reflect::MessageOperations &o) { return std::memcmp(o.luid, luid, 16) == 0; };
    for (const reflect::MessageOperations &o : reflect::messages()) {
        if (has(o)) return Identity{&o};
    }
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        for (const Control control : {Control::start, Control::abort, Control::commit}) {
            if (has(operations_of(b, control))) return Identity{&operations_of(b, control), &b, control};
        }
    }
    return std::nullopt;
}

std::string luid_text(const std::uint8_t *luid) {
    std::string text;
    for (int i = 0; i < 16; ++i) {
        text += "0123456789abcdef"[luid[i] >> 4];
        text += "0123456789abcdef"[luid[i] & 15];
    }
    return text;
}

std::string short_form(std::string_view name) {
    constexpr std::string_view front = "lumo_tarn_";
    if (name.substr(0, front.size()) == front) name.remove_prefix(front.size());
    for (const std::string_view back : {"_rsp", "_msg"}) {
        if (name.size() > back.size() && name.substr(name.size() - back.size()) == back) {
            name.remove_suffix(back.size());
        }
    }
    std::string text(name);
    std::replace(text.begin(), text.end(), '_', '-');
    return text;
}

const reflect::BundleOperations &bundle_named(std::string_view name) {
    std::vector<std::string> candidates;
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        if (matches(name, b.bundle->name)) return b;
        candidates.push_back(short_form(b.bundle->name));
        candidates.emplace_back(b.bundle->name);
    }
    unknown("bundle", name, candidates);
}

const reflect::MessageOperations &message_named(std::string_view name) {
    std::vector<std::string> candidates;
    for (const reflect::MessageOperations &o : reflect::messages()) {
        if (matches(name, o.name)) return o;
        candidates.push_back(short_form(o.name));
        candidates.emplace_back(o.name);
    }
    unknown("message", name, candidates);
}

const reflect::BundleOperations &bundle_of(const reflect::MessageOperations &message) {
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        if (admits(b, message)) return b;
    }
    throw Failure(Exit::input, std::string(message.name) + " belongs to no bundle");
}

bool admits(const reflect::BundleOperations &bundle, const reflect::MessageOperations &message) {
    return &bundle.bundle->message == message.message;
}

std::string suggestion(std::string_view word, const std::vector<std::string> &candidates) {
    const std::string *nearest = nullptr;
    std::size_t least = word.size() / 3 + 2;
    for (const std::string &candidate : candidates) {
        const std::size_t steps = distance(word, candidate);
        if (steps < least) {
            least = steps;
            nearest = &candidate;
        }
    }
    return nearest != nullptr ? "; did you mean " + *nearest + "?" : std::string();
}

}  // namespace tarn::tool
