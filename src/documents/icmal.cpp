#include "documents/icmal.h"

#include "documents/icmalgrafigi.h"
#include "documents/listebelgesi.h"
#include "documents/sorgumetni.h"
#include "documents/turetilen.h"
#include "payroll/hesap/kayittoplami.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

// The columns that are read of a pay record.
constexpr auto BrdKolonlari = std::tuple{brd::ng,           brd::ht,
                                         brd::rt,           brd::ui,
                                         brd::ha,           brd::mi,
                                         brd::ucretsizizin, brd::ucret,
                                         brd::sskmatrah,    brd::sskmatrahisveren,
                                         brd::sskkesinti,   brd::sskkesintiisveren,
                                         brd::issizisci,    brd::issizisveren,
                                         brd::gvmatrah,     brd::gvtutar,
                                         brd::dvmatrah,     brd::dvtutar,
                                         brd::ogv,          brd::sendika,
                                         brd::borckes,      brd::brutkaz};

constexpr int DestekPrimiDurumu = 1;  // branch 2, "S.G.D.P. Tabi Çalışanlar"

bool AsgariUcretliMi(const Brd& b, Tutar asgariUcret, Yuvarlayici yuvarla) {
  return GunlukBrut(b, yuvarla) == yuvarla(asgariUcret.Sayi() / GunToplami(b));
}

void Ekle(IcmalPaylari& paylar, Tutar isci, Tutar isveren) {
  paylar.isci += isci;
  paylar.isveren += isveren;
}

void Ekle(Icmal& i, const IcmalGirdisi& girdi) {
  const Brd& b = girdi.brd;
  Ekle(i.sskMatrahi, b.sskmatrah, b.sskmatrahisveren);
  Ekle(girdi.sskdurum == DestekPrimiDurumu ? i.sgdpKesintisi : i.sskKesintisi, b.sskkesinti, b.sskkesintiisveren);
  Ekle(i.issizlik, b.issizisci, b.issizisveren);
  i.gvMatrahi += b.gvmatrah;
  i.gvKesintisi += b.gvtutar;
  i.damgaMatrahi += b.dvmatrah;
  i.damgaKesintisi += b.dvtutar;
  i.agi += b.ogv;
  i.digerKesinti += Degeri(toplam::ozelKesinti, b);
  i.brut += b.brutkaz;
  i.normalGun += b.ng;
  i.haftaTatili += b.ht + b.rt;
  i.izinGun += b.ui + b.ha + b.mi;
  i.eksikGun += b.ucretsizizin;
}

struct OzetSatiri {
  const char* aciklama;
  std::optional<Tutar> isci;
  std::optional<Tutar> isveren = std::nullopt;

  OzetSatiri(const char* a, Tutar i) : aciklama(a), isci(i) {}
  OzetSatiri(const char* a, const IcmalPaylari& p) : aciklama(a), isci(p.isci), isveren(p.isveren) {}
};

const Kolonlar<OzetSatiri> kolonlar{
    {"Açıklama", 30, [](auto& s) { return s.aciklama; }},
    {"İşçi Payları", 14, [](auto& s) { return s.isci; }},
    {"İşveren Payları", 15, [](auto& s) { return s.isveren; }},
};

std::vector<OzetSatiri> Satirlar(const Icmal& i) {
  return {
      {"Ssk Matrahı ", i.sskMatrahi},
      {"Ssk Kesintisi ", i.sskKesintisi},
      {"G.V. Matrahı ", i.gvMatrahi},
      {"G.V. Kesintisi ", i.gvKesintisi},
      {"İşsizlik Sigorta Kesintisi ", i.issizlik},
      {"Damga Vergisi Matrahı ", i.damgaMatrahi},
      {"Damga Vergisi Kesintisi ", i.damgaKesintisi},
      {"A.G.İ. ", i.agi},
      {"S.G.D.P. Kesintisi ", i.sgdpKesintisi},
      {"Toplam Ssk Kesintisi ", i.ToplamSsk()},
      {"Toplam Vergi Kesintisi ", i.ToplamVergi()},
      {"Ödemeler Toplamı ", i.OdemelerToplami()},
      {"Personel Ödemeleri ", i.PersonelOdemeleri()},
      {"A.G.İ. Ödemeleri ", i.agi},
  };
}

