// The round trip of a record: what a screen shows and saves untouched stays as it was stored, byte for byte, and what
// is typed into a field comes back from the store as it was typed. For every screen of the table below.
#include <QComboBox>
#include <QRadioButton>
#include <filesystem>
#include <random>

#include "app/anaortam.h"
#include "core/dosya.h"
#include "core/saat.h"
#include "core/sayi.h"
#include "core/surum.h"
#include "core/tables/tablolar.h"
#include "ui/dclist.h"

namespace belvani::test {
namespace {

namespace fs = std::filesystem;

struct GidisDonusEkrani {
  const char* kelime;
  const char* anahtar = "";  // typed first
  // Fields that the screen asks for and does not keep in a record, or that another field decides.
  std::vector<std::string_view> tutulmayan = {};
  std::vector<std::string_view> bosSecilmez = {};  // lists whose first choice says that nothing is chosen
  bool hucreTutulur = true;                        // what is typed into its list is kept
};

void PrintTo(const GidisDonusEkrani& e, std::ostream* akis) {
  *akis << e.kelime;
}

const GidisDonusEkrani Ekranlari[] = {
    {"perkart", "001\n"},
    {"nufus", "001\n"},
    {"escofrm", "001\n"},
    {"percik", "001\n", {"girtar", "adr1", "adr2", "tel", "duzcerceve"}, {"cikiskodu"}, false},
    {"pergir",
     "001\n",
     {"tur", "islemTarihi", "emekliTercihi", "sandik0", "sandik1", "sandik2", "sandikNo0", "sandikNo1", "sandikNo2",
      "sandikAyligi0", "sandikAyligi1", "sandikAyligi2", "eskiUnvan", "eskiAdres", "eskiIl", "eskiIlce", "vergiNo"}},
    {"firbil"},
    {"araci"},
    {"muhbil"},
    {"yyasor"},
    {"agifrm"},
    {"gvtablo"},
    {"kanun"},
    {"kykm", "", {"grup"}},
    {"indfrm"},
    {"yrdisim"},
    {"fazmes"},
    {"sendtan", "S1\n"},
    {"heskod"},
    {"meskod"},
    {"sabpu"},
    {"kidempar"},
    {"ihbsure"},
    {"perdev", "001\n"},
    {"percari", "001\n"},
    {"kartxfrm", "001\n", {"kartyili"}},
};

// Values that a column may hold; the same for the same seed.
class RasgeleDeger {
 public:
  explicit RasgeleDeger(unsigned tohum) : sayilar_(tohum) {}

