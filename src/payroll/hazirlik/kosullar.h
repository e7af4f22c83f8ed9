// Kosullar: everything about a company and a month that does not change from person to person, loaded once before a
// screen, a mass run or a command calculates.
#pragma once

#include "core/session/oturum.h"
#include "core/sonuc.h"
#include "payroll/hazirlik/firmaparametreleri.h"
#include "payroll/hesap/donem.h"

namespace belvani {

struct KuruluMevzuat;

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

}  // namespace belvani
