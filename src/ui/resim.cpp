#include "ui/resim.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

#include "ui/metin.h"
#include "ui/simge.h"

namespace belvani {
namespace {

constexpr qint64 EnBuyukDosya = 64 << 20;

QImage CizimOku(const QString& yol, QSize boy) {
  QSvgRenderer cizen(yol);
  if (!cizen.isValid()) return {};
  cizen.setAspectRatioMode(Qt::KeepAspectRatio);
  QImage resim(boy, QImage::Format_ARGB32_Premultiplied);
  resim.fill(Qt::transparent);
  QPainter boya(&resim);
  cizen.render(&boya);
  return resim;
}

}  // namespace

QImage ResimOku(const std::string& yol, QSize enCok) {
  const QFileInfo dosya(Yazi(yol));
  if (yol.empty() || !dosya.isFile() || dosya.size() > EnBuyukDosya || enCok.isEmpty()) return {};
  if (dosya.suffix().compare("svg", Qt::CaseInsensitive) == 0) return CizimOku(dosya.filePath(), enCok);
  QImageReader okuyan(dosya.filePath());
  okuyan.setAutoTransform(true);
  okuyan.setDecideFormatFromContent(true);
  const QSize boy = okuyan.size();
  if (boy.width() > enCok.width() || boy.height() > enCok.height())
    okuyan.setScaledSize(boy.scaled(enCok, Qt::KeepAspectRatio));
  return okuyan.read();
}

QMenu* ResimMenusu(QWidget* ust, bool resimVar, std::function<void()> ekle, std::function<void()> sil) {
  auto* menu = new QMenu(ust);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(Simge("resim"), QStringLiteral("Resim  Ekle"), ust, std::move(ekle));
  menu->addAction(Simge("sil"), QStringLiteral("Resim Sil"), ust, std::move(sil))->setEnabled(resimVar);
  return menu;
}

}  // namespace belvani
