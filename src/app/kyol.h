// kyol ("Kısa Yol"): the editor of one shortcut of the desktop.
#pragma once

#include "core/session/kisayol.h"
#include "ui/form.h"

namespace belvani {

class kyol : public Form {
 public:
  // `kaydet` keeps the shortcut, or says why it cannot.
  kyol(EkranBaglami& baglam, const Kisayol& kisayol, std::function<Durum(const Kisayol&)> kaydet);

 private:
  void Kaydet();
  void IkonSec();
  void ProgramDegisti();

  std::function<Durum(const Kisayol&)> kaydet_;
  std::int64_t sonProgram_;
};

}  // namespace belvani
