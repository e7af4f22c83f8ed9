#include "payroll/parametre/dosyalar.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

#include "core/dosya.h"
#include "payroll/parametre/kayitlar.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t EnCokOkunan = 1u << 20;
constexpr std::size_t EnAzKanunBoyu = 72;  // the four built-in rows
constexpr std::size_t EnAzFazlaMesaiBoyu = 9;

struct OkunanDosya {
  std::string baytlar = {};
  std::uintmax_t boy = 0;  // of the file; more than `baytlar` holds when it is absurdly large
  bool okunamadi = false;  // it is there, but its bytes cannot be had: it must not be written over
};

OkunanDosya Oku(const std::string& yol) {
  std::error_code hata;
  if (!fs::exists(yol, hata)) return {.okunamadi = bool(hata)};
  if (auto baytlar = DosyaOku(yol, EnCokOkunan)) return {*baytlar, baytlar->size(), false};
  const std::uintmax_t boy = fs::is_regular_file(yol, hata) ? fs::file_size(yol, hata) : 0;
  if (!hata && boy > EnCokOkunan) return {{}, boy, false};
  return {.okunamadi = true};
}

// Reads the files of one directory and gathers what there is to say about them.
class Yukleyici {
 public:
  // An absent file is worth a word in the data path; a company has its files only once somebody changed something.
  enum class Eksik { Bildirilir, Olagan };

  Yukleyici(const std::string& dizin, Eksik eksik, BozukDosya bozuk = BozukDosya::Onarilir)
      : dizin_(DizinSonu(dizin)), eksik_(eksik), bozuk_(bozuk) {}

  // The record where the file has its size, else nothing; `sonuc` tells the user what then happens.
  template <class Kayit>
  std::optional<typename Kayit::Deger> Al(const std::string& sonuc) {
    return Coz<Kayit>(Oku(dizin_ + std::string(Kayit::Dosya)), sonuc);
  }

  // The same, but a file of another size is replaced by the built-in record.
  template <class Kayit>
  typename Kayit::Deger AlYaDaYaz(const typename Kayit::Deger& hazir, const std::string& sonuc) {
    const OkunanDosya dosya = Oku(dizin_ + std::string(Kayit::Dosya));
    if (const auto deger = Coz<Kayit>(dosya, sonuc)) return *deger;
    Onar(Kayit::Dosya, dosya, KayitBaytlari<Kayit>(hazir));
    return hazir;
  }

  template <class Kayit>
  std::optional<typename Kayit::Deger> Coz(const OkunanDosya& dosya, const std::string& sonuc) {
    if (dosya.okunamadi || dosya.boy != Kayit::Boy) {
      BoyUyarisi(Kayit::Dosya, dosya, std::to_string(Kayit::Boy) + " bayt olmalıydı", sonuc);
      return std::nullopt;
    }
    return Parca<Kayit>(dosya.baytlar);
  }

  // One record out of the bytes of a file.
  template <class Kayit>
  typename Kayit::Deger Parca(std::string_view baytlar) {
    const auto cozum = KayitCoz<Kayit>(baytlar);
    if (cozum.gecersiz > 0) Uyar(Kayit::Dosya, std::to_string(cozum.gecersiz) + " alanı sayı değil: boş sayıldı.");
    return cozum.deger;
  }

  void BoyUyarisi(std::string_view ad, const OkunanDosya& dosya, const std::string& beklenen,
                  const std::string& sonuc) {
    if (dosya.okunamadi)
      Uyar(ad, "okunamadı: " + sonuc);
    else if (dosya.boy > 0)
      Uyar(ad, std::to_string(dosya.boy) + " bayt, " + beklenen + ": " + sonuc);
    else if (!EksikligiOlagan(ad))
      Uyar(ad, "yok ya da boş: " + sonuc);
  }

  // Puts the built-in record in the place of a file that does not serve, so far as that is wanted.
  void Onar(std::string_view ad, const OkunanDosya& dosya, const std::string& baytlar) {
    const bool bosYer = dosya.boy == 0 && EksikligiOlagan(ad);
    if (dosya.okunamadi || (bozuk_ == BozukDosya::Kalir && !bosYer)) return;
    if (const auto durum = DosyaYaz(dizin_ + std::string(ad), baytlar); !durum) uyarilar_.push_back(durum.KusurMetni());
  }

  void Uyar(std::string_view ad, const std::string& metin) { uyarilar_.push_back(std::string(ad) + " " + metin); }

  // Nobody downloads or sends kanun.dat.
  bool EksikligiOlagan(std::string_view ad) const { return eksik_ == Eksik::Olagan || ad == KanunKaydi::Dosya; }

