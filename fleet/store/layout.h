// The tables of a store, and their version.
#pragma once

#include "fleet/store/database.h"

namespace tarn::fleet {

// Another number means that programs have to be changed.
inline constexpr int store_version = 2;

// Creates the tables in an empty database; several processes may do so at once. Throws a Failure that names the version
// if the store has another one, and if the database has other tables: nothing is written then.
void create_layout(Database &database);

// Throws a Failure if the database is not a store of this version.
void require_layout(Database &database);

}  // namespace tarn::fleet
