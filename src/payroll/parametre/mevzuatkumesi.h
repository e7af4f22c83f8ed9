// The law of the data path as one set: the four files that are fetched, and a note (mevzuat.json) of the month that
// each was fetched for, its hash, and which figures of his own the user has confirmed. The set is replaced whole,
// under the lock of the data path: no reader sees the files of two months, over a kill and a power cut either.
//
//   Kullanilamaz   absent, broken, or figures that no law has: nothing is calculated
//   BaskaAy        another month's: told, and fetched with one key
//   Kullanici      the user's own figures for the month, not confirmed yet: listed and asked once
//   Uygun          those of the month, or the user's own, confirmed
//
// Where a month was never published, its figures are the user's and are taken as they are.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "payroll/parametre/dosyalar.h"
#include "payroll/parametre/indir.h"
#include "payroll/parametre/mevzuatdenetimi.h"

namespace belvani {

// What the note knows. A file that was changed by other hands no longer has its hash: then it is nobody's month's.
struct MevzuatKunyesi {
  static constexpr std::string_view Dosya = "mevzuat.json";

  struct Kayit {
    MevzuatAyi ay;
    std::string ozet;
  };
  std::map<std::string, Kayit, std::less<>> dosyalar;  // by file name
  std::set<std::string> kabuller;                      // month and hash of the whole set

  // A note that cannot be read counts as none.
  static MevzuatKunyesi Coz(const std::string& metin);
  std::string Metin() const;
};

struct KuruluMevzuat {
  YasalParametreler parametreler;
  std::vector<std::string> uyarilar;  // of the loader: absent files, files of a wrong size
  MevzuatKunyesi kunye;
  std::vector<AdliDosya> dosyalar;  // the four, as they lie there; those that are there

  // The month that the file was fetched for, as long as nobody has changed it since.
  std::optional<MevzuatAyi> AlindigiAy(std::string_view dosya) const;
};

// All of it as it stands together; writes nothing.
KuruluMevzuat KuruluMevzuatOku(const VeriYolu& veri);

enum class MevzuatHali { Uygun, Kullanici, BaskaAy, Kullanilamaz };

struct MevzuatGorusu {
  MevzuatHali hal = MevzuatHali::Uygun;
  std::string baslik;                 // "" for Uygun
  std::vector<std::string> satirlar;  // the figures or faults, one each

  // All of it as one text, at most `enCok` lines of it.
  std::string Metin(std::size_t enCok = 12) const;
};

MevzuatGorusu MevzuataBak(const KuruluMevzuat& kurulu, MevzuatAyi ay);
// Whether anything can be calculated with it, of whatever month it is.
MevzuatGorusu KullanilabilirMi(const KuruluMevzuat& kurulu);

// The user has seen that the installed figures are his own and wants them for this month.
Durum MevzuatiKabulEt(const VeriYolu& veri, MevzuatAyi ay);

// The figures that the installed set has of the user's own, and that fetching another would put away.
std::vector<RakamFarki> KullanicininRakamlari(const KuruluMevzuat& kurulu);

// Figures of the user's own are kept for this month.
bool SaklananVar(const VeriYolu& veri, MevzuatAyi ay);

enum class Saklanan { GeriGelir, Birakilir };

struct MevzuatIstegi {
  Saklanan saklanan = Saklanan::GeriGelir;
  std::optional<ParametreDosyasi> yalniz = {};  // one of the four; none: all
  IndirmeSiniri sinir = {};
};

struct MevzuatKurulumu {
  bool sakladi = false;    // figures of the user's were there, and are kept for their month
  bool geriGeldi = false;  // those that the user had for this month are back, instead of the published ones
};

// Fetches the set of a month, or one of its files, from `kaynak` (as ParametreAdresi gives it), looks at the figures,
// and replaces all or none. A set with figures of the user's own is kept beside it for its month (yasal2-2009-07.dat …)
// and comes back when that month's set is fetched again, unless the wish says otherwise.
Sonuc<MevzuatKurulumu> MevzuatKur(const VeriYolu& veri, MevzuatAyi ay, const std::string& kaynak,
                                  const MevzuatIstegi& istek = {});

}  // namespace belvani
