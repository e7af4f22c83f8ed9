#include "payroll/parametre/dosyalar.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "payroll/parametre/kayitlar.h"

namespace belvani {
namespace {

constexpr std::size_t EnCokOkunan = 1u << 20;
constexpr std::size_t EnAzKanunBoyu = 72;  // the four built-in rows
constexpr std::size_t EnAzFazlaMesaiBoyu = 9;

// Reads the files of one place and gathers what there is to say about them.
class Yukleyici {
 public:
  // An absent file is worth a word in the data path; a company has its files only once somebody changed something.
  enum class Eksik { Bildirilir, Olagan };

  Yukleyici(const VeriYolu& yol, Eksik eksik, BozukDosya bozuk = BozukDosya::Onarilir, DosyaHalleri okunan = {})
      : yol_(yol), eksik_(eksik), bozuk_(bozuk), okunan_(std::move(okunan)) {}

  // The record where the file has its size, else nothing; `sonuc` tells the user what then happens.
  template <class Kayit>
  std::optional<typename Kayit::Deger> Al(const std::string& sonuc) {
    return Coz<Kayit>(Bak(Kayit::Dosya), sonuc);
  }

  // The same, but a file of another size is replaced by the built-in record `hazir`, known to the user by that name.
  template <class Kayit>
  typename Kayit::Deger AlYaDaYaz(const typename Kayit::Deger& hazir, const std::string& ad) {
    const DosyaHali dosya = Bak(Kayit::Dosya);
    if (!BoyuBaska<Kayit>(dosya)) return Parca<Kayit>(dosya.baytlar);
    const auto onarim = Onar(Kayit::Dosya, dosya, KayitBaytlari<Kayit>(hazir));
    BoyUyarisi<Kayit>(dosya, ad + (onarim && *onarim ? " yazıldı." : " alındı."));
    OnarilamadiysaUyar(onarim);
    return hazir;
  }

  template <class Kayit>
  std::optional<typename Kayit::Deger> Coz(const DosyaHali& dosya, const std::string& sonuc) {
    if (!BoyuBaska<Kayit>(dosya)) return Parca<Kayit>(dosya.baytlar);
    BoyUyarisi<Kayit>(dosya, sonuc);
    return std::nullopt;
  }

  template <class Kayit>
  static bool BoyuBaska(const DosyaHali& dosya) {
    return dosya.okunamadi || dosya.boy != Kayit::Boy;
  }
  template <class Kayit>
  void BoyUyarisi(const DosyaHali& dosya, const std::string& olan) {
    BoyUyarisi(Kayit::Dosya, dosya, std::to_string(Kayit::Boy) + " bayt olmalıydı", olan);
  }

  // One record out of the bytes of a file.
  template <class Kayit>
  typename Kayit::Deger Parca(std::string_view baytlar) {
    const auto cozum = KayitCoz<Kayit>(baytlar);
    if (cozum.gecersiz > 0) Uyar(Kayit::Dosya, std::to_string(cozum.gecersiz) + " alanı sayı değil: boş sayıldı.");
    return cozum.deger;
  }

  // What then happens is told only where it does.
  void BoyUyarisi(std::string_view ad, const DosyaHali& dosya, const std::string& beklenen, const std::string& olan) {
    const std::string sonuc = bozuk_ == BozukDosya::Dokunulmaz ? "" : ": " + olan;
    if (dosya.okunamadi)
      Uyar(ad, "okunamadı" + sonuc);
    else if (dosya.boy > 0)
      Uyar(ad, std::to_string(dosya.boy) + " bayt, " + beklenen + sonuc);
    else if (!EksikligiOlagan(ad))
      Uyar(ad, "yok ya da boş" + sonuc);
  }

