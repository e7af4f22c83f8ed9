// What was typed into a form: the key field that brings a record up, and the guard of work that is not saved.
#include <QKeyEvent>

#include "core/turkce.h"
#include "ui/dclist.h"
#include "ui/form.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {

void Form::AnahtarBagla(AlanTutamagi alan, std::function<void(const std::string&)> bulunacak,
                        std::function<bool(const std::string&)> gelir) {
  anahtarAlani_ = alan;
  anahtarBul_ = std::move(bulunacak);
  anahtarGelir_ = std::move(gelir);
  xtext& yazi = YaziKutusu(alan);
  connect(&yazi, &xtext::Ayrildi, this, &Form::AnahtarDenetle);
  RehberBagla(yazi);
}

void Form::RehberBagla(xtext& yazi) {
  connect(&yazi, &xtext::Lookup, this, [this] {
    QKeyEvent f2(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
    TusuIsle(f2);
  });
}

std::string Form::YazilanAnahtar() const {
  return std::string(Kirp(Utf8(YaziKutusu(anahtarAlani_).text())));
}

// The field is being left: a question would come in the middle of that, so it comes right after. The same holds for
// whatever the lookup has to say where the keyboard goes to another window.
void Form::AnahtarDenetle() {
  const std::string anahtar = YazilanAnahtar();
  if (soruyor_ || kapaniyor_ || anahtar.empty() || anahtar == sonAnahtar_) return;
  if (!Kaydedilmemis() && isActiveWindow()) return void(AnahtaraGec(anahtar));
  QMetaObject::invokeMethod(
      this,
      [this, anahtar] {
        if (YazilanAnahtar() == anahtar && anahtar != sonAnahtar_) AnahtaraGec(anahtar);
      },
      Qt::QueuedConnection);
}

bool Form::AnahtaraGec(const std::string& anahtar) {
  if (Kaydedilmemis() && (!anahtarGelir_ || anahtarGelir_(anahtar))) {
    YaziKutusu(anahtarAlani_).DegerKoy(sonAnahtar_);  // what is saved is saved under its own
    if (!YazilanBirakilir()) return false;
  }
  if (YazilanAnahtar() != anahtar) YaziKutusu(anahtarAlani_).DegerKoy(anahtar);
  sonAnahtar_ = anahtar;
  anahtarBul_(anahtar);
  return true;
}

void Form::AnahtarKoy(const std::string& anahtar) {
  sonAnahtar_ = anahtar;
  YaziKutusu(anahtarAlani_).DegerKoy(anahtar);
}

bool Form::AnahtarAra(const std::string& anahtar) {
  const std::string aranan(Kirp(anahtar));
  return !aranan.empty() && AnahtaraGec(aranan);
}

bool Form::Kaydedilmemis() const {
  if (!kaydet_) return false;
  const auto degismis = [this](const AlanDenetimi* d) { return d->Oku() != gelen_.at(d); };
  if (std::ranges::any_of(yazilan_, degismis)) return true;
  const auto listeler = findChildren<dclist*>();
  return std::ranges::any_of(listeler, [](const dclist* liste) { return liste->Yazildi(); });
}

bool Form::YazilaniKaydet() {
  kaydet_();
  return !Kaydedilmemis();
}

bool Form::YazilanBirakilir(bool kapanirken) {
  if (soruyor_ || (!KendiligindenKaydet() && !(kapanirken && Kaydedilmemis()))) return false;
  if (!Oturumu().YazilanSorulsun || !Kaydedilmemis()) return true;
  soruyor_ = true;
  const std::string kimin = sonAnahtar_.empty() ? Utf8(windowTitle()) : Utf8(windowTitle()) + ", " + sonAnahtar_;
  const auto karar = Bildirimi().YazilanSorusu("Ekrandaki Değişiklikler Kaydedilmedi\n" + kimin + "\nKaydedilsin mi ?");
  soruyor_ = false;
  switch (karar) {
    case YazilanKarari::Kaydet:
      return YazilaniKaydet() || kapaniyor_;
    case YazilanKarari::Birak:
      for (dclist* liste : findChildren<dclist*>()) liste->YazilaniBirak();
      return true;
    case YazilanKarari::Kal:
      return false;
  }
  return false;
}

void Form::YazilaniUnut() {
  yazilan_.clear();
  for (const auto& d : denetimler_) gelen_[d.get()] = d->Oku();
  for (dclist* liste : findChildren<dclist*>()) liste->YazilaniUnut();
}

// A save may empty the screen; the move then begins at what was saved.
std::function<void()> Form::Korunan(std::function<void()> islev) {
  return [this, islev = std::move(islev)] {
    const std::string yer = sonAnahtar_;
    if (!YazilanBirakilir()) return;
    if (sonAnahtar_.empty()) AnahtarAra(yer);
    islev();
  };
}

}  // namespace belvani
