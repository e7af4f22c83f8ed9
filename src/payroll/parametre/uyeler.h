// The members of the parameter records, each told once: where it lies in its file (the order of the rows), what the
// command line and the fields of screens call it, its label, its name among the law's figures, and the largest value
// that may be entered. Codec, law figures, command line and screens go through these rows.
//
//   HerUye<AgiTablosu>([&](const auto& uye) { j[uye.ad] = (agi.*uye.uye).Sayi(); });
//   UyeTanimi<&YasalOranlar::SskTavan>().etiket    "SSK Tavan Matrah"
//
// A member that is an array has one row; its elements are numbered from 1 behind name and label.
#pragma once

#include <tuple>

#include "payroll/parametre/ozelgiderparametreleri.h"
#include "payroll/parametre/parametreler.h"
#include "payroll/parametre/tazminatparametreleri.h"

namespace belvani {

template <class Kayit, class U>
struct ParametreUyesi {
  U Kayit::*uye;
  const char* ad = "";       // none: kept, never shown
  const char* etiket = "";   // on its screen
  double enCok = 0;          // 0: what its type has room for; for a text its letters
  const char* mevzuat = "";  // none: no figure of the law
};

template <class Kayit, class U, class... Kalan>
ParametreUyesi(U Kayit::*, Kalan...) -> ParametreUyesi<Kayit, U>;

// The rows of a record, a tuple in the order of its bytes.
template <class Kayit>
inline constexpr auto Uyeler = std::tuple{};

// clang-format off
template <>
inline constexpr auto Uyeler<OranSatiri> = std::tuple{
    ParametreUyesi{&OranSatiri::ana,  "ana",  "Ana.",  100, "ana"},
    ParametreUyesi{&OranSatiri::has,  "has",  "Hast.", 100, "has"},
    ParametreUyesi{&OranSatiri::mal,  "mal",  "Mal.",  100, "mal"},
    ParametreUyesi{&OranSatiri::sgdp, "sgdp", "SGDP",  100, "sgdp"},
    ParametreUyesi{&OranSatiri::isz,  "isz",  "İşsz.", 100, "isz"}};

template <>
inline constexpr auto Uyeler<YasalOranlar> = std::tuple{
    ParametreUyesi{&YasalOranlar::IsciOran,     "IsciOran",     "SSK İşçi Oranları",     0,    "isci"},
    ParametreUyesi{&YasalOranlar::IsverenOran,  "IsverenOran",  "SSK İşveren Oranları",  0,    "isveren"},
    ParametreUyesi{&YasalOranlar::AsgariUcret,  "AsgariUcret",  "Asgari Ücret",          0,    "asgariUcret"},
    ParametreUyesi{&YasalOranlar::SskTaban,     "SskTaban",     "SSK Taban Matrah",      0,    "sskTaban"},
    ParametreUyesi{&YasalOranlar::SskTavan,     "SskTavan",     "SSK Tavan Matrah",      0,    "sskTavan"},
    ParametreUyesi{&YasalOranlar::KidemTavan,   "KidemTavan",   "Kıdem T. Tavan",        0,    "kidemTavan"},
    ParametreUyesi{&YasalOranlar::DamgaOran,    "DamgaOran",    "Damga Vergisi (Binde)", 1000, "damgaBinde"},
    ParametreUyesi{&YasalOranlar::MuafTavan,    "MuafTavan",    "Sigorta Muaf. Tavan",   0,    "sigortaIndirimTavani"},
    ParametreUyesi{&YasalOranlar::Ayrilmis},
    ParametreUyesi{&YasalOranlar::SakatIndirim, "SakatIndirim", "Sakatlık İndirimi -",   0,    "sakatlikIndirimi"},
    ParametreUyesi{&YasalOranlar::MuafOran,     "MuafOran",     "Sigorta Muaf. Oran"}};

template <>
inline constexpr auto Uyeler<GvTablosu> = std::tuple{
    ParametreUyesi{&GvTablosu::GvLimit, "GvLimit", "Üst Sınır", 0,   "limit"},
    ParametreUyesi{&GvTablosu::GvOran,  "GvOran",  "%Vergi",    100, "oran"}};

template <>
inline constexpr auto Uyeler<AgiTablosu> = std::tuple{
    ParametreUyesi{&AgiTablosu::AgiKendisi, "AgiKendisi", "A.G.İ İndirim Oranı (Kendisi)",             100, "kendisi"},
    ParametreUyesi{&AgiTablosu::AgiEsi,     "AgiEsi",     "A.G.İ İndirim Oranı (Eşi)",                 100, "esi"},
    ParametreUyesi{&AgiTablosu::AgiCocuk12, "AgiCocuk12", "A.G.İ İndirim Oranı (1 ve 2. Çocuk)",       100, "cocuk1ve2"},
    ParametreUyesi{&AgiTablosu::AgiCocuk3,  "AgiCocuk3",  "A.G.İ İndirim Oranı (3. Çocuk)",            100, "cocuk3"},
    ParametreUyesi{&AgiTablosu::AgiCocuk4,  "AgiCocuk4",  "A.G.İ İndirim Oranı (4 ve diğer Çocuklar)", 100, "cocuk4veSonrasi"},
    ParametreUyesi{&AgiTablosu::AgiTaban,   "AgiTaban",   "Asgari Geçim İndirim Tabanı",               0,   "taban"}};

template <>
inline constexpr auto Uyeler<HesapTuru> = std::tuple{
    ParametreUyesi{&HesapTuru::no,       "no",       "No"},
    ParametreUyesi{&HesapTuru::ack,      "ack",      "Açıklama", 79},
    ParametreUyesi{&HesapTuru::isKazasi, "isKazasi", "İşKazası", 1}};

template <>
inline constexpr auto Uyeler<KanunSatiri> = std::tuple{
    ParametreUyesi{&KanunSatiri::bastar,   "bastar",   "Baş.Tarihi"},
    ParametreUyesi{&KanunSatiri::bittar,   "bittar",   "Bit.Tarihi"},
    ParametreUyesi{&KanunSatiri::uygulama, "uygulama", "Uygulama"}};

template <>
inline constexpr auto Uyeler<FazlaMesai> = std::tuple{
    ParametreUyesi{&FazlaMesai::oran,  "oran",  "Ücret Çarpanı", 99},
    ParametreUyesi{&FazlaMesai::limit, "limit", "Limit",         9999}};

template <>
inline constexpr auto Uyeler<OzelGiderParametreleri> = std::tuple{
    ParametreUyesi{&OzelGiderParametreleri::oran,   "oran",   "Özel Gider İndirim Oranı", 100},
    ParametreUyesi{&OzelGiderParametreleri::mahay,  "mahay",  "Mahsup Başlangıç Ay",      12},
    ParametreUyesi{&OzelGiderParametreleri::mahyil, "mahyil", "Mahsup Başlangıç Yıl",     2100},
    ParametreUyesi{&OzelGiderParametreleri::damga,  "damga",  "Damga Vergisi Oranı",      1000}};

template <>
inline constexpr auto Uyeler<KidemParametreleri> = std::tuple{
    ParametreUyesi{&KidemParametreleri::KidemYilGun,      "KidemYilGun",      "Kıdem Yılı Gün Sayısı"},
    ParametreUyesi{&KidemParametreleri::KidemPuantajYeri, "KidemPuantajYeri", "Kıdem'in Puantaj Yeri"},
    ParametreUyesi{&KidemParametreleri::IhbarPuantajYeri, "IhbarPuantajYeri", "İhbar'ın Puantaj Yeri"}};

template <>
inline constexpr auto Uyeler<IhbarSuresi> = std::tuple{
    ParametreUyesi{&IhbarSuresi::ay,  "ay",  "Ay"},
    ParametreUyesi{&IhbarSuresi::gun, "gun", "Gün"}};

template <>
inline constexpr auto Uyeler<Sablon> = std::tuple{
    ParametreUyesi{&Sablon::SablonGun},
    ParametreUyesi{&Sablon::SablonYardim},
    ParametreUyesi{&Sablon::SablonYardimTip}};
// clang-format on

// Calls islev(row) for every member, in the order of the file.
template <class Kayit, class F>
constexpr void HerUye(F&& islev) {
  std::apply([&](const auto&... uye) { (islev(uye), ...); }, Uyeler<Kayit>);
}

template <class Kayit, class U>
Kayit UyeninKaydi(U Kayit::*);

// The row of one member.
template <auto uye>
constexpr auto UyeTanimi() {
  using Kayit = decltype(UyeninKaydi(uye));
  using Satir = decltype(ParametreUyesi{uye});
  Satir bulunan{};
  HerUye<Kayit>([&](const auto& satir) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(satir)>, Satir>)
      if (satir.uye == uye) bulunan = satir;
  });
  return bulunan;
}

}  // namespace belvani
