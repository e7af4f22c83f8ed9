// ResimKutusu: the box of a photograph. The picture is shown whole, in its proportions; the Menu key or the right
// button opens the box's menu.
#pragma once

#include <QFrame>
#include <QPixmap>
#include <functional>
#include <string>

namespace belvani {

class ResimKutusu : public QFrame {
 public:
  explicit ResimKutusu(QWidget* ust);

  // False: the file is no picture that can be read, and the box stays as it is.
  bool Goster(const std::string& dosya);
  void Bosalt();
  bool Bos() const { return resim_.isNull(); }

  std::function<void()> Ekle = [] {};  // "Resim  Ekle"
  std::function<void()> Sil = [] {};   // "Resim Sil"

 protected:
  void paintEvent(QPaintEvent* olay) override;
  void contextMenuEvent(QContextMenuEvent* olay) override;
  void keyPressEvent(QKeyEvent* olay) override;

 private:
  QPixmap resim_;
};

}  // namespace belvani
