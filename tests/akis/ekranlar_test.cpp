// Every screen of the registry in the main window: what a user may expect of any of them.
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>

#include "app/anaortam.h"
#include "personnel/aile.h"
#include "personnel/kart.h"
#include "ui/dclist.h"

namespace belvani::test {
namespace {

// A company with three people, the first with a family.
struct KisiliOrtam : AnaOrtam {
  KisiliOrtam() {
    for (const char* kod : {"001", "002", "003"}) {
      Sicil s;
      s.kod = kod;
      s.adi = "Işıl";
      s.soyadi = "Çağlar";
      s.ucret = Tutar(1250);
      s.girtar = Tarih(2007, 3, 1);
      EXPECT_TRUE(KartKaydet(oturum, {.simdi = s}));
    }
    Esco cocuk;
    cocuk.kod = "001";
    cocuk.adi = "Gökçe";
    EXPECT_TRUE(AileKaydet(oturum, {.simdi = cocuk}));
    pencere->resize(1366, 728);
    bildirim.Al();
  }
  // A modal one too, so that it can be looked at.
  Form* EkranAc(std::string_view kelime) {
    const EkranKaydi& kayit = Kayit(kelime);
    oturum.PencereTip = kayit.pencereTip;
    pencere->SerbestGoster(kayit.yap({baglam, parametreler}));
    OneAl();
    return Onde<Form>();
  }
  void SilinenleriAt() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
};

std::vector<std::string> Kelimeler() {
  std::vector<std::string> kelimeler;
  for (const EkranKaydi& kayit : Ekranlar())
    if (kayit.yap != nullptr) kelimeler.emplace_back(GirisAdi(kayit));
  return kelimeler;
}

class EkranTest : public testing::TestWithParam<std::string> {
 protected:
  Form* Ac() { return ortam.EkranAc(GetParam()); }
  // Goes around with Tab, the person's code typed first where the screen asks for one; gives what had the keyboard.
  std::vector<QWidget*> TabTuru(const Form& form, std::vector<QWidget*>& alanlar);
  void KodYaz(const Form& form) {
    for (const auto& d : form.Denetimler())
      if (d->Satir().ek.anahtar && d->Satir().tanim.ad == "kod" && d->Odak()->hasFocus()) ortam.Yaz("001");
  }

