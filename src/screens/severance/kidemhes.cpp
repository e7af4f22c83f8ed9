#include "screens/severance/kidemhes.h"

#include <QEvent>
#include <QGroupBox>

#include "core/store/koru.h"
#include "core/tables/sicil.h"
#include "personnel/kart.h"
#include "screens/payroll/nedenpaneli.h"
#include "severance/kidembelgesi.h"
#include "ui/basim.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr auto Kod = Uye("kod", &KidemFormu::kod, sicil::kod.boyut);
constexpr auto Giris = Uye("girtar", &KidemFormu::girtar);
constexpr auto Cikis = Uye("ciktar", &KidemFormu::ciktar);
constexpr auto Ucret = Uye("AylikUcret", &KidemFormu::AylikUcret);
constexpr auto Ihbar = Uye("IhbarGun", &KidemFormu::IhbarGun);
constexpr auto KidemHaric = Uye("kidemHaric", &KidemFormu::kidemHaric);
constexpr auto IhbarHaric = Uye("ihbarHaric", &KidemFormu::ihbarHaric);
constexpr auto Tavan = Uye("tavan", &KidemFormu::tavan);

constexpr int TutarHarfi = 14;

AlanGrubu PersonelGrubu() {
  return {"Personel",
          {{Kod, "Sicil No", {.anahtar = true}},
           {Uye("sskno", &KidemFormu::sskno, sicil::sskno.boyut), "SSK Sicil No", {.kapali = true}},
           {Uye("adi", &KidemFormu::adi, sicil::adi.boyut), "Adı", {.kapali = true}},
           {Uye("soyadi", &KidemFormu::soyadi, sicil::soyadi.boyut), "Soyadı", {.kapali = true}}},
          4};
}

AlanGrubu HesapGrubu() {
  return {
      "Hesap",
      {{Giris, "Giriş Tarihi"},
       {Cikis, "Çıkış Tarihi"},
       {Ucret, "Aylık Ücreti (Bürüt Aylık)", {.ondalik = ParaOndalik, .enCok = EnCokKidemUcreti, .harf = TutarHarfi}},
       {Uye("CalismaGunu", &KidemFormu::CalismaGunu), "Kıdem Gün", {.harf = 6, .kapali = true}},
       {Ihbar, "İhbar Gün", {.enCok = EnCokIhbarGunu, .harf = 6, .ipucu = "Tarih değişince tablodan yeniden gelir"}},
       {Tavan, "Kıdem Tavanı", {.liste = KidemTavaniAdlari}}},
      3};
}

// An amount of the sheet, blank where the sheet is; it is shown and never typed.
Alan TutarAlani(std::string_view ad, const char* etiket) {
  return Alan(
      AlanTanimi{ad, AlanTipi::Tutar, 0, AlanNiteligi::Serbest}, typeid(KidemCizelgesi),
      [ad](const void* cizelge) {
        const auto tutar = KidemTutariBul(*static_cast<const KidemCizelgesi*>(cizelge), ad);
        return tutar ? Deger(*tutar) : Deger(Null{});
      },
      [](void*, const Deger&) {}, etiket, {.ondalik = ParaOndalik, .harf = TutarHarfi, .kapali = true});
}

AlanGrubu GunlukGrubu() {
  return {"Günlük",
          {TutarAlani("kidemTavan", "Kıdem Tazminat Tavanı"), TutarAlani("gunlukUcret", "Günlük Ücret"),
           TutarAlani("gunlukEsas", "Günlük Kıdem'e Esas Ücret"), TutarAlani("gunlukKidem", "Günlük Kıdem Tazminat"),
           TutarAlani("dvgvmatrah", "Devreden GV Matrahı"), TutarAlani("dvgvtutar", "Devreden GV Tutarı")},
          2};
}

AlanGrubu KidemGrubu() {
  return {"Kıdem Tazminatı",
          {{KidemHaric, "Hariç"},
           TutarAlani("kidemKazanci", "Kıdem'e Esas Kazanç"),
           TutarAlani("brutKidem", "Brüt Tutar"),
           TutarAlani("kidemDamga", "Damga Vergisi"),
           TutarAlani("netKidem", "NET KIDEM TAZMİNATI")}};
}

AlanGrubu IhbarGrubu() {
  return {"İhbar Tazminatı",
          {{IhbarHaric, "Hariç"},
           TutarAlani("brutIhbar", "Brüt Tutar"),
           TutarAlani("ihbarGelirVergisi", "Gelir Vergisi"),
           TutarAlani("ihbarDamga", "Damga Vergisi"),
           TutarAlani("netIhbar", "NET İHBAR TAZMİNATI")}};
}

AlanGrubu ToplamGrubu() {
  return {"", {TutarAlani("netToplam", "NET TOPLAM TAZMİNAT")}};
}

