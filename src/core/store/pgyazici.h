// Rows for one table of a PostgreSQL server, gathered until something else is asked of the engine: a few go as
// statements, thousands as one copy.
#pragma once

#include <unordered_set>

#include "core/store/pgmotor.h"

namespace belvani {

// What is gathered; the engine has it too, so that it outlives the writer.
class PgTampon {
 public:
  PgTampon(PgMotor& motor, const YazilanKolonlar& kolonlar, YazmaTuru tur);

  Deger& Yer(int no) { return degerler_[std::size_t(no) - 1]; }
  void MetinKoy(int no, std::string_view d);
  std::int64_t Yaz(std::int64_t kimlik);

  // Into the row of the connection, or as a copy.
  void Bosalt();
  void Birak();  // forgets what it has gathered

 private:
  struct Satir {
    std::int64_t kimlik = 0;
    std::vector<Deger> degerler;
  };

  void KopyayaEkle(const Satir& satir);
  void TekTekGonder();
  void TopluGonder();
  std::string TekMetni() const;
  std::vector<PgParametre> Parametreler(const Satir& satir) const;

  PgMotor& motor_;
  std::string tablo_, kimlik_;
  std::vector<std::string> adlar_;  // without the row's number
  std::vector<unsigned> tipler_;
  std::vector<bool> duran_;
  unsigned kimlikTipi_ = 0;
  YazmaTuru tur_;
  bool tetiksiz_;
  bool butun_;  // the columns are all that the table has
  std::vector<Deger> degerler_;
  std::vector<Satir> azlar_;        // as long as they are few
  std::vector<std::string> kopya_;  // pieces of the copy
  std::unordered_set<std::int64_t> kimlikler_;
};

class PgYazici final : public SatirYazici {
 public:
  explicit PgYazici(std::shared_ptr<PgTampon> tampon) : tampon_(std::move(tampon)) {}

  void NullBagla(int no) override { tampon_->Yer(no) = Null{}; }
  void TamBagla(int no, std::int64_t d) override { tampon_->Yer(no) = d; }
  void SayiBagla(int no, double d) override { tampon_->Yer(no) = d; }
  void MetinBagla(int no, std::string_view d) override { tampon_->MetinKoy(no, d); }
  void BaytBagla(int no, const Baytlar& d) override { tampon_->Yer(no) = d; }
  std::int64_t Yaz(std::int64_t kimlik) override { return tampon_->Yaz(kimlik); }

 private:
  std::shared_ptr<PgTampon> tampon_;
};

}  // namespace belvani
