#include "screens/declarations/yaylik.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>

#include "screens/declarations/intefrm.h"
#include "screens/declarations/yaylikcikti.h"
#include "ui/mesgul.h"

namespace belvani {
namespace {

struct SecimFormu {
  std::int16_t yil = 0;
  std::uint8_t ay = 1, belgeTuru = 0, kanun = 0, mahiyet = std::uint8_t(BelgeMahiyeti::Asil);
};

constexpr std::string_view MahiyetAdlari[] = {"İptal", "Ek", "Asıl"};

AlanGrubu SecimAlanlari() {
  return {"Bildirge",
          {{Uye("yil", &SecimFormu::yil), "Yıl", {.enCok = 9999}},
           {Uye("ay", &SecimFormu::ay), "Ay", {.liste = AyAdlari, .listeTabani = 1}},
           {Uye("belgeTuru", &SecimFormu::belgeTuru), "Belge Türü", {.liste = SonraDolar, .harf = 30}},
           {Uye("kanun", &SecimFormu::kanun), "Kanun", {.liste = SonraDolar, .harf = 10}},
           {Uye("mahiyet", &SecimFormu::mahiyet), "Mahiyet", {.liste = MahiyetAdlari, .secenek = true}}},
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

int Genislik(const BildirgeKolonu& kolon) {
  constexpr int harfGenisligi = 7;
  constexpr int enDar = 46;
  constexpr int enGenis = 118;
  constexpr int tutarEni = 94;
  if (kolon.tur == HucreTuru::Tutar) return tutarEni;
  return std::clamp(kolon.harf * harfGenisligi + 12, enDar, enGenis);
}

// Amounts stand grouped in the grid; what was not typed over stays as it was, with all its decimals.
std::vector<SatirKolonu<BildirgeSatiri>> Kolonlar(int paraonda) {
  std::vector<SatirKolonu<BildirgeSatiri>> kolonlar;
  for (const BildirgeKolonu& k : BildirgeKolonlari) {
    const auto hucre = k.hucre;
    const bool tutar = k.tur == HucreTuru::Tutar;
    const auto metin = [=](const BildirgeSatiri& s, std::size_t) {
      return tutar && !(s.*hucre).empty() ? TutarMetni(HucreTutari(s.*hucre), paraonda) : s.*hucre;
    };
    const auto al = [=](BildirgeSatiri& s, const std::string& yazi) { s.*hucre = yazi; };
    const bool sayi = tutar || k.tur == HucreTuru::Tam;
    kolonlar.push_back({k.tur == HucreTuru::Tarih ? 't'
                        : sayi                    ? 'n'
                                                  : 'a',
                        k.ad.data(), k.baslik.data(), Genislik(k), metin, al, sayi ? 0.0 : double(k.harf),
                        tutar ? paraonda : 0});
  }
  return kolonlar;
}

}  // namespace

yaylik::yaylik(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : Form(baglam, "yaylik", QStringLiteral("Aylık Bildirge (EK-9  (4a))")),
      bildirge_(baglam.oturum, parametreler.yasal, baglam.bildirim),
      liste_(new dclist(baglam.bildirim, this)),
      tablo_(*liste_, Kolonlar(baglam.oturum.firma.paraonda)) {
  liste_->setObjectName("dclist1");
  for (const BildirgeKolonu& k : BildirgeKolonlari)
    if (k.baslik.empty()) liste_->Gizle(QString::fromLatin1(k.ad.data(), int(k.ad.size())));
  liste_->Editable(true);
  liste_->SatirGuncelle = [this](int satir) { return SatirAl(satir); };
  liste_->SatirSil = [this](int satir) { return SatirSil(satir); };
  liste_->Tus = [this](const QKeyEvent& tus) {
    if (tus.key() != Qt::Key_Escape || liste_->CurrentMode() != dclist::Mod::Gezinme) return false;
    OdakVer("yil");
    return true;
  };
  liste_->setMinimumSize(1270, 212);
  eksikler_ = new QLabel(this);
  eksikler_->setProperty("hata", true);
  eksikler_->setObjectName("eksikler");
  eksikler_->hide();
  Govde()->addWidget(GrupYap(SecimAlanlari()));
  Govde()->addWidget(eksikler_);
  Govde()->addWidget(liste_, 1);
  auto* alt = new QHBoxLayout;
  SikDiz();
  alt->addWidget(GrupYap(SayacAlanlari()));
  alt->addWidget(PrimTablosu(), 1);
  Govde()->addLayout(alt);
  Komut(
      FormKomutu::Kaydet, [this] { Hesapla(); }, QStringLiteral("&Hesapla"));
  TusBagla(Qt::Key_F5, QStringLiteral("Hesapla"), [this] { Hesapla(); });
  DugmeEkle(Qt::Key_F8, QStringLiteral(" Yazıcıya Yazdır "), "yazici", [this] { Yazdir(); });
  DugmeEkle(Qt::Key_F9, QStringLiteral(" Excel'e gönderim "), "tablo", [this] { ExceleGonder(); });
  DugmeEkle(Qt::Key_F11, QStringLiteral(" E-Bildirge Hazırla "), "indir", [this] { EBildirge(); });
  bildirge_.Ac();
  SecenekleriKoy(Denetim("belgeTuru"), bildirge_.BelgeTurleri());
  auto kanunlar = bildirge_.KanunSecenekleri();
  std::ranges::replace(kanunlar, std::string(), std::string("(boş)"));  // of people without a law
  SecenekleriKoy(Denetim("kanun"), kanunlar);
  Yukle(SecimFormu{.yil = std::int16_t(bildirge_.Secim().yil), .ay = std::uint8_t(bildirge_.Secim().ay)});
  AlanDegisti = [this](AlanDenetimi& alan) { AlanDegisince(alan); };
  ToplamlariGoster();
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
  const std::string_view ad = alan.Satir().tanim.ad;
  if (alan.Satir().kayitTuru == typeid(SecimFormu)) {
    SecimFormu form;
    if (ad == "mahiyet" && Oku(form)) bildirge_.Secim().mahiyet = BelgeMahiyeti(form.mahiyet);
    if (ad == "ay" || ad == "belgeTuru" || ad == "kanun") Hesapla();
    return;
  }
  BildirgeToplamlari toplamlar;
  const bool matrah = std::ranges::any_of(Branslar, [&](const BransSatiri& b) { return ad == b.ad; });
  if (!matrah || !Oku(toplamlar)) return;
  bildirge_.ToplamlariYaz(toplamlar);
  for (std::size_t b = 0; b < BransSayisi; ++b) primler_[b]->setText(Yazi(bildirge_.PrimMetni(b)));
  genelToplam_->setText(Yazi(bildirge_.GenelToplamMetni()));
}

void yaylik::Hesapla() {
  SecimFormu form;
  if (!Oku(form)) return;
  BildirgeSecimi& secim = bildirge_.Secim();
  secim = {form.yil, form.ay, form.belgeTuru, form.kanun, BelgeMahiyeti(form.mahiyet)};
  const MesgulImlec mesgul;
  bildirge_.Hesapla();
  Goster();
}

void yaylik::Goster() {
  const auto& kimliksizler = bildirge_.Tamami().kimliksizler;
  tablo_.Doldur(bildirge_.Tamami().satirlar);
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
  for (std::size_t b = 0; b < BransSayisi; ++b) {
    oranlar_[b]->setText(Yazi(bildirge_.OranMetni(b)));
    primler_[b]->setText(Yazi(bildirge_.PrimMetni(b)));
  }
  genelToplam_->setText(Yazi(bildirge_.GenelToplamMetni()));
}

// An edited row, or one that was added.
bool yaylik::SatirAl(int satir) {
  const auto& satirlar = bildirge_.Tamami().satirlar;
  const auto sira = std::size_t(satir);
  const BildirgeSatiri yeni = tablo_.Oku(sira, sira < satirlar.size() ? satirlar[sira] : BildirgeSatiri{});
  if (sira >= satirlar.size() && yeni == BildirgeSatiri{}) return true;
  bildirge_.SatirYaz(sira, yeni);
  tablo_.Goster(sira, bildirge_.Tamami().satirlar[std::min(sira, bildirge_.Tamami().satirlar.size() - 1)]);
  ToplamlariGoster();
  return true;
}

bool yaylik::SatirSil(int satir) {
  bildirge_.SatirSil(std::size_t(satir));
  ToplamlariGoster();
  return true;
}

void yaylik::EBildirge() {
  if (!liste_->OkUpdateData() || !bildirge_.XmlKosullari() || !bildirge_.BildirgeKontrol()) return;
  const auto dosya = Baglam().dialoglar.DosyaKaydet("E-Bildirge Hazırlığı", bildirge_.XmlYolu(), "XML (*.xml)|*.xml");
  if (!dosya || !bildirge_.XmlYaz(*dosya)) return;
  if (Bildirimi().Soru(AylikBildirge::GonderimSorusu))
    FormGoster(Baglam(), std::make_unique<intefrm>(Baglam(), *dosya));
}

void yaylik::Yazdir() {
  if (liste_->OkUpdateData()) BildirgeYazdir(Baglam(), bildirge_);
}

void yaylik::ExceleGonder() {
  if (liste_->OkUpdateData()) BildirgeExceleGonder(Baglam(), bildirge_);
}

}  // namespace belvani
