#include "declarations/bildirgetablosu.h"

#include "core/asama.h"
#include "core/dosya.h"
#include "core/turkce.h"
#include "core/veridizini.h"
#include "printing/excelkont.h"
#include "printing/xlscevir.h"

namespace belvani {
namespace {

constexpr const char* SablonAdi = "aylik";
constexpr int BelgeKolonu = 213;
constexpr int SayacKolonu = 50;
constexpr int IlkKisiSatiri = 101;
constexpr int KisiSatirAdimi = 5;
constexpr int ToplamSatiri = IlkKisiSatiri + TabloKisiSayisi * KisiSatirAdimi;
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

void BelgeYaz(excelkont& d, const BildirgeKagidi& k) {
  d.SetExcell(8, BelgeKolonu, std::int64_t(k.yil));
  d.SetExcell(12, BelgeKolonu, IkiHane(k.ay));
  d.SetExcell(18, BelgeKolonu, k.mahiyet == BelgeMahiyeti::Asil ? Hucre(std::string("X")) : Hucre(Bos));
  d.SetExcell(27, BelgeKolonu, Metin(k.belgeTuru));
  d.SetExcell(32, BelgeKolonu, Metin(k.kanun));
  d.SetExcel("he40", std::int64_t(1));
  d.SetExcel("he46", std::int64_t(1));
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

void SayaclariYaz(excelkont& d, const BildirgeToplamlari& t) {
  const Hucre sayaclar[] = {
      std::int64_t(t.sigortali),     std::int64_t(t.gun),        std::int64_t(t.giren), std::int64_t(t.ayrilan),
      std::int64_t(t.ucretliIzinli), std::int64_t(t.ucretliGun), t.ucretliKazanc};
  int satir = 61;
  for (const auto& sayac : sayaclar) {
    d.SetExcell(satir, SayacKolonu, sayac);
    satir += 4;
  }
}

void BranslariYaz(excelkont& d, const BildirgeKagidi& k) {
  int satir = 65;
  for (const std::size_t sira : KagitBransSirasi) {
    const KagitBransi& brans = k.branslar[sira];
    const std::string no = std::to_string(satir);
    d.SetExcel("em" + no, brans.matrah);
    d.SetExcel("gn" + no, Oran(brans.oran));
    d.SetExcel("hl" + no, brans.prim);
    satir += 4;
  }
  d.SetExcel("hl85", k.genelToplam);
}

void TarihYaz(excelkont& d, int satir, const char* gunKolonu, const char* ayKolonu, Tarih gun) {
  if (gun.Bos()) return;
  KisiHucresi(d, gunKolonu, satir, IkiHane(gun.Gun()));
  KisiHucresi(d, ayKolonu, satir, IkiHane(gun.Ay()));
}

// What of a person's base is wage and what bonus.
struct KazancBolumu {
  Tutar ucret;
  Tutar ikramiye;
};

KazancBolumu KazanciBol(const BildirgeSatiri& s) {
  const Tutar kazanc = s.primkazanc.value_or(Tutar());
  const Tutar ikramiye = s.primdisi.value_or(Tutar());
  return {.ucret = kazanc > Tutar() ? kazanc - ikramiye : Tutar(), .ikramiye = ikramiye > Tutar() ? ikramiye : Tutar()};
}

void KisiYaz(excelkont& d, int satir, const BildirgeSatiri& s, const KazancBolumu& kazanc) {
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

// Gives the number of people. The sums come last: where an eleventh person stands on their line, they are what counts.
int KisileriYaz(excelkont& d, const BildirgeKagidi& k, Ilerleme* ilerleme) {
  KazancBolumu toplam;
  int kisi = 0;
  Asama asama(ilerleme, k.satirlar.size());
  for (const auto& s : k.satirlar) {
    asama.Adim();
    if (s.sigkol.value_or(0) <= 0) continue;
    const KazancBolumu kazanc = KazanciBol(s);
    KisiYaz(d, IlkKisiSatiri + kisi++ * KisiSatirAdimi, s, kazanc);
    toplam.ucret += kazanc.ucret;
    toplam.ikramiye += kazanc.ikramiye;
  }
  KisiHucresi(d, "dc", ToplamSatiri, std::int64_t(k.toplamlar.sigortali));
  KisiHucresi(d, "dj", ToplamSatiri, toplam.ucret);
  KisiHucresi(d, "ea", ToplamSatiri, toplam.ikramiye);
  KisiHucresi(d, "es", ToplamSatiri, std::int64_t(k.toplamlar.ucretliGun));
  KisiHucresi(d, "fc", ToplamSatiri, k.toplamlar.ucretliKazanc);
  return kisi;
}

std::string TasmaUyarisi(int kisi) {
  if (kisi <= TabloKisiSayisi) return {};
  return "Excel formunda " + std::to_string(TabloKisiSayisi) + " kişilik yer var, bildirgede " + std::to_string(kisi) +
         " kişi var.\n11. kişi toplamların satırına, sonrakiler onun altına yazıldı.";
}

Sonuc<std::string> EskiSablon(const std::string& dosya, const std::string& donusturucu) {
  auto xlsx = XlsxeCevir(dosya, donusturucu);
  if (xlsx) return std::move(*xlsx);
  return Kusur{dosya + ": Excel formu eski biçimde (.xls) ve çevrilemedi. LibreOffice kurunuz ya da formu Excel'de " +
               ".xlsx olarak kaydediniz."};
}

}  // namespace

Sonuc<BildirgeTablosu> BildirgeTablosuYap(std::string sablon, const BildirgeKagidi& kagit, Ilerleme* ilerleme) {
  if (kagit.satirlar.empty()) return BildirgeTablosu{std::move(sablon), {}};
  excelkont d;
  if (const Durum acildi = d.KitapAc(std::move(sablon)); !acildi) return acildi.Kusuru();
  ExcelBosalt(d);
  BelgeYaz(d, kagit);
  TaraflariYaz(d, kagit.firma, kagit.arac);
  SayaclariYaz(d, kagit.toplamlar);
  BranslariYaz(d, kagit);
  const int kisi = KisileriYaz(d, kagit, ilerleme);
  d.SetExcel("cg178", Metin(kagit.muhasebeci.adsoyad));
  d.SetExcel("cg183", Metin(kagit.muhasebeci.sicil));
  auto baytlar = d.Kitap();
  if (!baytlar) return baytlar.Kusuru();
  return BildirgeTablosu{std::move(*baytlar), TasmaUyarisi(kisi)};
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
  std::vector dizinler{oturum.DataPath};
  if (!oturum.PrgPath.empty()) dizinler.push_back(oturum.PrgPath);
  dizinler.push_back(VeriDizini("sablon"));
  return TabloSablonu(dizinler);
}

}  // namespace belvani
