// The tables of a store, and their version.
#pragma once

#include "fleet/store/database.h"

namespace tarn::fleet {

// Another number means that programs have to be changed.
inline constexpr int store_version = 2;

// Creates the tables in an empty database, on demand with the records of answers as rows; several processes may do so
// at once. Returns true if the store has rows. Throws a Failure that names the version if the store has another one, if
// the database has other tables, and if rows are demanded of a store that has none: nothing is written then.
bool create_layout(Database &database, bool with_rows);

// Throws a Failure if the database is not a store of this version.
void require_layout(Database &database);

}  // namespace tarn::fleet
