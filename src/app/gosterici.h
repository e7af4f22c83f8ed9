// The place where screens appear, for a context that is made before its main window.
#pragma once

#include <QApplication>

#include "app/anamenu.h"

namespace belvani {

struct AnaPencereGosterici final : FormGosterici {
  anamenu* pencere = nullptr;

  void SerbestGoster(std::unique_ptr<Form> form) override {
    if (pencere != nullptr) pencere->SerbestGoster(std::move(form));
  }
  QWidget* ModalUst() override { return pencere != nullptr ? pencere : QApplication::activeWindow(); }
  void KisiyeGit(const std::string& kod, AlanTutamagi alan) override {
    if (pencere != nullptr) pencere->KisiyeGit(kod, alan);
  }
};

}  // namespace belvani
