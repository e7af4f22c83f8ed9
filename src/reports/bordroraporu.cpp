#include "reports/bordroraporu.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>

#include "core/asama.h"
#include "core/store/izlenenokuma.h"
#include "core/turkce.h"
#include "payroll/parametre/ikili.h"
#include "reports/kisiaraligi.h"
#include "reports/raporalani.h"

namespace belvani {
namespace {

constexpr std::size_t KayitBoyu = 48;
constexpr std::int16_t BasTuru = 2;

void Yaz(IkiliYazici& y, const BordroKolonu& kolon) {
  y.Metin(kolon.alan, RaporMetniHarfi);
  y.Metin(kolon.baslik, RaporMetniHarfi);
  y.Bayt(kolon.en);
  y.Bayt(kolon.ondalik);
  y.Kisa(kolon.sakli);
  y.Kisa(kolon.toplanir ? -1 : 0);
  y.Kisa(kolon.tur);
}

BordroKolonu Oku(std::string_view kayit) {
  IkiliOkuyucu o(kayit);
  BordroKolonu kolon;
  std::int16_t toplam = 0;
  o.Metin(kolon.alan, RaporMetniHarfi);
  o.Metin(kolon.baslik, RaporMetniHarfi);
  o.Bayt(kolon.en);
  o.Bayt(kolon.ondalik);
  o.Kisa(kolon.sakli);
  o.Kisa(toplam);
  o.Kisa(kolon.tur);
  kolon.toplanir = toplam != 0;
  kolon.baslik = Kirp(kolon.baslik);
  return kolon;
}

// A column of the report: what it shows, and where it stands among the columns of its query (-1: in none of them).
struct CiktiKolonu {
  const RaporAlani* alan;
  int en;
  bool toplanir;
  int kisi = -1;  // among those of the person
  int kayit = -1;
};

// It stands in the first column of texts, and fits there.
std::string ToplamEtiketi(const BordroKolonlari& kolonlar) {
  for (const auto& kolon : kolonlar) {
    if (RaporAlaniBul(BordroAlanlari(), kolon.alan)->Turu() != KolonTuru::Metin) continue;
    for (const std::string_view etiket : {"T O P L A M", "TOPLAM", "TOP."})
      if (etiket.size() <= kolon.en) return std::string(etiket);
    return {};
  }
  return {};
}

bool KayittanMi(const RaporAlani& alan) {
  return alan.sql.starts_with("b.");
}

// A person, with the cells that do not change from record to record.
struct Kisi {
  std::vector<Hucre> hucreler;
  std::string adSoyad;
};

struct Kayit {
  int kisi = 0;  // place among the people, who stand in the order of their codes
  int yil = 0, ay = 0, no = 0;
  std::vector<Hucre> hucreler;

  auto Sira() const { return std::tuple(kisi, yil, ay, no); }
};

class Uretim {
 public:
  Uretim(Motor& motor, const BordroKolonlari& kolonlar, const BordroRaporuSecimi& secim, Ilerleme* ilerleme)
      : motor_(motor), secim_(secim), ilerleme_(ilerleme) {
    int kisi = 0, kayit = 0;
    for (const auto& kolon : kolonlar) {
      CiktiKolonu k{.alan = RaporAlaniBul(BordroAlanlari(), kolon.alan), .en = kolon.en, .toplanir = kolon.toplanir};
      if (!k.alan->sql.empty()) (KayittanMi(*k.alan) ? k.kayit = kayit++ : k.kisi = kisi++);
      kolonlar_.push_back(k);
    }
  }

  void Doldur(Rapor& rapor, std::size_t enCok) {
    KisileriOku();
    KayitlariOku();
    std::ranges::sort(kayitlar_, {}, &Kayit::Sira);
    Asama asama(ilerleme_, kayitlar_.size());
    for (auto ilk = kayitlar_.begin(); ilk != kayitlar_.end() && rapor.Satirlar().size() < enCok;) {
      asama.Adim();
      auto son = ilk + 1;
      if (secim_.kisiBasina)
        for (; son != kayitlar_.end() && son->kisi == ilk->kisi; ++son) Topla(*ilk, *son);
      rapor.Ekle({.hucreler = Hucreler(*ilk, std::int64_t(rapor.Satirlar().size()) + 1)});
      ilk = son;
    }
  }

 private:
  std::string Secilenler(int CiktiKolonu::*yeri) const {
    std::string liste;
    for (const auto& kolon : kolonlar_)
      if (kolon.*yeri >= 0) liste += ", " + kolon.alan->sql;
    return liste;
  }

