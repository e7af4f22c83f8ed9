// dizipusu ("Dizi Pusulası"): the series sheet of the entry declarations. Its two lists are filled from the days and
// may be typed into; what stands in the slots goes to paper, screen and spreadsheet, and is kept nowhere.
//
//   F5 Listele    F6 Ekrana Listele    F8 Yazıcıya Yazdır    F9 Excel'e Gönder    Page Up, Page Down: more rows
#pragma once

#include "documents/tariharaligi.h"
#include "screens/notices/diziyuvalari.h"
#include "ui/form.h"

namespace belvani {

class dizipusu : public Form {
 public:
  explicit dizipusu(EkranBaglami& baglam);

 protected:
  bool KendiligindenKaydet() override;

 private:
  // Nothing when one of the days is none, which is told.
  std::optional<TarihAraligi> Aralik();
  void Listele();
  std::unique_ptr<Belge> BelgeYap();

  DiziYuvalari* yuvalar_;
  TarihAraligi listelenen_;  // the days of what stands in the slots
  bool yazildi_ = false;
};

}  // namespace belvani
