// Every command that writes, interrupted at its system calls: the call is the last one (a kill), it fails once (a disk
// error), or from it on there is no room (a full disk). Whoever reads afterwards sees the company as it was before the
// command or as it is after it, whole; what said that it succeeded has; and the command works when it is given again.
//
// `make test` plays a few of the calls, `make dayanim` all of them, failing reads included.
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <sstream>

#include "core/dosya.h"
#include "core/store/koru.h"
#include "core/store/motor.h"
#include "core/veriyolu.h"
#include "gecici.h"
#include "kesinti.h"
#include "surec.h"

namespace belvani::test {
namespace {

namespace fs = std::filesystem;

enum class Bozma { Oldur, Ariza, DiskDolu, OkumaArizasi };

const char* Adi(Bozma bozma) {
  switch (bozma) {
    case Bozma::Oldur:
      return "killed before";
    case Bozma::Ariza:
      return "failing";
    case Bozma::DiskDolu:
      return "disk full from";
    case Bozma::OkumaArizasi:
      return "failing read";
  }
  return "";
}

// The sanitizers' search for leaks wants to watch the program itself.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool KosarMi = false;
#else
constexpr bool KosarMi = IzlenirMi;
#endif

// How many calls of each command are played in each way: BELVANI_DAYANIM, a number or "tam".
constexpr int AzOrnek = 2;
int OrnekSayisi() {
  const char* ortam = std::getenv("BELVANI_DAYANIM");
  if (ortam == nullptr) return AzOrnek;
  return std::string_view(ortam) == "tam" ? std::numeric_limits<int>::max() : std::max(AzOrnek, std::atoi(ortam));
}

struct YazanKomut {
  const char* ad;
  std::string degerler;     // @ stands for the directory of shared files, $ for the data path
  std::string okuyan;       // what a user would look at afterwards
  bool yalnizDepo = false;  // the small files of the company may not be there yet
};
void PrintTo(const YazanKomut& k, std::ostream* cikis) {
  *cikis << k.degerler;
}

// One data path, with what a look at it gives.
class Yer {
 public:
  explicit Yer(const std::string& ornek) { fs::copy(ornek, Yol(), fs::copy_options::recursive); }
  Yer() { fs::create_directory(Yol()); }

  std::string Yol() const { return dizin_.Yol() + "veri/"; }

