// TopluIs: one command over many companies, several at a time. Processes of its own (cli/isci.h) take one company
// after the other, so that what starting costs is paid once for each of them; what a company prints comes out in the
// order of the companies as soon as those before it are through.
//
// A company that fails, or whose process dies, stops no other one. The first Ctrl+C begins no further company and lets
// those that are being worked on be finished; the second one ends them where they are: a store is then as it was.
#pragma once

#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/isci.h"
#include "cli/ortak.h"

namespace belvani::cli {

struct TopluSatir {
  enum class Hal { Baslanmadi, Suruyor, Yapildi, Atlandi, Yapilamadi };

  std::string kod;
  Hal hal = Hal::Baslanmadi;
  std::string kusur;  // what the company itself could not say: that there is none, how its process died
  TamponParcasi cikti, mesaj;
};

enum class TopluDuzen {
  Metin,  // below a heading, or behind it where it is one line
  Nesne,  // JSON: members of one object, by the companies' codes; of those that failed there is none
};

struct TopluIstek {
  std::function<Bitis(std::size_t sira)> is;
  SifreSorucu sifre;  // of a server
  std::size_t surec = 1;
  TopluDuzen duzen = TopluDuzen::Metin;
  std::string dizin;  // where the companies have their folders; "": they write none
};

// Rows that have failed already are passed over.
class TopluIs {
 public:
  TopluIs(std::vector<TopluSatir>& satirlar, TopluIstek istek) : satirlar_(satirlar), istek_(std::move(istek)) {}

  void Yurut();

 private:
  void IsVer();
  bool IsciEkle();
  bool Bekleyen();
  void KesmeyeBak();
  void SonuclariAl();
  void Bitir(Isci& isci);
  void Oldu(TopluSatir& satir, const std::string& olum);
  void DiziniToparla(const std::string& kod) const;
  void SiradakileriYaz();
  void CiktiyiYaz(const TopluSatir& satir);
  void GovdeyiYaz(const TamponParcasi& cikti);
  void SonuYaz();
  void IlerlemeyiGoster();
  void IlerlemeyiSil();

  std::vector<TopluSatir>& satirlar_;
  TopluIstek istek_;
  std::vector<std::unique_ptr<Isci>> isciler_;
  std::size_t verilecek_ = 0, yazilacak_ = 0, biten_ = 0;
  int kesme_ = 0;  // that have been answered
  bool ilkUye_ = true;
  bool terminal_ = ::isatty(STDERR_FILENO) == 1;
  bool ilerlemede_ = false;  // the progress stands on the terminal's line
  MetinCikisi cikis_;
};

}  // namespace belvani::cli
