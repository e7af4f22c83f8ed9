#include "personnel/hucreler.h"

#include <set>

#include "core/turkce.h"
#include "personnel/listeler.h"

namespace belvani {
namespace {

// Fields that hold a position of a fixed list: the last position there is.
struct ListeSiniri {
  std::string_view tablo;
  std::string_view alan;
  std::int64_t enCok;
};

constexpr ListeSiniri ListeSinirlari[] = {
    {"sicil", "sskdurum", 32},
    {"sicil", "ucrettipi", SonSira(UcretTipleri)},
    {"sicil", "ucretags", SonSira(UcretEsaslari)},
    {"sicil", "sakatdrc", SonSira(SakatlikDereceleri)},
    {"sicil", "tur", 18},
    {"kimlik", "cins", SonSira(Cinsiyetler)},
    {"kimlik", "medeni", SonSira(MedeniHaller)},
    {"kimlik", "dini", SonSira(Dinler)},
    {"kimlik", "kan", SonSira(KanGruplari)},
    {"kimlik", "tahsil", SonSira(Tahsiller)},
    {"esco", "yakinlik", std::ssize(Yakinliklar)},
    {"esco", "cins", SonSira(KodluCinsiyetler)},
    {"esco", "agiok", SonSira(AgiDurumlari)},
    {"muaf", "indtip", 5},
    {"indir", "indtip", 4},
    {"sendika", "yer", 4},
    {"firma", "tehlike", 2},
    {"firma", "sinif", 11},
    {"firma", "paraonda", 4},
    {"firma", "firmaay", 12},
    {"muaf", "no", 11},
    {"indir", "no", 3},
};

std::string SinirKusuru(const AktarimKolonu& kolon, const Deger& deger) {
  for (const auto& s : ListeSinirlari)
    if (s.tablo == kolon.tablo->ad && s.alan == kolon.alan->ad &&
        (SayiDegeri(deger) < 0 || SayiDegeri(deger) > double(s.enCok)))
      return "0 ile " + std::to_string(s.enCok) + " arasında olmalı";
  const bool ucret = kolon.alan->ad == "ucret" || kolon.alan->ad.starts_with("indtut");
  return ucret && SayiDegeri(deger) < 0 ? "eksi olamaz" : "";
}

AktarimKolonu KolonBul(const std::vector<const TabloTanimi*>& tablolar, const std::string& baslik) {
  for (const TabloTanimi* tablo : tablolar)
    if (const AlanTanimi* alan = tablo->AlanBul(baslik)) return {tablo, alan};
  return {};
}

AktarimSatiri SatirCevir(const CsvTablosu& csv, const CsvSatiri& satir, AktarimDosyasi& dosya) {
  AktarimSatiri sonuc{satir.satirNo, {}};
  for (std::size_t i = 0; i < satir.hucreler.size(); ++i) {
    std::string kusur;
    Deger deger;
    if (const auto& kolon = dosya.kolonlar[i]; kolon.alan != nullptr) {
      deger = MetindenDeger(*kolon.alan, satir.hucreler[i], kusur);
      if (kusur.empty()) kusur = SinirKusuru(kolon, deger);
    }
    if (!kusur.empty()) dosya.sorunlar.push_back({satir.satirNo, csv.basliklar[i], kusur});
    sonuc.degerler.push_back(std::move(deger));
  }
  return sonuc;
}

void AnahtarDenetle(AktarimDosyasi& dosya, std::string_view anahtar, AnahtarKurali kural) {
  const auto kucuk = [](const std::string& a, const std::string& b) { return TurkceKarsilastir(a, b) < 0; };
  std::set<std::string, decltype(kucuk)> gorulen(kucuk);
  for (const auto& satir : dosya.satirlar) {
    const std::string deger = dosya.Metin(satir, anahtar);
    if (deger.empty() || deger == "0")
      dosya.sorunlar.push_back({satir.satirNo, std::string(anahtar), "boş bırakılamaz"});
    else if (!gorulen.insert(deger).second && kural == AnahtarKurali::Tekil)
      dosya.sorunlar.push_back({satir.satirNo, std::string(anahtar), "dosyada iki kez var: " + deger});
  }
}

}  // namespace

int AktarimDosyasi::KolonSirasi(std::string_view alan) const {
  for (std::size_t i = 0; i < kolonlar.size(); ++i)
    if (kolonlar[i].alan != nullptr && kolonlar[i].alan->ad == alan) return int(i);
  return -1;
}

std::string AktarimDosyasi::Metin(const AktarimSatiri& satir, std::string_view alan) const {
  const int sira = KolonSirasi(alan);
  return sira < 0 ? std::string() : MetinDegeri(satir.degerler[std::size_t(sira)]);
}

Sonuc<AktarimDosyasi> AktarimDosyasiOku(std::string_view csv, const std::vector<const TabloTanimi*>& tablolar,
                                        std::string_view anahtar, AnahtarKurali kural) {
  const auto tablo = CsvOku(csv);
  if (!tablo) return tablo.Kusuru();
  AktarimDosyasi dosya;
  for (const auto& baslik : tablo->basliklar) {
    dosya.kolonlar.push_back(KolonBul(tablolar, baslik));
    const AlanTanimi* alan = dosya.kolonlar.back().alan;
    if (alan == nullptr)
      dosya.sorunlar.push_back({1, baslik, "böyle bir alan yok"});
    else if (alan->nitelik == AlanNiteligi::Otomatik)
      dosya.sorunlar.push_back({1, baslik, "bu numarayı program verir, dosyada olamaz"});
  }
  if (!anahtar.empty() && dosya.KolonSirasi(anahtar) < 0) {
    dosya.sorunlar.push_back({1, std::string(anahtar), "bu sütun dosyada olmalı"});
    return dosya;
  }
  for (const auto& satir : tablo->satirlar) dosya.satirlar.push_back(SatirCevir(*tablo, satir, dosya));
  if (!anahtar.empty()) AnahtarDenetle(dosya, anahtar, kural);
  return dosya;
}

}  // namespace belvani
