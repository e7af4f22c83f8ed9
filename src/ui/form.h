// Form: what all screens share.
//
//   Esc closes · F5 saves · F7 deletes · F2 lookup · Ctrl+Home, Ctrl+End, Page Up, Page Down move through records
//   Enter goes to the next field
//
// A screen with a save command loses nothing that was typed: before it moves, closes or brings another record up, it
// asks whether to save, to give up or to stay. What the program has put into fields does not count.
//
// A screen declares its fields as rows (core/tables/alansatiri.h) and its commands; layout, tab order, keys, loading
// and reading follow. It holds no rules: those are functions that it calls.
#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QWidget>
#include <map>
#include <optional>
#include <set>

#include "core/gelisme.h"
#include "core/silme.h"
#include "core/sonuc.h"
#include "ui/alandenetimi.h"
#include "ui/ekran.h"
#include "ui/xbutton.h"

namespace belvani {

class IpucuSatiri;
class dclist;

enum class FormKomutu { Kaydet, Sil, Rehber, Ilk, Onceki, Sonraki, Son, Kapat };

// A command of a screen: a key, a button of the bottom row, or both. With a button, the line of hints and the tool tip
// name the key by the button's text.
struct KomutSatiri {
  std::optional<FormKomutu> komut = {};  // one that all screens know: key, picture and hint are its own
  QKeySequence tus = {};                 // Qt::Key_Return stands for both Enter keys
  const char* dugme = "";                // the button's text; moves through records need none
  const char* simge = "";                // its picture
  const char* ipucu = "";                // of a key alone: in the line of hints, "" keeps it out; else a tool tip
  std::function<void()> islev = {};      // closing the screen needs none
  const char* ad = "";                   // the button's object name
  bool ilkOdak = false;                  // the keyboard begins at this button
  xButton** dugmesi = nullptr;           // where the screen keeps it
  std::function<bool()> gecerli = {};    // the key does something where the cursor stands; always, if not given
};

class Form : public QWidget {
  Q_OBJECT
 public:
  // `kelime`: the screen's word ("perkart"), its name for menus, settings, help and tests.
  Form(EkranBaglami& baglam, const QString& kelime, const QString& baslik);
  ~Form() override;

  QString Kelime() const { return objectName(); }
  // The screen's work is done; nothing is asked any more.
  void Kapat();
  // False: something was typed, and its user stays.
  bool KapanabilirMi() { return kapaniyor_ || YazilanBirakilir(true); }

  // Editors in the order of their rows.
  const std::vector<std::unique_ptr<AlanDenetimi>>& Denetimler() const { return denetimler_; }
  // The editor of a column that this screen shows.
  AlanDenetimi& Denetim(AlanTutamagi alan) const;
  // The same, where the screen may do without it: null.
  AlanDenetimi* DenetimBul(AlanTutamagi alan) const;
  xtext& YaziKutusu(AlanTutamagi alan) const;
  void OdakVer(AlanTutamagi alan);
  // Tells the fault, once, and puts the cursor into its field where this screen has it.
  void Bildir(const Kusur& kusur);
  // Tells what a step has to say, and gives what it came to.
  template <class Hal>
  Hal Soyle(Gelisme<Hal> gelisme) {
    for (const Kusur& soz : gelisme.sozler) Bildir(soz);
    return std::move(gelisme.hal);
  }

  // The company's card or parameters have changed while this is open. Amounts take the company's decimals; a screen
  // that shows more of the company looks again. The month it was opened for stays.
  virtual void FirmaDegisti();

 Q_SIGNALS:
  void Kapandi();

 protected:
  EkranBaglami& Baglam() const { return baglam_; }
  Oturum& Oturumu() const { return baglam_.oturum; }
  Bildirim& Bildirimi() const { return baglam_.bildirim; }

  // The body, from top to bottom; the row of commands follows it.
  QVBoxLayout* Govde() { return govde_; }
  // What stays in sight below the body where that has to scroll.
  QVBoxLayout* Alt() { return alt_; }

  // Fields under their headings, the groups of each inner list one below the other, the lists side by side.
  void AlanlariDiz(const AlanSutunlari& sutunlar);
  // The same for one group, for screens that lay themselves out.
  QWidget* GrupYap(const AlanGrubu& grup);
  // One editor alone, to be placed by the screen.
  AlanDenetimi& DenetimEkle(const belvani::Alan& alan, QWidget* ust);

  // Rows of the groups made from now on stand closer together; for screens with very many of them.
  void SikDiz() { satirAraligi_ = 2; }

  // The screen's commands, in the order of their buttons. The latest row of a key wins, so that a screen can take over
  // a common one.
  void Komutlar(const std::vector<KomutSatiri>& satirlar);
  // A button of the body, placed by the screen.
  xButton* DugmeYap(const QString& metin, const QString& simge, std::function<void()> islev);
  // A line of text in the body; `gorunus` is its look: "soluk", "baslik", "hata".
  QLabel* YaziEkle(const QString& metin, const char* gorunus);
  // Columns of widgets, side by side; within a column from the top downwards.
  QHBoxLayout* YanYana(const std::vector<std::vector<QWidget*>>& sutunlar);
  // Keys of a widget that is not a declared field.
  void Izle(QWidget* parca);
  // The keys that walk through rows go to this list, wherever the cursor stands: for a list below a search box.
  void ListedeGezin(dclist& liste);

