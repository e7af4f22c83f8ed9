// What an xgrid shows: a report that came as a whole, or one that is filled step by step.
#include <algorithm>
#include <array>

#include "core/sayi.h"
#include "core/turkce.h"
#include "ui/metin.h"
#include "ui/xgrid.h"

namespace belvani {
namespace {

constexpr int EnCokOndalik = 4;

bool Var(std::size_t adet, int sira) {
  return sira >= 0 && std::size_t(sira) < adet;
}

KolonTuru Turu(DolguTuru tur, int bicim) {
  static constexpr std::array tarihler{KolonTuru::UzunTarih, KolonTuru::Tarih, KolonTuru::KisaTarih,
                                       KolonTuru::GunAy,     KolonTuru::Gun,   KolonTuru::Ay};
  switch (tur) {
    case DolguTuru::Metin:
      return KolonTuru::Metin;
    case DolguTuru::Sayi:
    case DolguTuru::ToplananSayi:
      return KolonTuru::Tutar;
    case DolguTuru::Tarih:
      return Var(tarihler.size(), bicim) ? tarihler[std::size_t(bicim)] : KolonTuru::Tarih;
  }
  return KolonTuru::Metin;
}

Hucre Uydur(const Hucre& deger, const RaporKolonu& kolon) {
  std::string metin = DuzMetin(deger);
  if (kolon.tur == KolonTuru::Metin) return metin;
  if (TarihMi(kolon.tur)) {
    const Tarih tarih = Tarih::MetinOku(metin);
    return tarih.Bos() ? Hucre(Null{}) : Hucre(tarih);
  }
  const auto tutar = TutarOku(metin);
  return tutar ? Hucre(*tutar) : Hucre(Null{});
}

}  // namespace

// Paper cuts no text.
Rapor xgrid::Dolgu::Yap() const {
  std::vector<RaporKolonu> kagit = kolonlar;
  for (const RaporSatiri& satir : satirlar)
    for (std::size_t k = 0; k < kagit.size(); ++k)
      if (const auto* metin = std::get_if<std::string>(&satir.hucreler[k]))
        kagit[k].en = std::max(kagit[k].en, int(HarfSayisi(*metin)));
  Rapor rapor(std::move(kagit));
  rapor.baslik = rapor.ekranBasligi = baslik;
  rapor.ustSatirlar = ustSatirlar;
  for (const RaporSatiri& satir : satirlar) rapor.Ekle(satir);
  return rapor;
}

void xgrid::RaporKoy(std::shared_ptr<const Rapor> rapor) {
  dolgu_.reset();
  rapor_ = std::move(rapor);
  Goster();
}

const Rapor& xgrid::Belgesi() const {
  if (rapor_ == nullptr) rapor_ = std::make_shared<const Rapor>(dolgu_->Yap());
  return *rapor_;
}

void xgrid::Reset() {
  dolgu_.emplace();
  rapor_ = nullptr;
  dolduruluyor_ = true;
  satir_ = -1;
  kolon_ = 0;
}

// Null for a report that came as a whole: that stays as it is.
xgrid::Dolgu* xgrid::Doldurulan() {
  if (!dolgu_) return nullptr;
  if (!dolduruluyor_) {
    satir_ = SimdikiSatir();
    kolon_ = std::max(CurrentColon(), 0);
  }
  dolduruluyor_ = true;
  rapor_ = nullptr;
  return &*dolgu_;
}

void xgrid::AddColons(const QString& baslik, DolguTuru tur, const QString& ikinci, int bicim, int en) {
  auto* dolgu = Doldurulan();
  if (dolgu == nullptr) return;
  dolgu->kolonlar.push_back({.baslik = Utf8(ikinci.isEmpty() ? baslik : ikinci + ' ' + baslik),
                             .kisaBaslik = Utf8(baslik),
                             .en = std::max(en, int(HarfSayisi(Utf8(baslik)))),
                             .tur = Turu(tur, bicim),
                             .ondalik = std::clamp(bicim, 0, EnCokOndalik),
                             .toplanir = tur == DolguTuru::ToplananSayi});
  for (RaporSatiri& satir : dolgu->satirlar) satir.hucreler.emplace_back();
}

void xgrid::NewPage() {
  if (auto* dolgu = Doldurulan()) dolgu->yeniSayfa = !dolgu->satirlar.empty();
}

void xgrid::CreateRow(GridSatiri tur, int adet) {
  if (tur == GridSatiri::SayfaBasi) NewPage();
  auto* dolgu = Doldurulan();
  if (dolgu == nullptr || adet < 1) return;
  for (int i = 0; i < adet; ++i)
    dolgu->satirlar.push_back(
        {.hucreler = std::vector<Hucre>(dolgu->kolonlar.size()), .yeniSayfa = std::exchange(dolgu->yeniSayfa, false)});
  satir_ = int(dolgu->satirlar.size()) - 1;
  kolon_ = 0;
}

void xgrid::Koy(Dolgu& dolgu, int satir, int kolon, const Hucre& deger) const {
  if (Var(dolgu.satirlar.size(), satir) && Var(dolgu.kolonlar.size(), kolon))
    dolgu.satirlar[std::size_t(satir)].hucreler[std::size_t(kolon)] = Uydur(deger, dolgu.kolonlar[std::size_t(kolon)]);
}

void xgrid::Add(int kolon, const Hucre& deger) {
  auto* dolgu = Doldurulan();
  if (dolgu == nullptr || satir_ < 0 || !Var(dolgu->kolonlar.size(), kolon)) return;
  Koy(*dolgu, satir_, kolon, deger);
  kolon_ = kolon;
}

void xgrid::AddbyName(const QString& baslik, const Hucre& deger) {
  if (!dolgu_) return;
  const auto k = std::ranges::find(dolgu_->kolonlar, Utf8(baslik), &RaporKolonu::kisaBaslik);
  if (k != dolgu_->kolonlar.end()) Add(int(k - dolgu_->kolonlar.begin()), deger);
}

void xgrid::data(int sayfa, int satir, int kolon, const Hucre& deger) {
  const int no = SatirNo(sayfa, satir);
  if (auto* dolgu = no >= 0 ? Doldurulan() : nullptr) Koy(*dolgu, no, kolon, deger);
}

void xgrid::Basliklar(const QString& baslik, const QStringList& ustSatirlar) {
  auto* dolgu = Doldurulan();
  if (dolgu == nullptr) return;
  dolgu->baslik = Utf8(baslik);
  dolgu->ustSatirlar.clear();
  for (const QString& satir : ustSatirlar) dolgu->ustSatirlar.push_back({.sol = Utf8(satir)});
}

void xgrid::Refresh() {
  Belgesi();
  Goster();
}

const std::vector<RaporSatiri>& xgrid::Satirlar() const {
  return dolgu_ ? dolgu_->satirlar : rapor_->Satirlar();
}

std::vector<int> xgrid::SayfaBaslari() const {
  if (!dolgu_) return model_->SayfaBaslari();
  std::vector<int> baslar;
  for (int i = 0; i < int(dolgu_->satirlar.size()); ++i)
    if (i == 0 || dolgu_->satirlar[std::size_t(i)].yeniSayfa) baslar.push_back(i);
  return baslar;
}

int xgrid::SatirNo(int sayfa, int satir) const {
  const auto baslar = SayfaBaslari();
  if (!Var(baslar.size(), sayfa) || satir < 0) return -1;
  const int son = Var(baslar.size(), sayfa + 1) ? baslar[std::size_t(sayfa) + 1] : int(Satirlar().size());
  const int no = baslar[std::size_t(sayfa)] + satir;
  return no < son ? no : -1;
}

Hucre xgrid::data(int sayfa, int satir, int kolon) const {
  const int no = SatirNo(sayfa, satir);
  if (no < 0 || !Var(Satirlar()[std::size_t(no)].hucreler.size(), kolon)) return Null{};
  return Satirlar()[std::size_t(no)].hucreler[std::size_t(kolon)];
}

int xgrid::SimdikiSatir() const {
  return dolduruluyor_ ? satir_ : model_->Kayit(currentIndex().row());
}

int xgrid::CurrentPage() const {
  if (!dolduruluyor_) return model_->Sayfa();
  const auto baslar = SayfaBaslari();
  return std::max(int(std::ranges::upper_bound(baslar, satir_) - baslar.begin()) - 1, 0);
}

int xgrid::CurrentRow() const {
  const int satir = SimdikiSatir();
  return satir < 0 ? -1 : satir - SayfaBaslari()[std::size_t(CurrentPage())];
}

void xgrid::KonumaGit(int sayfa, int satir, int kolon) {
  const int no = SatirNo(sayfa, satir);
  if (no < 0 || !Var(Satirlar()[std::size_t(no)].hucreler.size(), kolon)) return;
  if (!dolduruluyor_) return KaydaGit(no, kolon);
  satir_ = no;
  kolon_ = kolon;
}

QString xgrid::GetBaslikPrint(int kolon) const {
  const auto& kolonlar = Belgesi().Kolonlar();
  return Var(kolonlar.size(), kolon) ? Yazi(kolonlar[std::size_t(kolon)].baslik) : QString();
}

QString xgrid::GetFormatData(int satir, int kolon) const {
  const Rapor& rapor = Belgesi();
  if (!Var(rapor.Satirlar().size(), satir) || !Var(rapor.Kolonlar().size(), kolon)) return {};
  return Yazi(HucreMetni(rapor.Satirlar()[std::size_t(satir)].hucreler[std::size_t(kolon)],
                         rapor.Kolonlar()[std::size_t(kolon)]));
}

QString xgrid::UstSatirMetni(std::size_t sira) const {
  const auto& satirlar = Belgesi().ustSatirlar;
  return sira < satirlar.size() ? Yazi(UstEkranMetni(satirlar[sira])) : QString();
}

}  // namespace belvani
