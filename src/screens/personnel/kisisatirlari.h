// KisiSatirlari: a screen that is the rows of one person in a table of the store: his family, his account, his closed
// years. A row is saved when it is left; what cannot be saved stays, and with it its person.
#pragma once

#include <QKeyEvent>
#include <map>

#include "core/silme.h"
#include "screens/personnel/personelformu.h"
#include "ui/cakisma.h"
#include "ui/satirtablosu.h"
#include "ui/xtext.h"

namespace belvani {

template <class Kayit>
class KisiSatirlari : public PersonelFormu {
 protected:
  KisiSatirlari(EkranBaglami& baglam, const QString& kelime, const QString& baslik,
                std::vector<SatirKolonu<Kayit>> kolonlar)
      : PersonelFormu(baglam, kelime, baslik),
        liste_(new dclist(baglam.bildirim, this)),
        tablo_(*liste_, std::move(kolonlar)) {
    liste_->setObjectName("liste");
    liste_->SatirGuncelle = [this](int satir) { return SatiriKaydet(satir); };
    liste_->SatirSil = [this](int satir) { return SatiriSil(satir); };
    liste_->YeniSatir = [this](int satir) { tablo_.Goster(std::size_t(satir), YeniKayit()); };
    liste_->Tus = [this](const QKeyEvent& olay) { return ListeTusu(olay); };
  }

  // Below the fields of the screen, `kod` among them; to be called once they are made.
  void ListeyiAc(AlanTutamagi kod) {
    Govde()->addWidget(liste_, 1);
    YaziEkle(QStringLiteral(
                 "Listede: Enter düzeltir · Insert yeni satır ekler · Delete siler. Satırdan ayrılınca kaydedilir."),
             "soluk");
    setTabOrder(&YaziKutusu(kod), liste_);
    Komutlar({{.komut = FormKomutu::Kaydet, .islev = [this] { liste_->OkUpdateData(); }}});
    PersonelKomutlari(kod);
  }

  dclist& Liste() { return *liste_; }
  // Whose rows the list holds; "" for nobody's.
  const std::string& Kisi() const { return kod_; }
  // The rows of the list as they are stored; one that was never saved is an empty record.
  std::vector<Kayit> Satirlar() const {
    std::vector<Kayit> satirlar;
    for (int satir = 0; satir < liste_->ListCount(); ++satir) {
      const Kayit* kayit = Okunmus(satir);
      satirlar.push_back(kayit == nullptr ? Kayit{} : *kayit);
    }
    return satirlar;
  }
  // The last of them that was saved; null where there is none.
  const Kayit* SonKayitli() const {
    for (int satir = liste_->ListCount() - 1; satir >= 0; --satir)
      if (const Kayit* kayit = Okunmus(satir)) return kayit;
    return nullptr;
  }
  // All of the list anew.
  void Yenile() { Goster(kod_); }

  virtual std::vector<Kayit> SatirlariOku(const std::string& kod) = 0;
  virtual Yazim<Kayit> Yaz(const Okunan<Kayit>& satir) = 0;
  virtual Sonuc<Silme> Sil(const Kayit& satir) = 0;
  // What a fresh row begins with.
  virtual Kayit YeniKayit() const = 0;
  // A row has been saved.
  virtual void Yazildi(const Okunan<Kayit>&, const Kayit&) {}
  // Rows have come up, been saved, or gone. At the first of these nothing of them is shown yet.
  virtual void SatirlarGeliyor(const std::vector<Kayit>&) {}
  virtual void SatirlarDegisti() {}
  // The words of a value of the list, where they are others than the value's.
  virtual DegerDili Dil() const { return {}; }

  // A row that was not taken must not be lost: the list then stays with its person.
  bool KendiligindenKaydet() override {
    if (liste_->OkUpdateData()) return true;
    liste_->setFocus();
    return false;
  }

  bool Bul(const std::string& kod) override {
    if (KendiligindenKaydet()) {
      Goster(kod);
      return true;
    }
    AnahtarKoy(kod_);
    return false;
  }

