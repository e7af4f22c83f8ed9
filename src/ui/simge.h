// The program's own pictures, drawn as SVG (data/simgeler/) and recoloured to the text colour of the look in force.
#pragma once

#include <QIcon>
#include <QString>

namespace belvani {

// "kaydet", "sil", "ara", "yazici" …; an unknown name gives an empty icon.
QIcon Simge(const QString& ad);

// The user's wish for buttons with pictures. One that has no text keeps its own.
void SimgelerKullanilsin(bool kullan);
bool SimgelerKullanilir();

// The colour in which pictures are drawn from now on.
void SimgeRengi(const QColor& renk);

}  // namespace belvani