std::vector<BlokSatiri> Sayilar(const Icmal& i) {
  const auto tam = [](int sayi) { return Hucre(std::int64_t(sayi)); };
  return {
      {"Asgari Ücretli", tam(i.asgariUcretli)},
      {" Ücretli", tam(i.ucretli)},
      {"Toplam Ücretli", tam(i.asgariUcretli + i.ucretli)},
      {"Normal Gün", tam(i.normalGun)},
      {"Hafta Tatili", tam(i.haftaTatili)},
      {"İzin Gün", tam(i.izinGun)},
      {"Toplam Gün", tam(i.ToplamGun())},
      {"Eksik Gün", tam(i.eksikGun)},
      {"Toplam Brüt Ücret ", i.brut},
  };
}

// Its lines stand there also for a month without pay.
class BordroOzeti final : public RaporBelgesi {
 public:
  BordroOzeti(Rapor rapor, const YzcAyarlari& ilk, GrafikDuzeni grafik, bool kayitsiz)
      : RaporBelgesi(std::move(rapor), ilk, std::move(grafik)), kayitsiz_(kayitsiz) {}
  bool Kayitsiz() const override { return kayitsiz_; }

 private:
  bool kayitsiz_;
};

}  // namespace

IcmalPaylari Icmal::ToplamSsk() const {
  return {sskKesintisi.isci + sgdpKesintisi.isci + issizlik.isci,
          sskKesintisi.isveren + sgdpKesintisi.isveren + issizlik.isveren};
}

Tutar Icmal::ToplamVergi() const {
  return gvKesintisi + damgaKesintisi;
}

IcmalPaylari Icmal::OdemelerToplami() const {
  return {ToplamSsk().isci + ToplamVergi(), ToplamSsk().isveren};
}

Tutar Icmal::PersonelOdemeleri() const {
  return brut - OdemelerToplami().isci - digerKesinti;
}

Icmal IcmalHesapla(std::span<const IcmalGirdisi> girdiler, Tutar asgariUcret, Yuvarlayici yuvarla) {
  Icmal icmal;
  for (const auto& girdi : girdiler) {
    if (GunToplami(girdi.brd) == 0) continue;
    Ekle(icmal, girdi);
    ++(AsgariUcretliMi(girdi.brd, asgariUcret, yuvarla) ? icmal.asgariUcretli : icmal.ucretli);
  }
  return icmal;
}

Rapor IcmalRaporu(const Icmal& icmal, const DefterBaslik& baslik) {
  Rapor rapor = RaporYap(kolonlar, Satirlar(icmal), baslik.paraonda);
  rapor.baslik = "BORDRO ÖZETİ";
  rapor.ekranBasligi = "Bordro Özeti";
  rapor.ustSatirlar = {{.orta = DonemMetni(BelgeDonemi(baslik))},
                       UnvanSatiri(baslik.firma),
                       IsyeriSatiri(baslik.firma),
                       VergiDairesiSatiri(baslik.firma)};
  rapor.sonBlok = Sayilar(icmal);
  return rapor;
}

std::vector<IcmalGirdisi> IcmalGirdileriOku(Motor& motor, int yil, int ay) {
  SorguMetni sorgu("select " + KolonListesi(BrdKolonlari, "b.") +
                       ", s.sskdurum from brd b join sicil s on s.kod = b.kod where b.yil = ? and b.ay = ?",
                   {std::int64_t(yil), std::int64_t(ay)});
  const auto komut = sorgu.Hazirla(motor);
  std::vector<IcmalGirdisi> girdiler;
  while (komut->Adim()) {
    IcmalGirdisi& girdi = girdiler.emplace_back();
    KolonAl(*komut, KolonlariAl(*komut, 0, BrdKolonlari, girdi.brd), girdi.sskdurum);
  }
  return girdiler;
}

std::unique_ptr<Belge> IcmalBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim) {
  const auto girdiler = IcmalGirdileriOku(kaynak.motor, secim.yil, secim.ay);
  const Icmal icmal = IcmalHesapla(girdiler, kaynak.yasal.oranlar.AsgariUcret, Yuvarlayici(kaynak.paraonda));
  Rapor rapor = IcmalRaporu(icmal, BaslikOku(kaynak, secim));
  GrafikDuzeni grafik{.yon = KagitYonu::Dikey, .punto = 10};
  // The year of the chart is read when it is drawn: the screen shows the figures alone.
  grafik.ek = EkCizim{IcmalGrafigiBoyu,
                      [&motor = kaynak.motor, yil = secim.yil, ay = secim.ay](Tuval& tuval, const Dikdortgen& yer) {
                        IcmalGrafigi(IcmalSerisiOku(motor, yil, ay), tuval, yer);
                      }};
  const YzcAyarlari ayar = BaskiAyari(rapor.baslik, KagitYonu::Dikey);
  return std::make_unique<BordroOzeti>(std::move(rapor), ayar, std::move(grafik), girdiler.empty());
}

}  // namespace belvani
