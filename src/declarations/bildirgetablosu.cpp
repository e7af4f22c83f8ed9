#include "declarations/bildirgetablosu.h"

#include <algorithm>

#include "core/asama.h"
#include "core/dosya.h"
#include "core/turkce.h"
#include "core/veridizini.h"
#include "declarations/sablonyerleri.h"
#include "isyeri/isyerinumarasi.h"
#include "printing/excelkont.h"
#include "printing/xlscevir.h"

namespace belvani {
namespace {

constexpr const char* SablonAdi = "aylik";
constexpr int BelgeKolonu = 213;
constexpr int SayacKolonu = 50;
constexpr int IlkKisiSatiri = 101;
constexpr int KisiSatirAdimi = 5;
constexpr int ToplamSatiri = IlkKisiSatiri + int(TabloKisiSayisi) * KisiSatirAdimi;
constexpr const char* AracisizKod = "000";

// Empties a cell.
constexpr Null Bos{};

Hucre Metin(std::string_view metin) {
  const std::string_view kirpik = Kirp(metin);
  return kirpik.empty() ? Hucre(Bos) : Hucre(std::string(kirpik));
}

Hucre Pozitif(int sayi) {
  return sayi > 0 ? Hucre(std::int64_t(sayi)) : Hucre(Bos);
}

Hucre Kod(std::optional<int> kod) {
  return kod ? Hucre(std::int64_t(*kod)) : Hucre(Bos);
}

Hucre Oran(std::optional<Tek> oran) {
  return oran ? Hucre(Tutar(oran->Sayi())) : Hucre(Bos);
}

std::string Adres(const std::string& adr1, const std::string& adr2) {
  return adr1 + " " + adr2;
}

void KisiHucresi(excelkont& d, const char* kolon, int satir, const Hucre& deger) {
  d.SetExcel(kolon + std::to_string(satir), deger);
}

constexpr const char* KisiKolonlari[] = {"i",  "ap", "bn", "cl", "dc", "dj", "ea", "es",
                                         "fc", "fq", "gb", "gm", "gx", "hi", "hz"};

void ExcelBosalt(excelkont& d) {
  for (int satir = IlkKisiSatiri; satir < ToplamSatiri; satir += KisiSatirAdimi)
    for (const char* kolon : KisiKolonlari) KisiHucresi(d, kolon, satir, Bos);
}

// As an amount or a count; nothing on the sheets that do not have it.
Hucre Yalniz(bool olan, Hucre deger) {
  return olan ? std::move(deger) : Hucre(Bos);
}

void BelgeYaz(excelkont& d, const BildirgeKagidi& k, std::size_t sayfa, std::size_t sayfalar) {
  d.SetExcell(8, BelgeKolonu, std::int64_t(k.yil));
  d.SetExcell(12, BelgeKolonu, IkiHane(k.ay));
  d.SetExcell(18, BelgeKolonu, k.mahiyet == BelgeMahiyeti::Asil ? Hucre(std::string("X")) : Hucre(Bos));
  d.SetExcell(27, BelgeKolonu, Metin(k.belgeTuru));
  d.SetExcell(32, BelgeKolonu, Metin(k.kanun));
  d.SetExcel("he40", std::int64_t(sayfa));
  d.SetExcel("he46", std::int64_t(sayfalar));
}

// Digit by digit, as on the drawn form.
void IsyeriNumarasiYaz(excelkont& d, const BildirgeKagidi& k) {
  std::string haneler;
  const auto ekle = [&](std::string deger, int hane) {
    deger.resize(std::size_t(hane), ' ');
    haneler += deger;
  };
  const Firma& f = k.firma;
  ekle(f.sektor, 1);
  ekle(f.meslek, 4);
  ekle(f.sube, 4);
  ekle(f.dosya, 7);
  ekle(IlKodu(f), 3);
  ekle(f.ilce, 2);
  ekle(f.kontrol, 2);
  ekle(k.arac.kod, 3);
  int kolon = sablon::IlkNumaraKolonu;
  std::size_t sira = 0;
  for (const sablon::NumaraKutulari& grup : sablon::numaraKutulari) {
    for (int i = 0; i < grup.basamak; ++i, kolon += sablon::BasamakEni)
      d.SetExcell(sablon::NumaraSatiri, kolon, Metin(haneler.substr(sira++, 1)));
    kolon += sablon::GrupArasi;
  }
}

void TaraflariYaz(excelkont& d, const Firma& f, const Arac& a) {
  d.SetExcel("bz19", std::string("X"));
  d.SetExcel("dp19", a.kod == AracisizKod ? Hucre(Bos) : Hucre(std::string("X")));
  const std::pair<const char*, std::string> hucreler[] = {
      {"aw23", f.unvan},
      {"aw29", Adres(f.adr1, f.adr2)},
      {"aw34", "Semt: " + f.semt},
      {"bt37", "İl: " + f.adril},
      {"bt34", "İlçe: " + f.adrilce},
      {"bt40", "Posta Kodu: " + f.pk},
      {"aw43", f.tel},
      {"bt43", f.epos},
      {"aw47", f.verno},
      {"cp23", a.isim1},
      {"cp29", Adres(a.adr1, a.adr2)},
      {"cp34", "Semt: " + a.semt},
      {"ef37", "İl: " + a.il},
      {"ef34", "İlçe: " + a.ilce},
      {"ef40", "Posta Kodu: " + a.pk},
      {"cp43", a.tel},
      {"ef43", a.epos},
      {"cp47", a.tcno},
      {"ef47", a.vergi},
  };
  for (const auto& [adres, deger] : hucreler) d.SetExcel(adres, Metin(deger));
}

// Of all sheets together; on the first alone.
void SayaclariYaz(excelkont& d, const BildirgeToplamlari& t, bool ilk) {
  const Hucre sayaclar[] = {
      std::int64_t(t.sigortali),     std::int64_t(t.gun),        std::int64_t(t.giren), std::int64_t(t.ayrilan),
      std::int64_t(t.ucretliIzinli), std::int64_t(t.ucretliGun), t.ucretliKazanc};
  int satir = 61;
  for (const auto& sayac : sayaclar) {
    d.SetExcell(satir, SayacKolonu, Yalniz(ilk, sayac));
    satir += 4;
  }
}

void BranslariYaz(excelkont& d, const BildirgeKagidi& k, bool ilk) {
  int satir = 65;
  for (const std::size_t sira : KagitBransSirasi) {
    const KagitBransi& brans = k.branslar[sira];
    const std::string no = std::to_string(satir);
    d.SetExcel("em" + no, Yalniz(ilk, brans.matrah));
    d.SetExcel("gn" + no, Yalniz(ilk, Oran(brans.oran)));
    d.SetExcel("hl" + no, Yalniz(ilk, brans.prim));
    satir += 4;
  }
  d.SetExcel("hl85", Yalniz(ilk, k.genelToplam));
}

void TarihYaz(excelkont& d, int satir, const char* gunKolonu, const char* ayKolonu, Tarih gun) {
  if (gun.Bos()) return;
  KisiHucresi(d, gunKolonu, satir, IkiHane(gun.Gun()));
  KisiHucresi(d, ayKolonu, satir, IkiHane(gun.Ay()));
}

void KisiYaz(excelkont& d, int satir, const BildirgeSatiri& s) {
  const KazancBolumu kazanc = KazanciBol(s);
  KisiHucresi(d, "i", satir, Metin(s.tcno));
  KisiHucresi(d, "ap", satir, Metin(s.adi));
  KisiHucresi(d, "bn", satir, Metin(s.soyadi));
  KisiHucresi(d, "cl", satir, Metin(s.ilksoyadi));
  KisiHucresi(d, "dc", satir, Pozitif(s.gun.value_or(0)));
  if (s.primkazanc > Tutar()) KisiHucresi(d, "dj", satir, kazanc.ucret);
  if (kazanc.ikramiye > Tutar()) KisiHucresi(d, "ea", satir, kazanc.ikramiye);
  KisiHucresi(d, "es", satir, Pozitif(s.ui.value_or(0)));
  if (s.uiucret > Tutar()) KisiHucresi(d, "fc", satir, *s.uiucret);
  TarihYaz(d, satir, "fq", "gb", s.girtar);
  TarihYaz(d, satir, "gm", "gx", s.ciktar);
  KisiHucresi(d, "hi", satir, Kod(s.eksik));
  KisiHucresi(d, "hz", satir, Kod(s.ciksebeb));
}

// What a sheet has on its line of sums.
struct TabloToplami {
  int kisi = 0;
  KazancBolumu kazanc;
  int izinGunu = 0;
  Tutar izinUcreti;

