#include "printing/yazdir.h"

#include <algorithm>
#include <ranges>

#include "core/dosya.h"
#include "core/turkce.h"
#include "printing/cairotuval.h"
#include "printing/doskod.h"
#include "printing/grafikyaprak.h"
#include "printing/metinyazici.h"

namespace belvani {
namespace {

constexpr std::size_t NormalSatirHarfi = 80;

struct Pdf {
  std::string baytlar;  // empty: no rows
  std::string uyari;
};

// `ciz` draws the pages, and tells their number and a warning.
template <class Ciz>
Sonuc<Pdf> PdfYap(const std::string& baslik, Ciz ciz) {
  PdfTuvali tuval({.baslik = baslik});
  const auto sonuc = ciz(tuval);
  if (sonuc.sayfaSayisi == 0) return Pdf{};
  auto belge = tuval.Belge();
  if (!belge) return belge.Hatasi();
  return Pdf{std::move(*belge), sonuc.uyari};
}

Sonuc<Pdf> RaporPdfYap(const Rapor& rapor, const GrafikDuzeni& duzen) {
  return PdfYap(rapor.baslik, [&](Tuval& tuval) { return GrafikRaporu(rapor, duzen, tuval); });
}

Sonuc<YazdirmaSonucu> PdfYaz(const Sonuc<Pdf>& pdf, const std::string& dosya) {
  if (!pdf) return pdf.Hatasi();
  if (pdf->baytlar.empty()) return YazdirmaSonucu{};
  if (const Durum yazildi = DosyaYaz(dosya, pdf->baytlar); !yazildi) return yazildi.Hatasi();
  return YazdirmaSonucu{true, pdf->uyari};
}

DosSiklik Siklik(std::size_t satirHarfi) {
  return satirHarfi > NormalSatirHarfi ? DosSiklik::Sikisik : DosSiklik::Normal;
}

std::size_t EnUzunSatir(std::string_view metin) {
  std::size_t harf = 0;
  for (const auto satir : std::views::split(metin, '\n'))
    harf = std::max(harf, HarfSayisi(std::string_view(satir.begin(), satir.end())));
  return harf;
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
      auto pdf = RaporPdfYap(rapor, duzen);
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
  return PdfYaz(RaporPdfYap(rapor, duzen), dosya);
}

std::string RaporDosBelgesi(const Rapor& rapor, const SayfaDuzeni& duzen) {
  return DosBelgesi(MetinRaporu(rapor, duzen), Siklik(std::size_t(KagitBicimle(rapor, duzen).en)));
}

Sonuc<YazdirmaSonucu> YapraklarPdf(const YaprakBelgesi& belge, const std::string& dosya) {
  return PdfYaz(PdfYap(belge.baslik, [&](Tuval& tuval) { return GrafikYapraklari(belge, tuval); }), dosya);
}

std::string YapraklarDosBelgesi(const YaprakBelgesi& belge, const SayfaDuzeni& duzen) {
  const std::string metin = MetinYapraklari(belge, duzen);
  return DosBelgesi(metin, Siklik(EnUzunSatir(metin)));
}

}  // namespace belvani
