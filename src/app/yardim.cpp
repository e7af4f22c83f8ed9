#include "app/yardim.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QSplitter>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>

#include "app/belgeyardimi.h"
#include "app/masaustu.h"
#include "core/turkce.h"
#include "core/veridizini.h"
#include "registry/belgeler.h"
#include "ui/dclistmodel.h"
#include "ui/metin.h"
#include "ui/ondeki.h"

namespace belvani {
namespace {

constexpr const char* IlkSayfa = "index";
constexpr int SayfaMetni = Qt::UserRole + 1;
constexpr QSize PencereBoyu(940, 620);

QDir YardimDizini() {
  return QDir(Yazi(VeriDizini("yardim")));
}

QString HamSayfa(const QString& kelime) {
  QFile dosya(YardimDizini().filePath(kelime + ".html"));
  if (dosya.open(QIODevice::ReadOnly)) return QString::fromUtf8(dosya.readAll());
  const BelgeTanimi* belge = BelgeBul(Utf8(kelime));
  return belge == nullptr ? QString() : BelgeYardimi(*belge);
}

QString SayfaKelimesi(const QUrl& yer) {
  return yer.fileName().section('.', 0, 0);
}

QString SayfaBasligi(const QString& html, const QString& yoksa) {
  const qsizetype ilk = html.indexOf("<title>");
  const qsizetype son = html.indexOf("</title>", ilk);
  return ilk < 0 || son < 0 ? yoksa : html.mid(ilk + 7, son - ilk - 7).trimmed();
}

// The screen to which a widget belongs.
QString EkranKelimesi(const QWidget* parca) {
  for (; parca != nullptr; parca = parca->parentWidget()) {
    const bool ekran = dynamic_cast<const Form*>(parca) != nullptr || dynamic_cast<const Form1*>(parca) != nullptr;
    const bool kutu = qobject_cast<const QDialog*>(parca) != nullptr && !parca->objectName().isEmpty();
    if (ekran || kutu) return parca->objectName();
  }
  return {};
}

// The screen that has the keyboard, or the one in front in the main window.
QString SimdikiEkran() {
  const QWidget* odak = QApplication::focusWidget();
  if (const QString kelime = EkranKelimesi(odak); !kelime.isEmpty()) return kelime;
  const QWidget* pencere = odak == nullptr ? QApplication::activeWindow() : odak->window();
  const auto* alan = pencere == nullptr ? nullptr : pencere->findChild<QMdiArea*>();
  const QMdiSubWindow* etkin = alan == nullptr ? nullptr : alan->activeSubWindow();
  return etkin == nullptr ? QString(IlkSayfa) : EkranKelimesi(etkin->widget());
}

// Pages come from HamSayfa, not all of them from files.
class SayfaGorunumu final : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int tur, const QUrl& yer) override {
    return tur == QTextDocument::HtmlResource ? HamSayfa(SayfaKelimesi(yer)) : QTextBrowser::loadResource(tur, yer);
  }
};

class YardimTusu final : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* nesne, QEvent* olay) override {
    if (olay->type() != QEvent::KeyPress || !nesne->isWidgetType()) return false;
    const auto& tus = *static_cast<QKeyEvent*>(olay);
    if (tus.key() != Qt::Key_F1 || (tus.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    YardimGoster(SimdikiEkran());
    return true;
  }
};

}  // namespace

std::vector<YardimSayfasi> YardimSayfalari() {
  std::vector<YardimSayfasi> sayfalar;
  QStringList kalan = YardimDizini().entryList({"*.html"}, QDir::Files);
  const auto ekle = [&](const QString& kelime, const QString& baslik) {
    if (kalan.removeOne(kelime + ".html") || BelgeBul(Utf8(kelime)) != nullptr) sayfalar.push_back({kelime, baslik});
  };
  ekle(IlkSayfa, QStringLiteral("Kullanma Şekli"));
  ekle("baslangic", QStringLiteral("Başlangıç"));
  for (const EkranKaydi& kayit : Ekranlar())
    if (kayit.ad.empty()) ekle(Yazi(kayit.kelime), Yazi(kayit.baslik));
  std::vector<YardimSayfasi> digerleri;
  for (const QString& dosya : kalan) {
    const QString kelime = dosya.chopped(5);
    digerleri.push_back({kelime, SayfaBasligi(HamSayfa(kelime), kelime)});
  }
  std::ranges::sort(digerleri, [](const YardimSayfasi& a, const YardimSayfasi& b) {
    return TurkceKarsilastir(Utf8(a.baslik), Utf8(b.baslik)) < 0;
  });
  sayfalar.insert(sayfalar.end(), digerleri.begin(), digerleri.end());
  return sayfalar;
}

