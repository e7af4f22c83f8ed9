#include "payroll/hazirlik/kisi.h"

#include <algorithm>

#include "core/store/satirlar.h"
#include "core/tables/bordronosu.h"
#include "core/turkce.h"
#include "payroll/hesap/sablonyay.h"
#include "payroll/hesap/satirlar.h"
#include "payroll/hesap/ucret.h"

namespace belvani {
namespace {

constexpr int TamAy = 30;

// A value per person, in code order.
template <class T>
struct Kodlu {
  std::string kod;
  T deger{};
};

// "… kod = ?" for one person, nothing for all of them.
class KisiSuzgeci {
 public:
  explicit KisiSuzgeci(const std::string* kod) : kod_(kod) {}
  std::string Kosul(const char* baglac) const { return kod_ == nullptr ? "" : std::string(" ") + baglac + " kod = ?"; }
  void Bagla(Komut& komut, int no) const {
    if (kod_ != nullptr) komut.MetinBagla(no, *kod_);
  }

 private:
  const std::string* kod_;
};

// Statements that are bound and sent; their rows are taken afterwards, so that all of them cost one wait on a server.
std::unique_ptr<Komut> Gonder(std::unique_ptr<Komut> komut) {
  komut->Gonder();
  return komut;
}

std::unique_ptr<Komut> AileKomutu(Motor& motor, const KisiSuzgeci& kisi) {
  auto komut = motor.Hazirla("select kod, yakinlik, agiok from esco" + kisi.Kosul("where") + " order by kod");
  kisi.Bagla(*komut, 1);
  return Gonder(std::move(komut));
}

std::vector<Kodlu<Aile>> AileleriAl(Komut& komut) {
  std::vector<Kodlu<Aile>> aileler;
  while (komut.Adim()) {
    const std::string_view kod = komut.Metin(0);
    if (aileler.empty() || !TurkceEsit(aileler.back().kod, kod)) aileler.push_back({std::string(kod), {}});
    aileler.back().deger.Ekle(int(komut.Tam(1)), int(komut.Tam(2)));
  }
  return aileler;
}

std::unique_ptr<Komut> YilKomutu(Motor& motor, const BordroDonemi& donem, const KisiSuzgeci& kisi) {
  auto komut = motor.Hazirla(
      "select kod, sum(case when ay < ? then gvmatrah end), sum(case when ay < ? then gvtutar end), sum(indirim1), "
      "sum(indirim2), sum(indirim3) from brd where yil = ?" +
      kisi.Kosul("and") + " group by kod order by kod");
  komut->TamBagla(1, donem.ay);
  komut->TamBagla(2, donem.ay);
  komut->TamBagla(3, donem.yil);
  kisi.Bagla(*komut, 4);
  return Gonder(std::move(komut));
}

std::vector<Kodlu<YilToplamlari>> YilToplamlariniAl(Komut& komut) {
  std::vector<Kodlu<YilToplamlari>> toplamlar;
  const auto tutar = [&](int i) { return Tutar::Hamdan(komut.Tam(i)); };
  while (komut.Adim())
    toplamlar.push_back({std::string(komut.Metin(0)), {tutar(1), tutar(2), {tutar(3), tutar(4), tutar(5)}}});
  return toplamlar;
}

std::unique_ptr<Komut> AyKomutu(Motor& motor, const BordroDonemi& donem, const KisiSuzgeci& kisi) {
  // Ordered as the index of the month is, which spares the sorting of a company.
  const std::string no(BordroNosu);
  auto komut = motor.Hazirla("select " + SecimListesi<Brd>(motor) + " from brd where yil = ? and ay = ?" +
                             kisi.Kosul("and") + " and " + no + " = 1 order by kod, " + no + ", oto");
  komut->TamBagla(1, donem.yil);
  komut->TamBagla(2, donem.ay);
  kisi.Bagla(*komut, 3);
  return Gonder(std::move(komut));
}

std::vector<Brd> KayitlariAl(Komut& komut) {
  std::vector<Brd> kayitlar;
  while (komut.Adim()) KayitAl(komut, 0, kayitlar.emplace_back());
  return kayitlar;
}

std::unique_ptr<Komut> KartKomutu(Motor& motor, const KisiSuzgeci& kisi) {
  auto komut =
      motor.Hazirla("select " + SecimListesi<Sicil>(motor) + " from sicil" + kisi.Kosul("where") + " order by kod");
  kisi.Bagla(*komut, 1);
  return Gonder(std::move(komut));
}

// Walks a list in code order beside the people, who come in code order too.
template <class T, class KodAl>
class Eslesen {
 public:
  Eslesen(std::vector<T> liste, KodAl kodAl) : liste_(std::move(liste)), kodAl_(kodAl) {}
  T* Bul(const std::string& kod) {
    int karsilastirma = -1;
    while (sira_ < liste_.size() && (karsilastirma = TurkceKarsilastir(kodAl_(liste_[sira_]), kod)) < 0) ++sira_;
    return sira_ < liste_.size() && karsilastirma == 0 ? &liste_[sira_] : nullptr;
  }

