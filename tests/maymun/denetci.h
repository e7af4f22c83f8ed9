// What holds after every key, whatever was pressed: the keyboard belongs to a part of the window in front, the current
// row of a list is one of its rows, and no record has changed but by a key that may save.
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <filesystem>
#include <map>
#include <string>

#include "maymun/hamleler.h"
#include "ui/dclist.h"
#include "ui/metin.h"

namespace belvani::test {

inline std::string ParcaAdi(const QWidget* parca) {
  if (parca == nullptr) return "-";
  std::string ad = parca->metaObject()->className();
  if (!parca->objectName().isEmpty()) ad += "#" + Utf8(parca->objectName());
  return ad;
}

// Slow work keeps the user out.
inline bool MesgulMu() {
  return QApplication::overrideCursor() != nullptr;
}

class Denetci {
 public:
  // `veri`: the data path.
  explicit Denetci(std::string veri) : veri_(std::move(veri)) { Degisen(); }

  // The store or parameter file that has changed since the last call; empty: none. SQLite's shared memory changes by
  // reading too, an empty journal comes and goes with the connections, what is chosen on a screen is kept in an .ini
  // when that goes, and the marks of who is in and the backups at leaving are the program's own.
  std::string Degisen() {
    std::map<std::string, std::pair<std::uintmax_t, std::filesystem::file_time_type>> simdi;
    std::error_code hata;
    for (const auto& dosya : std::filesystem::recursive_directory_iterator(veri_, hata)) {
      const std::string yol = dosya.path();
      const bool bos = dosya.is_directory(hata) || dosya.file_size(hata) == 0;
      const bool kendinin = yol.find("/.isaret-") != yol.npos || yol.find("/.yedek/") != yol.npos;
      if (bos || kendinin || yol.ends_with("-shm") || yol.ends_with(".ini")) continue;
      simdi[yol] = {dosya.file_size(hata), dosya.last_write_time(hata)};
    }
    const auto onceki = std::exchange(dosyalar_, std::move(simdi));
    for (const auto& [yol, hal] : dosyalar_)
      if (const auto o = onceki.find(yol); o == onceki.end() || o->second != hal) return yol;
    for (const auto& [yol, hal] : onceki)
      if (!dosyalar_.contains(yol)) return yol;
    return {};
  }

  // The key that comes next may change a record.
  static bool YazabilirMi(Yazma yazma) {
    const bool kutuda = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr;
    if (yazma == Yazma::Yazar || kutuda || QApplication::activePopupWidget() != nullptr) return true;
    const QWidget* odak = QApplication::focusWidget();
    const bool dugme = qobject_cast<const QPushButton*>(odak) != nullptr || qobject_cast<const QToolButton*>(odak);
    return (yazma == Yazma::Dugmede && dugme) || DegismisSatirVar() || GirisAlaninda(odak);
  }

  // Empty: all is well.
  static std::string Kusur() {
    if (MesgulMu() || QApplication::activePopupWidget() != nullptr) return {};
    const QWidget* pencere = QApplication::activeWindow();
    if (pencere == nullptr) return "no window is active";
    std::string kusur = OdakKusuru(*pencere);
    return kusur.empty() ? ListeKusuru(*pencere) : kusur;
  }

 private:
  static std::string OdakKusuru(const QWidget& pencere) {
    const QWidget* odak = QApplication::focusWidget();
    if (odak == nullptr && !OdaklanirMi(pencere)) return {};
    if (odak == nullptr) return "nothing has the keyboard in " + ParcaAdi(&pencere);
    const bool icinde = odak == &pencere || pencere.isAncestorOf(odak);
    if (!icinde) return ParcaAdi(odak) + " has the keyboard outside of " + ParcaAdi(&pencere);
    if (!odak->isVisible()) return ParcaAdi(odak) + " has the keyboard and is not seen";
    if (!odak->isEnabled()) return ParcaAdi(odak) + " has the keyboard and is closed";
    return {};
  }

  static bool OdaklanirMi(const QWidget& pencere) {
    for (const QWidget* parca : pencere.findChildren<QWidget*>())
      if ((parca->focusPolicy() & Qt::TabFocus) && parca->isVisible() && parca->isEnabled()) return true;
    return false;
  }

  static std::string ListeKusuru(const QWidget& pencere) {
    for (const QAbstractItemView* liste : pencere.findChildren<QAbstractItemView*>()) {
      const auto* tablo = qobject_cast<const dclist*>(liste);
      if (tablo != nullptr && tablo->hasFocus() && tablo->model()->rowCount() > 0 && tablo->CurSat() < 0)
        return ParcaAdi(liste) + " has rows and stands on none";
      const QModelIndex yer = liste->currentIndex();
      if (liste->model() == nullptr || !yer.isValid()) continue;
      if (yer.row() >= liste->model()->rowCount() || yer.column() >= liste->model()->columnCount())
        return ParcaAdi(liste) + " stands on row " + std::to_string(yer.row()) + ", which it has not";
    }
    return {};
  }

  // The month's entry of a person is closed and saved when the keyboard goes back to his code, by whatever key; a wage
  // is saved when its field is left.
  static bool GirisAlaninda(const QWidget* odak) {
    for (const QWidget* parca = odak; parca != nullptr; parca = parca->parentWidget())
      if (parca->objectName() == "brdhazir" || parca->objectName() == "ucrdeg") return odak->objectName() != "kod";
    return false;
  }

  // A list saves such a row as soon as it is left.
  static bool DegismisSatirVar() {
    for (const QWidget* ust : QApplication::topLevelWidgets())
      for (dclist* liste : ust->findChildren<dclist*>()) {
        if (liste->CurrentMode() != dclist::Mod::Gezinme) return true;
        if (liste->isAncestorOf(QApplication::focusWidget())) return true;  // a cell is open
        for (int satir = 0; satir < liste->ListCount(); ++satir)
          if (liste->Model().DegistiMi(satir)) return true;
      }
    return false;
  }

  std::string veri_;
  std::map<std::string, std::pair<std::uintmax_t, std::filesystem::file_time_type>> dosyalar_;
};

}  // namespace belvani::test