  void Ekle(const BildirgeSatiri& s) {
    const KazancBolumu bolum = KazanciBol(s);
    ++kisi;
    kazanc.ucret += bolum.ucret;
    kazanc.ikramiye += bolum.ikramiye;
    izinGunu += s.ui.value_or(0);
    izinUcreti += s.uiucret.value_or(Tutar());
  }
};

void ToplamYaz(excelkont& d, const TabloToplami& t) {
  KisiHucresi(d, "dc", ToplamSatiri, std::int64_t(t.kisi));
  KisiHucresi(d, "dj", ToplamSatiri, t.kazanc.ucret);
  KisiHucresi(d, "ea", ToplamSatiri, t.kazanc.ikramiye);
  KisiHucresi(d, "es", ToplamSatiri, std::int64_t(t.izinGunu));
  KisiHucresi(d, "fc", ToplamSatiri, t.izinUcreti);
}

// Rows without a document type are passed over.
std::vector<BildirgeSatiri> YazilanKisiler(const BildirgeKagidi& k) {
  std::vector<BildirgeSatiri> kisiler = k.satirlar;
  std::erase_if(kisiler, [](const BildirgeSatiri& s) { return s.sigkol.value_or(0) <= 0; });
  return kisiler;
}

std::string SayfaAdi(std::size_t no) {
  return no == 1 ? std::string() : "Bildirge " + std::to_string(no);
}

// Fills the sheets of a form one after the other.
class TabloDoldurucu {
 public:
  TabloDoldurucu(excelkont& d, const BildirgeKagidi& kagit, Ilerleme* ilerleme)
      : d_(d),
        k_(kagit),
        kisiler_(YazilanKisiler(kagit)),
        sayfalar_(std::max<std::size_t>(1, (kisiler_.size() + TabloKisiSayisi - 1) / TabloKisiSayisi)),
        bizimForm_(d.AdVar(sablon::YerlerAdi)),
        asama_(ilerleme, kisiler_.size()) {}