 private:
  std::vector<T> liste_;
  KodAl kodAl_;
  std::size_t sira_ = 0;
};

void KisileriOku(Motor& motor, const BordroDonemi& donem, const std::string* kod,
                 const std::function<bool(KisiVerisi&)>& her) {
  const KisiSuzgeci kisi(kod);
  const auto koduAl = [](const auto& satir) -> const std::string& { return satir.kod; };
  const auto aile = AileKomutu(motor, kisi), yil = YilKomutu(motor, donem, kisi), ay = AyKomutu(motor, donem, kisi),
             komut = KartKomutu(motor, kisi);
  Eslesen aileler(AileleriAl(*aile), koduAl);
  Eslesen yillar(YilToplamlariniAl(*yil), koduAl);
  Eslesen kayitlar(KayitlariAl(*ay), koduAl);
  while (komut->Adim()) {
    KisiVerisi veri;
    KayitAl(*komut, 0, veri.sicil);
    if (const auto* ailesi = aileler.Bul(veri.sicil.kod)) veri.aile = ailesi->deger;
    if (const auto* toplam = yillar.Bul(veri.sicil.kod)) veri.yil = toplam->deger;
    if (Brd* kayit = kayitlar.Bul(veri.sicil.kod)) veri.kayit = std::move(*kayit);
    if (!her(veri)) return;
  }
}

void SablondanDoldur(Brd& brd, const Sablon& sablon, int CalismaGun, Yuvarlayici yuvarla) {
  if (CalismaGun == TamAy) {
    for (std::size_t i = 0; i < GunKolonlari.size(); ++i)
      brd.*GunKolonlari[i].uye = std::uint8_t(std::clamp(sablon.SablonGun[i].Sayi(), 0.0, double(TamAy)));
    for (std::size_t i = 0; i < MesaiKolonlari.size(); ++i)
      brd.*MesaiKolonlari[i].uye = sablon.SablonGun[GunSatiriSayisi + i];
  } else {
    brd.ng = std::uint8_t(std::max(CalismaGun, 0));
  }
  for (std::size_t i = 0; i < YardimKolonlari.size(); ++i)
    brd.*YardimKolonlari[i].uye =
        SablonYardimi(sablon, int(i), SskGunu(brd), brd.ng, yuvarla).value_or(sablon.SablonYardim[i]);
}

}  // namespace

std::optional<KisiVerisi> KisiOku(Motor& motor, const BordroDonemi& donem, const std::string& kod) {
  std::optional<KisiVerisi> bulunan;
  KisileriOku(motor, donem, &kod, [&](KisiVerisi& kisi) {
    bulunan = std::move(kisi);
    return false;
  });
  return bulunan;
}

void KisileriOku(Motor& motor, const BordroDonemi& donem, const std::function<bool(KisiVerisi&)>& her) {
  KisileriOku(motor, donem, nullptr, her);
}

void OranlariYukle(Brd& brd, const Sicil& sicil, const YasalParametreler& yasal, Tek TehlikeOran) {
  brd.sskiscior = brd.sskisverenor = brd.issiziscior = brd.issizisverenor = Tek();
  if (HuzurHakkiMi(sicil) || sicil.sskdurum >= DalSayisi) return;
  const OranSatiri& isci = yasal.oranlar.IsciOran[sicil.sskdurum];
  const OranSatiri& isveren = yasal.oranlar.IsverenOran[sicil.sskdurum];
  brd.sskiscior = Tek(OranToplami(isci));
  brd.sskisverenor = Tek(OranToplami(isveren) + yasal.hesapTurleri[sicil.sskdurum].isKazasi * TehlikeOran.Sayi());
  brd.issiziscior = isci.isz;
  brd.issizisverenor = isveren.isz;
}

void KosullaraBagla(BordroGirdi& g, const KisiVerisi& kisi, const Kosullar& k) {
  g.sicil = &kisi.sicil;
  g.yasal = &k.yasal;
  g.yardimlar = &k.firma.yardimlar;
  g.indirimler = &k.firma.indirimler;
  g.sendika = SendikaBul(k.firma, kisi.sicil.tasno);
  g.bayraklar = KazancGrupYukle(k.firma, kisi.sicil.hesap);
  g.IsSaati = k.IsSaati;
  g.TehlikeOran = k.TehlikeOran;
  g.paraonda = k.paraonda;
  g.uygulama = k.uygulama;
}

BordroGirdi PersonelYukle(const KisiVerisi& kisi, const Kosullar& k, int CalismaGun) {
  BordroGirdi g;
  KosullaraBagla(g, kisi, k);
  g.aile = kisi.aile;
  g.yilIndirimi = kisi.yil.indirimler;
  g.CalismaGun = CalismaGun;
  if (kisi.kayit) {
    g.giris = *kisi.kayit;
    return g;
  }
  Brd& brd = g.giris;
  brd.yil = std::int16_t(k.donem.yil);
  brd.ay = std::uint8_t(k.donem.ay);
  brd.no = 1;
  brd.kod = BuyukHarf(Kirp(kisi.sicil.kod));
  OranlariYukle(brd, kisi.sicil, k.yasal, k.TehlikeOran);
  for (std::size_t i = 0; i < MesaiCarpanlari.size(); ++i) brd.*MesaiCarpanlari[i].uye = k.firma.mesailer[i].oran;
  brd.damgaveror = k.yasal.oranlar.DamgaOran;
  brd.devgvmatrah = kisi.yil.gvmatrah;
  brd.devgvtutar = kisi.yil.gvtutar;
  SablondanDoldur(brd, k.firma.sablon, CalismaGun, Yuvarlayici(k.paraonda));
  return g;
}

}  // namespace belvani
