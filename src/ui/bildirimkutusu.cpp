#include "ui/bildirimkutusu.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "ui/metin.h"
#include "ui/ondeki.h"
#include "ui/renk.h"

namespace belvani {
namespace {

// An ordinary cursor while a message stands in the middle of slow work.
class OlaganImlec {
 public:
  OlaganImlec() : mesgul_(QApplication::overrideCursor() != nullptr) {
    if (mesgul_) QApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~OlaganImlec() {
    if (mesgul_) QApplication::restoreOverrideCursor();
  }
  OlaganImlec(const OlaganImlec&) = delete;
  OlaganImlec& operator=(const OlaganImlec&) = delete;

 private:
  const bool mesgul_;
};

// A window that goes while its message stands takes the box along, so nothing here owns it by value.
using Kutu = QPointer<QMessageBox>;

Kutu KutuYap(QMessageBox::Icon simge, std::string_view metin, QMessageBox::StandardButtons dugmeler) {
  auto* kutu = new QMessageBox(simge, QStringLiteral("Belvani"), Yazi(metin), dugmeler, OndekiPencere());
  kutu->setTextFormat(Qt::PlainText);
  return kutu;
}

// A message may come while one window gives the keyboard to another. The one that should have it then has it
// afterwards.
void OneGetir(QWidget* ust) {
  if (QApplication::activeWindow() != nullptr) return;
  QWidget* pencere = QApplication::activeModalWidget();
  if (pencere == nullptr) pencere = ust;
  for (QWidget* acik : QApplication::topLevelWidgets())
    if (pencere == nullptr && acik->isVisible() && acik->windowType() == Qt::Window) pencere = acik;
  if (pencere != nullptr && pencere->isVisible()) pencere->activateWindow();
}

int Goster(QMessageBox::Icon simge, std::string_view metin, QMessageBox::StandardButtons dugmeler,
           QMessageBox::StandardButton varsayilan = QMessageBox::NoButton) {
  const QPointer<QWidget> ust = OndekiPencere();
  const Kutu kutu = KutuYap(simge, metin, dugmeler);
  kutu->setDefaultButton(varsayilan);
  const OlaganImlec imlec;
  const int secilen = kutu->exec();
  delete kutu;
  OneGetir(ust);
  return secilen;
}

// "Resim Dosyası(*.bmp,*.jpg)|*.bmp;*.jpg" as the file dialog wants it.
QString Suzgec(const std::string& filtre) {
  QString metin = Yazi(filtre);
  metin.replace(':', '|');
  const QStringList parcalar = metin.split('|');
  QStringList suzgecler;
  for (qsizetype i = 0; i + 1 < parcalar.size(); i += 2) {
    QString ad = parcalar[i].section('(', 0, 0).trimmed();
    suzgecler += ad + " (" + QString(parcalar[i + 1]).replace(';', ' ') + ")";
  }
  return suzgecler.join(";;");
}

std::optional<std::string> Secilen(const QString& yol) {
  return yol.isEmpty() ? std::nullopt : std::optional(Utf8(yol));
}

}  // namespace

void BildirimKutusu::Bilgi(std::string_view metin) {
  Goster(QMessageBox::Information, metin, QMessageBox::Ok);
}

void BildirimKutusu::Uyari(std::string_view metin) {
  Goster(QMessageBox::Warning, metin, QMessageBox::Ok);
}

bool BildirimKutusu::Soru(std::string_view metin) {
  return Goster(QMessageBox::Question, metin, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

bool BildirimKutusu::TamamMi(std::string_view metin) {
  return Goster(QMessageBox::Warning, metin, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok) == QMessageBox::Ok;
}

bool BildirimKutusu::TehlikeliSoru(std::string_view metin, SoruDugmeleri dugmeler) {
  const bool evetHayir = dugmeler == SoruDugmeleri::EvetHayir;
  const auto olur = evetHayir ? QMessageBox::Yes : QMessageBox::Ok;
  const auto olmaz = evetHayir ? QMessageBox::No : QMessageBox::Cancel;
  return Goster(QMessageBox::Question, metin, olur | olmaz, olmaz) == olur;
}

// An Enter or Esc in haste changes nothing.
YazilanKarari BildirimKutusu::YazilanSorusu(std::string_view metin) {
  const Kutu kutu = KutuYap(QMessageBox::Question, metin, QMessageBox::NoButton);
  const auto* kaydet = kutu->addButton(QStringLiteral("&Kaydet"), QMessageBox::AcceptRole);
  const auto* birak = kutu->addButton(QStringLiteral("Kaydet&me"), QMessageBox::DestructiveRole);
  QPushButton* kal = kutu->addButton(QStringLiteral("&Ekranda Kal"), QMessageBox::RejectRole);
  kutu->setDefaultButton(kal);
  kutu->setEscapeButton(kal);
  const OlaganImlec imlec;
  kutu->exec();
  const QAbstractButton* secilen = kutu == nullptr ? kal : kutu->clickedButton();
  const auto karar = secilen == kaydet  ? YazilanKarari::Kaydet
                     : secilen == birak ? YazilanKarari::Birak
                                        : YazilanKarari::Kal;
  delete kutu;
  return karar;
}

std::optional<std::string> SistemDialoglari::DosyaAc(const std::string& baslik, const std::string& dizin,
                                                     const std::string& filtre) {
  return Secilen(QFileDialog::getOpenFileName(OndekiPencere(), Yazi(baslik), Yazi(dizin), Suzgec(filtre)));
}

std::optional<std::string> SistemDialoglari::DosyaKaydet(const std::string& baslik, const std::string& dizin,
                                                         const std::string& filtre) {
  return Secilen(QFileDialog::getSaveFileName(OndekiPencere(), Yazi(baslik), Yazi(dizin), Suzgec(filtre)));
}

std::optional<std::string> SistemDialoglari::DizinSec(const std::string& baslik, const std::string& dizin) {
  return Secilen(QFileDialog::getExistingDirectory(OndekiPencere(), Yazi(baslik), Yazi(dizin)));
}

std::optional<std::uint32_t> SistemDialoglari::RenkSec(std::uint32_t renk) {
  const QColor secilen = QColorDialog::getColor(RenkYap(renk), OndekiPencere());
  return secilen.isValid() ? std::optional(RenkSayisi(secilen)) : std::nullopt;
}

std::optional<QFont> SistemDialoglari::FontSec(const QFont& font) {
  bool tamam = false;
  const QFont secilen = QFontDialog::getFont(&tamam, font, OndekiPencere());
  return tamam ? std::optional(secilen) : std::nullopt;
}

}  // namespace belvani
