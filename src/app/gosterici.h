// The place where screens appear, for a context that is made before its main window.
#pragma once

#include "app/anamenu.h"
#include "ui/ondeki.h"
#include "ui/sistembaskisi.h"

namespace belvani {

struct AnaPencereGosterici final : FormGosterici {
  anamenu* pencere = nullptr;

  void SerbestGoster(std::unique_ptr<Form> form) override {
    if (pencere != nullptr) pencere->SerbestGoster(std::move(form));
  }
  QWidget* ModalUst() override { return pencere != nullptr ? pencere : OndekiPencere(); }
  void KisiyeGit(const std::string& kod, AlanTutamagi alan) override {
    if (pencere != nullptr) pencere->KisiyeGit(kod, alan);
  }
};

// What a program works with from its start to its end.
template <class BildirimTuru, class DialogTuru>
struct ProgramParcalari {
  BildirimTuru bildirim;
  DialogTuru dialoglar;
  AnaPencereGosterici gosterici;
  Oturum oturum;
  ParametreDeposu parametreler{oturum};
  SistemBaskisi baski;
  EkranBaglami ekran{oturum, bildirim, dialoglar, gosterici, baski.ortam};
};

}  // namespace belvani