  const std::string& Dizin() const { return dizin_; }
  std::vector<std::string> Uyarilar() && { return std::move(uyarilar_); }

 private:
  std::string dizin_;
  Eksik eksik_;
  BozukDosya bozuk_;
  std::vector<std::string> uyarilar_;
};

AgiTablosu VarsayilanAgi(Tutar asgariUcret, Tek cocuk4) {
  return {Tek(50), Tek(10), Tek(7.5), Tek(5), cocuk4, asgariUcret};
}

AgiTablosu AgiYukle(Yukleyici& y, Tutar asgariUcret, Tek cocuk4) {
  const auto hazir = VarsayilanAgi(asgariUcret, cocuk4);
  return AgiTabaniIle(y.AlYaDaYaz<AgiKaydi>(hazir, "hazır oranlar yazıldı."), asgariUcret);
}

std::string KanunBaytlari(const Kanunlar& kanunlar) {
  std::string baytlar;
  for (const auto& satir : kanunlar) baytlar += KayitBaytlari<KanunKaydi>(satir);
  return baytlar;
}

Kanunlar KanunlariYukle(Yukleyici& y) {
  OkunanDosya dosya = Oku(y.Dizin() + std::string(KanunKaydi::Dosya));
  if (dosya.boy > dosya.baytlar.size()) dosya.okunamadi = true;
  if (dosya.okunamadi || dosya.boy < EnAzKanunBoyu) {
    y.BoyUyarisi(KanunKaydi::Dosya, dosya, "en az 72 bayt olmalıydı", "hazır dönemler alındı.");
    y.Onar(KanunKaydi::Dosya, dosya, KanunBaytlari(VarsayilanKanunlar()));
    return VarsayilanKanunlar();
  }
  if (dosya.boy % KanunKaydi::Boy != 0) y.Uyar(KanunKaydi::Dosya, "yarım bir satırla bitiyor: o satır alınmadı.");
  Kanunlar kanunlar;
  const std::string_view baytlar = dosya.baytlar;
  for (std::size_t yer = 0; yer + KanunKaydi::Boy <= baytlar.size(); yer += KanunKaydi::Boy)
    kanunlar.push_back(y.Parca<KanunKaydi>(baytlar.substr(yer, KanunKaydi::Boy)));
  return kanunlar;
}

template <class Kayit>
Durum Kaydet(const std::string& dizin, const typename Kayit::Deger& deger) {
  return DosyaYaz(DizinSonu(dizin) + std::string(Kayit::Dosya), KayitBaytlari<Kayit>(deger));
}

}  // namespace

Yukleme<YasalParametreler> YasalDosyalariYukle(const std::string& dataPath, const YasalParametreler& simdiki,
                                               BozukDosya bozuk) {
  Yukleyici y(dataPath, Yukleyici::Eksik::Bildirilir, bozuk);
  YasalParametreler p;
  p.oranlar = y.Al<YasalKaydi>("yasal oranlar sıfır alındı.").value_or(YasalOranlar());
  p.gv = y.Al<GvKaydi>("gelir vergisi tablosu değişmedi.").value_or(simdiki.gv);
  p.agi = AgiYukle(y, p.oranlar.AsgariUcret, simdiki.agi.AgiCocuk4);
  p.hesapTurleri = y.AlYaDaYaz<HesapTurKaydi>(VarsayilanHesapTurleri(), "hazır sigorta kolları yazıldı.");
  p.kanunlar = KanunlariYukle(y);
  return {p, std::move(y).Uyarilar()};
}

Yukleme<GvTablosu> OzelGvYukle(const std::string& dataPath) {
  Yukleyici y(dataPath, Yukleyici::Eksik::Bildirilir);
  const auto tablo = y.Al<OzelGvKaydi>("özel gider vergi tablosu sıfır alındı.");
  return {tablo.value_or(GvTablosu()), std::move(y).Uyarilar()};
}

Yukleme<KazancBayraklari> KazancBayraklariYukle(const std::string& firmaDizini) {
  Yukleyici y(firmaDizini, Yukleyici::Eksik::Olagan);
  KazancBayraklari bayraklar = VarsayilanKazancBayraklari();
  const OkunanDosya kazanc = Oku(y.Dizin() + std::string(KazancKaydi::Dosya));
  if (kazanc.boy == 0 && !kazanc.okunamadi)
    y.Onar(KazancKaydi::Dosya, kazanc, KayitBaytlari<KazancKaydi>(bayraklar.k));
  else
    bayraklar.k = y.Coz<KazancKaydi>(kazanc, "hazır kazanç tanımları alındı.").value_or(bayraklar.k);
  bayraklar.y = y.Al<YardimKaydi>("yardım tanımları sıfır alındı.").value_or(bayraklar.y);
  return {bayraklar, std::move(y).Uyarilar()};
}

