#include "core/session/yukseltme.h"

#include <algorithm>
#include <cassert>

#include "core/session/sirket.h"
#include "core/tables/tablolar.h"

namespace belvani {
namespace {

struct YeniAlanlar {
  std::string_view tablo;
  std::vector<std::string_view> alanlar;
};

struct Adim {
  std::string_view baslik;
  std::string_view versiyon;  // the step is open to stores before it
  std::vector<YeniAlanlar> eklenen;
  void (*doldur)(Depo& depo, Tutar sskTaban);
  double damga;  // 0: the program's version
};

// `tahsisno` of `sicil` is not filled: a new text field is Null, and Null reads as the empty text that it would get.
void Adim0Doldur(Depo& depo, Tutar) {
  depo.db.IcMotor().Calistir(
      "update firma set tckimlik = '', epos = '', kanun = '00000', semt = '', adrilce = '', adril = '', pk = '';"
      "update brd set ucretsizizin = coalesce(ucretsizizin, 0), ogv = coalesce(ogv, 0) "
      "where ucretsizizin is null or ogv is null");
}

void Adim1Doldur(Depo& depo, Tutar sskTaban) {
  const auto komut = depo.db.IcMotor().Hazirla(
      "update brd set ucrizmatrah = 0, indirim1 = 0, indirim2 = 0, indirim3 = 0, sakindir = 0, gocindir = 0, katki = "
      "case when coalesce(sskmatrahisveren, 0) < ? then ? - coalesce(sskmatrahisveren, 0) else 0 end");
  komut->Bagla(1, sskTaban);
  komut->Bagla(2, sskTaban);
  komut->Calistir();
}

void Adim2Doldur(Depo& depo, Tutar) {
  depo.db.IcMotor().Calistir("update firma set tersfirma = 0");
}

// `kanun` of `sicil` stays Null in step 4 for the same reason as `tahsisno`.
void Doldurma(Depo&, Tutar) {}

void Adim5Doldur(Depo& depo, Tutar) {
  depo.db.IcMotor().Calistir(
      "update sicil set tur = case coalesce(sskdurum, 0) "
      "when 0 then 1 when 1 then 2 when 2 then 15 when 3 then 7 when 4 then 0 else tur end "
      "where coalesce(tur, 0) < 1 or tur > 18");
}

void Adim6Doldur(Depo& depo, Tutar) {
  depo.db.IcMotor().Calistir(
      "update sicil set agi = 1, tur = case when sskdurum = 4 then 1 else 0 end, "
      "sskdurum = case when sskdurum = 4 then 4 else 0 end");
}

const std::array<Adim, AdimSayisi>& Adimlar() {
  static const std::array<Adim, AdimSayisi> adimlar{{
      {"Önceki Versiyonlardan 2003.1'e  Geçiş",
       "2003.1",
       {{"firma", {"tckimlik", "epos", "kanun", "versiyon", "semt", "adrilce", "adril", "pk"}},
        {"brd", {"ucretsizizin", "ogv"}},
        {"sicil", {"tahsisno"}}},
       Adim0Doldur,
       0},
      {"2003.1' den 2003.2 ' ye Geçiş",
       "2003.2",
       {{"sicil", {"indirim1", "indirim2", "indirim3", "indtut1", "indtut2", "indtut3"}},
        {"brd", {"ucrizmatrah", "katki", "indirim1", "indirim2", "indirim3", "sakindir", "gocindir"}}},
       Adim1Doldur,
       0},
      {"2003.2' den 2003.3 ' ye Geçiş", "2003.3", {{"firma", {"tersfirma"}}}, Adim2Doldur, 0},
      {"2003.3' den 2003.4 ' ye Geçiş", "2003.4", {{"brd", {"sendika", "borckes", "muaftutar"}}}, Doldurma, 0},
      {"2003.4' den 2003.5 ' ye Geçiş", "2003.5", {{"sicil", {"kanun"}}}, Doldurma, 0},
      {"2003.5' den 2003.6 ' ye Geçiş", "2003.6", {{"sicil", {"tur"}}}, Adim5Doldur, 2003.6},
      {"2003.6' den 2003.7 ' ye Geçiş",
       "2003.7",
       {{"sicil", {"agi"}}, {"esco", {"agiok"}}, {"brd", {"agioran", "agimatrah", "brdkanun"}}},
       Adim6Doldur,
       2003.7},
  }};
  return adimlar;
}

template <class Is>
bool HerAlan(const Adim& adim, Is&& is) {
  return std::all_of(adim.eklenen.begin(), adim.eklenen.end(), [&](const YeniAlanlar& y) {
    return std::all_of(y.alanlar.begin(), y.alanlar.end(), [&](std::string_view alan) { return is(y.tablo, alan); });
  });
}

// All of the step's fields in one transaction; those that are there stay as they are.
bool AlanlariEkle(Veritabani& db, const Adim& adim) {
  return db.Koru(false, [&] {
    Islem islem(db.IcMotor());
    const bool tamam = HerAlan(adim, [&](std::string_view tablo, std::string_view alan) {
      return !db.TabloVarMi(tablo) || db.AlanVarMi(tablo, alan) || db.AlanEkle(tablo, *TabloBul(tablo)->AlanBul(alan));
    });
    if (tamam) islem.Onayla();
    return tamam;
  });
}

// Steps 0 and 1 succeed on a store that has no `firma` record to stamp.
bool DamgasizOlur(std::size_t adim) {
  return adim < 2;
}

GuncellemeSonucu DoldurVeDamgala(Oturum& o, std::size_t no, Tutar sskTaban, Bildirim& bildirim) {
  const Adim& adim = Adimlar()[no];
  auto& depo = o.depo;
  const bool tamam = depo.db.Koru(false, [&] {
    Islem islem(depo.db.IcMotor());
    adim.doldur(depo, sskTaban);
    const auto damga = depo.db.IcMotor().Hazirla("update firma set versiyon = ?");
    damga->SayiBagla(1, adim.damga == 0 ? o.Versiyon.Sayi() : adim.damga);
    damga->Calistir();
    const bool kayitVar = depo.db.IcMotor().DegisenSatir() != 0;
    islem.Onayla();
    if (!kayitVar) depo.db.HataYaz("firma kaydı yok, versiyon yazılamadı");
    return kayitVar || DamgasizOlur(no);
  });
  if (tamam) return GuncellemeSonucu::Tamam;
  bildirim.Uyari(std::string(adim.baslik) + "\nyapılamadı: " + depo.db.SonHata());
  return GuncellemeSonucu::Basarisiz;
}

}  // namespace

std::string_view AdimBasligi(std::size_t adim) {
  return Adimlar().at(adim).baslik;
}

AdimIsaretleri AcikAdimlar(Tek depoVersiyonu) {
  AdimIsaretleri acik{};
  for (std::size_t i = 0; i < AdimSayisi; ++i) acik[i] = VersiyonMetni(depoVersiyonu) < Adimlar()[i].versiyon;
  return acik;
}

GuncellemeSonucu VeritabaniGuncelle(Oturum& o, std::size_t adim, Tutar sskTaban, Bildirim& bildirim) {
  assert(adim < AdimSayisi);
  const std::string yol = DepoAdresi(o.FirmaDizini);
  o.depo.TablolariKapat(KapatmaKapsami::YalnizImlecler);
  if (!o.depo.db.DbAc(yol)) {
    bildirim.Uyari("Dosyalar Güvenli Kapatılıp Açılamadı..");
    return GuncellemeSonucu::ProgramBitsin;
  }
  const bool eklendi = AlanlariEkle(o.depo.db, Adimlar()[adim]);
  const std::string eklemeHatasi = o.depo.db.SonHata();
  if (!o.depo.VeritabaniAc(yol, bildirim)) {
    if (adim != 0) return GuncellemeSonucu::Basarisiz;
    bildirim.Uyari("Database Tekrar Açılamadı");
    return GuncellemeSonucu::ProgramBitsin;
  }
  if (eklendi) return DoldurVeDamgala(o, adim, sskTaban, bildirim);
  // A store without the fields must not be stamped as if it had them.
  bildirim.Uyari(std::string(AdimBasligi(adim)) + "\nyapılamadı: " + eklemeHatasi);
  return GuncellemeSonucu::Basarisiz;
}

GuncellemeSonucu AdimlariYurut(Oturum& o, const AdimIsaretleri& isaretli, Tutar sskTaban, Bildirim& bildirim,
                               Ilerleme* ilerleme) {
  const auto adimlar = std::size_t(std::count(isaretli.begin(), isaretli.end(), true));
  if (adimlar == 0) {
    bildirim.Uyari("İşaretleme Yapılmamış..");
    return GuncellemeSonucu::IsaretYok;
  }
  // Given up before the first step, it is as if nothing had been ticked.
  if (ilerleme != nullptr && !ilerleme->Kesin()) return GuncellemeSonucu::IsaretYok;
  std::size_t biten = 0;
  for (std::size_t i = 0; i < AdimSayisi; ++i) {
    if (!isaretli[i]) continue;
    if (ilerleme != nullptr) {
      ilerleme->Adim(biten++, adimlar);
      ilerleme->Asama(AdimBasligi(i));
    }
    if (const auto sonuc = VeritabaniGuncelle(o, i, sskTaban, bildirim); sonuc != GuncellemeSonucu::Tamam) return sonuc;
  }
  // The store is whole without them, only slower: nobody is told when they cannot be made.
  o.depo.db.SorguIndeksleriKur();
  return GuncellemeSonucu::Tamam;
}

}  // namespace belvani
