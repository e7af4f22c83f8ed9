// Dialogs of a run without a user: nothing is ever chosen.
#pragma once

#include "ui/ekran.h"

namespace belvani {

class DialogYok final : public Dialoglar {
 public:
  std::optional<std::string> DosyaAc(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> DosyaKaydet(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  std::optional<std::string> DizinSec(const std::string&, const std::string&) override { return {}; }
  std::optional<std::uint32_t> RenkSec(std::uint32_t) override { return {}; }
  std::optional<QFont> FontSec(const QFont&) override { return {}; }
};

}  // namespace belvani