  Deger Uret(const AlanTanimi& alan) {
    // What rules narrow further than the type does.
    if (alan.ad == "firmayil") return Sec(1990, 2100);
    if (alan.ad == "hesap") return std::string("Personel");
    if (alan.ad == "tasno") return std::string(Sec(0, 1) == 0 ? "S1" : "S2");
    if (alan.ad == "kanun") return std::to_string(Sec(10'000, 99'999));
    if (alan.ad == "girtar") return Tarih(2008, int(Sec(1, 12)), int(Sec(1, 28)));
    if (alan.ad == "ciktar") return Tarih(2009, int(Sec(7, 12)), int(Sec(1, 28)));
    switch (alan.tip) {
      case AlanTipi::Metin:
        return Metin(alan.boyut);
      case AlanTipi::Byte:
        return Tam(alan, 255);
      case AlanTipi::Kisa:
        return Tam(alan, 32'767);
      case AlanTipi::Uzun:
        return Tam(alan, 2'000'000'000);
      case AlanTipi::Tutar:
        return Tutar::Hamdan(Sec(0, 99'999'999'999));
      case AlanTipi::Tek:
        return alan.sinir.sira
                   ? double(Sec(0, std::int64_t(alan.sinir.enCok)))
                   : double(float(double(Sec(0, std::int64_t(std::min(alan.sinir.enCok, 99.0) * 1000))) / 1000));
      case AlanTipi::Tarih:
        return Tarih(int(Sec(1950, 2009)), int(Sec(1, 12)), int(Sec(1, 28)));
      case AlanTipi::Mantik:
        return bool(Sec(0, 1));
      case AlanTipi::Ikili:
        return Baytlar{1, 2, 3};
    }
    return Null{};
  }
  std::int64_t Sec(std::int64_t enAz, std::int64_t enCok) {
    return std::uniform_int_distribution<std::int64_t>(enAz, enCok)(sayilar_);
  }

 private:
  Deger Tam(const AlanTanimi& alan, double tipinEnCogu) {
    return Sec(std::int64_t(std::max(0.0, alan.sinir.enAz)), std::int64_t(std::min(alan.sinir.enCok, tipinEnCogu)));
  }
  // With blanks at its ends at times, as an earlier version has left them.
  std::string Metin(int enUzun) {
    static const char* const harfler[] = {"a", "b", "ç", "ğ", "ı", "i", "Ö", "Ş",
                                          "Ü", "Z", "0", "7", " ", "'", "&", "-"};
    std::string metin;
    for (auto kalan = Sec(0, enUzun); kalan > 0; --kalan) metin += harfler[Sec(0, 15)];
    return metin;
  }

  std::mt19937 sayilar_;
};

std::string Yazilisi(Motor& motor, const TabloTanimi& tablo) {
  std::string sql;
  for (const AlanTanimi& alan : tablo.alanlar)
    sql += (sql.empty() ? "select quote(" : " || '|' || quote(") + std::string(alan.ad) + ")";
  const auto komut = motor.Hazirla(sql + " from " + std::string(tablo.ad));
  std::vector<std::string> satirlar;
  while (komut->Adim()) satirlar.emplace_back(komut->Metin(0));
  std::sort(satirlar.begin(), satirlar.end());
  std::string yazilis;
  for (const std::string& satir : satirlar) yazilis += satir + "\n";
  return yazilis;
}

// All that is stored, by tables and files.
using Saklanan = std::map<std::string, std::string>;

class GidisDonus : public testing::TestWithParam<GidisDonusEkrani> {
 protected:
  void Doldur(unsigned tohum);
  void Satir(RasgeleDeger& degerler, std::string_view tablo, const std::map<std::string_view, Deger>& belli);
  Form* Ac() {
    ortam.pencere->EkranlariKapat();
    ortam.OneAl();
    const EkranKaydi& kayit = AnaOrtam::Kayit(GetParam().kelime);
    ortam.oturum.PencereTip = kayit.pencereTip;
    ortam.pencere->SerbestGoster(kayit.yap({ortam.baglam, ortam.parametreler}));
    ortam.OneAl();
    Form* form = ortam.Onde<Form>();
    form->setUpdatesEnabled(false);  // painting would take most of the time
    ortam.Yaz(GetParam().anahtar);
    return form;
  }
  Saklanan Hepsi() {
    Saklanan hepsi;
    for (const TabloTanimi& tablo : Tablolar())
      hepsi[std::string(tablo.ad)] = Yazilisi(ortam.oturum.depo.db.IcMotor(), tablo);
    for (const auto& g : fs::recursive_directory_iterator(ortam.oturum.DataPath))
      if (g.is_regular_file() && !g.path().filename().string().starts_with("tolu.dat"))
        hepsi[g.path()] = DosyaOku(g.path()).value_or("");
    return hepsi;
  }
  // Why something was not saved; warnings tell of what was.
  Iletiler Retler() {
    Iletiler retler = ortam.bildirim.Al();
    std::erase_if(retler, [](const std::string& ileti) { return ileti.starts_with("Uyarı: "); });
    return retler;
  }
  void AlaniDene(std::size_t sira, RasgeleDeger& degerler);
  void HucreyiDene(int kolon, RasgeleDeger& degerler);
  void KaydetVeBak(std::size_t sira);

  const SabitGun gun{Tarih(2007, 2, 1)};  // before anybody is hired
  AnaOrtam ortam;
};

// One record of a table; columns that are not named get a value or, now and then, none.
void GidisDonus::Satir(RasgeleDeger& degerler, std::string_view tablo, const std::map<std::string_view, Deger>& belli) {
  const TabloTanimi& tanim = *TabloBul(tablo);
  std::string adlar, yerler;
  std::vector<Deger> satir;
  for (const AlanTanimi& alan : tanim.alanlar) {
    if (alan.nitelik == AlanNiteligi::Otomatik) continue;
    adlar += (adlar.empty() ? "" : ", ") + std::string(alan.ad);
    yerler += yerler.empty() ? "?" : ", ?";
    const auto i = belli.find(alan.ad);
    const bool bos = alan.nitelik != AlanNiteligi::Zorunlu && degerler.Sec(0, 9) == 0;
    satir.push_back(i != belli.end() ? i->second : bos ? Deger(Null{}) : degerler.Uret(alan));
  }
  const auto komut = ortam.oturum.depo.db.IcMotor().Hazirla("insert into " + std::string(tablo) + " (" + adlar +
                                                            ") values (" + yerler + ")");
  for (std::size_t i = 0; i < satir.size(); ++i) komut->Bagla(int(i) + 1, satir[i]);
  komut->Calistir();
}

void GidisDonus::Doldur(unsigned tohum) {
  using I = std::int64_t;
  RasgeleDeger degerler(tohum);
  Motor& motor = ortam.oturum.depo.db.IcMotor();
  for (const char* tablo :
       {"firma", "sicil", "kimlik", "esco", "arac", "sendika", "indir", "muaf", "dvr", "cari", "brd"})
    motor.Calistir(std::string("delete from ") + tablo);
  Satir(degerler, "firma",
        {{"firmayil", I(2009)},
         {"firmaay", degerler.Sec(1, 12)},
         {"ondeger", std::string("Personel")},
         {"tersfirma", false},
         {"versiyon", ProgramVersiyonu().Sayi()}});
  const std::string kod = "001";
  Satir(degerler, "sicil",
        {{"kod", kod},
         {"girtar", Tarih(2007, 3, 1)},
         {"agi", true},
         {"ciktar", Tarih(2009, 6, 30)},
         {"tur", degerler.Sec(0, 1)},
         {"ucrettipi", degerler.Sec(0, 1)},
         {"cikiskodu", degerler.Sec(1, 34)},
         {"cikissebebi", std::string("İstifa")},
         {"hesap", std::string("Yok")},
         {"tasno", std::string("S9")}});
  Satir(degerler, "kimlik", {{"kod", kod}});
  for (I yakinlik = 1; yakinlik <= 4; ++yakinlik) Satir(degerler, "esco", {{"kod", kod}, {"yakinlik", yakinlik}});
  Satir(degerler, "dvr", {{"kod", kod}, {"yil", I(2009)}, {"yilkod", "2009" + kod}});
  Satir(degerler, "cari", {{"kod", kod}, {"tarih", Tarih(2009, 5, 1)}, {"islem", I('B')}});
  Satir(degerler, "brd",
        {{"kod", kod},
         {"yil", I(2009)},
         {"ay", I(3)},
         {"no", I(1)},
         {"ogv", Tutar(1)},
         {"katki", Tutar(1)}});  // what an upgrade would have filled
  Satir(degerler, "arac", {{"kod", std::string("000")}});
  for (const char* sendika : {"S1", "S2"}) Satir(degerler, "sendika", {{"kod", std::string(sendika)}});
  for (I no = 1; no <= 3; ++no) Satir(degerler, "indir", {{"no", no}});
  for (I no = 1; no <= 11; ++no) Satir(degerler, "muaf", {{"no", no}});
  ASSERT_TRUE(FirmaYukle(ortam.oturum));
  ASSERT_TRUE(ortam.parametreler.firma.Yukle());
  ortam.Yeniden();
}

TEST_P(GidisDonus, UntouchedAndSavedItIsAsItWas) {
  Ac();
  ortam.Bas(Qt::Key_F5);  // makes the files that a new company has not got yet
  for (unsigned tohum = 1; tohum <= 6 && !HasFailure(); ++tohum) {
    SCOPED_TRACE(tohum);
    Doldur(tohum);
    const Saklanan once = Hepsi();
    Ac();
    ortam.bildirim.Al();
    ortam.Bas(Qt::Key_F5);
    EXPECT_EQ(Retler(), Iletiler{});
    const Saklanan sonra = Hepsi();
    EXPECT_EQ(sonra.size(), once.size());
    for (const auto& [yer, icerik] : once) EXPECT_EQ(sonra.count(yer) == 0 ? "-" : sonra.at(yer), icerik) << yer;
  }
}

// Saves, opens the screen anew, and holds the field against what it showed before the save.
void GidisDonus::KaydetVeBak(std::size_t sira) {
  const auto& denetim = *ortam.Onde<Form>()->Denetimler()[sira];
  const std::string ad(denetim.Satir().tanim.ad);
  const std::string yazilan = MetinDegeri(denetim.Oku());
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Retler(), Iletiler{}) << ad << " = " << yazilan;
  EXPECT_EQ(MetinDegeri(Ac()->Denetimler()[sira]->Oku()), yazilan) << ad;
}

bool Yazilir(const AlanDenetimi& d, const QWidget& odak) {
  const auto* yazi = qobject_cast<const QLineEdit*>(&odak);
  return !d.Satir().ek.kapali && !d.Satir().ek.anahtar && odak.isEnabled() && odak.isVisible() &&
         odak.focusPolicy() != Qt::NoFocus && (yazi == nullptr || !yazi->isReadOnly());
}

std::string Tuslari(const Deger& deger, int ondalik) {
  if (std::holds_alternative<Tarih>(deger)) {
    std::string gun = MetinDegeri(deger);
    std::erase(gun, '.');
    return gun;
  }
  if (std::holds_alternative<std::string>(deger)) return std::get<std::string>(deger);
  std::string sayi = TutarMetni(TutarDegeri(deger), ondalik);
  std::erase(sayi, ',');
  return sayi;
}

void GidisDonus::AlaniDene(std::size_t sira, RasgeleDeger& degerler) {
  AlanDenetimi* d = Ac()->Denetimler()[sira].get();
  if (!Yazilir(*d, *d->Odak())) return;
  const auto odakla = [&] {
    d = Ac()->Denetimler()[sira].get();
    d->Odak()->setFocus(Qt::TabFocusReason);
  };
  if (const auto* liste = qobject_cast<QComboBox*>(d->Odak())) {
    const bool bosSecilmez = std::ranges::count(GetParam().bosSecilmez, d->Satir().tanim.ad) > 0;
    for (int i = bosSecilmez ? 1 : 0, sayi = liste->count(); i < sayi; ++i) {
      odakla();
      ortam.Bas(Qt::Key_Home);
      for (int adim = 0; adim < i; ++adim) ortam.Bas(Qt::Key_Down);
      EXPECT_EQ(qobject_cast<QComboBox*>(d->Odak())->currentIndex(), i);
      KaydetVeBak(sira);
    }
  } else if (xtext* yazi = d->YaziKutusu()) {
    const Deger deger = degerler.Uret(d->Satir().tanim);
    const bool tam = yazi->Onda() == 0 && yazi->TextTip() == xtext::Tip::Sayi;
    const Deger yazilan =
        tam && d->Satir().tanim.tip != AlanTipi::Tutar ? Deger(std::int64_t(SayiDegeri(deger))) : deger;
    odakla();
    d->YaziKutusu()->selectAll();
    ortam.Bas(Qt::Key_Delete);
    ortam.Yaz(Tuslari(yazilan, d->YaziKutusu()->Onda()).c_str());
    ortam.Bas(Qt::Key_Tab);
    KaydetVeBak(sira);
  } else {
    for (int kez = 0; kez < 2; ++kez) {
      odakla();
      ortam.Bas(qobject_cast<QRadioButton*>(d->Odak()) ? Qt::Key_Right : Qt::Key_Space);
      KaydetVeBak(sira);
    }
  }
}

TEST_P(GidisDonus, WhatIsTypedComesBack) {
  Doldur(77);
  RasgeleDeger degerler(78);
  const std::size_t sayi = Ac()->Denetimler().size();
  for (std::size_t sira = 0; sira < sayi; ++sira) {
    const std::string_view ad = ortam.Onde<Form>()->Denetimler()[sira]->Satir().tanim.ad;
    if (std::ranges::find(GetParam().tutulmayan, ad) == GetParam().tutulmayan.end()) AlaniDene(sira, degerler);
  }
}

std::string HucreTuslari(const dclistKolonu& kolon, RasgeleDeger& degerler) {
  // What rules narrow further than the column does.
  if (kolon.ad == "islem") return degerler.Sec(0, 1) == 0 ? "A" : "B";
  if (kolon.ad == "yil") return std::to_string(degerler.Sec(1990, 2008));
  switch (kolon.tip) {
    case dclistKolonu::Tip::Sayi: {
      const double enCok = kolon.enCok > 0 ? std::min(kolon.enCok, 99'999.0) : 99'999;
      const std::string tam = std::to_string(degerler.Sec(1, std::int64_t(enCok) - (kolon.ondalik > 0 ? 1 : 0)));
      return kolon.ondalik > 0 ? tam + "." + std::to_string(degerler.Sec(1, 9)) : tam;
    }
    case dclistKolonu::Tip::Tarih:
      return "1503" + std::to_string(degerler.Sec(1980, 2005));
    case dclistKolonu::Tip::Metin:
    case dclistKolonu::Tip::Secim:
      break;
  }
  return std::string("Iİşğç7").substr(0, kolon.enCok > 0 && kolon.enCok < 6 ? std::size_t(1) : std::string::npos);
}

// Typed into the first row, taken by Enter, saved, and read again.
void GidisDonus::HucreyiDene(int kolon, RasgeleDeger& degerler) {
  const auto liste = [&] { return Ac()->findChild<dclist*>(); };
  const dclistKolonu k = liste()->Model().Kolonlar()[std::size_t(kolon)];
  for (int secim = 0; secim < std::max(1, int(k.secenekler.size())); ++secim) {
    dclist* l = liste();
    if (k.gizli || k.salt || l->isColumnHidden(kolon) || !(l->Model().index(0, kolon).flags() & Qt::ItemIsEditable))
      return;
    l->setFocus();
    l->HucreyeGit(0, k.ad);
    ortam.Bas(Qt::Key_Return);
    QWidget* duzenleyici = QApplication::focusWidget();
    ASSERT_NE(duzenleyici, l) << Utf8(k.ad) << " does not open";
    std::string tuslar;
    if (qobject_cast<QComboBox*>(duzenleyici) != nullptr) {
      ortam.Bas(Qt::Key_Home);
      for (int adim = 0; adim < secim; ++adim) ortam.Bas(Qt::Key_Down);
    } else {
      qobject_cast<QLineEdit*>(duzenleyici)->selectAll();
      tuslar = HucreTuslari(k, degerler);
      ortam.Yaz(tuslar.c_str());
    }
    ortam.Bas(Qt::Key_Return);
    const QString metin = l->Text(0, kolon);
    EXPECT_FALSE(metin.isEmpty()) << Utf8(k.ad) << " = " << tuslar;
    ortam.Bas(Qt::Key_F5);
    EXPECT_EQ(Retler(), Iletiler{}) << Utf8(k.ad) << " = " << tuslar;
    EXPECT_EQ(Utf8(liste()->Text(0, kolon)), Utf8(metin)) << Utf8(k.ad);
  }
}

TEST_P(GidisDonus, WhatIsTypedIntoCellsComesBack) {
  if (!GetParam().hucreTutulur) GTEST_SKIP() << "its list is of the paper alone";
  Doldur(5);
  // One row, which stays the first wherever its values sort it to.
  ortam.oturum.depo.db.IcMotor().Calistir("delete from esco where oto > (select min(oto) from esco)");
  RasgeleDeger degerler(6);
  auto* liste = Ac()->findChild<dclist*>();
  const int sayi =
      liste == nullptr || liste->editTriggers() == QAbstractItemView::NoEditTriggers ? 0 : liste->Model().columnCount();
  for (int kolon = 0; kolon < sayi; ++kolon) HucreyiDene(kolon, degerler);
}

INSTANTIATE_TEST_SUITE_P(Ekranlar, GidisDonus, testing::ValuesIn(Ekranlari),
                         [](const auto& p) { return std::string(p.param.kelime); });

}  // namespace
}  // namespace belvani::test
