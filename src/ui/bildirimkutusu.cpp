#include "ui/bildirimkutusu.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QMessageBox>
#include <QPushButton>

#include "ui/metin.h"
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

int Goster(QMessageBox::Icon simge, std::string_view metin, QMessageBox::StandardButtons dugmeler,
           QMessageBox::StandardButton varsayilan = QMessageBox::NoButton) {
  QMessageBox kutu(simge, QStringLiteral("Belvani"), Yazi(metin), dugmeler, QApplication::activeWindow());
  kutu.setTextFormat(Qt::PlainText);
  kutu.setDefaultButton(varsayilan);
  const OlaganImlec imlec;
  return kutu.exec();
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

bool BildirimKutusu::TehlikeliSoru(std::string_view metin, SoruDugmeleri dugmeler) {
  const bool evetHayir = dugmeler == SoruDugmeleri::EvetHayir;
  const auto olur = evetHayir ? QMessageBox::Yes : QMessageBox::Ok;
  const auto olmaz = evetHayir ? QMessageBox::No : QMessageBox::Cancel;
  return Goster(QMessageBox::Question, metin, olur | olmaz, olmaz) == olur;
}

// An Enter or Esc in haste changes nothing.
YazilanKarari BildirimKutusu::YazilanSorusu(std::string_view metin) {
  QMessageBox kutu(QMessageBox::Question, QStringLiteral("Belvani"), Yazi(metin), QMessageBox::NoButton,
                   QApplication::activeWindow());
  kutu.setTextFormat(Qt::PlainText);
  const auto* kaydet = kutu.addButton(QStringLiteral("&Kaydet"), QMessageBox::AcceptRole);
  const auto* birak = kutu.addButton(QStringLiteral("Kaydet&me"), QMessageBox::DestructiveRole);
  QPushButton* kal = kutu.addButton(QStringLiteral("&Ekranda Kal"), QMessageBox::RejectRole);
  kutu.setDefaultButton(kal);
  kutu.setEscapeButton(kal);
  const OlaganImlec imlec;
  kutu.exec();
  if (kutu.clickedButton() == kaydet) return YazilanKarari::Kaydet;
  return kutu.clickedButton() == birak ? YazilanKarari::Birak : YazilanKarari::Kal;
}

std::optional<std::string> SistemDialoglari::DosyaAc(const std::string& baslik, const std::string& dizin,
                                                     const std::string& filtre) {
  return Secilen(QFileDialog::getOpenFileName(QApplication::activeWindow(), Yazi(baslik), Yazi(dizin), Suzgec(filtre)));
}

std::optional<std::string> SistemDialoglari::DosyaKaydet(const std::string& baslik, const std::string& dizin,
                                                         const std::string& filtre) {
  return Secilen(QFileDialog::getSaveFileName(QApplication::activeWindow(), Yazi(baslik), Yazi(dizin), Suzgec(filtre)));
}

std::optional<std::string> SistemDialoglari::DizinSec(const std::string& baslik, const std::string& dizin) {
  return Secilen(QFileDialog::getExistingDirectory(QApplication::activeWindow(), Yazi(baslik), Yazi(dizin)));
}

std::optional<std::uint32_t> SistemDialoglari::RenkSec(std::uint32_t renk) {
  const QColor secilen = QColorDialog::getColor(RenkYap(renk), QApplication::activeWindow());
  return secilen.isValid() ? std::optional(RenkSayisi(secilen)) : std::nullopt;
}

std::optional<QFont> SistemDialoglari::FontSec(const QFont& font) {
  bool tamam = false;
  const QFont secilen = QFontDialog::getFont(&tamam, font, QApplication::activeWindow());
  return tamam ? std::optional(secilen) : std::nullopt;
}

}  // namespace belvani
