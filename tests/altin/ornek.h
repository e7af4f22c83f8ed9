// The sample company with all its months, made once by the program itself, and the ways to its papers: the command line
// and the functions of the document rooms.
#pragma once

#include <array>
#include <cstdio>
#include <stdexcept>

#include "bildirim.h"
#include "core/dosya.h"
#include "core/session/muhasebecibilgi.h"
#include "documents/defter.h"
#include "gecici.h"
#include "payroll/hazirlik/kosullar.h"
#include "payroll/parametre/indir.h"
#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani::test {

struct Ay {
  int yil;
  int ay;

  bool operator==(const Ay&) const = default;
  // "2009-12".
  std::string Metin() const { return std::to_string(yil) + (ay < 10 ? "-0" : "-") + std::to_string(ay); }
};

class OrnekSirket {
 public:
  OrnekSirket() {
    Calistir("sh '" + KaynakYolu("tools/ornek.sh") + "' '" BELVANI_CLI "' '" + dizin_.Yol() + "'");
    oturum.PrgPath = oturum.DataPath = dizin_.Yol();
    if (!SirketAc(oturum, "ORNEK") || !FirmaYukle(oturum)) throw std::runtime_error("ORNEK");
    if (!MuhasebeciKaydet(oturum, {.adsoyad = "Şükriye Işık", .tcno = "10000000146", .sicil = "16-0457"}))
      throw std::runtime_error("muhasebeci");
  }

  // The law's figures of the month, for both ways.
  void DonemeGec(const Ay& ay) {
    if (ay == donem) return;
    if (!MevzuatKur(oturum.DataPath, {ay.yil, ay.ay}, *ParametreAdresi(ay.yil, ay.ay)))
      throw std::runtime_error(ay.Metin());
    yasal = *YasalParametreleriAl(oturum.DataPath);
    donem = ay;
  }

  // What `belvani-cli` prints of the company; what it says on standard error stands below, behind "!".
  std::string SirketKomutu(const std::string& komut, const std::string& secenekler) const {
    return Calistir("'" BELVANI_CLI "' --veri '" + dizin_.Yol() + "' " + komut + " ORNEK " + secenekler);
  }
  // The same for the month.
  std::string Komut(const std::string& komut, const std::string& secenekler) const {
    return SirketKomutu(komut, "--yil " + std::to_string(donem.yil) + " " + secenekler);
  }
  std::string AylikKomut(const std::string& komut, const std::string& secenekler) const {
    return Komut(komut, "--ay " + std::to_string(donem.ay) + " " + secenekler);
  }
  // The same of a command that is of days: without a year.
  std::string GunKomutu(const std::string& komut, const std::string& secenekler) const {
    return Calistir("'" BELVANI_CLI "' --veri '" + dizin_.Yol() + "' " + komut + " ORNEK " + secenekler);
  }
  std::string GunDosyasi(const std::string& komut, const std::string& secenekler) const {
    const std::string yol = ciktilar_.Yol() + "cikti";
    GunKomutu(komut, secenekler + " -o '" + yol + "'");
    return DosyaOku(yol).value();
  }
  // The bytes of the file that it writes.
  std::string AylikDosya(const std::string& komut, const std::string& secenekler) const {
    const std::string yol = ciktilar_.Yol() + "cikti";
    AylikKomut(komut, secenekler + " -o '" + yol + "'");
    return DosyaOku(yol).value();
  }

  BelgeKaynagi Kaynak() {
    return {.motor = oturum.depo.db.IcMotor(), .yasal = yasal, .firma = oturum.firma, .sirket = oturum.FirmaDizini};
  }
  DefterSecim Secim(const char* ilk, const char* son) const {
    DefterSecim secim;
    secim.yil = donem.yil;
    secim.ay = donem.ay;
    secim.kod = {ilk, son};
    return secim;
  }

  ToplayanBildirim bildirim;
  Oturum oturum;
  YasalParametreler yasal;
  Ay donem{};

 private:
  std::string Calistir(const std::string& komut) const {
    const std::string hata = ciktilar_.Yol() + "hata";
    FILE* boru = ::popen((komut + " 2>'" + hata + "'").c_str(), "r");
    if (boru == nullptr) throw std::runtime_error(komut);
    std::string cikti;
    std::array<char, 65536> parca;
    while (const std::size_t n = std::fread(parca.data(), 1, parca.size(), boru)) cikti.append(parca.data(), n);
    const int durum = ::pclose(boru);
    const std::string soz = DosyaOku(hata).value_or("");
    if (durum != 0) throw std::runtime_error(komut + "\n" + soz);
    return soz.empty() ? cikti : cikti + "! " + soz;
  }

  GeciciDizin dizin_;
  GeciciDizin ciktilar_;
};

}  // namespace belvani::test
