// Kosullar: everything about a company and a month that does not change from person to person, loaded once before a
// screen, a mass run or a command calculates.
#pragma once

#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/sonuc.h"
#include "core/tables/kaztan.h"
#include "core/tables/sendika.h"
#include "payroll/hesap/bordro.h"
#include "payroll/hesap/donem.h"
#include "payroll/parametre/dosyalar.h"
#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani {

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

struct Kosullar {
  YasalParametreler yasal;
  FirmaParametreleri firma;
  BordroDonemi donem;
  int uygulama = 0;  // code of the premium rules in force
  Tek IsSaati{8};
  bool IsSaatiYazili = true;  // false: the company has no daily hours, and eight are used
  Tek TehlikeOran;
  int paraonda = 2;
};

// Reads the company's files and tables; `kaztan` gets the row of the default group from the files when it has none,
// and from then on the files are no longer asked. A broken template is left as it is, and told. Throws MotorHatasi.
FirmaParametreleri FirmaDosyalariYukle(Oturum& o);

// Of those the earning groups alone, for papers that tax by their flags: the store stays as it is.
FirmaParametreleri KazancGruplariOku(Motor& motor, const Firma& firma, const VeriYolu& sirket);

// The legal parameters of the installation for work that must not go wrong unseen: a file that is absent, broken or
// with figures that no law has is a failure, and stays as it is.
Sonuc<YasalParametreler> YasalParametreleriAl(const KuruluMevzuat& kurulu);
Sonuc<YasalParametreler> YasalParametreleriAl(const VeriYolu& veri);

// What the card says of them: daily hours, hazard rate, decimals, kind of the period.
void KartKosullariniKoy(Kosullar& kosullar, const Firma& firma);

// All conditions of a month of the open company under those parameters, by the session's card. The failure says what
// the company lacks or which of its files is broken.
Sonuc<Kosullar> KosullariYukle(Oturum& o, const YasalParametreler& yasal, int yil, int ay);

// The same out of parameters that are already loaded, and the session's card.
Sonuc<Kosullar> KosullariKur(const Oturum& o, const YasalParametreler& yasal, const FirmaParametreleri& firma, int yil,
                             int ay);

// The flags of a group as its row keeps them, both ways.
KazancBayraklari GrupBayraklari(const Kaztan& satir);
Kaztan GrupSatiri(std::string_view grup, const KazancBayraklari& bayraklar);

// Flags of a group: `hesap` of the person. A blank group has the company's default flags, an unknown one none at all.
KazancBayraklari KazancGrupYukle(const FirmaParametreleri& firma, std::string_view grup);
bool KazancGrubuVar(const FirmaParametreleri& firma, std::string_view grup);

// The union of a person by the code on his card; null when he has none.
const Sendika* SendikaBul(const FirmaParametreleri& firma, std::string_view tasno);

}  // namespace belvani
