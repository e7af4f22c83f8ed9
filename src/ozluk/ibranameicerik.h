// The words and values of the release, for its two forms.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "ozluk/ibraname.h"
#include "printing/rapor.h"

namespace belvani {

inline constexpr std::string_view IbranameBasligi = "İBRANAME";
inline constexpr std::string_view IbranameIsvereni = "İŞVERENİN";
inline constexpr std::string_view IbranameIscisi = "İŞÇİNİN";
inline constexpr std::string_view IbranameKolonlari[] = {"ÖDEMELER",   "BRÜT KAZANÇ",  "YASAL KESİNTİ",
                                                         "NET KAZANÇ", "ÖZEL KESİNTİ", "NET ÖDENEN"};
inline constexpr std::string_view IbranameTebligati[] = {"İşten Ayrılmadan İtibaren 6 ay İçerisinde",
                                                         "Bulunacağı Tebligat Adresi :"};
inline constexpr std::string_view IbranameImzasi = "İBRA EDEN";

// The sentences in their lines; the day of hiring stands before the first.
inline constexpr std::string_view IbranameCumleleri[] = {
    " tarihinden beri çalıştığım işyerinden yukarıda gösterilen şekilde ayrıldım. Çalışmaya ",
    "  başladığım tarihten bugüne kadar geçen sürem içindeki bütün ücretlerimi ve her türlü sosyal hakkım",
    "  ile hafta ve genel tatil günlerine ait ücretlerimi ayrıca yapmış olduğum fazla mesai ücretlerim ile",
    "  yıllık izin ücretlerimi ve ayrılış esnasında hak etmiş olduğum ve yukarıda belirtilen ",
    "  istihkaklarımı eksiksiz olarak aldım.",
    "            İşyerinden, Kanun ve Hizmet akdinden doğan hiçbir şekil ve nam altında herhangi",
    "  alacağımın kalmadığını, maddi ve manevi herhangi bir hak talebinde bulunmayacağımı beyanla ",
    "  işyerini -geçmişe dönük olarak da- ibra ederim."};

struct IbranameBilgisi {
  std::string_view etiket;  // "": goes on with the value above
  std::string ad;           // of its field on the drawn page
  std::string deger;
};
std::vector<IbranameBilgisi> IsverenBilgileri(const Firma& firma);
std::vector<IbranameBilgisi> IsciBilgileri(const CikisFormu& form);

// A row of the payments: amounts as texts, empty where nothing was paid.
struct IbranameOdemesi {
  std::string_view etiket;
  bool devam = false;  // its label goes on with the one above
  std::array<std::string, std::size(OdemeKolonlari)> tutarlar{};
};
// The total is the last. `gruplama`: digits between thousands marks, 0 for none. Throws TutarTasmasi.
std::vector<IbranameOdemesi> IbranameTablosu(const Ibraname& ibraname, int gruplama = BinlikGruplama);

// "Telefon : …"; "" without a number.
std::string TelefonSatiri(const CikisFormu& form);

}  // namespace belvani
