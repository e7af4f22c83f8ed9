#include "screens/accounting/entpar.h"

#include <QGridLayout>
#include <QGroupBox>
#include <map>

#include "accounting/entegrasyonayari.h"
#include "accounting/kardesdepo.h"
#include "core/store/koru.h"
#include "screens/accounting/Muhpen.h"
#include "ui/cakisma.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr std::string_view TarafAdlari[] = {"B", "A"};
constexpr const char* OzelKodYok = "Personel kartlarında özel kod yok";
constexpr int EnUzunDizin = 254;

namespace alan {
constexpr auto sirket = Uye("sirket", &EntparFormu::sirket, EnUzunDizin);
constexpr auto ozel = Uye("ozel", &EntparFormu::ozel);
}  // namespace alan

// "hesap3"; the names outlive the fields.
std::string_view SatirAdi(const char* on, std::size_t satir) {
  static std::map<std::string, std::string, std::less<>> adlar;
  return adlar.try_emplace(on + std::to_string(satir), on + std::to_string(satir)).first->second;
}

AlanTutamagi HesapAlani(std::size_t satir) {
  return {typeid(EntparFormu), SatirAdi("hesap", satir)};
}

}  // namespace

entparfrm::entparfrm(EkranBaglami& baglam) : Form(baglam, "entpar", QStringLiteral("Entegrasyon Parametreleri")) {
  Govde()->addWidget(SirketSatiri());
  Govde()->addWidget(SatirlarKutusu(), 1);
  Komutlar({{.komut = FormKomutu::Rehber,
             .islev =
                 [this] {
                   if (const auto satir = OdaktakiHesap()) HesabiSec(*satir);
                 },
             .gecerli = [this] { return OdaktakiHesap().has_value(); }},
            {.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Sil, .dugme = "Sil", .islev = [this] { Sil(); }},
            {.tus = Qt::Key_F9, .dugme = "Öneri", .simge = "degistir", .islev = [this] { OneriKoy(); }}});
  if (auto kodlar = Koru([&] { return OzelKodlar(Oturumu().depo.db.IcMotor()); }); Oldu(kodlar))
    kodlar_ = std::move(*kodlar);
  SecenekleriKoy(Denetim(alan::ozel), kodlar_);
  gosterilen_.sirket = MuhasebeSirketi(Oturumu());
  PlaniOku(KardesDizini(Oturumu(), gosterilen_.sirket));
  GrupGoster(0);
  AlanDegisti = [this](AlanDenetimi& d) { d.Satir().Tutamak() == alan::ozel ? GrubaGec() : AdlariGoster(); };
}

QWidget* entparfrm::SirketSatiri() {
  QWidget* kutu = GrupYap({"Muhasebe",
                           {{alan::sirket, "Muhasebe Şirketi", {.harf = 52}},
                            {alan::ozel, "Özel Kod", {.liste = SonraDolar, .harf = 8, .kayitDisi = true}}}});
  auto* dugme = DugmeYap(QStringLiteral("Firma Seç"), "klasor", [this] { SirketSec(); });
  dugme->setObjectName("firmasec");
  static_cast<QGridLayout*>(kutu->layout())->addWidget(dugme, 0, 2, Qt::AlignLeft);
  return kutu;
}

// Ten lines under their heads, the name of each account beside it.
QWidget* entparfrm::SatirlarKutusu() {
  auto* kutu = new QGroupBox(QStringLiteral("Entegre Olacak Satırlar"), this);
  auto* izgara = new QGridLayout(kutu);
  izgara->setVerticalSpacing(4);
  int sutun = 0;
  for (const char* baslik : {"", "Entegre Olacak", "B/A", "Muhasebe Kodu", "Hesap Adı"}) {
    auto* etiket = new QLabel(QString::fromUtf8(baslik), kutu);
    etiket->setProperty("soluk", true);
    izgara->addWidget(etiket, 0, sutun++);
  }
  for (std::size_t i = 0; i < EntparSatiri; ++i) {
    const std::string no = std::to_string(i);
    const auto ekle = [&](const belvani::Alan& alan, int kolon) {
      AlanDenetimi& denetim = DenetimEkle(alan, kutu);
      izgara->addWidget(denetim.Parca(), int(i) + 1, kolon);
      return &denetim;
    };
    izgara->addWidget(new QLabel(QString::number(i), kutu), int(i) + 1, 0);
    ekle(DiziAlani(SatirAdi("yer", i), &EntparFormu::yer, i, ("Entegre Olacak " + no).c_str(), {.liste = YerAdlari}),
         1);
    ekle(DiziAlani(SatirAdi("ba", i), &EntparFormu::ba, i, ("B/A " + no).c_str(), {.liste = TarafAdlari}), 2);
    AlanDenetimi* hesap = ekle(DiziAlani(SatirAdi("hesap", i), &EntparFormu::hesap, i, ("Muhasebe Kodu " + no).c_str(),
                                         {.rehber = true}, entpar::hesap.boyut),
                               3);
    connect(hesap->YaziKutusu(), &xtext::Lookup, this, [this, i] { HesabiSec(i); });
    adlar_[i] = new QLabel(kutu);
    adlar_[i]->setObjectName("ad" + QString::number(i));
    adlar_[i]->setMinimumWidth(220);
    izgara->addWidget(adlar_[i], int(i) + 1, 4);
  }
  izgara->setColumnStretch(4, 1);
  izgara->setRowStretch(int(EntparSatiri) + 1, 1);
  return kutu;
}

