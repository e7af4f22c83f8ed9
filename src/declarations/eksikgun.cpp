#include "declarations/eksikgun.h"

#include "core/session/aracibilgi.h"
#include "core/store/izlenenokuma.h"
#include "documents/listebelgesi.h"
#include "documents/sorgumetni.h"
#include "documents/turetilen.h"
#include "printing/form/tabloluform.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

constexpr int AyGunu = 30;
constexpr std::size_t AnilanKisi = 8;  // people left out whose codes are told

constexpr auto BrdKolonlari = std::tuple{brd::kod, brd::ng, brd::ht,           brd::rt,          brd::ui,
                                         brd::mi,  brd::ha, brd::ucretsizizin, brd::eksiksebebi, brd::sskmatrah};
constexpr auto SicilKolonlari = std::tuple{sicil::sskno, sicil::adi, sicil::soyadi};

EksikGunSatiri SatirYap(const Brd& brd, const Sicil& sicil, const std::string& tcno, Tutar prim) {
  return {.kisi = {.sskno = sicil.sskno,
                   .tcno = tcno,
                   .adi = sicil.adi,
                   .soyadi = sicil.soyadi,
                   .gun = GunToplami(brd),
                   .eksikGun = brd.ucretsizizin,
                   .sebep = brd.eksiksebebi},
          .prim = prim};
}

// The first column bears the name of the number that it once held.
Kolonlar<EksikGunSatiri> ListeKolonlari() {
  return {
      {"sskno", "SSK No", 13, [](auto& s) { return s.kisi.tcno; }},
      {"adsoy", "Adı Soyadı", 36, [](auto& s) { return s.kisi.adi + " " + s.kisi.soyadi; }},
      {"prim", "Kazanç", 12, [](auto& s) { return s.prim; }, Toplanir},
      {"eksik", "Eksik Gün", 9, [](auto& s) { return s.kisi.eksikGun; }, Toplanir},
      {"sebeb", "Nedeni", 6, [](auto& s) { return s.kisi.sebep; }},
  };
}

std::string KimliksizSozu(const std::vector<std::string>& kodlar) {
  if (kodlar.empty()) return {};
  std::string soz = "Kimlik bilgisi olmadığı için listeye girmeyen " + std::to_string(kodlar.size()) + " kişi: ";
  for (std::size_t i = 0; i < std::min(kodlar.size(), AnilanKisi); ++i) soz += (i == 0 ? "" : ", ") + kodlar[i];
  return kodlar.size() > AnilanKisi ? soz + ", …" : soz;
}

Rapor Listesi(const EksikGunListesi& liste, const BelgeKaynagi& kaynak, int yil, int ay) {
  Rapor rapor = RaporYap(ListeKolonlari(), liste.satirlar, kaynak.firma.paraonda);
  rapor.baslik = "SİGORTALILARIN EKSİK GÜN BİLDİRİM FORMU";
  rapor.ekranBasligi = EksikGunBasligi;
  rapor.toplamEtiketi = "T O P L A M";
  rapor.ustSatirlar = {{.sol = kaynak.firma.unvan, .sirket = true},
                       {.sol = std::string(AyAdi(ay)) + " " + std::to_string(yil)}};
  return rapor;
}

}  // namespace

Tutar GunlukKazanc(const Brd& brd, Tutar sskTaban, Yuvarlayici yuvarla) {
  const int gun = GunToplami(brd);
  if (gun == 0) return {};
  return std::max(yuvarla(brd.sskmatrah.Sayi() / gun), Tutar(sskTaban.Sayi() / AyGunu));
}

EksikGunListesi EksikGunHesapla(const BelgeKaynagi& kaynak, int yil, int ay) {
  SorguMetni sorgu("select " + KolonListesi(BrdKolonlari, "b.") + ", " + KolonListesi(SicilKolonlari, "s.") +
                       ", k.tcno, k.kod is not null from brd b join sicil s on s.kod = b.kod "
                       "left join kimlik k on k.kod = b.kod where b.yil = ? and b.ay = ? and b.eksiksebebi > 0 "
                       "order by length(coalesce(s.sskno, '')), (coalesce(s.sskno, '')) collate turkce, b.kod, b.no",
                   {std::int64_t(yil), std::int64_t(ay)});
  const auto komut = sorgu.Hazirla(kaynak.motor);
  const Yuvarlayici yuvarla(kaynak.firma.paraonda);
  EksikGunListesi liste;
  Brd brd;
  Sicil sicil;
  std::string tcno;
  for (IzlenenOkuma okuma(*komut, kaynak.ilerleme); okuma.Adim();) {
    const int sicilIlk = KolonlariAl(*komut, 0, BrdKolonlari, brd);
    const int kimlikIlk = KolonlariAl(*komut, sicilIlk, SicilKolonlari, sicil);
    KolonAl(*komut, kimlikIlk, tcno);
    bool kimlikVar = false;
    KolonAl(*komut, kimlikIlk + 1, kimlikVar);
    if (kimlikVar)
      liste.satirlar.push_back(SatirYap(brd, sicil, tcno, GunlukKazanc(brd, kaynak.yasal.oranlar.SskTaban, yuvarla)));
    else
      liste.kimliksizler.push_back(brd.kod);
  }
  return liste;
}

EksikGunKagidi EksikGunKagidiYap(const BelgeKaynagi& kaynak, int yil, int ay, const EksikGunListesi& liste) {
  EksikGunKagidi kagit{.form = {.yil = yil,
                                .ay = ay,
                                .firma = kaynak.firma,
                                .arac = AraciOku(kaynak.motor),
                                .muhasebeci = MuhasebeciOku(kaynak.sirket)},
                       .primler = {},
                       .paraonda = kaynak.firma.paraonda};
  for (const EksikGunSatiri& satir : liste.satirlar) {
    kagit.form.kisiler.push_back(satir.kisi);
    kagit.primler.push_back(satir.prim);
  }
  return kagit;
}

std::unique_ptr<Belge> EksikGunBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim) {
  const EksikGunListesi liste = EksikGunHesapla(kaynak, secim.yil, secim.ay);
  const auto kagit = std::make_shared<const EksikGunKagidi>(EksikGunKagidiYap(kaynak, secim.yil, secim.ay, liste));
  return std::make_unique<TabloluForm>(
      BaskiAyari(EksikGunBasligi, KagitYonu::Dikey), Listesi(liste, kaynak, secim.yil, secim.ay),
      FormYapanlar{.sayfalar = [kagit](Ilerleme* i) { return EksikGunSayfalari(*kagit, i); },
                   .eksikler = KimliksizSozu(liste.kimliksizler)});
}

}  // namespace belvani
