// PgBaglanti: a connection to a PostgreSQL server, on libpq.
//
// Requests are put in a row and sent together: what costs time on a network is not a request but the wait for an
// answer. Bitir() sends what is in the row and waits once. A request whose answer nobody has waited for may still fail;
// the next wait throws that. Statements are prepared on first use and kept by their texts.
//
//   const auto yanit = b.Sirala("select adi from sicil where kod = $1", {PgParametre::Metin("0012")});
//   b.Bitir();
//   yanit->sonuc.Ham(0, 0)
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/store/motor.h"

struct pg_conn;
struct pg_result;

namespace belvani {

// What a request is given in place of $1, $2, …; the server decides what type it is of.
struct PgParametre {
  std::string deger = {};
  bool null = true;
  bool ikili = false;

  static PgParametre Metin(std::string_view d) { return {std::string(d), false, false}; }
  static PgParametre Tam(std::int64_t d) { return {std::to_string(d), false, false}; }
  static PgParametre Bayt(std::string_view d) { return {std::string(d), false, true}; }
};

// Rows of an answer, in the server's binary form (pgdeger.h reads it).
class PgSonuc {
 public:
  PgSonuc() = default;
  explicit PgSonuc(pg_result* sonuc);

  bool Var() const { return sonuc_ != nullptr; }
  int Satir() const;
  int Kolon() const;
  bool NullMu(int satir, int kolon) const;
  std::string_view Ham(int satir, int kolon) const;
  unsigned Tip(int kolon) const;  // the type's number
  std::string_view KolonAdi(int kolon) const;
  unsigned KaynakTablo(int kolon) const;  // its number; 0 for an expression
  int KaynakKolon(int kolon) const;       // its place in the table, from 1; 0 for an expression
  std::int64_t Degisen() const;           // rows that were written
  std::string Komut() const;              // what was done: "COMMIT"

 private:
  std::shared_ptr<pg_result> sonuc_;
};

struct PgYanit {
  bool geldi = false;
  PgSonuc sonuc = {};
};

class PgBaglanti {
 public:
  // Connects, asks for a password where the server wants one that stands nowhere, and brings the session into the one
  // form in which its answers are understood. Refuses a server that is too old or keeps its texts in another code.
  explicit PgBaglanti(const std::string& baglanti);
  ~PgBaglanti();
  PgBaglanti(const PgBaglanti&) = delete;
  PgBaglanti& operator=(const PgBaglanti&) = delete;

  std::shared_ptr<PgYanit> Sirala(std::string sql, std::vector<PgParametre> parametreler = {});
  // For a text that will not come again.
  std::shared_ptr<PgYanit> BirKezSirala(std::string sql);
  // Sends what is in the row, waits for all answers. The first failure is thrown; what stood behind it is not done.
  void Bitir();
  // Forgets what has not been sent.
  void SirayiBirak() { sira_.clear(); }
  bool SiradaVar() const { return !sira_.empty(); }
  PgSonuc Yurut(std::string sql, std::vector<PgParametre> parametreler = {});
  // "copy t (…) from stdin (format binary)" with the rows; all that stood in the row comes first.
  void Kopyala(const std::string& sql, const std::vector<std::string>& parcalar);

  // Has the server told of anything that this session listens to, since it was asked last? It does not wait.
  bool DuyuruGeldi();
  // The connection is gone; an object of this kind does not come back.
  bool KoptuMu() const { return koptu_; }
  // Asks the operating system alone whether the other end has gone.
  bool Acik();
  // After changes of the schema: plans that were made before it may not hold.
  void HazirlariBirak();

 private:
  struct Istek {
    std::string sql;
    std::vector<PgParametre> parametreler;
    std::shared_ptr<PgYanit> yanit;
    bool birKez = false;
  };
  struct Beklenen {
    PgYanit* yanit = nullptr;  // null: of a preparation
    std::string hazir;         // the text that was being prepared
  };

  void Baglan(const std::string& baglanti);
  void OturumuKur();
  void Gonder(const Istek& istek, std::vector<Beklenen>& beklenenler);
  void YanitlariAl(const std::vector<Beklenen>& beklenenler);
  [[noreturn]] void KopusFirlat();

  pg_conn* b_ = nullptr;
  std::vector<Istek> sira_;
  std::unordered_map<std::string, std::string> hazirlar_;  // text -> its name on the server
  std::uint64_t hazirNo_ = 0;
  bool koptu_ = false;
};

std::string PgKitapligiSurumu();

}  // namespace belvani
