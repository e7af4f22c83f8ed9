// Statements of the PostgreSQL engine, and the rows that they answer with.
#pragma once

#include "core/store/pgmotor.h"
#include "core/store/pgsorgu.h"

namespace belvani {

// The rows of an answer.
class PgOkuyan : public Komut {
 public:
  int KolonSayisi() const override { return sonuc_.Var() ? sonuc_.Kolon() : 0; }
  std::string_view KolonAdi(int i) const override { return sonuc_.KolonAdi(i); }
  std::string_view KaynakTablo(int) const override { return {}; }
  std::string_view KaynakKolon(int) const override { return {}; }
  Tur Turu(int i) const override;
  std::int64_t Tam(int i) const override;
  double Sayi(int i) const override;
  std::string_view Metin(int i) const override;
  Baytlar Bayt(int i) const override;

 protected:
  bool SonrakiSatir();

  PgSonuc sonuc_;
  int satir_ = -1;  // -1: not run

 private:
  bool Null(int i) const { return sonuc_.NullMu(satir_, i); }

  mutable std::string metin_;  // of a value that is no text
};

// An answer that has come already; it is given nothing and run no more.
class PgSatirlar final : public PgOkuyan {
 public:
  explicit PgSatirlar(PgSonuc sonuc) { sonuc_ = std::move(sonuc); }

  void NullBagla(int) override {}
  void TamBagla(int, std::int64_t) override {}
  void SayiBagla(int, double) override {}
  void MetinBagla(int, std::string_view) override {}
  void BaytBagla(int, const Baytlar&) override {}
  bool Adim() override { return SonrakiSatir(); }
  void Birak() override { satir_ = -1; }
};

class PgKomut final : public PgOkuyan {
 public:
  PgKomut(PgMotor& motor, std::string_view sql, bool tetiksiz);

  void NullBagla(int no) override { Yer(no) = {}; }
  void TamBagla(int no, std::int64_t d) override { Yer(no) = PgParametre::Tam(d); }
  void SayiBagla(int no, double d) override;
  void MetinBagla(int no, std::string_view d) override;
  void BaytBagla(int no, const Baytlar& d) override;

  void Gonder() override;
  bool Adim() override;
  void Birak() override;

  std::string_view KaynakTablo(int i) const override;
  std::string_view KaynakKolon(int i) const override;

 private:
  PgParametre& Yer(int no);

  PgMotor& motor_;
  std::string sql_;
  SqlTuru tur_;
  bool doner_ = false;  // a write that answers with rows
  bool tetiksiz_;
  std::vector<PgParametre> parametreler_;
  std::shared_ptr<PgYanit> giden_;
};

}  // namespace belvani
