#include "ui/bildirimkutusu.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QMessageBox>

#include "ui/metin.h"
#include "ui/renk.h"

namespace belvani {
namespace {

constexpr int GostermeGecikmesi = 400;  // ms
constexpr int AdimAraligi = 40;         // ms between two looks at the box

int Goster(QMessageBox::Icon simge, std::string_view metin, QMessageBox::StandardButtons dugmeler) {
  QMessageBox kutu(simge, QStringLiteral("Belvani"), Yazi(metin), dugmeler, QApplication::activeWindow());
  kutu.setTextFormat(Qt::PlainText);
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

IlerlemeKutusu::IlerlemeKutusu(const QString& is, QWidget* ust) : kutu_(is, QStringLiteral("Vazgeç"), 0, 100, ust) {
  kutu_.setWindowTitle(QStringLiteral("Belvani"));
  kutu_.setWindowModality(Qt::ApplicationModal);
  kutu_.setMinimumDuration(GostermeGecikmesi);
  kutu_.setAutoClose(false);
}

bool IlerlemeKutusu::Adim(std::size_t biten, std::size_t toplam) {
  if (biten != toplam && gecen_.isValid() && gecen_.elapsed() < AdimAraligi) return true;
  gecen_.start();
  kutu_.setMaximum(int(toplam));
  kutu_.setValue(int(biten));
  QApplication::processEvents();
  return !kutu_.wasCanceled();
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