  void Git(Yon yon) override {
    if (!KendiligindenKaydet()) return;
    if (const auto kart = KodaGit<Sicil>(Oturumu(), yon, kod_)) Goster(kart->kod);
  }

  void Goster(const std::string& kod) {
    kod_ = kod;
    AnahtarKoy(kod);
    AdiGoster(kod);
    const auto satirlar = SatirlariOku(kod);
    SatirlarGeliyor(satirlar);
    liste_->Clear();
    okunan_.clear();
    tablo_.Doldur(satirlar);
    for (std::size_t i = 0; i < satirlar.size(); ++i) Tut(int(i), satirlar[i]);
    liste_->Editable(true);
    liste_->ChngSat(0);
    AlaniSec();
  }

 private:
  // The row of the list and the record that it shows know each other by a number.
  void Tut(int satir, const Kayit& kayit) {
    int kimlik = liste_->Model().Kimlik(satir);
    if (kimlik == 0) liste_->Model().KimlikKoy(satir, kimlik = ++sonKimlik_);
    okunan_[kimlik] = kayit;
  }
  const Kayit* Okunmus(int satir) const {
    const auto yer = okunan_.find(liste_->Model().Kimlik(satir));
    return yer == okunan_.end() ? nullptr : &yer->second;
  }

  bool SatiriKaydet(int satir) {
    Okunan<Kayit> kayit;
    if (const Kayit* okunmus = Okunmus(satir)) kayit.ilk = *okunmus;
    kayit.simdi = tablo_.Oku(std::size_t(satir), kayit.ilk ? *kayit.ilk : YeniKayit());
    const auto yazilan = SorarakKaydet(
        Baglam(), *this, kayit, [this](const Okunan<Kayit>& k) { return Yaz(k); }, Dil());
    if (!yazilan) return false;
    Tut(satir, *yazilan);
    tablo_.Goster(std::size_t(satir), *yazilan);
    SatirlarDegisti();
    ZoomEfekt();
    Yazildi(kayit, *yazilan);
    return true;
  }

  bool SatiriSil(int satir) {
    const Kayit* kayit = Okunmus(satir);
    if (kayit == nullptr)
      return !liste_->Model().DegistiMi(satir) ||
             Bildirimi().SilinsinMi("Kayıt Silinecek ?", "kaydedilmemiş satır", SoruDugmeleri::TamamIptal);
    const auto silme = Sil(*kayit);
    // What another user has deleted goes from the list too.
    const bool yokmus = !silme && silme.Kusuru().derece == Derece::Bilgi;
    if (!Silindi(silme) && !yokmus) return false;
    okunan_.erase(liste_->Model().Kimlik(satir));
    QMetaObject::invokeMethod(
        this, [this] { SatirlarDegisti(); }, Qt::QueuedConnection);  // when the row is gone
    return true;
  }

  // Keys of the screen that the list would keep for its own rows.
  bool ListeTusu(const QKeyEvent& olay) {
    const bool kisiTusu =
        olay.key() == Qt::Key_PageUp || olay.key() == Qt::Key_PageDown || olay.key() == Qt::Key_F2 ||
        olay.key() == Qt::Key_F5 ||
        (olay.modifiers() == Qt::ControlModifier && (olay.key() == Qt::Key_Home || olay.key() == Qt::Key_End));
    if (!kisiTusu) return false;
    QKeyEvent ekrana(QEvent::KeyPress, olay.key(), olay.modifiers());
    keyPressEvent(&ekrana);
    return true;
  }

  dclist* liste_;
  SatirTablosu<Kayit> tablo_;
  std::map<int, Kayit> okunan_;  // the records as they were read, by the numbers of their rows
  int sonKimlik_ = 0;
  std::string kod_;
};

// A column of the list under the label that the system has for it.
template <class Kayit, class U>
SatirKolonu<Kayit> EtiketliKolon(const Kolon<Kayit, U>& kolon, int genislik, KolonEki ek = {}) {
  return UyeKolonu(kolon, AlanEtiketi(Kayit::TabloAdi, kolon.ad).data(), genislik, ek);
}

}  // namespace belvani
