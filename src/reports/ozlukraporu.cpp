#include "reports/ozlukraporu.h"

#include "core/okunus.h"
#include "core/store/izlenenokuma.h"
#include "core/turkce.h"
#include "payroll/parametre/ikili.h"
#include "reports/kisiaraligi.h"
#include "reports/raporalani.h"

namespace belvani {
namespace {

constexpr std::size_t KayitBoyu = 83;
constexpr std::size_t DosyaBoyu = EnCokOzlukKolonu * KayitBoyu;

// The bound as a value that compares as the column does; a fault for a text that is none.
Sonuc<Deger> SinirDegeri(const RaporAlani& alan, const std::string& metin) {
  if (alan.Turu() == KolonTuru::Metin) return Deger(metin);
  std::string kusur;
  Deger deger = MetniCevir(alan.kolon, metin, kusur);
  if (kusur.empty()) return deger;
  std::string virgullu;
  if (const std::string duz = SayiyiDuzelt(metin, OndalikImi::Belirsiz, virgullu); virgullu.empty())
    deger = MetniCevir(alan.kolon, duz, kusur);
  if (kusur.empty()) return deger;
  return KuralKusuru(std::string(alan.ad) + ": " + metin + ": " + kusur);
}

std::optional<Kusur> SinirKusuru(const RaporAlani& alan, const std::string& metin, AlanTutamagi yeri) {
  if (metin.empty()) return {};
  if (auto deger = SinirDegeri(alan, metin); !deger) return KuralKusuru(deger.KusurMetni(), yeri);
  return {};
}

void Yaz(IkiliYazici& y, const OzlukKolonu& kolon) {
  y.Metin(kolon.alan, RaporMetniHarfi);
  y.Metin(kolon.baslik, RaporMetniHarfi);
  y.Bayt(kolon.en);
  y.Metin(kolon.baslangic, RaporMetniHarfi);
  y.Metin(kolon.bitis, RaporMetniHarfi);
  y.Kisa(kolon.isaret);
}

OzlukKolonu Oku(std::string_view kayit) {
  IkiliOkuyucu o(kayit);
  OzlukKolonu kolon;
  o.Metin(kolon.alan, RaporMetniHarfi);
  o.Metin(kolon.baslik, RaporMetniHarfi);
  o.Bayt(kolon.en);
  o.Metin(kolon.baslangic, RaporMetniHarfi);
  o.Metin(kolon.bitis, RaporMetniHarfi);
  o.Kisa(kolon.isaret);
  for (std::string* metin : {&kolon.baslik, &kolon.baslangic, &kolon.bitis}) *metin = Kirp(std::string(*metin));
  return kolon;
}

SorguMetni Sorgu(const OzlukKolonlari& kolonlar, const KisiAraligi& kisiler) {
  std::string secilen;
  for (const auto& kolon : kolonlar) {
    const auto& alan = *RaporAlaniBul(OzlukAlanlari(), kolon.alan);
    secilen += (secilen.empty() ? "" : ", ") + (alan.sql.empty() ? "null" : alan.sql);
  }
  SorguMetni sorgu("select " + secilen + " from sicil s join kimlik k on k.kod = s.kod where 1 = 1", {});
  for (const auto& kolon : kolonlar) {
    const auto& alan = *RaporAlaniBul(OzlukAlanlari(), kolon.alan);
    if (alan.sql.empty()) continue;
    const auto ekle = [&](const std::string& sinir, const char* islem) {
      if (!sinir.empty()) sorgu.Ekle(" and " + alan.sql + islem, *SinirDegeri(alan, sinir));
    };
    ekle(kolon.baslangic, " >= ?");
    ekle(kolon.bitis, " <= ?");
  }
  KisileriSec(sorgu, kisiler);
  sorgu.Ekle(" order by s.kod");
  return sorgu;
}

Rapor BosRapor(const OzlukKolonlari& kolonlar, const RaporBicimi& bicim, int paraOndaligi) {
  std::vector<RaporKolonu> raporunki;
  for (const auto& kolon : kolonlar) {
    const auto& alan = *RaporAlaniBul(OzlukAlanlari(), kolon.alan);
    raporunki.push_back({.baslik = kolon.baslik,
                         .kisaBaslik = kolon.baslik,
                         .en = kolon.en,
                         .tur = alan.Turu(),
                         .ondalik = alan.Tutardir() ? paraOndaligi : 0});
  }
  Rapor rapor(std::move(raporunki));
  rapor.baslik = rapor.ekranBasligi = bicim.baslik;
  rapor.paraOndaligi = paraOndaligi;
  if (!bicim.aciklama.empty()) rapor.ustSatirlar.push_back({.orta = bicim.aciklama});
  return rapor;
}

}  // namespace

bool RaporMetniSigar(const std::string& metin) {
  return HarfSayisi(metin) <= std::size_t(RaporMetniHarfi) && metin == DenetimsizMetin(metin) &&
         KodSayfasinaSigar(metin, KodSayfasi::Windows1254);
}

std::optional<Kusur> KolonKusuru(const OzlukKolonu& kolon) {
  const auto yeri = [](const char* ad) { return AlanTutamagi{typeid(OzlukKolonu), ad}; };
  const RaporAlani* alan = RaporAlaniBul(OzlukAlanlari(), kolon.alan);
  if (alan == nullptr) return KuralKusuru("Database Alanı Secilmemiş..", yeri("alan"));
  if (Kirp(kolon.baslik).empty()) return KuralKusuru("Kolon Başlığı Yazılmamış", yeri("baslik"));
  if (kolon.en == 0) return KuralKusuru("Kolon Uzunluğu Yazılmamış", yeri("en"));
  if (kolon.en > EnGenisOzlukKolonu)
    return KuralKusuru("Uzunluk en çok " + std::to_string(EnGenisOzlukKolonu) + " olabilir", yeri("en"));
  for (const auto& [ad, metin] :
       {std::pair{"baslik", &kolon.baslik}, std::pair{"baslangic", &kolon.baslangic}, std::pair{"bitis", &kolon.bitis}})
    if (!RaporMetniSigar(*metin)) return KuralKusuru("Rapor dosyasına yazılamayan metin: " + *metin, yeri(ad));
  if (auto kusur = SinirKusuru(*alan, kolon.baslangic, yeri("baslangic"))) return kusur;
  return SinirKusuru(*alan, kolon.bitis, yeri("bitis"));
}

std::string OzlukRaporuBaytlari(const OzlukKolonlari& kolonlar) {
  IkiliYazici y;
  for (const auto& kolon : kolonlar) Yaz(y, kolon);
  for (std::size_t i = kolonlar.size(); i < EnCokOzlukKolonu; ++i) Yaz(y, {});
  return y.Baytlar();
}

Sonuc<OzlukKolonlari> OzlukRaporuCoz(std::string_view baytlar) {
  if (baytlar.size() != DosyaBoyu) return KuralKusuru(BozukRapor);
  OzlukKolonlari kolonlar;
  for (std::size_t i = 0; i < EnCokOzlukKolonu; ++i) {
    OzlukKolonu kolon = Oku(baytlar.substr(i * KayitBoyu, KayitBoyu));
    if (kolon.baslik.empty()) continue;
    if (const auto kusur = KolonKusuru(kolon))
      return KuralKusuru(std::string(BozukRapor) + "\n" + std::to_string(i + 1) + ". kolon: " + kusur->metin);
    kolonlar.push_back(std::move(kolon));
  }
  return kolonlar;
}

Rapor OzlukRaporu(Motor& motor, const OzlukKolonlari& kolonlar, const KisiAraligi& kisiler, const RaporBicimi& bicim,
                  int paraOndaligi, Ilerleme* ilerleme) {
  Rapor rapor = BosRapor(kolonlar, bicim, paraOndaligi);
  if (kolonlar.empty()) return rapor;
  std::vector<const RaporAlani*> alanlar;
  for (const auto& kolon : kolonlar) alanlar.push_back(RaporAlaniBul(OzlukAlanlari(), kolon.alan));
  const auto komut = Sorgu(kolonlar, kisiler).Hazirla(motor);
  for (IzlenenOkuma okuma(*komut, ilerleme); rapor.Satirlar().size() < bicim.enCokSatir && okuma.Adim();) {
    RaporSatiri satir;
    satir.hucreler.reserve(kolonlar.size());
    for (std::size_t i = 0; i < kolonlar.size(); ++i)
      satir.hucreler.push_back(AlanHucresi(*komut, int(i), *alanlar[i], kolonlar[i].en));
    rapor.Ekle(std::move(satir));
  }
  return rapor;
}

}  // namespace belvani
