#include "app/belgeyardimi.h"

#include <QStringList>

#include "ui/metin.h"

namespace belvani {
namespace {

constexpr const char* SayfaKalibi =
    "<html><head><meta charset=\"utf-8\"><title>%1</title><link rel=\"stylesheet\" href=\"yardim.css\"></head><body>\n"
    "<h1>%1</h1>\n"
    "<p>%2. <b>%3</b> menüsünden açılır.</p>\n"
    "<h2>Alanlar</h2>\n"
    "<table>\n%4</table>\n"
    "<h2>Nasıl yapılır</h2>\n"
    "<ol>\n"
    "<li>Alanları doldurunuz. Bitiş alanlarındaki ZZZZ herkes demektir.</li>\n"
    "%5"
    "<li><b>F6</b> listeyi ekranda gösterir, <b>F8</b> <a href=\"yzcsetup.html\">Yazıcı Ayarları</a> ekranını açar, "
    "<b>F9</b> Excel dosyası hazırlayıp açar.</li>\n"
    "</ol>\n"
    "<h2>Tuşlar</h2>\n"
    "<p><b>F6</b> ekrana listeler, <b>F8</b> yazıcı ayarlarını açar, <b>F9</b> Excel'e gönderir, <b>F2</b> kod "
    "alanında "
    "rehberi açar, <b>Enter</b> sonraki alana geçer, <b>Esc</b> kapatır.</p>\n"
    "</body></html>\n";

constexpr const char* ListeSozu =
    "<li><b>F5</b> listeyi alanların altında yeniler ve satırlara geçer; altında toplamlar durur. <b>Ctrl+F</b> "
    "listede "
    "arar.</li>\n";

// What is said of a field: its hint, its choices, or the limits of its number.
QString Aciklama(const Alan& alan) {
  if (*alan.ek.ipucu != '\0') return QString::fromUtf8(alan.ek.ipucu);
  QStringList secenekler;
  for (const std::string_view secenek : alan.ek.liste) secenekler += Yazi(secenek);
  if (!secenekler.isEmpty()) return secenekler.join(", ");
  return alan.ek.enAz > 0 ? QStringLiteral("%1 ile %2 arasında").arg(alan.ek.enAz).arg(alan.ek.enCok) : QString();
}

}  // namespace

QString BelgeYardimi(const BelgeTanimi& belge) {
  QString satirlar;
  for (const auto& sutun : belge.alanlar)
    for (const AlanGrubu& grup : sutun)
      for (const Alan& alan : grup.alanlar)
        satirlar += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>\n")
                        .arg(Yazi(alan.etiket).toHtmlEscaped(), Aciklama(alan).toHtmlEscaped());
  const QString giris = Yazi(belge.menu).replace('/', " > ") + " > " + Yazi(belge.menuBasligi);
  return QString::fromUtf8(SayfaKalibi)
      .arg(Yazi(belge.pencereBasligi).toHtmlEscaped(), Yazi(belge.komutYardimi).toHtmlEscaped(), giris.toHtmlEscaped(),
           satirlar, *belge.liste.komut == '\0' ? "" : ListeSozu);
}

}  // namespace belvani
