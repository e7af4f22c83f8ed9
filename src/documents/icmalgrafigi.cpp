#include "documents/icmalgrafigi.h"

#include <algorithm>
#include <cmath>

#include "core/sayi.h"
#include "core/tarih.h"
#include "payroll/hesap/kayittoplami.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr BoyaRengi CizgiGrisi = 0xD8D8D8;
constexpr BoyaRengi KisiRengi = 0x8A8F98;

struct Seri {
  const char* ad;
  Tutar IcmalAyi::*deger;
  BoyaRengi renk;
};
constexpr Seri Seriler[] = {
    {"Brüt", &IcmalAyi::brut, 0x2F6690},
    {"Net", &IcmalAyi::net, 0x7FB069},
    {toplam::isverenMaliyeti.etiket, &IcmalAyi::maliyet, 0xE08E45},
};

constexpr YaziBicimi KucukYazi{.punto = 7};
constexpr YaziBicimi BaslikYazisi{.punto = 9, .kalinlik = YaziKalinligi::Kalin};
constexpr double SatirPayi = 4;                       // millimetres of a line of small letters
constexpr double KisiPayi = 10;                       // of the bars of people
constexpr double UstPayi = 3 * SatirPayi;             // title and legend
constexpr double AltPayi = 3 * SatirPayi + KisiPayi;  // months, bars of people and their numbers
constexpr double EksenPayi = 20;                      // left of the bars, for the amounts of the axis
constexpr int Araliklar = 5;                          // of the axis
constexpr double GrupDoluluk = 0.78;                  // of a month's width that its bars take

// "03.08"
std::string AyMetni(const IcmalAyi& ay) {
  return Tarih(ay.yil, ay.ay, 1).KisaMetin().substr(3);
}

class GrafikKalemi {
 public:
  GrafikKalemi(const IcmalSerisi& seri, Tuval& tuval, const Dikdortgen& yer) : seri_(seri), tuval_(tuval), yer_(yer) {
    alan_ = {yer.x + EksenPayi, yer.y + UstPayi, yer.en - EksenPayi, yer.boy - UstPayi - AltPayi};
    for (const auto& ay : seri) {
      for (const Seri& s : Seriler) enBuyuk_ = std::max(enBuyuk_, (ay.*s.deger).Sayi());
      enCokKisi_ = std::max(enCokKisi_, ay.kisi);
    }
  }

  void Ciz() {
    yzccnt(tuval_).YzcYaz("Son On İki Ay", yer_.x, yer_.y, BaslikYazisi.punto, BaslikYazisi.kalinlik);
    Lejant();
    if (enCokKisi_ == 0) return MetinKutuya(tuval_, alan_, "Bu aylarda bordro kaydı yok", KucukYazi, MetinHizasi::Orta);
    Eksen();
    for (std::size_t i = 0; i < seri_.size(); ++i) AyCiz(i);
  }

 private:
  void Lejant() {
    double x = yer_.x + EksenPayi;
    const double y = yer_.y + 1.5 * SatirPayi;
    const auto oge = [&](const char* ad, BoyaRengi renk) {
      tuval_.DoluKutu({x, y + 0.6, 3, 2}, renk);
      yzccnt(tuval_).YzcYaz(ad, x + 4, y, KucukYazi.punto);
      x += 4 + MetinEni(ad, KucukYazi) + 5;
    };
    for (const Seri& s : Seriler) oge(s.ad, s.renk);
    oge("Çalışan Sayısı", KisiRengi);
  }

  void Eksen() {
    const double uc = EksenUcu(enBuyuk_);
    for (int i = 0; i <= Araliklar; ++i) {
      const double y = alan_.y + alan_.boy * (1 - double(i) / Araliklar);
      tuval_.DoluKutu({alan_.x, y, alan_.en, 0.12}, CizgiGrisi);
      MetinKutuya(tuval_, {yer_.x, y - 2, EksenPayi - 2, 4}, TutarMetni(Tutar(uc * i / Araliklar), uc < 10 ? 1 : 0),
                  KucukYazi, MetinHizasi::Sag);
    }
  }

  void AyCiz(std::size_t i) {
    const IcmalAyi& ay = seri_[i];
    const double genislik = alan_.en / double(seri_.size());
    const double sol = alan_.x + genislik * double(i);
    const double cubuk = genislik * GrupDoluluk / double(std::size(Seriler));
    double x = sol + genislik * (1 - GrupDoluluk) / 2;
    for (const Seri& s : Seriler) {
      const double boy = alan_.boy * std::max(0.0, (ay.*s.deger).Sayi()) / EksenUcu(enBuyuk_);
      if (boy > 0) tuval_.DoluKutu({x, alan_.y + alan_.boy - boy, cubuk * 0.92, boy}, s.renk);
      x += cubuk;
    }
    double y = alan_.y + alan_.boy + 0.5;
    MetinKutuya(tuval_, {sol, y, genislik, SatirPayi}, AyMetni(ay), KucukYazi, MetinHizasi::Orta);
    y += SatirPayi + SatirPayi;
    const double boy = KisiPayi * ay.kisi / enCokKisi_;
    if (boy > 0) tuval_.DoluKutu({sol + genislik * 0.25, y + KisiPayi - boy, genislik * 0.5, boy}, KisiRengi);
    MetinKutuya(tuval_, {sol, y + KisiPayi, genislik, SatirPayi}, std::to_string(ay.kisi), KucukYazi,
                MetinHizasi::Orta);
  }

  const IcmalSerisi& seri_;
  Tuval& tuval_;
  const Dikdortgen yer_;
  Dikdortgen alan_;  // of the bars of amounts
  double enBuyuk_ = 0;
  int enCokKisi_ = 0;
};

}  // namespace

double EksenUcu(double enBuyuk) {
  if (!(enBuyuk > 0)) return 1;
  const double basamak = std::pow(10.0, std::floor(std::log10(enBuyuk)));
  for (const double kat : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 7.5, 10.0})
    if (kat * basamak >= enBuyuk) return kat * basamak;
  return 10 * basamak;
}

void IcmalGrafigi(const IcmalSerisi& seri, Tuval& tuval, const Dikdortgen& yer) {
  GrafikKalemi(seri, tuval, yer).Ciz();
}

}  // namespace belvani