  // Of the row that stands ready, from column `ilk` on.
  std::vector<Hucre> Oku(const Komut& komut, int ilk, int CiktiKolonu::*yeri) const {
    std::vector<Hucre> hucreler;
    for (const auto& kolon : kolonlar_)
      if (kolon.*yeri >= 0) hucreler.push_back(AlanHucresi(komut, ilk++, *kolon.alan, kolon.en));
    return hucreler;
  }

  void KisileriOku() {
    SorguMetni sorgu("select s.kod, s.adi, s.soyadi" + Secilenler(&CiktiKolonu::kisi) +
                         " from sicil s join kimlik k on k.kod = s.kod where 1 = 1",
                     {});
    KisileriSec(sorgu, secim_.kisiler);
    sorgu.Ekle(" order by s.kod");
    const auto komut = sorgu.Hazirla(motor_);
    for (IzlenenOkuma okuma(*komut, ilerleme_); okuma.Adim();) {
      yerler_.emplace(BuyukHarf(komut->Metin(0)), int(kisiler_.size()));
      kisiler_.push_back(
          {.hucreler = Oku(*komut, 3, &CiktiKolonu::kisi),
           .adSoyad = std::string(Kirp(std::string(komut->Metin(1)) + " " + std::string(komut->Metin(2))))});
    }
  }

  // Place of the person of a record; -1 when he is not in the report. The same code mostly comes in the same letters.
  int KisiYeri(std::string_view kod) {
    const auto bulunan = gorulen_.find(std::string(kod));
    if (bulunan != gorulen_.end()) return bulunan->second;
    const auto yeri = yerler_.find(BuyukHarf(kod));
    return gorulen_.emplace(kod, yeri == yerler_.end() ? -1 : yeri->second).first->second;
  }

  void KayitlariOku() {
    SorguMetni sorgu("select b.kod, b.yil, b.ay, b.no" + Secilenler(&CiktiKolonu::kayit) +
                         " from brd b where b.yil between ? and ? and b.ay between ? and ?",
                     {std::int64_t(secim_.ilkYil), std::int64_t(secim_.sonYil), std::int64_t(secim_.ilkAy),
                      std::int64_t(secim_.sonAy)});
    const auto komut = sorgu.Hazirla(motor_);
    for (IzlenenOkuma okuma(*komut, ilerleme_); okuma.Adim();) {
      const int kisi = KisiYeri(komut->Metin(0));
      if (kisi < 0) continue;
      kayitlar_.push_back({.kisi = kisi,
                           .yil = int(komut->Tam(1)),
                           .ay = int(komut->Tam(2)),
                           .no = int(komut->Tam(3)),
                           .hucreler = Oku(*komut, 4, &CiktiKolonu::kayit)});
    }
  }

  // Two records of one person: sums where a column is summed, else the later one's.
  void Topla(Kayit& toplam, Kayit& sonraki) const {
    for (const auto& kolon : kolonlar_) {
      if (kolon.kayit < 0) continue;
      Hucre& t = toplam.hucreler[std::size_t(kolon.kayit)];
      Hucre& s = sonraki.hucreler[std::size_t(kolon.kayit)];
      if (!kolon.toplanir || std::holds_alternative<Null>(t))
        t = std::move(s);
      else if (auto* tutar = std::get_if<Tutar>(&t); tutar != nullptr && std::holds_alternative<Tutar>(s))
        *tutar += std::get<Tutar>(s);
      else if (auto* sayi = std::get_if<std::int64_t>(&t); sayi != nullptr && std::holds_alternative<std::int64_t>(s))
        *sayi += std::get<std::int64_t>(s);
    }
  }

  std::vector<Hucre> Hucreler(Kayit& kayit, std::int64_t sira) const {
    const Kisi& kisi = kisiler_[std::size_t(kayit.kisi)];
    std::vector<Hucre> hucreler;
    hucreler.reserve(kolonlar_.size());
    for (const auto& kolon : kolonlar_) {
      if (kolon.kayit >= 0)
        hucreler.push_back(std::move(kayit.hucreler[std::size_t(kolon.kayit)]));
      else if (kolon.kisi >= 0)
        hucreler.push_back(kisi.hucreler[std::size_t(kolon.kisi)]);
      else if (kolon.alan->kaynak == RaporAlani::Kaynak::Sira)
        hucreler.emplace_back(sira);
      else if (kolon.alan->kaynak == RaporAlani::Kaynak::AdSoyad)
        hucreler.emplace_back(std::string(IlkHarfler(kisi.adSoyad, std::size_t(kolon.en))));
      else
        hucreler.emplace_back(Null{});
    }
    return hucreler;
  }

