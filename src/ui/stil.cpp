#include "ui/stil.h"

#include <QApplication>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTranslator>

#include "ui/metin.h"
#include "ui/renk.h"
#include "ui/simge.h"

// The pictures of a static library are there only when asked for, and outside of any namespace.
static void SimgeleriYukle() {
  Q_INIT_RESOURCE(simgeler);
}

namespace belvani {
namespace {

// Fusion with a flat title bar for the windows inside the main window.
class BelvaniStili final : public QProxyStyle {
 public:
  BelvaniStili() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  void drawComplexControl(ComplexControl denetim, const QStyleOptionComplex* secenek, QPainter* boya,
                          const QWidget* parca) const override {
    const auto* baslik = qstyleoption_cast<const QStyleOptionTitleBar*>(secenek);
    if (denetim != CC_TitleBar || baslik == nullptr)
      return QProxyStyle::drawComplexControl(denetim, secenek, boya, parca);
    const bool etkin = (baslik->titleBarState & Qt::WindowActive) != 0;
    const QPalette& palet = secenek->palette;
    const QColor yazi =
        etkin ? palet.color(QPalette::HighlightedText) : palet.color(QPalette::Disabled, QPalette::Text);
    boya->fillRect(secenek->rect, etkin ? palet.color(QPalette::Highlight) : palet.color(QPalette::AlternateBase));
    boya->setPen(yazi);
    QRect metinYeri = subControlRect(CC_TitleBar, baslik, SC_TitleBarLabel, parca);
    metinYeri.setLeft(12);
    boya->drawText(metinYeri, Qt::AlignVCenter | Qt::AlignLeft,
                   baslik->fontMetrics.elidedText(baslik->text, Qt::ElideRight, metinYeri.width()));
    if (!(baslik->subControls & SC_TitleBarCloseButton)) return;
    const QRect kapat = subControlRect(CC_TitleBar, baslik, SC_TitleBarCloseButton, parca);
    const int yaricap = std::min(kapat.width(), kapat.height()) / 4;
    boya->setRenderHint(QPainter::Antialiasing);
    boya->setPen(QPen(yazi, 1.6));
    const QPoint orta = kapat.center();
    boya->drawLine(orta + QPoint(-yaricap, -yaricap), orta + QPoint(yaricap, yaricap));
    boya->drawLine(orta + QPoint(-yaricap, yaricap), orta + QPoint(yaricap, -yaricap));
  }

