#include "printing/yazdir.h"

#include <algorithm>

#include "core/asama.h"
#include "printing/belprnislem.h"
#include "printing/doskod.h"
#include "printing/metincizimi.h"
#include "printing/xprn.h"

namespace belvani {
namespace {

std::string Birlestir(const std::string& a, const std::string& b) {
  return a.empty() || b.empty() ? a + b : a + "\n" + b;
}

// As it stands in the list of jobs.
std::string IsAdi(const Belge& belge) {
  return belge.Ayar().YzcBaslik.empty() ? belge.Baslik() : belge.Ayar().YzcBaslik;
}

// The pieces of a text print: the printer's set-up, the lines, what ends a page. `yaz` false stops.
template <class Yaz>
bool MetniYaz(const std::string& metin, int kopya, Yaz yaz) {
  const bool sikisik = EnUzunSatir(metin) > NormalSatirHarfi;
  if (sikisik && !yaz(DosSikisik.ac, SatirSonu::Yok)) return false;
  for (int i = 0; i < kopya; ++i)
    for (const std::string_view sayfa : Parcala(metin, '\f')) {
      for (const std::string_view satir : SayfaSatirlari(sayfa))
        if (!yaz(satir, SatirSonu::Var)) return false;
      if (!yaz(DosSayfaAt, SatirSonu::Yok)) return false;
    }
  return !sikisik || yaz(DosSikisik.kapat, SatirSonu::Yok);
}

// Where a text goes, and who watches over it.
struct MetinIsi {
  const Belge& belge;
  std::string metin;  // all of it, or pages that go out together
  BaskiOrtami& ortam;
  Bildirim& bildirim;
  Ilerleme* ilerleme;

