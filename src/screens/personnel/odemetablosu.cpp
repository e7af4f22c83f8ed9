#include "screens/personnel/odemetablosu.h"

#include <QVBoxLayout>

namespace belvani {
namespace {

constexpr int AdEni = 190;
constexpr int TutarEni = 132;
constexpr double EnCokOdeme = 99'999'999'999.9999;  // five of them stay far inside what an amount can be

constexpr std::array<const char*, std::size(OdemeKolonlari)> KolonAdlari{"brut", "kesinti", "net", "ozel", "odenen"};
constexpr std::string_view ToplamAdlari[] = {OdemeToplamEtiketi};

using TabloKolonu = SatirKolonu<OdemeSatiri>;

TabloKolonu OdemeKolonu(std::size_t k, int paraonda) {
  return UyeKolonuYap<OdemeSatiri>(KolonAdlari[k], OdemeKolonlari[k].data(),
                                   TutarEni, [k](auto& satir) -> auto& { return satir[k]; },
                                   {.enCok = EnCokOdeme, .ondalik = paraonda});
}

// Not typed, and shown even when it is zero.
TabloKolonu ToplamKolonu(std::size_t k, int paraonda) {
  return {'b', KolonAdlari[k], OdemeKolonlari[k].data(), TutarEni,
          [=](const OdemeSatiri& satir, std::size_t) { return TutarMetni(satir[k], paraonda); }};
}

std::vector<TabloKolonu> OdemeTablosuKolonlari(std::span<const std::string_view> adlar,
                                               TabloKolonu (*yap)(std::size_t, int), int paraonda) {
  std::vector<TabloKolonu> kolonlar{AdKolonu<OdemeSatiri>("Ödemeler", AdEni, adlar)};
  for (std::size_t k = 0; k < KolonAdlari.size(); ++k) kolonlar.push_back(yap(k, paraonda));
  return kolonlar;
}

}  // namespace

OdemeTablosu::OdemeTablosu(Bildirim& bildirim, int paraonda, QWidget* ust)
    : QWidget(ust),
      liste_(new dclist(bildirim, this)),
      toplam_(new dclist(bildirim, this)),
      odemeler_(*liste_, OdemeTablosuKolonlari(OdemeSatirlari, OdemeKolonu, paraonda)),
      toplamlar_(*toplam_, OdemeTablosuKolonlari(ToplamAdlari, ToplamKolonu, paraonda)) {
  liste_->setObjectName("odemeler");
  toplam_->setObjectName("toplam");
  liste_->Editable(true);
  liste_->YeniSatirli(false);
  liste_->HucreDegisti = [this](int, const QString&) { ToplamiGoster(); };
  liste_->SatirSil = [this](int satir) {
    HucreyiBosalt(satir);
    return false;
  };
  auto* duzen = new QVBoxLayout(this);
  duzen->setContentsMargins(0, 0, 0, 0);
  duzen->setSpacing(2);
  duzen->addWidget(liste_);
  duzen->addWidget(toplam_);
  ToplamiAltaDiz();
  Bosalt();
}

// The columns of both stand under each other, whatever width their user gives them.
void OdemeTablosu::ToplamiAltaDiz() {
  liste_->horizontalHeader()->setSectionsClickable(false);
  toplam_->horizontalHeader()->hide();
  toplam_->setFocusPolicy(Qt::NoFocus);
  toplam_->setSelectionMode(QAbstractItemView::NoSelection);
  QFont kalin = toplam_->font();
  kalin.setBold(true);
  toplam_->setFont(kalin);
  connect(liste_->horizontalHeader(), &QHeaderView::sectionResized, toplam_,
          [this](int kolon, int, int en) { toplam_->setColumnWidth(kolon, en); });
  for (dclist* liste : {liste_, toplam_}) {
    SatirlaraYerAc(*liste, liste == liste_ ? int(std::size(OdemeSatirlari)) : 1);
    liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    liste->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }
  liste_->setFixedHeight(liste_->minimumHeight());
  toplam_->setFixedHeight(toplam_->minimumHeight() - toplam_->horizontalHeader()->sizeHint().height());
}

IbranameOdemeleri OdemeTablosu::Oku() const {
  IbranameOdemeleri odemeler;
  for (std::size_t i = 0; i < odemeler.satirlar.size(); ++i) odemeler.satirlar[i] = odemeler_.Oku(i, {});
  return odemeler;
}

void OdemeTablosu::Bosalt() {
  odemeler_.Doldur(std::vector<OdemeSatiri>(std::size(OdemeSatirlari)));
  liste_->HucreyeGit(0, KolonAdlari.front());
  ToplamiGoster();
}

void OdemeTablosu::Koy(std::size_t satir, const OdemeSatiri& odeme) {
  odemeler_.Goster(satir, odeme);
  ToplamiGoster();
}

void OdemeTablosu::HucreyiBosalt(int satir) {
  const bool tutar = liste_->CurrentCol() > 0;  // the names stand in the first column
  if (tutar) liste_->Text(satir, liste_->CurrentCol(), {});
  ToplamiGoster();
}

void OdemeTablosu::ToplamiGoster() {
  toplamlar_.Doldur({Oku().Toplam()});
}

}  // namespace belvani
