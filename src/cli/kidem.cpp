// kidem: severance and notice of one person, as the screen works them out. Nothing is stored.
#include "cli/belgecikti.h"
#include "cli/izjson.h"
#include "cli/jsonakisi.h"
#include "core/store/koru.h"
#include "payroll/hazirlik/kosullar.h"
#include "severance/kidembelgesi.h"

namespace belvani::cli {
namespace {

struct KidemSecenekleri {
  std::string kod;
  std::string personel;
  std::optional<Tarih> giris;
  Tarih cikis;
  std::optional<Tutar> ucret;
  std::optional<int> ihbarGun;
  std::vector<std::string> haric;
  KidemTavaniSecimi tavan = KidemTavaniSecimi::Kurulu;
  BelgeCiktisi cikti;
  bool izli = false;
};

constexpr Kolon<Sicil, Tutar> KidemUcreti = [] {
  auto kolon = sicil::ucret;
  kolon.sinir = sinir::EnCok(EnCokKidemUcreti);
  return kolon;
}();

// The text of an option as a value of its column; a wrong one ends the command as a wrong call.
template <class U>
U DegerOku(const char* secenek, const Kolon<Sicil, U>& kolon, const std::string& metin) {
  std::string kusur;
  const Deger deger = MetindenDeger(kolon, std::is_same_v<U, Tarih> ? GunSecenegi(metin) : metin, kusur);
  if (kusur.empty()) kusur = AlanKusuru(Alan(kolon, secenek), deger);
  if (kusur.empty() && NullMu(deger)) kusur = "boş bırakılamaz";
  if (!kusur.empty()) throw CLI::ValidationError(secenek, kusur + ": " + metin);
  U uye{};
  UyeyeYaz(uye, deger);
  return uye;
}

// With the company's decimals, without marks between thousands; null where the sheet is blank.
Json TutarJson(const std::optional<Tutar>& tutar, int paraonda) {
  if (!tutar) return nullptr;
  std::string metin = TutarMetni(*tutar, std::clamp(paraonda, 0, 4));
  std::erase(metin, ',');
  return metin;
}

Json KidemJson(const KidemHesabi& hesap, bool izli) {
  const KidemCizelgesi c = hesap.Cizelge();
  const auto tutar = [&](std::string_view ad) { return TutarJson(KidemTutariBul(c, ad), c.paraonda); };
  Json nesne = Json::object();
  nesne["kod"] = c.form.kod;
  nesne["adi"] = c.form.adi;
  nesne["soyadi"] = c.form.soyadi;
  nesne["girtar"] = c.form.girtar.Metin();
  nesne["ciktar"] = c.form.ciktar.Metin();
  nesne["AylikUcret"] = tutar("AylikUcret");
  nesne["CalismaGunu"] = c.sonuc.CalismaGunu;
  nesne["IhbarGun"] = c.sonuc.IhbarGun;
  nesne["KidemYil"] = c.sonuc.KidemYil;
  for (const char* ad :
       {"dvgvmatrah", "dvgvtutar", "kidemTavan", "gunlukEsas", "gunlukKidem", "brutKidem", "kidemDamga", "netKidem",
        "brutIhbar", "ihbarGelirVergisi", "ihbarDamga", "netIhbar", "netToplam"})
    nesne[ad] = tutar(ad);
  nesne["notlar"] = c.notlar;
  if (izli) nesne["iz"] = IzJson(hesap.IzYap());
  return nesne;
}

// The steps below the text of a sheet, one a line.
std::string IzMetni(const Iz& iz) {
  std::string metin = "\nNeden bu tutar?\n";
  for (const IzAdimi& adim : iz) {
    metin += adim.kural;
    const char* ayrac = ": ";
    for (const IzGirdi& girdi : adim.girdiler) {
      metin += ayrac + girdi.ad + " " + girdi.deger;
      ayrac = ", ";
    }
    metin += " -> " + adim.sonuc + "\n";
  }
  return metin;
}

void KisiyiKoy(KidemHesabi& hesap, const KidemSecenekleri& s) {
  if (!hesap.KisiBul(s.personel)) throw KomutHatasi{"Personel bulunamadı: " + s.personel};
  if (s.giris) hesap.GirisKoy(*s.giris);
  hesap.CikisKoy(s.cikis);
  if (s.ucret) hesap.UcretKoy(*s.ucret);
  if (s.ihbarGun) hesap.IhbarGunKoy(*s.ihbarGun);
  hesap.HaricKoy(std::ranges::count(s.haric, "kidem") > 0, std::ranges::count(s.haric, "ihbar") > 0);
  hesap.TavanKoy(s.tavan);
}

void Ver(Genel& genel, const KidemHesabi& hesap, const KidemSecenekleri& s) {
  const KidemCizelgesi cizelge = hesap.Cizelge();
  for (const std::string& soz : cizelge.notlar) genel.bildirim.Uyari("Uyarı: " + soz);
  if (s.cikti.bicim == "json") return Yaz(JsonMetni(KidemJson(hesap, s.izli)) + "\n", s.cikti.dosya);
  const auto belge = KidemBelgesi(cizelge);
  if (s.cikti.bicim == "metin" && s.izli) return Yaz(belge->Metin() + IzMetni(hesap.IzYap()), s.cikti.dosya);
  BelgeYaz(*belge, s.cikti);
}

void Kidem(Genel& genel, const KidemSecenekleri& s) {
  const auto oturum = genel.SirketAc(s.kod);
  auto yasal = YasalParametreleriAl(KuruluMevzuatOku(oturum->DataPath));
  const BelgeKaynagi kaynak{.motor = oturum->depo.db.IcMotor(),
                            .yasal = Degeri(yasal),
                            .firma = oturum->firma,
                            .sirket = oturum->FirmaDizini};
  Basarmali(Koru([&] {
    KidemHesabi hesap(kaynak.motor, KidemKosullariYukle(kaynak));
    for (const std::string& uyari : hesap.Kosullar().uyarilar) genel.bildirim.Uyari("Uyarı: " + uyari);
    if (!hesap.Kosullar().IsSaatiYazili) genel.bildirim.Uyari(IsSaatiYazilmamis);
    KisiyiKoy(hesap, s);
    Ver(genel, hesap, s);
  }));
}

void DegerSecenekleri(CLI::App& komut, const std::shared_ptr<KidemSecenekleri>& s) {
  const auto ekle = [&](const char* ad, std::function<void(const std::string&)> al, const char* yardim) {
    return komut.add_option_function<std::string>(ad, std::move(al), yardim);
  };
  ekle(
      "--giris", [s](const std::string& m) { s->giris = DegerOku("--giris", sicil::girtar, m); },
      "giriş tarihi; verilmezse karttaki")
      ->type_name("TARİH");
  ekle(
      "--cikis", [s](const std::string& m) { s->cikis = DegerOku("--cikis", sicil::ciktar, m); }, "çıkış tarihi")
      ->type_name("TARİH")
      ->required();
  ekle(
      "--ucret", [s](const std::string& m) { s->ucret = DegerOku("--ucret", KidemUcreti, m); },
      "aylık brüt ücret; verilmezse karttaki ücretten bulunur")
      ->type_name("TUTAR");
  ekle(
      "--ihbar-gun", [s](const std::string& m) { s->ihbarGun = SayiOku("--ihbar-gun", m, 0, EnCokIhbarGunu); },
      "ihbar günü; verilmezse ihbar süreleri tablosundan")
      ->type_name("SAYI");
  komut.add_option("--haric", s->haric, "hesaptan çıkarılan taraf: kidem, ihbar; ikisi için iki kez verilir")
      ->check(CLI::IsMember({"kidem", "ihbar"}))
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  const std::vector<std::string> tavanlar(KidemTavaniSozcukleri.begin(), KidemTavaniSozcukleri.end());
  ekle(
      "--tavan",
      [s](const std::string& m) {
        s->tavan = m == KidemTavaniSozcukleri[0] ? KidemTavaniSecimi::Kurulu : KidemTavaniSecimi::Yariyil;
      },
      "kurulu yasal oranların ya da çıkışın yarıyılının kıdem tavanı")
      ->check(CLI::IsMember(tavanlar));
}

}  // namespace

void KidemKomutu(CLI::App& app, Genel& genel) {
  auto s = std::make_shared<KidemSecenekleri>();
  auto* komut = app.add_subcommand("kidem", "Bir kişinin kıdem ve ihbar tazminatını hesaplar; hiçbir şey saklanmaz");
  komut->add_option("KOD", s->kod, "şirket")->required();
  komut->add_option("PERSONEL", s->personel, "personel kodu")->required();
  DegerSecenekleri(*komut, s);
  CiktiSecenekleri(*komut, s->cikti, {"metin", "json", "pdf", "xlsx"});
  komut->add_flag("--iz", s->izli, "metin ve json: her tutarın nasıl bulunduğunu da verir");
  komut->callback([&genel, s] { Kidem(genel, *s); });
}

}  // namespace belvani::cli