  Motor& motor_;
  const BordroRaporuSecimi& secim_;
  Ilerleme* ilerleme_;
  std::vector<CiktiKolonu> kolonlar_;
  std::vector<Kisi> kisiler_;
  std::unordered_map<std::string, int> yerler_;   // by the folded code
  std::unordered_map<std::string, int> gorulen_;  // by the code as records have it
  std::vector<Kayit> kayitlar_;
};

}  // namespace

std::optional<Kusur> KolonKusuru(const BordroKolonu& kolon) {
  const auto yeri = [](const char* ad) { return AlanTutamagi{typeid(BordroKolonu), ad}; };
  if (RaporAlaniBul(BordroAlanlari(), kolon.alan) == nullptr)
    return KuralKusuru("Database Alanı Secilmemiş..", yeri("alan"));
  if (kolon.en == 0) return KuralKusuru("En Sıfırdan Büyük Olmalı", yeri("en"));
  if (kolon.ondalik > EnCokRaporOndaligi)
    return KuralKusuru("Ondalık en çok " + std::to_string(EnCokRaporOndaligi) + " olabilir", yeri("ondalik"));
  if (!RaporMetniSigar(kolon.baslik))
    return KuralKusuru("Rapor dosyasına yazılamayan metin: " + kolon.baslik, yeri("baslik"));
  return {};
}

std::string BordroRaporuBaytlari(const BordroKolonlari& kolonlar) {
  IkiliYazici y;
  Yaz(y, {.alan = {}, .baslik = {}, .tur = BasTuru});
  for (const auto& kolon : kolonlar) Yaz(y, kolon);
  return y.Baytlar();
}

Sonuc<BordroKolonlari> BordroRaporuCoz(std::string_view baytlar) {
  if (baytlar.empty() || baytlar.size() % KayitBoyu != 0 || baytlar.size() / KayitBoyu > EnCokBordroKolonu + 1 ||
      Oku(baytlar).tur != BasTuru)
    return KuralKusuru(BozukRapor);
  BordroKolonlari kolonlar;
  for (std::size_t yer = KayitBoyu; yer < baytlar.size(); yer += KayitBoyu) {
    BordroKolonu kolon = Oku(baytlar.substr(yer, KayitBoyu));
    if (const auto kusur = KolonKusuru(kolon))
      return KuralKusuru(std::string(BozukRapor) + "\n" + std::to_string(yer / KayitBoyu) + ". kolon: " + kusur->metin);
    kolonlar.push_back(std::move(kolon));
  }
  return kolonlar;
}

BordroRaporuSecimi SonAyi(Motor& motor, BordroRaporuSecimi secim) {
  const SorguMetni sorgu(
      "select yil, ay from brd where yil between ? and ? and ay between ? and ? "
      "order by yil desc, ay desc limit 1",
      {std::int64_t(secim.ilkYil), std::int64_t(secim.sonYil), std::int64_t(secim.ilkAy), std::int64_t(secim.sonAy)});
  if (const auto komut = sorgu.Hazirla(motor); komut->Adim()) {
    secim.ilkYil = secim.sonYil = int(komut->Tam(0));
    secim.ilkAy = secim.sonAy = int(komut->Tam(1));
  }
  return secim;
}

Rapor BordroRaporu(Motor& motor, const BordroKolonlari& kolonlar, const BordroRaporuSecimi& secim,
                   const RaporBicimi& bicim, Ilerleme* ilerleme) {
  std::vector<RaporKolonu> raporunki;
  for (const auto& kolon : kolonlar) {
    const KolonTuru tur = RaporAlaniBul(BordroAlanlari(), kolon.alan)->Turu();
    const bool sayisal = tur == KolonTuru::Tam || tur == KolonTuru::Tutar;
    raporunki.push_back({.baslik = kolon.baslik,
                         .kisaBaslik = kolon.baslik,
                         .en = kolon.en,
                         .tur = tur,
                         .ondalik = tur == KolonTuru::Tutar ? kolon.ondalik : 0,
                         .toplanir = kolon.toplanir && sayisal});
  }
  Rapor rapor(std::move(raporunki));
  rapor.baslik = rapor.ekranBasligi = bicim.baslik;
  rapor.toplamEtiketi = ToplamEtiketi(kolonlar);
  if (!bicim.aciklama.empty()) rapor.ustSatirlar.push_back({.orta = bicim.aciklama});
  if (!kolonlar.empty()) Uretim(motor, kolonlar, secim, ilerleme).Doldur(rapor, bicim.enCokSatir);
  return rapor;
}

}  // namespace belvani
