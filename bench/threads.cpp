// Work of several threads, each with a handle of its own. Handles share the counters of the types, unless they have
// private tables.
#include "bench/object.h"

namespace tarn::bench {

namespace {

template <class Plain>
void add(Results &results, const std::string &workload, const Plain &value, bool frames) {
    for (const auto &[setup, tables] :
         {std::pair{Setup::plain, "shared tables"}, std::pair{Setup::private_tables, "private tables"}}) {
        const auto sample = [value, chosen = setup] { return std::make_shared<Sample<Plain>>(chosen, value); };
        results.add_threads("build and destroy " + workload, tables, [sample] { return building(sample()); });
        if (!frames) continue;
        results.add_threads("encode " + workload, tables, [sample] { return encoding(sample()); });
        results.add_threads("decode and destroy " + workload, tables, [sample] { return decoding(sample()); });
    }
}

}  // namespace

void add_threads(Results &results) {
    add(results, "deep", deep(), true);
    add(results, "one class", classes(1).tc_list.front(), false);
}

}  // namespace tarn::bench
