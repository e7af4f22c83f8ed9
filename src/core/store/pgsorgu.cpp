#include "core/store/pgsorgu.h"

#include <algorithm>
#include <cctype>

namespace belvani {
namespace {

bool SozcukHarfi(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

// Does the word begin at this place?
bool SozcukVar(std::string_view sql, std::size_t i, std::string_view sozcuk) {
  if (sql.substr(i, sozcuk.size()) != sozcuk || (i > 0 && SozcukHarfi(sql[i - 1]))) return false;
  return i + sozcuk.size() >= sql.size() || !SozcukHarfi(sql[i + sozcuk.size()]);
}

// Behind the text or name in quotation marks that begins here.
std::size_t TirnakSonu(std::string_view sql, std::size_t i) {
  const std::size_t son = sql.find(sql[i], i + 1);
  return son == sql.npos ? sql.size() : son + 1;
}

std::string_view Kirpik(std::string_view s) {
  while (!s.empty() && std::isspace(static_cast<unsigned char>(s.front())) != 0) s.remove_prefix(1);
  while (!s.empty() && std::isspace(static_cast<unsigned char>(s.back())) != 0) s.remove_suffix(1);
  return s;
}

// "kod desc" -> "kod desc nulls last". A list of a window or an aggregate reads alike.
std::string Siralanan(std::string_view parca) {
  const std::string_view ad = Kirpik(parca);
  if (ad.empty()) return {};
  return std::string(ad) + (ad.ends_with(" desc") ? " nulls last" : " nulls first");
}

// The end of the list that begins at `i`: at a bracket that closes what was open before, or at what follows an order.
std::size_t ListeSonu(std::string_view sql, std::size_t i) {
  int derinlik = 0;
  for (; i < sql.size(); ++i) {
    if (sql[i] == '\'' || sql[i] == '"') {
      i = TirnakSonu(sql, i) - 1;
    } else if (sql[i] == '(') {
      ++derinlik;
    } else if (sql[i] == ')' && --derinlik < 0) {
      return i;
    } else if (derinlik == 0 && (SozcukVar(sql, i, "limit") || SozcukVar(sql, i, "offset"))) {
      return i;
    }
  }
  return sql.size();
}

std::vector<std::string_view> Parcala(std::string_view liste, char ayrac) {
  std::vector<std::string_view> parcalar;
  int derinlik = 0;
  std::size_t bas = 0;
  for (std::size_t i = 0; i < liste.size(); ++i) {
    if (liste[i] == '\'' || liste[i] == '"') i = TirnakSonu(liste, i) - 1;
    if (i >= liste.size()) break;
    if (liste[i] == '(') ++derinlik;
    if (liste[i] == ')') --derinlik;
    if (liste[i] != ayrac || derinlik != 0) continue;
    parcalar.push_back(liste.substr(bas, i - bas));
    bas = i + 1;
  }
  parcalar.push_back(liste.substr(std::min(bas, liste.size())));
  return parcalar;
}

std::string SiraListesi(std::string_view liste) {
  std::string sonuc;
  for (const std::string_view parca : Parcala(liste, ',')) sonuc += (sonuc.empty() ? "" : ", ") + Siralanan(parca);
  return sonuc;
}

std::string Siralar(std::string_view sql) {
  constexpr std::string_view sozcuk = "order by ";
  std::string sonuc;
  for (std::size_t i = 0; i < sql.size();) {
    if (sql[i] == '\'' || sql[i] == '"') {
      const std::size_t son = TirnakSonu(sql, i);
      sonuc += sql.substr(i, son - i);
      i = son;
    } else if (SozcukVar(sql, i, "order") && sql.substr(i, sozcuk.size()) == sozcuk) {
      const std::size_t bas = i + sozcuk.size(), son = ListeSonu(sql, bas);
      sonuc += std::string(sozcuk) + SiraListesi(sql.substr(bas, son - bas)) +
               (son < sql.size() && sql[son] != ')' ? " " : "");
      i = son;
    } else {
      sonuc += sql[i++];
    }
  }
  return sonuc;
}

std::string Parametreler(std::string_view sql) {
  std::string sonuc;
  int no = 0;
  for (std::size_t i = 0; i < sql.size();) {
    if (sql[i] == '\'' || sql[i] == '"') {
      const std::size_t son = TirnakSonu(sql, i);
      sonuc += sql.substr(i, son - i);
      i = son;
    } else if (sql[i] == '?') {
      sonuc += '$';
      if (++i < sql.size() && std::isdigit(static_cast<unsigned char>(sql[i])) != 0) continue;
      sonuc += std::to_string(++no);
    } else {
      sonuc += sql[i++];
    }
  }
  return sonuc;
}

}  // namespace

bool PgBosMu(std::string_view sql) {
  for (sql = Kirpik(sql); sql.starts_with("--"); sql = Kirpik(sql))
    sql.remove_prefix(std::min(sql.find('\n'), sql.size()));
  return sql.empty();
}

std::string PgSorgusu(std::string_view sql) {
  return Parametreler(Siralar(sql));
}

std::string PgIndeksi(std::string_view sql) {
  const std::size_t ac = sql.find('('), kapa = sql.rfind(')');
  if (ac == sql.npos || kapa == sql.npos) return std::string(sql);
  return std::string(sql.substr(0, ac + 1)) + SiraListesi(sql.substr(ac + 1, kapa - ac - 1)) +
         std::string(sql.substr(kapa));
}

std::vector<std::string> PgKomutlari(std::string_view sql) {
  std::vector<std::string> komutlar;
  for (const std::string_view parca : Parcala(sql, ';'))
    if (const auto komut = Kirpik(parca); !komut.empty()) komutlar.emplace_back(komut);
  return komutlar;
}

SqlTuru SqlTuruBul(std::string_view sql) {
  const std::string_view s = Kirpik(sql);
  if (SozcukVar(s, 0, "insert")) return SqlTuru::Ekler;
  if (SozcukVar(s, 0, "update") || SozcukVar(s, 0, "delete")) return SqlTuru::Yazar;
  for (const std::string_view kurar : {"create", "alter", "drop", "grant", "revoke"})
    if (SozcukVar(s, 0, kurar)) return SqlTuru::Kurar;
  return SqlTuru::Okur;
}

std::string_view YazilanTablo(std::string_view sql) {
  constexpr std::string_view into = "into ";
  const std::size_t i = sql.find(into);
  if (i == sql.npos) return {};
  const std::string_view kalan = sql.substr(i + into.size());
  return kalan.substr(0, std::size_t(std::find_if_not(kalan.begin(), kalan.end(), SozcukHarfi) - kalan.begin()));
}

}  // namespace belvani
