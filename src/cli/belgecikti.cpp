#include "cli/belgecikti.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cli/jsonakisi.h"
#include "printing/csvyazici.h"
#include "printing/excelkont.h"

namespace belvani::cli {
namespace {

Json HucreJson(const Hucre& hucre) {
  return std::visit([](const auto& deger) { return DegerJson(Deger(deger)); }, hucre);
}

// A name may come twice (the company names its allowances as it likes): the second gets a number, so none is lost.
void UyeEkle(Json& nesne, const std::string& ad, const Hucre& deger) {
  std::string tekAd = ad;
  for (int no = 2; nesne.contains(tekAd); ++no) tekAd = ad + " " + std::to_string(no);
  nesne[tekAd] = HucreJson(deger);
}

Json HucrelerJson(const Rapor& rapor, const std::vector<Hucre>& hucreler) {
  Json nesne = Json::object();
  for (std::size_t k = 0; k < hucreler.size(); ++k)
    if (rapor.Kolonlar()[k].tur != KolonTuru::Bos) UyeEkle(nesne, rapor.Kolonlar()[k].Adi(), hucreler[k]);
  return nesne;
}

Json BlokJson(const std::vector<BlokSatiri>& blok) {
  Json nesne = Json::object();
  for (const auto& satir : blok) {
    std::string ad(satir.etiket);
    ad.erase(ad.find_last_not_of(" :") + 1);
    UyeEkle(nesne, ad.substr(std::min(ad.size(), ad.find_first_not_of(' '))), satir.deger);
  }
  return nesne;
}

constexpr const char* SatirsizForm = "Bu belge bir form; csv ve json biçimi yok";

// The reports are pieces of one: their rows one after the other, and one sum of all.
class JsonRaporu {
 public:
  explicit JsonRaporu(MetinCikisi& cikis) : cikis_(cikis), satirlar_(cikis, Girinti) {}

  void Ekle(const Rapor& parca) {
    if (!toplamlar_) Basla(parca);
    for (const auto& satir : parca.Satirlar()) satirlar_.Ekle(HucrelerJson(parca, satir.hucreler));
    if (parca.ToplamVar()) toplamlar_->Ekle({parca.Toplam()});
  }
  void Bitir() {
    if (!toplamlar_) throw KomutHatasi{SatirsizForm};
    satirlar_.Bitir();
    if (toplamlar_->ToplamVar()) UyeYaz("toplam", HucrelerJson(*toplamlar_, toplamlar_->Toplam()));
    if (!toplamlar_->sonBlok.empty()) UyeYaz("icmal", BlokJson(toplamlar_->sonBlok));
    cikis_.Yaz("\n}\n");
  }

 private:
  static constexpr int Girinti = 2;

  void Basla(const Rapor& parca) {
    toplamlar_.emplace(parca.Kolonlar());
    toplamlar_->toplamEtiketi = parca.toplamEtiketi;
    toplamlar_->sonBlok = parca.sonBlok;
    cikis_.Yaz("{\n  \"baslik\": " + JsonMetni(parca.ekranBasligi) + ",\n  \"satirlar\": ");
  }
  void UyeYaz(const char* ad, const Json& deger) {
    cikis_.Yaz(",\n  \"" + std::string(ad) + "\": " + JsonMetni(deger, Girinti));
  }

  MetinCikisi& cikis_;
  JsonDizisi satirlar_;
  std::optional<Rapor> toplamlar_;  // a row for each piece
};

void JsonYaz(const Belge& belge, MetinCikisi& cikis) {
  JsonRaporu json(cikis);
  belge.VeriyiVer([&](const Rapor& parca) { json.Ekle(parca); });
  json.Bitir();
}

void CsvYaz(const Belge& belge, MetinCikisi& cikis) {
  bool basladi = false;
  belge.VeriyiVer([&](const Rapor& parca) {
    if (!std::exchange(basladi, true)) cikis.Yaz(CsvBasligi(parca));
    CsvSatirlariniVer(parca, [&](std::string_view satir) { cikis.Yaz(satir); });
  });
  if (!basladi) throw KomutHatasi{SatirsizForm};
}

std::string Xlsx(const Belge& belge) {
  auto baytlar = belge.Xlsx();
  return std::move(Degeri(baytlar));
}

void Uyar(const std::string& uyari) {
  if (!uyari.empty()) StandartHata().Uyari(uyari);
}

std::string Pdf(const Belge& belge) {
  auto pdf = BelgePdf(belge);
  if (Degeri(pdf).baytlar.empty()) throw KomutHatasi{"Basılacak kayıt yok, PDF dosyası yazılmadı"};
  Uyar(pdf->uyari);
  return std::move(pdf->baytlar);
}

// Whether a terminal can show it. Without a form the command writes no paper.
bool EkranaYazilir(const BelgeCiktisi& cikti) {
  const std::string& bicim = cikti.bicim;
  return bicim.empty() || bicim == "metin" || bicim == "csv" || bicim == "json" || bicim == cikti.ekMetin;
}

void MetinYaz(const Belge& belge, const BelgeCiktisi& cikti) {
  MetinCikisi cikis(cikti.dosya);
  if (cikti.bicim == "csv") {
    CsvYaz(belge, cikis);
  } else if (cikti.bicim == "json") {
    JsonYaz(belge, cikis);
  } else {
    Uyar(belge.MetinUyarisi());
    belge.MetniVer([&](std::string_view parca) { cikis.Yaz(parca); });
  }
  cikis.Bitir();
}

void BaytYaz(const Belge& belge, const BelgeCiktisi& cikti) {
  if (std::string yok = belge.BaskiYok(); !yok.empty() && cikti.bicim != "xlsx") throw KomutHatasi{std::move(yok)};
  const std::string baytlar = cikti.bicim == "xlsx" ? Xlsx(belge) : cikti.bicim == "pdf" ? Pdf(belge) : BelgeHam(belge);
  if (cikti.bicim == "ham") Uyar(belge.MetinUyarisi());
  BaytlariYaz(baytlar, cikti.dosya);
}

}  // namespace

void CiktiSecenekleri(CLI::App& komut, BelgeCiktisi& cikti, std::vector<std::string> bicimler, const char* ekMetin) {
  cikti.ekMetin = ekMetin;
  std::string yardim = "biçim";
  if (bicimler.empty()) {
    bicimler = {"metin", "csv", "json", "xlsx", "pdf", "ham"};
    yardim = "metin, csv, json, xlsx, pdf veya ham (metin yazıcısının baytları)";
  }
  if (!cikti.ekMetin.empty()) {
    bicimler.push_back(cikti.ekMetin);
    yardim += "; ya da " + cikti.ekMetin;
  }
  komut.add_option("--bicim", cikti.bicim, yardim)->check(CLI::IsMember(bicimler));
  komut.add_option("-o", cikti.dosya, "yazılacak dosya (metin, csv ve json verilmezse ekrana; - standart çıktı)");
  komut.parse_complete_callback([&cikti] {
    if (cikti.dosya.empty() && !EkranaYazilir(cikti))
      throw CLI::ValidationError("--bicim", cikti.bicim + " ekrana yazılmaz, dosyasını veriniz: -o DOSYA");
  });
}

std::string BelgeDosyaAdi(const std::string& ad, const std::string& bicim) {
  return DosyaAdi(ad) + (bicim == "metin" ? ".txt" : bicim == "ham" ? ".prn" : "." + bicim);
}

void BelgeYaz(const Belge& belge, const BelgeCiktisi& cikti) {
  EkranaYazilir(cikti) ? MetinYaz(belge, cikti) : BaytYaz(belge, cikti);
}

}  // namespace belvani::cli
