// What an xgrid shows: a report that came as a whole, or one that is filled step by step.
#include <algorithm>

#include "ui/metin.h"
#include "ui/xgrid.h"

namespace belvani {
namespace {

bool Var(std::size_t adet, int sira) {
  return sira >= 0 && std::size_t(sira) < adet;
}

}  // namespace

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
}

// A report that came as a whole stays as it is. The first change goes on from where the cursor stands.
template <class Is>
void xgrid::Doldur(Is is) {
  if (!dolgu_) return;
  if (!dolduruluyor_) dolgu_->Konum(SimdikiSatir(), std::max(CurrentColon(), 0));
  dolduruluyor_ = true;
  rapor_ = nullptr;
  is(*dolgu_);
}

void xgrid::AddColons(const QString& baslik, DolguTuru tur, const QString& ikinci, int bicim, int en) {
  Doldur([&](RaporDolgusu& d) { d.AddColons(Utf8(baslik), tur, Utf8(ikinci), bicim, en); });
}

void xgrid::NewPage() {
  Doldur([](RaporDolgusu& d) { d.NewPage(); });
}

void xgrid::CreateRow(GridSatiri tur, int adet) {
  Doldur([&](RaporDolgusu& d) { d.CreateRow(tur, adet); });
}

void xgrid::Add(int kolon, const Hucre& deger) {
  Doldur([&](RaporDolgusu& d) { d.Add(kolon, deger); });
}

void xgrid::AddbyName(const QString& baslik, const Hucre& deger) {
  Doldur([&](RaporDolgusu& d) { d.AddbyName(Utf8(baslik), deger); });
}

void xgrid::data(int sayfa, int satir, int kolon, const Hucre& deger) {
  Doldur([&](RaporDolgusu& d) { d.data(sayfa, satir, kolon, deger); });
}

void xgrid::Basliklar(const QString& baslik, const QStringList& ustSatirlar) {
  std::vector<std::string> satirlar;
  for (const QString& satir : ustSatirlar) satirlar.push_back(Utf8(satir));
  Doldur([&](RaporDolgusu& d) { d.Basliklar(Utf8(baslik), satirlar); });
}

void xgrid::Refresh() {
  Belgesi();
  Goster();
}

std::vector<bool> xgrid::YeniSayfalar() const {
  return dolgu_ ? dolgu_->YeniSayfalar() : rapor_->Satirlar().YeniSayfalar();
}

Hucre xgrid::data(int sayfa, int satir, int kolon) const {
  const int no = SayfadakiSatir(YeniSayfalar(), sayfa, satir);
  if (no < 0 || !Var(Belgesi().Kolonlar().size(), kolon)) return Null{};
  return Belgesi().Satirlar().Hucresi(std::size_t(no), std::size_t(kolon));
}

int xgrid::SimdikiSatir() const {
  return dolduruluyor_ ? dolgu_->Satir() : model_->Kayit(currentIndex().row());
}

int xgrid::CurrentPage() const {
  if (!dolduruluyor_) return model_->Sayfa();
  const auto baslar = SayfaBaslari(YeniSayfalar());
  return std::max(int(std::ranges::upper_bound(baslar, dolgu_->Satir()) - baslar.begin()) - 1, 0);
}

int xgrid::CurrentRow() const {
  const int satir = SimdikiSatir();
  return satir < 0 ? -1 : satir - SayfaBaslari(YeniSayfalar())[std::size_t(CurrentPage())];
}

void xgrid::KonumaGit(int sayfa, int satir, int kolon) {
  const int no = SayfadakiSatir(YeniSayfalar(), sayfa, satir);
  if (no < 0 || !Var(Belgesi().Kolonlar().size(), kolon)) return;
  dolduruluyor_ ? dolgu_->Konum(no, kolon) : KaydaGit(no, kolon);
}

QString xgrid::GetBaslikPrint(int kolon) const {
  const auto& kolonlar = Belgesi().Kolonlar();
  return Var(kolonlar.size(), kolon) ? Yazi(kolonlar[std::size_t(kolon)].baslik) : QString();
}

QString xgrid::GetFormatData(int satir, int kolon) const {
  const Rapor& rapor = Belgesi();
  if (!Var(rapor.Satirlar().size(), satir) || !Var(rapor.Kolonlar().size(), kolon)) return {};
  return Yazi(HucreMetni(rapor.Satirlar().Hucresi(std::size_t(satir), std::size_t(kolon)),
                         rapor.Kolonlar()[std::size_t(kolon)]));
}

QString xgrid::UstSatirMetni(std::size_t sira) const {
  const auto& satirlar = Belgesi().ustSatirlar;
  return sira < satirlar.size() ? Yazi(UstEkranMetni(satirlar[sira])) : QString();
}

}  // namespace belvani
