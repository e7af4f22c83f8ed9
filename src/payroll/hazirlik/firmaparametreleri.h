// FirmaParametreleri: what a company sets for the pay of its people, in its files and tables.
#pragma once

#include <string>
#include <vector>

#include "core/tables/kaztan.h"
#include "core/tables/sendika.h"
#include "payroll/hesap/indirim.h"
#include "payroll/hesap/muafiyet.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

class Motor;
class VeriYolu;
struct Firma;
struct Oturum;

// Parameters of a company: its files (`kazanc.dat`, `yardim.dat`, `fmesai.dat`, `sablon.dat`) and its tables (`kaztan`,
// `muaf`, `indir`, `sendika`).
struct FirmaParametreleri {
  KazancBayraklari varsayilan;  // flags of the company's default group
  std::string varsayilanGrup;   // its name
  bool ondegerYazili = false;   // false: the card names none, and that of a company without a card stands for it
  std::vector<Kaztan> gruplar;
  FazlaMesailer mesailer{};
  YardimTanimlari yardimlar;
  IndirimTanimlari indirimler;
  std::vector<Sendika> sendikalar;
  Sablon sablon;
  std::vector<std::string> uyarilar;  // files of a wrong size or with numbers that are none
};

// Reads the company's files and tables; `kaztan` gets the row of the default group from the files when it has none,
// and from then on the files are no longer asked. A broken template is left as it is, and told. Throws MotorHatasi.
FirmaParametreleri FirmaDosyalariYukle(Oturum& o);

// Of those the earning groups alone, for papers that tax by their flags: the store stays as it is.
FirmaParametreleri KazancGruplariOku(Motor& motor, const Firma& firma, const VeriYolu& sirket);

// The flags of a group as its row keeps them, both ways.
KazancBayraklari GrupBayraklari(const Kaztan& satir);
Kaztan GrupSatiri(std::string_view grup, const KazancBayraklari& bayraklar);

// Flags of a group: `hesap` of the person. A blank group has the company's default flags, an unknown one none at all.
KazancBayraklari KazancGrupYukle(const FirmaParametreleri& firma, std::string_view grup);
bool KazancGrubuVar(const FirmaParametreleri& firma, std::string_view grup);

// The union of a person by the code on his card; null when he has none.
const Sendika* SendikaBul(const FirmaParametreleri& firma, std::string_view tasno);

}  // namespace belvani
