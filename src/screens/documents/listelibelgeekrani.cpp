#include "screens/documents/listelibelgeekrani.h"

#include <QLineEdit>
#include <QTimer>

#include "ui/dclist.h"
#include "ui/listedoldur.h"
#include "ui/metin.h"
#include "ui/uzunis.h"

namespace belvani {
namespace {

constexpr int Bekleme = 200;  // milliseconds after the last change: what is typed goes on meanwhile
constexpr int EnGenisListe = 1200;
constexpr int ListeBoyu = 230;

char KolonTipi(const RaporKolonu& kolon) {
  if (TarihMi(kolon.tur)) return 't';
  return kolon.Sayisal() ? 'b' : 'm';
}

// In letters: a text takes what it needs, up to what it has on paper, a number at least what it has there.
int KolonHarfi(const Rapor& rapor, std::size_t kolon) {
  const RaporKolonu& k = rapor.Kolonlar()[kolon];
  if (TarihMi(k.tur)) return TarihHarfi(k.tur);
  const int gereken = rapor.GerekliEn(int(kolon), BinlikGruplama);
  if (k.Sayisal()) return std::max(k.en, gereken);
  return rapor.Satirlar().empty() ? k.en : std::min(k.en, gereken);
}

}  // namespace

ListeliBelgeEkrani::ListeliBelgeEkrani(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim)
    : BelgeEkrani(baglam, parametreler, tanim),
      sozler_(YaziEkle({}, "hata")),
      liste_(new dclist(baglam.bildirim, this)),
      toplam_(new ListeToplami(tanim.liste, this)),
      bekleyen_(new QTimer(this)) {
  sozler_->setObjectName("sozler");
  sozler_->setWordWrap(true);
  sozler_->hide();
  liste_->setObjectName("dclist1");
  QLineEdit* arama = liste_->AramaKutusu(this);
  Izle(arama);
  Govde()->addWidget(arama);
  Govde()->addWidget(liste_, 1);
  Govde()->addWidget(toplam_);
  bekleyen_->setSingleShot(true);
  connect(bekleyen_, &QTimer::timeout, this, [this] {
    IsBitince(this, [this] {
      if (isVisible() && Secilebilir()) Listele();
    });
  });
  AlanDegisti = [this](AlanDenetimi&) { SecimDegisti(); };
  liste_->TercihBoyu(EnGenisListe, ListeBoyu);
  if (tanim.liste.degisince && Secilebilir()) Listele();
}

void ListeliBelgeEkrani::FirmaDegisti() {
  BelgeEkrani::FirmaDegisti();
  SecimDegisti();
}

bool ListeliBelgeEkrani::Listele() {
  bekleyen_->stop();
  const auto belge = BelgeYap();
  if (!belge) return false;
  eski_ = false;
  Goster(*belge);
  return true;
}

void ListeliBelgeEkrani::Listelet() {
  if (Listele() && liste_->ListCount() > 0) liste_->setFocus();
}

void ListeliBelgeEkrani::Goster(const Belge& belge) {
  const Rapor& rapor = *belge.Tablo();
  kayitSozu_ = belge.Kayitsiz() ? std::string(Tanim().kayitYok) : std::string();
  KolonlariKur(rapor);
  ListeDoldur(*liste_, rapor.Satirlar(), [&](const RaporSatiri& satir) {
    std::vector<std::string> metinler;
    metinler.reserve(satir.hucreler.size());
    for (std::size_t k = 0; k < satir.hucreler.size(); ++k)
      metinler.push_back(HucreMetni(satir.hucreler[k], rapor.Kolonlar()[k]));
    return metinler;
  });
  toplam_->Goster(rapor);
  SozleriYaz();
}

// The widths and the order that its user has given the list stay as long as the columns do.
void ListeliBelgeEkrani::KolonlariKur(const Rapor& rapor) {
  const auto ayni = [](const dclistKolonu& k, const RaporKolonu& r) { return k.ad == Yazi(r.Adi()); };
  if (std::ranges::equal(liste_->Model().Kolonlar(), rapor.Kolonlar(), ayni)) return;
  liste_->Reset();
  constexpr int kenar = 16;
  const int harf = liste_->fontMetrics().horizontalAdvance('0');
  QString genis;  // the widest text takes what the list has left
  int genisHarfi = 0;
  int toplam = 0;
  for (std::size_t i = 0; i < rapor.Kolonlar().size(); ++i) {
    const RaporKolonu& k = rapor.Kolonlar()[i];
    const int harfler = KolonHarfi(rapor, i);
    liste_->CreateNewCaption(KolonTipi(k), Yazi(k.Adi()), Yazi(k.kisaBaslik), harfler * harf + kenar, 0, k.ondalik);
    toplam += liste_->columnWidth(int(i));
    if (k.tur == KolonTuru::Metin && k.en > std::exchange(genisHarfi, std::max(genisHarfi, k.en)))
      genis = Yazi(k.Adi());
  }
  if (toplam < EnGenisListe && !genis.isEmpty()) liste_->GenisKolon(genis);
}

void ListeliBelgeEkrani::SecimDegisti() {
  eski_ = true;
  SozleriYaz();
  if (Tanim().liste.degisince) bekleyen_->start(Bekleme);
}

void ListeliBelgeEkrani::BelgeSozu(const std::string& soz) {
  belgeSozu_ = soz;
  SozleriYaz();
}

void ListeliBelgeEkrani::SozleriYaz() {
  QStringList sozler;
  if (eski_) sozler += QStringLiteral("Liste bu seçimin değil; F5 yeniler.");
  for (const std::string& soz : {belgeSozu_, kayitSozu_})
    if (!soz.empty()) sozler += Yazi(soz);
  sozler_->setText(sozler.join('\n'));
  sozler_->setVisible(!sozler.isEmpty());
}

}  // namespace belvani
