// Redirects an import of the loaded library to another function during its lifetime. Only calls by this library are
// redirected.
#pragma once

#include <elf.h>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <string>

namespace trust {

class Import {
public:
    Import(const char *library, const char *name, void *replacement) : library_(library), name_(name) {
        dl_iterate_phdr(find, this);
        if (slot_ != nullptr) exchange(replacement);
    }
    ~Import() {
        if (slot_ != nullptr) exchange(former_);
    }
    Import(const Import &) = delete;
    Import &operator=(const Import &) = delete;

    bool found() const { return slot_ != nullptr; }

private:
    static int find(dl_phdr_info *info, std::size_t, void *user) {
        auto *self = static_cast<Import *>(user);
        if (std::strstr(info->dlpi_name, self->library_) == nullptr) return 0;
        const ElfW(Dyn) *dynamic = nullptr;
        for (int i = 0; i < info->dlpi_phnum; ++i) {
            if (info->dlpi_phdr[i].p_type == PT_DYNAMIC) {
                dynamic = reinterpret_cast<const ElfW(Dyn) *>(info->dlpi_addr + info->dlpi_phdr[i].p_vaddr);
            }
        }
        const ElfW(Sym) *symbols = nullptr;
        const char *strings = nullptr;
        struct {
            const ElfW(Rela) *at = nullptr;
            std::size_t bytes = 0;
        } tables[2];
        for (; dynamic != nullptr && dynamic->d_tag != DT_NULL; ++dynamic) {
            // On some processors, such as riscv64, the loader leaves the addresses relative to the library.
            auto address = dynamic->d_un.d_ptr;
            if (address < info->dlpi_addr) address += info->dlpi_addr;
            switch (dynamic->d_tag) {
                case DT_SYMTAB:
                    symbols = reinterpret_cast<const ElfW(Sym) *>(address);
                    break;
                case DT_STRTAB:
                    strings = reinterpret_cast<const char *>(address);
                    break;
                case DT_JMPREL:
                    tables[0].at = reinterpret_cast<const ElfW(Rela) *>(address);
                    break;
                case DT_PLTRELSZ:
                    tables[0].bytes = dynamic->d_un.d_val;
                    break;
                case DT_RELA:
                    tables[1].at = reinterpret_cast<const ElfW(Rela) *>(address);
                    break;
                case DT_RELASZ:
                    tables[1].bytes = dynamic->d_un.d_val;
                    break;
                default:
                    break;
            }
        }
        for (const auto &table : tables) {
            for (std::size_t i = 0; i < table.bytes / sizeof(ElfW(Rela)); ++i) {
                const std::size_t symbol = ELF64_R_SYM(table.at[i].r_info);
                if (symbol == 0 || std::strcmp(strings + symbols[symbol].st_name, self->name_) != 0) continue;
                self->slot_ = reinterpret_cast<void **>(info->dlpi_addr + table.at[i].r_offset);
                return 1;
            }
        }
        return 0;
    }

    // The page of the slot may have been made read-only after loading.
    void exchange(void *function) {
        const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
        const auto start = reinterpret_cast<std::uintptr_t>(slot_) / page * page;
        mprotect(reinterpret_cast<void *>(start), page, PROT_READ | PROT_WRITE);
        if (former_ == nullptr) former_ = *slot_;
        *slot_ = function;
    }

    const char *library_, *name_;
    void **slot_ = nullptr;
    void *former_ = nullptr;
};

}  // namespace trust
