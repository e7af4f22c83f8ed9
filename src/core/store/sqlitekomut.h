// Statements and writers of the SQLite engine, and its failures as faults.
#pragma once

#include <exception>
#include <sqlite3.h>

#include "core/store/motor.h"

namespace belvani {

struct MotorHali {
  std::uint64_t yazmaSayaci = 0;
  bool saltOkunur = false;
};

// With the engine's number; its own words are no user's.
MotorHatasi SqliteHatasi(sqlite3* db, int kod, const MotorHali& hal);
// What the user is told of a failure of this kind.
std::string SqliteKusurMetni(MotorKusuru tur);

// The statement that a writer of these columns runs.
std::string SqliteYazmaMetni(const YazilanKolonlar& kolonlar, YazmaTuru tur);

// Has `arada` called in the middle of a step. The library knows no exceptions: what comes out of the call breaks the
// step off, and goes on behind it.
class AradakiSoru {
 public:
  AradakiSoru(sqlite3* db, const AradaSoran& arada) : db_(arada ? db : nullptr), arada_(arada) {
    if (db_ != nullptr) sqlite3_progress_handler(db_, KitaplikAdimi, &AradakiSoru::Cagir, this);
  }
  ~AradakiSoru() {
    if (db_ != nullptr) sqlite3_progress_handler(db_, 0, nullptr, nullptr);
  }
  AradakiSoru(const AradakiSoru&) = delete;
  AradakiSoru& operator=(const AradakiSoru&) = delete;

  const std::exception_ptr& Gelen() const { return gelen_; }

 private:
  static constexpr int KitaplikAdimi = 1000;  // of the library's own steps between two calls

  static int Cagir(void* bu) noexcept {
    auto& soru = *static_cast<AradakiSoru*>(bu);
    try {
      soru.arada_();
      return 0;
    } catch (...) {
      soru.gelen_ = std::current_exception();
      return 1;
    }
  }

  sqlite3* db_;
  const AradaSoran& arada_;
  std::exception_ptr gelen_;
};

class SqliteKomut final : public Komut {
 public:
  SqliteKomut(sqlite3* db, std::string_view sql, MotorHali& hal) : db_(db), hal_(hal) {
    const int kod = sqlite3_prepare_v3(db, sql.data(), int(sql.size()), SQLITE_PREPARE_PERSISTENT, &komut_, nullptr);
    if (kod != SQLITE_OK) throw SqliteHatasi(db, kod, hal);
    yazan_ = sqlite3_stmt_readonly(komut_) == 0;
  }
  ~SqliteKomut() override { sqlite3_finalize(komut_); }

  void NullBagla(int no) override { Sina(sqlite3_bind_null(komut_, no)); }
  void TamBagla(int no, std::int64_t d) override { Sina(sqlite3_bind_int64(komut_, no, d)); }
  void SayiBagla(int no, double d) override { Sina(sqlite3_bind_double(komut_, no, d)); }
  void MetinBagla(int no, std::string_view d) override {
    Sina(sqlite3_bind_text64(komut_, no, d.data() == nullptr ? "" : d.data(), d.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
  }
  void BaytBagla(int no, const Baytlar& d) override {
    Sina(sqlite3_bind_blob64(komut_, no, d.empty() ? static_cast<const void*>("") : d.data(), d.size(),
                             SQLITE_TRANSIENT));
  }

  bool Adim() override {
    const AradakiSoru soru(db_, arada_);
    const int kod = sqlite3_step(komut_);
    if (soru.Gelen()) {
      sqlite3_reset(komut_);
      std::rethrow_exception(soru.Gelen());
    }
    if (kod == SQLITE_ROW) return true;
    if (yazan_) ++hal_.yazmaSayaci;
    if (kod != SQLITE_DONE) {
      const MotorHatasi hata = SqliteHatasi(db_, kod, hal_);
      sqlite3_reset(komut_);
      throw hata;
    }
    sqlite3_reset(komut_);
    return false;
  }
  void AradaSor(AradaSoran arada) override { arada_ = std::move(arada); }
  void Birak() override { sqlite3_reset(komut_); }

  int KolonSayisi() const override { return sqlite3_column_count(komut_); }
  std::string_view KolonAdi(int i) const override { return MetinYa(sqlite3_column_name(komut_, i)); }
  std::string_view KaynakTablo(int i) const override { return MetinYa(sqlite3_column_table_name(komut_, i)); }
  std::string_view KaynakKolon(int i) const override { return MetinYa(sqlite3_column_origin_name(komut_, i)); }

  Tur Turu(int i) const override {
    switch (sqlite3_column_type(komut_, i)) {
      case SQLITE_INTEGER:
        return Tur::Tam;
      case SQLITE_FLOAT:
        return Tur::Sayi;
      case SQLITE_TEXT:
        return Tur::Metin;
      case SQLITE_BLOB:
        return Tur::Bayt;
      default:
        return Tur::Null;
    }
  }
  std::int64_t Tam(int i) const override { return sqlite3_column_int64(komut_, i); }
  double Sayi(int i) const override { return sqlite3_column_double(komut_, i); }
  std::string_view Metin(int i) const override {
    const auto* m = reinterpret_cast<const char*>(sqlite3_column_text(komut_, i));
    return m == nullptr ? std::string_view() : std::string_view(m, std::size_t(sqlite3_column_bytes(komut_, i)));
  }
  Baytlar Bayt(int i) const override {
    const auto* b = static_cast<const std::uint8_t*>(sqlite3_column_blob(komut_, i));
    return b == nullptr ? Baytlar() : Baytlar(b, b + sqlite3_column_bytes(komut_, i));
  }

 private:
  static std::string_view MetinYa(const char* m) { return m == nullptr ? std::string_view() : std::string_view(m); }
  void Sina(int kod) const {
    if (kod != SQLITE_OK) throw SqliteHatasi(db_, kod, hal_);
  }

  sqlite3* db_;
  MotorHali& hal_;
  sqlite3_stmt* komut_ = nullptr;
  AradaSoran arada_;
  bool yazan_ = false;
};

class SqliteSatirYazici final : public SatirYazici {
 public:
  SqliteSatirYazici(sqlite3* db, std::unique_ptr<Komut> komut, YazmaTuru tur, int kolonSayisi)
      : db_(db), komut_(std::move(komut)), tur_(tur), kolonSayisi_(kolonSayisi) {}

  void NullBagla(int no) override { komut_->NullBagla(no); }
  void TamBagla(int no, std::int64_t d) override { komut_->TamBagla(no, d); }
  void SayiBagla(int no, double d) override { komut_->SayiBagla(no, d); }
  void MetinBagla(int no, std::string_view d) override { komut_->MetinBagla(no, d); }
  void BaytBagla(int no, const Baytlar& d) override { komut_->BaytBagla(no, d); }

  std::int64_t Yaz(std::int64_t kimlik) override {
    if (tur_ == YazmaTuru::Degistir) komut_->TamBagla(kolonSayisi_ + 1, kimlik);
    if (tur_ == YazmaTuru::Koy) komut_->TamBagla(1, kimlik);
    komut_->Calistir();
    return tur_ == YazmaTuru::Ekle ? sqlite3_last_insert_rowid(db_) : kimlik;
  }

 private:
  sqlite3* db_;
  std::unique_ptr<Komut> komut_;
  YazmaTuru tur_;
  int kolonSayisi_;
};

}  // namespace belvani
