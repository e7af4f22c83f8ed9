#include "deductions/ogisorgu.h"

#include <algorithm>

#include "core/store/izlenenokuma.h"
#include "core/store/satirlar.h"
#include "core/tables/bordronosu.h"
#include "core/turkce.h"
#include "documents/sorgumetni.h"
#include "documents/turetilen.h"

namespace belvani {
namespace {

constexpr int IlkNo = 1, SonNo = 99;

std::vector<OgiKisisi> DevirleriOku(Motor& motor, const DefterSecim& secim, int yil, OgiKosulu kosul,
                                    Ilerleme* ilerleme) {
  SorguMetni sorgu(
      "select d.kod, s.adi, s.soyadi, s.ciktar, s.sskno, d.gvmatrah, d.ogimatrah, d.ogitutar, d.ogiodenen from dvr d "
      "join sicil s on s.kod = d.kod where d.yil = ?",
      {std::int64_t(yil)});
  sorgu.Ekle(kosul == OgiKosulu::HarcamaliOlanlar ? " and d.ogimatrah > 0" : " and d.ogitutar > 0");
  sorgu.Aralik("d.kod", secim.kod);
  sorgu.Aralik("s.grup", secim.grup);
  sorgu.Aralik("s.tip", secim.tip);
  sorgu.Aralik("s.ozel", secim.ozel);
  sorgu.Ekle(" order by d.kod");
  const auto komut = sorgu.Hazirla(motor);
  std::vector<OgiKisisi> kisiler;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    OgiKisisi& k = kisiler.emplace_back();
    Sicil sicil;
    KolonAl(*komut, 0, k.kod);
    KolonAl(*komut, 1, sicil.adi);
    KolonAl(*komut, 2, sicil.soyadi);
    KolonAl(*komut, 3, k.ciktar);
    KolonAl(*komut, 4, k.sskno);
    int sonraki = 5;
    for (Tutar* tutar : {&k.gvmatrah, &k.ogimatrah, &k.ogitutar, &k.ogiodenen}) KolonAl(*komut, sonraki++, *tutar);
    k.adSoyad = AdSoyad(sicil);
  }
  return kisiler;
}

// Records of a month come in the order of codes too, so each month is one walk beside the people.
void OdenenleriOku(Motor& motor, const DefterSecim& secim, const OgiAyAraligi& aylar, std::vector<OgiKisisi>& kisiler,
                   Ilerleme* ilerleme) {
  SorguMetni sorgu("select ay, kod, ogv from brd where yil = ? and ay between ? and ?",
                   {std::int64_t(aylar.yil), std::int64_t(aylar.ilk), std::int64_t(aylar.ilk + aylar.sayi - 1)});
  if (secim.noBas != IlkNo || secim.noBit != SonNo) {
    sorgu.Ekle(" and " + std::string(BordroNosu) + " >= ?", std::int64_t(secim.noBas));
    sorgu.Ekle(" and " + std::string(BordroNosu) + " <= ?", std::int64_t(secim.noBit));
  }
  sorgu.Ekle(" order by ay, kod");
  const auto komut = sorgu.Hazirla(motor);
  std::int64_t sonAy = 0;
  auto kisi = kisiler.begin();
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    if (std::exchange(sonAy, komut->Tam(0)) != komut->Tam(0)) kisi = kisiler.begin();
    const std::string_view kod = komut->Metin(1);
    while (kisi != kisiler.end() && kisi->kod != kod && TurkceKarsilastir(kisi->kod, kod) < 0) ++kisi;
    if (kisi == kisiler.end() || (kisi->kod != kod && !TurkceEsit(kisi->kod, kod))) continue;
    Tutar ogv;
    KolonAl(*komut, 2, ogv);
    auto& ay = kisi->aylar[std::size_t(komut->Tam(0) - aylar.ilk)];
    ay = ay.value_or(Tutar()) + ogv;
  }
}

}  // namespace

std::vector<OgiKisisi> OgiKisileriOku(Motor& motor, const DefterSecim& secim, const OgiAyAraligi& aylar,
                                      OgiKosulu kosul, Ilerleme* ilerleme) {
  auto kisiler = DevirleriOku(motor, secim, aylar.yil - 1, kosul, ilerleme);
  for (OgiKisisi& k : kisiler) k.aylar.resize(std::size_t(aylar.sayi));
  if (aylar.sayi > 0 && !kisiler.empty()) OdenenleriOku(motor, secim, aylar, kisiler, ilerleme);
  if (secim.sira == DefterSirasi::SskNo) std::ranges::stable_sort(kisiler, {}, &OgiKisisi::sskno);
  return kisiler;
}

}  // namespace belvani
