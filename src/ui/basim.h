// The three ways out of every document: its print command with the print dialog, preview and files; the spreadsheet;
// the list on the screen. A document screen makes its Belge and calls one of these.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ui/ekran.h"

namespace belvani {

class Belge;
enum class YzcKarar;
struct YzcAyarlari;

// " Yazıcıya Yazdır": opens yzcsetup and does what its user decides: printer, preview (and back to the dialog), PDF, or
// the bytes of a dot-matrix print in a file. What goes wrong is told, and the dialog comes back with nothing lost.
void BelgeBas(EkranBaglami& baglam, Belge& belge);

// The same, with a say of the screen before something is done: true when it has seen to the decision itself.
using BasimSozu = std::function<bool(YzcKarar karar, const YzcAyarlari& ayar)>;
void BelgeBas(EkranBaglami& baglam, Belge& belge, const BasimSozu& once);

// Prints by the settings that the document has already, without asking again; where that fails, the dialog comes up.
void BelgeBasAyarli(EkranBaglami& baglam, Belge& belge);

// Files are named by company, paper and month. What lies there already is replaced after a question only; where a file
// went is told, with the question whether to open it.

// " Excel'e Gönder": writes the workbook and opens it in the user's spreadsheet program; the line at the foot of the
// main window says where it lies. Without such a program the user is told so and chooses where the file goes.
void BelgeExceleGonder(EkranBaglami& baglam, const Belge& belge);

// The same for the bytes of a workbook; `ad` names its file.
void TabloyuAc(EkranBaglami& baglam, const std::string& ad, const std::string& baytlar);

// " Ekrana Listele": the report grid, which prints and goes to the spreadsheet from there. A paper that is no table
// says that it can only be printed.
void BelgeEkranaListele(EkranBaglami& baglam, const std::shared_ptr<Belge>& belge);

}  // namespace belvani
