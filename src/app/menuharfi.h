// Letters by which menu entries are reached from the keyboard (Alt+letter, or the letter alone in an open menu).
#pragma once

#include <QMenu>
#include <QStringList>

namespace belvani {

// The captions of one menu with an "&" before the letter of each, no letter twice: first letters of words before all
// others. {"Bordro", "Bildirgeler"} gives {"&Bordro", "B&ildirgeler"}. "İ" and letters that cannot be typed with a
// single key are passed over; a caption that finds no letter stays without.
QStringList HarfliBasliklar(const QStringList& basliklar);

// The same for the entries of a menu or menu bar, and of the menus below it.
void MenuHarfleriKoy(QWidget& menu);

}  // namespace belvani
