#include "screens/payroll/kykm.h"

#include <QGroupBox>

#include "core/turkce.h"
#include "payroll/hesap/satirlar.h"
#include "payroll/parametre/ekrankurallari.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr BayrakSutunu Sutunlar[] = {{bayrak::Acik, "Giriş", "Bordro Hazırlık'ta girişe açık"},
                                     {bayrak::Ssk, "SSK", "SSK matrahına girer"},
                                     {bayrak::Gv, "G.V.", "Gelir vergisi matrahına girer"},
                                     {bayrak::Dv, "D.V.", "Damga vergisi matrahına girer"},
                                     {bayrak::Muaf, "Muaf", "Muafiyet kuralı kadarı SSK matrahından düşülür"}};
constexpr std::span<const BayrakSutunu> YardimSutunlari = Sutunlar;
constexpr std::span<const BayrakSutunu> KazancSutunlari = YardimSutunlari.first(4);  // earnings have no exemption

QGroupBox* Kutuda(const QString& baslik, QWidget* parca) {
  auto* kutu = new QGroupBox(baslik);
  auto* duzen = new QVBoxLayout(kutu);
  duzen->addWidget(parca, 0, Qt::AlignLeft | Qt::AlignTop);
  duzen->addStretch(1);
  return kutu;
}

}  // namespace

kykm::kykm(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ParametreEkrani(baglam, parametreler, "kykm", QStringLiteral("Kazanç, Yardım Tanımları")),
      gruplar_(new dclist(baglam.bildirim, this)) {
  gruplar_->setObjectName("gruplar");
  gruplar_->CreateNewCaption('m', "grup", "Grup", 190);
  gruplar_->GenisKolon("grup");
  gruplar_->setMinimumWidth(210);
  Yerlestir();
  gruplar_->SatirSecildi = [this](int satir) { GrubaGec(Utf8(gruplar_->Text(satir, 0))); };
  // A new name keeps the flags on the screen: a new group starts as a copy.
  const auto var = [this](const std::string& ad) { return KazancGrubuVar(Parametreler().firma.Parametreler(), ad); };
  AnahtarBagla(
      kaztan::grup,
      [this, var](const std::string& ad) {
        if (var(ad)) GrupGoster(ad);
      },
      var);
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Sil, .dugme = "Sil", .islev = [this] { Sil(); }},
            {.tus = Qt::Key_F9, .dugme = "Öneri", .simge = "degistir", .islev = [this] { OneriKoy(); }}});
  GruplariGoster(Oturumu().firma.ondeger);
  IlkOdak(gruplar_);
}

void kykm::Yerlestir() {
  auto* sol = new QVBoxLayout;
  sol->addWidget(gruplar_, 1);
  sol->addWidget(GrupYap({"Grup", {{kaztan::grup, "Adı", {.harf = 18}}}}));
  kazanclar_ = new BayrakIzgarasi(KazancAdlari, KazancSutunlari, this);
  yardimlar_ = new BayrakIzgarasi(TanimYardimAdlari, YardimSutunlari, this);
  kazanclar_->setObjectName("kazanclar");
  yardimlar_->setObjectName("yardimlar");
  auto* yatay = new QHBoxLayout;
  yatay->setSpacing(12);
  yatay->addLayout(sol, 1);
  yatay->addWidget(Kutuda(QStringLiteral("Kazançlar"), kazanclar_));
  yatay->addWidget(Kutuda(QStringLiteral("Yardımlar"), yardimlar_));
  Govde()->addLayout(yatay, 1);
}

void kykm::GruplariGoster(const std::string& secili) {
  gruplar_->Clear();
  for (const std::string& ad : KazancGruplari(Parametreler().firma.Parametreler()))
    gruplar_->Text(gruplar_->Add(), 0, Yazi(ad));
  if (gruplar_->FindByName("grup", Yazi(secili)) < 0) gruplar_->ChngSat(0);
}

// A question would come in the middle of the list's move, so it comes right after; the list goes back to the group
// that stays.
void kykm::GrubaGec(const std::string& grup) {
  if (TurkceEsit(grup, gosterilen_) && !gosterilen_.empty()) return AnahtarKoy(grup);
  if (!Kaydedilmemis()) return GrupGoster(grup);
  const auto sor = [this, grup] {
    if (!TurkceEsit(grup, gosterilen_)) AnahtarAra(grup);
    gruplar_->FindByName("grup", Yazi(gosterilen_));
  };
  QMetaObject::invokeMethod(this, sor, Qt::QueuedConnection);
}

void kykm::OneriKoy() {
  const KazancBayraklari oneri = OnerilenBayraklar();
  kazanclar_->Koy(oneri.k);
  yardimlar_->Koy(oneri.y);
  ZoomEfekt(QStringLiteral("Önerilen işaretler konuldu; F5 kaydeder"));
}

KazancBayraklari kykm::Ekrandaki() const {
  KazancBayraklari simdiki = bayraklar_;
  kazanclar_->Al(simdiki.k);
  yardimlar_->Al(simdiki.y);
  return simdiki;
}

bool kykm::Kaydedilmemis() const {
  return Ekrandaki() != bayraklar_ || ParametreEkrani::Kaydedilmemis();
}

void kykm::GrupGoster(const std::string& grup) {
  AnahtarKoy(grup);
  gosterilen_ = grup;
  bayraklar_ = KazancGrupYukle(Parametreler().firma.Parametreler(), grup);
  kazanclar_->Koy(bayraklar_.k);
  yardimlar_->Koy(bayraklar_.y);
}

void kykm::Kaydet() {
  AnahtariBul();
  if (!AlanlarSaglam(typeid(Kaztan))) return;
  const std::string grup = YazilanAnahtar();
  const KazancBayraklari yeni = Ekrandaki();
  if (!Oldu(KazancGrubuKaydet(Tanimlar(), grup, yeni))) return;
  bayraklar_ = yeni;
  gosterilen_.clear();  // what is stored comes up, whatever its name was here
  ZoomEfekt();
  GruplariGoster(grup);
}

void kykm::Sil() {
  const int satir = gruplar_->CurSat();
  if (satir < 0 || !Silindi(KazancGrubuSil(Tanimlar(), Utf8(gruplar_->Text(satir, 0))))) return;
  gosterilen_.clear();
  bayraklar_ = Ekrandaki();  // unsaved ticks go with it
  GruplariGoster(Oturumu().firma.ondeger);
  gruplar_->setFocus();
}

}  // namespace belvani