  // Puts the built-in record in the place of a file that does not serve. Nothing where that is not wanted.
  std::optional<Durum> Onar(std::string_view ad, const DosyaHali& dosya, const std::string& baytlar) {
    const bool bosYer = dosya.boy == 0 && EksikligiOlagan(ad);
    if (dosya.okunamadi || bozuk_ == BozukDosya::Dokunulmaz || (bozuk_ == BozukDosya::Kalir && !bosYer))
      return std::nullopt;
    return yol_.Yaz(ad, baytlar);
  }
  void OnarilamadiysaUyar(const std::optional<Durum>& onarim) {
    if (onarim && !*onarim) uyarilar_.push_back(onarim->KusurMetni());
  }

  void Uyar(std::string_view ad, const std::string& metin) { uyarilar_.push_back(std::string(ad) + " " + metin); }

  // Nobody downloads or sends kanun.dat.
  bool EksikligiOlagan(std::string_view ad) const { return eksik_ == Eksik::Olagan || ad == KanunKaydi::Dosya; }

  DosyaHali Bak(std::string_view ad) const {
    const auto hal = okunan_.find(ad);
    return hal == okunan_.end() ? yol_.Bak(ad, EnCokOkunan) : hal->second;
  }
  std::vector<std::string> Uyarilar() && { return std::move(uyarilar_); }

