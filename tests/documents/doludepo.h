// A store full of random pay records.
#pragma once

#include <random>

#include "core/store/ornekdepo.h"
#include "documents/deftersorgu.h"

namespace belvani::test {

inline constexpr int Yil = 2008;
inline constexpr int Ay = 7;
// People and three years of records with anything in them; also records of a person whose card is gone.
struct DoluDepo : OrnekDepo {
  std::mt19937 rastgele;

  explicit DoluDepo(unsigned tohum, int kisiSayisi = 40) : rastgele(tohum) {
    Motor& motor = db.IcMotor();
    motor.IslemBaslat({});
    KayitYazici<Sicil> kartlar(motor);
    KayitYazici<Brd> kayitlar(motor);
    for (int kisi = 0; kisi < kisiSayisi; ++kisi) {
      Sicil s;
      s.kod = "P" + std::to_string(100 + kisi);
      s.adi = "Ad" + std::to_string(kisi);
      s.sskdurum = std::uint8_t(kisi % 3);
      if (kisi != 7) kartlar.Ekle(s);
      for (int yil = Yil - 1; yil <= Yil + 1; ++yil)
        for (int ay = 1; ay <= 12; ++ay)
          for (int no = 1; no <= (kisi % 5 == 0 ? 2 : 1); ++no) kayitlar.Ekle(Kayit(s.kod, yil, ay, no));
    }
    KayitYazici<Dvr> devirler(motor);
    for (int kisi = 0; kisi < kisiSayisi; ++kisi) devirler.Ekle(Devir("P" + std::to_string(100 + kisi)));
    motor.IslemOnayla();
  }

  // Of the year before, with an expense that was declared; some have none.
  Dvr Devir(const std::string& kod) {
    Dvr d;
    for (const auto tutar : {&Dvr::gvmatrah, &Dvr::gvtutar, &Dvr::ogimatrah, &Dvr::ogitutar, &Dvr::ogiodenen})
      d.*tutar = Tutar::Hamdan(100 * Sayi(900'000));
    if (Sayi(9) == 0) d.ogimatrah = Tutar();
    if (Sayi(9) == 0) d.ogitutar = Tutar() - d.ogitutar;
    d.yil = Yil - 1;
    d.kod = kod;
    d.yilkod = std::to_string(Yil - 1) + kod;
    return d;
  }

  int Sayi(int enCok) { return std::uniform_int_distribution(0, enCok)(rastgele); }

  Brd Kayit(const std::string& kod, int yil, int ay, int no) {
    Brd b;
    Brd::HerKolon([&](const auto& kolon) {
      using Tur = typename std::decay_t<decltype(kolon)>::UyeTuru;
      if constexpr (std::same_as<Tur, Tutar>) b.*kolon.uye = Tutar::Hamdan(100 * Sayi(900'000));
    });
    for (const auto gun : {&Brd::ng, &Brd::ht, &Brd::ui, &Brd::rt, &Brd::ha, &Brd::mi, &Brd::ucretsizizin})
      b.*gun = std::uint8_t(Sayi(9) < 7 ? Sayi(8) : 0);
    if (Sayi(9) == 0) b.ng = b.ht = b.ui = b.rt = b.ha = b.mi = 0;
    b.yil = std::int16_t(yil);
    b.ay = std::uint8_t(ay);
    b.no = std::uint8_t(no);
    b.kod = kod;
    return b;
  }

  // What SQL adds up; scaled, for amounts.
  std::int64_t Topla(const std::string& ifade, const std::string& kosul = "yil = 2008 and ay = 7") {
    const auto komut = db.IcMotor().Hazirla("select coalesce(sum(" + ifade + "), 0) from brd where " + kosul +
                                            " and kod in (select kod from sicil)");
    return komut->Adim() ? komut->Tam(0) : -1;
  }
  std::vector<BordroSatiri> Satirlar(DefterSirasi sira) {
    std::vector<BordroSatiri> satirlar;
    DefterSatirlariniGez(db.IcMotor(),
                         {.yil = Yil, .ay = Ay, .kod = {}, .grup = {}, .tip = {}, .ozel = {}, .sira = sira},
                         [&](BordroSatiri& satir) { satirlar.push_back(std::move(satir)); });
    return satirlar;
  }
};

}  // namespace belvani::test
