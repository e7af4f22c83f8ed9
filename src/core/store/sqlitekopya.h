// The copy of an open SQLite store, by the engine's own backup.
#pragma once

#include "core/store/motor.h"

struct sqlite3;

namespace belvani {

// SQLITE_OK, or the number of the failure. What `adim` throws comes out, with everything closed.
int SqliteKopyala(sqlite3* kaynak, const std::string& yol, const Motor::KopyaAdimi& adim);

}  // namespace belvani
