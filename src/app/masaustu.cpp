#include "app/masaustu.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <filesystem>

#include "app/kyol.h"
#include "app/simgecizim.h"
#include "core/session/firmabilgi.h"
#include "core/turkce.h"
#include "ui/metin.h"
#include "ui/renk.h"
#include "ui/resim.h"
#include "ui/simge.h"
#include "ui/stil.h"

namespace belvani {
namespace {

constexpr int Kenar = 18;
constexpr int EtiketSeridi = 64;
constexpr double ResimPayi = 0.8;  // of the desktop; around the picture stays empty desktop

// A colour of the workstation file; one of the desktop's own, or none, is that of the look in force.
// The user's icon, else that of the program.
QIcon KisayolSimgesi(const Oturum& o, const Kisayol& k, const EkranKaydi* ekran) {
  if (o.ResimKullan && !k.ikon.empty()) {
    const std::filesystem::path yol = std::filesystem::path(o.PrgPath) / k.ikon;  // an absolute path stays
    if (const QImage resim = ResimOku(yol, QSize(SimgeResmi, SimgeResmi)); !resim.isNull())
      return QIcon(QPixmap::fromImage(resim));
  }
  return Simge(ekran == nullptr ? "belvani" : Yazi(SimgeAdi(*ekran)));
}

}  // namespace

Form1::Form1(EkranBaglami& ekran, QWidget* ust)
    : QWidget(ust), ekran_(ekran), simgeler_(new QListWidget(this)), etiket_(new QLabel(this)) {
  setObjectName("masaustu");
  SimgeleriKur();
  etiket_->setTextFormat(Qt::PlainText);
  etiket_->setAttribute(Qt::WA_TransparentForMouseEvents);
  etiket_->setContentsMargins(10, 4, 10, 4);
  GorunumKoy(GorunumOku(ekran_.oturum));
  BaslikYaz();
  KisayollariYukle();
}

void Form1::SimgeleriKur() {
  simgeler_->setObjectName("simgeler");
  simgeler_->setAccessibleName(QStringLiteral("Kısa yollar"));
  simgeler_->setViewMode(QListView::IconMode);
  simgeler_->setFlow(QListView::TopToBottom);
  simgeler_->setWrapping(true);
  simgeler_->setResizeMode(QListView::Adjust);
  simgeler_->setMovement(QListView::Static);
  simgeler_->setUniformItemSizes(true);
  simgeler_->setGridSize(SimgeHucresi());
  simgeler_->setItemDelegate(new SimgeCizim(simgeler_));
  simgeler_->setFrameShape(QFrame::NoFrame);
  simgeler_->viewport()->setAutoFillBackground(false);
  simgeler_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  simgeler_->setContextMenuPolicy(Qt::NoContextMenu);
  simgeler_->installEventFilter(this);
  simgeler_->viewport()->installEventFilter(this);
  setFocusProxy(simgeler_);
  connect(simgeler_, &QListWidget::itemDoubleClicked, this,
          [this](QListWidgetItem* oge) { Calistirilacak(kisayollar_.at(std::size_t(simgeler_->row(oge)))); });
}

void Form1::KisayollariYukle() {
  const auto okunan = KisayollariOku(ekran_.oturum);
  Goster(okunan ? *okunan : std::vector<Kisayol>(), 0);
  kusur_ = okunan ? std::nullopt : std::optional(okunan.Kusuru());
}

void Form1::KusuruBildir() {
  if (const auto kusur = std::exchange(kusur_, {})) ekran_.bildirim.KusuruGoster(*kusur);
}

void Form1::Goster(std::vector<Kisayol> kisayollar, int secili) {
  kisayollar_ = std::move(kisayollar);
  simgeler_->clear();
  for (const Kisayol& k : kisayollar_) {
    const EkranKaydi* ekran = KisayolEkrani(KisayolProgramlari.at(k.program));
    auto* oge = new QListWidgetItem(KisayolSimgesi(ekran_.oturum, k, ekran), Yazi(k.ad), simgeler_);
    const bool hazir = ekran != nullptr && Acilir(*ekran);
    oge->setData(SimgeHazir, hazir);
    oge->setToolTip(hazir ? Yazi(k.ad) : Yazi(k.ad) + QStringLiteral(" (bu sürümde yok)"));
  }
  simgeler_->setCurrentRow(std::min(secili, simgeler_->count() - 1));
}

bool Form1::Yaz(std::vector<Kisayol> kisayollar, int secili) {
  if (const Durum d = KisayollariYaz(ekran_.oturum, kisayollar); !d) {
    ekran_.bildirim.KusuruGoster(d.Kusuru());
    return false;
  }
  Goster(std::move(kisayollar), secili);
  return true;
}

void Form1::GorunumKoy(const GorunumAyari& ayar) {
  const bool resimAyni = ayar.backresim == ayar_.backresim && ayar.imagekullan == ayar_.imagekullan &&
                         ayar.backresimvarmi == ayar_.backresimvarmi && !resim_.isNull();
  ayar_ = ayar;
  if (!resimAyni)
    resim_ = ayar.backresimvarmi && ayar.imagekullan ? ResimOku(ayar.backresim, QSize(2048, 2048)) : QImage();
  ResimYerlestir();
  EtiketiGiydir();
  update();
}

void Form1::EtiketiGiydir() {
  const QColor zemin = AyarRengi(ayar_.backcolor, palette().color(QPalette::Window));
  const QColor yazi = OkunurYazi(zemin);
  QPalette palet;  // all other roles stay those of the program
  palet.setColor(QPalette::Base, Qt::transparent);
  palet.setColor(QPalette::Text, yazi);
  simgeler_->setPalette(palet);

  const QFont font = FontYap({ayar_.labelfont, ayar_.labelfontsize, Kalinlik::Normal});
  if (etiket_->font() != font) etiket_->setFont(font);
  const QColor etiketZemini = AyarRengi(ayar_.labelback, Qt::transparent);
  QPalette etiketPaleti;
  etiketPaleti.setColor(QPalette::Window, etiketZemini);
  etiketPaleti.setColor(QPalette::WindowText,
                        AyarRengi(ayar_.labelfore, etiketZemini.alpha() == 0 ? yazi : OkunurYazi(etiketZemini)));
  etiket_->setPalette(etiketPaleti);
  etiket_->setAutoFillBackground(etiketZemini.alpha() != 0);
  BaslikYaz();
}

void Form1::BaslikYaz() {
  const int en = std::max(0, width() - 2 * Kenar);
  const QString metin = Yazi(AnaPencereBasligi(ekran_.oturum));
  etiket_->setText(etiket_->fontMetrics().elidedText(metin, Qt::ElideRight, en - 24));
  etiket_->adjustSize();
  etiket_->move(std::max(Kenar, width() - etiket_->width() - Kenar), height() - etiket_->height() - Kenar + 4);
}

void Form1::OdakAl() {
  if (simgeler_->currentRow() < 0) simgeler_->setCurrentRow(0);
  simgeler_->setFocus(Qt::ShortcutFocusReason);
}

void Form1::ResimYerlestir() {
  const QSize boy = resim_.size().boundedTo((QSizeF(size()) * ResimPayi).toSize());
  resimYeri_ = QRect(QPoint(), resim_.size().scaled(boy, Qt::KeepAspectRatio));
  resimYeri_.moveCenter(rect().center());
}

void Form1::resizeEvent(QResizeEvent* olay) {
  QWidget::resizeEvent(olay);
  simgeler_->setGeometry(rect().adjusted(Kenar, Kenar, -Kenar, -EtiketSeridi));
  ResimYerlestir();
  BaslikYaz();
}

void Form1::paintEvent(QPaintEvent*) {
  QPainter boya(this);
  boya.fillRect(rect(), AyarRengi(ayar_.backcolor, palette().color(QPalette::Window)));
  if (resim_.isNull()) return;
  boya.setRenderHint(QPainter::SmoothPixmapTransform);
  boya.drawImage(resimYeri_, resim_);
}

void Form1::changeEvent(QEvent* olay) {
  QWidget::changeEvent(olay);
  if (olay->type() != QEvent::PaletteChange) return;
  EtiketiGiydir();
  Goster(kisayollar_, simgeler_->currentRow());  // the icons take the colours of the look
}

bool Form1::eventFilter(QObject* nesne, QEvent* olay) {
  if (nesne == simgeler_ && olay->type() == QEvent::KeyPress) return TusuIsle(*static_cast<QKeyEvent*>(olay));
  if (olay->type() != QEvent::ContextMenu) return QWidget::eventFilter(nesne, olay);
  const auto& istek = *static_cast<QContextMenuEvent*>(olay);
  const QListWidgetItem* secili = simgeler_->currentItem();
  QPoint yer = mapFromGlobal(istek.globalPos());
  if (istek.reason() == QContextMenuEvent::Keyboard && secili != nullptr)
    yer = simgeler_->mapTo(this, simgeler_->visualItemRect(secili).center());
  QMenu* menu = MenuYap(yer);
  menu->popup(mapToGlobal(yer));
  return true;
}

bool Form1::TusuIsle(const QKeyEvent& tus) {
  const int sira = simgeler_->currentRow();
  const bool tasima = tus.modifiers().testFlag(Qt::AltModifier) && sira >= 0;
  switch (tus.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (sira >= 0) Calistirilacak(kisayollar_.at(std::size_t(sira)));
      return true;
    case Qt::Key_Insert:
      Duzenle(int(kisayollar_.size()));
      return true;
    case Qt::Key_Delete:
    case Qt::Key_F7:
      if (sira >= 0) Sil(sira);
      return true;
    case Qt::Key_Escape:
      simgeler_->setCurrentRow(-1);
      return true;
    case Qt::Key_Up:
    case Qt::Key_Left:
      if (tasima) Tasi(sira, -1);
      return tasima;
    case Qt::Key_Down:
    case Qt::Key_Right:
      if (tasima) Tasi(sira, 1);
      return tasima;
    default:
      return false;
  }
}

QMenu* Form1::MenuYap(QPoint yer) {
  const QModelIndex simge = simgeler_->indexAt(simgeler_->viewport()->mapFrom(this, yer));
  if (simge.isValid()) return SimgeMenusu(simge.row());
  if (resim_.isNull() || !resimYeri_.contains(yer)) return BosMenu();
  return ResimMenusu(
      this, true, [this] { ResimEkle(); },
      [this] {
        GorunumAyari ayar = ayar_;
        ayar.backresimvarmi = false;
        ResimKaydet(ayar);
      });
}

QMenu* Form1::SimgeMenusu(int sira) {
  simgeler_->setCurrentRow(sira);
  return MenuDoldur({{"calistir", "Çalıştır", [this, sira] { Calistirilacak(kisayollar_.at(std::size_t(sira))); }},
                     {"duzelt", "Düzelt", [this, sira] { Duzenle(sira); }},
                     {"sil", "Sil", [this, sira] { Sil(sira); }},
                     {"sablon", "Simgeleri Diz", [this] { Diz(); }},
                     {"gorunum", "Görünüm", [this] { Islem(MenuIslemi::Gorunum); }}});
}

QMenu* Form1::BosMenu() {
  return MenuDoldur({{"gorunum", "Görünüm", [this] { Islem(MenuIslemi::Gorunum); }},
                     {"sablon", "Simgeleri Diz", [this] { Diz(); }},
                     {"yeni", "Yeni Kısa Yol", [this] { Duzenle(int(kisayollar_.size())); }},
                     {"degistir", "Şirket Değiştir", [this] { Islem(MenuIslemi::FirmaDegistir); }},
                     {"cikis", "Çıkış", [this] { Islem(MenuIslemi::Cikis); }}});
}

QMenu* Form1::MenuDoldur(const std::vector<MenuSatiri>& satirlar) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const MenuSatiri& s : satirlar) menu->addAction(Simge(s.simge), QString::fromUtf8(s.metin), this, s.islev);
  return menu;
}

