#include "payroll/parametre/mevzuatdenetimi.h"

#include <algorithm>

#include "core/sayi.h"
#include "payroll/parametre/kayitlar.h"
#include "payroll/parametre/uyeler.h"

namespace belvani {
namespace {

const Tutar EnAzAsgariUcret = Tutar(100);
const Tutar EnCokAsgariUcret = Tutar(10'000);
constexpr int EskiLiraKati = 1'000'000;

std::string RakamMetni(Tutar tutar) {
  return TutarMetni(tutar, 2);
}
std::string RakamMetni(Tek oran) {
  return SayiMetni(oran.Sayi());
}

// The rate against the largest value of its row.
template <class Uye>
void AralikDenetle(std::vector<std::string>& kusurlar, const std::string& etiket, const Uye& uye, Tek oran) {
  if (oran.Sayi() >= 0 && oran.Sayi() <= uye.enCok) return;
  kusurlar.push_back(etiket + " 0 ile " + SayiMetni(uye.enCok) + " arasında değil: " + RakamMetni(oran));
}

void TutarlariDenetle(std::vector<std::string>& kusurlar, const YasalOranlar& o, int kat) {
  const Tutar enAz = kat * EnAzAsgariUcret, enCok = kat * EnCokAsgariUcret;
  if (o.AsgariUcret < enAz || o.AsgariUcret > enCok)
    kusurlar.push_back("Asgari ücret " + RakamMetni(enAz) + " ile " + RakamMetni(enCok) +
                       " arasında değil: " + RakamMetni(o.AsgariUcret));
  if (o.SskTaban <= Tutar() || o.SskTavan < o.SskTaban)
    kusurlar.push_back("SSK tabanı veya tavanı yok, ya da tavan tabandan küçük: " + RakamMetni(o.SskTaban) + ", " +
                       RakamMetni(o.SskTavan));
}

void OranlariDenetle(std::vector<std::string>& kusurlar, const YasalOranlar& o) {
  constexpr auto damga = UyeTanimi<&YasalOranlar::DamgaOran>();
  AralikDenetle(kusurlar, damga.etiket, damga, o.DamgaOran);
  for (std::size_t dal = 0; dal < o.IsciOran.size(); ++dal) {
    const std::string ek = ", " + std::to_string(dal + 1) + ". sigorta kolu, ";
    HerUye<OranSatiri>([&](const auto& uye) {
      AralikDenetle(kusurlar, "İşçi oranı" + ek + uye.etiket, uye, o.IsciOran[dal].*uye.uye);
      AralikDenetle(kusurlar, "İşveren oranı" + ek + uye.etiket, uye, o.IsverenOran[dal].*uye.uye);
    });
  }
}

void TabloyuDenetle(std::vector<std::string>& kusurlar, const GvTablosu& gv) {
  if (gv.GvLimit[0] == Tutar()) kusurlar.push_back("Gelir vergisi tablosunda dilim yok");
  for (std::size_t i = 0; i < gv.GvLimit.size() && gv.GvLimit[i] != Tutar(); ++i) {
    const std::string dilim = "Gelir vergisi tablosu, " + std::to_string(i + 1) + ". dilim";
    if (gv.GvLimit[i] <= (i == 0 ? Tutar() : gv.GvLimit[i - 1])) kusurlar.push_back(dilim + ": üst sınır artmıyor");
    AralikDenetle(kusurlar, dilim + " oranı", UyeTanimi<&GvTablosu::GvOran>(), gv.GvOran[i]);
  }
}

void AgiyiDenetle(std::vector<std::string>& kusurlar, const AgiTablosu& agi) {
  HerUye<AgiTablosu>([&](const auto& uye) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(agi.*uye.uye)>, Tek>)
      AralikDenetle(kusurlar, uye.etiket, uye, agi.*uye.uye);
  });
  if (agi.AgiTaban < Tutar()) kusurlar.push_back("Asgari geçim indirimi tabanı sıfırdan küçük");
}

template <class U>
concept Rakam = std::same_as<U, Tutar> || std::same_as<U, Tek>;

// One figure against the published one.
struct Karsilastirma {
  MevzuatBolumu bolum;
  std::vector<RakamFarki>& farklar;

