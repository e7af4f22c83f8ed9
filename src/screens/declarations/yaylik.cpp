#include "screens/declarations/yaylik.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QStyle>

#include "screens/declarations/intefrm.h"
#include "screens/declarations/yaylikcikti.h"
#include "ui/kusurlistesi.h"
#include "ui/uzunis.h"

namespace belvani {
namespace {

struct SecimFormu {
  std::int16_t yil = 0;
  std::uint8_t ay = 1, belgeTuru = 0, kanun = 0, mahiyet = std::uint8_t(BelgeMahiyeti::Asil);
};

namespace secim {
constexpr auto yil = Uye("yil", &SecimFormu::yil);
constexpr auto ay = Uye("ay", &SecimFormu::ay);
constexpr auto belgeTuru = Uye("belgeTuru", &SecimFormu::belgeTuru);
constexpr auto kanun = Uye("kanun", &SecimFormu::kanun);
constexpr auto mahiyet = Uye("mahiyet", &SecimFormu::mahiyet);
}  // namespace secim

constexpr const char* EmekliModu = "sgdp";

constexpr std::string_view MahiyetAdlari[] = {"İptal", "Ek", "Asıl"};

AlanGrubu SecimAlanlari() {
  return {"Bildirge",
          {{secim::yil, "Yıl", {.enCok = 9999}},
           {secim::ay, "Ay", {.liste = AyAdlari, .listeTabani = 1}},
           {secim::belgeTuru, "Belge Türü", {.liste = SonraDolar, .harf = 30}},
           {secim::kanun, "Kanun", {.liste = SonraDolar, .harf = 10}},
           {secim::mahiyet, "Mahiyet", {.liste = MahiyetAdlari, .secenek = true}}},
          5};
}

AlanGrubu SayacAlanlari() {
  using T = BildirgeToplamlari;
  return {"Toplamlar",
          {{Uye("sigortali", &T::sigortali), "Sigortalı Sayısı"},
           {Uye("gun", &T::gun), "Prim Ödenen Gün"},
           {Uye("giren", &T::giren), "İşe Girenler"},
           {Uye("ayrilan", &T::ayrilan), "İşten Ayrılanlar"},
           {Uye("ucretsizIzinli", &T::ucretsizIzinli), "Ücretsiz İzinli"},
           {Uye("ucretsizGun", &T::ucretsizGun), "Ücretsiz İzinli Gün"},
           {Uye("ucretliIzinli", &T::ucretliIzinli), "Ücretli İzinli Sayısı"},
           {Uye("ucretliKazanc", &T::ucretliKazanc), "Ücretli İzinli Kazancı"},
           {Uye("ucretliGun", &T::ucretliGun), "Ücretli İzinli Gün"}},
          2};
}

struct BransSatiri {
  const char* ad;
  const char* etiket;
};
constexpr BransSatiri Branslar[BransSayisi] = {
    {"kisaVade", "Kısa Vadeli Sigorta"},        {"analik", "Devlet Katkısı"},
    {"saglik", "Genel Sağlık Sigortası"},       {"uzunVade", "Malullük, Yaşlılık ve Ölüm"},
    {"destek", "Sosyal Güvenlik Destek Primi"}, {"issizlik", "İşsizlik Sigortası Primi"}};

template <class Deger>
bool Tasir(const BildirgeKolonu& kolon) {
  return std::holds_alternative<Deger BildirgeSatiri::*>(kolon.hucre);
}

int Genislik(const BildirgeKolonu& kolon) {
  constexpr int harfGenisligi = 7;
  constexpr int enDar = 46;
  constexpr int enGenis = 118;
  constexpr int tutarEni = 94;
  if (Tasir<std::optional<Tutar>>(kolon)) return tutarEni;
  return std::clamp(kolon.harf * harfGenisligi + 12, enDar, enGenis);
}

// A code is typed letter by letter.
char KolonTipi(const BildirgeKolonu& kolon) {
  if (Tasir<Tarih>(kolon)) return 't';
  return kolon.hane > 0 || Tasir<std::string>(kolon) ? 'a' : 'n';
}

std::vector<SatirKolonu<BildirgeSatiri>> Kolonlar(int paraonda) {
  std::vector<SatirKolonu<BildirgeSatiri>> kolonlar;
  for (const BildirgeKolonu& k : BildirgeKolonlari) {
    const char tip = KolonTipi(k);
    const auto metin = [&k, paraonda](const BildirgeSatiri& s, std::size_t) { return HucreMetni(s, k, paraonda); };
    kolonlar.push_back({.tip = tip,
                        .ad = k.ad.data(),
                        .baslik = k.baslik.data(),
                        .genislik = Genislik(k),
                        .metin = metin,
                        .enCok = tip == 'n' ? 0.0 : double(k.harf),
                        .ondalik = Tasir<std::optional<Tutar>>(k) ? paraonda : 0});
  }
  return kolonlar;
}

}  // namespace

yaylik::yaylik(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : yaylik(baglam, parametreler, std::exchange(baglam.oturum.PencereTip, {}) == EmekliModu) {}

yaylik::yaylik(EkranBaglami& baglam, ParametreDeposu& parametreler, bool emekliler)
    : Form(baglam, "yaylik",
           emekliler ? QStringLiteral("S.G.D.P. Bildirgesi") : QStringLiteral("Aylık Bildirge (EK-9  (4a))")),
      parametreler_(parametreler),
      mevzuat_(baglam.oturum, parametreler, baglam.bildirim),
      bildirge_(baglam.oturum, parametreler.yasal, baglam.bildirim),
      liste_(new dclist(baglam.bildirim, this)),
      tablo_(*liste_, Kolonlar(baglam.oturum.firma.paraonda)) {
  liste_->setObjectName("dclist1");
  for (const BildirgeKolonu& k : BildirgeKolonlari) {
    if (k.baslik.empty()) liste_->Gizle(Yazi(k.ad));
    if (Tasir<Tarih>(k))
      liste_->Model().KolonAyari(liste_->Model().KolonBul(Yazi(k.ad))).denetim = HucreDenetimi::TarihYaDaBos;
  }
  liste_->Editable(true);
  liste_->Dogrula = [this](int satir, const QString& ad, QString& metin) { return HucreAl(satir, ad, metin); };
  liste_->SatirSil = [this](int satir) { return SatirSil(satir); };
  liste_->Tus = [this](const QKeyEvent& tus) {
    const bool bosSatir = liste_->CurSat() >= 0 && liste_->Model().Kimlik(liste_->CurSat()) == 0;
    if (tus.key() != Qt::Key_Escape || bosSatir || !liste_->OkUpdateData()) return false;
    OdakVer(secim::yil);
    return true;
  };
  liste_->TercihBoyu(1270, 212);
  mevzuat_.yurut = UzunYurutucu(Baglam(), QStringLiteral("Parametre indiriliyor…"));
  Govde()->addWidget(GrupYap(SecimAlanlari()));
  eskime_ = HataSatiri("eskime");
  eksikler_ = HataSatiri("eksikler");
  Govde()->addWidget(liste_, 1);
  auto* alt = new QHBoxLayout;
  SikDiz();
  alt->addWidget(GrupYap(SayacAlanlari()));
  alt->addWidget(PrimTablosu(), 1);
  Govde()->addLayout(alt);
  Komutlar({{.tus = Qt::Key_F5, .dugme = "&Hesapla", .simge = "kaydet", .islev = [this] { Hesapla(); }},
            {.tus = Qt::Key_F8, .dugme = " Yazıcıya Yazdır ", .simge = "yazici", .islev = [this] { Yazdir(); }},
            {.tus = Qt::Key_F9, .dugme = " Excel'e gönderim ", .simge = "tablo", .islev = [this] { ExceleGonder(); }},
            {.tus = Qt::Key_F11, .dugme = " E-Bildirge Hazırla ", .simge = "indir", .islev = [this] { EBildirge(); }}});
  const auto acildi = bildirge_.Ac();
  for (const Kusur& kusur : acildi ? *acildi : Kusurlar{acildi.Kusuru()}) Bildir(kusur);
  SecenekleriKoy(Denetim(secim::belgeTuru), bildirge_.BelgeTurleri());
  auto kanunlar = bildirge_.KanunSecenekleri();
  std::ranges::replace(kanunlar, std::string(), std::string("(boş)"));  // of people without a law
  SecenekleriKoy(Denetim(secim::kanun), kanunlar);
  if (emekliler) bildirge_.BelgeTuruSec(DestekPrimiBelgesi);
  const BildirgeSecimi& ilk = bildirge_.Secim();
  Yukle(SecimFormu{.yil = std::int16_t(ilk.yil), .ay = std::uint8_t(ilk.ay), .belgeTuru = std::uint8_t(ilk.belgeTuru)});
  AlanDegisti = [this](AlanDenetimi& alan) { AlanDegisince(alan); };
  ToplamlariGoster();
}

// A line above the grid, hidden while there is nothing to say.
QLabel* yaylik::HataSatiri(const char* ad) {
  QLabel* satir = YaziEkle({}, "hata");
  satir->setObjectName(ad);
  satir->hide();
  return satir;
}

// The branches: base, rate, premium.
QWidget* yaylik::PrimTablosu() {
  auto* kutu = new QGroupBox(QStringLiteral("Primler"), this);
  auto* izgara = new QGridLayout(kutu);
  izgara->setVerticalSpacing(2);
  int sutun = 1;
  for (const char* baslik : {"Matrah", "Oran %", "Prim"}) {
    auto* etiket = new QLabel(QString::fromUtf8(baslik), kutu);
    etiket->setProperty("soluk", true);
    izgara->addWidget(etiket, 0, sutun++, Qt::AlignRight);
  }
  const auto deger = [&](const QString& ad, int satir, int s) {
    auto* etiket = new QLabel(kutu);
    etiket->setObjectName(ad);
    etiket->setMinimumWidth(s == 3 ? 130 : 60);
    etiket->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    izgara->addWidget(etiket, satir, s);
    return etiket;
  };
  for (std::size_t b = 0; b < BransSayisi; ++b) {
    const int satir = int(b) + 1;
    AlanDenetimi& matrah = DenetimEkle({Uye(Branslar[b].ad, BransMatrahlari[b]), Branslar[b].etiket}, kutu);
    auto* etiket = new QLabel(QString::fromUtf8(Branslar[b].etiket), kutu);
    etiket->setBuddy(matrah.Odak());
    izgara->addWidget(etiket, satir, 0);
    izgara->addWidget(matrah.Parca(), satir, 1);
    oranlar_[b] = deger("oran" + QString::number(b), satir, 2);
    primler_[b] = deger("prim" + QString::number(b), satir, 3);
  }
  auto* toplam = new QLabel(QStringLiteral("Genel Toplam"), kutu);
  toplam->setProperty("baslik", true);
  izgara->addWidget(toplam, int(BransSayisi) + 1, 0);
  genelToplam_ = deger("genelToplam", int(BransSayisi) + 1, 3);
  genelToplam_->setProperty("toplam", true);
  izgara->setColumnStretch(4, 1);
  return kutu;
}

void yaylik::AlanDegisince(const AlanDenetimi& alan) {
  const AlanTutamagi degisen = alan.Satir().Tutamak();
  if (alan.Satir().kayitTuru == typeid(SecimFormu)) {
    SecimFormu form;
    if (!Oku(form)) return;
    bildirge_.Secim() = {form.yil, form.ay, form.belgeTuru, form.kanun, BelgeMahiyeti(form.mahiyet)};
    if (degisen == secim::ay || degisen == secim::belgeTuru || degisen == secim::kanun) Hesapla();
    return EskiyiGoster();
  }
  BildirgeToplamlari toplamlar = bildirge_.Tamami().toplamlar;
  if (!Oku(toplamlar)) return;
  Oldu(bildirge_.ToplamYaz(toplamlar));
  SayaclariIsaretle();
  for (std::size_t b = 0; b < BransSayisi; ++b) primler_[b]->setText(Yazi(bildirge_.PrimMetni(b)));
  genelToplam_->setText(Yazi(bildirge_.GenelToplamMetni()));
}

void yaylik::Hesapla() {
  if (liste_->OkUpdateData() && bildirge_.HesaplansinMi()) HesaplaVeGoster();
}

// Whether the declaration stands, priced with a law that its user knows of.
bool yaylik::HesaplaVeGoster() {
  const BildirgeSecimi& secim = bildirge_.Secim();
  if (BildirgeYiliMi(secim.yil) && !Soyle(mevzuat_.Uygun({secim.yil, secim.ay}))) {
    EskiyiGoster();
    return false;
  }
  const auto hesaplandi = UzunIs(Baglam(), QStringLiteral("Bildirge hesaplanıyor…"),
                                 [this](Ilerleme& ilerleme) { return bildirge_.Hesapla(&ilerleme); });
  Goster();
  const auto& kimliksizler = bildirge_.Tamami().kimliksizler;
  if (kimliksizler != std::exchange(listelenen_, kimliksizler)) KusurlariGoster(Baglam(), bildirge_.Uyarilar());
  return hesaplandi && Oldu(*hesaplandi);
}

// Whatever leaves the declaration begins here: what is being typed is taken, an outdated grid calculated anew if its
// user wants that.
bool yaylik::Guncel() {
  if (!liste_->OkUpdateData()) return false;
  switch (bildirge_.TazelensinMi()) {
    case AylikBildirge::Tazeleme::Gerekmez:
      return true;
    case AylikBildirge::Tazeleme::Hesaplanir:
      return HesaplaVeGoster();
    case AylikBildirge::Tazeleme::Vazgecildi:
      return false;
  }
  return false;
}

void yaylik::EskiyiGoster() {
  const std::string neden = bildirge_.EskimeMetni();
  eskime_->setText(Yazi(neden) + QStringLiteral(" F5 yeniden hesaplar."));
  eskime_->setVisible(!neden.empty());
}

// Totals that are no more those of the calculation.
void yaylik::SayaclariIsaretle() {
  const BildirgeToplamlari& hesaplanan = bildirge_.HesaplananToplamlar();
  for (const auto& d : Denetimler()) {
    if (d->Satir().kayitTuru != typeid(BildirgeToplamlari)) continue;
    const Deger once = d->Satir().oku(&hesaplanan);
    const bool degisti = once != d->Satir().oku(&bildirge_.Tamami().toplamlar);
    d->Odak()->setToolTip(degisti ? QStringLiteral("Hesaplanan: ") + Yazi(MetinDegeri(once)) : QString());
    if (d->Odak()->property("isaretli").toBool() == degisti) continue;
    d->Odak()->setProperty("isaretli", degisti);
    d->Odak()->style()->unpolish(d->Odak());
    d->Odak()->style()->polish(d->Odak());
  }
}

void yaylik::Goster() {
  const auto& kimliksizler = bildirge_.Tamami().kimliksizler;
  const auto& satirlar = bildirge_.Tamami().satirlar;
  tablo_.Doldur(satirlar);
  for (std::size_t i = 0; i < satirlar.size(); ++i) liste_->Model().KimlikKoy(int(i), satirlar[i].no);
  if (liste_->CurSat() >= 0) liste_->tazele(liste_->CurSat());  // no row of it is a new one
  EskiyiGoster();
  ToplamlariGoster();
  QStringList kodlar;
  for (std::size_t i = 0; i < std::min<std::size_t>(kimliksizler.size(), 8); ++i) kodlar += Yazi(kimliksizler[i]);
  if (kimliksizler.size() > 8) kodlar += QStringLiteral("…");
  eksikler_->setText(QStringLiteral("Kimlik bilgisi olmadığı için bildirgeye girmeyen %1 kişi: %2")
                         .arg(kimliksizler.size())
                         .arg(kodlar.join(", ")));
  eksikler_->setVisible(!kimliksizler.empty());
}

void yaylik::ToplamlariGoster() {
  Yukle(bildirge_.Tamami().toplamlar);
  SayaclariIsaretle();
  for (std::size_t b = 0; b < BransSayisi; ++b) {
    oranlar_[b]->setText(Yazi(bildirge_.OranMetni(b)));
    primler_[b]->setText(Yazi(bildirge_.PrimMetni(b)));
  }
  genelToplam_->setText(Yazi(bildirge_.GenelToplamMetni()));
}

// What was typed into a cell goes to the declaration at once, and totals and premiums follow; the first cell of a new
// row makes the row.
bool yaylik::HucreAl(int sira, const QString& ad, QString& metin) {
  dclistModel& liste = liste_->Model();
  const BildirgeKolonu& kolon = *BildirgeKolonuBul(Utf8(ad));
  const BildirgeSatiri* eski = bildirge_.Satir(liste.Kimlik(sira));
  BildirgeSatiri satir = eski != nullptr ? *eski : BildirgeSatiri{};
  if (metin == Yazi(HucreMetni(satir, kolon, Oturumu().firma.paraonda))) return true;
  Durum alindi = HucreYaz(satir, kolon, Utf8(metin));
  metin = alindi ? Yazi(HucreMetni(satir, kolon, Oturumu().firma.paraonda)) : metin;
  if (alindi && eski != nullptr) {
    alindi = bildirge_.SatirYaz(satir);
  } else if (alindi && satir != BildirgeSatiri{}) {
    const auto no = bildirge_.SatirEkle(satir);
    if (no)
      liste.KimlikKoy(sira, *no);
    else
      alindi = no.Kusuru();
  }
  Oldu(alindi);
  ToplamlariGoster();
  return bool(alindi);
}

bool yaylik::SatirSil(int sira) {
  const bool silindi = Oldu(bildirge_.SatirSil(liste_->Model().Kimlik(sira)));
  ToplamlariGoster();
  return silindi;
}

// Where more was found than the one thing that was told, the user goes through all of it.
void yaylik::SorunlariGoster() {
  if (bildirge_.Sorunlar().size() > 1) KusurlariGoster(Baglam(), bildirge_.Sorunlar());
}

// A fault of a row is shown at its cell.
void yaylik::KusurGoster(const Kusur& kusur) {
  Bildir(kusur);
  if (kusur.satir == 0) return;
  const int no = bildirge_.Tamami().satirlar[std::size_t(kusur.satir) - 1].no;
  int sira = 0;
  while (liste_->Model().Kimlik(sira) != no) ++sira;
  liste_->setFocus();
  liste_->HucreyeGit(sira, Yazi(kusur.alan.ad));
  SorunlariGoster();
}

void yaylik::EBildirge() {
  if (!Guncel()) return;
  if (const Durum olur = bildirge_.XmlKosullari(); !olur) return KusurGoster(olur.Kusuru());
  const auto karar = bildirge_.BildirgeKontrol();
  if (!karar) return KusurGoster(karar.Kusuru());
  if (*karar == AylikBildirge::Karar::Vazgecildi) return SorunlariGoster();
  const auto dosya = Baglam().dialoglar.DosyaKaydet("E-Bildirge Hazırlığı", bildirge_.XmlYolu(), "XML (*.xml)|*.xml");
  if (!dosya) return;
  const auto yazildi = bildirge_.XmlYaz(*dosya, UzunYurutucu(Baglam(), QStringLiteral("E-Bildirge hazırlanıyor…")));
  if (!yazildi) return KusurGoster(yazildi.Kusuru());
  const bool bitti = *yazildi == AylikBildirge::Karar::Devam;
  if (bitti) Bildirimi().Bilgi(AylikBildirge::XmlHazirlandi);
  SorunlariGoster();
  if (bitti && Bildirimi().Soru(AylikBildirge::GonderimSorusu))
    FormGoster(Baglam(), std::make_unique<intefrm>(Baglam(), *dosya));
}

void yaylik::Yazdir() {
  if (!Guncel()) return;
  if (const Durum basildi = BildirgeYazdir(Baglam(), bildirge_); !basildi) KusurGoster(basildi.Kusuru());
}

void yaylik::ExceleGonder() {
  if (!Guncel()) return;
  if (const Durum gonderildi = BildirgeExceleGonder(Baglam(), bildirge_); !gonderildi)
    return KusurGoster(gonderildi.Kusuru());
  SorunlariGoster();
}

}  // namespace belvani