void Form1::Duzenle(int sira) {
  const bool yeni = sira == int(kisayollar_.size());
  const auto kaydet = [this, sira](const Kisayol& k) {
    std::vector<Kisayol> kisayollar = kisayollar_;
    kisayollar.resize(std::max(kisayollar.size(), std::size_t(sira) + 1));
    kisayollar[std::size_t(sira)] = k;
    const Durum yazildi = KisayollariYaz(ekran_.oturum, kisayollar);
    if (yazildi) Goster(std::move(kisayollar), sira);
    return yazildi;
  };
  const Kisayol kisayol = yeni ? Kisayol() : kisayollar_[std::size_t(sira)];
  FormGoster(ekran_, std::make_unique<kyol>(ekran_, kisayol, kaydet), FormModu::Modal);
  OdakAl();
}

void Form1::Sil(int sira) {
  if (!ekran_.bildirim.SilinsinMi("Kısa Yol Silinecek ?", kisayollar_.at(std::size_t(sira)).ad)) return;
  if (const Durum d = KisayolSil(ekran_.oturum, std::size_t(sira)); !d) return ekran_.bildirim.KusuruGoster(d.Kusuru());
  std::vector<Kisayol> kalan = kisayollar_;
  kalan.erase(kalan.begin() + sira);
  Goster(std::move(kalan), sira);
  OdakAl();
}