  Durum Doldur() {
    if (sayfalar_ > TabloSayfaSiniri)
      return Kusur{"Bildirgede " + std::to_string(kisiler_.size()) + " kişi var; Excel formuna en çok " +
                   std::to_string(TabloSayfaSiniri * TabloKisiSayisi) + " kişi yazılabilir. E-Bildirge hazırlayınız."};
    for (std::size_t no = 2; no <= sayfalar_; ++no) d_.SayfaEkle(SayfaAdi(no));
    for (std::size_t no = 1; no <= sayfalar_; ++no) Sayfa(no);
    return Tamam();
  }

 private:
  void Sayfa(std::size_t no) {
    d_.SayfaSec(SayfaAdi(no));
    ExcelBosalt(d_);
    BelgeYaz(d_, k_, no, sayfalar_);
    if (bizimForm_) IsyeriNumarasiYaz(d_, k_);
    TaraflariYaz(d_, k_.firma, k_.arac);
    SayaclariYaz(d_, k_.toplamlar, no == 1);
    BranslariYaz(d_, k_, no == 1);
    Kisiler(no);
    d_.SetExcel("cg178", Metin(k_.muhasebeci.adsoyad));
    d_.SetExcel("cg183", Metin(k_.muhasebeci.sicil));
  }

  // The last sheet has the sums of all of them, with the counters of the declaration.
  void Kisiler(std::size_t no) {
    const std::size_t ilk = (no - 1) * TabloKisiSayisi;
    for (std::size_t i = 0; bizimForm_ && i < TabloKisiSayisi; ++i)
      d_.SetExcell(IlkKisiSatiri + int(i) * KisiSatirAdimi, sablon::SiraKolonu, std::int64_t(ilk + i + 1));
    TabloToplami sayfa;
    for (std::size_t i = ilk; i < std::min(kisiler_.size(), ilk + TabloKisiSayisi); ++i) {
      asama_.Adim();
      const int satir = IlkKisiSatiri + int(i - ilk) * KisiSatirAdimi;
      KisiYaz(d_, satir, kisiler_[i]);
      sayfa.Ekle(kisiler_[i]);
      tumu_.Ekle(kisiler_[i]);
    }
    if (no < sayfalar_) return ToplamYaz(d_, sayfa);
    tumu_.kisi = k_.toplamlar.sigortali;
    tumu_.izinGunu = k_.toplamlar.ucretliGun;
    tumu_.izinUcreti = k_.toplamlar.ucretliKazanc;
    ToplamYaz(d_, tumu_);
  }

