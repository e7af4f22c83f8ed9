#include "payroll/devir/yillikdevir.h"

#include "core/asama.h"
#include "core/store/islem.h"
#include "core/store/izlenenokuma.h"
#include "core/store/koru.h"
#include "core/store/satirlar.h"
#include "core/tables/dvr.h"
#include "core/yuvarlama.h"
#include "payroll/devir/devirkaydi.h"
#include "payroll/hesap/kayittoplami.h"

namespace belvani {
namespace {

constexpr std::chrono::seconds KilitBekleme{60};  // a mass run is waited for

// What a row of `dvr` has of the year's records.
struct YilToplami {
  Tutar gvmatrah, gvtutar, issizlik;
  friend bool operator==(const YilToplami&, const YilToplami&) = default;
};

struct DevredenKisi {
  std::string kod;
  YilToplami toplam;
  std::optional<std::int64_t> satir;  // the number of his row, where he has one
  YilToplami eski;                    // that stand in it
};

YilToplami ToplamAl(const Komut& komut, int ilk) {
  YilToplami t;
  for (Tutar* tutar : {&t.gvmatrah, &t.gvtutar, &t.issizlik}) KolonAl(komut, ilk++, *tutar);
  return t;
}

// All people of the year with the rows that they have, by one query.
std::vector<DevredenKisi> KisileriOku(Motor& motor, int yil, Yuvarlayici yuvarla, Ilerleme* ilerleme) {
  const auto komut = motor.Hazirla(
      "select t.kod, t.tgvm, t.tgvt, t.tisci, d." + motor.KimlikKolonu("dvr") +
      ", d.gvmatrah, d.gvtutar, d.issizlik from (select kod, sum(gvmatrah) as tgvm, sum(gvtutar) as tgvt, sum(" +
      Sql(toplam::issizlik, "") +
      ") as tisci from brd where yil = ? group by kod) t "
      "left join dvr d on d.yilkod = ? || t.kod order by t.kod");
  komut->TamBagla(1, yil);
  komut->MetinBagla(2, YilKod(yil, {}));
  std::vector<DevredenKisi> kisiler;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    DevredenKisi& kisi = kisiler.emplace_back();
    KolonAl(*komut, 0, kisi.kod);
    kisi.toplam = ToplamAl(*komut, 1);
    for (Tutar* tutar : {&kisi.toplam.gvmatrah, &kisi.toplam.gvtutar, &kisi.toplam.issizlik}) *tutar = yuvarla(*tutar);
    if (komut->Turu(4) == Komut::Tur::Null) continue;
    kisi.satir = komut->Tam(4);
    kisi.eski = ToplamAl(*komut, 5);
  }
  return kisiler;
}

class DevirYazici {
 public:
  DevirYazici(Motor& motor, int yil)
      : yil_(yil),
        yazici_(motor),
        degistir_(motor.Hazirla("update dvr set gvmatrah = ?, gvtutar = ?, issizlik = ? where " +
                                motor.KimlikKolonu("dvr") + " = ?")) {}

  // A row that says the same already is left alone.
  void Yaz(const DevredenKisi& kisi) {
    if (!kisi.satir) {
      yazici_.Ekle(YeniSatir(kisi));
      return;
    }
    if (kisi.eski == kisi.toplam) return;
    int no = 0;
    for (const Tutar tutar : {kisi.toplam.gvmatrah, kisi.toplam.gvtutar, kisi.toplam.issizlik})
      degistir_->TamBagla(++no, tutar.Ham());
    degistir_->TamBagla(++no, *kisi.satir);
    degistir_->Calistir();
  }

 private:
  Dvr YeniSatir(const DevredenKisi& kisi) const {
    Dvr d;
    d.yilkod = YilKod(yil_, kisi.kod);
    d.kod = kisi.kod;
    d.yil = std::int16_t(yil_);
    d.gvmatrah = kisi.toplam.gvmatrah;
    d.gvtutar = kisi.toplam.gvtutar;
    d.issizlik = kisi.toplam.issizlik;
    return d;
  }

  int yil_;
  KayitYazici<Dvr> yazici_;
  std::unique_ptr<Komut> degistir_;
};

// What the store refuses for this row alone. A full disk or a failing one ends the run.
bool SatirKusuru(const MotorHatasi& hata) {
  return hata.tur == MotorKusuru::Kisit;
}

YillikDevirSonucu Devret(Motor& motor, int yil, Yuvarlayici yuvarla, Ilerleme* ilerleme) {
  Islem islem(motor, KilitBekleme);
  const auto kisiler = KisileriOku(motor, yil, yuvarla, ilerleme);
  YillikDevirSonucu sonuc{.kisi = int(kisiler.size()), .yazilamayanlar = {}};
  DevirYazici yazici(motor, yil);
  Asama asama(ilerleme, kisiler.size());
  for (const DevredenKisi& kisi : kisiler) {
    asama.Adim();
    try {
      yazici.Yaz(kisi);
    } catch (const MotorHatasi& hata) {
      if (!SatirKusuru(hata)) throw;
      sonuc.yazilamayanlar.push_back({.metin = "Kod : " + kisi.kod + "\nDataBase Güncellenemedi.", .kod = kisi.kod});
    }
  }
  if (ilerleme != nullptr) ilerleme->Adim(kisiler.size(), kisiler.size());
  if (ilerleme != nullptr && !ilerleme->Kesin()) throw Vazgecilmis{};
  islem.Onayla();
  return sonuc;
}

}  // namespace

Sonuc<YillikDevirSonucu> YillikDevir(Oturum& o, int yil, Ilerleme* ilerleme) {
  if (yil < IlkDevirYili) return KuralKusuru("Hatalı Dönem Seçilmiş..");
  const Yuvarlayici yuvarla(o.firma.paraonda);
  return Koru([&] { return Devret(o.depo.db.IcMotor(), yil, yuvarla, ilerleme); }, "DataBase Güncellenemedi.\n");
}

}  // namespace belvani