  // The program's status; -1: killed. Words stand between blanks.
  int Calistir(const std::string& degerler, const std::function<Cevap(const Cagri&)>& karar = nullptr) const {
    std::vector<std::string> sozcukler{BELVANI_CLI, "--veri", Yol()};
    std::istringstream metin(degerler);
    for (std::string sozcuk; metin >> sozcuk;) {
      if (const auto i = sozcuk.find('$'); i != sozcuk.npos) sozcuk.replace(i, 1, Yol());
      sozcukler.push_back(sozcuk);
    }
    std::vector<char*> arg;
    for (std::string& sozcuk : sozcukler) arg.push_back(sozcuk.data());
    arg.push_back(nullptr);
    // Opened before the calls are counted.
    const auto ac = [&](const char* ad) {
      return ::open((dizin_.Yol() + ad).c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
    };
    const int cikti = ac("cikti"), mesaj = ac("mesaj");
    const auto is = [&] {
      ::dup2(cikti, STDOUT_FILENO);
      ::dup2(mesaj, STDERR_FILENO);
      ::execv(arg[0], arg.data());
    };
    const auto baslat = [&] {
      is();
      return 127;
    };
    const int durum = karar ? Izle(is, karar) : Surec(baslat).Bekle();
    ::close(cikti);
    ::close(mesaj);
    return durum;
  }
  // What it prints, and the status: its remarks may say more than they did.
  std::string Gorulen(const std::string& degerler) const {
    const int durum = Calistir(degerler);
    return DosyaOku(dizin_.Yol() + "cikti").value_or("") + std::to_string(durum);
  }
  std::string Mesaj() const { return DosyaOku(dizin_.Yol() + "mesaj").value_or(""); }

  std::vector<std::string> Sirketler() const {
    std::vector<std::string> adlar;
    for (const auto& g : fs::directory_iterator(Yol()))
      if (g.is_directory() && !g.path().filename().string().starts_with('.')) adlar.push_back(g.path().filename());
    return adlar;
  }

  // All rows of all stores, and all files as they are read.
  std::map<std::string, std::string> Icerik(bool yalnizDepo) const {
    std::map<std::string, std::string> hepsi;
    for (const std::string& ad : Sirketler()) {
      hepsi[ad + "/"] = DepoIcerigi(Yol() + ad + "/tolu.dat");
      if (!yalnizDepo) Dosyalar(ad + "/", hepsi);
    }
    if (!yalnizDepo) Dosyalar("", hepsi);
    for (const char* ad : {".muhasebe/belmuh.dat", "ORNEK/defter/belmuh.dat"})
      if (fs::exists(Yol() + ad)) hepsi[ad] = DepoIcerigi(Yol() + ad);
    return hepsi;
  }

  // Names that are no names of a company's files: what was given up on the way. A mark is void with its process.
  std::vector<std::string> Artiklar() const {
    std::vector<std::string> adlar;
    for (const auto& g : fs::recursive_directory_iterator(Yol())) {
      const std::string ad = g.path().filename();
      if (ad.starts_with(".isaret-") || ad == ".yedek") continue;
      if (ad.starts_with('.') || (ad.find('.') != ad.rfind('.'))) adlar.push_back(ad);
    }
    return adlar;
  }

 private:
  void Dosyalar(const std::string& alt, std::map<std::string, std::string>& hepsi) const {
    const VeriYolu yol(Yol() + alt);
    for (const std::string& ad : yol.Dosyalar())
      if (!ad.starts_with("tolu.dat") && ad.find('.') == ad.rfind('.')) hepsi[alt + ad] = yol.Oku(ad).value_or("-");
    for (const char* ad : {"yasal2.dat", "gvtbl.dat", "agitbl.dat", "kanun.dat", "mevzuat.json"})
      if (alt.empty()) hepsi[ad] = yol.Oku(ad).value_or("");
  }

  static std::string DepoIcerigi(const std::string& yol) {
    auto metin = Koru([&] {
      const auto motor = MotorAc(yol);
      std::string icerik = motor->ButunlukKusuru();
      std::vector<std::string> tablolar;
      const auto liste = motor->Hazirla("select name from sqlite_master where type = 'table' order by name");
      while (liste->Adim()) tablolar.emplace_back(liste->Metin(0));
      for (const std::string& tablo : tablolar) {
        icerik += "\n" + tablo;
        const auto komut = motor->Hazirla("select * from " + tablo + " order by rowid");
        while (komut->Adim()) {
          icerik += "\n";
          for (int i = 0; i < komut->KolonSayisi(); ++i)
            if (!komut->KolonAdi(i).ends_with("_an") && komut->KolonAdi(i) != "refer")
              icerik.append(komut->Metin(i)).append("|");  // no clock, no chance
        }
      }
      return icerik;
    });
    return metin ? *metin : metin.KusurMetni();
  }

  GeciciDizin dizin_;
};

// The sample company with its people, a backup, a month prepared twice and the law of the next one installed; another
// company without people.
class Ornek {
 public:
  Ornek() {
    const std::string ornek = KaynakYolu("data/ornek/");
    Dosya("ucret.csv", "kod,ucret\n001,1234.5\n002,2345.6\n");
    Dosya("harcama.csv", "kod,harcama,gvmatrah\n001,1500,12000\n002,9000,8000\n");
    Dosya("zam.csv", "kod,ucret\n001,3456.7\n");
    Dosya("firma.csv", "unvan,issaati\nBaşka Ünvan,7.5\n");
    Dosya("devir.csv", "kod,yil,gvmatrah\n001,2008,1000\n002,2009,2000\n");
    Dosya("kart.csv", "kod,yil,ay,gvmatrah\n001,2009,10,1000\n002,2009,11,2000\n");
    Dosya("cari.csv", "kod,tarih,islem,tutar\n001,01.05.2009,B,100\n001,15.05.2009,A,30\n");
    Komut("sirket-ac ORNEK --kullanici ornek --yil 2009 --ay 12");
    for (const char* tablo : {"firma", "muaf", "indir", "sendika", "kaztan"})
      Komut(std::string("tanim-al ORNEK ") + tablo + " " + ornek + tablo + ".csv");
    Komut("personel-al ORNEK " + ornek + "personel.csv");
    Komut("personel-al ORNEK " + ornek + "ozel.csv");
    Komut("tanim-al ORNEK entpar " + ornek + "entpar.csv");
    Komut("muhasebe-ac $.muhasebe");
    Komut("aile-al ORNEK " + ornek + "aile.csv");
    Komut("parametre-kur --donem 2009-11");
    Komut("parametre-kur --donem 2006-12 --ozel-gider");
    Komut("yedekle ORNEK -o " + dosyalar_.Yol() + "yedek.zip");
    for (const char* ucret : {"ucret.csv", "zam.csv"}) {
      Komut("personel-al ORNEK " + dosyalar_.Yol() + ucret);
      Komut("hazirla ORNEK --yil 2009 --ay 11");
    }
    Komut("parametre-kur --donem 2009-12");
    Komut("sirket-ac IKINCI --kullanici ornek --yil 2009 --ay 12");
  }

