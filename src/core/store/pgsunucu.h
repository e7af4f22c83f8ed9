// What the program lays on a PostgreSQL server, and the names by which it finds it again.
//
//   belvani                the common schema: companies, files of the data path, marks, the order of Turkish letters
//   s1, s2, …              a schema for each company, under a number of ours: its tables and its files
//   belvani_sahip          the role that owns them all and logs in nowhere
//   belvani_kullanici      the role whose members may use the data path; who sees which company is granted by schema
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/store/pgbaglanti.h"

namespace belvani {

inline constexpr std::string_view PgOrtakSema = "belvani";
inline constexpr const char* PgSahip = "belvani_sahip";
inline constexpr const char* PgKullanici = "belvani_kullanici";
// Of what is laid there; a program does not work on a later one.
inline constexpr int PgKurulumSurumu = 1;

// Locks that go with their connection; the second number is the company's, 0 that of the data path.
enum class PgKilit : std::int32_t {
  Iceride = 0x42454C01,  // shared by all who have the store open; alone by who keeps them out
  Yazan = 0x42454C02,    // the one writer of a store
  Yer = 0x42454C03,      // of a place's files
  Yarim = 0x42454C04,    // someone is at a half company
};

std::string PgSema(std::int64_t sirketNo);

// Refuses a server on which nothing was laid yet, one of a later version, and one that sorts Turkish texts otherwise
// than this program: lists that it has put in order are merged with comparisons of ours. Throws MotorHatasi
// (Acilamadi).
void PgSunucuyuDenetle(PgBaglanti& b);

// The company of a place's name, or of a half one's; nothing: the role sees none.
std::optional<std::int64_t> PgSirketNo(PgBaglanti& b, std::string_view ad);
// ".kurulan-ORNEK-000017" -> 17; nothing for what is no such name.
std::optional<std::int64_t> PgYarimNo(std::string_view ad);

}  // namespace belvani
