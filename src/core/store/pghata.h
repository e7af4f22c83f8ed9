// Failures of a PostgreSQL server as faults of the engine, in words for the user.
#pragma once

#include <string>
#include <string_view>

#include "core/store/motor.h"

struct pg_conn;
struct pg_result;

namespace belvani {

// Of a request. With the server's five letters; its own words are no user's, but those of a rule of ours.
MotorHatasi PgIstekHatasi(const pg_result* sonuc);
// Of a connection that could not be made.
MotorHatasi PgBaglantiHatasi(pg_conn* baglanti);
// Whether another password may help: none was there, or the server has refused the one that it got.
bool PgSifreReddi(pg_conn* baglanti);
MotorHatasi PgKopusHatasi();
// Of a write into a store that was opened for looking alone.
MotorHatasi PgSaltOkunurHatasi();

}  // namespace belvani
