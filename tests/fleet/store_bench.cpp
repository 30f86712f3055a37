// How many answers a second a store keeps, beside what its engine alone takes:  store_bench
//
// The engine alone has one table without further indexes, and gets rows with the same bytes in batches of the same
// size, through the same statements. All commits are durable.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "bus.h"
#include "fleet/store/batch.h"
#include "fleet/store/database.h"
#include "fleet/store/store.h"
#include "postgresql.h"

namespace {

using namespace tarn::fleet;
using tool_test::Directory;

constexpr int devices = 1000, answer_size = 1024;
constexpr char bundle[] = "lumo_tarn_dp_intf_rsp";
constexpr double enough_seconds = 2;

double seconds_since(std::chrono::steady_clock::time_point begin) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

// Bytes that no engine can compress.
std::string random_frames() {
    static std::mt19937_64 random(1);
    std::string bytes;
    while (bytes.size() < answer_size) {
        const std::uint64_t number = random();
        bytes.append(reinterpret_cast<const char *>(&number), sizeof number);
    }
    return bytes;
}

// Calls `put` with batches for some seconds, and returns the number of rows a second.
double rate(int batch, const std::function<void(int first)> &put) {
    put(0);
    const auto begin = std::chrono::steady_clock::now();
    int done = 0;
    do {
        done += batch;
        put(done);
    } while (seconds_since(begin) < enough_seconds);
    return done / seconds_since(begin);
}

double rate_of_engine(const std::string &where, int batch) {
    Database database(where, Access::write);
    database.prepare_for_writing();
    database.transact([&] {
        database.run("DROP TABLE IF EXISTS bare");
        database.run("CREATE TABLE bare (device_id BIGINT, bundle TEXT, asked BIGINT, frames " +
                     std::string(database.either("BLOB", "BYTEA")) + ")");
    });
    double result = 0;
    {
        const auto rows = Batch::insertion(database, "bare", 4);
        result = rate(batch, [&](int first) {
            database.transact([&] {
                for (int i = 0; i < batch; ++i) {
                    rows->integer((first + i) % devices).text(bundle).integer(first).bytes(random_frames());
                }
                rows->flush();
            });
        });
    }
    database.transact([&] { database.run("DROP TABLE bare"); });
    return result;
}

// `frames_of` returns the answer of a device.
double rate_of_store(const std::string &where, int batch, const std::string &name, bool rows,
                     const std::function<const std::string &(int number)> &frames_of) {
    Keeper keeper(where, 60'000, 0, rows);
    std::vector<std::pair<std::string, std::string>> names;
    for (int i = 0; i < devices; ++i) names.emplace_back("site/" + std::to_string(i), "site");
    keeper.add_devices(names);
    keeper.renew();
    return rate(batch, [&](int first) {
        std::vector<std::string> frames;
        std::vector<Outcome> outcomes;
        for (int i = 0; i < batch; ++i) frames.push_back(frames_of(first + i));
        for (int i = 0; i < batch; ++i) {
            const auto &device = names[static_cast<std::size_t>((first + i) % devices)].first;
            // 0 is the time of the last request of a device that was never asked.
            outcomes.push_back({device, name, first + 1, first + 2, frames[static_cast<std::size_t>(i)], {}});
        }
        if (keeper.put(outcomes).answers != outcomes.size()) throw std::runtime_error("devices of another collector");
    });
}

void measure_store(const char *engine, const std::function<std::string()> &new_store, double required) {
    std::string frames;
    const auto random = [&](int) -> const std::string & { return frames = random_frames(); };
    for (const int batch : {50, 100, 1000}) {
        const double alone = rate_of_engine(new_store(), batch);
        const double changed = rate_of_store(new_store(), batch, bundle, false, random);
        const double same =
            rate_of_store(new_store(), batch, bundle, false, [&](int) -> const std::string & { return frames; });
        std::printf("%-10s %6d %12.0f %12.0f %7.2f %12.0f %10.0f\n", engine, batch, alone, changed, changed / alone,
                    same, required);
        std::fflush(stdout);
    }
}

// Plausible answers, each of which differs from the one before it.
void measure_rows(const char *engine, const std::function<std::string()> &new_store) {
    for (const auto &[name, full] :
         {std::pair("dp-intf", "lumo_tarn_dp_intf_rsp"), std::pair("dp-tt-cfg", "lumo_tarn_dp_tt_cfg_rsp")}) {
        std::string answers[2];
        for (const int i : {0, 1}) {
            answers[i] = tool_test::tarn(
                             {"generate", name, "--seed", std::to_string(i), "--form", "frames", "--bundle", "--force"})
                             .out;
        }
        const auto alternate = [&](int number) -> const std::string & { return answers[number / devices % 2]; };
        const double without = rate_of_store(new_store(), devices, full, false, alternate);
        const double with = rate_of_store(new_store(), devices, full, true, alternate);
        std::printf("%-10s %10s %8zu %12.0f %12.0f\n", engine, name, answers[0].size(), without, with);
        std::fflush(stdout);
    }
}

// From devices over the bus into the store: all processes of a fleet on this machine.
void measure_collector(const char *engine, const std::string &store) {
    constexpr int seconds = 10;
    const fleet_test::BusServer bus;
    const tool_test::Process simulated(
        {"simulate", "--bus", bus.url(), "--devices", std::to_string(devices), "--elements", "1", "--change", "1"});
    if (!simulated.wait_for("devices on ")) throw std::runtime_error(simulated.err());
    tool_test::Process collector({"collect", "--bus", bus.url(), "--bundle", "cl-debug", "--bundle", "dp-intf",
                                  "--every", "10ms", "--store", store});
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    const std::size_t memory = collector.resident_kib() >> 10;
    const auto outcome = collector.stop();
    std::printf("%-10s %10d s %12.0f a second, %zu MiB: %s%s", engine, seconds,
                std::atof(outcome.out.substr(outcome.out.find('\n') + 1).c_str()) / seconds, memory,
                outcome.out.substr(outcome.out.find('\n') + 1).c_str(), outcome.err.c_str());
    std::fflush(stdout);
}

}  // namespace

int main() {
    double load[1] = {0};
    [[maybe_unused]] const int known = getloadavg(load, 1);
    std::printf(
        "Answers of %d bytes a second that a store of %d devices keeps, and rows that its engine alone takes; at "
        "least\n"
        "half of these; %u processors, load %.1f\n\n%-10s %6s %12s %12s %7s %12s %10s\n",
        answer_size, devices, std::thread::hardware_concurrency(), load[0], "ENGINE", "BATCH", "ENGINE ALONE",
        "CHANGED", "RATIO", "UNCHANGED", "REQUIRED");
    const Directory directory;
    const fleet_test::PostgresqlServer server;
    int stores = 0;
    const auto file = [&] { return directory.path(std::to_string(++stores) + ".db"); };
    const auto schema = [&] { return server.create_schema("bench" + std::to_string(++stores)); };
    measure_store("SQLite", file, 10'000);
    measure_store("PostgreSQL", schema, 5'000);
    std::printf("\nChanged answers a second that a store keeps without and with rows\n\n%-10s %10s %8s %12s %12s\n",
                "ENGINE", "BUNDLE", "BYTES", "WITHOUT", "WITH");
    measure_rows("SQLite", file);
    measure_rows("PostgreSQL", schema);
    std::printf("\nAnswers that one collector keeps of %d simulated devices that it asks as fast as it can\n\n",
                devices);
    measure_collector("SQLite", file());
    measure_collector("PostgreSQL", schema());
}