  KisiliOrtam ortam;
};

// What is seen of the widget's inside, but for the inner parts of editors and lists.
std::vector<QWidget*> Gorunenler(const QWidget& ust) {
  std::vector<QWidget*> parcalar;
  for (QObject* nesne : ust.children()) {
    auto* parca = qobject_cast<QWidget*>(nesne);
    if (parca == nullptr || !parca->isVisible() || parca->isWindow()) continue;
    parcalar.push_back(parca);
    const bool ic = qobject_cast<QAbstractScrollArea*>(parca) != nullptr && parca->objectName() != "govde";
    if (ic || qobject_cast<QComboBox*>(parca) || qobject_cast<QLineEdit*>(parca)) continue;
    const auto icindekiler = Gorunenler(*parca);
    parcalar.insert(parcalar.end(), icindekiler.begin(), icindekiler.end());
  }
  return parcalar;
}

std::string Tanit(const QWidget& parca) {
  const auto* etiket = qobject_cast<const QLabel*>(&parca);
  const auto* dugme = qobject_cast<const QAbstractButton*>(&parca);
  const QString metin = etiket != nullptr ? etiket->text() : dugme != nullptr ? dugme->text() : parca.objectName();
  return std::string(parca.metaObject()->className()) + " \"" + Utf8(metin) + "\"";
}

bool YaziSigar(const QWidget& parca) {
  if (const auto* etiket = qobject_cast<const QLabel*>(&parca); etiket != nullptr && etiket->wordWrap())
    return etiket->heightForWidth(etiket->width()) <= etiket->height();
  if (qobject_cast<const QAbstractScrollArea*>(&parca) || qobject_cast<const QComboBox*>(&parca)) return true;
  const bool yazili = qobject_cast<const QLabel*>(&parca) || qobject_cast<const QAbstractButton*>(&parca);
  const QSize gereken = yazili ? parca.sizeHint() : parca.minimumSizeHint();
  return gereken.width() <= parca.width() && gereken.height() <= parca.height();
}

// One of several fields of the same kind, as its name says by the number at its end.
bool DiziUyesi(const QWidget* parca) {
  return parca != nullptr && !parca->objectName().isEmpty() && parca->objectName().back().isDigit();
}

// Labels of fields that stand in the group a second time.
Iletiler IkinciEtiketler(const QGroupBox& kutu) {
  QSet<QString> gorulen;
  Iletiler ikinciler;
  for (const QWidget* parca : Gorunenler(kutu)) {
    const auto* etiket = qobject_cast<const QLabel*>(parca);
    const auto* kutucuk = qobject_cast<const QCheckBox*>(parca);
    const bool alanin = kutucuk != nullptr || (etiket != nullptr && etiket->buddy() != nullptr);
    const bool dizide = DiziUyesi(etiket != nullptr ? etiket->buddy() : parca);
    const QString metin = !alanin || dizide ? QString() : kutucuk != nullptr ? kutucuk->text() : etiket->text();
    if (!metin.isEmpty() && gorulen.contains(metin)) ikinciler.push_back(Utf8(metin));
    gorulen.insert(metin);
  }
  return ikinciler;
}

TEST_P(EkranTest, NothingIsCutOffOrCovered) {
  const Form* form = Ac();
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  const QWidget* pencere = form->parentWidget();
  EXPECT_TRUE(ortam.Alan().viewport()->rect().contains(pencere->geometry()));
  const auto* govde = form->findChild<QScrollArea*>("govde");
  ASSERT_NE(govde, nullptr);
  EXPECT_EQ(govde->horizontalScrollBar()->maximum() + govde->verticalScrollBar()->maximum(), 0) << "it must scroll";
  const auto parcalar = Gorunenler(*form);
  for (std::size_t i = 0; i < parcalar.size(); ++i) {
    const QWidget& parca = *parcalar[i];
    EXPECT_TRUE(YaziSigar(parca)) << Tanit(parca) << " has " << parca.width() << "x" << parca.height();
    EXPECT_TRUE(parca.parentWidget()->rect().contains(parca.geometry())) << Tanit(parca);
    for (std::size_t j = i + 1; j < parcalar.size(); ++j)
      if (parcalar[j]->parentWidget() == parca.parentWidget()) {
        EXPECT_FALSE(parcalar[j]->geometry().intersects(parca.geometry()))
            << Tanit(parca) << " and " << Tanit(*parcalar[j]);
      }
    if (auto* liste = qobject_cast<dclist*>(parcalar[i]))
      for (int k = 0; k < liste->Model().columnCount(); ++k) {
        const QString baslik = liste->Model().Kolonlar()[std::size_t(k)].baslik;
        EXPECT_TRUE(liste->isColumnHidden(k) ||
                    liste->horizontalHeader()->fontMetrics().horizontalAdvance(baslik) < liste->columnWidth(k))
            << Utf8(baslik);
      }
  }
  for (const QGroupBox* kutu : form->findChildren<QGroupBox*>())
    EXPECT_EQ(IkinciEtiketler(*kutu), Iletiler{}) << Utf8(kutu->title());
}

std::vector<QWidget*> EkranTest::TabTuru(const Form& form, std::vector<QWidget*>& alanlar) {
  KodYaz(form);
  std::vector<QWidget*> duraklar{QApplication::focusWidget()};
  while (duraklar.size() < 200) {
    ortam.Bas(Qt::Key_Tab);
    QWidget* odak = QApplication::focusWidget();
    if (odak == duraklar.front()) return duraklar;
    if (odak == nullptr || !form.isAncestorOf(odak) || std::ranges::find(duraklar, odak) != duraklar.end()) break;
    if (duraklar.size() == 1)  // once the person has come up
      for (const auto& d : form.Denetimler())
        // Some are in the walk only where another field asks for them.
        if (d->Odak()->isVisible() && d->Odak()->isEnabled() && !d->Satir().ek.kapali &&
            (d->Odak()->focusPolicy() & Qt::TabFocus) != 0 && d->Satir().tanim.ad != "tahsisno")
          alanlar.push_back(d->Odak());
    duraklar.push_back(odak);
  }
  ADD_FAILURE() << "Tab does not come back: after " << Tanit(*duraklar.back()) << " it is on " << ortam.Odak();
  return duraklar;
}

TEST_P(EkranTest, TabGoesThroughAllFieldsAndEscLeavesFromEach) {
  const Form* form = Ac();
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  ASSERT_TRUE(form->isAncestorOf(QApplication::focusWidget()));
  std::vector<QWidget*> alanlar;
  const auto duraklar = TabTuru(*form, alanlar);
  std::vector<QWidget*> gezilen;
  for (QWidget* durak : duraklar)
    if (std::ranges::find(alanlar, durak) != alanlar.end()) gezilen.push_back(durak);
  const auto adlar = [](const std::vector<QWidget*>& parcalar) {
    QStringList sira;
    for (const QWidget* p : parcalar) sira += p->objectName();
    return Utf8(sira.join(' '));
  };
  EXPECT_EQ(adlar(gezilen), adlar(alanlar));
  const bool listeli = form->findChild<QAbstractItemView*>() != nullptr;
  EXPECT_TRUE(listeli || alanlar.empty() || duraklar.front() == alanlar.front())
      << "it begins on " << Tanit(*duraklar.front());

  const std::size_t durakSayisi = duraklar.size();
  ortam.pencere->EkranlariKapat();
  ortam.bildirim.Al();
  for (std::size_t i = 0; i < durakSayisi; ++i) {
    const QPointer<Form> acik = Ac();
    ASSERT_NE(acik, nullptr) << "does not open again";
    acik->setUpdatesEnabled(false);  // painting would take most of the time
    if (i > 0) KodYaz(*acik);
    for (std::size_t adim = 0; adim < i; ++adim) ortam.Bas(Qt::Key_Tab);
    const std::string durak = ortam.Odak();
    ortam.Bas(Qt::Key_Escape);
    ortam.SilinenleriAt();
    if (acik != nullptr && durak == "dclist1")
      ortam.Bas(Qt::Key_Escape);  // from some lists it goes to the fields first
    ortam.SilinenleriAt();
    EXPECT_EQ(acik, nullptr) << "Esc does not leave from " << durak;
    EXPECT_EQ(ortam.bildirim.Al(), Iletiler{}) << durak;
    EXPECT_NE(QApplication::focusWidget(), nullptr);
    ortam.pencere->EkranlariKapat();
  }
}

// On a display of 1920x1080 at 200 %, with a bar of the desktop at its edge.
TEST_P(EkranTest, ASmallDisplayShowsWhatHasTheKeyboard) {
  ortam.pencere->resize(960, 500);
  const Form* form = Ac();
  ASSERT_NE(form, nullptr);
  const QRect alan = ortam.Alan().viewport()->rect();
  EXPECT_TRUE(alan.contains(form->parentWidget()->geometry())) << "the window is wholly in view";
  for (const auto* dugme : form->findChildren<QAbstractButton*>())
    if (dugme->isVisible() && dugme->parentWidget() == form) {
      EXPECT_TRUE(form->rect().contains(dugme->geometry())) << Tanit(*dugme);
    }
  std::vector<QWidget*> alanlar;
  KodYaz(*form);
  for (int adim = 0; adim < 200; ++adim) {
    ortam.Bas(Qt::Key_Tab);
    const QWidget* odak = QApplication::focusWidget();
    if (odak == nullptr || std::ranges::find(alanlar, odak) != alanlar.end()) break;
    alanlar.push_back(const_cast<QWidget*>(odak));
    const QRect gorunen = odak->visibleRegion().boundingRect();
    const bool tam = gorunen.contains(odak->rect());
    const bool buyuk = gorunen.width() >= 200 && gorunen.height() >= 60;  // a list, a page
    EXPECT_TRUE(tam || buyuk) << Tanit(*odak) << " shows " << gorunen.width() << "x" << gorunen.height() << " of "
                              << odak->width() << "x" << odak->height();
  }
}

// The cell may be refused or its row not be saved: the screen goes all the same.
TEST_P(EkranTest, ClosesOverAnOpenCell) {
  for (const bool programBiter : {false, true}) {
    const QPointer<Form> form = Ac();
    KodYaz(*form);
    ortam.Bas(Qt::Key_Tab);
    const auto* liste = form->findChild<dclist*>();
    if (liste == nullptr || !liste->isEnabled()) return;
    for (int adim = 0; adim < 50 && !liste->hasFocus(); ++adim) ortam.Bas(Qt::Key_Tab);
    ASSERT_TRUE(liste->hasFocus());
    ortam.Bas(Qt::Key_Return);
    if (liste->hasFocus()) ortam.Bas(Qt::Key_Insert);
    if (form == nullptr || liste->hasFocus() || !liste->isAncestorOf(QApplication::focusWidget())) return;  // to read
    ortam.Yaz("7");
    programBiter ? ortam.Yeniden() : void(ortam.Alan().activeSubWindow()->close());
    ortam.SilinenleriAt();
    EXPECT_EQ(form, nullptr);
    ortam.OneAl();
    EXPECT_NE(QApplication::focusWidget(), nullptr);
  }
}

INSTANTIATE_TEST_SUITE_P(Hepsi, EkranTest, testing::ValuesIn(Kelimeler()), [](const auto& p) { return p.param; });

TEST(Ekranlar, ACellOpenWhileItsScreenClosesIsTaken) {
  KisiliOrtam ortam;
  ortam.EkranAc("escofrm");
  ortam.Yaz("001\n");
  ASSERT_NE(dynamic_cast<dclist*>(QApplication::focusWidget()), nullptr);
  ortam.Yaz("10000000146");
  ortam.Alan().activeSubWindow()->close();
  ASSERT_EQ(AileOku(ortam.oturum, "001").size(), 1u);
  EXPECT_EQ(AileOku(ortam.oturum, "001")[0].tcno, "10000000146");
}

// With all lines that come and go in sight, the payroll screen stands whole in the window of a small display.
TEST(Ekranlar, ThePayrollScreenHasRoomForItsWarnings) {
  KisiliOrtam ortam;
  ortam.oturum.depo.db.IcMotor().Calistir("update sicil set sakatdrc = 1, tasno = 'YOK' where kod = '001'");
  const Form* form = ortam.EkranAc("brdhazir");
  ASSERT_NE(form, nullptr);
  ortam.Yaz("001\n");
  QStringList metinler;
  for (const QWidget* parca : Gorunenler(*form))
    if (const auto* etiket = qobject_cast<const QLabel*>(parca)) {
      metinler += etiket->text();
      EXPECT_TRUE(YaziSigar(*etiket)) << Tanit(*etiket);
    }
  for (const char* soz : {"SSK'dan muaf", "Sendika tanımlı değil"})
    EXPECT_EQ(metinler.filter(QString::fromUtf8(soz)).size(), 1) << soz;
  const auto* govde = form->findChild<QScrollArea*>("govde");
  EXPECT_EQ(govde->horizontalScrollBar()->maximum() + govde->verticalScrollBar()->maximum(), 0) << "it must scroll";
}

TEST(Ekranlar, TitlesAreUnique) {
  KisiliOrtam ortam;
  QMap<QString, QString> basliklar;  // whose each is; two entries of the menu may open one screen
  for (const std::string& kelime : Kelimeler()) {
    const Form* form = ortam.EkranAc(kelime);
    const QString baslik = form->windowTitle();
    EXPECT_FALSE(baslik.isEmpty());
    EXPECT_EQ(Utf8(basliklar.value(baslik, form->Kelime())), Utf8(form->Kelime())) << kelime << ": " << Utf8(baslik);
    basliklar[baslik] = form->Kelime();
    ortam.pencere->EkranlariKapat();
  }
}

}  // namespace
}  // namespace belvani::test