  template <Rakam U>
  void operator()(const std::string& etiket, const U& kurulu, const U& yayimlanan) const {
    if (yayimlanan == U() || kurulu == yayimlanan) return;
    farklar.push_back({bolum, etiket, RakamMetni(kurulu), RakamMetni(yayimlanan)});
  }
  template <Rakam U, std::size_t N>
  void operator()(const std::string& etiket, const std::array<U, N>& kurulu, const std::array<U, N>& yayimlanan) const {
    for (std::size_t i = 0; i < N; ++i) (*this)(etiket + std::to_string(i + 1), kurulu[i], yayimlanan[i]);
  }
  // The rates of the branches: a branch that was published has all of its rates, zeros too.
  template <std::size_t N>
  void operator()(const std::string& etiket, const std::array<OranSatiri, N>& kurulu,
                  const std::array<OranSatiri, N>& yayimlanan) const {
    for (std::size_t dal = 0; dal < N; ++dal) {
      if (yayimlanan[dal] == OranSatiri()) continue;
      HerUye<OranSatiri>([&](const auto& uye) {
        const Tek simdi = kurulu[dal].*uye.uye, olmasiGereken = yayimlanan[dal].*uye.uye;
        if (simdi == olmasiGereken) return;
        farklar.push_back({bolum, etiket + ", " + std::to_string(dal + 1) + ". kol, " + uye.etiket, RakamMetni(simdi),
                           RakamMetni(olmasiGereken)});
      });
    }
  }

  template <class Kayit>
  void HerRakam(const Kayit& kurulu, const Kayit& yayimlanan) const {
    HerUye<Kayit>([&](const auto& uye) {
      if constexpr (requires { (*this)(uye.etiket, kurulu.*uye.uye, yayimlanan.*uye.uye); })
        if (*uye.mevzuat != '\0') (*this)(uye.etiket, kurulu.*uye.uye, yayimlanan.*uye.uye);
    });
  }
};

void TabloFarklari(const Karsilastirma& k, const GvTablosu& kurulu, const GvTablosu& yayimlanan) {
  for (std::size_t i = 0; i < kurulu.GvLimit.size() && yayimlanan.GvLimit[i] != Tutar(); ++i) {
    const std::string dilim = std::to_string(i + 1) + ". dilim ";
    const bool acik = i + 1 == kurulu.GvLimit.size() || yayimlanan.GvLimit[i + 1] == Tutar();
    if (!acik || kurulu.GvLimit[i] == Tutar())
      k(dilim + UyeTanimi<&GvTablosu::GvLimit>().etiket, kurulu.GvLimit[i], yayimlanan.GvLimit[i]);
    k(dilim + UyeTanimi<&GvTablosu::GvOran>().etiket, kurulu.GvOran[i], yayimlanan.GvOran[i]);
  }
}

// There was no minimum-living allowance before 2008.
bool Yayimlandi(const YasalParametreler& yayimlanan, MevzuatBolumu bolum) {
  return bolum != MevzuatBolumu::Agi || yayimlanan.agi.AgiKendisi != Tek();
}

std::vector<RakamFarki> BolumFarklari(const YasalParametreler& kurulu, const YasalParametreler& yayimlanan,
                                      MevzuatBolumu bolum) {
  std::vector<RakamFarki> farklar;
  if (!Yayimlandi(yayimlanan, bolum)) return farklar;
  const Karsilastirma k{bolum, farklar};
  switch (bolum) {
    case MevzuatBolumu::Oranlar:
      k.HerRakam(kurulu.oranlar, yayimlanan.oranlar);
      break;
    case MevzuatBolumu::Vergi:
      TabloFarklari(k, kurulu.gv, yayimlanan.gv);
      break;
    case MevzuatBolumu::Agi:
      k.HerRakam(kurulu.agi, yayimlanan.agi);
      break;
  }
  return farklar;
}

}  // namespace