yardim::yardim(QWidget* ust)
    : QDialog(ust),
      sayfalar_(YardimSayfalari()),
      aranan_(new QLineEdit(this)),
      dizin_(new QListWidget(this)),
      metin_(new SayfaGorunumu(this)) {
  setObjectName("yardim");
  setWindowTitle(QStringLiteral("Kullanma Şekli"));
  setAttribute(Qt::WA_DeleteOnClose);
  setModal(false);
  resize(PencereBoyu);
  aranan_->setPlaceholderText(QStringLiteral("Ara (Ctrl+F)"));
  aranan_->setClearButtonEnabled(true);
  for (const YardimSayfasi& sayfa : sayfalar_) {
    auto* oge = new QListWidgetItem(sayfa.baslik, dizin_);
    oge->setData(Qt::UserRole, sayfa.kelime);
    oge->setSizeHint(QSize(0, fontMetrics().height() + 10));
  }
  metin_->setSearchPaths({YardimDizini().path()});
  metin_->setOpenExternalLinks(false);
  dizin_->setObjectName("dizin");

  auto* sol = new QWidget(this);
  auto* solDuzen = new QVBoxLayout(sol);
  solDuzen->setContentsMargins(0, 0, 0, 0);
  solDuzen->addWidget(aranan_);
  solDuzen->addWidget(dizin_, 1);
  auto* bolme = new QSplitter(this);
  bolme->setChildrenCollapsible(false);
  bolme->addWidget(sol);
  bolme->addWidget(metin_);
  bolme->setSizes({260, PencereBoyu.width() - 260});
  auto* duzen = new QVBoxLayout(this);
  duzen->setContentsMargins(12, 12, 12, 10);
  duzen->addWidget(bolme, 1);
  auto* ipucu = new QLabel(QStringLiteral("<b>Ctrl+F</b>&nbsp;Ara&nbsp;&nbsp; <b>Tab</b>&nbsp;Dizin, sayfa&nbsp;&nbsp; "
                                          "<b>Alt+Sol</b>&nbsp;Geri&nbsp;&nbsp; <b>Esc</b>&nbsp;Kapat"),
                           this);
  ipucu->setProperty("soluk", true);
  duzen->addWidget(ipucu);

  aranan_->installEventFilter(this);
  connect(aranan_, &QLineEdit::textChanged, this, &yardim::Suz);
  connect(dizin_, &QListWidget::currentItemChanged, this, &yardim::SayfaGoster);
  // A link was followed.
  connect(metin_, &QTextBrowser::sourceChanged, this, [this](const QUrl& yer) {
    const QSignalBlocker sus(dizin_);
    const auto sayfa = std::ranges::find(sayfalar_, SayfaKelimesi(yer), &YardimSayfasi::kelime);
    if (sayfa != sayfalar_.end()) dizin_->setCurrentRow(int(sayfa - sayfalar_.begin()));
  });
  connect(dizin_, &QListWidget::itemActivated, this, [this] { metin_->setFocus(); });
}

QString yardim::Kelime() const {
  return SayfaKelimesi(metin_->source());
}

void yardim::Ac(const QString& kelime) {
  aranan_->clear();
  const auto yer = std::ranges::find(sayfalar_, kelime, &YardimSayfasi::kelime);
  dizin_->setCurrentRow(yer == sayfalar_.end() ? 0 : int(yer - sayfalar_.begin()));
  SayfaGoster();
  metin_->setFocus();
}

void yardim::SayfaGoster() {
  const QListWidgetItem* oge = dizin_->currentItem();
  if (oge == nullptr) return;
  metin_->setSource(QUrl(oge->data(Qt::UserRole).toString() + ".html"));
  if (const QString aranan = aranan_->text().trimmed(); !aranan.isEmpty()) metin_->find(aranan);
}

// Pages whose caption or text holds what is typed.
void yardim::Suz() {
  const QString aranan = TurkceKucuk(aranan_->text().trimmed());
  QListWidgetItem* ilk = nullptr;
  for (int sira = 0; sira < dizin_->count(); ++sira) {
    QListWidgetItem* oge = dizin_->item(sira);
    if (!oge->data(SayfaMetni).isValid()) {
      QTextDocument sayfa;
      sayfa.setHtml(HamSayfa(oge->data(Qt::UserRole).toString()));
      oge->setData(SayfaMetni, TurkceKucuk(oge->text() + " " + sayfa.toPlainText()));
    }
    const bool uyar = aranan.isEmpty() || oge->data(SayfaMetni).toString().contains(aranan);
    oge->setHidden(!uyar);
    if (uyar && ilk == nullptr) ilk = oge;
  }
  const QListWidgetItem* simdiki = dizin_->currentItem();
  if (ilk != nullptr && (simdiki == nullptr || simdiki->isHidden())) dizin_->setCurrentItem(ilk);
  SayfaGoster();
}

void yardim::keyPressEvent(QKeyEvent* olay) {
  if (olay->matches(QKeySequence::Find)) {
    aranan_->setFocus();
    aranan_->selectAll();
  } else {
    QDialog::keyPressEvent(olay);
  }
}

bool yardim::eventFilter(QObject* nesne, QEvent* olay) {
  if (olay->type() != QEvent::KeyPress) return QDialog::eventFilter(nesne, olay);
  switch (static_cast<QKeyEvent*>(olay)->key()) {
    case Qt::Key_Down:
      dizin_->setFocus();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      metin_->setFocus();
      return true;
    default:
      return false;
  }
}

yardim& YardimGoster(const QString& kelime) {
  static QPointer<yardim> acik;
  QWidget* ust = OndekiPencere();
  if (ust == acik) ust = ust == nullptr ? nullptr : ust->parentWidget();
  // A window that does not belong to the dialog in front would get no keys.
  const bool kapaniyor = acik != nullptr && !acik->isVisible();
  if (acik != nullptr && (kapaniyor || acik->parentWidget() != ust)) delete acik;
  if (acik == nullptr) acik = new yardim(ust);
  acik->Ac(kelime);
  acik->show();
  acik->raise();
  acik->activateWindow();
  return *acik;
}

void YardimTusuKur(QApplication& uygulama) {
  static QPointer<YardimTusu> kurulu;
  if (kurulu != nullptr) return;
  kurulu = new YardimTusu(&uygulama);
  uygulama.installEventFilter(kurulu);
}

}  // namespace belvani
