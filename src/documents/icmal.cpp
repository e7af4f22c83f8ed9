#include "documents/icmal.h"

#include "core/store/izlenenokuma.h"
#include "documents/icmalgrafigi.h"
#include "documents/listebelgesi.h"
#include "documents/sorgumetni.h"
#include "documents/turetilen.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

// The columns that are read of a pay record: those that are counted, and the amounts that are added up.
constexpr auto SayilanKolonlar =
    std::tuple{brd::ng, brd::ht, brd::rt, brd::ui, brd::ha, brd::mi, brd::ucretsizizin, brd::ucret};
constexpr auto ToplananKolonlar = std::tuple{
    brd::sskmatrah, brd::sskmatrahisveren, brd::sskkesinti, brd::sskkesintiisveren, brd::issizisci, brd::issizisveren,
    brd::gvmatrah,  brd::gvtutar,          brd::dvmatrah,   brd::dvtutar,           brd::ogv,       brd::sendika,
    brd::borckes,   brd::brutkaz};
constexpr auto BrdKolonlari = std::tuple_cat(SayilanKolonlar, ToplananKolonlar);

constexpr int DestekPrimiDurumu = 1;  // branch 2, "S.G.D.P. Tabi Çalışanlar"

bool AsgariUcretliMi(const Brd& b, Tutar asgariUcret, Yuvarlayici yuvarla) {
  return GunlukBrut(b, yuvarla) == yuvarla(asgariUcret.Sayi() / GunToplami(b));
}

void Ekle(Icmal& i, const IcmalGirdisi& girdi) {
  const Brd& b = girdi.brd;
  Brd& toplam = girdi.sskdurum == DestekPrimiDurumu ? i.destek : i.olagan;
  std::apply([&](const auto&... kolon) { ((toplam.*kolon.uye += b.*kolon.uye), ...); }, ToplananKolonlar);
  i.normalGun += b.ng;
  i.haftaTatili += b.ht + b.rt;
  i.izinGun += b.ui + b.ha + b.mi;
  i.eksikGun += b.ucretsizizin;
}

enum class Kisim { Herkes, Olagan, Destek };

struct OzetTanimi {
  const char* aciklama;
  Ifade isci;
  std::optional<Ifade> isveren = std::nullopt;
  Kisim kisim = Kisim::Herkes;
};

const OzetTanimi ozet[] = {
    {"Ssk Matrahı", brd::sskmatrah, brd::sskmatrahisveren},
    {"Ssk Kesintisi", brd::sskkesinti, brd::sskkesintiisveren, Kisim::Olagan},
    {"G.V. Matrahı", brd::gvmatrah},
    {"G.V. Kesintisi", brd::gvtutar},
    {"İşsizlik Sigorta Kesintisi", brd::issizisci, brd::issizisveren},
    {"Damga Vergisi Matrahı", brd::dvmatrah},
    {"Damga Vergisi Kesintisi", brd::dvtutar},
    {"A.G.İ.", brd::ogv},
    {"S.G.D.P. Kesintisi", brd::sskkesinti, brd::sskkesintiisveren, Kisim::Destek},
    {"Toplam Ssk Kesintisi", Ifade(brd::sskkesinti) + brd::issizisci, toplam::isverenToplam},
    {"Toplam Vergi Kesintisi", toplam::vergiler},
    {"Ödemeler Toplamı", toplam::isciToplam, toplam::isverenToplam},
    {toplam::odenen.etiket, toplam::odenen},
    {"A.G.İ. Ödemeleri", brd::ogv},
};

struct OzetSatiri {
  std::string aciklama;
  Tutar isci;
  std::optional<Tutar> isveren;
};

const Kolonlar<OzetSatiri> kolonlar{
    {"Açıklama", 30, [](auto& s) { return s.aciklama; }},
    {"İşçi Payları", 14, [](auto& s) { return s.isci; }},
    {"İşveren Payları", 15, [](auto& s) { return s.isveren; }},
};

Tutar Toplami(const Icmal& i, const Ifade& ifade, Kisim kisim) {
  switch (kisim) {
    case Kisim::Herkes:
      return i.Toplami(ifade);
    case Kisim::Olagan:
      return Degeri(ifade, i.olagan);
    case Kisim::Destek:
      return Degeri(ifade, i.destek);
  }
  return {};
}

std::vector<OzetSatiri> Satirlar(const Icmal& i) {
  std::vector<OzetSatiri> satirlar;
  for (const auto& t : ozet) {
    satirlar.push_back({std::string(t.aciklama) + " ", Toplami(i, t.isci, t.kisim), std::nullopt});
    if (t.isveren) satirlar.back().isveren = Toplami(i, *t.isveren, t.kisim);
  }
  return satirlar;
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
      {"Toplam Brüt Ücret ", i.Toplami(brd::brutkaz)},
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

std::vector<IcmalGirdisi> IcmalGirdileriOku(Motor& motor, int yil, int ay, Ilerleme* ilerleme) {
  SorguMetni sorgu("select " + KolonListesi(BrdKolonlari, "b.") +
                       ", s.sskdurum from brd b join sicil s on s.kod = b.kod where b.yil = ? and b.ay = ?",
                   {std::int64_t(yil), std::int64_t(ay)});
  const auto komut = sorgu.Hazirla(motor);
  std::vector<IcmalGirdisi> girdiler;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    IcmalGirdisi& girdi = girdiler.emplace_back();
    KolonAl(*komut, KolonlariAl(*komut, 0, BrdKolonlari, girdi.brd), girdi.sskdurum);
  }
  return girdiler;
}

IcmalKosulu GrafikKosulu(const BelgeKaynagi& kaynak) {
  return {kaynak.yasal.oranlar.DamgaOran, Yuvarlayici(kaynak.firma.paraonda)};
}

std::unique_ptr<Belge> IcmalBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim) {
  const auto girdiler = IcmalGirdileriOku(kaynak.motor, secim.yil, secim.ay, kaynak.ilerleme);
  const Icmal icmal = IcmalHesapla(girdiler, kaynak.yasal.oranlar.AsgariUcret, Yuvarlayici(kaynak.firma.paraonda));
  Rapor rapor = IcmalRaporu(icmal, BaslikYap(kaynak, secim));
  GrafikDuzeni grafik{.yon = KagitYonu::Dikey, .punto = 10};
  // The year of the chart is read when it is drawn: the screen shows the figures alone.
  grafik.ek = EkCizim{IcmalGrafigiBoyu, [&motor = kaynak.motor, yil = secim.yil, ay = secim.ay,
                                         kosul = GrafikKosulu(kaynak)](Tuval& tuval, const Dikdortgen& yer) {
                        IcmalGrafigi(IcmalSerisiOku(motor, yil, ay, kosul), tuval, yer);
                      }};
  const YzcAyarlari ayar = BaskiAyari(rapor.baslik, KagitYonu::Dikey);
  return std::make_unique<BordroOzeti>(std::move(rapor), ayar, std::move(grafik), girdiler.empty());
}

}  // namespace belvani
