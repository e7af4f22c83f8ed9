// The program's pictures, drawn as SVG (data/simgeler/) and recoloured as the look in force and the chosen set say. A
// set may bring pictures of its own: files in its directory, named as the pictures are.
#pragma once

#include <QIcon>
#include <QString>

namespace belvani {

// "kaydet", "sil", "ara", "yazici" …; an unknown name gives an empty icon.
QIcon Simge(const QString& ad);

// The same for an entry of a menu, whose row is in the accent colour while it is the current one.
QIcon MenuSimgesi(const QString& ad);

// The user's wish for buttons with pictures. One that has no text keeps its own.
void SimgelerKullanilsin(bool kullan);
bool SimgelerKullanilir();

// The colours in which pictures are drawn from now on: that of texts, the accent, and that of texts on the accent.
void SimgeRenkleri(const QColor& yazi, const QColor& vurgu, const QColor& vurguYazi);

// The set in use: the directory of its own pictures (`kaydet.svg`, `kaydet.png`), which need not exist.
void SimgeSetiKoy(const QString& dizin);

}  // namespace belvani
