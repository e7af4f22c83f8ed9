#include "app/kyol.h"

#include <QDir>

#include "core/turkce.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int EnUzunAd = 40, EnUzunIkon = 48, EnUzunParametre = 40;

// What is typed on the screen.
struct Giris {
  std::string ad;
  std::int32_t program = 0;
  std::string ikon, parametre;
};

constexpr auto AdAlani = Uye("ad", &Giris::ad, EnUzunAd);
constexpr auto ProgramAlani = Uye("program", &Giris::program);
constexpr auto IkonAlani = Uye("ikon", &Giris::ikon, EnUzunIkon);

const std::vector<AlanGrubu> Gruplar{
    {"Kısa Yol",
     {{AdAlani, "Kısa Yol Adı"},
      {ProgramAlani, "Program", {.liste = KisayolProgramlari}},
      {IkonAlani, "İcon", {.harf = 31, .rehber = true, .ipucu = "Boşsa programın kendi simgesi"}},
      {Uye("parametre", &Giris::parametre, EnUzunParametre), "Parametre"}}}};

std::string ProgramAdi(std::int64_t sira) {
  return std::string(KisayolProgramlari.at(std::size_t(sira)));
}

}  // namespace

kyol::kyol(EkranBaglami& baglam, const Kisayol& kisayol, std::function<Durum(const Kisayol&)> kaydet)
    : Form(baglam, "kyol", QStringLiteral("Kısa Yol")),
      kaydet_(std::move(kaydet)),
      sonProgram_(std::int64_t(kisayol.program)) {
  AlanlariDiz({Gruplar});
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Rehber, .islev = [this] { IkonSec(); }}});
  connect(&YaziKutusu(IkonAlani), &xtext::Lookup, this, &kyol::IkonSec);
  AlanDegisti = [this](AlanDenetimi& alan) {
    if (alan.Satir().Tutamak() == ProgramAlani) ProgramDegisti();
  };
  Yukle(Giris{kisayol.ad, std::int32_t(kisayol.program), kisayol.ikon, kisayol.parametre});
}

// A caption that only repeats the program's name follows it.
void kyol::ProgramDegisti() {
  const std::int64_t program = TamDegeri(Denetim(ProgramAlani).Oku());
  const std::string ad = MetinDegeri(Denetim(AdAlani).Oku());
  if (Kirp(ad).empty() || ad == ProgramAdi(sonProgram_)) Denetim(AdAlani).Koy(ProgramAdi(program));
  sonProgram_ = program;
}

void kyol::IkonSec() {
  const auto dosya = Baglam().dialoglar.DosyaAc("İcon", Oturumu().PrgPath,
                                                "İcon Dosyası(*.ico,*.png,*.svg)|*.ico;*.png;*.svg;*.bmp;*.gif;*.jpg");
  OdakVer(IkonAlani);
  if (!dosya) return;
  // Below the program's directory the path is short, and good on every computer that shares it.
  const QString goreli = QDir(Yazi(Oturumu().PrgPath)).relativeFilePath(Yazi(*dosya));
  const QString yol = goreli.startsWith("../") ? Yazi(*dosya) : goreli;
  if (yol.size() > EnUzunIkon) {
    Bildirimi().Bilgi("Dosyanın yolu en çok 48 harf olabilir:\n" + Utf8(yol) +
                      "\nSimgeyi program dizinine koyup yeniden seçiniz.");
    return;
  }
  Denetim(IkonAlani).Koy(Utf8(yol));
}

void kyol::Kaydet() {
  Giris giris;
  if (!Oku(giris)) return;
  if (Oldu(kaydet_({giris.ad, std::size_t(giris.program), giris.ikon, giris.parametre}))) return Kapat();
  OdakVer(AdAlani);
}

}  // namespace belvani