  // Asked at each letter; the watcher only now and then.
  xprnOrtami XprnOrtami() const {
    xprnOrtami o{.bildirim = bildirim, .port = ortam.port, .belprn = {}};
    if (ilerleme == nullptr) return o;
    const std::size_t toplam = metin.size() * std::size_t(std::max(1, belge.Ayar().YzcKopya));
    o.escBasili = [ilerleme = ilerleme, toplam, harf = std::size_t(0)]() mutable {
      constexpr std::size_t aralik = 512;
      return ++harf % aralik == 0 && !ilerleme->Adim(std::min(harf, toplam), toplam);
    };
    return o;
  }
};

Sonuc<YazdirmaSonucu> PortaYaz(const MetinIsi& is) {
  YzcAyarlari ayar = is.belge.Ayar();
  xprn yazici(ayar, is.XprnOrtami());
  yazici.DosPrintPort(PortNo(ayar.yazici));
  if (!yazici.CheckDosPrint()) return YazdirmaSonucu{};
  const bool tamam = MetniYaz(is.metin, ayar.YzcKopya, [&](std::string_view parca, SatirSonu sonu) {
    return yazici.DosDirectPrint2(parca, sonu);
  });
  return YazdirmaSonucu{tamam, is.belge.MetinUyarisi()};
}

// A print that was stopped sends what it has written so far: the printer may have begun it.
Sonuc<YazdirmaSonucu> MetinYazdir(const MetinIsi& is) {
  if (is.metin.empty()) return YazdirmaSonucu{};
  YzcAyarlari ayar = is.belge.Ayar();
  if (PortNo(ayar.yazici) >= 0) return PortaYaz(is);
  const auto yazici = YaziciSec(is.ortam.kuyruk, ayar.yazici);
  if (!yazici) return yazici.Kusuru();
  xprnOrtami xprnOrtami = is.XprnOrtami();
  xprnOrtami.belprn = [&](const std::string& dosya) {
    return BelprnBaslat(is.ortam.programDizini, {.dosya = dosya, .yazici = yazici->ad, .ad = IsAdi(is.belge)},
                        is.ortam.kuyruk);
  };
  xprn akis(ayar, xprnOrtami);
  if (!akis.OpenDosPrint()) return Kusur{is.belge.MetinAcilamadi()};
  const bool tamam = MetniYaz(is.metin, ayar.YzcKopya,
                              [&](std::string_view parca, SatirSonu sonu) { return akis.DosDirectPrint(parca, sonu); });
  if (const Durum gitti = akis.CloseDosPrint(); !gitti) return gitti.Kusuru();
  return YazdirmaSonucu{tamam, Birlestir(is.belge.MetinUyarisi(), yazici->bekleyen)};
}

// Page by page, as far as sheets have to be put in by hand.
Sonuc<YazdirmaSonucu> SayfalariYazdir(MetinIsi is) {
  const std::string metin = std::move(is.metin);
  is.metin.clear();
  YazdirmaSonucu sonuc;
  const auto gonder = [&]() -> Durum {
    if (is.metin.empty()) return Tamam();
    const auto giden = MetinYazdir(is);
    if (!giden) return giden.Kusuru();
    sonuc = {sonuc.gonderildi || giden->gonderildi, giden->uyari};
    is.metin.clear();
    return Tamam();
  };
  int no = 0;
  for (const std::string_view sayfa : Parcala(metin, '\f')) {
    if (const std::string soz = is.belge.SayfaSozu(++no); !soz.empty()) {
      if (const Durum gitti = gonder(); !gitti) return gitti.Kusuru();
      if (!is.bildirim.TamamMi(soz)) return sonuc;
    }
    is.metin += (is.metin.empty() ? "" : "\f") + std::string(sayfa);
  }
  if (const Durum gitti = gonder(); !gitti) return gitti.Kusuru();
  return sonuc;
}

Sonuc<YazdirmaSonucu> GrafikYazdir(const Belge& belge, BaskiOrtami& ortam, Ilerleme* ilerleme) {
  const YzcAyarlari& ayar = belge.Ayar();
  if (PortNo(ayar.yazici) >= 0) return Kusur{ayar.yazici + ": bu yazıcıya yalnız Dot Matrix (Dos Mod) ile basılabilir"};
  const auto yazici = YaziciSec(ortam.kuyruk, ayar.yazici);
  if (!yazici) return yazici.Kusuru();
  auto pdf = BelgePdf(belge, ilerleme);
  if (!pdf) return pdf.Kusuru();
  if (pdf->baytlar.empty()) return YazdirmaSonucu{};
  const BaskiIsi is{.tur = IsTuru::Pdf,
                    .yazici = yazici->ad,
                    .ad = IsAdi(belge),
                    .icerik = std::move(pdf->baytlar),
                    .kopya = ayar.YzcKopya};
  if (const auto no = ortam.kuyruk.Gonder(is); !no) return no.Kusuru();
  return YazdirmaSonucu{true, Birlestir(pdf->uyari, yazici->bekleyen)};
}

}  // namespace

Sonuc<std::vector<YaziciBilgisi>> YaziciListesi(BaskiOrtami& ortam) {
  auto liste = ortam.kuyruk.Yazicilar();
  std::vector<YaziciBilgisi> portlar;
  for (int no = 0; no <= EnCokPort; ++no)
    if (ortam.port.Var(no))
      portlar.push_back({.ad = PortAdi(no), .aciklama = "Paralel port (Dos Mod)", .aygit = {}, .bekleyen = {}});
  if (!liste && portlar.empty()) return liste;
  if (!liste) return portlar;
  liste->insert(liste->end(), portlar.begin(), portlar.end());
  return liste;
}

Sonuc<YazdirmaSonucu> BelgeYazdir(const Belge& belge, BaskiOrtami& ortam, Bildirim& bildirim, Ilerleme* ilerleme) {
  try {
    switch (YolSec(belge.Ayar())) {
      case BaskiYolu::Yok:
        break;
      case BaskiYolu::Metin:
        return SayfalariYazdir({belge, belge.Metin(ilerleme), ortam, bildirim, ilerleme});
      case BaskiYolu::Grafik:
        return GrafikYazdir(belge, ortam, ilerleme);
    }
  } catch (const Vazgecilmis&) {
  }
  return YazdirmaSonucu{};
}

}  // namespace belvani
