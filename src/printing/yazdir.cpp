#include "printing/yazdir.h"

#include "core/dosya.h"
#include "printing/cairotuval.h"
#include "printing/doskod.h"
#include "printing/metinyazici.h"

namespace belvani {
namespace {

constexpr int NormalSatirHarfi = 80;

struct Pdf {
  std::string baytlar;  // empty: no rows
  std::string uyari;
};

Sonuc<Pdf> PdfYap(const Rapor& rapor, const GrafikDuzeni& duzen) {
  PdfTuvali tuval({.baslik = rapor.baslik});
  const GrafikSonucu sonuc = GrafikRaporu(rapor, duzen, tuval);
  if (sonuc.sayfaSayisi == 0) return Pdf{};
  auto belge = tuval.Belge();
  if (!belge) return belge.Hatasi();
  return Pdf{std::move(*belge), sonuc.uyari};
}

std::string Birlestir(const std::string& a, const std::string& b) {
  return a.empty() || b.empty() ? a + b : a + "\n" + b;
}

}  // namespace

Sonuc<YazdirmaSonucu> RaporYazdir(const Rapor& rapor, const YzcAyarlari& ayar, GrafikDuzeni duzen, Kuyruk& kuyruk) {
  BaskiIsi is{.tur = IsTuru::Ham, .yazici = ayar.yazici, .ad = ayar.YzcBaslik, .icerik = {}, .kopya = ayar.YzcKopya};
  std::string uyari;
  switch (YolSec(ayar)) {
    case BaskiYolu::Yok:
      return YazdirmaSonucu{};
    case BaskiYolu::Metin: {
      const SayfaDuzeni sayfa{
          .satirSayisi = ayar.YzcSatir, .satirArasi = duzen.satirArasi, .kolonArasi = duzen.kolonArasi};
      is.icerik = RaporDosBelgesi(rapor, sayfa);
      break;
    }
    case BaskiYolu::Grafik: {
      duzen.yon = ayar.YzcYon;
      auto pdf = PdfYap(rapor, duzen);
      if (!pdf) return pdf.Hatasi();
      is.tur = IsTuru::Pdf;
      is.icerik = std::move(pdf->baytlar);
      uyari = pdf->uyari;
      break;
    }
  }
  if (is.icerik.empty()) return YazdirmaSonucu{};
  const auto yazici = YaziciSec(kuyruk, ayar.yazici);
  if (!yazici) return yazici.Hatasi();
  if (const auto no = kuyruk.Gonder(is); !no) return no.Hatasi();
  return YazdirmaSonucu{true, Birlestir(uyari, yazici->bekleyen)};
}

Sonuc<YazdirmaSonucu> RaporPdf(const Rapor& rapor, const GrafikDuzeni& duzen, const std::string& dosya) {
  const auto pdf = PdfYap(rapor, duzen);
  if (!pdf) return pdf.Hatasi();
  if (pdf->baytlar.empty()) return YazdirmaSonucu{};
  if (const Durum yazildi = DosyaYaz(dosya, pdf->baytlar); !yazildi) return yazildi.Hatasi();
  return YazdirmaSonucu{true, pdf->uyari};
}

std::string RaporDosBelgesi(const Rapor& rapor, const SayfaDuzeni& duzen) {
  const bool genis = KagitBicimle(rapor, duzen).en > NormalSatirHarfi;
  return DosBelgesi(MetinRaporu(rapor, duzen), genis ? DosSiklik::Sikisik : DosSiklik::Normal);
}

}  // namespace belvani
