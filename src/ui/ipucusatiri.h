// IpucuSatiri: the line of hints of a screen, key by key. Where not all find room the last ones are left out, whole.
#pragma once

#include <QLabel>
#include <QStringList>

namespace belvani {

class IpucuSatiri : public QLabel {
 public:
  explicit IpucuSatiri(QWidget* ust) : QLabel(ust) {
    setObjectName("ipucu");
    setTextFormat(Qt::RichText);
  }

  void Yaz(const QStringList& ipuclari) {
    ipuclari_ = ipuclari;
    tamEn_ = En(ipuclari_.size());
    Sigdir();
    updateGeometry();
  }
  // Something else for a moment; the hints come back with the next Yaz.
  void Soyle(const QString& metin) { Yaz({metin}); }

  QSize sizeHint() const override { return {tamEn_, QLabel::sizeHint().height()}; }
  QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

 protected:
  void resizeEvent(QResizeEvent* olay) override {
    QLabel::resizeEvent(olay);
    Sigdir();
  }

 private:
  // Shows so many of them; gives the width that they take.
  int En(qsizetype adet) {
    setText(ipuclari_.first(adet).join("&nbsp;&nbsp; "));
    return QLabel::sizeHint().width();
  }
  void Sigdir() {
    qsizetype adet = ipuclari_.size();
    while (En(adet) > width() && adet > 1) --adet;
  }

  QStringList ipuclari_;
  int tamEn_ = 0;
};

}  // namespace belvani