Yukleme<FazlaMesailer> FazlaMesaiYukle(const std::string& firmaDizini) {
  Yukleyici y(firmaDizini, Yukleyici::Eksik::Olagan);
  FazlaMesailer mesailer = VarsayilanFazlaMesailer();
  const OkunanDosya dosya = Oku(y.Dizin() + std::string(FazlaMesaiKaydi::Dosya));
  const std::size_t tamBoy = mesailer.size() * FazlaMesaiKaydi::Boy;
  if (dosya.okunamadi || dosya.boy != tamBoy)
    y.BoyUyarisi(FazlaMesaiKaydi::Dosya, dosya, std::to_string(tamBoy) + " bayt olmalıydı",
                 "eksik satırlar hazır değerleriyle alındı.");
  const std::string_view baytlar = dosya.baytlar;
  if (baytlar.size() < EnAzFazlaMesaiBoyu) return {mesailer, std::move(y).Uyarilar()};
  const std::size_t tamSatir = std::min(mesailer.size(), baytlar.size() / FazlaMesaiKaydi::Boy);
  for (std::size_t i = 0; i < tamSatir; ++i)
    mesailer[i] = y.Parca<FazlaMesaiKaydi>(baytlar.substr(i * FazlaMesaiKaydi::Boy, FazlaMesaiKaydi::Boy));
  return {mesailer, std::move(y).Uyarilar()};
}

Yukleme<Sablon> SablonYukle(const std::string& firmaDizini, BozukDosya bozuk) {
  Yukleyici y(firmaDizini, Yukleyici::Eksik::Olagan, bozuk);
  const Sablon sablon = y.AlYaDaYaz<SablonKaydi>(VarsayilanSablon(), "hazır şablon yazıldı.");
  return {sablon, std::move(y).Uyarilar()};
}

Yukleme<Sablon> SablonOku(const std::string& firmaDizini) {
  Yukleyici y(firmaDizini, Yukleyici::Eksik::Olagan);
  const auto sablon = y.Al<SablonKaydi>("hazır şablon alındı.");
  return {sablon.value_or(VarsayilanSablon()), std::move(y).Uyarilar()};
}

Durum YasalOranlarKaydet(const std::string& dataPath, const YasalOranlar& oranlar) {
  return Kaydet<YasalKaydi>(dataPath, oranlar);
}

Durum GvTablosuKaydet(const std::string& dataPath, const GvTablosu& tablo) {
  return Kaydet<GvKaydi>(dataPath, tablo);
}

Durum AgiTablosuKaydet(const std::string& dataPath, const AgiTablosu& tablo) {
  return Kaydet<AgiKaydi>(dataPath, tablo);
}

Durum HesapTurleriKaydet(const std::string& dataPath, const HesapTurleri& turler) {
  return Kaydet<HesapTurKaydi>(dataPath, turler);
}

Durum KanunlarKaydet(const std::string& dataPath, const Kanunlar& kanunlar) {
  for (const auto& satir : kanunlar) {
    if (satir.bastar.Bos()) return Kusur{"Kanun Başlangıç Tarihi Hatalı"};
    if (satir.bittar.Bos()) return Kusur{"Kanun Bitiş Tarihi Hatalı"};
  }
  return DosyaYaz(DizinSonu(dataPath) + std::string(KanunKaydi::Dosya), KanunBaytlari(kanunlar));
}

Durum OzelGvKaydet(const std::string& dataPath, const GvTablosu& tablo) {
  return Kaydet<OzelGvKaydi>(dataPath, tablo);
}

Durum KazancKaydet(const std::string& firmaDizini, const KazancBayraklari& bayraklar) {
  return Kaydet<KazancKaydi>(firmaDizini, bayraklar.k);
}

Durum YardimKaydet(const std::string& firmaDizini, const KazancBayraklari& bayraklar) {
  return Kaydet<YardimKaydi>(firmaDizini, bayraklar.y);
}

Durum FazlaMesaiKaydet(const std::string& firmaDizini, const FazlaMesailer& mesailer) {
  std::string baytlar;
  for (const auto& mesai : mesailer) baytlar += KayitBaytlari<FazlaMesaiKaydi>(mesai);
  return DosyaYaz(DizinSonu(firmaDizini) + std::string(FazlaMesaiKaydi::Dosya), baytlar);
}

Durum SablonKaydet(const std::string& firmaDizini, const Sablon& sablon) {
  return Kaydet<SablonKaydi>(firmaDizini, sablon);
}

}  // namespace belvani
