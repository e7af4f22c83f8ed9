// The printers of this computer, and the programs that its user has for other files.
#pragma once

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

#include "printing/cupskuyrugu.h"
#include "printing/yazdir.h"
#include "ui/metin.h"

namespace belvani {

struct SistemBaskisi {
  CupsKuyrugu kuyruk;
  LpPortu port;
  BaskiOrtami ortam{
      .kuyruk = kuyruk,
      .port = port,
      .programDizini = Utf8(QCoreApplication::applicationDirPath()),
      .dosyaAc = [](const std::string& dosya) { return QDesktopServices::openUrl(QUrl::fromLocalFile(Yazi(dosya))); },
      .adresAc = [](const std::string& adres) { return QDesktopServices::openUrl(QUrl(Yazi(adres))); }};
};

}  // namespace belvani
