// Speed of the screens: lists of 100,000 rows, the lookup window at 10,000 people, a person with ten years of records
// on the payroll screen, the exit of a field, a ledger of 10,000 people in the report grid.
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <benchmark/benchmark.h>
#include <clocale>
#include <memory>
#include <vector>

#include "core/store/satirlar.h"
#include "defteruret.h"
#include "registry/belgeler.h"
#include "screens/declarations/yaylik.h"
#include "screens/documents/brdicmal.h"
#include "screens/payroll/brdhazir.h"
#include "screens/payroll/brdhaziralanlar.h"
#include "screens/payroll/percari.h"
#include "ui/dclist.h"
#include "ui/dialogyok.h"
#include "ui/metin.h"
#include "ui/pencere.h"
#include "ui/perekr.h"
#include "ui/sistembaskisi.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

class SessizBildirim final : public Bildirim {
 public:
  void Bilgi(std::string_view) override {}
  void Uyari(std::string_view) override {}
  bool Soru(std::string_view) override { return true; }
};

SessizBildirim bildirim;

// What several measurements share. It holds widgets, so main lets it go before the application, newest first.
std::vector<std::shared_ptr<void>> ortaklar;

template <class Nesne>
Nesne& Ortak() {
  static Nesne& nesne = [&]() -> Nesne& {
    auto yeni = std::make_shared<Nesne>();
    ortaklar.push_back(yeni);
    return *yeni;
  }();
  return nesne;
}

void ListeyiDoldur(dclist& liste, const std::vector<QString>& hucreler, int satirlar) {
  liste.Model().TopluBasla();
  liste.Clear();
  for (int i = 0; i < satirlar; ++i) {
    const int satir = liste.Add();
    for (int k = 0; k < 4; ++k) liste.Text(satir, k, hucreler[std::size_t(i * 4 + k)]);
  }
  liste.Model().TopluBitir();
}

struct BuyukListe {
  static constexpr int Satir = 100'000;
  std::vector<QString> hucreler;
  dclist liste{bildirim};

  BuyukListe() {
    for (int i = 0; i < Satir; ++i)
      for (const QString& h : {QString::number(i), QStringLiteral("Işıl Gökçe %1").arg(i % 977),
                               QStringLiteral("Çağlar %1").arg(i % 1231), QStringLiteral("01.07.2009")})
        hucreler.push_back(h);
    for (const char* ad : {"kod", "adi", "soyadi", "tarih"}) liste.CreateNewCaption('m', ad, ad, 120);
    liste.resize(700, 500);
    liste.show();
  }
};

BuyukListe& Liste() {
  return Ortak<BuyukListe>();
}

// Filling and showing, up to the painted list.
void ListeAcilisi(benchmark::State& durum) {
  for (auto _ : durum) {
    ListeyiDoldur(Liste().liste, Liste().hucreler, BuyukListe::Satir);
    QCoreApplication::processEvents();
  }
}
BENCHMARK(ListeAcilisi)->Unit(benchmark::kMillisecond);

void ListeSuzme(benchmark::State& durum) {
  ListeyiDoldur(Liste().liste, Liste().hucreler, BuyukListe::Satir);
  const QStringList tuslar{"ç", "ça", "çağ", "çağlar 12", "ışıl", "9999", ""};
  qsizetype i = 0;
  for (auto _ : durum) {
    Liste().liste.Filtrele(tuslar[i++ % tuslar.size()]);
    QCoreApplication::processEvents();
  }
}
BENCHMARK(ListeSuzme)->Unit(benchmark::kMillisecond);

struct Yok final : FormGosterici {
  void SerbestGoster(std::unique_ptr<Form>) override {}
  QWidget* ModalUst() override { return nullptr; }
};

// 10,000 people with ten years of pay records each.
struct BuyukSirket {
  static constexpr int Kisi = 10'000;
  bench::Sirket sirket{Kisi, 2009, 7, 120};
  ParametreDeposu parametreler{sirket.o};
  DialogYok dialoglar;
  Yok gosterici;
  SistemBaskisi baski;
  EkranBaglami ekran{sirket.o, bildirim, dialoglar, gosterici, baski.ortam};

