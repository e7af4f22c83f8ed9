// The program with nothing around it: main window and message boxes are the real ones, the data path is a copy,
// printers and the user's other programs are fakes, file dialogs are answered at random.
#pragma once

#include <filesystem>

#include "app/anaortam.h"
#include "core/saat.h"
#include "deductions/ogikosullari.h"
#include "maymun/hamleler.h"
#include "ui/bildirimkutusu.h"

namespace belvani::test {

// A file, folder, colour or font of any kind, or nothing.
class RastgeleDialoglar final : public Dialoglar {
 public:
  RastgeleDialoglar(std::string dizin, unsigned tohum) : dizin_(std::move(dizin)), rastgele_(tohum) {}

  std::optional<std::string> DosyaAc(const std::string&, const std::string&, const std::string&) override {
    return Biri({KaynakYolu("docs/img/anamenu.png"), KaynakYolu("data/ornek/personel.csv"), dizin_ + "yok.bmp"});
  }
  std::optional<std::string> DosyaKaydet(const std::string&, const std::string&, const std::string&) override {
    return Biri({dizin_ + "çıktı", dizin_ + "yok/çıktı", dizin_});
  }
  std::optional<std::string> DizinSec(const std::string&, const std::string&) override {
    return Biri({dizin_ + "başka", dizin_, "/proc/1"});
  }
  std::optional<std::uint32_t> RenkSec(std::uint32_t) override {
    return rastgele_.Sayi(3) == 0 ? std::nullopt : std::optional(std::uint32_t(rastgele_.Sayi(0x1000000)));
  }
  std::optional<QFont> FontSec(const QFont& font) override {
    return rastgele_.Sayi(3) == 0 ? std::nullopt : std::optional(QFont(font.family(), 6 + int(rastgele_.Sayi(12))));
  }

 private:
  std::optional<std::string> Biri(const std::vector<std::string>& yollar) {
    const unsigned sira = rastgele_.Sayi(yollar.size() + 1);
    return sira == yollar.size() ? std::nullopt : std::optional(yollar[sira]);
  }

  std::string dizin_;
  Rastgele rastgele_;
};

// A company of a data path, with the name of its user, who is also the password.
struct OyunSirketi {
  std::string ad;
  std::string kullanici;
};

struct MaymunOrtami {
  // `kaynak`: the data path that is copied.
  MaymunOrtami(const std::string& veri, OyunSirketi oyunSirketi, unsigned tohum)
      : kaynak(veri), sirket(std::move(oyunSirketi)), dialoglar(dizin.Yol(), tohum) {
    for (const char* ad : {"prg", "başka"}) std::filesystem::create_directories(dizin.Yol() + ad);
    VeriyiKoy();
    oturum.PrgPath = dizin.Yol() + "prg/";
    oturum.DataPath = VeriYeri();
    oturum.BilgisayarAdi = "MASA1";
    Gir();
    PencereAc();
  }
  ~MaymunOrtami() { PencereKapat(); }

  std::string VeriYeri() const { return dizin.Yol() + "veri/"; }

  // Where the keys have changed or deleted the user, the data begins anew.
  void Gir() {
    if (Girildi()) return;
    oturum.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
    VeriyiKoy();
    if (!Girildi()) throw std::runtime_error("no login to " + sirket.ad);
  }
  bool Girildi() {
    return SirketAc(oturum, sirket.ad) && OturumAc(oturum, sirket.ad, sirket.kullanici, sirket.kullanici);
  }
  void VeriyiKoy() {
    std::filesystem::remove_all(VeriYeri());
    std::filesystem::copy(kaynak, VeriYeri(), std::filesystem::copy_options::recursive);
  }
  void PencereAc() {
    parametreler.YasalYukle(oturum.DataPath);
    static_cast<void>(parametreler.firma.Yukle());
    SablonYukle(oturum.FirmaDizini);  // the payroll screen writes the built-in one when it is opened for the first time
    KidemParOku(oturum.FirmaDizini);  // so do the screens of severance
    IhbarSureOku(oturum.FirmaDizini);
    OgiKosullariYukle(oturum, oturum.firma.firmayil);  // and those of the personal-expense refund
    pencere = std::make_unique<anamenu>(baglam, parametreler);
    gosterici.pencere = pencere.get();
    QObject::connect(pencere.get(), &anamenu::Kapandi, pencere.get(), [this] { kapandi = true; });
    kapandi = false;
    pencere->show();
    QApplication::setActiveWindow(pencere.get());
  }
  void PencereKapat() {
    pencere.reset();
    gosterici.pencere = nullptr;
  }

  // A screen stands in the main window.
  bool EkranVar() const { return pencere != nullptr && !pencere->findChild<QMdiArea*>()->subWindowList().isEmpty(); }

  GeciciDizin dizin;
  std::string kaynak;
  OyunSirketi sirket;
  SabitGun gun{Tarih(2009, 12, 15)};
  BildirimKutusu kutu;
  RastgeleDialoglar dialoglar;
  Oturum oturum;
  ParametreDeposu parametreler{oturum};
  AnaPencereGosterici gosterici;
  SahteKuyruk kuyruk;
  SahtePort port;
  BaskiOrtami baski{.kuyruk = kuyruk,
                    .port = port,
                    .programDizini = dizin.Yol(),
                    .dosyaAc = [](const std::string& dosya) { return dosya.size() % 2 == 0; },
                    .adresAc = [](const std::string&) { return true; }};
  EkranBaglami baglam{oturum, kutu, dialoglar, gosterici, baski};
  std::unique_ptr<anamenu> pencere;
  bool kapandi = false;  // the user has left the program, or wants another company
};

}  // namespace belvani::test
