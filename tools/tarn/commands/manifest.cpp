// tarn manifest: prints the section .orrin of a library file: its list of types and its build stamp.
#include <elf.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <memory>
#include <nlohmann/json.hpp>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

struct ManifestOptions {
    std::string file;
    bool json = false;
};

// An ELF file of either byte order, on hosts of either. Reads nothing beyond the end of the file, even if its tables
// are damaged.
class ElfFile {
public:
    ElfFile(std::string_view bytes, const std::string &path) : bytes_(bytes), path_(path) {
        if (bytes.substr(0, SELFMAG) != ELFMAG) fail("not an ELF file");
        if (bytes.size() < EI_NIDENT) fail("the file header is beyond the end of the file");
        if (bytes[EI_DATA] != ELFDATA2LSB && bytes[EI_DATA] != ELFDATA2MSB) fail("an ELF file of unknown byte order");
        is_foreign_ = (bytes[EI_DATA] == ELFDATA2LSB) != (std::endian::native == std::endian::little);
    }

    std::string_view section(std::string_view name) const {
        if (bytes_[EI_CLASS] == ELFCLASS64) return find<Elf64_Ehdr, Elf64_Shdr>(name);
        if (bytes_[EI_CLASS] == ELFCLASS32) return find<Elf32_Ehdr, Elf32_Shdr>(name);
        fail("neither a 32-bit nor a 64-bit ELF file");
    }

private:
    [[noreturn]] void fail(const std::string &reason) const { throw Failure(Exit::input, path_ + ": " + reason); }

    std::string_view part(std::uint64_t offset, std::uint64_t size, const char *what) const {
        if (offset > bytes_.size() || size > bytes_.size() - offset) {
            fail(std::string(what) + " is beyond the end of the file");
        }
        return bytes_.substr(offset, size);
    }
    template <class T>
    T load(std::uint64_t offset, const char *what) const {
        T value;
        std::memcpy(&value, part(offset, sizeof value, what).data(), sizeof value);
        return value;
    }

    // A number of the file in the byte order of the host.
    template <class T>
    T native(T number) const {
        auto bytes = std::bit_cast<std::array<char, sizeof number>>(number);
        if (is_foreign_) std::reverse(bytes.begin(), bytes.end());
        return std::bit_cast<T>(bytes);
    }

    template <class File, class Section>
    std::string_view find(std::string_view name) const {
        const auto file = load<File>(0, "the file header");
        const auto header = [&](std::uint64_t index) {
            return load<Section>(native(file.e_shoff) + index * sizeof(Section), "a section header");
        };
        const auto content = [&](const Section &section, const char *what) {
            return part(native(section.sh_offset), native(section.sh_size), what);
        };
        if (file.e_shoff == 0) return {};
        const std::uint64_t count = file.e_shnum != 0 ? native(file.e_shnum) : native(header(0).sh_size);
        const std::uint64_t names_at =
            native(file.e_shstrndx) != SHN_XINDEX ? native(file.e_shstrndx) : native(header(0).sh_link);
        const std::string_view words = content(header(names_at), "the table of names");
        for (std::uint64_t i = 0; i < count; ++i) {
            const Section section = header(i);
            if (native(section.sh_name) >= words.size()) continue;
            // Not the whole name, since each may be as long as the file.
            const std::string_view word = words.substr(native(section.sh_name), name.size() + 1);
            if (word.substr(0, word.find('\0')) == name) return content(section, "the section");
        }
        return {};
    }

    std::string_view bytes_;
    const std::string &path_;
    bool is_foreign_ = false;
};

struct Block {
    std::uint32_t kind;
    std::string text;
};

std::uint32_t number_at(std::string_view bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<std::uint8_t>(bytes[at + i]);
    return value;
}

std::vector<Block> blocks_of(std::string_view section, const std::string &path) {
    std::vector<Block> blocks;
    for (std::size_t at = 0; at < section.size();) {
        const std::size_t left = section.size() - at;
        const std::uint32_t length = left >= 8 ? number_at(section, at) : 0;
        if (left < 8 || length == 0 || length > left - 8) {
            throw Failure(Exit::input, path + ": section .orrin is invalid at offset " + std::to_string(at));
        }
        blocks.push_back({number_at(section, at + 4), std::string(section.substr(at + 8, length - 1))});
        at += 8 + (std::size_t{length} + 3) / 4 * 4;
    }
    return blocks;
}

std::string block_kind(std::uint32_t kind) {
    return kind == 2 ? "schema list" : kind == 1 ? "build stamp" : "kind " + std::to_string(kind);
}

Exit run_manifest(const ManifestOptions &options) {
    const std::string content = read_file(options.file);
    const ElfFile file(content, options.file);
    const std::string_view section = file.section(".orrin");
    if (section.empty()) throw Failure(Exit::negative, options.file + ": no section .orrin");
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    std::string out;
    for (const Block &block : blocks_of(section, options.file)) {
        json.push_back({{"kind", block.kind}, {"meaning", block_kind(block.kind)}, {"text", block.text}});
        out += (out.empty() ? "" : "\n") + block_kind(block.kind) + ":\n" + block.text;
        if (!block.text.empty() && block.text.back() != '\n') out += "\n";
    }
    write_file("-", options.json ? json_text(json, 2) + "\n" : printable_output(out, Notation::text));
    return Exit::success;
}

}  // namespace

void add_manifest(CLI::App &app, Context &context) {
    auto options = std::make_shared<ManifestOptions>();
    CLI::App *command = app.add_subcommand("manifest", "Print the list of types and the build stamp in a library file");
    command->add_option("file", options->file, "ELF file")->type_name(words::file)->required();
    command->add_flag("--json", options->json, "Print JSON");
    command->footer(
        "The manifest is the ELF section .orrin: the schema list, with a line for each\n"
        "type, and the build stamp, which says who built the file and when. The exit code\n"
        "is 1 if the file has none.\n\n"
        "Examples:\n"
        "  tarn manifest build/release/liblumo_ui_tarn.so\n"
        "  tarn manifest liblumo_ui_tarn.so.1 --json");
    command->callback([options, &context] { context.exit = run_manifest(*options); });
}

}  // namespace tarn::tool
