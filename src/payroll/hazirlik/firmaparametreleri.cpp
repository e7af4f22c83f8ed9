#include "payroll/hazirlik/firmaparametreleri.h"

#include <algorithm>

#include "core/session/oturum.h"
#include "core/store/satirlar.h"
#include "core/tables/muaf.h"
#include "core/turkce.h"
#include "payroll/parametre/dosyalar.h"

namespace belvani {
namespace {

constexpr std::array<Kolon<Kaztan, std::uint8_t>, KazancSayisi> GrupKazanclari{
    kaztan::k1, kaztan::k2, kaztan::k3, kaztan::k4, kaztan::k5, kaztan::k6, kaztan::k7, kaztan::k8, kaztan::k9};
constexpr std::array<Kolon<Kaztan, std::uint8_t>, YardimSayisi> GrupYardimlari{
    kaztan::y1, kaztan::y2, kaztan::y3, kaztan::y4,  kaztan::y5, kaztan::y6,
    kaztan::y7, kaztan::y8, kaztan::y9, kaztan::y10, kaztan::y11};

const Kaztan* GrupBul(const std::vector<Kaztan>& gruplar, std::string_view grup) {
  const auto i =
      std::find_if(gruplar.begin(), gruplar.end(), [&](const Kaztan& g) { return TurkceEsit(g.grup, grup); });
  return i == gruplar.end() ? nullptr : &*i;
}

void VarsayilanGrubuSec(FirmaParametreleri& f, const Firma& firma) {
  f.ondegerYazili = !Kirp(firma.ondeger).empty();
  f.varsayilanGrup = Kirp(f.ondegerYazili ? firma.ondeger : KartsizFirma().ondeger);
}

void VarsayilanGrubuEkle(Motor& motor, FirmaParametreleri& firma, const std::string& grup,
                         const KazancBayraklari& dosyadan) {
  if (GrupBul(firma.gruplar, grup) != nullptr) return;
  Islem islem(motor);
  // Another computer may have been quicker.
  firma.gruplar = KayitlariOku<Kaztan>(motor);
  if (GrupBul(firma.gruplar, grup) == nullptr) {
    firma.gruplar.push_back(GrupSatiri(grup, dosyadan));
    KayitYazici<Kaztan>(motor).Ekle(firma.gruplar.back());
  }
  islem.Onayla();
}

void YardimlariOku(Motor& motor, YardimTanimlari& yardimlar) {
  yardimlar = VarsayilanYardimlar();
  for (Muaf& satir : KayitlariOku<Muaf>(motor))
    if (satir.no >= 1 && satir.no <= YardimSayisi) yardimlar[satir.no - 1u] = std::move(satir);
}

template <class T>
T Al(FirmaParametreleri& firma, Yukleme<T> yukleme) {
  for (auto& uyari : yukleme.uyarilar) firma.uyarilar.push_back(std::move(uyari));
  return std::move(yukleme.deger);
}

}  // namespace

FirmaParametreleri KazancGruplariOku(Motor& motor, const Firma& firma, const VeriYolu& sirket) {
  FirmaParametreleri f;
  f.gruplar = KayitlariOku<Kaztan>(motor);
  VarsayilanGrubuSec(f, firma);
  if (GrupBul(f.gruplar, f.varsayilanGrup) == nullptr)
    f.gruplar.push_back(GrupSatiri(f.varsayilanGrup, Al(f, KazancBayraklariYukle(sirket))));
  f.varsayilan = KazancGrupYukle(f, f.varsayilanGrup);
  return f;
}

FirmaParametreleri FirmaDosyalariYukle(Oturum& o) {
  Motor& motor = o.depo.db.IcMotor();
  FirmaParametreleri f;
  f.gruplar = KayitlariOku<Kaztan>(motor);
  const auto dosyadan = Al(f, KazancBayraklariYukle(o.FirmaDizini));
  VarsayilanGrubuSec(f, o.firma);
  VarsayilanGrubuEkle(motor, f, f.varsayilanGrup, dosyadan);
  f.varsayilan = KazancGrupYukle(f, f.varsayilanGrup);
  f.mesailer = Al(f, FazlaMesaiYukle(o.FirmaDizini));
  f.sablon = Al(f, SablonOku(o.FirmaDizini));
  YardimlariOku(motor, f.yardimlar);
  for (Indir& satir : KayitlariOku<Indir>(motor))
    if (satir.no >= 1 && satir.no <= f.indirimler.size()) f.indirimler[satir.no - 1u] = std::move(satir);
  f.sendikalar = KayitlariOku<Sendika>(motor);
  return f;
}

KazancBayraklari GrupBayraklari(const Kaztan& satir) {
  KazancBayraklari b;
  for (std::size_t i = 0; i < b.k.size(); ++i) b.k[i] = satir.*GrupKazanclari[i].uye;
  for (std::size_t i = 0; i < b.y.size(); ++i) b.y[i] = satir.*GrupYardimlari[i].uye;
  return b;
}

Kaztan GrupSatiri(std::string_view grup, const KazancBayraklari& b) {
  Kaztan satir;
  satir.grup = grup;
  for (std::size_t i = 0; i < b.k.size(); ++i) satir.*GrupKazanclari[i].uye = b.k[i];
  for (std::size_t i = 0; i < b.y.size(); ++i) satir.*GrupYardimlari[i].uye = b.y[i];
  return satir;
}

KazancBayraklari KazancGrupYukle(const FirmaParametreleri& firma, std::string_view grup) {
  const std::string_view ad = Kirp(grup);
  if (ad.empty()) return firma.varsayilan;
  const Kaztan* satir = GrupBul(firma.gruplar, ad);
  return satir == nullptr ? KazancBayraklari{} : GrupBayraklari(*satir);
}

bool KazancGrubuVar(const FirmaParametreleri& firma, std::string_view grup) {
  return Kirp(grup).empty() || GrupBul(firma.gruplar, Kirp(grup)) != nullptr;
}

const Sendika* SendikaBul(const FirmaParametreleri& firma, std::string_view tasno) {
  const std::string_view kod = Kirp(tasno);
  if (kod.empty()) return nullptr;
  for (const Sendika& s : firma.sendikalar)
    if (TurkceEsit(s.kod, kod)) return &s;
  return nullptr;
}

}  // namespace belvani
