#include "ui/simge.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <array>
#include <map>
#include <tuple>

namespace belvani {
namespace {

constexpr std::array<int, 6> Boylar{16, 20, 24, 32, 48, 64};

// The set that is drawn in the accent instead of the text colour.
constexpr QLatin1StringView RenkliSet("/renkli/");

struct SimgeSeti {
  QColor yazi = Qt::black;
  QColor vurgu = Qt::black;
  QColor vurguYazi = Qt::white;
  QString dizin;

  QColor Renk() const { return dizin.endsWith(RenkliSet) ? vurgu : yazi; }
};

SimgeSeti& Simdiki() {
  static SimgeSeti set;
  return set;
}

bool& Kullanilir() {
  static bool kullanilir = true;
  return kullanilir;
}

// The set's own picture; a file that is none is passed over.
QIcon SettenOku(const QString& ad) {
  for (const char* uzanti : {".svg", ".png"})
    if (const QString yol = Simdiki().dizin + ad + uzanti; QFileInfo(yol).isFile())
      if (const QPixmap resim(yol); !resim.isNull()) return QIcon(yol);
  return {};
}

// The drawings are black on nothing.
void Ciz(QIcon& simge, const QString& ad, const QColor& renk, QIcon::Mode hal) {
  QFile dosya(":/simgeler/" + ad + ".svg");
  if (!dosya.open(QIODevice::ReadOnly)) return;
  QByteArray cizim = dosya.readAll();
  cizim.replace("#000000", renk.name().toLatin1());
  QSvgRenderer cizen(cizim);
  for (const int boy : Boylar) {
    QPixmap resim(boy, boy);
    resim.fill(Qt::transparent);
    QPainter boya(&resim);
    cizen.render(&boya);
    simge.addPixmap(resim, hal);
  }
}

QIcon ResimdenYap(const QString& ad) {
  QIcon simge = SettenOku(ad);
  if (simge.isNull()) Ciz(simge, ad, Simdiki().Renk(), QIcon::Normal);
  return simge;
}

}  // namespace

QIcon Simge(const QString& ad) {
  static std::map<std::tuple<QString, QString, QRgb>, QIcon> cizilen;
  const auto [yer, yeni] = cizilen.try_emplace({Simdiki().dizin, ad, Simdiki().Renk().rgb()});
  if (yeni) yer->second = ResimdenYap(ad);
  return yer->second;
}

QIcon MenuSimgesi(const QString& ad) {
  QIcon simge = SettenOku(ad);
  if (!simge.isNull() || ad.isEmpty()) return simge;
  Ciz(simge, ad, Simdiki().Renk(), QIcon::Normal);
  Ciz(simge, ad, Simdiki().vurguYazi, QIcon::Active);
  return simge;
}

void SimgeRenkleri(const QColor& yazi, const QColor& vurgu, const QColor& vurguYazi) {
  Simdiki().yazi = yazi;
  Simdiki().vurgu = vurgu;
  Simdiki().vurguYazi = vurguYazi;
}

void SimgeSetiKoy(const QString& dizin) {
  Simdiki().dizin = dizin;
}

void SimgelerKullanilsin(bool kullan) {
  Kullanilir() = kullan;
}

bool SimgelerKullanilir() {
  return Kullanilir();
}

}  // namespace belvani
