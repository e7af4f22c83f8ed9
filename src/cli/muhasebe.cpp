// muhasebe-fisi, muhasebe-isle, isletme-isle: a month's payroll into the books; muhasebe-ac, isletme-ac: books to start
// with.
#include "accounting/entegrasyonayari.h"
#include "accounting/fisbelgesi.h"
#include "accounting/fisisle.h"
#include "accounting/fisoku.h"
#include "accounting/isletme.h"
#include "accounting/kardesdepo.h"
#include "cli/belgecikti.h"
#include "core/sayi.h"
#include "core/store/koru.h"

namespace belvani::cli {
namespace {

// Of the month that a command is about; without a choice it is the company's.
struct DonemSecenegi {
  int yil = 0;
  int ay = 0;

  void Ekle(CLI::App& komut) {
    YilSecenegi(komut, yil, "bordro yılı (verilmezse şirketin çalışma yılı)");
    AySecenegi(komut, ay, "bordro ayı, 1-12 (verilmezse şirketin çalışma ayı)");
  }
  Donem Sec(const Oturum& o) const { return {yil ? yil : o.firma.firmayil, ay ? ay : o.firma.firmaay}; }
};

// --evet: what would be asked is agreed to.
struct Onay {
  bool evet = false;

  void Ekle(CLI::App& komut) { komut.add_flag("--evet", evet, "ay daha önce işlenmişse de sormadan işler"); }
  void Al(Genel& genel, const std::string& soru) const {
    OnayliBildirim onayli;
    Bildirim& bildirim = evet ? static_cast<Bildirim&>(onayli) : genel.bildirim;
    if (!soru.empty() && !bildirim.Soru(soru)) throw KomutHatasi{"İşlenmedi; yine de işlemek için: --evet"};
  }
};

struct FisIsi {
  std::string kod;
  DonemSecenegi donem;
  std::string grup = ButunGruplar;
  std::string muhasebe;
  Tarih tarih;
  BelgeCiktisi cikti;
  Onay onay;
  std::optional<std::int32_t> fisno;
};

template <class Is>
auto Yapilan(Is is, const std::string& onek = {}) {
  auto sonuc = Koru(is, onek);
  return std::move(Degeri(sonuc));
}

const std::string OkunamayanMuhasebe = std::string(MuhasebeAcilamadi) + "\n";

std::string MuhasebeDizini(const FisIsi& is, const Oturum& o) {
  return is.muhasebe.empty() ? KardesDizini(o, MuhasebeSirketi(o)) : is.muhasebe;
}

// What is told of a voucher goes to standard error.
Fis FisHazirla(Genel& genel, const FisIsi& is, Oturum& o) {
  Motor& motor = o.depo.db.IcMotor();
  const Donem donem = is.donem.Sec(o);
  if (is.grup != ButunGruplar) {
    const auto gruplar = Yapilan([&] { return EntegreGruplari(motor); });
    const auto ayni = [&](const std::string& grup) { return TurkceEsit(grup, is.grup); };
    if (std::ranges::none_of(gruplar, ayni)) throw KomutHatasi{"Bu grubun entegrasyon parametresi yok: " + is.grup};
  }
  Fis fis = Yapilan([&] { return FisOku(motor, {donem.yil, donem.ay, is.grup}); });
  for (const Kusur& kusur : fis.dusenler) genel.bildirim.KusuruGoster(kusur);
  for (const Kusur& kusur : fis.uyarilar) genel.bildirim.Uyari("Uyarı: " + kusur.metin);
  return fis;
}

FisBasligi Baslik(const FisIsi& is, const Oturum& o, const Fis& fis) {
  return {.unvan = o.firma.unvan,
          .tarih = is.tarih.Bos() ? FisTarihi(fis.donem.yil, fis.donem.ay) : is.tarih,
          .fisno = is.fisno ? std::to_string(*is.fisno) : "",
          .paraonda = o.firma.paraonda};
}

// The names of accounts; a voucher without books has none.
HesapPlani PlanOku(Genel& genel, const std::string& dizin) {
  if (dizin.empty()) return {};
  const auto muhasebe = KardesAc(KardesTuru::Muhasebe, dizin, KardesErisimi::YalnizBakis);
  if (!muhasebe) {
    genel.bildirim.Uyari("Uyarı: hesap adları yazılamadı: " + muhasebe.KusurMetni());
    return {};
  }
  return Yapilan([&] { return HesapPlani::Oku(**muhasebe); }, OkunamayanMuhasebe);
}

void FisYaz(Genel& genel, const FisIsi& is, const Fis& fis, const FisBasligi& baslik, const HesapPlani& plan) {
  if (is.cikti.bicim != is.cikti.ekMetin) return BelgeYaz(*FisBelgesi(fis, baslik, plan), is.cikti);
  if (const std::string uyari = YevmiyeUyarisi(fis); !uyari.empty()) genel.bildirim.Uyari("Uyarı: " + uyari);
  Yaz(YevmiyeMaddesi(fis, baslik, plan), is.cikti.dosya);
}

void FisVer(Genel& genel, const FisIsi& is) {
  const auto o = genel.SirketAc(is.kod);
  const Fis fis = FisHazirla(genel, is, *o);
  if (fis.Bos()) genel.bildirim.Bilgi(IslenecekHesapYok);
  FisYaz(genel, is, fis, Baslik(is, *o, fis), PlanOku(genel, MuhasebeDizini(is, *o)));
}

void FisiIsle(Genel& genel, FisIsi& is) {
  const auto o = genel.SirketAc(is.kod);
  const Fis fis = FisHazirla(genel, is, *o);
  FisBasligi baslik = Baslik(is, *o, fis);
  auto ac = MuhasebeyiAc(MuhasebeDizini(is, *o));
  Motor& muhasebe = *Degeri(ac);
  Basarmali(FisDenetle(fis, baslik.tarih));
  FisIstegi istek{.tarih = baslik.tarih, .fisno = is.fisno};
  if (!is.onay.evet) {
    istek.bilinenler = Yapilan([&] { return AyniFisler(muhasebe, fis.ack); }, OkunamayanMuhasebe);
    is.onay.Al(genel, AyniFisSorusu(*istek.bilinenler, fis.ack));
  }
  auto islenen = FisIsle(muhasebe, fis, istek);
  const std::int32_t fisno = Degeri(islenen);
  if (fis.Bakiye() != Tutar())
    genel.bildirim.Uyari("Uyarı: borç ve alacak eşit değil, bakiye " +
                         TutarMetni(fis.Bakiye(), std::clamp<int>(o->firma.paraonda, 0, 4)));
  genel.bildirim.Bilgi("Fiş işlendi, fiş no " + std::to_string(fisno));
  if (is.cikti.bicim.empty()) return Yaz(std::to_string(fisno) + "\n");
  baslik.fisno = std::to_string(fisno);
  FisYaz(genel, is, fis, baslik, Yapilan([&] { return HesapPlani::Oku(muhasebe); }, OkunamayanMuhasebe));
}

void FisSecenekleri(CLI::App& komut, FisIsi& is) {
  komut.add_option("KOD", is.kod, "şirket")->required();
  is.donem.Ekle(komut);
  komut.add_option("--grup", is.grup, "yalnız bu özel kodun personeli (verilmezse Tümü)");
  komut.add_option("--muhasebe", is.muhasebe, "muhasebe şirketinin dizini (verilmezse şirketin ayarındaki)")
      ->type_name("DİZİN");
  TarihSecenegi(komut, "--tarih", "fiş tarihi, gg.aa.yyyy (verilmezse ayın son günü)", is.tarih);
  CiktiSecenekleri(komut, is.cikti, {}, "journal");
}

struct IsletmeIsi {
  std::string kod;
  DonemSecenegi donem;
  Tarih tarih;
  std::string aciklama;
  IsletmeAyari ayar;
  Onay onay;
};

void KayitliyiSec(std::string& deger, const std::string& kayitli) {
  if (deger.empty()) deger = kayitli;
}

void IsletmeIsle(Genel& genel, IsletmeIsi is) {
  const auto o = genel.SirketAc(is.kod);
  const Donem donem = is.donem.Sec(*o);
  const IsletmeAyari kayitli = IsletmeAyariOku(*o);
  KayitliyiSec(is.ayar.islfirma, KardesDizini(*o, kayitli.islfirma));
  IsletmeKaydi kayit =
      Yapilan([&] { return IsletmeKaydiYap(o->depo.db.IcMotor(), donem.yil, donem.ay, Tarih::Bugun()); });
  kayit.ucretgrup = is.ayar.ucretgrup.empty() ? kayitli.ucretgrup : is.ayar.ucretgrup;
  kayit.sskgrup = is.ayar.sskgrup.empty() ? kayitli.sskgrup : is.ayar.sskgrup;
  if (!is.tarih.Bos()) kayit.tarih = is.tarih;
  if (!is.aciklama.empty()) kayit.ack = is.aciklama;
  auto ac = KardesAc(KardesTuru::Isletme, is.ayar.islfirma);
  Motor& isletme = *Degeri(ac);
  Basarmali(IsletmeDenetle(kayit));
  const int ayni = Yapilan([&] { return AyniHareketler(isletme, kayit.ack); });
  is.onay.Al(genel, AyniHareketSorusu(ayni, kayit.ack));
  const IsletmeKaydi islenen = kayit;
  Basarmali(IsletmeyeIsle(isletme, kayit));
  const int onda = std::clamp<int>(o->firma.paraonda, 0, 4);
  Yaz("İşletme defterine işlendi: " + islenen.ucretgrup + " " + TutarMetni(islenen.brut, onda) + ", " +
      islenen.sskgrup + " " + TutarMetni(islenen.prim, onda) + "\n");
}

void IsletmeKomutu(CLI::App& app, Genel& genel) {
  auto is = std::make_shared<IsletmeIsi>();
  auto* komut = app.add_subcommand("isletme-isle", "Ayın ücret ve prim giderini işletme defterine işler");
  komut->add_option("KOD", is->kod, "şirket")->required();
  is->donem.Ekle(*komut);
  komut->add_option("--isletme", is->ayar.islfirma, "işletme şirketinin dizini (verilmezse şirketin ayarındaki)")
      ->type_name("DİZİN");
  TarihSecenegi(*komut, "--tarih", "entegre tarihi, gg.aa.yyyy (verilmezse bugün)", is->tarih);
  komut->add_option("--aciklama", is->aciklama, "hareketlerin açıklaması (verilmezse ayın adıyla)");
  komut->add_option("--ucret-grup", is->ayar.ucretgrup, "brüt ücretin grubu (verilmezse şirketin ayarındaki)");
  komut->add_option("--ssk-grup", is->ayar.sskgrup, "primlerin grubu (verilmezse şirketin ayarındaki)");
  is->onay.Ekle(*komut);
  komut->callback([&genel, is] { IsletmeIsle(genel, *is); });
}

void AcKomutu(CLI::App& app, const char* ad, const char* aciklama, KardesTuru tur) {
  auto dizin = std::make_shared<std::string>();
  auto* komut = app.add_subcommand(ad, aciklama);
  komut->add_option("DİZİN", *dizin, "dosyanın kurulacağı dizin; yoksa yapılır")->required();
  komut->callback([dizin, tur] {
    Basarmali(KardesYarat(tur, *dizin));
    Yaz("Kuruldu: " + KardesDosyasi(tur, *dizin) + "\n");
  });
}

}  // namespace

void MuhasebeKomutlari(CLI::App& app, Genel& genel) {
  auto f = std::make_shared<FisIsi>();
  auto* fis = app.add_subcommand("muhasebe-fisi", "Ayın ücret tahakkukunu muhasebe fişi olarak verir");
  FisSecenekleri(*fis, *f);
  fis->callback([&genel, f] { FisVer(genel, *f); });

  auto i = std::make_shared<FisIsi>();
  i->cikti.bicim.clear();
  auto* isle = app.add_subcommand("muhasebe-isle", "Ayın ücret tahakkukunu muhasebeye işler, fiş numarasını yazar");
  FisSecenekleri(*isle, *i);
  const auto fisNoOku = [i](const std::string& metin) {
    i->fisno = SayiOku("--fis", metin, 1, std::numeric_limits<std::int32_t>::max());
  };
  isle->add_option_function<std::string>("--fis", fisNoOku, "fiş no (verilmezse sıradaki)")->type_name("SAYI");
  i->onay.Ekle(*isle);
  isle->callback([&genel, i] { FisiIsle(genel, *i); });

  IsletmeKomutu(app, genel);
  AcKomutu(app, "muhasebe-ac", "Ücret hesaplarıyla yeni bir muhasebe dosyası kurar", KardesTuru::Muhasebe);
  AcKomutu(app, "isletme-ac", "Yeni bir işletme defteri dosyası kurar", KardesTuru::Isletme);
}

}  // namespace belvani::cli
