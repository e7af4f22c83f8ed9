// The editor of one declared field, whatever its kind: xtext, list, check box, option buttons.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

#include "core/tables/alansatiri.h"

namespace belvani {

class xtext;

class AlanDenetimi {
 public:
  explicit AlanDenetimi(const belvani::Alan& alan) : alan_(alan) {}
  virtual ~AlanDenetimi() = default;
  AlanDenetimi(const AlanDenetimi&) = delete;
  AlanDenetimi& operator=(const AlanDenetimi&) = delete;

  const belvani::Alan& Satir() const { return alan_; }

  virtual QWidget* Parca() = 0;                // stands in the form
  virtual QWidget* Odak() { return Parca(); }  // takes the focus
  virtual std::vector<QWidget*> Odaklar() { return {Odak()}; }
  virtual void Koy(const Deger& deger) = 0;  // no change is reported
  virtual Deger Oku() const = 0;
  virtual void Temizle() = 0;
  virtual void Kapat(bool kapali) = 0;
  virtual void ParaOndaligi(int) {}                    // the company's books have other decimals now
  virtual bool KendiBasligi() const { return false; }  // its caption is part of it (check box)

  // Why what stands in it cannot be stored: "Adı: en çok 20 harf"; nothing when it can.
  std::optional<Kusur> Kusuru() const;

  // The user changed it. Held off while the program loads values.
  std::function<void()> Degisti = [] {};

  xtext* YaziKutusu();  // null for another kind

 protected:
  belvani::Alan alan_;
};

// `paraOndalik`: decimals of money in the company's books.
std::unique_ptr<AlanDenetimi> DenetimYap(const belvani::Alan& alan, QWidget* ust, int paraOndalik);

// The choices of a list field that are known at run time only.
void SecenekleriKoy(AlanDenetimi& denetim, const std::vector<std::string>& secenekler);

}  // namespace belvani
