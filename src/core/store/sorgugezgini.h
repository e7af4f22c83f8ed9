// The rows of a query: all of them held, none of them writable.
#pragma once

#include "core/store/gezgin.h"
#include "core/store/veritabani.h"

namespace belvani {

class SorguGezgini final : public Gezgin {
 public:
  // Runs the statement and stands on the first row.
  SorguGezgini(Komut& komut, const std::vector<SonucTipi>& tipler);

  int KayitSayisi() override { return int(satirlar_.size()); }
  bool UcaGit(Yon uc) override;
  bool Yuru(Yon yon) override;
  bool Konuma(int sira) override;
  const Deger& Alan(std::size_t sira) const override { return satirlar_[sira_][sira]; }

 private:
  std::vector<std::vector<Deger>> satirlar_;
  std::size_t sira_ = 0;
};

}  // namespace belvani
