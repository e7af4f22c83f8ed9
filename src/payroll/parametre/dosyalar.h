// The parameter files of the installation and of a company: loaded into plain values, saved whole.
//
// Installation files lie in the data path (yasal2.dat, gvtbl.dat, agitbl.dat, hestur.dat, kanun.dat, ozgvtbl.dat),
// company files in the company's directory (kazanc.dat, yardim.dat, fmesai.dat, sablon.dat, ozgvpar.dat, kidpar.dat,
// ihbsure.dat). Their bytes are told in payroll/parametre/kayitlar.h. No file is ever refused: the size is the only
// test, and each loader below tells what a file of another size gives. An absent file counts as an empty one; one that
// is there but cannot be read keeps its bytes. A file is written only where its loader says so.
//
// Example: with no files at all the minimum wage is 0, and agitbl.dat (50, 10, 7.5, 5, 0; base 0) and hestur.dat
// (4050 bytes) and kanun.dat (72 bytes) come into being.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/veriyolu.h"
#include "payroll/parametre/ozelgiderparametreleri.h"
#include "payroll/parametre/parametreler.h"
#include "payroll/parametre/tazminatparametreleri.h"

namespace belvani {

// A loaded value, and what there is to say about its files: Turkish, one text each. The desktop keeps silent about
// them, the batch program prints them.
template <class T>
struct Yukleme {
  T deger;
  std::vector<std::string> uyarilar;
};

// What becomes of a file that its loader would replace by the built-in record. The desktop repairs it in silence; a
// batch run leaves it as it is, tells, and goes no further. Where no file was expected (kanun.dat, files of a company),
// both write the built-in one.
// Dokunulmaz writes nothing at all.
enum class BozukDosya { Onarilir, Kalir, Dokunulmaz };

// All that the installation's files set; `simdiki` is what memory holds (a default value on the first run).
//   yasal2.dat  not 1368 bytes: all zero; the file stays.
//   gvtbl.dat   not 96 bytes: the table of `simdiki` stays.
//   agitbl.dat  not 28 bytes: the defaults, with AgiCocuk4 of `simdiki` and the minimum wage as base, are written.
//               A base below 100 becomes the minimum wage in memory; the file keeps it.
//   hestur.dat  not 4050 bytes: the built-in branches are written.
//   kanun.dat   shorter than 72 bytes: the four built-in rows are written; bytes after the last whole row are passed
//               over.
// An absent kanun.dat is ordinary and not told.
Yukleme<YasalParametreler> YasalDosyalariYukle(const VeriYolu& veri, const YasalParametreler& simdiki,
                                               BozukDosya bozuk = BozukDosya::Onarilir);

// The bytes of these files as they stand together, by name, besides others that are asked for.
using DosyaHalleri = std::map<std::string, DosyaHali, std::less<>>;
DosyaHalleri YasalDosyalariOku(const VeriYolu& veri, std::string_view ayrica = {});
// What those bytes hold; writes nothing.
Yukleme<YasalParametreler> YasalDosyalariCoz(const VeriYolu& veri, const DosyaHalleri& haller);

// ozgvtbl.dat; not 96 bytes: all zero, the file stays.
Yukleme<GvTablosu> OzelGvYukle(const VeriYolu& veri);

// ozgvpar.dat of a company; not 12 bytes: `hazir` is written.
Yukleme<OzelGiderParametreleri> OzelGiderYukle(const VeriYolu& sirket, const OzelGiderParametreleri& hazir,
                                               BozukDosya bozuk = BozukDosya::Onarilir);

// kazanc.dat: empty: the built-in flags are written; not 9 bytes: the built-in flags, the file stays.
// yardim.dat: not 11 bytes: zeros, the file stays. That a company has none of these files is ordinary.
Yukleme<KazancBayraklari> KazancBayraklariYukle(const VeriYolu& sirket);

// fmesai.dat; shorter than 9 bytes: the built-in lines; longer: the lines that it holds whole, built-in ones for the
// rest. The file stays.
Yukleme<FazlaMesailer> FazlaMesaiYukle(const VeriYolu& sirket);

// sablon.dat; not 135 bytes: the built-in template. SablonYukle (payroll screen, mass run) also writes it then;
// SablonOku (the screen that edits it) leaves the file.
Yukleme<Sablon> SablonYukle(const VeriYolu& sirket, BozukDosya bozuk = BozukDosya::Onarilir);
Yukleme<Sablon> SablonOku(const VeriYolu& sirket);

// kidpar.dat, ihbsure.dat; not 4 and 32 bytes: the built-in record is written, and a file that was there is told.
Yukleme<KidemParametreleri> KidemParOku(const VeriYolu& sirket);
Yukleme<IhbarSureleri> IhbarSureOku(const VeriYolu& sirket);

// Each writes its file whole: the old one stays where that fails.
Durum YasalOranlarKaydet(const VeriYolu& veri, const YasalOranlar& oranlar);
Durum GvTablosuKaydet(const VeriYolu& veri, const GvTablosu& tablo);
Durum AgiTablosuKaydet(const VeriYolu& veri, const AgiTablosu& tablo);
Durum HesapTurleriKaydet(const VeriYolu& veri, const HesapTurleri& turler);
Durum KanunlarKaydet(const VeriYolu& veri, const Kanunlar& kanunlar);
Durum OzelGvKaydet(const VeriYolu& veri, const GvTablosu& tablo);
Durum OzelGiderKaydet(const VeriYolu& sirket, const OzelGiderParametreleri& parametreler);
Durum FazlaMesaiKaydet(const VeriYolu& sirket, const FazlaMesailer& mesailer);
Durum SablonKaydet(const VeriYolu& sirket, const Sablon& sablon);
Durum KidemParKaydet(const VeriYolu& sirket, const KidemParametreleri& kidem);
Durum IhbarSureKaydet(const VeriYolu& sirket, const IhbarSureleri& sureler);

}  // namespace belvani
