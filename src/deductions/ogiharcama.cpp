#include "deductions/ogiharcama.h"

#include "core/sayi.h"
#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "documents/turetilen.h"
#include "payroll/hesap/bordro.h"
#include "personnel/kart.h"

namespace belvani {
namespace {

constexpr const char* Guncellenemedi = "Personel Devir Bilgileri Güncellenemedi";

std::string_view DvrEtiketi(std::string_view, std::string_view kolon) {
  if (kolon == dvr::gvmatrah.ad) return "Kum.G.V. Matrahı";
  if (kolon == dvr::ogimatrah.ad) return "Harcama";
  if (kolon == dvr::ogitutar.ad) return "Hak Ediş";
  return kolon;
}

Sonuc<OzelGiderSonucu> Hesapla(const OgiKosullari& kosullar, const Dvr& d) {
  return TasmaKoru([&] {
    return OzelGiderHesapla(kosullar.tablo, kosullar.parametreler.oran,
                            {kosullar.yil, d.gvmatrah, d.gvtutar, d.ogimatrah}, kosullar.yuvarla);
  });
}

Yazim<Dvr> DvrYaz(Oturum& o, const Okunan<Dvr>& kayit) {
  const Yazim<Dvr> yazilamadi{YazmaEngeli<Dvr>(Kusur{Guncellenemedi})};
  return o.depo.db.Koru(yazilamadi, [&] { return Tablo<Dvr>(o.depo.db.IcMotor(), DvrEtiketi).Yaz(kayit); });
}

}  // namespace

Sonuc<std::vector<OgiHarcamasi>> OgiHarcamalariOku(Oturum& o, int yil) {
  return Koru([&] {
    Motor& motor = o.depo.db.IcMotor();
    const auto komut = motor.Hazirla("select " + SecimListesi<Dvr>(motor, "d") +
                                     ", s.adi, s.soyadi from dvr d join sicil s on s.kod = d.kod where d.yil = ? order "
                                     "by d.kod");
    komut->TamBagla(1, yil);
    std::vector<OgiHarcamasi> harcamalar;
    while (komut->Adim()) {
      OgiHarcamasi& h = harcamalar.emplace_back();
      Sicil sicil;
      const int ad = KayitAl(*komut, 0, h.dvr);
      KolonAl(*komut, ad, sicil.adi);
      KolonAl(*komut, ad + 1, sicil.soyadi);
      h.adSoyad = AdSoyad(sicil);
    }
    return harcamalar;
  });
}

std::string DvrAnahtari(int yil, std::string_view kod) {
  return std::to_string(yil) + BuyukHarf(TemizKod(kod));
}

Sonuc<OgiKisiKaydi> OgiKisisiBul(Oturum& o, int yil, std::string_view kod) {
  if (TemizKod(kod).empty()) return KuralKusuru("Personel Sicil Kodunu Giriniz.", dvr::kod);
  return Koru([&]() -> Sonuc<OgiKisiKaydi> {
    Motor& motor = o.depo.db.IcMotor();
    const auto kart = Tablo<Sicil>(motor).Bul(TemizKod(kod));
    if (!kart) return KuralKusuru("Personel Kodu Bulunamadı", dvr::kod);
    return OgiKisiKaydi{AdSoyad(*kart), Tablo<Dvr>(motor).Bul(DvrAnahtari(yil, kod))};
  });
}

Sonuc<Okunan<Dvr>> OgiHarcamasiIsle(const OgiKosullari& kosullar, Okunan<Dvr> girilen) {
  if (auto engel = kosullar.Engel()) return *std::move(engel);
  Dvr& d = girilen.simdi;
  if (d.ogimatrah < Tutar()) return KuralKusuru("Harcama eksi olamaz", dvr::ogimatrah);
  if (d.gvmatrah < Tutar()) return KuralKusuru("Kum.G.V. Matrahı eksi olamaz", dvr::gvmatrah);
  if (!girilen.ilk) {
    d.yilkod = DvrAnahtari(kosullar.yil, d.kod);
    d.kod = BuyukHarf(TemizKod(d.kod));
    d.yil = std::int16_t(kosullar.yil);
  }
  const auto sonuc = Hesapla(kosullar, d);
  if (!sonuc) return sonuc.Kusuru();
  d.ogitutar = sonuc->ogitutar;
  return girilen;
}

std::string OgiHesapSatiri(const OgiKosullari& kosullar, const Dvr& dvr, int ondalik) {
  const auto para = [&](Tutar tutar) { return TutarMetni(tutar, ondalik); };
  const auto sonuc = Hesapla(kosullar, dvr);
  if (!sonuc) return sonuc.KusurMetni();
  if (!EskiOzelGiderKurali(kosullar.yil))
    return "Harcamanın matrahı aşmayan bölümü " + para(sonuc->indirim) + " · tablodan " + para(sonuc->ogitutar);
  return "İndirim " + para(sonuc->indirim) + " (harcamanın üçte biri, matrahın en çok %" +
         SayiMetni(kosullar.parametreler.oran.Sayi()) + "'i) · kalan matrahın vergisi " + para(sonuc->vergi) +
         " · yılın vergisi " + para(dvr.gvtutar) + " · fark " + para(sonuc->ogitutar);
}

Yazim<Dvr> OgiHarcamaKaydet(Oturum& o, const OgiKosullari& kosullar, const Okunan<Dvr>& girilen) {
  const auto kayit = OgiHarcamasiIsle(kosullar, girilen);
  return kayit ? DvrYaz(o, *kayit) : Yazim<Dvr>(kayit.Kusuru());
}

Sonuc<std::optional<Dvr>> OgiHarcamaSil(Oturum& o, std::string_view yilkod, Bildirim& bildirim) {
  const std::string anahtar(yilkod);
  const auto bul = [&] { return Tablo<Dvr>(o.depo.db.IcMotor()).Bul(anahtar); };
  const auto bulunan = Koru(bul);
  if (!bulunan) return bulunan.Kusuru();
  const std::string kim = *bulunan ? (*bulunan)->kod : std::string();
  if (!bildirim.SilinsinMi("Kayıt Silinecek Eminmisiniz ?", kim)) return std::optional<Dvr>();
  const auto simdi = Koru(bul);
  if (!simdi) return simdi.Kusuru();
  if (!*simdi) return KuralKusuru("Silinecek Kayıt Bulunamadı");
  Okunan<Dvr> kayit{.ilk = *simdi, .simdi = **simdi};
  kayit.simdi.ogimatrah = Tutar();
  const auto yazilan = DvrYaz(o, kayit);
  if (!yazilan) return Kusur(yazilan.Kusuru());
  return std::optional(*yazilan);
}

}  // namespace belvani