  std::string Veri() const { return yer_.Yol(); }
  std::string Degerler(std::string degerler) const {
    for (std::size_t i; (i = degerler.find('@')) != std::string::npos;) degerler.replace(i, 1, dosyalar_.Yol());
    return degerler;
  }

 private:
  void Komut(const std::string& degerler) {
    if (yer_.Calistir(degerler) != 0) throw std::runtime_error(degerler + ": " + yer_.Mesaj());
  }
  void Dosya(const char* ad, const char* icerik) const { (void)DosyaYaz(dosyalar_.Yol() + ad, icerik); }

  GeciciDizin dosyalar_;
  Yer yer_;
};

struct Dayanim : testing::TestWithParam<YazanKomut> {
  // Made once; the processes of all cases work on copies of it.
  static const Ornek& Sirket() {
    static const Ornek ornek;
    return ornek;
  }

  const YazanKomut& Komut() const { return GetParam(); }
  std::string Degerler() const { return Sirket().Degerler(Komut().degerler); }

  static bool Uyar(Bozma bozma, const Cagri& c) {
    switch (bozma) {
      case Bozma::Oldur:
      case Bozma::Ariza:
        return YazanMi(c);
      case Bozma::DiskDolu:
        return YerIster(c);
      case Bozma::OkumaArizasi:
        return OkuyanMi(c) && !YazanMi(c);
    }
    return false;
  }
  static Cevap CevapVer(Bozma bozma, int sira, int no) {
    switch (bozma) {
      case Bozma::Oldur:
        return sira == no ? Cevap::Oldur : Cevap::Birak;
      case Bozma::Ariza:
      case Bozma::OkumaArizasi:
        return sira == no ? Cevap::DiskHatasi : Cevap::Birak;
      case Bozma::DiskDolu:
        return sira >= no ? Cevap::DiskDolu : Cevap::Birak;
    }
    return Cevap::Birak;
  }

  int CagriSayisi(Bozma bozma) const {
    const Yer yer(Sirket().Veri());
    int sayi = 0;
    yer.Calistir(Degerler(), [&](const Cagri& c) {
      sayi += int(Uyar(bozma, c));
      return Cevap::Birak;
    });
    return sayi;
  }

  void Boz(Bozma bozma, int no) {
    SCOPED_TRACE(std::string(Adi(bozma)) + " call " + std::to_string(no));
    const Yer yer(Sirket().Veri());
    int sira = 0;
    bool kaldirma = false;  // the failing call was to remove something
    const int durum = yer.Calistir(Degerler(), [&](const Cagri& c) {
      if (!Uyar(bozma, c)) return Cevap::Birak;
      if (++sira == no) kaldirma = KaldiranMi(c);
      return CevapVer(bozma, sira, no);
    });
    const std::string mesaj = yer.Mesaj();
    EXPECT_TRUE(bozma == Bozma::Oldur || durum == 0 || !mesaj.empty()) << "it failed and said nothing";
    Oku(yer);
    const auto icerik = yer.Icerik(Komut().yalnizDepo);
    const bool yeni = icerik == yeni_;
    EXPECT_TRUE(yeni || icerik == eski_) << "neither the old nor the new: " << Fark(icerik) << mesaj;
    EXPECT_TRUE(durum != 0 || yeni) << "it said that it was done";
    const bool supurur = durum >= 0 && !kaldirma && bozma != Bozma::OkumaArizasi;  // whoever can, sweeps
    EXPECT_TRUE(!supurur || yer.Artiklar() == artiklar_)
        << "a command that fails leaves nothing behind: " << testing::PrintToString(yer.Artiklar());
    if (!yeni) {
      EXPECT_EQ(yer.Calistir(Degerler()), 0) << yer.Mesaj();
      EXPECT_TRUE(yer.Icerik(Komut().yalnizDepo) == yeni_) << Fark(yer.Icerik(Komut().yalnizDepo));
    }
  }

  // First those that write nothing, so that they find what the interrupted one has left.
  void Oku(const Yer& yer) const {
    for (const std::string& ad : yer.Sirketler()) EXPECT_EQ(yer.Calistir("denetle " + ad), 0) << yer.Mesaj();
    if (Komut().okuyan.empty()) return;
    const std::string gorulen = yer.Gorulen(Komut().okuyan);
    EXPECT_TRUE(gorulen == eskiGorulen_ || gorulen == yeniGorulen_) << gorulen;
  }

  std::string Fark(const std::map<std::string, std::string>& icerik) const {
    std::string fark;
    for (const auto& [ad, deger] : icerik) {
      const auto e = eski_.find(ad), y = yeni_.find(ad);
      fark += ad + (e != eski_.end() && e->second == deger ? " old" : "") +
              (y != yeni_.end() && y->second == deger ? " new" : "") + "\n";
    }
    return fark;
  }

