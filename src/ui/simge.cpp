#include "ui/simge.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <map>

namespace belvani {
namespace {

constexpr std::array<int, 6> Boylar{16, 20, 24, 32, 48, 64};

QColor& Renk() {
  static QColor renk(Qt::black);
  return renk;
}

bool& Kullanilir() {
  static bool kullanilir = true;
  return kullanilir;
}

// The drawings are black on nothing.
QIcon Ciz(const QString& ad) {
  QFile dosya(":/simgeler/" + ad + ".svg");
  if (!dosya.open(QIODevice::ReadOnly)) return {};
  QByteArray cizim = dosya.readAll();
  cizim.replace("#000000", Renk().name().toLatin1());
  QSvgRenderer cizen(cizim);
  QIcon simge;
  for (const int boy : Boylar) {
    QPixmap resim(boy, boy);
    resim.fill(Qt::transparent);
    QPainter boya(&resim);
    cizen.render(&boya);
    simge.addPixmap(resim);
  }
  return simge;
}

}  // namespace

QIcon Simge(const QString& ad) {
  static std::map<std::pair<QString, QRgb>, QIcon> cizilen;
  const auto [yer, yeni] = cizilen.try_emplace({ad, Renk().rgb()});
  if (yeni) yer->second = Ciz(ad);
  return yer->second;
}

void SimgeRengi(const QColor& renk) {
  Renk() = renk;
}

void SimgelerKullanilsin(bool kullan) {
  Kullanilir() = kullan;
}

bool SimgelerKullanilir() {
  return Kullanilir();
}

}  // namespace belvani
