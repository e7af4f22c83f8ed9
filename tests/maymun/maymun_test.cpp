// Random keys on every screen, and declared ones on every list: no crash, no hang, the keyboard never lost, no record
// changed by a key that does not save.
//
// `make test` plays a few keys of seed 1 everywhere. `make maymun` plays for minutes, under the sanitizers:
//   BELVANI_MAYMUN_TOHUM   seed to begin with; each round takes the next        (1)
//   BELVANI_MAYMUN_SANIYE  how long                                             (one short round)
//   BELVANI_MAYMUN_SAHNE   one scene only, as the report of a failure names it  (all)
#include <QHeaderView>
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

#include "maymun/nobetci.h"
#include "maymun/oyuncu.h"

namespace belvani::test {
namespace {

constexpr int KisaOyun = 12, UzunOyun = 600;  // moves in a scene

const OyunSirketi Sirketler[] = {{"ORNEK", "ornek"}, {"BOS", "bos"}};

// The sample company and one that was just made, in one data path. Every play has a copy.
class OyunVerisi {
 public:
  OyunVerisi() {
    Calistir("sh '" + KaynakYolu("tools/ornek.sh") + "' '" BELVANI_CLI "' '" + Yol() + "' >/dev/null");
    Calistir("'" BELVANI_CLI "' --veri '" + Yol() + "' sirket-ac BOS --kullanici bos --sifre bos --yil 2009 --ay 12" +
             " >/dev/null");
  }
  std::string Yol() const { return dizin_.Yol() + "veri"; }