bool SonucAlani(const AlanDenetimi& alan) {
  return alan.Satir().kayitTuru == typeid(KidemCizelgesi);
}

// The step that explains what a field shows by another name.
std::string_view IzAdi(std::string_view alan) {
  return alan == "kidemKazanci" ? std::string_view("gunlukEsas") : alan;
}

}  // namespace

kidemhes::kidemhes(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : PersonelFormu(baglam, "kidemhes", QStringLiteral("Kıdem, İhbar Hesaplama")),
      parametreler_(parametreler),
      hesap_(baglam.oturum.depo.db.IcMotor(), KosullariYukle()),
      surum_(parametreler.Surum()),
      neden_(new NedenPaneli(this)),
      notlar_(new QLabel(this)) {
  Yerlestir();
  Komutlar({{.tus = Qt::Key_F6,
             .dugme = " Excel'e Gönder",
             .simge = "tablo",
             .islev = [this] { Ver([](EkranBaglami& b, Belge& belge) { BelgeExceleGonder(b, belge); }); }},
            {.tus = Qt::Key_F8,
             .dugme = " Yazıcıya Yazdır",
             .simge = "yazici",
             .islev = [this] { Ver([](EkranBaglami& b, Belge& belge) { BelgeBas(b, belge); }); }},
            {.tus = Qt::Key_F4, .ipucu = "Neden?", .islev = [this] { SonuclaraGit(); }},
            {.tus = Qt::CTRL | Qt::Key_Down, .islev = [this] { neden_->Kaydir(2); }},
            {.tus = Qt::CTRL | Qt::Key_Up, .islev = [this] { neden_->Kaydir(-2); }}});
  PersonelKomutlari(Kod);
  // Choices show at once; what is typed waits until its field is left.
  AlanDegisti = [this](AlanDenetimi& alan) {
    if (alan.Satir().ek.anahtar) return;
    if (std::ranges::find(degisen_, &alan) == degisen_.end()) degisen_.push_back(&alan);
    if (alan.YaziKutusu() == nullptr) Uygula();
  };
  Goster();
}

void kidemhes::Yerlestir() {
  SikDiz();
  Govde()->addWidget(GrupYap(PersonelGrubu()));
  Govde()->addWidget(GrupYap(HesapGrubu()));
  // The sum comes last in the walk through the results.
  auto* gunluk = GrupYap(GunlukGrubu());
  auto* kidem = GrupYap(KidemGrubu());
  auto* ihbar = GrupYap(IhbarGrubu());
  Govde()->addLayout(YanYana({{gunluk, GrupYap(ToplamGrubu())}, {kidem}, {ihbar}}));
  notlar_->setObjectName("notlar");
  notlar_->setProperty("hata", true);
  notlar_->setWordWrap(true);
  // Room for two lines from the beginning: the screen does not have to scroll when there is something to tell.
  notlar_->setMinimumHeight(2 * fontMetrics().height() + 8);
  QSizePolicy yer = notlar_->sizePolicy();
  yer.setRetainSizeWhenHidden(true);
  notlar_->setSizePolicy(yer);
  Alt()->addWidget(notlar_);
  Alt()->addWidget(neden_);
  for (const auto& d : Denetimler())
    if (SonucAlani(*d)) d->Odak()->setFocusPolicy(Qt::ClickFocus);
  for (const char* net : {"netKidem", "netIhbar", "netToplam"})
    YaziKutusu({typeid(KidemCizelgesi), net}).setProperty("toplam", true);
}

KidemKosullari kidemhes::KosullariYukle() const {
  KidemKosullari kosullar;
  const Durum okundu = Koru([&] {
    kosullar = KidemKosullariYukle({.motor = Oturumu().depo.db.IcMotor(),
                                    .yasal = parametreler_.yasal,
                                    .firma = Oturumu().firma,
                                    .sirket = Oturumu().FirmaDizini});
  });
  if (!okundu) kosullar.uyarilar.push_back(okundu.KusurMetni());
  return kosullar;
}

// Parameters may have been saved on another screen since.
void kidemhes::KosullariTazele() {
  const std::uint64_t yeni = parametreler_.Surum();
  if (std::exchange(surum_, yeni) == yeni) return;
  Oldu(Koru([&] { hesap_.KosullariKoy(KosullariYukle()); }));
}

void kidemhes::FirmaDegisti() {
  PersonelFormu::FirmaDegisti();
  KosullariTazele();
  Goster();
}

void kidemhes::showEvent(QShowEvent* olay) {
  const bool ilk = !olay->spontaneous() && !std::exchange(soylendi_, true);
  PersonelFormu::showEvent(olay);
  // Over the screen, not before it.
  if (ilk)
    QMetaObject::invokeMethod(
        this, [this] { KosullariSoyle(); }, Qt::QueuedConnection);
}

void kidemhes::KosullariSoyle() {
  for (const std::string& uyari : hesap_.Kosullar().uyarilar) Bildirimi().Uyari(uyari);
  if (!hesap_.Kosullar().IsSaatiYazili) Bildirimi().Bilgi(IsSaatiYazilmamis);
}

bool kidemhes::Bul(const std::string& kod) {
  KosullariTazele();
  degisen_.clear();
  const auto bulundu = Koru([&] { return hesap_.KisiBul(kod); });
  Goster();
  if (!hesap_.KisiVar()) Denetim(Kod).Koy(kod);
  AnahtarKoy(hesap_.KisiVar() ? hesap_.Form().kod : kod);
  AlaniSec();
  return Oldu(bulundu) && *bulundu;
}

void kidemhes::Git(Yon yon) {
  if (const auto kart = KartGit(Oturumu(), yon, SonAnahtar())) Bul(kart->kod);
}

void kidemhes::AlaniUygula(const AlanDenetimi& alan) {
  const AlanTutamagi ad = alan.Satir().Tutamak();
  const bool okunur = !alan.Kusuru();
  const auto tarih = [&] { return okunur ? TarihDegeri(alan.Oku()) : Tarih(); };
  if (ad == Giris) hesap_.GirisKoy(tarih());
  if (ad == Cikis) hesap_.CikisKoy(tarih());
  if (ad == Ucret && okunur) hesap_.UcretKoy(TutarDegeri(alan.Oku()));
  if (ad == Ihbar && okunur) hesap_.IhbarGunKoy(int(TamDegeri(alan.Oku())));
  if (ad == KidemHaric || ad == IhbarHaric)
    hesap_.HaricKoy(MantikDegeri(Denetim(KidemHaric).Oku()), MantikDegeri(Denetim(IhbarHaric).Oku()));
  if (ad == Tavan) hesap_.TavanKoy(KidemTavaniSecimi(TamDegeri(alan.Oku())));
}

void kidemhes::Uygula() {
  if (degisen_.empty()) return;
  const auto degisen = std::exchange(degisen_, {});
  const Durum oldu = Koru([&] {
    for (const AlanDenetimi* alan : degisen) AlaniUygula(*alan);
  });
  Goster();
  Oldu(oldu);
}

void kidemhes::Goster() {
  const KidemCizelgesi cizelge = hesap_.Cizelge();
  const std::string yazilan = YazilanAnahtar();
  Temizle();
  if (hesap_.KisiVar()) {
    Yukle(cizelge.form);
    Yukle(cizelge);
  }
  // A code that waits to be looked up stays.
  const bool bekliyor = !hesap_.KisiVar() || yazilan != SonAnahtar();
  Denetim(Kod).Koy(bekliyor ? yazilan : cizelge.form.kod);
  QStringList notlar;
  for (const std::string& soz : cizelge.notlar) notlar += Yazi(soz);
  notlar_->setText(notlar.join('\n'));
  notlar_->setVisible(!notlar.isEmpty());
  NedeniGoster(focusWidget());
}

void kidemhes::NedeniGoster(const QObject* parca) {
  const auto alan = std::ranges::find_if(Denetimler(), [&](const auto& d) { return d->Odak() == parca; });
  const auto iz = Koru([&] { return hesap_.IzYap(); });
  if (alan == Denetimler().end() || !iz) return neden_->Bosalt();
  neden_->Goster(*iz, IzAdi((*alan)->Satir().tanim.ad), Yazi((*alan)->Satir().etiket));
}

bool kidemhes::eventFilter(QObject* nesne, QEvent* olay) {
  if (olay->type() == QEvent::FocusOut) Uygula();
  if (olay->type() == QEvent::FocusIn) NedeniGoster(nesne);
  return PersonelFormu::eventFilter(nesne, olay);
}

// The results can be walked as well, to see why each is what it is.
void kidemhes::SonuclaraGit() {
  if (!hesap_.KisiVar()) return;
  Uygula();
  sonucta_ = !sonucta_;
  for (const auto& d : Denetimler())
    if (SonucAlani(*d)) d->Odak()->setFocusPolicy(sonucta_ ? Qt::StrongFocus : Qt::ClickFocus);
  OdakVer(sonucta_ ? AlanTutamagi{typeid(KidemCizelgesi), "netToplam"} : AlanTutamagi(Kod));
}

void kidemhes::Ver(void (*yol)(EkranBaglami&, Belge&)) {
  if (!EkrandakiMi()) return;
  Uygula();
  if (!hesap_.KisiVar()) return Bildirimi().Bilgi("Önce personeli seçiniz");
  const auto belge = Koru([&] { return KidemBelgesi(hesap_.Cizelge()); });
  if (Oldu(belge)) yol(Baglam(), **belge);
}

}  // namespace belvani