  void SetUp() override {
    if (!KosarMi) GTEST_SKIP() << "system calls are not watched here";
    const Yer yer(Sirket().Veri());
    eski_ = yer.Icerik(Komut().yalnizDepo);
    artiklar_ = yer.Artiklar();
    eskiGorulen_ = yer.Gorulen(Komut().okuyan);
    ASSERT_EQ(yer.Calistir(Degerler()), 0) << yer.Mesaj();
    yeni_ = yer.Icerik(Komut().yalnizDepo);
    yeniGorulen_ = yer.Gorulen(Komut().okuyan);
    EXPECT_EQ(yer.Artiklar(), artiklar_) << "nothing lies about after a command that went well";
  }

  std::map<std::string, std::string> eski_, yeni_;
  std::vector<std::string> artiklar_;
  std::string eskiGorulen_, yeniGorulen_;
};

TEST_P(Dayanim, OldOrNewAtEveryCall) {
  const int ornek = OrnekSayisi();
  for (const Bozma bozma : {Bozma::Oldur, Bozma::Ariza, Bozma::DiskDolu, Bozma::OkumaArizasi}) {
    if (bozma == Bozma::OkumaArizasi && ornek == AzOrnek) continue;
    const int sayi = CagriSayisi(bozma);
    ASSERT_GT(sayi, 0) << Adi(bozma);
    const int adim = std::max(1, sayi / ornek);
    int kez = 0;
    for (int no = 1 + adim / 2; no <= sayi; no += adim, ++kez) Boz(bozma, no);
    if (ornek != AzOrnek) std::printf("%s, %s: %d of %d calls\n", Komut().ad, Adi(bozma), kez, sayi);
  }
}

const std::vector<YazanKomut>& YazanKomutlar() {
  static const std::string defter = "bordro ORNEK --yil 2009 --bicim csv --ay ";
  static const std::vector<YazanKomut> komutlar{
      {"sirket_ac", "sirket-ac yeni --kullanici a --unvan Yeni --yil 2009 --ay 12", "sirketler", true},
      {"sirket_sil", "sirket-sil ORNEK --onay", "sirketler"},
      {"paylas", "paylas ORNEK", defter + "11"},
      {"parametre_kur", "parametre-kur --donem 2008-07", "parametre"},
      {"ozel_gider_kur", "parametre-kur --donem 2005-12 --ozel-gider", "parametre"},
      {"ogi_harcama", "ogi-harcama ORNEK @harcama.csv --yil 2006", "ogi-kalan ORNEK --yil 2007 --bicim csv", true},
      {"tanim_al", "tanim-al ORNEK firma @firma.csv", "sirketler"},
      {"personel_al", "personel-al ORNEK @ucret.csv", "denetle ORNEK"},
      {"ucret_al", "ucret-al ORNEK @ucret.csv", "denetle ORNEK"},
      {"kod_degistir", "kod-degistir ORNEK 001 901 --bagli", defter + "11"},
      {"kanun_degistir", "kanun-degistir ORNEK 5921", "denetle ORNEK"},
      {"transfer", "transfer ORNEK 001 IKINCI 77 --giris 01.12.2009", "sirketler"},
      {"hazirla", "hazirla ORNEK --yil 2009 --ay 12", defter + "12"},
      {"geri_al", "geri-al ORNEK --ay 2009-11 --onay", defter + "11"},
      {"yedekle", "yedekle ORNEK", "sirketler"},
      {"yedekten", "yedekten @yedek.zip --onay", "sirketler"},
      {"yedekten_yeni", "yedekten @yedek.zip --kod YENI", "sirketler"},
      {"devir", "devir ORNEK --evet", "sirketler"},
      {"yillik_devir", "yillik-devir ORNEK --yil 2009", "denetle ORNEK"},
      {"perdev_al", "perdev-al ORNEK @devir.csv", "denetle ORNEK"},
      {"kart_al", "kart-al ORNEK @kart.csv", defter + "11"},
      {"cari_al", "cari-al ORNEK @cari.csv", "cari ORNEK 001"},
      {"kidem", "kidem ORNEK 001 --cikis 31.12.2009 --bicim json", "sirketler", true},
      {"bordro_sil", "bordro-sil ORNEK --yil 2009 --ay 11", defter + "11"},
      // Not the ledger's: its two lines stand each for itself.
      {"muhasebe_ac", "muhasebe-ac $ORNEK/defter", "sirketler"},
      {"muhasebe_isle", "muhasebe-isle ORNEK --ay 11 --muhasebe $.muhasebe", "muhasebe-fisi ORNEK --ay 11 --bicim csv"},
  };
  return komutlar;
}

INSTANTIATE_TEST_SUITE_P(Komutlar, Dayanim, testing::ValuesIn(YazanKomutlar()),
                         [](const auto& bilgi) { return std::string(bilgi.param.ad); });

}  // namespace
}  // namespace belvani::test
