// Pictures that the user has chosen: the desktop's background, the icon of a shortcut, the photo of a person.
#pragma once

#include <QImage>
#include <QMenu>
#include <functional>
#include <string>

namespace belvani {

// What the file dialogs offer for a picture.
inline constexpr const char* ResimFiltresi = "Resim Dosyası(*.bmp,*.gif,*.jpg,*.png)|*.bmp;*.gif;*.jpg;*.jpeg;*.png";

// The picture of the file, made smaller to fit into `enCok` where it is larger; null when there is none to be read.
// A drawing (SVG) is made as large as `enCok`.
QImage ResimOku(const std::string& yol, QSize enCok);

// The menu of a picture: "Resim  Ekle", and "Resim Sil" where there is one to take away. It deletes itself.
QMenu* ResimMenusu(QWidget* ust, bool resimVar, std::function<void()> ekle, std::function<void()> sil);

}  // namespace belvani
