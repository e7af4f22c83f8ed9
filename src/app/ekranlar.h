// The registry of screens: one row for each entry of the main menu; those of the papers come out of their own registry
// (registry/belgeler.h). The menu, the shortcuts of the desktop, the help and the test that opens every screen all
// come from it. An entry whose screen is not built yet is not shown.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "payroll/hazirlik/parametredeposu.h"
#include "ui/form.h"

namespace belvani {

// What every screen may be given.
struct UygulamaBaglami {
  EkranBaglami& ekran;
  ParametreDeposu& parametreler;
};

// Entries that do more than open a screen, or something else.
enum class MenuIslemi { Yok, FirmaDegistir, OncekiAy, SonrakiAy, Cikis, Yardim, Hakkinda, Gorunum, Guncelle, Yedekler };

struct EkranKaydi {
  std::string_view menu;    // "Ek Moduller/Banka Modülü": top entry, then submenu
  std::string_view baslik;  // caption of the entry
  std::string_view kelime;  // the screen's word; "mnu" before it names the entry. Also its page of the guide
  std::string_view simge = {};
  std::string_view kisayol = {};  // what the list of shortcut programs calls it, where that differs from the caption
  std::function<std::unique_ptr<Form>(const UygulamaBaglami&)> yap = nullptr;
  MenuIslemi islem = MenuIslemi::Yok;
  FormModu mod = FormModu::Serbest;
  std::string_view pencereTip = {};  // mode word of a screen that several entries share
  std::string_view ad = {};          // names the entry beside the screen's first one
};

// In the order of the menu.
std::span<const EkranKaydi> Ekranlar();

// What the entry is called where the screen's word would name several.
std::string_view GirisAdi(const EkranKaydi& kayit);

// The entry does something: its screen is built, or it opens none.
bool Acilir(const EkranKaydi& kayit);

// The picture of the entry, or that of its menu.
std::string_view SimgeAdi(const EkranKaydi& kayit);

// The entry that a program of the shortcut list opens; null when no screen answers to it. "Görünüm Ayarları" stands in
// no menu.
const EkranKaydi* KisayolEkrani(std::string_view program);

}  // namespace belvani