  // Boxes and rounds with an outline that stands out from light and dark surfaces alike.
  void drawPrimitive(PrimitiveElement oge, const QStyleOption* secenek, QPainter* boya,
                     const QWidget* parca) const override {
    if (oge != PE_IndicatorCheckBox && oge != PE_IndicatorRadioButton && oge != PE_IndicatorItemViewItemCheck)
      return QProxyStyle::drawPrimitive(oge, secenek, boya, parca);
    const bool etkin = (secenek->state & State_Enabled) != 0;
    const bool odakta = (secenek->state & State_HasFocus) != 0;
    const QPalette& palet = secenek->palette;
    const auto grup = etkin ? QPalette::Active : QPalette::Disabled;
    const QRectF kutu = QRectF(secenek->rect).adjusted(1.5, 1.5, -1.5, -1.5);
    boya->save();
    boya->setRenderHint(QPainter::Antialiasing);
    boya->setBrush(palet.color(grup, QPalette::Base));
    boya->setPen(
        QPen(odakta ? palet.color(QPalette::Highlight) : palet.color(grup, QPalette::PlaceholderText), odakta ? 2 : 1));
    const bool yuvarlak = oge == PE_IndicatorRadioButton;
    yuvarlak ? boya->drawEllipse(kutu) : boya->drawRoundedRect(kutu, 2, 2);
    if (secenek->state & State_On) {
      const QColor isaret = palet.color(grup, QPalette::Text);
      const QRectF ic =
          kutu.adjusted(kutu.width() * 0.25, kutu.height() * 0.25, -kutu.width() * 0.25, -kutu.height() * 0.25);
      if (yuvarlak) {
        boya->setPen(Qt::NoPen);
        boya->setBrush(isaret);
        boya->drawEllipse(ic);
      } else {
        boya->setPen(QPen(isaret, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        boya->drawPolyline(QPolygonF{
            {ic.left(), ic.center().y()}, {ic.center().x() - ic.width() * 0.1, ic.bottom()}, {ic.right(), ic.top()}});
      }
    }
    boya->restore();
  }

  int pixelMetric(PixelMetric olcu, const QStyleOption* secenek, const QWidget* parca) const override {
    if (olcu == PM_TitleBarHeight) return QProxyStyle::pixelMetric(olcu, secenek, parca) + 4;
    return QProxyStyle::pixelMetric(olcu, secenek, parca);
  }

  int styleHint(StyleHint ipucu, const QStyleOption* secenek, const QWidget* parca,
                QStyleHintReturn* sonuc) const override {
    if (ipucu == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    if (ipucu == SH_LineEdit_PasswordCharacter) return '*';
    return QProxyStyle::styleHint(ipucu, secenek, parca, sonuc);
  }
};

QPalette Palet(const RenkTablosu& t) {
  const auto renk = [&](Renk r) { return RenkYap(RenkAl(t, r)); };
  QPalette p;
  p.setColor(QPalette::Window, renk(Renk::FormArka));
  p.setColor(QPalette::WindowText, renk(Renk::Yazi));
  p.setColor(QPalette::Base, renk(Renk::TextArka));
  p.setColor(QPalette::AlternateBase, renk(Renk::GridZebra));
  p.setColor(QPalette::Text, renk(Renk::Yazi));
  p.setColor(QPalette::Button, renk(Renk::PasifArka));
  p.setColor(QPalette::ButtonText, renk(Renk::Yazi));
  p.setColor(QPalette::Highlight, renk(Renk::Vurgu));
  p.setColor(QPalette::HighlightedText, renk(Renk::VurguText));
  p.setColor(QPalette::ToolTipBase, renk(Renk::IpucuArka));
  p.setColor(QPalette::ToolTipText, renk(Renk::IpucuText));
  p.setColor(QPalette::PlaceholderText, renk(Renk::SolukYazi));
  p.setColor(QPalette::Mid, renk(Renk::Cerceve));
  p.setColor(QPalette::Link, renk(Renk::Vurgu));
  for (const auto rol : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    p.setColor(QPalette::Disabled, rol, renk(Renk::PasifText));
  p.setColor(QPalette::Disabled, QPalette::Base, renk(Renk::PasifArka));
  return p;
}

// "@Vurgu" in the sheet is the colour of that name in the table.
constexpr auto Sayfa = R"(
QGroupBox { border: 1px solid @Cerceve; border-radius: 6px; margin-top: 1.4ex; padding: 10px 10px 8px 10px; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 2px 5px; color: @Vurgu; }
QLabel { padding: 2px 0; }
QLineEdit, QComboBox, QPlainTextEdit, QTextEdit, QSpinBox {
  background: @TextArka; color: @Yazi; border: 1px solid @Cerceve; border-radius: 4px; padding: 2px 6px; selection-background-color: @Vurgu; selection-color: @VurguText; }
QLineEdit:focus, QComboBox:focus, QPlainTextEdit:focus, QTextEdit:focus {
  background: @TextOdakArka; border: 2px solid @Vurgu; padding: 1px 5px; }
QLineEdit, QComboBox { min-height: 1.5em; }
QLineEdit:read-only { background: @PasifArka; }
QLineEdit:disabled, QComboBox:disabled { background: @PasifArka; color: @PasifText; }
QLineEdit QToolButton { border: none; background: transparent; padding: 0; }
QTableView QLineEdit, QTableView QComboBox { border-radius: 0; min-height: 0; padding: 0 4px; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox::down-arrow { image: url(:/simgeler/@AcilirOk.svg); width: 14px; height: 14px; }
QComboBox QAbstractItemView { background: @TextArka; color: @Yazi; border: 1px solid @Cerceve;
  selection-background-color: @Vurgu; selection-color: @VurguText; }
QTextBrowser, QTextBrowser:focus { background: @PencereArka; border: 1px solid @Cerceve; padding: 8px 14px; }
QTextBrowser:focus { border-color: @Vurgu; }
QListWidget#dizin { background: @PencereArka; border: 1px solid @Cerceve; border-radius: 4px; padding: 4px; outline: 0; }
QListWidget#dizin:focus { border-color: @Vurgu; }
QListWidget#dizin::item:selected { background: @GridSecili; color: @GridSeciliText; }
QPushButton { background: @PasifArka; color: @Yazi; border: 1px solid @Cerceve; border-radius: 5px;
  padding: 5px 12px; min-height: 1.3em; }
QPushButton:hover { border-color: @Vurgu; }
QPushButton:focus { border: 2px solid @Vurgu; padding: 4px 11px; }
QPushButton:pressed { background: @GridSecili; }
QPushButton:disabled { color: @PasifText; }
QPushButton[birincil="true"] { background: @Vurgu; color: @VurguText; border-color: @Vurgu; }
QPushButton[birincil="true"]:focus { border: 2px solid @Yazi; }
QPushButton[birincil="true"]:disabled { background: @PasifArka; color: @PasifText; border-color: @Cerceve; }
QPushButton[renk="true"] { text-align: left; padding: 4px 8px; }
QPushButton[renk="true"]:focus { padding: 3px 7px; }
QCheckBox:focus, QRadioButton:focus { color: @Vurgu; }
QTableView { background: @GridArka; alternate-background-color: @GridZebra; color: @GridText; gridline-color: @GridCizgi;
  border: 1px solid @Cerceve; border-radius: 4px; selection-background-color: @GridSecili;
  selection-color: @GridSeciliText; outline: 0; }
QTableView:focus { border: 1px solid @Vurgu; }
QTableView::item:selected:active:focus { background: @GridAktif; color: @GridAktifText; }
QHeaderView { background: @GridBaslik; }
QHeaderView::section { background: @GridBaslik; color: @GridBaslikText; border: none; padding: 5px 3px; }
QTableCornerButton::section { background: @GridBaslik; border: none; }
QMenuBar { background: @MenuArka; color: @MenuText; padding: 2px; }
QMenuBar::item { padding: 5px 10px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: @GridSecili; color: @GridSeciliText; }
QMenu { background: @TextArka; color: @Yazi; border: 1px solid @Cerceve; padding: 4px; }
QMenu::item { padding: 5px 26px 5px 22px; border-radius: 4px; }
QMenu::item:selected { background: @Vurgu; color: @VurguText; }
QMenu::item:disabled { color: @PasifText; background: transparent; }
QMenu::separator { height: 1px; background: @Cerceve; margin: 4px 8px; }
QToolTip { background: @IpucuArka; color: @IpucuText; border: 1px solid @Cerceve; padding: 3px; }
QLabel#ipucu, QLabel[soluk="true"] { color: @SolukYazi; }
QLabel[hata="true"] { background: @HataArka; color: @HataText; border-radius: 4px; padding: 4px 8px; }
QLabel[toplam="true"], QLineEdit[toplam="true"], QLineEdit[isaretli="true"] { background: @ToplamArka; color: @ToplamText; font-weight: bold; }
QLabel[baslik="true"] { color: @Vurgu; font-weight: bold; }
QFrame#kart, QFrame#ilerleme { background: @PencereArka; border: 1px solid @Cerceve; border-radius: 10px; }
QStatusBar { background: @MenuArka; color: @MenuText; }
)";

QString SayfaYaz(const RenkTablosu& t, bool koyu) {
  struct Ad {
    Renk renk;
    const char* ad;
  };
  // Longer names first, so that none is taken for the beginning of another.
  static constexpr Ad adlar[] = {
      {Renk::GridSeciliText, "GridSeciliText"},
      {Renk::GridBaslikText, "GridBaslikText"},
      {Renk::GridAktifText, "GridAktifText"},
      {Renk::TextOdakArka, "TextOdakArka"},
      {Renk::PencereArka, "PencereArka"},
      {Renk::GridBaslik, "GridBaslik"},
      {Renk::GridSecili, "GridSecili"},
      {Renk::ToplamArka, "ToplamArka"},
      {Renk::ToplamText, "ToplamText"},
      {Renk::GridAktif, "GridAktif"},
      {Renk::GridCizgi, "GridCizgi"},
      {Renk::GridZebra, "GridZebra"},
      {Renk::IpucuArka, "IpucuArka"},
      {Renk::IpucuText, "IpucuText"},
      {Renk::PasifArka, "PasifArka"},
      {Renk::PasifText, "PasifText"},
      {Renk::SolukYazi, "SolukYazi"},
      {Renk::VurguText, "VurguText"},
      {Renk::GridArka, "GridArka"},
      {Renk::GridText, "GridText"},
      {Renk::HataArka, "HataArka"},
      {Renk::HataText, "HataText"},
      {Renk::MenuArka, "MenuArka"},
      {Renk::MenuText, "MenuText"},
      {Renk::TextArka, "TextArka"},
      {Renk::Cerceve, "Cerceve"},
      {Renk::Vurgu, "Vurgu"},
      {Renk::Yazi, "Yazi"},
  };
  QString sayfa = QString::fromUtf8(Sayfa);
  for (const Ad& a : adlar) sayfa.replace("@" + QString(a.ad), RenkYap(RenkAl(t, a.renk)).name());
  return sayfa.replace("@AcilirOk", koyu ? "asagi-acik" : "asagi");
}

}  // namespace

QFont FontYap(const YaziTipi& yazi) {
  QFont font = QApplication::font();
  if (QFontDatabase::hasFamily(Yazi(yazi.ad))) font.setFamilies({Yazi(yazi.ad)});
  font.setPointSize(yazi.boyut);
  font.setBold(yazi.kalinlik == Kalinlik::Kalin);
  return font;
}

void StilKur(QApplication& uygulama, const RenkTablosu& renkler, const GridYazilari& yazilar) {
  SimgeleriYukle();
  static bool kuruldu = false;
  if (!std::exchange(kuruldu, true)) {
    QApplication::setStyle(new BelvaniStili);
    uygulama.setWindowIcon(QIcon(":/simgeler/belvani.svg"));
  }
  const QColor yazi = RenkYap(RenkAl(renkler, Renk::Yazi));
  SimgeRenkleri(yazi, RenkYap(RenkAl(renkler, Renk::Vurgu)), RenkYap(RenkAl(renkler, Renk::VurguText)));
  QApplication::setPalette(Palet(renkler));
  uygulama.setStyleSheet(SayfaYaz(renkler, yazi.lightness() > 128));
  // After the style sheet, whose first setting drops the fonts of classes.
  QApplication::setFont(FontYap(yazilar.baslik), "QHeaderView");
  QApplication::setFont(FontYap(yazilar.detay), "QTableView");
}

void CeviriYukle(QApplication& uygulama) {
  auto* ceviri = new QTranslator(&uygulama);
  if (ceviri->load("qtbase_tr", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(ceviri);
}

}  // namespace belvani