void Form1::Tasi(int sira, int adim) {
  const int yeni = sira + adim;
  if (yeni < 0 || yeni >= int(kisayollar_.size())) return;
  std::vector<Kisayol> kisayollar = kisayollar_;
  std::swap(kisayollar[std::size_t(sira)], kisayollar[std::size_t(yeni)]);
  Yaz(std::move(kisayollar), yeni);
}

// By caption, in the order of the Turkish alphabet.
void Form1::Diz() {
  std::vector<Kisayol> kisayollar = kisayollar_;
  std::ranges::stable_sort(kisayollar,
                           [](const Kisayol& a, const Kisayol& b) { return TurkceKarsilastir(a.ad, b.ad) < 0; });
  Yaz(std::move(kisayollar), 0);
  OdakAl();
}

void Form1::ResimEkle() {
  const auto dosya = ekran_.dialoglar.DosyaAc("Resim  Ekle", ekran_.oturum.PrgPath, ResimFiltresi);
  if (!dosya) return;
  GorunumAyari ayar = ayar_;
  ayar.backresim = *dosya;
  ayar.backresimvarmi = true;
  ResimKaydet(ayar);
}

void Form1::ResimKaydet(const GorunumAyari& ayar) {
  if (ayar.backresimvarmi && ResimOku(ayar.backresim, QSize(64, 64)).isNull())
    return ekran_.bildirim.Bilgi("Resim okunamadı:\n" + ayar.backresim);
  if (const Durum d = GorunumYaz(ekran_.oturum, ayar); !d) return ekran_.bildirim.KusuruGoster(d.Kusuru());
  GorunumKoy(ayar);
}

}  // namespace belvani