  // Called with the trimmed key when the key field is left with a text that differs from the last one handled.
  // `gelir`: whether a record comes up under that key, in the place of what was typed; always, if not given.
  void AnahtarBagla(AlanTutamagi alan, std::function<void(const std::string&)> bulunacak,
                    std::function<bool(const std::string&)> gelir = {});
  // The lookup button of a field does what F2 does.
  void RehberBagla(xtext& yazi);
  void AnahtarKoy(const std::string& anahtar);  // counts as handled
  AlanTutamagi AnahtarAlani() const { return anahtarAlani_; }
  std::string SonAnahtar() const { return sonAnahtar_; }
  std::string YazilanAnahtar() const;  // trimmed
  // Puts a code into the key field and looks it up, as if typed. False: its user stays with what he has typed.
  bool AnahtarAra(const std::string& anahtar);

  // Something that the user has typed is neither saved nor given up. A screen that holds such things outside of its
  // fields and lists adds them.
  virtual bool Kaydedilmemis() const;
  // For rows that are saved as soon as they are left; false when one was refused, which is told.
  virtual bool KendiligindenKaydet() { return true; }
  // Saves it as the save command does, its checks included; false when it could not be saved.
  virtual bool YazilaniKaydet();
  // Asks before typed work is lost. False: the user stays; what the fields hold is as it was.
  // `kapanirken`: over a row that was refused too, which otherwise keeps the screen where it is.
  bool YazilanBirakilir(bool kapanirken = false);
  // What stands in the fields now is what came up.
  void YazilaniUnut();

  template <class Kayit>
  void Yukle(const Kayit& kayit) {
    for (const auto& d : denetimler_) {
      if (d->Satir().kayitTuru != typeid(Kayit)) continue;
      d->Koy(d->Satir().oku(&kayit));
      yazilan_.erase(d.get());
      gelen_[d.get()] = d->Oku();
    }
    SecimiYenile();
  }

  // All fields of this record, or none: the first one that cannot be stored is told and takes the focus.
  template <class Kayit>
  bool Oku(Kayit& kayit) {
    if (!AlanlarSaglam(typeid(Kayit))) return false;
    for (const auto& d : denetimler_)
      if (d->Satir().kayitTuru == typeid(Kayit) && !d->Satir().ek.kapali) d->Satir().yaz(&kayit, d->Oku());
    return true;
  }
  bool AlanlarSaglam(std::type_index kayitTuru);
  // Whether it went; a fault is told.
  template <class T, class K>
  bool Oldu(const Sonuc<T, K>& sonuc) {
    if (!sonuc) Bildir(sonuc.Kusuru());
    return bool(sonuc);
  }
  bool Silindi(const Sonuc<Silme>& silme) { return Oldu(silme) && *silme == Silme::Silindi; }
  void Temizle();
  void IlkAlanaGit();
  // Where the keyboard begins, when that is not the first field. Focus given before the screen is shown is lost.
  void IlkOdak(QWidget* parca) { ilkOdak_ = parca; }
  // Any field was changed by the user.
  std::function<void(AlanDenetimi&)> AlanDegisti = [](AlanDenetimi&) {};

  // The flourish after a save or deletion: the line of hints says so for a moment, and what was typed is kept.
  void ZoomEfekt(const QString& olan = QStringLiteral("Kaydedildi"));
  // The line of hints, of the keys that work at the moment.
  void IpucuYaz();

  void showEvent(QShowEvent* olay) override;
  void closeEvent(QCloseEvent* olay) override;
  void keyPressEvent(QKeyEvent* olay) override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  struct TusIslevi {
    QKeySequence tus;
    QString aciklama;
    std::function<void()> islev;
    std::function<bool()> gecerli;
  };

  void TusBagla(const QKeySequence& tus, const QString& aciklama, std::function<void()> islev,
                std::function<bool()> gecerli = {});
  void DugmeEkle(const KomutSatiri& satir, const QString& aciklama);
  bool TusuIsle(const QKeyEvent& olay);
  void KomutSatiriYap();
  void AnahtarDenetle();
  // To another key; the field keeps its own when the user stays.
  bool AnahtaraGec(const std::string& anahtar);
  std::function<void()> Korunan(std::function<void()> islev);
  QKeySequence SiradakiTus() const;
  void SecimiYenile();

  EkranBaglami& baglam_;
  QVBoxLayout* govde_ = nullptr;
  QVBoxLayout* alt_ = nullptr;
  QHBoxLayout* komutSatiri_ = nullptr;
  IpucuSatiri* ipucu_ = nullptr;
  std::vector<std::unique_ptr<AlanDenetimi>> denetimler_;
  std::vector<TusIslevi> tuslar_;
  AlanTutamagi anahtarAlani_;
  std::string sonAnahtar_;
  std::function<void(const std::string&)> anahtarBul_;
  int satirAraligi_ = 6;
  QWidget* ilkOdak_ = nullptr;
  std::function<void()> kaydet_;  // the save command's
  std::function<bool(const std::string&)> anahtarGelir_;
  std::map<const AlanDenetimi*, Deger> gelen_;  // of each field: what came up in it
  std::set<const AlanDenetimi*> yazilan_;       // changed by the user since
  bool acildi_ = false;
  bool kapaniyor_ = false;
  bool soruyor_ = false;  // the question takes the focus from the fields; they are not left
};

// Shows a screen that answers something, and returns what `cevap` reads of it when it has closed.
template <class Ekran, class Cevap>
auto ModalCevap(EkranBaglami& baglam, std::unique_ptr<Ekran> form, Cevap cevap) {
  const Ekran& ekran = *form;
  auto olan = std::invoke(cevap, ekran);
  QObject::connect(&ekran, &Form::Kapandi, [&] { olan = std::invoke(cevap, ekran); });
  FormGoster(baglam, std::move(form), FormModu::Modal);
  return olan;
}

}  // namespace belvani