  BuyukSirket() {
    parametreler.yasal = sirket.kosullar.yasal;
    bench::Al(parametreler.firma.Yukle());
    sirket.o.firma.firmayil = 2009;
    sirket.o.firma.firmaay = 7;
  }
  static std::string Kod(int i) { return bench::OrnekKisi(i * 7919 % Kisi).kod; }
};

BuyukSirket& Sirket() {
  return Ortak<BuyukSirket>();
}

void Bas(int tus, const QString& metin = {}) {
  QWidget* odak = QApplication::focusWidget();
  QKeyEvent olay(QEvent::KeyPress, tus, Qt::NoModifier, metin);
  QCoreApplication::sendEvent(odak, &olay);
  QCoreApplication::processEvents();
}

// From the Enter behind the code to the painted screen.
void KisiGelisi(benchmark::State& durum) {
  brdhazir form(Sirket().ekran, Sirket().parametreler);
  form.show();
  QApplication::setActiveWindow(&form);
  int i = 0;
  for (auto _ : durum) {
    durum.PauseTiming();
    form.OdakVer(bordroalani::kod);
    QCoreApplication::processEvents();
    form.YaziKutusu(bordroalani::kod).DegerKoy(BuyukSirket::Kod(++i));
    durum.ResumeTiming();
    Bas(Qt::Key_Return);
    if (form.Giris().Durumu() != BordroGirisi::Hal::KisiSecili) durum.SkipWithError("nobody came up");
  }
}
BENCHMARK(KisiGelisi)->Unit(benchmark::kMillisecond);

// From the Enter in a day field to the painted results.
void AlandanCikis(benchmark::State& durum) {
  brdhazir form(Sirket().ekran, Sirket().parametreler);
  form.show();
  QApplication::setActiveWindow(&form);
  form.OdakVer(bordroalani::kod);
  form.YaziKutusu(bordroalani::kod).DegerKoy(BuyukSirket::Kod(1));
  Bas(Qt::Key_Return);
  int i = 0;
  for (auto _ : durum) {
    durum.PauseTiming();
    form.OdakVer(brd::ng);
    QCoreApplication::processEvents();
    Bas(Qt::Key_1 + i % 9, QString::number(1 + i % 9));
    ++i;
    durum.ResumeTiming();
    Bas(Qt::Key_Return);
  }
}
BENCHMARK(AlandanCikis)->Unit(benchmark::kMillisecond);

// An account of 10,000 movements, from the code to the painted list.
void HesapGelisi(benchmark::State& durum) {
  const std::string kod = BuyukSirket::Kod(1);
  {
    Motor& motor = Sirket().sirket.o.depo.db.IcMotor();
    Islem islem(motor);
    motor.Calistir("delete from cari");
    KayitYazici<Cari> yazici(motor);
    Cari c;
    c.kod = kod;
    c.islem = 'B';
    for (int i = 0; i < 10'000; ++i) {
      c.tarih = Tarih(2009, 1, 1).Ekle(i * 7919 % 3000);
      c.tutar = Tutar(i % 977 + 0.25);
      yazici.Ekle(c);
    }
    islem.Onayla();
  }
  percari form(Sirket().ekran);
  form.show();
  QApplication::setActiveWindow(&form);
  for (auto _ : durum) {
    durum.PauseTiming();
    form.KisiyeGit(BuyukSirket::Kod(2), {});
    durum.ResumeTiming();
    form.KisiyeGit(kod, {});
    QCoreApplication::processEvents();
  }
}
BENCHMARK(HesapGelisi)->Unit(benchmark::kMillisecond);