 private:
  static void Calistir(const std::string& komut) {
    if (std::system(komut.c_str()) != 0) throw std::runtime_error(komut);
  }
  GeciciDizin dizin_;
};

const std::string& Veri() {
  static const OyunVerisi veri;
  static const std::string yol = veri.Yol();
  return yol;
}

std::string Cevre(const char* ad) {
  const char* deger = std::getenv(ad);
  return deger == nullptr ? "" : deger;
}

unsigned SahneTohumu(unsigned tohum, const std::string& sahne) {
  unsigned karma = tohum;
  for (const char harf : sahne) karma = karma * 31 + static_cast<unsigned char>(harf);
  return karma;
}

std::vector<Sahne> IstenenSahneler() {
  std::vector<Sahne> sahneler;
  const std::string istenen = Cevre("BELVANI_MAYMUN_SAHNE");
  for (Sahne& sahne : Sahneler())
    if (istenen.empty() || sahne.ad == istenen) sahneler.push_back(std::move(sahne));
  return sahneler;
}

// The scenes one after the other in one program.
std::string RastgeleOyun(const OyunSirketi& sirket, const std::vector<Sahne>& sahneler, unsigned tohum, int hamle) {
  Nobetci nobetci;
  return nobetci.Izle([&](Gunluk& gunluk) {
    MaymunOrtami ortam(Veri(), sirket, tohum);
    Oyuncu oyuncu(ortam, gunluk);
    for (const Sahne& sahne : sahneler) oyuncu.Oyna(sahne, SahneTohumu(tohum, sahne.ad), hamle);
  });
}

void Bekle(const std::string& kusur, const std::string& oyun) {
  if (!kusur.empty()) ADD_FAILURE() << oyun << ": " << kusur;
}

TEST(Maymun, RandomKeysBreakNothing) {
  const std::string tohumMetni = Cevre("BELVANI_MAYMUN_TOHUM"), saniye = Cevre("BELVANI_MAYMUN_SANIYE");
  unsigned tohum = tohumMetni.empty() ? 1 : unsigned(std::stoul(tohumMetni));
  std::vector<Sahne> sahneler = IstenenSahneler();
  ASSERT_FALSE(sahneler.empty());
  if (saniye.empty()) {
    for (const OyunSirketi& sirket : Sirketler)
      Bekle(RastgeleOyun(sirket, sahneler, tohum, KisaOyun), sirket.ad + ", seed " + std::to_string(tohum));
    return;
  }
  const auto son = std::chrono::steady_clock::now() + std::chrono::seconds(std::stoi(saniye));
  for (;; ++tohum) {
    std::shuffle(sahneler.begin(), sahneler.end(), std::mt19937(tohum));  // a short run sees other screens each time
    for (const Sahne& sahne : sahneler)
      for (const OyunSirketi& sirket : Sirketler) {
        if (std::chrono::steady_clock::now() > son) return;
        Bekle(RastgeleOyun(sirket, {sahne}, tohum, UzunOyun),
              sirket.ad + "; again: make maymun SANIYE=1 TOHUM=" + std::to_string(tohum) + " SAHNE=" + sahne.ad);
      }
  }
}

// Lists of the window in front, in the order in which the screen has made them.
std::vector<QAbstractItemView*> OndekiListeler() {
  std::vector<QAbstractItemView*> listeler;
  if (const QWidget* onde = QApplication::activeWindow())
    for (auto* liste : onde->findChildren<QAbstractItemView*>())
      if (liste->isVisible() && liste->window() == onde && qobject_cast<QHeaderView*>(liste) == nullptr)
        listeler.push_back(liste);
  return listeler;
}

// Out of an open cell, and out of nothing else.
Hamle HucredenCik() {
  return {"leaves the cell", Yazma::Yazmaz, [] {
            const QWidget* odak = QApplication::focusWidget();
            const QWidget* ust = odak == nullptr ? nullptr : odak->parentWidget();
            const bool hucrede = ust != nullptr && qobject_cast<QAbstractItemView*>(ust->parentWidget()) != nullptr;
            if (hucrede) Oyuncu::TusHamlesi("Esc").yap();
          }};
}

// The ends of a list from every side, a letter in it, and the same when a search has left no row.
std::deque<Hamle> ListeTuslari() {
  std::deque<Hamle> hamleler;
  const auto bas = [&](std::initializer_list<const char*> tuslar) {
    for (const char* tus : tuslar) {
      hamleler.push_back(Oyuncu::TusHamlesi(tus));
      hamleler.push_back(HucredenCik());
    }
  };
  bas({"Up", "Up", "Down", "Home", "Up", "PgUp", "Left", "Ctrl+Home", "Up", "End", "Down", "Down", "Right", "PgDown"});
  bas({"Ctrl+End", "Down", "Up", "PgUp", "Ins", "Up", "Shift+Down", "Ctrl+A", "Ctrl+C", "Ctrl+PgDown", "Ctrl+PgUp"});
  hamleler.push_back(Oyuncu::HarfHamlesi(u'ş'));
  hamleler.push_back(HucredenCik());
  bas({"Ctrl+F"});
  for (int i = 0; i < 4; ++i) hamleler.push_back(Oyuncu::HarfHamlesi(u'q'));
  bas({"Down", "Up", "Up", "PgDown", "PgUp", "Home", "End", "Left", "Right", "Ctrl+Home", "Ctrl+End", "Return"});
  return hamleler;
}

std::string ListeOyunu(const OyunSirketi& sirket, int& listeSayisi) {
  Nobetci nobetci;
  std::string kusur = nobetci.Izle([&](Gunluk& gunluk) {
    MaymunOrtami ortam(Veri(), sirket, 1);
    ortam.pencere->setUpdatesEnabled(false);  // painting would take most of the time
    Oyuncu oyuncu(ortam, gunluk);
    for (const Sahne& sahne : IstenenSahneler()) {
      bool var = true;
      for (std::size_t sira = 0; var; ++sira) {
        std::deque<Hamle> hamleler = ListeTuslari();
        hamleler.push_front({"goes to list " + std::to_string(sira), Yazma::Yazmaz, [&, sira] {
                               const auto listeler = OndekiListeler();
                               var = sira + 1 < listeler.size();
                               if (sira >= listeler.size()) return;
                               gunluk.Say();
                               if (listeler[sira]->focusPolicy() != Qt::NoFocus) listeler[sira]->setFocus();
                             }});
        oyuncu.Oyna(sahne, std::move(hamleler));
      }
    }
  });
  listeSayisi = int(nobetci.Kayit().Sayilan());
  return kusur;
}

TEST(Maymun, ListsStandTheirKeys) {
  for (const OyunSirketi& sirket : Sirketler) {
    int listeSayisi = 0;
    Bekle(ListeOyunu(sirket, listeSayisi), sirket.ad);
    EXPECT_GE(listeSayisi, Cevre("BELVANI_MAYMUN_SAHNE").empty() ? 15 : 0) << sirket.ad;
  }
}

}  // namespace
}  // namespace belvani::test
