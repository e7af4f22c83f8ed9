// What a screen is given to work with, and how screens are shown.
#pragma once

#include <QFont>
#include <QString>
#include <memory>
#include <optional>
#include <string>

#include "core/bildirim.h"
#include "core/session/oturum.h"

class QWidget;

namespace belvani {

class Form;
struct BaskiOrtami;  // printing/yazdir.h; most screens print nothing

enum class FormModu {
  Serbest,  // a child of the main window, beside the others
  Modal,    // returns when the screen has closed
};

// Where screens appear: the main window's area; a bare window in tests.
class FormGosterici {
 public:
  virtual ~FormGosterici() = default;
  virtual void SerbestGoster(std::unique_ptr<Form> form) = 0;
  virtual QWidget* ModalUst() = 0;
  // Opens the screen that this field of a person is entered on, with the cursor in it.
  virtual void KisiyeGit(const std::string&, AlanTutamagi) {}
};

// The platform's dialogs; a test answers by script. Nothing chosen: empty.
class Dialoglar {
 public:
  virtual ~Dialoglar() = default;
  // `filtre`: "Resim Dosyası(*.bmp,*.gif,*.jpg)|*.bmp;*.gif;*.jpg"; ":" and "|" both separate.
  virtual std::optional<std::string> DosyaAc(const std::string& baslik, const std::string& dizin,
                                             const std::string& filtre) = 0;
  virtual std::optional<std::string> DosyaKaydet(const std::string& baslik, const std::string& dizin,
                                                 const std::string& filtre) = 0;
  virtual std::optional<std::string> DizinSec(const std::string& baslik, const std::string& dizin) = 0;
  virtual std::optional<std::uint32_t> RenkSec(std::uint32_t renk) = 0;  // 0x00BBGGRR
  virtual std::optional<QFont> FontSec(const QFont& font) = 0;
};

// One for the whole program; outlives every screen.
struct EkranBaglami {
  Oturum& oturum;
  Bildirim& bildirim;
  Dialoglar& dialoglar;
  FormGosterici& gosterici;
  BaskiOrtami& baski;
};

// Shows a screen: FormGoster(baglam, std::make_unique<perkart>(baglam, …)).
void FormGoster(EkranBaglami& baglam, std::unique_ptr<Form> form, FormModu mod = FormModu::Serbest);

}  // namespace belvani
