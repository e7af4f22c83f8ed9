#include "cli/hesapgirdisi.h"

#include <algorithm>

#include "cli/giris.h"
#include "core/tables/esco.h"
#include "core/tables/firma.h"
#include "core/tables/muaf.h"
#include "core/turkce.h"
#include "payroll/hesap/satirlar.h"
#include "payroll/parametre/mevzuat.h"
#include "payroll/parametre/uyeler.h"

namespace belvani::cli {
namespace {

using Kusurlar = std::vector<std::string>;

const Json Yok = nullptr;

const Json& Uye(const Json& nesne, const char* ad) {
  const auto i = nesne.find(ad);
  return i == nesne.end() ? Yok : *i;
}

// A number or amount that stands alone, read as a column of that type would be.
Deger Tekli(const Json& nesne, const char* ad, AlanTipi tip, Kusurlar& kusurlar) {
  return JsonDegeri({ad, tip, 0, AlanNiteligi::Serbest}, Uye(nesne, ad), ad, kusurlar);
}

template <class Kayit>
std::vector<Kayit> Satirlar(const Json& nesne, const char* ad, Kusurlar& kusurlar) {
  std::vector<Kayit> satirlar;
  const Json& dizi = Uye(nesne, ad);
  if (dizi.is_null()) return satirlar;
  if (!dizi.is_array()) {
    kusurlar.push_back(std::string(ad) + ": dizi olmalı");
    return satirlar;
  }
  for (const Json& satir : dizi) {
    Kayit& kayit = satirlar.emplace_back();
    JsondanKayit(satir, std::string(ad) + "[" + std::to_string(satirlar.size()) + "]", kayit, kusurlar);
  }
  return satirlar;
}

void DonemiOku(const Json& json, HesapGirdisi& h) {
  const Json& donem = Uye(json, "donem");
  if (!donem.is_object()) {
    h.kusurlar.push_back("donem: {yil, ay} olmalı");
    return;
  }
  Kusurlar& k = h.kusurlar;
  h.kosullar.donem.yil = int(TamDegeri(Tekli(donem, "yil", AlanTipi::Kisa, k)));
  h.kosullar.donem.ay = int(TamDegeri(Tekli(donem, "ay", AlanTipi::Byte, k)));
  if (Tarih(h.kosullar.donem.yil, h.kosullar.donem.ay, 1).Bos()) k.push_back("donem: yil veya ay hatalı");
}

void FirmayiOku(const Json& json, HesapGirdisi& h) {
  Firma firma;
  firma.issaati = Tek(8);
  firma.paraonda = 2;
  if (const Json& f = Uye(json, "firma"); !f.is_null()) JsondanKayit(f, "firma", firma, h.kusurlar);
  KartKosullariniKoy(h.kosullar, firma);
}

template <class U>
concept ParametreSayisi = std::is_same_v<U, Tutar> || std::is_same_v<U, Tek>;

// A number of a parameter record, within what may be entered for it.
template <class Satir, ParametreSayisi U>
void SayiyiOku(const Json& json, const Satir& satir, const std::string& yer, U& sayi, Kusurlar& kusurlar) {
  const AlanSiniri siniri = satir.enCok > 0 ? sinir::EnCok(satir.enCok) : AlanSiniri{};
  const AlanTipi tip = std::is_same_v<U, Tutar> ? AlanTipi::Tutar : AlanTipi::Tek;
  UyeyeYaz(sayi, JsonDegeri({satir.ad, tip, 0, AlanNiteligi::Serbest, siniri}, json, yer, kusurlar));
}

template <class Satir, ParametreSayisi U>
void UyeyiOku(const Json& p, const Satir& satir, U& sayi, Kusurlar& kusurlar) {
  if (p.contains(satir.ad)) SayiyiOku(p[satir.ad], satir, satir.ad, sayi, kusurlar);
}

// Elements that the list does not reach are zero.
template <class Satir, ParametreSayisi U, std::size_t N>
void UyeyiOku(const Json& p, const Satir& satir, std::array<U, N>& uye, Kusurlar& kusurlar) {
  const Json& dizi = Uye(p, satir.ad);
  if (dizi.is_null()) return;
  const std::string yer = "parametre." + std::string(satir.ad);
  if (!dizi.is_array() || dizi.size() > N) {
    kusurlar.push_back(yer + ": en çok " + std::to_string(N) + " sayılık dizi olmalı");
    return;
  }
  uye = {};
  for (std::size_t i = 0; i < dizi.size(); ++i) SayiyiOku(dizi[i], satir, yer, uye[i], kusurlar);
}

// Rows by branch number, "1" to "32": {"1": {"ana": 0, "has": 5, …}}.
template <class Satir>
void UyeyiOku(const Json& p, const Satir& satir, std::array<OranSatiri, DalSayisi>& oranlar, Kusurlar& kusurlar) {
  const Json& dallar = Uye(p, satir.ad);
  if (dallar.is_null()) return;
  for (const auto& [dal, dalOranlari] : dallar.items()) {
    const int no = BastakiSayi(dal);
    if (no < 1 || no > DalSayisi || !dalOranlari.is_object()) {
      kusurlar.push_back("parametre." + std::string(satir.ad) + "." + dal + ": 1-32 dal numarası ve oranları olmalı");
      continue;
    }
    HerUye<OranSatiri>([&, &oranSatirlari = dalOranlari](const auto& uye) {
      UyeyiOku(oranSatirlari, uye, oranlar[std::size_t(no - 1)].*uye.uye, kusurlar);
    });
  }
}

template <class Kayit>
void KaydiOku(const Json& p, Kayit& kayit, Kusurlar& kusurlar) {
  HerUye<Kayit>([&](const auto& uye) {
    if constexpr (requires { UyeyiOku(p, uye, kayit.*uye.uye, kusurlar); })
      if (*uye.ad != '\0') UyeyiOku(p, uye, kayit.*uye.uye, kusurlar);
  });
}

// Members that the object names take the place of the shipped figures.
void ParametreleriOku(const Json& p, YasalParametreler& yasal, int& uygulama, Kusurlar& kusurlar) {
  if (p.is_null()) return;
  if (!p.is_object()) return kusurlar.push_back("parametre: nesne olmalı");
  KaydiOku(p, yasal.oranlar, kusurlar);
  KaydiOku(p, yasal.agi, kusurlar);
  KaydiOku(p, yasal.gv, kusurlar);
  if (p.contains("uygulama")) uygulama = int(TamDegeri(Tekli(p, "uygulama", AlanTipi::Kisa, kusurlar)));
}

void YasaliOku(const Json& json, HesapGirdisi& h) {
  const BordroDonemi& donem = h.kosullar.donem;
  const bool eski = MantikDegeri(Tekli(json, "eskilira", AlanTipi::Mantik, h.kusurlar));
  auto yasal = MevzuatYukle(MevzuatDizini(), donem.yil, donem.ay, eski ? Lira::Eski : Lira::Yeni);
  // Figures that are all given need no shipped ones.
  if (yasal)
    h.kosullar.yasal = std::move(*yasal);
  else if (Uye(json, "parametre").is_object())
    h.kosullar.yasal = {{}, {}, {}, VarsayilanHesapTurleri(), VarsayilanKanunlar()};
  else
    h.kusurlar.push_back(yasal.KusurMetni());
  h.kosullar.uygulama = UygulamaBul(h.kosullar.yasal.kanunlar, donem.ay, donem.yil);
  ParametreleriOku(Uye(json, "parametre"), h.kosullar.yasal, h.kosullar.uygulama, h.kusurlar);
}

void BayraklariOku(const Json& json, KazancBayraklari& bayraklar, Kusurlar& kusurlar) {
  Kaztan grup = GrupSatiri("", VarsayilanKazancBayraklari());
  if (const Json& kaztan = Uye(json, "kaztan"); !kaztan.is_null()) JsondanKayit(kaztan, "kaztan", grup, kusurlar);
  bayraklar = GrupBayraklari(grup);
}

// Rows that say their place by `no`, which counts from 1.
template <class Kayit, class Uye, class Yerlestir>
void NumaraliSatirlar(const Json& json, const Kolon<Kayit, Uye>& no, Kusurlar& kusurlar, Yerlestir&& yerlestir) {
  const std::size_t once = kusurlar.size();
  const std::string ad(Kayit::TabloAdi);
  for (Kayit& satir : Satirlar<Kayit>(json, ad.c_str(), kusurlar)) {
    const std::string kusur = DegerKusuru(no, UyeDegeri(satir.*no.uye));
    if (kusur.empty())
      yerlestir(std::size_t(satir.*no.uye - 1), satir);
    else if (kusurlar.size() == once)  // one that was read and refused has been told
      kusurlar.push_back(ad + ".no: " + kusur);
  }
}

void FirmaTanimlariniOku(const Json& json, HesapGirdisi& h) {
  FirmaParametreleri& f = h.kosullar.firma;
  BayraklariOku(json, f.varsayilan, h.kusurlar);
  f.mesailer = VarsayilanFazlaMesailer();
  f.yardimlar = VarsayilanYardimlar();
  NumaraliSatirlar(json, muaf::no, h.kusurlar, [&](std::size_t sira, const Muaf& m) { f.yardimlar[sira] = m; });
  NumaraliSatirlar(json, indir::no, h.kusurlar, [&](std::size_t sira, const Indir& i) { f.indirimler[sira] = i; });
  f.sendikalar = Satirlar<Sendika>(json, "sendika", h.kusurlar);
}

void KisiyiOku(const Json& json, HesapGirdisi& h) {
  const Json& sicil = Uye(json, "sicil");
  JsondanKayit(sicil.is_null() ? Json::object() : sicil, "sicil", h.kisi.sicil, h.kusurlar);
  h.kisi.sicil.hesap.clear();  // its group's flags are those of `kaztan` here
  for (const Esco& e : Satirlar<Esco>(json, "esco", h.kusurlar)) h.kisi.aile.Ekle(e.yakinlik, e.agiok);
  h.kisi.yil.gvmatrah = TutarDegeri(Tekli(json, "devgvmatrah", AlanTipi::Tutar, h.kusurlar));
  h.kisi.yil.gvtutar = TutarDegeri(Tekli(json, "devgvtutar", AlanTipi::Tutar, h.kusurlar));
  for (std::size_t i = 0; i < h.kisi.yil.indirimler.size(); ++i)
    h.kisi.yil.indirimler[i] =
        TutarDegeri(Tekli(json, ("toind" + std::to_string(i + 1)).c_str(), AlanTipi::Tutar, h.kusurlar));
}

void CalismaGununuBul(const Json& json, HesapGirdisi& h) {
  if (json.contains("calismagun")) {
    const AlanTanimi gun{"calismagun", AlanTipi::Byte, 0, AlanNiteligi::Serbest, brd::ng.sinir};
    h.CalismaGun = int(TamDegeri(JsonDegeri(gun, json["calismagun"], "calismagun", h.kusurlar)));
    return;
  }
  const Sicil& s = h.kisi.sicil;
  if (s.girtar.Bos() || !h.kusurlar.empty()) return;
  const CalismaGunu gun = GunSayisiBul(h.kosullar.donem, s.girtar, s.ciktar);
  if (gun.uygunluk != DonemUygunlugu::Uygun)
    h.kusurlar.push_back("Bu İşçinin Giriş veya Çıkış Tarihleri Döneme Uygun Değil");
  h.CalismaGun = gun.CalismaGun;
}

void GirisiOku(const Json& json, HesapGirdisi& h) {
  const Json& giris = Uye(json, "giris");
  if (giris.is_null()) return;
  JsondanKayit(giris, "giris", h.giris, h.kusurlar);
  if (giris.is_object())
    for (const auto& [ad, deger] : giris.items()) h.verilen.push_back(ad);
}

void BilinmeyenleriBildir(const Json& json, HesapGirdisi& h) {
  static constexpr std::string_view bilinen[] = {
      "donem", "sicil",   "esco",   "giris",     "devgvmatrah", "devgvtutar", "calismagun", "firma", "muaf",
      "indir", "sendika", "kaztan", "parametre", "eskilira",    "toind1",     "toind2",     "toind3"};
  for (const auto& [ad, deger] : json.items())
    if (std::find(std::begin(bilinen), std::end(bilinen), ad) == std::end(bilinen))
      h.uyarilar.push_back(ad + ": bilinmeyen alan, kullanılmadı");
}

}  // namespace

HesapGirdisi HesapGirdisiOku(const Json& json) {
  HesapGirdisi h;
  if (!json.is_object()) {
    h.kusurlar.push_back("Girdi bir JSON nesnesi olmalı");
    return h;
  }
  BilinmeyenleriBildir(json, h);
  DonemiOku(json, h);
  if (!h.kusurlar.empty()) return h;
  FirmayiOku(json, h);
  YasaliOku(json, h);
  FirmaTanimlariniOku(json, h);
  KisiyiOku(json, h);
  GirisiOku(json, h);
  CalismaGununuBul(json, h);
  return h;
}

BordroGirdi HesapGirdisi::Girdi() const {
  BordroGirdi g = PersonelYukle(kisi, kosullar, CalismaGun);
  // Nothing comes from a template here: what is not entered is zero.
  for (const auto& kolon : GunKolonlari) g.giris.*kolon.uye = 0;
  for (const auto& kolon : MesaiKolonlari) g.giris.*kolon.uye = Tek();
  for (const auto& kolon : YardimKolonlari) g.giris.*kolon.uye = Tutar();
  Brd::HerKolon([&](const auto& kolon) {
    if (std::find(verilen.begin(), verilen.end(), kolon.ad) != verilen.end()) g.giris.*kolon.uye = giris.*kolon.uye;
  });
  return g;
}

}  // namespace belvani::cli