std::string entparfrm::Dizin() const {
  return KardesDizini(Oturumu(), Ekrandaki().sirket);
}

// Names and checks need it; without books there are none, which is told where it matters.
void entparfrm::PlaniOku(const std::string& dizin) {
  plan_.reset();
  if (dizin.empty()) return;
  const auto muhasebe = KardesAc(KardesTuru::Muhasebe, dizin, KardesErisimi::YalnizBakis);
  if (!Oldu(muhasebe)) return;
  if (auto plan = Koru([&] { return HesapPlani::Oku(**muhasebe); }); Oldu(plan)) plan_ = std::move(*plan);
}

EntparFormu entparfrm::Ekrandaki() const {
  EntparFormu form;
  for (const auto& d : Denetimler()) d->Satir().yaz(&form, d->Oku());
  form.ozel = gosterilen_.ozel;
  return form;
}

bool entparfrm::Kaydedilmemis() const {
  return Ekrandaki() != gosterilen_;
}

void entparfrm::Goster(const EntparFormu& form) {
  Yukle(form);
  AdlariGoster();
}

void entparfrm::AdlariGoster() {
  const EntparFormu form = Ekrandaki();
  for (std::size_t i = 0; i < EntparSatiri; ++i)
    adlar_[i]->setText(plan_ ? Yazi(plan_->Adi(form.hesap[i])) : QString());
}

void entparfrm::GrubaGec() {
  const auto sira = std::size_t(TamDegeri(Denetim(alan::ozel).Oku()));
  if (sira == std::size_t(gosterilen_.ozel)) return;
  if (YazilanBirakilir())
    GrupGoster(sira);
  else
    Denetim(alan::ozel).Koy(std::int64_t(gosterilen_.ozel));
}

void entparfrm::GrupGoster(std::size_t sira) {
  const std::string kod = sira < kodlar_.size() ? kodlar_[sira] : std::string();
  auto grup = Koru([&] { return EntparOku(Oturumu().depo.db.IcMotor(), kod); });
  if (!Oldu(grup)) return;
  grup_ = std::move(*grup);
  gosterilen_.ozel = std::int32_t(sira);
  for (std::size_t i = 0; i < EntparSatiri; ++i) {
    const Entpar& satir = grup_.satirlar[i].simdi;
    gosterilen_.yer[i] = satir.yer;
    gosterilen_.ba[i] = satir.ba;
    gosterilen_.hesap[i] = satir.yer == YerYok ? std::string() : satir.hesap;
  }
  Goster(gosterilen_);
}

void entparfrm::SirketSec() {
  xtext& kutu = YaziKutusu(alan::sirket);
  const auto dizin = Baglam().dialoglar.DizinSec("Firma Seç", Dizin());
  if (dizin) {
    kutu.DegerKoy(*dizin);
    Q_EMIT kutu.Change();  // as if it had been typed
    PlaniOku(Dizin());
    AdlariGoster();
  }
  kutu.setFocus();
}

std::optional<std::size_t> entparfrm::OdaktakiHesap() const {
  for (std::size_t i = 0; i < EntparSatiri; ++i)
    if (YaziKutusu(HesapAlani(i)).hasFocus()) return i;
  return std::nullopt;
}

