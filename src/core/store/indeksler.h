// The indexes of a store, beside those that the schema asks for.
#pragma once

#include <string>

#include "core/store/motor.h"
#include "core/tables/alan.h"

namespace belvani {

// What an index of the schema is called in the store; empty where the table's automatic number is one by itself.
std::string IndeksAdi(const TabloTanimi& tablo, const IndeksTanimi& indeks);

// Is the column the first key of its table?
bool BirincilMi(const TabloTanimi& tablo, std::string_view alan);

// "create unique index brd_ay on brd (yil, …)".
std::string IndeksMetni(const TabloTanimi& tablo, const IndeksTanimi& indeks, bool tekil);

// Makes the indexes that are missing, and anew those that let a key stand twice and should not; where keys do stand
// twice, an index lets them. Tables and columns that are not there are passed over. In an open transaction. Throws
// MotorHatasi.
void IndeksleriTamamla(Motor& motor);

}  // namespace belvani
