#include "cli/belgecikti.h"

#include <algorithm>

#include "printing/csvyazici.h"

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
    if (rapor.Kolonlar()[k].tur != KolonTuru::Bos) UyeEkle(nesne, rapor.Kolonlar()[k].kisaBaslik, hucreler[k]);
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

std::string JsonRaporu(const Rapor& rapor) {
  Json json{{"baslik", rapor.ekranBasligi}, {"satirlar", Json::array()}};
  for (const auto& satir : rapor.Satirlar()) json["satirlar"].push_back(HucrelerJson(rapor, satir.hucreler));
  if (rapor.ToplamVar()) json["toplam"] = HucrelerJson(rapor, rapor.Toplam());
  if (!rapor.sonBlok.empty()) json["icmal"] = BlokJson(rapor.sonBlok);
  return json.dump(2) + "\n";
}

std::string Xlsx(const Belge& belge) {
  auto baytlar = belge.Xlsx();
  return std::move(Degeri(baytlar));
}

std::string Uyarili(std::string cikti, const std::string& uyari) {
  if (!uyari.empty()) StandartHata().Uyari(uyari);
  return cikti;
}

std::string Pdf(const Belge& belge) {
  auto pdf = BelgePdf(belge);
  if (Degeri(pdf).baytlar.empty()) throw KomutHatasi{"Basılacak kayıt yok, PDF dosyası yazılmadı"};
  return Uyarili(std::move(pdf->baytlar), pdf->uyari);
}

// A statutory form has no rows.
std::string Satirlar(const Belge& belge, std::string (*yaz)(const Rapor&)) {
  const auto veri = belge.Veri();
  if (veri == nullptr) throw KomutHatasi{"Bu belge bir form; csv ve json biçimi yok"};
  return yaz(*veri);
}

std::string Cikti(const Belge& belge, const std::string& bicim) {
  if (bicim == "csv") return Satirlar(belge, CsvRaporu);
  if (bicim == "json") return Satirlar(belge, JsonRaporu);
  if (bicim == "xlsx") return Xlsx(belge);
  if (bicim == "pdf") return Pdf(belge);
  return Uyarili(bicim == "ham" ? BelgeHam(belge) : belge.Metin(), belge.MetinUyarisi());
}

// Whether a terminal can show it.
bool EkranaYazilir(const std::string& bicim) {
  return bicim == "metin" || bicim == "csv" || bicim == "json";
}

}  // namespace

void CiktiSecenekleri(CLI::App& komut, BelgeCiktisi& cikti) {
  komut.add_option("--bicim", cikti.bicim, "metin, csv, json, xlsx, pdf veya ham (metin yazıcısının baytları)")
      ->check(CLI::IsMember({"metin", "csv", "json", "xlsx", "pdf", "ham"}));
  komut.add_option("-o", cikti.dosya, "yazılacak dosya (metin, csv ve json verilmezse ekrana; - standart çıktı)");
  komut.parse_complete_callback([&cikti] {
    if (cikti.dosya.empty() && !EkranaYazilir(cikti.bicim))
      throw CLI::ValidationError("--bicim", cikti.bicim + " ekrana yazılmaz, dosyasını veriniz: -o DOSYA");
  });
}

void BelgeYaz(const Belge& belge, const BelgeCiktisi& cikti) {
  const std::string icerik = Cikti(belge, cikti.bicim);
  EkranaYazilir(cikti.bicim) ? Yaz(icerik, cikti.dosya) : BaytlariYaz(icerik, cikti.dosya);
}

}  // namespace belvani::cli
