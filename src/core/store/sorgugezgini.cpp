#include "core/store/sorgugezgini.h"

#include <algorithm>

#include "core/store/donusum.h"
#include "core/tables/tablolar.h"
#include "core/turkce.h"

namespace belvani {
namespace {

// As it was given, else that of the table column which it shows; a column of neither is of the type of each value.
std::optional<AlanTipi> KolonTipi(const Komut& komut, int kolon, const std::vector<SonucTipi>& tipler) {
  for (const SonucTipi& t : tipler)
    if (AdEsit(t.ad, komut.KolonAdi(kolon))) return t.tip;
  const TabloTanimi* tablo = TabloBul(komut.KaynakTablo(kolon));
  const AlanTanimi* alan = tablo == nullptr ? nullptr : tablo->AlanBul(komut.KaynakKolon(kolon));
  return alan == nullptr ? std::nullopt : std::optional(alan->tip);
}

}  // namespace

SorguGezgini::SorguGezgini(Komut& komut, const std::vector<SonucTipi>& tipler) {
  bool var = komut.Adim();  // the columns are known from now on
  std::vector<std::optional<AlanTipi>> kolonTipleri;
  for (int i = 0; i < komut.KolonSayisi(); ++i) {
    kolonTipleri.push_back(KolonTipi(komut, i, tipler));
    alanlar_.push_back({std::string(komut.KolonAdi(i)), kolonTipleri.back().value_or(AlanTipi::Tek), {}});
  }
  for (; var; var = komut.Adim()) {
    auto& satir = satirlar_.emplace_back();
    for (int i = 0; i < int(kolonTipleri.size()); ++i) {
      const auto& tip = kolonTipleri[std::size_t(i)];
      satir.push_back(tip ? KolondanDeger(komut, i, *tip) : KolondanDeger(komut, i));
    }
  }
  konum_ = satirlar_.empty() ? Konum::Bos : Konum::Kayitta;
}

bool SorguGezgini::UcaGit(Yon uc) {
  if (satirlar_.empty()) return false;
  sira_ = GeriyeMi(uc) ? satirlar_.size() - 1 : 0;
  konum_ = Konum::Kayitta;
  return true;
}

bool SorguGezgini::Yuru(Yon yon) {
  if (GeriyeMi(yon) ? sira_ == 0 : sira_ + 1 >= satirlar_.size()) {
    konum_ = GeriyeMi(yon) ? Konum::Basta : Konum::Sonda;
    return false;
  }
  GeriyeMi(yon) ? --sira_ : ++sira_;
  return true;
}

bool SorguGezgini::Konuma(int sira) {
  if (std::size_t(sira) >= satirlar_.size()) return false;
  sira_ = std::size_t(sira);
  konum_ = Konum::Kayitta;
  return true;
}

}  // namespace belvani