void entparfrm::HesabiSec(std::size_t satir) {
  xtext& kutu = YaziKutusu(HesapAlani(satir));
  if (const auto kod = HesapSec(Baglam(), Dizin(), Utf8(kutu.text()))) {
    kutu.DegerKoy(*kod);
    Q_EMIT kutu.Change();  // as if it had been typed
  }
  kutu.setFocus();
}

// Accounts of books that are not chosen cannot be checked; that is said once it is saved.
bool entparfrm::HesaplarUygun(const EntparFormu& form) {
  if (form.sirket.empty()) return true;
  const auto muhasebe =
      KardesAc(KardesTuru::Muhasebe, KardesDizini(Oturumu(), form.sirket), KardesErisimi::YalnizBakis);
  if (!Oldu(muhasebe)) return false;
  auto plan = Koru([&] { return HesapPlani::Oku(**muhasebe); });
  if (!Oldu(plan)) return false;
  plan_ = std::move(*plan);
  EntparSatirlari satirlar;
  for (std::size_t i = 0; i < EntparSatiri; ++i) {
    satirlar[i].yer = form.yer[i];
    satirlar[i].hesap = form.hesap[i];
  }
  const Durum uygun = HesaplariDenetle(satirlar, *plan_);
  if (uygun) return true;
  Kusur kusur = uygun.Kusuru();
  kusur.alan = HesapAlani(std::size_t(kusur.satir) - 1);
  Bildir(kusur);
  return false;
}

// A line that fails does not keep the others from being written.
bool entparfrm::SatirlariYaz(const EntparFormu& form) {
  bool hepsi = true;
  for (std::size_t i = 0; i < EntparSatiri; ++i) {
    Okunan<Entpar> satir = grup_.satirlar[i];
    satir.simdi.yer = form.yer[i];
    satir.simdi.ba = form.ba[i];
    satir.simdi.hesap = form.yer[i] == YerYok ? std::string() : form.hesap[i];
    const auto yazilan = SorarakKaydet(Baglam(), *this, satir, [this](const Okunan<Entpar>& kayit) {
      return EntparYaz(Oturumu().depo.db.IcMotor(), kayit);
    });
    if (yazilan) grup_.satirlar[i] = {.ilk = *yazilan, .simdi = *yazilan};
    hepsi = hepsi && yazilan;
  }
  return hepsi;
}

bool entparfrm::Yaz() {
  EntparFormu form;
  if (!Oku(form)) return false;
  form.ozel = gosterilen_.ozel;
  if (grup_.grup.empty()) {
    Bildirimi().Bilgi(OzelKodYok);
    return false;
  }
  if (!HesaplarUygun(form) || !SatirlariYaz(form) || !Oldu(MuhasebeSirketiYaz(Oturumu(), form.sirket))) return false;
  gosterilen_ = form;
  for (std::size_t i = 0; i < EntparSatiri; ++i)
    if (form.yer[i] == YerYok) gosterilen_.hesap[i].clear();
  Goster(gosterilen_);
  if (form.sirket.empty()) Bildirimi().Bilgi("Muhasebe şirketi seçilmemiş, hesap kodları denetlenmedi");
  return true;
}

void entparfrm::Kaydet() {
  if (!Yaz()) return;
  ZoomEfekt();
  Kapat();
}

void entparfrm::Sil() {
  if (grup_.grup.empty()) return Bildirimi().Bilgi(OzelKodYok);
  if (!Bildirimi().SilinsinMi("Bu grubun entegrasyon satırları silinsin mi ?", grup_.grup)) return;
  const auto silinen = Koru([&] { return EntparSil(Oturumu().depo.db.IcMotor(), grup_.grup); });
  if (!Oldu(silinen)) return;
  GrupGoster(std::size_t(gosterilen_.ozel));
  ZoomEfekt(QStringLiteral("Silindi"));
}

void entparfrm::OneriKoy() {
  EntparFormu form = Ekrandaki();
  const EntparSatirlari oneri = EntparOnerisi(plan_ ? &*plan_ : nullptr);
  for (std::size_t i = 0; i < EntparSatiri; ++i) {
    form.yer[i] = oneri[i].yer;
    form.ba[i] = oneri[i].ba;
    form.hesap[i] = oneri[i].hesap;
  }
  Goster(form);
  ZoomEfekt(QStringLiteral("Önerilen satırlar konuldu; F5 kaydeder"));
}

}  // namespace belvani