  excelkont& d_;
  const BildirgeKagidi& k_;
  const std::vector<BildirgeSatiri> kisiler_;
  const std::size_t sayfalar_;
  const bool bizimForm_;
  Asama asama_;
  TabloToplami tumu_;
};

Sonuc<std::string> EskiSablon(const std::string& dosya, const std::string& donusturucu) {
  auto xlsx = XlsxeCevir(dosya, donusturucu);
  if (xlsx) return std::move(*xlsx);
  return Kusur{dosya + ": Excel formu eski biçimde (.xls) ve çevrilemedi. LibreOffice kurunuz ya da formu Excel'de " +
               ".xlsx olarak kaydediniz."};
}

}  // namespace

KazancBolumu KazanciBol(const BildirgeSatiri& s) {
  const Tutar kazanc = s.primkazanc.value_or(Tutar());
  const Tutar ikramiye = s.primdisi.value_or(Tutar());
  return {.ucret = kazanc > Tutar() ? kazanc - ikramiye : Tutar(), .ikramiye = ikramiye > Tutar() ? ikramiye : Tutar()};
}

Sonuc<std::string> BildirgeTablosuYap(std::string sablon, const BildirgeKagidi& kagit, Ilerleme* ilerleme) {
  if (kagit.satirlar.empty()) return sablon;
  excelkont d;
  if (const Durum acildi = d.KitapAc(std::move(sablon)); !acildi) return acildi.Kusuru();
  if (const Durum doldu = TabloDoldurucu(d, kagit, ilerleme).Doldur(); !doldu) return doldu.Kusuru();
  return d.Kitap();
}

Sonuc<std::string> TabloSablonu(const std::vector<std::string>& dizinler, const std::string& donusturucu) {
  std::string aranan;
  for (const auto& dizin : dizinler) {
    const std::string yol = dizin + SablonAdi;
    if (auto xlsx = DosyaOku(yol + ".xlsx")) return std::move(*xlsx);
    if (DosyaOku(yol + ".xls")) return EskiSablon(yol + ".xls", donusturucu);
    aranan += "\n" + yol + ".xlsx";
  }
  return Kusur{"Excel formu bulunamadı, aranan yerler:" + aranan};
}

Sonuc<std::string> TabloSablonu(const Oturum& oturum) {
  std::vector dizinler{VeriYolu(oturum.DataPath).YerelDizin()};
  if (!oturum.PrgPath.empty()) dizinler.push_back(oturum.PrgPath);
  dizinler.push_back(VeriDizini("sablon"));
  return TabloSablonu(dizinler);
}

}  // namespace belvani
