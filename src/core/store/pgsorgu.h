// SQL of the program as a PostgreSQL server reads it.
//
// What both engines take is written once, in the rooms above. Two things differ in the letter: parameters ("?" and "?2"
// against "$1"), and where empty values stand in an order: first, as in the other engine, which the server is told at
// each column ("nulls first", on the way back "nulls last").
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace belvani {

// Nothing but blanks and comments, which the server would take for a request without an answer.
bool PgBosMu(std::string_view sql);

std::string PgSorgusu(std::string_view sql);

// "create index i on t (a, b)" with the empty values first, so that it serves the orders above.
std::string PgIndeksi(std::string_view sql);

// The statements of a text, without their ends.
std::vector<std::string> PgKomutlari(std::string_view sql);

enum class SqlTuru { Okur, Ekler, Yazar, Kurar };
SqlTuru SqlTuruBul(std::string_view sql);

// Of "insert into t (…" and its like.
std::string_view YazilanTablo(std::string_view sql);

}  // namespace belvani
