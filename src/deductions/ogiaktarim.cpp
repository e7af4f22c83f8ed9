#include "deductions/ogiaktarim.h"

#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "deductions/ogiharcama.h"
#include "personnel/hucreler.h"
#include "personnel/kayit.h"

namespace belvani {
namespace {

constexpr std::chrono::seconds KilitBekleme{60};

constexpr std::string_view HarcamaKolonu = "harcama";

// What a file may name; `kod` is first, as the key of a row.
const TabloTanimi& DosyaTanimi() {
  static const TabloTanimi tanim = [] {
    AlanTanimi harcama = dvr::ogimatrah;
    harcama.ad = HarcamaKolonu;
    TabloTanimi t;
    t.ad = Dvr::TabloAdi;
    t.alanlar = {sicil::kod, dvr::gvmatrah, dvr::ogimatrah, harcama};
    return t;
  }();
  return tanim;
}

// The column of the expense, under the one name or the other; -1 with both or none.
int HarcamaSirasi(AktarimDosyasi& dosya) {
  const int kisa = dosya.KolonSirasi(HarcamaKolonu), saklanan = dosya.KolonSirasi(dvr::ogimatrah.ad);
  if (kisa >= 0 && saklanan >= 0)
    dosya.sorunlar.push_back({.metin = "harcama: ogimatrah ile birlikte verilemez", .satir = 1});
  else if (kisa < 0 && saklanan < 0)
    dosya.sorunlar.push_back({.metin = "harcama: bu sütun dosyada olmalı", .satir = 1});
  else
    return std::max(kisa, saklanan);
  return -1;
}

class OgiAktarimi {
 public:
  OgiAktarimi(Motor& motor, const OgiKosullari& kosullar, AktarimDosyasi& dosya, AktarimSonucu& sonuc)
      : kosullar_(kosullar),
        dosya_(dosya),
        sonuc_(sonuc),
        kartlar_(motor),
        devirler_(motor),
        harcama_(HarcamaSirasi(dosya)),
        matrah_(dosya.KolonSirasi(dvr::gvmatrah.ad)) {}

  void Hepsi() {
    for (const AktarimSatiri& satir : dosya_.satirlar)
      if (const std::string kod = dosya_.Metin(satir, "kod"); !kod.empty() && harcama_ >= 0) Satir(satir, kod);
  }

 private:
  void Satir(const AktarimSatiri& satir, const std::string& kod) {
    const auto kart = kartlar_.Bul(kod);
    if (!kart) return dosya_.SorunEkle(satir, "kod", "bu kodla personel yok: " + kod);
    const auto ilk = devirler_.Bul(DvrAnahtari(kosullar_.yil, kod));
    Okunan<Dvr> girilen{.ilk = ilk, .simdi = ilk.value_or(Dvr{})};
    if (!ilk) girilen.simdi.kod = kart->kod;
    girilen.simdi.ogimatrah = TutarDegeri(satir.degerler[std::size_t(harcama_)]);
    if (matrah_ >= 0) girilen.simdi.gvmatrah = TutarDegeri(satir.degerler[std::size_t(matrah_)]);
    const auto kayit = OgiHarcamasiIsle(kosullar_, girilen);
    if (!kayit) return dosya_.SorunEkle(satir, AlanAdi(kayit.Kusuru()), kayit.KusurMetni());
    if (!dosya_.sorunlar.empty()) return;
    MatrahsiziUyar(satir, kod, kayit->simdi);
    if (const auto yazilan = devirler_.Yaz(*kayit); !yazilan)
      return dosya_.SorunEkle(satir, "kod", "kayıt yazılamadı: " + yazilan.KusurMetni());
    ++(ilk ? sonuc_.degisen : sonuc_.eklenen);
  }

  // A fault of the base is told there where the file has it, else of the person.
  std::string_view AlanAdi(const Kusur& kusur) const {
    if (kusur.alan == AlanTutamagi(dvr::ogimatrah)) return HarcamaKolonu;
    return kusur.alan == AlanTutamagi(dvr::gvmatrah) ? dvr::gvmatrah.ad : dvr::kod.ad;
  }

  void MatrahsiziUyar(const AktarimSatiri& satir, const std::string& kod, const Dvr& dvr) {
    if (dvr.gvmatrah != Tutar() || dvr.ogimatrah == Tutar()) return;
    sonuc_.uyarilar.push_back({.metin = std::to_string(kosullar_.yil) + " yılının G.V. matrahı yok, hak ediş 0",
                               .kod = kod,
                               .satir = satir.satirNo,
                               .derece = Derece::Uyari});
  }

  const OgiKosullari& kosullar_;
  AktarimDosyasi& dosya_;
  AktarimSonucu& sonuc_;
  Tablo<Sicil> kartlar_;
  Tablo<Dvr> devirler_;
  int harcama_, matrah_;
};

}  // namespace

Sonuc<AktarimSonucu> OgiHarcamaAktar(Oturum& o, int yil, const AktarilanCsv& csv, AktarimKipi kip) {
  const bool kaydet = kip == AktarimKipi::Kaydet;
  const OgiKosullari kosullar = OgiKosullariYukle(o, yil, kaydet ? BozukDosya::Onarilir : BozukDosya::Dokunulmaz);
  if (const auto engel = kosullar.Engel()) return *engel;
  auto dosya = AktarimDosyasiOku(csv, {&DosyaTanimi()}, "kod", AnahtarKurali::Tekil);
  if (!dosya) return dosya.Kusuru();
  return Koru([&]() -> Sonuc<AktarimSonucu> {
    AktarimSonucu sonuc;
    for (const std::string& uyari : kosullar.uyarilar)
      sonuc.uyarilar.push_back({.metin = uyari, .derece = Derece::Uyari});
    Motor& motor = o.depo.db.IcMotor();
    Islem islem(motor, KilitBekleme);
    OgiAktarimi(motor, kosullar, *dosya, sonuc).Hepsi();
    sonuc.sorunlar = std::move(dosya->sorunlar);
    if (sonuc.sorunlar.empty() && kaydet) islem.Onayla();
    return sonuc;
  });
}

}  // namespace belvani
