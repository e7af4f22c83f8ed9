#include "screens/payroll/yyasor.h"

#include <set>

#include "payroll/parametre/ekrankurallari.h"
#include "payroll/parametre/mevzuatkumesi.h"
#include "screens/payroll/kolonbasliklari.h"
#include "screens/payroll/parametrealani.h"

namespace belvani {
namespace {

constexpr int AdGenisligi = 300;
constexpr int OranGenisligi = 60;
constexpr int ListeBoyu = 300;

// Columns keep a pointer to their name.
const char* KalanAd(const std::string& ad) {
  static std::set<std::string> adlar;
  return adlar.insert(ad).first->c_str();
}

std::vector<SatirKolonu<DalSatiri>> AyKolonlari() {
  std::vector<SatirKolonu<DalSatiri>> kolonlar{
      {'b', "no", "No", 36, [](const DalSatiri& d, std::size_t) { return std::to_string(d.no); }},
      {'m', "ack", "Hesap Türü", AdGenisligi, [](const DalSatiri& d, std::size_t) { return d.ack; }}};
  const auto tarafiEkle = [&](OranSatiri DalSatiri::*taraf, const char* onEk) {
    HerUye<OranSatiri>([&](const auto& uye) {
      kolonlar.push_back(UyeKolonuYap<DalSatiri>(
          KalanAd(std::string(onEk) + uye.ad), uye.etiket, OranGenisligi,
          [ taraf, oran = uye.uye ](auto& dal) -> auto& { return dal.*taraf.*oran; }, {.enCok = uye.enCok}));
    });
    kolonlar.push_back({'b', KalanAd(std::string(onEk) + "top"), "Top.", OranGenisligi,
                        [taraf](const DalSatiri& d, std::size_t) { return SayiHucresi(OranToplami(d.*taraf), 2); }});
  };
  tarafiEkle(&DalSatiri::isci, "");
  tarafiEkle(&DalSatiri::isveren, "i");
  return kolonlar;
}

AlanGrubu Tutarlar() {
  using Y = YasalOranlar;
  return {"",
          {ParametreAlani<&Y::AsgariUcret>(), ParametreAlani<&Y::SskTaban>(), ParametreAlani<&Y::SskTavan>(),
           ParametreAlani<&Y::KidemTavan>(), ParametreAlani<&Y::SakatIndirim, 0>(),
           ParametreAlani<&Y::SakatIndirim, 1>(), ParametreAlani<&Y::SakatIndirim, 2>(),
           ParametreAlani<&Y::DamgaOran>(), ParametreAlani<&Y::MuafTavan>(), ParametreAlani<&Y::MuafOran>()},
          4};
}

std::vector<DalSatiri> Dallar(const YasalParametreler& yasal) {
  std::vector<DalSatiri> dallar;
  for (const int sira : OranliDallar(yasal.hesapTurleri)) {
    const HesapTuru& tur = yasal.hesapTurleri[std::size_t(sira)];
    if (tur.no > DalSayisi) continue;  // a number of the user's own, without rates
    dallar.push_back({tur.no, tur.ack, yasal.oranlar.IsciOran[tur.no - 1u], yasal.oranlar.IsverenOran[tur.no - 1u]});
  }
  return dallar;
}

}  // namespace

yyasor::yyasor(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ParametreEkrani(baglam, parametreler, "yyasor", QStringLiteral("Yasal Oranlar")),
      liste_(new dclist(baglam.bildirim, this)),
      tablo_(*liste_, AyKolonlari()),
      uyari_(YaziEkle({}, "hata")) {
  uyari_->setObjectName("donemuyari");
  liste_->setObjectName("liste");
  liste_->Editable(true);
  liste_->YeniSatirli(false);
  liste_->SatirGuncelle = [this](int satir) { return SatirAl(satir); };
  SatirlaraYerAc(*liste_, 0);
  liste_->setMinimumHeight(ListeBoyu);
  liste_->GenisKolon("ack");
  auto* basliklar = new KolonBasliklari(*liste_, this);
  basliklar->Ekle(UyeTanimi<&YasalOranlar::IsciOran>().etiket, "ana", "top");
  basliklar->Ekle(UyeTanimi<&YasalOranlar::IsverenOran>().etiket, "iana", "itop");
  Govde()->addWidget(basliklar);
  Govde()->addWidget(liste_, 1);
  AlanlariDiz({{Tutarlar()}});
  IndirDugmesi(ParametreDosyasi::Yasal, [this] { Goster(); });
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
  IlkOdak(liste_);
  Goster();
}

void yyasor::Goster() {
  dallar_ = Dallar(Parametreler().yasal);
  tablo_.Doldur(dallar_);
  ParametreEkrani::Goster(Parametreler().yasal.oranlar);
  const std::string uyusmazlik = Mevzuat().Metin(1);
  uyari_->setText(Yazi(uyusmazlik));
  uyari_->setVisible(!uyusmazlik.empty());
}

// A row is left: its totals follow.
bool yyasor::SatirAl(int satir) {
  DalSatiri& dal = dallar_[std::size_t(satir)];
  dal = tablo_.Oku(std::size_t(satir), dal);
  tablo_.Goster(std::size_t(satir), dal);
  return true;
}

void yyasor::Kaydet() {
  YasalOranlar oranlar = Parametreler().yasal.oranlar;
  if (!liste_->OkUpdateData() || !DegisenleriOku(oranlar)) return;
  for (const DalSatiri& dal : dallar_) {
    oranlar.IsciOran[dal.no - 1u] = dal.isci;
    oranlar.IsverenOran[dal.no - 1u] = dal.isveren;
  }
  if (YasalYazildi(YasalOranlarKaydet(Oturumu().DataPath, oranlar))) Goster();
}

}  // namespace belvani