 private:
  const VeriYolu& yol_;
  Eksik eksik_;
  BozukDosya bozuk_;
  DosyaHalleri okunan_;
  std::vector<std::string> uyarilar_;
};

AgiTablosu VarsayilanAgi(Tutar asgariUcret, Tek cocuk4) {
  return {Tek(50), Tek(10), Tek(7.5), Tek(5), cocuk4, asgariUcret};
}

AgiTablosu AgiYukle(Yukleyici& y, Tutar asgariUcret, Tek cocuk4) {
  const auto hazir = VarsayilanAgi(asgariUcret, cocuk4);
  return AgiTabaniIle(y.AlYaDaYaz<AgiKaydi>(hazir, "hazır oranlar"), asgariUcret);
}

std::string KanunBaytlari(const Kanunlar& kanunlar) {
  std::string baytlar;
  for (const auto& satir : kanunlar) baytlar += KayitBaytlari<KanunKaydi>(satir);
  return baytlar;
}

Kanunlar KanunlariYukle(Yukleyici& y) {
  DosyaHali dosya = y.Bak(KanunKaydi::Dosya);
  if (dosya.boy > dosya.baytlar.size()) dosya.okunamadi = true;
  if (dosya.okunamadi || dosya.boy < EnAzKanunBoyu) {
    y.BoyUyarisi(KanunKaydi::Dosya, dosya, "en az 72 bayt olmalıydı", "hazır dönemler alındı.");
    y.OnarilamadiysaUyar(y.Onar(KanunKaydi::Dosya, dosya, KanunBaytlari(VarsayilanKanunlar())));
    return VarsayilanKanunlar();
  }
  if (dosya.boy % KanunKaydi::Boy != 0) y.Uyar(KanunKaydi::Dosya, "yarım bir satırla bitiyor: o satır alınmadı.");
  Kanunlar kanunlar;
  const std::string_view baytlar = dosya.baytlar;
  for (std::size_t yer = 0; yer + KanunKaydi::Boy <= baytlar.size(); yer += KanunKaydi::Boy)
    kanunlar.push_back(y.Parca<KanunKaydi>(baytlar.substr(yer, KanunKaydi::Boy)));
  return kanunlar;
}

Yukleme<YasalParametreler> YasalYukle(Yukleyici y, const YasalParametreler& simdiki) {
  YasalParametreler p;
  p.oranlar = y.Al<YasalKaydi>("yasal oranlar sıfır alındı.").value_or(YasalOranlar());
  p.gv = y.Al<GvKaydi>("gelir vergisi tablosu değişmedi.").value_or(simdiki.gv);
  p.agi = AgiYukle(y, p.oranlar.AsgariUcret, simdiki.agi.AgiCocuk4);
  p.hesapTurleri = y.AlYaDaYaz<HesapTurKaydi>(VarsayilanHesapTurleri(), "hazır sigorta kolları");
  p.kanunlar = KanunlariYukle(y);
  return {p, std::move(y).Uyarilar()};
}

template <class Kayit>
Durum Kaydet(const VeriYolu& yol, const typename Kayit::Deger& deger) {
  return yol.Yaz(Kayit::Dosya, KayitBaytlari<Kayit>(deger));
}

}  // namespace

Yukleme<YasalParametreler> YasalDosyalariYukle(const VeriYolu& veri, const YasalParametreler& simdiki,
                                               BozukDosya bozuk) {
  return YasalYukle(Yukleyici(veri, Yukleyici::Eksik::Bildirilir, bozuk, YasalDosyalariOku(veri)), simdiki);
}

DosyaHalleri YasalDosyalariOku(const VeriYolu& veri, std::string_view ayrica) {
  std::vector<std::string_view> adlar{YasalKaydi::Dosya, GvKaydi::Dosya, AgiKaydi::Dosya, HesapTurKaydi::Dosya,
                                      KanunKaydi::Dosya};
  if (!ayrica.empty()) adlar.push_back(ayrica);
  std::vector<DosyaHali> haller = veri.BakHepsi(adlar, EnCokOkunan);
  DosyaHalleri okunan;
  for (std::size_t i = 0; i < adlar.size(); ++i) okunan.emplace(adlar[i], std::move(haller[i]));
  return okunan;
}

Yukleme<YasalParametreler> YasalDosyalariCoz(const VeriYolu& veri, const DosyaHalleri& haller) {
  return YasalYukle(Yukleyici(veri, Yukleyici::Eksik::Bildirilir, BozukDosya::Dokunulmaz, haller), {});
}

Yukleme<GvTablosu> OzelGvYukle(const VeriYolu& veri) {
  Yukleyici y(veri, Yukleyici::Eksik::Bildirilir);
  const auto tablo = y.Al<OzelGvKaydi>("özel gider vergi tablosu sıfır alındı.");
  return {tablo.value_or(GvTablosu()), std::move(y).Uyarilar()};
}

Yukleme<OzelGiderParametreleri> OzelGiderYukle(const VeriYolu& sirket, const OzelGiderParametreleri& hazir,
                                               BozukDosya bozuk) {
  Yukleyici y(sirket, Yukleyici::Eksik::Olagan, bozuk);
  const auto parametreler = y.AlYaDaYaz<OzelGiderKaydi>(hazir, "hazır değerler");
  return {parametreler, std::move(y).Uyarilar()};
}

Yukleme<KazancBayraklari> KazancBayraklariYukle(const VeriYolu& sirket) {
  Yukleyici y(sirket, Yukleyici::Eksik::Olagan);
  KazancBayraklari bayraklar = VarsayilanKazancBayraklari();
  const DosyaHali kazanc = y.Bak(KazancKaydi::Dosya);
  if (kazanc.boy == 0 && !kazanc.okunamadi)
    y.Onar(KazancKaydi::Dosya, kazanc, KayitBaytlari<KazancKaydi>(bayraklar.k));
  else
    bayraklar.k = y.Coz<KazancKaydi>(kazanc, "hazır kazanç tanımları alındı.").value_or(bayraklar.k);
  bayraklar.y = y.Al<YardimKaydi>("yardım tanımları sıfır alındı.").value_or(bayraklar.y);
  return {bayraklar, std::move(y).Uyarilar()};
}

Yukleme<FazlaMesailer> FazlaMesaiYukle(const VeriYolu& sirket) {
  Yukleyici y(sirket, Yukleyici::Eksik::Olagan);
  FazlaMesailer mesailer = VarsayilanFazlaMesailer();
  const DosyaHali dosya = y.Bak(FazlaMesaiKaydi::Dosya);
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

Yukleme<Sablon> SablonYukle(const VeriYolu& sirket, BozukDosya bozuk) {
  Yukleyici y(sirket, Yukleyici::Eksik::Olagan, bozuk);
  const Sablon sablon = y.AlYaDaYaz<SablonKaydi>(VarsayilanSablon(), "hazır şablon yazıldı.");
  return {sablon, std::move(y).Uyarilar()};
}

Yukleme<Sablon> SablonOku(const VeriYolu& sirket) {
  Yukleyici y(sirket, Yukleyici::Eksik::Olagan);
  const auto sablon = y.Al<SablonKaydi>("hazır şablon alındı.");
  return {sablon.value_or(VarsayilanSablon()), std::move(y).Uyarilar()};
}

Yukleme<KidemParametreleri> KidemParOku(const VeriYolu& sirket) {
  Yukleyici y(sirket, Yukleyici::Eksik::Olagan);
  const KidemParametreleri kidem = y.AlYaDaYaz<KidemParKaydi>({}, "hazır kıdem parametreleri");
  return {kidem, std::move(y).Uyarilar()};
}

Yukleme<IhbarSureleri> IhbarSureOku(const VeriYolu& sirket) {
  Yukleyici y(sirket, Yukleyici::Eksik::Olagan);
  const IhbarSureleri sureler = y.AlYaDaYaz<IhbarSureKaydi>(VarsayilanIhbarSureleri, "hazır ihbar süreleri");
  return {sureler, std::move(y).Uyarilar()};
}

Durum YasalOranlarKaydet(const VeriYolu& veri, const YasalOranlar& oranlar) {
  return Kaydet<YasalKaydi>(veri, oranlar);
}

Durum GvTablosuKaydet(const VeriYolu& veri, const GvTablosu& tablo) {
  return Kaydet<GvKaydi>(veri, tablo);
}

Durum AgiTablosuKaydet(const VeriYolu& veri, const AgiTablosu& tablo) {
  return Kaydet<AgiKaydi>(veri, tablo);
}

Durum HesapTurleriKaydet(const VeriYolu& veri, const HesapTurleri& turler) {
  return Kaydet<HesapTurKaydi>(veri, turler);
}

Durum KanunlarKaydet(const VeriYolu& veri, const Kanunlar& kanunlar) {
  for (const auto& satir : kanunlar) {
    if (satir.bastar.Bos()) return Kusur{"Kanun Başlangıç Tarihi Hatalı"};
    if (satir.bittar.Bos()) return Kusur{"Kanun Bitiş Tarihi Hatalı"};
  }
  return veri.Yaz(KanunKaydi::Dosya, KanunBaytlari(kanunlar));
}

Durum OzelGvKaydet(const VeriYolu& veri, const GvTablosu& tablo) {
  return Kaydet<OzelGvKaydi>(veri, tablo);
}

Durum OzelGiderKaydet(const VeriYolu& sirket, const OzelGiderParametreleri& parametreler) {
  if (auto kusur = OzelGiderParametreKusuru(parametreler)) return *std::move(kusur);
  return Kaydet<OzelGiderKaydi>(sirket, parametreler);
}

Durum FazlaMesaiKaydet(const VeriYolu& sirket, const FazlaMesailer& mesailer) {
  std::string baytlar;
  for (const auto& mesai : mesailer) baytlar += KayitBaytlari<FazlaMesaiKaydi>(mesai);
  return sirket.Yaz(FazlaMesaiKaydi::Dosya, baytlar);
}

Durum SablonKaydet(const VeriYolu& sirket, const Sablon& sablon) {
  return Kaydet<SablonKaydi>(sirket, sablon);
}

Durum KidemParKaydet(const VeriYolu& sirket, const KidemParametreleri& kidem) {
  return Kaydet<KidemParKaydi>(sirket, kidem);
}

Durum IhbarSureKaydet(const VeriYolu& sirket, const IhbarSureleri& sureler) {
  return Kaydet<IhbarSureKaydi>(sirket, sureler);
}

}  // namespace belvani
