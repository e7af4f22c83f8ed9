// The printers of CUPS. PDF jobs go through its filters, raw jobs past them.
#pragma once

#include "printing/kuyruk.h"

namespace belvani {

class CupsKuyrugu final : public Kuyruk {
 public:
  // `sunucu`: host name or path of a socket; empty: the one that this computer is set to.
  explicit CupsKuyrugu(std::string sunucu = {});

  Sonuc<std::vector<YaziciBilgisi>> Yazicilar() override;
  Sonuc<int> Gonder(const BaskiIsi& is) override;

 private:
  std::string sunucu_;
};

// What a printer waits for, out of its state's keywords ("media-empty-error"); empty when it needs nobody.
std::string BekleyenMetni(std::string_view neden);

}  // namespace belvani
