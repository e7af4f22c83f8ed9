#include "core/erisilmezyer.h"

#include "core/ayarlar.h"

namespace belvani {
namespace {

class ErisilmezMakine final : public VeriMakinesi {
 public:
  ErisilmezMakine(std::string adres, Kusur neden) : adres_(std::move(adres)), neden_(std::move(neden)) {}

  Durum Erisim() const override { return neden_; }
  DosyaHali Bak(std::string_view, std::size_t) const override { return Okunmaz(); }
  std::optional<DosyaIzi> Iz(std::string_view) const override { return std::nullopt; }
  Durum Yaz(std::string_view, std::string_view) const override { return neden_; }
  Durum YazHepsi(const std::vector<AdliDosya>&) const override { return neden_; }
  Durum Sil(std::string_view) const override { return neden_; }
  std::vector<std::string> Dosyalar() const override { return {}; }
  Durum IsaretKoy(std::string_view, std::string_view) const override { return neden_; }
  Durum IsaretKaldir(std::string_view) const override { return neden_; }
  std::vector<AdliDosya> Isaretler() const override { return {}; }
  Sonuc<std::unique_ptr<YolKilidi>> Kilitle(std::chrono::milliseconds) const override { return neden_; }
  std::string Adres(std::string_view ad) const override { return adres_ + std::string(ad); }
  std::shared_ptr<const VeriMakinesi> Alt(std::string_view ad) const override {
    return ErisilmezYer(Adres(ad) + "/", neden_);
  }
  std::vector<std::string> Altlar() const override { return {}; }
  bool AltVar(std::string_view) const override { return false; }
  Durum Yarat() const override { return neden_; }
  std::string Kimlik() const override { return {}; }
  bool BagMi() const override { return false; }
  std::vector<DosyaHali> BakHepsi(const std::vector<std::string_view>& adlar, std::size_t) const override {
    return std::vector<DosyaHali>(adlar.size(), Okunmaz());
  }
  std::vector<AltIsareti> AltIsaretleri() const override { return {}; }
  Sonuc<std::unique_ptr<YarimYer>> YarimAlt(std::string_view, YarimTuru) const override { return neden_; }
  std::vector<std::string> YarimAltlar() const override { return {}; }
  Sonuc<std::string> YarimaCevir(std::string_view) const override { return neden_; }
  Durum YarimSil(std::string_view) const override { return neden_; }
  void Toparla() const override {}
  Durum DosyayaAl(std::string_view, const std::string&) const override { return neden_; }
  Durum DosyadanKoy(std::string_view, const std::string&) const override { return neden_; }
  std::string YerelDizin() const override { return KullaniciVeriDizini(); }
  std::shared_ptr<const VeriMakinesi> Yedekler() const override { return ErisilmezYer(adres_, neden_); }
  bool Sunucuda() const override { return true; }

 private:
  // Nobody shall write over what may be there.
  static DosyaHali Okunmaz() { return {.okunamadi = true}; }

  std::string adres_;
  Kusur neden_;
};

}  // namespace

std::shared_ptr<const VeriMakinesi> ErisilmezYer(const std::string& adres, Kusur neden) {
  return std::make_shared<ErisilmezMakine>(adres, std::move(neden));
}

}  // namespace belvani
