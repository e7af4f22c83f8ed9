// What a random user does: a table of moves with their weights, and the texts that he types and pastes.
#pragma once

#include <QKeySequence>
#include <QString>
#include <array>
#include <random>
#include <string_view>

namespace belvani::test {

enum class HamleTuru {
  Tus,       // the key that is named
  AltHarfi,  // Alt and a letter: menus and buttons
  Harf,      // any letter or digit of the keyboard
  Metin,     // a text of the kind that fields ask for, then Enter
  Yapistir,  // a hostile text, by Ctrl+V
  Tikla,     // on any part of the window in front
  CiftTikla,
  SagTikla,
  Tekerlek,
  Boyut,  // of the window in front
};

// May a record change by it?
enum class Yazma {
  Yazmaz,
  Dugmede,  // only when a button has the keyboard
  Yazar,
};

struct HamleSatiri {
  int agirlik;
  HamleTuru tur;
  const char* tus;
  Yazma yazma;
};

// Leaving a changed row of a list saves it, whatever it is left by; Denetci knows.
inline constexpr HamleSatiri Hamleler[] = {
    {110, HamleTuru::Harf, "", Yazma::Yazmaz},
    {40, HamleTuru::Metin, "", Yazma::Yazmaz},
    {12, HamleTuru::Yapistir, "", Yazma::Yazmaz},
    {25, HamleTuru::AltHarfi, "", Yazma::Yazar},
    {50, HamleTuru::Tikla, "", Yazma::Yazar},
    {15, HamleTuru::CiftTikla, "", Yazma::Yazar},
    {10, HamleTuru::SagTikla, "", Yazma::Yazar},
    {10, HamleTuru::Tekerlek, "", Yazma::Yazmaz},
    {3, HamleTuru::Boyut, "", Yazma::Yazmaz},
    {80, HamleTuru::Tus, "Return", Yazma::Dugmede},
    {10, HamleTuru::Tus, "Enter", Yazma::Dugmede},
    {25, HamleTuru::Tus, "Space", Yazma::Dugmede},
    {40, HamleTuru::Tus, "Tab", Yazma::Yazmaz},
    {25, HamleTuru::Tus, "Shift+Tab", Yazma::Yazmaz},
    {35, HamleTuru::Tus, "Up", Yazma::Yazmaz},
    {35, HamleTuru::Tus, "Down", Yazma::Yazmaz},
    {12, HamleTuru::Tus, "Left", Yazma::Yazmaz},
    {12, HamleTuru::Tus, "Right", Yazma::Yazmaz},
    {6, HamleTuru::Tus, "Shift+Left", Yazma::Yazmaz},
    {6, HamleTuru::Tus, "Shift+Down", Yazma::Yazmaz},
    {15, HamleTuru::Tus, "Home", Yazma::Yazmaz},
    {15, HamleTuru::Tus, "End", Yazma::Yazmaz},
    {15, HamleTuru::Tus, "PgUp", Yazma::Yazmaz},
    {25, HamleTuru::Tus, "PgDown", Yazma::Yazmaz},
    {20, HamleTuru::Tus, "Ctrl+Home", Yazma::Yazmaz},
    {10, HamleTuru::Tus, "Ctrl+End", Yazma::Yazmaz},
    {3, HamleTuru::Tus, "Ctrl+PgUp", Yazma::Yazmaz},
    {3, HamleTuru::Tus, "Ctrl+PgDown", Yazma::Yazmaz},
    {12, HamleTuru::Tus, "Esc", Yazma::Yazmaz},
    {15, HamleTuru::Tus, "Del", Yazma::Yazmaz},
    {15, HamleTuru::Tus, "Backspace", Yazma::Yazmaz},
    {15, HamleTuru::Tus, "Ins", Yazma::Yazmaz},
    {2, HamleTuru::Tus, "F1", Yazma::Yazmaz},
    {20, HamleTuru::Tus, "F2", Yazma::Yazmaz},
    {4, HamleTuru::Tus, "F3", Yazma::Yazar},
    {10, HamleTuru::Tus, "F4", Yazma::Yazar},
    {25, HamleTuru::Tus, "F5", Yazma::Yazar},
    {10, HamleTuru::Tus, "F6", Yazma::Yazar},
    {12, HamleTuru::Tus, "F7", Yazma::Yazar},
    {10, HamleTuru::Tus, "F8", Yazma::Yazar},
    {8, HamleTuru::Tus, "F9", Yazma::Yazar},
    {3, HamleTuru::Tus, "F10", Yazma::Yazar},
    {4, HamleTuru::Tus, "F11", Yazma::Yazar},
    {4, HamleTuru::Tus, "F12", Yazma::Yazar},
    {3, HamleTuru::Tus, "Shift+F10", Yazma::Yazmaz},
    {3, HamleTuru::Tus, "Menu", Yazma::Yazmaz},
    {4, HamleTuru::Tus, "Ctrl+A", Yazma::Yazmaz},
    {4, HamleTuru::Tus, "Ctrl+C", Yazma::Yazmaz},
    {4, HamleTuru::Tus, "Ctrl+V", Yazma::Yazmaz},
    {4, HamleTuru::Tus, "Ctrl+X", Yazma::Yazmaz},
    {6, HamleTuru::Tus, "Ctrl+Z", Yazma::Yazmaz},
    {3, HamleTuru::Tus, "Ctrl+Shift+Z", Yazma::Yazmaz},
    {6, HamleTuru::Tus, "Ctrl+F", Yazma::Yazmaz},
    {4, HamleTuru::Tus, "Ctrl+S", Yazma::Yazmaz},
    {2, HamleTuru::Tus, "Ctrl+D", Yazma::Yazmaz},
    {2, HamleTuru::Tus, "Ctrl+Tab", Yazma::Yazmaz},
    {2, HamleTuru::Tus, "Ctrl+Shift+Tab", Yazma::Yazmaz},
    {2, HamleTuru::Tus, "Ctrl+F4", Yazma::Yazmaz},
    {4, HamleTuru::Tus, "Alt+Down", Yazma::Yazmaz},
    {3, HamleTuru::Tus, "Alt+Up", Yazma::Yazar},
    {2, HamleTuru::Tus, "Alt+Left", Yazma::Yazar},
    {2, HamleTuru::Tus, "Alt+Right", Yazma::Yazar},
    {4, HamleTuru::Tus, "+", Yazma::Yazmaz},
    {4, HamleTuru::Tus, "-", Yazma::Yazmaz},
};

inline constexpr std::u16string_view Harfler =
    u"abcçdefgğhıijklmnoöprsştuüvyzqwxABCÇIİŞĞÜÖ0123456789012345678901234567890123456789.,/-+*:;'\"()!?%&_@€";

// What fields ask for: codes of the sample company, days, amounts, names.
inline constexpr const char* Metinler[] = {
    "001",     "003",     "012", "901", "01.07.2009", "31122009", "29.02.2008", "1250.5", "0",    "-1", "999999999999",
    "1e9",     "0,5",     "30",  "31",  "2009",       "12",       "13",         "Işıl",   "ÇAĞ",  "%",  "12345678901",
    "İĞÜŞÖÇ ", "ığüşöç;", "TL",  "240", "1.1.1900",   "??",       "..",         "ornek",  "ORNEK"};

// What nobody should paste.
inline QString DusmanMetin(unsigned sira) {
  switch (sira % 9) {
    case 0:
      return QString(100'000, QChar(u'Ş'));
    case 1:
      return QStringLiteral("👩‍👩‍👧‍👦🇹🇷 e\u0301\u0307 \u202Eters\u202C");
    case 2:
      return QStringLiteral("O'Neil \"tırnak\"; drop table sicil; --");
    case 3:
      return QStringLiteral("bir\niki\r\nüç\tdört");
    case 4:
      return QString(QChar(0)) + QChar(0x1b) + QStringLiteral("[31m\a\b");
    case 5:
      return QStringLiteral("<b>&amp;</b>%s%n%1\\");
    case 6:
      return QString(QChar(0xD800)) + QChar(0xFFFF) + QChar(0xFEFF);
    case 7:
      return QStringLiteral("99999999999999999999999999999999,99");
    default:
      return {};
  }
}

class Rastgele {
 public:
  explicit Rastgele(unsigned tohum) : uretec_(tohum) {}

  // Below `adet`, which is not 0. The same on every computer, unlike the library's distributions.
  unsigned Sayi(std::size_t adet) { return unsigned(uretec_() % adet); }
  template <class Dizi>
  auto& Biri(Dizi& dizi) {
    return dizi[Sayi(std::size(dizi))];
  }
  const HamleSatiri& Hamle() {
    static const int toplam = [] {
      int t = 0;
      for (const HamleSatiri& h : Hamleler) t += h.agirlik;
      return t;
    }();
    int kalan = int(Sayi(std::size_t(toplam)));
    for (const HamleSatiri& h : Hamleler)
      if ((kalan -= h.agirlik) < 0) return h;
    return Hamleler[0];
  }

 private:
  std::mt19937 uretec_;
};

// A key as the platform sends it, with the text that it makes.
struct TusVurusu {
  Qt::Key tus = Qt::Key_unknown;
  Qt::KeyboardModifiers degistirici = Qt::NoModifier;
  QString metin = {};
};

inline TusVurusu HarfVurusu(QChar harf, Qt::KeyboardModifiers degistirici = Qt::NoModifier) {
  return {Qt::Key(harf.toUpper().unicode()), degistirici, harf};
}

// By name: "Ctrl+Home", "Return", "+".
inline TusVurusu AdliVurus(const char* ad) {
  const QKeyCombination tus = QKeySequence(QString::fromLatin1(ad))[0];
  switch (tus.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return {tus.key(), tus.keyboardModifiers(), "\r"};
    case Qt::Key_Escape:
      return {tus.key(), tus.keyboardModifiers(), "\x1b"};
    case Qt::Key_Backspace:
      return {tus.key(), tus.keyboardModifiers(), "\b"};
    case Qt::Key_Delete:
      return {tus.key(), tus.keyboardModifiers(), "\x7f"};
    case Qt::Key_Tab:
      if (tus.keyboardModifiers() == Qt::ShiftModifier) return {Qt::Key_Backtab, Qt::ShiftModifier, ""};
      return {tus.key(), tus.keyboardModifiers(), "\t"};
    default:
      break;
  }
  const bool yazilir = tus.key() < 0x80 && !(tus.keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier));
  return {tus.key(), tus.keyboardModifiers(), yazilir ? QString(QChar(tus.key())) : QString()};
}

}  // namespace belvani::test
