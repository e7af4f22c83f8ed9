// The user guide in a window of its own: the pages of data/yardim/, one for each screen, named after its word. A paper
// without a page there has one out of its row (belgeyardimi.h).
//
// F1 opens the page of the screen that has the keyboard, wherever in the program that is.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTextBrowser>

class QApplication;

namespace belvani {

// A page that exists: "perkart", "Personel Kartları".
struct YardimSayfasi {
  QString kelime, baslik;
};

// In the order of the index: the first page, first steps, the screens as in the menu, then all others by title.
std::vector<YardimSayfasi> YardimSayfalari();

class yardim : public QDialog {
  Q_OBJECT
 public:
  explicit yardim(QWidget* ust);

  // A word without a page opens the first page.
  void Ac(const QString& kelime);
  QString Kelime() const;

 protected:
  void keyPressEvent(QKeyEvent* olay) override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  void Suz();
  void SayfaGoster();

  std::vector<YardimSayfasi> sayfalar_;
  QLineEdit* aranan_;
  QListWidget* dizin_;
  QTextBrowser* metin_;
};

// Opens the guide in front of the program. There is one window; above a dialog it belongs to the dialog.
yardim& YardimGoster(const QString& kelime);

// From now on F1 opens the guide. A second call does nothing.
void YardimTusuKur(QApplication& uygulama);

}  // namespace belvani
