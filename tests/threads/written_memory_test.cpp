// Which memory a thread writes while it works with a handle of its own. All memory that existed before the thread is
// write-protected meanwhile, which includes the data of all libraries: a write is a fault, which is recorded and
// allowed. What is never written is in no cache line that moves from one processor to another, and holds no lock that
// was taken.
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "bridge/bridge.h"
#include "mirk_platform.h"

namespace {

using bridge::id;
using bridge::Instance;
using kit::Handle;
using kit::Tracking;
using reference::Bytes;

// Other processors tell the address of a fault, this one only its page.
#ifdef __s390x__
constexpr bool faults_have_addresses = false;
#else
constexpr bool faults_have_addresses = true;
#endif

constexpr std::uintptr_t cache_line = 64;
const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));

struct Range {
    std::uintptr_t first, last;  // the last is not in it

    bool has(std::uintptr_t address) const { return first <= address && address < last; }
};

std::vector<Range> writable_ranges() {
    std::vector<Range> ranges;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        Range range{};
        char access[5] = {};
        if (std::sscanf(line.c_str(), "%lx-%lx %4s", &range.first, &range.last, access) == 3 &&
            std::string_view(access) == "rw-p") {
            ranges.push_back(range);
        }
    }
    return ranges;
}

// In the memory of the thread that works.
struct Faults {
    std::array<std::uintptr_t, 256> addresses{};  // the first in each page
    std::size_t n = 0;
};
thread_local Faults faults;

void record_fault(int, siginfo_t *info, void *) {
    const auto address = reinterpret_cast<std::uintptr_t>(info->si_addr);
    auto *const of_page = reinterpret_cast<void *>(address / page * page);
    if (faults.n == faults.addresses.size() || mprotect(of_page, page, PROT_READ | PROT_WRITE) != 0) std::abort();
    faults.addresses[faults.n++] = address;
}

void protect(const std::vector<Range> &ranges, int access) {
    for (const Range &range : ranges) {
        if (mprotect(reinterpret_cast<void *>(range.first), range.last - range.first, access) != 0) std::abort();
    }
}

// The addresses outside the thread's own memory that it writes: the first in each page.
std::vector<std::uintptr_t> written_by_a_thread(const kit::Options &options) {
    struct sigaction action {
    }, before{};
    action.sa_sigaction = record_fault;
    action.sa_flags = SA_SIGINFO;
    sigaction(SIGSEGV, &action, &before);
    reference::Generator generator(1, {.printable = true});
    const reference::Record value = generator.make("lumo_tarn_dp_tt_table_data");
    const bridge::RecordOperations &record = bridge::operations(value);
    std::vector<Range> others = writable_ranges();
    std::vector<std::uintptr_t> written;
    std::thread([&] {
        const Handle h(options);
        const Instance instance(h, value);
        Bytes frame = bridge::marshal(h, record, instance.get()).bytes;
        const auto size = static_cast<std::uint32_t>(frame.size());
        frame.push_back(0);  // the guard byte
        bool works = true;
        const auto work = [&] {
            std::uint32_t err = 0;
            void *const read = record.create(h, id);
            works = works && record.unmarshal(h, id, frame.data(), read, size, 0, &err) == size;
            works = works && record.marshal(h, id, frame.data(), read, static_cast<std::int32_t>(size), &err) == size;
            works = works && err == 0;
            record.destroy(h, id, read);
            const Instance built(h, value);
        };
        work();  // makes private types, and binds the functions of the libraries
        // A stack and a heap of an earlier thread may be used again.
        std::erase_if(others, [&](const Range &range) {
            return range.has(reinterpret_cast<std::uintptr_t>(&works)) ||
                   range.has(reinterpret_cast<std::uintptr_t>(h.get()));
        });
        protect(others, PROT_READ);
        work();
        protect(others, PROT_READ | PROT_WRITE);
        EXPECT_TRUE(works);
        written.assign(faults.addresses.begin(), faults.addresses.begin() + static_cast<std::ptrdiff_t>(faults.n));
    }).join();
    sigaction(SIGSEGV, &before, nullptr);
    return written;
}

bool is_counter_of_a_type(std::uintptr_t address) {
    const auto is_of = [&](const mirk_type_info *type) {
        const auto line = reinterpret_cast<std::uintptr_t>(type->variant_info->entries);
        const bool has = faults_have_addresses ? Range{line, line + sizeof(mirk_variant_entry)}.has(address)
                                               : line / page == address / page;
        return has && line % cache_line == 0;
    };
    for (const auto &record : tarn::reflect::records()) {
        if (is_of(record.type)) return true;
    }
    for (const auto &enumeration : tarn::reflect::enumerations()) {
        if (is_of(enumeration.type)) return true;
    }
    return is_of(&_mirk_boolean_type_info_internal) || is_of(&_ip_address_type_info_internal);
}

class WrittenMemory : public testing::TestWithParam<Tracking> {};

TEST_P(WrittenMemory, AThreadWithPrivateTypesWritesItsOwnOnly) {
    const std::vector<std::uintptr_t> written = written_by_a_thread({.tracking = GetParam(), .private_types = 1});
    EXPECT_EQ(written.size(), 0u);
}

TEST_P(WrittenMemory, AThreadWithSharedTypesAlsoWritesTheirCounters) {
    const std::vector<std::uintptr_t> written = written_by_a_thread({.tracking = GetParam()});
    EXPECT_GT(written.size(), 0u);
    for (const std::uintptr_t address : written) EXPECT_TRUE(is_counter_of_a_type(address)) << std::hex << address;
}

INSTANTIATE_TEST_SUITE_P(, WrittenMemory, testing::Values(Tracking::off, Tracking::on),
                         [](const auto &info) { return info.param == Tracking::on ? "Tracking" : "NotTracking"; });

}  // namespace