std::string MevzuatAyi::Metin() const {
  return std::string(AyAdi(ay)) + " " + std::to_string(yil);
}

std::string MevzuatAyi::Iso() const {
  return std::to_string(yil) + (ay < 10 ? "-0" : "-") + std::to_string(ay);
}

std::optional<MevzuatAyi> MevzuatAyi::IsoOku(std::string_view metin) {
  const Tarih gun = Tarih::IsoOku(std::string(metin) + "-01");
  if (gun.Bos()) return std::nullopt;
  return MevzuatAyi{gun.Yil(), gun.Ay()};
}

std::string_view BolumDosyasi(MevzuatBolumu bolum) {
  switch (bolum) {
    case MevzuatBolumu::Oranlar:
      return YasalKaydi::Dosya;
    case MevzuatBolumu::Vergi:
      return GvKaydi::Dosya;
    case MevzuatBolumu::Agi:
      return AgiKaydi::Dosya;
  }
  return {};
}

bool EskiLiraMi(const YasalParametreler& p) {
  return p.oranlar.AsgariUcret >= EskiLiraKati * EnAzAsgariUcret;
}

std::vector<std::string> RakamKusurlari(const YasalParametreler& p, MevzuatBolumu bolum) {
  std::vector<std::string> kusurlar;
  switch (bolum) {
    case MevzuatBolumu::Oranlar:
      TutarlariDenetle(kusurlar, p.oranlar, EskiLiraMi(p) ? EskiLiraKati : 1);
      OranlariDenetle(kusurlar, p.oranlar);
      break;
    case MevzuatBolumu::Vergi:
      TabloyuDenetle(kusurlar, p.gv);
      break;
    case MevzuatBolumu::Agi:
      AgiyiDenetle(kusurlar, p.agi);
      break;
  }
  return kusurlar;
}

std::vector<std::string> RakamKusurlari(const YasalParametreler& p) {
  std::vector<std::string> hepsi;
  for (const MevzuatBolumu bolum : MevzuatBolumleri)
    std::ranges::move(RakamKusurlari(p, bolum), std::back_inserter(hepsi));
  return hepsi;
}

std::vector<RakamFarki> RakamFarklari(const YasalParametreler& kurulu, const YasalParametreler& yayimlanan) {
  std::vector<RakamFarki> hepsi;
  for (const MevzuatBolumu bolum : MevzuatBolumleri)
    std::ranges::move(BolumFarklari(kurulu, yayimlanan, bolum), std::back_inserter(hepsi));
  return hepsi;
}

Sonuc<YasalParametreler> YayimlananRakamlar(const YasalParametreler& kurulu, MevzuatAyi ay) {
  return MevzuatYukle(MevzuatDizini(), ay.yil, ay.ay, EskiLiraMi(kurulu) ? Lira::Eski : Lira::Yeni);
}

std::optional<MevzuatAyi> IlkUyanAy(const YasalParametreler& kurulu,
                                    const std::function<bool(const YasalParametreler&)>& uyar) {
  constexpr int ilkYil = 2003, sonYil = 2009;
  for (int yil = ilkYil; yil <= sonYil; ++yil)
    for (int ay = 1; ay <= 12; ++ay)
      if (const auto yayimlanan = YayimlananRakamlar(kurulu, {yil, ay}); yayimlanan && uyar(*yayimlanan))
        return MevzuatAyi{yil, ay};
  return std::nullopt;
}

std::optional<MevzuatAyi> YayimlandigiAy(const YasalParametreler& kurulu, MevzuatBolumu bolum) {
  return IlkUyanAy(kurulu, [&](const YasalParametreler& yayimlanan) {
    return Yayimlandi(yayimlanan, bolum) && BolumFarklari(kurulu, yayimlanan, bolum).empty();
  });
}

}  // namespace belvani
