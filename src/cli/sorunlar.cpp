#include "cli/sorunlar.h"

namespace belvani::cli {
namespace {

constexpr std::size_t EnCokGosterilen = 100;

}  // namespace

void SorunListesi::SecenekEkle(CLI::App& komut) {
  komut.add_option("--sorunlar", dosya_, "bulunan sorunların hepsinin yazılacağı dosya (ekranda ilk 100'ü görünür)")
      ->type_name("DOSYA");
}

SorunListesi SorunListesi::Sirketinki(const SirketIsi& isi) const {
  SorunListesi liste;
  liste.dosya_ = isi.Dosya(dosya_, "sorunlar.txt");
  return liste;
}

std::string SorunListesi::Metin(const std::vector<std::string>& satirlar) const {
  if (!dosya_.empty()) {
    HedefDosya hedef = HedefAc(dosya_);
    for (const std::string& satir : satirlar) Basarmali(hedef.Ekle(satir + "\n"));
    Basarmali(hedef.Bitir());
  }
  std::string metin;
  for (std::size_t i = 0; i < std::min(satirlar.size(), EnCokGosterilen); ++i) metin += "\n" + satirlar[i];
  if (satirlar.size() > EnCokGosterilen)
    metin += "\n… toplam " + std::to_string(satirlar.size()) +
             " sorun, hepsi: " + (dosya_.empty() ? "--sorunlar DOSYA" : dosya_);
  return metin;
}

void SorunListesi::SatirKusurlariylaBitir(const std::string& baslik, const Kusurlar& kusurlar) const {
  std::vector<std::string> satirlar;
  for (const Kusur& kusur : kusurlar) satirlar.push_back("  satır " + std::to_string(kusur.satir) + ", " + kusur.metin);
  if (!satirlar.empty()) throw KomutHatasi{baslik + Metin(satirlar)};
}

void SorunListesi::Soyle(Bildirim& bildirim, const std::vector<std::string>& satirlar) const {
  if (const std::string metin = Metin(satirlar); !metin.empty()) bildirim.Uyari(metin.substr(1));
}

}  // namespace belvani::cli
