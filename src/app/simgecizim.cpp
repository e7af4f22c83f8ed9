#include "app/simgecizim.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QTextLayout>
#include <cmath>

namespace belvani {
namespace {

constexpr int Plaka = 56;
constexpr int Bosluk = 6;
constexpr int HucreEni = 116;
constexpr int EnCokSatir = 2;
constexpr double Soluk = 0.5;

// Breaks the caption between words; what does not fit into two lines ends in "…".
QStringList Satirlar(const QString& metin, const QFont& font, int en) {
  QTextLayout duzen(metin, font);
  QStringList satirlar;
  duzen.beginLayout();
  for (QTextLine satir = duzen.createLine(); satir.isValid(); satir = duzen.createLine()) {
    satir.setLineWidth(en);
    const bool son = satirlar.size() == EnCokSatir - 1;
    const QString parca = son ? metin.mid(satir.textStart()) : metin.mid(satir.textStart(), satir.textLength());
    satirlar += QFontMetrics(font).elidedText(parca.trimmed(), Qt::ElideRight, en);
    if (son) break;
  }
  duzen.endLayout();
  return satirlar;
}

double Parlaklik(const QColor& renk) {
  const auto dogrusal = [](double k) { return k <= 0.04045 ? k / 12.92 : std::pow((k + 0.055) / 1.055, 2.4); };
  return 0.2126 * dogrusal(renk.redF()) + 0.7152 * dogrusal(renk.greenF()) + 0.0722 * dogrusal(renk.blueF());
}

}  // namespace

QSize SimgeHucresi() {
  const int satir = QFontMetrics(QApplication::font()).height();
  return {HucreEni, Plaka + EnCokSatir * satir + 3 * Bosluk};
}

QColor OkunurYazi(const QColor& zemin) {
  constexpr double Esik = 0.179;  // where black and white contrast alike
  return Parlaklik(zemin) > Esik ? QColor(0x22, 0x27, 0x2B) : QColor(0xF2, 0xF5, 0xF6);
}

void SimgeCizim::paint(QPainter* boya, const QStyleOptionViewItem& secenek, const QModelIndex& yer) const {
  const QPalette palet = QApplication::palette();
  const bool secili = secenek.state.testFlag(QStyle::State_Selected);
  const bool odakli = secili && secenek.widget != nullptr && secenek.widget->hasFocus();
  const bool hazir = yer.data(SimgeHazir).toBool();
  QRect plaka(0, 0, Plaka, Plaka);
  plaka.moveCenter(QPoint(secenek.rect.center().x(), 0));
  plaka.moveTop(secenek.rect.top() + Bosluk);

  boya->save();
  boya->setRenderHint(QPainter::Antialiasing);
  const bool uzerinde = secenek.state.testFlag(QStyle::State_MouseOver);
  const QColor kenar = palet.color(secili || uzerinde ? QPalette::Highlight : QPalette::Mid);
  boya->setPen(QPen(kenar, secili ? 2 : 1));
  boya->setBrush(palet.color(QPalette::Base));
  boya->drawRoundedRect(QRectF(plaka).adjusted(1, 1, -1, -1), 12, 12);
  boya->setOpacity(hazir ? 1.0 : Soluk);
  QRect resim(0, 0, SimgeResmi, SimgeResmi);
  resim.moveCenter(plaka.center());
  yer.data(Qt::DecorationRole).value<QIcon>().paint(boya, resim);

  const QFontMetrics olcu(secenek.font);
  const QStringList satirlar = Satirlar(yer.data().toString(), secenek.font, HucreEni - 2 * Bosluk);
  int en = 0;
  for (const QString& satir : satirlar) en = std::max(en, olcu.horizontalAdvance(satir));
  QRect yazi(0, plaka.bottom() + Bosluk, en + 2 * Bosluk, int(satirlar.size()) * olcu.height());
  yazi.moveCenter(QPoint(secenek.rect.center().x(), yazi.center().y()));
  if (odakli) {
    boya->setOpacity(1.0);
    boya->setPen(Qt::NoPen);
    boya->setBrush(palet.color(QPalette::Highlight));
    boya->drawRoundedRect(yazi.adjusted(0, -1, 0, 1), 4, 4);
  }
  boya->setPen(odakli ? palet.color(QPalette::HighlightedText) : secenek.palette.color(QPalette::Text));
  for (qsizetype i = 0; i < satirlar.size(); ++i)
    boya->drawText(yazi.left(), yazi.top() + int(i) * olcu.height(), yazi.width(), olcu.height(), Qt::AlignCenter,
                   satirlar[i]);
  boya->restore();
}

}  // namespace belvani
