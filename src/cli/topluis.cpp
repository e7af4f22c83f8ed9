#include "cli/topluis.h"

#include <algorithm>
#include <iostream>
#include <poll.h>
#include <unistd.h>
#include <utility>

#include "cli/jsonakisi.h"
#include "core/dosya.h"
#include "core/gecici.h"

namespace belvani::cli {
namespace {

using Hal = TopluSatir::Hal;

Hal HaliBul(Bitis bitis) {
  switch (bitis) {
    case Bitis::Yapildi:
      return Hal::Yapildi;
    case Bitis::Atlandi:
      return Hal::Atlandi;
    case Bitis::Yapilamadi:
      break;
  }
  return Hal::Yapilamadi;
}

bool Bitti(const TopluSatir& satir) {
  return satir.hal != Hal::Baslanmadi && satir.hal != Hal::Suruyor;
}

// Has it something to say?
bool SozuVar(const Isci& isci) {
  pollfd soket{.fd = isci.Soket(), .events = POLLIN, .revents = 0};
  return ::poll(&soket, 1, 0) > 0;
}

}  // namespace

void TopluIs::Yurut() {
  const KesmeNobeti nobet;
  biten_ = std::size_t(std::ranges::count_if(satirlar_, Bitti));
  while (true) {
    IsVer();
    SiradakileriYaz();
    if (isciler_.empty()) break;
    IlerlemeyiGoster();
    IscileriBekle(isciler_);
    SonuclariAl();
    KesmeyeBak();
  }
  IlerlemeyiSil();
  SonuYaz();
}

bool TopluIs::Bekleyen() {
  while (verilecek_ < satirlar_.size() && satirlar_[verilecek_].hal != Hal::Baslanmadi) ++verilecek_;
  return kesme_ == 0 && verilecek_ < satirlar_.size();
}

// Who has nothing to do goes; who is missing is made, the one that has died too.
void TopluIs::IsVer() {
  const auto ver = [this](Isci& isci) {
    satirlar_[verilecek_].hal = Hal::Suruyor;
    isci.Ver(verilecek_);
  };
  for (auto& isci : isciler_)
    if (!isci->Isi() && Bekleyen()) ver(*isci);
  std::erase_if(isciler_, [](const auto& isci) { return !isci->Isi(); });
  while (isciler_.size() < istek_.surec && Bekleyen() && IsciEkle()) ver(*isciler_.back());
}

// Where the system gives no further process, those that are there do it all.
bool TopluIs::IsciEkle() try {
  isciler_.push_back(std::make_unique<Isci>(istek_.is, istek_.sifre));
  return true;
} catch (const KomutHatasi&) {
  if (isciler_.empty()) throw;
  istek_.surec = isciler_.size();
  return false;
}

void TopluIs::KesmeyeBak() {
  const int istenen = KesmeNobeti::Sayi();
  if (istenen == kesme_) return;
  IlerlemeyiSil();
  if (kesme_ == 0)
    std::cerr << "Durduruluyor: başlanmış şirketler bitiriliyor (yeniden Ctrl+C: onlar da yarıda kesilir)\n";
  if (istenen > 1)
    for (const auto& isci : isciler_) isci->Oldur();
  kesme_ = istenen;
}

void TopluIs::SonuclariAl() {
  std::erase_if(isciler_, [this](auto& isci) {
    if (!SozuVar(*isci)) return false;
    Bitir(*isci);
    return !isci->Yasiyor();
  });
}

void TopluIs::Bitir(Isci& isci) {
  TopluSatir& satir = satirlar_[*isci.Isi()];
  auto sonuc = isci.SonucuAl();
  if (!sonuc) return;
  satir.hal = HaliBul(sonuc->bitis);
  satir.cikti = std::move(sonuc->cikti);
  satir.mesaj = std::move(sonuc->mesaj);
  if (!isci.Yasiyor()) Oldu(satir, sonuc->olum);
  if (satir.hal != Hal::Yapildi) DiziniToparla(satir.kod);
  ++biten_;
}

// Its words are kept without its file, so that however many die, none is missing for those after them.
void TopluIs::Oldu(TopluSatir& satir, const std::string& olum) {
  constexpr std::size_t enCokSoz = 4096;
  const TamponParcasi mesaj = std::exchange(satir.mesaj, {});
  satir.kusur = TamponParcasi{mesaj.tampon, mesaj.bas, std::min(mesaj.son, mesaj.bas + enCokSoz)}.Metin();
  satir.kusur += kesme_ > 1 ? "Yarıda kesildi" : olum;
}

// A file of the user's that was being written has not got its name; a folder that was made for one has nothing in it.
void TopluIs::DiziniToparla(const std::string& kod) const {
  if (istek_.dizin.empty()) return;
  const std::string dizin = DizinSonu(istek_.dizin) + kod;
  GecicileriSupur(dizin);
  ::rmdir(dizin.c_str());
}

void TopluIs::SiradakileriYaz() {
  for (; yazilacak_ < satirlar_.size() && Bitti(satirlar_[yazilacak_]); ++yazilacak_) {
    CiktiyiYaz(satirlar_[yazilacak_]);
    satirlar_[yazilacak_].cikti = {};
  }
}

void TopluIs::CiktiyiYaz(const TopluSatir& satir) {
  if (satir.cikti.Boy() == 0) return;
  IlerlemeyiSil();
  const bool yarim = satir.hal != Hal::Yapildi;
  if (istek_.duzen == TopluDuzen::Nesne) {
    if (yarim) return;
    cikis_.Yaz((ilkUye_ ? "{\n" : ",\n") + JsonMetni(satir.kod) + ": ");
    ilkUye_ = false;
  } else {
    constexpr std::size_t enUzunSatir = 200;
    const bool tekSatir = satir.cikti.Boy() <= enUzunSatir && satir.cikti.Metin().find('\n') + 1 == satir.cikti.Boy();
    cikis_.Yaz(satir.kod + (tekSatir ? ": " : ":\n"));
  }
  GovdeyiYaz(satir.cikti);
  if (istek_.duzen == TopluDuzen::Metin && yarim) cikis_.Yaz(satir.kod + ": tamamlanamadı\n");
  cikis_.Bosalt();
}

// A member of an object ends without a line end, a text with one.
void TopluIs::GovdeyiYaz(const TamponParcasi& cikti) {
  const bool json = istek_.duzen == TopluDuzen::Nesne;
  char son = '\0';
  cikti.Ver([&](std::string_view parca) {
    if (json && son == '\n') cikis_.Yaz("\n");
    son = parca.back();
    if (json && son == '\n') parca.remove_suffix(1);
    cikis_.Yaz(parca);
  });
  if (!json && son != '\n' && son != '\f') cikis_.Yaz("\n");
}

void TopluIs::SonuYaz() {
  if (istek_.duzen == TopluDuzen::Nesne) cikis_.Yaz(ilkUye_ ? "{}\n" : "\n}\n");
  cikis_.Bitir();
}

// On a terminal alone, in a line that gives way to whatever else is said.
void TopluIs::IlerlemeyiGoster() {
  if (!terminal_) return;
  std::cerr << "\r" << biten_ << " / " << satirlar_.size() << std::flush;
  ilerlemede_ = true;
}

void TopluIs::IlerlemeyiSil() {
  constexpr std::size_t enUzun = 20;
  if (std::exchange(ilerlemede_, false)) std::cerr << "\r" << std::string(enUzun, ' ') << "\r" << std::flush;
}

}  // namespace belvani::cli
