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

std::vector<Kodlu<Aile>> AileleriOku(Motor& motor, const KisiSuzgeci& kisi) {
  const auto komut = motor.Hazirla("select kod, yakinlik, agiok from esco" + kisi.Kosul("where") + " order by kod");
  kisi.Bagla(*komut, 1);
  std::vector<Kodlu<Aile>> aileler;
  while (komut->Adim()) {
    const std::string_view kod = komut->Metin(0);
    if (aileler.empty() || !TurkceEsit(aileler.back().kod, kod)) aileler.push_back({std::string(kod), {}});
    aileler.back().deger.Ekle(int(komut->Tam(1)), int(komut->Tam(2)));
  }
  return aileler;
}

std::vector<Kodlu<YilToplamlari>> YilToplamlariniOku(Motor& motor, const BordroDonemi& donem, const KisiSuzgeci& kisi) {
  const auto komut = motor.Hazirla(
      "select kod, sum(case when ay < ? then gvmatrah end), sum(case when ay < ? then gvtutar end), sum(indirim1), "
      "sum(indirim2), sum(indirim3) from brd where yil = ?" +
      kisi.Kosul("and") + " group by kod order by kod");
  komut->TamBagla(1, donem.ay);
  komut->TamBagla(2, donem.ay);
  komut->TamBagla(3, donem.yil);
  kisi.Bagla(*komut, 4);
  std::vector<Kodlu<YilToplamlari>> toplamlar;
  const auto tutar = [&](int i) { return Tutar::Hamdan(komut->Tam(i)); };
  while (komut->Adim())
    toplamlar.push_back({std::string(komut->Metin(0)), {tutar(1), tutar(2), {tutar(3), tutar(4), tutar(5)}}});
  return toplamlar;
}

std::vector<Brd> AyinKayitlariniOku(Motor& motor, const BordroDonemi& donem, const std::string* kod) {
  std::vector<Deger> degerler{std::int64_t(donem.yil), std::int64_t(donem.ay)};
  if (kod != nullptr) degerler.emplace_back(*kod);
  // Ordered as the index of the month is, which spares the sorting of a company.
  const std::string no(BordroNosu);
  const std::string kisi = KisiSuzgeci(kod).Kosul("and");
  return KayitlariOku<Brd>(
      motor, "where yil = ? and ay = ?" + kisi + " and " + no + " = 1 order by kod, " + no + ", oto", degerler);
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
  Eslesen aileler(AileleriOku(motor, kisi), koduAl);
  Eslesen yillar(YilToplamlariniOku(motor, donem, kisi), koduAl);
  Eslesen kayitlar(AyinKayitlariniOku(motor, donem, kod), koduAl);
  const auto komut =
      motor.Hazirla("select " + SecimListesi<Sicil>(motor) + " from sicil" + kisi.Kosul("where") + " order by kod");
  kisi.Bagla(*komut, 1);
  while (komut->Adim()) {
    KisiVerisi veri;
    KayitAl(*komut, 0, veri.sicil);
    if (const auto* aile = aileler.Bul(veri.sicil.kod)) veri.aile = aile->deger;
    if (const auto* yil = yillar.Bul(veri.sicil.kod)) veri.yil = yil->deger;
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
