#include "core/session/kisayol.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "core/dosya.h"
#include "core/session/programdosyasi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::string_view DosyaAdi = "tolu.icn", BozukAdi = "tolu.icn.bozuk";
constexpr KodSayfasi Sayfa = KodSayfasi::Windows1254;

struct MetinAlani {
  const char* baslik;
  std::size_t boy;
  std::string Kisayol::*uye;
};
constexpr MetinAlani AdAlani{"Kısa Yol Adı", 40, &Kisayol::ad};
constexpr MetinAlani IkonAlani{"İcon", 48, &Kisayol::ikon};
constexpr MetinAlani ParametreAlani{"Parametre", 40, &Kisayol::parametre};
constexpr std::size_t KayitBoyu = AdAlani.boy + 1 + IkonAlani.boy + ParametreAlani.boy;
static_assert(KayitBoyu == 129);

// Text up to the filling; nothing when there is something behind it, or a control character in it.
std::optional<std::string> MetinCoz(std::string_view baytlar) {
  const std::string_view metin = baytlar.substr(0, baytlar.find('\0'));
  const auto dolgu = [](char c) { return c == '\0'; };
  if (!std::all_of(baytlar.begin() + std::ptrdiff_t(metin.size()), baytlar.end(), dolgu)) return std::nullopt;
  if (DenetimsizMetin(metin) != metin) return std::nullopt;
  return KodSayfasindan(metin, Sayfa);
}

std::optional<Kisayol> KayitCoz(std::string_view kayit) {
  const auto ad = MetinCoz(kayit.substr(0, AdAlani.boy));
  const std::size_t program = static_cast<unsigned char>(kayit[AdAlani.boy]);
  const auto ikon = MetinCoz(kayit.substr(AdAlani.boy + 1, IkonAlani.boy));
  const auto parametre = MetinCoz(kayit.substr(AdAlani.boy + 1 + IkonAlani.boy));
  if (!ad || !ikon || !parametre || program >= KisayolProgramlari.size()) return std::nullopt;
  return Kisayol{*ad, program, *ikon, *parametre};
}

std::string AlanKusuru(const Kisayol& k, const MetinAlani& alan) {
  const std::string& metin = k.*alan.uye;
  const std::string on = std::string(alan.baslik) + ": ";
  if (!GecerliUtf8(metin) || DenetimsizMetin(metin) != metin || !KodSayfasinaSigar(metin, Sayfa))
    return on + "kullanılamayan bir harf var";
  if (HarfSayisi(metin) > alan.boy) return on + "en çok " + std::to_string(alan.boy) + " harf olabilir";
  return {};
}

std::string Kusuru(const Kisayol& k) {
  if (Kirp(k.ad).empty()) return "Kısa yolun adı boş olamaz";
  if (k.program >= KisayolProgramlari.size()) return "Kısa yolun programı seçilmemiş: " + k.ad;
  for (const auto& alan : {AdAlani, IkonAlani, ParametreAlani})
    if (std::string kusur = AlanKusuru(k, alan); !kusur.empty()) return kusur;
  return {};
}

std::string Baytlari(const Kisayol& k) {
  const auto metin = [&](const MetinAlani& alan) {
    std::string baytlar = KodSayfasina(k.*alan.uye, Sayfa);
    baytlar.resize(alan.boy, '\0');
    return baytlar;
  };
  return metin(AdAlani) + char(k.program) + metin(IkonAlani) + metin(ParametreAlani);
}

// A file that could not be read is kept beside the new one.
Durum BozuguSakla(const Oturum& o) {
  if (KisayollariOku(o)) return Tamam();
  const auto icerik = DosyaOku(ProgramDosyasi(o.PrgPath, DosyaAdi));
  return icerik ? ProgramDosyasiYaz(o.PrgPath, BozukAdi, *icerik) : Tamam();
}

}  // namespace

std::vector<Kisayol> IlkKisayollar() {
  std::vector<Kisayol> liste;
  for (const char* ad : {"Personel Kartları", "Personel Girişi", "Personel Çıkışı", "Bordro Hazırlık", "Bordro Basımı",
                         "Bordro Özeti", "Yasal Oranlar", "Firma Bilgileri", "Firma Değiştir", "Görünüm Ayarları"})
    liste.push_back({ad, KisayolProgrami(ad), "", ""});
  return liste;
}

Sonuc<std::vector<Kisayol>> KisayollariOku(const Oturum& o) {
  const std::string yol = ProgramDosyasi(o.PrgPath, DosyaAdi);
  std::error_code hata;
  if (!std::filesystem::exists(yol, hata)) return IlkKisayollar();
  const Kusur bozuk{"Kısa yol dosyası okunamadı: " + yol};
  const auto icerik = DosyaOku(yol, EnCokKisayol * KayitBoyu);
  if (!icerik || icerik->size() % KayitBoyu != 0) return bozuk;
  std::vector<Kisayol> liste;
  for (std::size_t i = 0; i < icerik->size(); i += KayitBoyu) {
    auto kisayol = KayitCoz(std::string_view(*icerik).substr(i, KayitBoyu));
    if (!kisayol) return bozuk;
    liste.push_back(std::move(*kisayol));
  }
  return liste;
}

Durum KisayollariYaz(const Oturum& o, const std::vector<Kisayol>& kisayollar) {
  if (kisayollar.size() > EnCokKisayol)
    return KuralKusuru("En çok " + std::to_string(EnCokKisayol) + " kısa yol olabilir");
  std::string icerik;
  for (const auto& k : kisayollar) {
    if (std::string kusur = Kusuru(k); !kusur.empty()) return KuralKusuru(std::move(kusur));
    icerik += Baytlari(k);
  }
  if (const Durum d = BozuguSakla(o); !d) return d;
  return ProgramDosyasiYaz(o.PrgPath, DosyaAdi, icerik);
}

Durum KisayolSil(const Oturum& o, std::size_t sira) {
  auto liste = KisayollariOku(o);
  if (!liste) return liste.Kusuru();
  if (sira >= liste->size()) return Kusur{"Böyle bir kısa yol yok"};
  liste->erase(liste->begin() + std::ptrdiff_t(sira));
  return KisayollariYaz(o, *liste);
}

}  // namespace belvani
