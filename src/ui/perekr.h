// perekr ("Ekran İzleme"): a report on the screen, which prints what it shows and sends it to a spreadsheet. Reports
// pass it on to FormGoster.
#pragma once

#include <functional>
#include <memory>

#include "ui/form.h"
#include "ui/xgrid.h"

namespace belvani {

// Bound by the writer of the report.
struct PerekrIslevleri {
  // Before each of the next two: the rows of the report in the order in which they are shown.
  std::function<void(const std::vector<int>& sira)> sirala = [](const std::vector<int>&) {};
  std::function<void()> yazdir = [] {};  // " Yazıcıya Yazdır"
  std::function<void()> excel = [] {};   // " Excel'e Gönder"
};

class perekr : public Form {
 public:
  perekr(EkranBaglami& baglam, std::shared_ptr<const Rapor> rapor, const PerekrIslevleri& islevler);

  const Rapor& Belgesi() const { return xgrid1_->Belgesi(); }
  xgrid& Xgrid1() const { return *xgrid1_; }

  QSize sizeHint() const override;

 private:
  QWidget* UstSatirlar();
  QLayout* AramaSatiri();
  std::vector<int> GosterilenSira() const;
  void TuslariBagla(const PerekrIslevleri& islevler);

  xgrid* xgrid1_;
};

}  // namespace belvani
