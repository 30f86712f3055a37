// Candidates for the last word of a command line.
#include <algorithm>

#include "tools/tarn/commands/command_line.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/instances.h"
#include "tools/tarn/support/names.h"

namespace tarn::tool {

namespace {

class Candidates {
public:
    // `prefix` is the part of the word that precedes the completed part.
    Candidates(std::string word, std::string prefix) : word_(std::move(word)), prefix_(std::move(prefix)) {}

    void add(std::string_view name, std::string_view meaning) {
        const std::string whole = prefix_ + std::string(name);
        if (whole.starts_with(word_)) text_ += whole + (meaning.empty() ? "" : "\t" + std::string(meaning)) + "\n";
    }
    // Short names, or full names if the word begins like one.
    void add(const std::vector<Named> &names, const std::string &suffix = "") {
        const bool in_full = word_.substr(prefix_.size()).starts_with("lumo_");
        for (const Named &n : names) {
            add((in_full ? std::string(n.name) : short_name(n.name)) + suffix, n.meaning);
        }
    }
    void add_files() { text_ += ":files\n"; }
    const std::string &text() const { return text_; }

private:
    std::string word_, prefix_, text_;
};

const CLI::Option *option_named(const CLI::App &command, const std::string &word) {
    const std::string name = word.substr(0, word.find('='));
    for (const CLI::Option *option : options_of(command)) {
        if (option->check_name(name)) return option;
    }
    return nullptr;
}

std::string members(const std::string &word) {
    const std::string path = word.substr(0, word.rfind('.'));
    Candidates candidates(word, path + ".");
    const Target target = target_of(path);
    if (target && target.nested() != nullptr) {
        for (const schema::Member &m : target.nested()->members) candidates.add(m.name, m.meaning);
    }
    return candidates.text();
}

// Of the rows of a record, the last of the columns in the word, which commas separate.
std::string columns(const std::string &record, const std::string &word, const std::string &prefix) {
    Candidates candidates(word, word.substr(0, std::max(prefix.size(), word.rfind(',') + 1)));
    try {
        const Instances instances(*table_named(record).record);
        for (const RowColumn &c : instances.columns()) candidates.add(c.name, c.member->meaning);
    } catch (const Failure &) {
        // There is no such record.
    }
    return candidates.text();
}

// `first` is the first positional argument.
std::string values(const CLI::Option &option, const std::string &word, const std::string &prefix,
                   const std::string &first) {
    Candidates candidates(word, prefix);
    const std::string kind = word_of(option);
    if (const auto choices = choices_of(option); !choices.empty()) {
        for (const std::string &choice : choices) candidates.add(choice, "");
    } else if (kind == words::bundle) {
        candidates.add(bundle_names());
    } else if (kind == words::bundle_or_message) {
        candidates.add(bundle_names());
        candidates.add(message_names());
    } else if (kind == words::columns) {
        return columns(first, word, prefix);
    } else if (kind == words::record) {
        candidates.add(record_names());
    } else if (kind == words::type) {
        if (word.find('.') != std::string::npos) return members(word);
        candidates.add(type_names());
    } else if (kind == words::bundle_file && word.find('=') == std::string::npos) {
        candidates.add(bundle_names(), "=");
    } else if (kind.starts_with(words::file) || kind == words::bundle_file) {
        candidates.add_files();
    }
    return candidates.text();
}

}  // namespace

std::string completions(const CLI::App &app, const std::vector<std::string> &words) {
    const CLI::App *command = nullptr;
    const CLI::Option *pending = nullptr;  // the option whose value comes next
    std::size_t positionals = 0;
    std::string first;  // of the positional arguments
    bool options_end = false;
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        const std::string &word = words[i];
        if (pending != nullptr) {
            pending = nullptr;
        } else if (!options_end && word == "--") {
            options_end = true;
        } else if (!options_end && word.size() > 1 && word.front() == '-') {
            const CLI::Option *option = option_named(command != nullptr ? *command : app, word);
            const bool has_value = word.find('=') != std::string::npos;
            if (option != nullptr && takes_value(*option) && !has_value) pending = option;
        } else if (command == nullptr) {
            for (const CLI::App *candidate : commands_of(app)) {
                if (candidate->get_name() == word) command = candidate;
            }
            if (command == nullptr) return {};
        } else {
            if (positionals++ == 0) first = word;
        }
    }

    const std::string &word = words.empty() ? "" : words.back();
    const CLI::App &here = command != nullptr ? *command : app;
    if (pending != nullptr) return values(*pending, word, "", first);
    if (!options_end && word.starts_with('-')) {
        const std::size_t equals = word.find('=');
        if (equals != std::string::npos) {
            const CLI::Option *option = option_named(here, word);
            return option != nullptr ? values(*option, word, word.substr(0, equals + 1), first) : std::string();
        }
        Candidates candidates(word, "");
        for (const CLI::Option *option : options_of(here)) {
            for (const std::string &name : option->get_lnames()) candidates.add("--" + name, option->get_description());
        }
        return candidates.text();
    }
    if (command == nullptr) {
        Candidates candidates(word, "");
        for (const CLI::App *c : commands_of(app)) candidates.add(c->get_name(), c->get_description());
        return candidates.text();
    }
    const auto all = positionals_of(here);
    if (all.empty()) return {};
    const CLI::Option &last = *all.back();
    if (positionals >= all.size() && last.get_items_expected_max() == 1) return {};
    return values(*all[std::min(positionals, all.size() - 1)], word, "", first);
}

}  // namespace tarn::tool