// One key in the lookup window.
void RehberTusu(benchmark::State& durum) {
  pencere form(Sirket().ekran);
  form.show();
  QApplication::setActiveWindow(&form);
  form.findChild<QComboBox*>()->setCurrentIndex(3);  // by name, anywhere
  auto* aranan = form.findChild<xtext*>();
  const QStringList metinler{"a", "ay", "", "ş", "iş"};
  qsizetype i = 0;
  for (auto _ : durum) {
    aranan->setText(metinler[i++ % metinler.size()]);
    QCoreApplication::processEvents();
  }
}
BENCHMARK(RehberTusu)->Unit(benchmark::kMillisecond);

// The last month with pay, as the session's.
struct SonAy {
  SonAy() { Sirket().sirket.o.firma.firmaay = 6; }
  ~SonAy() { Sirket().sirket.o.firma.firmaay = 7; }
};

// The monthly declaration of 10,000 people, worked out and painted.
void BildirgeHesapla(benchmark::State& durum) {
  const SonAy ay;
  yaylik form(Sirket().ekran, Sirket().parametreler);
  form.show();
  QApplication::setActiveWindow(&form);
  QCoreApplication::processEvents();
  for (auto _ : durum) {
    Bas(Qt::Key_F5);
    QCoreApplication::processEvents();
  }
  durum.counters["satir"] = double(form.Bildirge().Tamami().satirlar.size());
}
BENCHMARK(BildirgeHesapla)->Unit(benchmark::kMillisecond);

// The screen of the summary, with its chart.
void OzetAcilisi(benchmark::State& durum) {
  const SonAy ay;
  for (auto _ : durum) {
    brdicmal form(Sirket().ekran, Sirket().parametreler, *BelgeBul("brdicmal"));
    form.show();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(OzetAcilisi)->Unit(benchmark::kMillisecond);

struct BuyukDefter {
  std::shared_ptr<const Rapor> rapor = std::make_shared<const Rapor>(bench::OrnekDefter(10'000));
  std::unique_ptr<perekr> Ac() const {
    auto form = std::make_unique<perekr>(Sirket().ekran, rapor, PerekrIslevleri());
    form->resize(1325, 640);
    form->show();
    QCoreApplication::processEvents();
    return form;
  }
};

const BuyukDefter& Defter() {
  return Ortak<BuyukDefter>();
}

// From the finished report to the painted grid.
void GridAcilisi(benchmark::State& durum) {
  Defter();
  Sirket();
  for (auto _ : durum) benchmark::DoNotOptimize(Defter().Ac());
}
BENCHMARK(GridAcilisi)->Unit(benchmark::kMillisecond);

// One page of rows down, painted.
void GridKaydirma(benchmark::State& durum) {
  const auto form = Defter().Ac();
  QApplication::setActiveWindow(form.get());
  form->Xgrid1().setFocus();
  for (auto _ : durum) {
    if (form->Xgrid1().CurrentRow() > 9'900) form->Xgrid1().CurrentRow(0);
    Bas(Qt::Key_PageDown);
  }
}
BENCHMARK(GridKaydirma)->Unit(benchmark::kMillisecond);

// By an amount (1) or a name (3), and back to the report's order.
void GridSiralama(benchmark::State& durum) {
  const auto form = Defter().Ac();
  for (auto _ : durum) {
    for (int i = 0; i < 3; ++i) form->Xgrid1().Sirala(int(durum.range(0)));
    QCoreApplication::processEvents();
  }
}
BENCHMARK(GridSiralama)->Arg(3)->Arg(9)->Unit(benchmark::kMillisecond);

// A text that stands nowhere: every cell is looked at.
void GridArama(benchmark::State& durum) {
  const auto form = Defter().Ac();
  const QString aranan = durum.range(0) == 0 ? "gökçex" : "99.999";
  for (auto _ : durum) benchmark::DoNotOptimize(form->Xgrid1().Bul(aranan, xgrid::Yon::Ileri));
}
BENCHMARK(GridArama)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace belvani

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication uygulama(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  while (!belvani::ortaklar.empty()) belvani::ortaklar.pop_back();
  return 0;
}
