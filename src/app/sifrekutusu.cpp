#include "app/sifrekutusu.h"

#include <QInputDialog>
#include <QPointer>

#include "ui/metin.h"
#include "ui/ondeki.h"

namespace belvani {

std::optional<std::string> SifreKutusu(const std::string& sunucu, const std::string& kullanici) {
  const QPointer<QInputDialog> kutu = new QInputDialog(OndekiPencere());  // goes with the window, should that go
  kutu->setObjectName("sifreKutusu");
  kutu->setWindowTitle(QStringLiteral("Belvani"));
  kutu->setLabelText(Yazi("Sunucu şifresi (" + kullanici + "@" + sunucu + ")"));
  kutu->setTextEchoMode(QLineEdit::Password);
  const bool verildi = kutu->exec() == QDialog::Accepted;
  if (kutu == nullptr) return std::nullopt;
  const auto sifre = verildi ? std::optional(Utf8(kutu->textValue())) : std::nullopt;
  delete kutu;
  return sifre;
}

}  // namespace belvani
