#include "documents/bordrobelgeleri.h"

#include "core/store/satirlar.h"
#include "documents/deftersorgu.h"
#include "documents/icmal.h"
#include "documents/icmalgrafigi.h"
#include "documents/ozelbordro.h"
#include "documents/pusula.h"

namespace belvani {
namespace {

Firma FirmaOku(Motor& motor) {
  auto kayitlar = KayitlariOku<Firma>(motor);
  return kayitlar.empty() ? Firma{} : std::move(kayitlar.front());
}

DefterBaslik Baslik(const BelgeKaynagi& kaynak, int yil, int ay) {
  return {.yil = yil,
          .ay = ay,
          .firma = FirmaOku(kaynak.motor),
          .damgaOran = kaynak.yasal.oranlar.DamgaOran,
          .paraonda = kaynak.paraonda};
}

YzcAyarlari Baski(const std::string& baslik, KagitYonu yon) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = baslik;
  ayar.YzcYon = yon;
  return ayar;
}

GrafikDuzeni Grafik(const BelgeYazisi& yazi, const SayfaDuzeni& sayfa) {
  return {.yon = {},
          .punto = double(yazi.punto),
          .aile = AileBul(yazi.yaziTipi),
          .satirArasi = sayfa.satirArasi,
          .kolonArasi = sayfa.kolonArasi};
}

std::unique_ptr<Belge> Liste(Rapor rapor, KagitYonu yon, const BelgeYazisi& yazi, const SayfaDuzeni& sayfa,
                             const std::string& unvan = {}) {
  const std::string baslik = rapor.baslik;
  return std::make_unique<RaporBelgesi>(std::move(rapor), Baski(baslik, yon), Grafik(yazi, sayfa), sayfa, unvan);
}

// Goes to printers only as drawn pages; other programs may have its lines.
class AgiBordrosu final : public RaporBelgesi {
 public:
  using RaporBelgesi::RaporBelgesi;
  std::string MetinYok() const override { return AgiMetinYok; }
};

PusulaBaslik PusulaBasligi(const BelgeKaynagi& kaynak, const DefterSecim& secim) {
  return {.defter = Baslik(kaynak, secim.yil, secim.ay), .yardimAdlari = YardimAdlariOku(kaynak.motor)};
}

DefterSecim Sirali(DefterSecim secim, DefterSirasi sira) {
  secim.sira = sira;
  return secim;
}

}  // namespace

std::unique_ptr<Belge> DefterBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const DefterSecenek& secenek,
                                     const BelgeYazisi& yazi) {
  const auto satirlar = DefterSatirlariOku(kaynak.motor, secim);
  return Liste(DefterRaporu(satirlar, Baslik(kaynak, secim.yil, secim.ay), secenek), KagitYonu::Yatay, yazi,
               secenek.duzen);
}

std::unique_ptr<Belge> OzelBordroBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const SayfaDuzeni& duzen,
                                         const BelgeYazisi& yazi) {
  const auto satirlar = DefterSatirlariOku(kaynak.motor, Sirali(secim, DefterSirasi::SskNo));
  return Liste(OzelBordroRaporu(satirlar, Baslik(kaynak, secim.yil, secim.ay)), KagitYonu::Yatay, yazi, duzen);
}

std::unique_ptr<Belge> UcretPusulalari(const BelgeKaynagi& kaynak, const DefterSecim& secim, SayfadaYaprak sayfada) {
  const PusulaBaslik baslik = PusulaBasligi(kaynak, secim);
  YaprakBelgesi belge = PusulaBelgesi(DefterSatirlariOku(kaynak.motor, Sirali(secim, DefterSirasi::Kisi)), baslik);
  const YzcAyarlari ayar = Baski(belge.baslik, KagitYonu::Dikey);
  return std::make_unique<YaprakliBelge>(std::move(belge), sayfada, ayar);
}

std::unique_ptr<Belge> IcmalBelgesi(const BelgeKaynagi& kaynak, int yil, int ay) {
  const auto girdiler = IcmalGirdileriOku(kaynak.motor, yil, ay);
  const Icmal icmal = IcmalHesapla(girdiler, kaynak.yasal.oranlar.AsgariUcret, Yuvarlayici(kaynak.paraonda));
  Rapor rapor = IcmalRaporu(icmal, Baslik(kaynak, yil, ay));
  GrafikDuzeni grafik{.yon = KagitYonu::Dikey, .punto = 10};
  // The year of the chart is read when it is drawn: the screen shows the figures alone.
  grafik.ek = EkCizim{IcmalGrafigiBoyu, [&motor = kaynak.motor, yil, ay](Tuval& tuval, const Dikdortgen& yer) {
                        IcmalGrafigi(IcmalSerisiOku(motor, yil, ay), tuval, yer);
                      }};
  const YzcAyarlari ayar = Baski(rapor.baslik, KagitYonu::Dikey);
  return std::make_unique<RaporBelgesi>(std::move(rapor), ayar, std::move(grafik));
}

std::unique_ptr<Belge> IzinBelgesi(const BelgeKaynagi& kaynak, int yil, const MetinAraligi& kod, IzinRaporu tip,
                                   const BelgeYazisi& yazi) {
  const KagitYonu yon = tip == IzinRaporu::Donemsel ? KagitYonu::Yatay : KagitYonu::Dikey;
  return Liste(IzinListesi(IzinleriOku(kaynak.motor, yil, kod), yil, tip), yon, yazi, {}, FirmaOku(kaynak.motor).unvan);
}

std::unique_ptr<Belge> AgiBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim) {
  const YasalParametreler& yasal = kaynak.yasal;
  const AgiBaslik baslik{.unvan = FirmaOku(kaynak.motor).unvan,
                         .yil = secim.yil,
                         .agiTaban = AgiTabaniIle(yasal.agi, yasal.oranlar.AsgariUcret).AgiTaban,
                         .paraonda = kaynak.paraonda};
  Rapor rapor = AgiListesi(AgiKisileriOku(kaynak.motor, Sirali(secim, DefterSirasi::Kisi)), baslik);
  YzcAyarlari ayar = Baski(rapor.baslik, KagitYonu::Yatay);
  ayar.YzcDosAcik = false;
  return std::make_unique<AgiBordrosu>(std::move(rapor), ayar);
}

Rapor PusulaTablosu(const BelgeKaynagi& kaynak, const DefterSecim& secim) {
  const PusulaBaslik baslik = PusulaBasligi(kaynak, secim);
  return PusulaRaporu(DefterSatirlariOku(kaynak.motor, Sirali(secim, DefterSirasi::Kisi)), baslik);
}

}  // namespace belvani
