#include "reports/raporalani.h"

#include <algorithm>
#include <optional>

#include "core/store/satirlar.h"
#include "core/tables/brd.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::string_view YilAdi = "yil";
constexpr int SayiEni = 5, TutarEni = 12, OranEni = 6, TarihEni = 10, AdSoyadEni = 30;

struct Ad {
  std::string_view ad, baslik;
};

template <class Kayit>
std::optional<AlanTanimi> KolonBul(std::string_view ad) {
  std::optional<AlanTanimi> bulunan;
  Kayit::HerKolon([&](const AlanTanimi& kolon) {
    if (kolon.ad == ad) bulunan = kolon;
  });
  return bulunan;
}

// Kayit's column under the short name of its table; one that is not in the store has no SQL.
template <class Kayit>
RaporAlani Alani(std::string_view ad, std::string_view kolonAdi, std::string_view baslik, const char* takma) {
  const auto kolon = KolonBul<Kayit>(kolonAdi);
  return {.ad = ad,
          .dosyadaki = std::string(ad),
          .baslik = baslik,
          .sql = kolon ? takma + std::string(".") + std::string(kolonAdi) : "",
          .kolon = kolon.value_or(AlanTanimi{ad, AlanTipi::Metin, 0, AlanNiteligi::Serbest})};
}

std::string_view NoktadanSonra(std::string_view ad) {
  return ad.substr(ad.find('.') + 1);
}

// clang-format off
constexpr Ad OzlukAdlari[] = {
    {"sicil.kod", "Sicil No"},            {"sicil.adi", "Adı"},
    {"sicil.soyadi", "Soyadı"},           {"sicil.ilksoyadi", "İlk Soyadı"},
    {"sicil.sskno", "SSK No"},            {"sicil.ucret", "Ücreti"},
    {"sicil.girtar", "Giriş Tarihi"},     {"sicil.ciktar", "Çıkış Tarihi"},
    {"sicil.grup", "Grup"},               {"sicil.tip", "Tip"},
    {"sicil.ozel", "Özel"},               {"sicil.hesap", "Hesap Kodu"},
    {"sicil.tasno", "Sendika No"},        {"sicil.verda", "Vergi Dairesi"},
    {"sicil.verno", "Hesap No"},          {"sicil.tasarruf", "Tasarruf"},
    {"sicil.cikiskodu", "Çıkış Kodu"},    {"sicil.cikissebebi", "Çıkış Sebebi"},
    {"sicil.tahsisno", "Tahsis No"},      {"kimlik.serino", "Seri No"},
    {"kimlik.tcno", "TC Kimlik"},         {"kimlik.cins", "Cinsiyet"},
    {"kimlik.medeni", "Medeni Hali"},     {"kimlik.baba", "Baba Adı"},
    {"kimlik.ana", "Ana Adı"},            {"kimlik.uyruk", "Uyruğu"},
    {"kimlik.dogyer", "Doğum Yeri"},      {"kimlik.dogtar", "Doğum Tarihi"},
    {"kimlik.il", "İl"},                  {"kimlik.ilce", "İlçe"},
    {"kimlik.mahkoy", "Mahalle/Köy"},     {"kimlik.cilt", "Cilt No"},
    {"kimlik.sayfa", "Sıra(Sayfa) No"},   {"kimlik.kutuk", "Kütük(Aile) No"},
    {"kimlik.nufusd", "Verildiği Yer"},   {"kimlik.versebeb", "Veriliş Nedeni"},
    {"kimlik.kayitno", "Kayıt No"},       {"kimlik.vertar", "Veriliş Tarihi"},
    {"kimlik.adr1", "Adres"},             {"kimlik.adr2", "Adres (2)"},
    {"kimlik.tel", "Telefon"}};

constexpr Ad SicilAdlari[] = {
    {"adi", "Adı"},   {"soyadi", "Soyadı"}, {"adsoy", "Adı Soyadı"}, {"ilksoyad", "İlk Soyadı"},
    {"grup", "Grup"}, {"tip", "Tip"},       {"ozel", "Özel"},        {"girtar", "Giriş"},
    {"ciktar", "Çıkış"}};

constexpr Ad BrdAdlari[] = {
    {"yil", "Yıl"},                       {"ay", "Ay"},
    {"brd.kod", "Sicil No"},              {"ng", "N.G."},
    {"ui", "Ü.İ."},                       {"rt", "R.T."},
    {"mi", "M.İ."},                       {"ha", "H.A."},
    {"ücretsizizin", "Ücretsiz İzin"},    {"fm1", "F.Mesai 1"},
    {"fmo1", "F.M. Oran 1"},              {"fmo2", "F.M. Oran 2"},
    {"fmo3", "F.M. Oran 3"},              {"yrd01", "Yardım 1"},
    {"yrd02", "Yardım 2"},                {"yrd03", "Yardım 3"},
    {"yrd04", "Yardım 4"},                {"yrd05", "Yardım 5"},
    {"yrd06", "Yardım 6"},                {"yrd07", "Yardım 7"},
    {"yrd08", "Yardım 8"},                {"yrd09", "Yardım 9"},
    {"yrd10", "Yardım 10"},               {"yrd11", "Yardım 11"},
    {"yrd12", "Yardım 12"},               {"topyardim", "Top. Yardım"},
    {"eksiksebebi", "Eksik Sebebi"},      {"sskiscior", "SSK İşçi %"},
    {"sskisverenor", "SSK İşveren %"},    {"damgaveror", "Damga Binde"},
    {"ogv", "A.G.İ."},                    {"brd.ucret", "Ücret"},
    {"brutkaz", "Brüt Kazanç"},           {"sskmatrah", "SSK Matrah"},
    {"sskmatrahisveren", "SSK İşv.Mat."}, {"sskkesinti", "SSK Kesinti"},
    {"sskkesintiisveren", "SSK İşv.Kes."}, {"devgvmatrah", "Dev.GV Matrah"},
    {"devgvtutar", "Dev.GV Tutar"},       {"gvmatrah", "GV Matrah"},
    {"dvmatrah", "DV Matrah"},            {"gvtutar", "GV Tutar"},
    {"dvtutar", "DV Tutar"},              {"issizisci", "İşsizlik İşçi"},
    {"issizisveren", "İşsizlik İşv."},    {"yuvarlama", "Sendika+Borç"},
    {"ucrizmatrah", "Ücretli İzin"},      {"katkı", "Katkı"},
    {"indirim1", "İndirim 1"},            {"indirim2", "İndirim 2"},
    {"indirim3", "İndirim 3"},            {"sakindir", "Sakatlık İnd."},
    {"gocindir", "Göç İndirimi"},         {"sendika", "Sendika"},
    {"borckes", "Borç Kesintisi"},        {"muaftutar", "SSK Muaf"},
    {"agimatrah", "A.G.İ. Matrahı"},      {"ht", "H.T."},
    {"fm2", "F.Mesai 2"},                 {"fm3", "F.Mesai 3"}};
// clang-format on

// What a name of the list is called in the store, where that differs.
std::string_view StoredakiAd(std::string_view ad) {
  if (ad == "ücretsizizin") return "ucretsizizin";
  if (ad == "katkı") return "katki";
  if (ad == "ilksoyad") return "ilksoyadi";
  return NoktadanSonra(ad);
}

std::vector<RaporAlani> OzlukListesi() {
  std::vector<RaporAlani> alanlar;
  for (const auto& [ad, baslik] : OzlukAdlari)
    alanlar.push_back(ad.starts_with("sicil.") ? Alani<Sicil>(ad, NoktadanSonra(ad), baslik, "s")
                                               : Alani<Kimlik>(ad, NoktadanSonra(ad), baslik, "k"));
  return alanlar;
}

RaporAlani Hesaplanan(std::string_view ad, std::string_view baslik, RaporAlani::Kaynak kaynak) {
  const bool sira = kaynak == RaporAlani::Kaynak::Sira;
  return {.ad = ad,
          .dosyadaki = "*" + std::string(ad),
          .baslik = baslik,
          .sql = {},
          .kolon = {ad, sira ? AlanTipi::Uzun : AlanTipi::Metin, sira ? 0 : AdSoyadEni, AlanNiteligi::Serbest},
          .kaynak = kaynak};
}

std::vector<RaporAlani> BordroListesi() {
  std::vector<RaporAlani> alanlar{Hesaplanan("sno", "Sıra", RaporAlani::Kaynak::Sira),
                                  Alani<Sicil>("sskno", "sskno", "SSK No", "s"),
                                  Alani<Kimlik>("tcno", "tcno", "TC Kimlik", "k")};
  for (const auto& [ad, baslik] : SicilAdlari)
    alanlar.push_back(ad == "adsoy" ? Hesaplanan(ad, baslik, RaporAlani::Kaynak::AdSoyad)
                                    : Alani<Sicil>(ad, StoredakiAd(ad), baslik, "s"));
  for (const auto& [ad, baslik] : BrdAdlari) alanlar.push_back(Alani<Brd>(ad, StoredakiAd(ad), baslik, "b"));
  std::ranges::find(alanlar, "brd.ucret", &RaporAlani::ad)->dosyadaki = "*ucret";
  return alanlar;
}

template <class Tur>
Tur Okunan(const Komut& komut, int i) {
  Tur deger{};
  KolonAl(komut, i, deger);
  return deger;
}

}  // namespace

// A year is a name, not a quantity: no mark of thousands stands in it.
KolonTuru RaporAlani::Turu() const {
  if (ad == YilAdi) return KolonTuru::Metin;
  switch (kolon.tip) {
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
    case AlanTipi::Uzun:
      return KolonTuru::Tam;
    case AlanTipi::Tutar:
    case AlanTipi::Tek:
      return KolonTuru::Tutar;
    case AlanTipi::Tarih:
      return KolonTuru::Tarih;
    case AlanTipi::Metin:
    case AlanTipi::Mantik:
    case AlanTipi::Ikili:
      break;
  }
  return KolonTuru::Metin;
}

int RaporAlani::TercihEni(int enCok) const {
  if (ad == YilAdi) return SayiEni;
  switch (Turu()) {
    case KolonTuru::Tam:
      return SayiEni;
    case KolonTuru::Tutar:
      return Tutardir() ? TutarEni : OranEni;
    case KolonTuru::Tarih:
      return TarihEni;
    default:
      return std::clamp(kolon.boyut, 1, enCok);
  }
}

std::span<const RaporAlani> OzlukAlanlari() {
  static const auto alanlar = OzlukListesi();
  return alanlar;
}

std::span<const RaporAlani> BordroAlanlari() {
  static const auto alanlar = BordroListesi();
  return alanlar;
}

const RaporAlani* RaporAlaniBul(std::span<const RaporAlani> alanlar, std::string_view ad) {
  const auto ayni = [&](const RaporAlani& alan) { return AdEsit(alan.ad, ad) || AdEsit(alan.dosyadaki, ad); };
  const auto yeri = std::ranges::find_if(alanlar, ayni);
  return yeri == alanlar.end() ? nullptr : &*yeri;
}

Hucre AlanHucresi(const Komut& komut, int i, const RaporAlani& alan, int en) {
  if (komut.Turu(i) == Komut::Tur::Null) return Null{};
  switch (alan.Turu()) {
    case KolonTuru::Tam:
      return komut.Tam(i);
    case KolonTuru::Tutar:
      return alan.Tutardir() ? Okunan<Tutar>(komut, i) : Tutar(Okunan<Tek>(komut, i).Sayi());
    case KolonTuru::Tarih: {
      const auto gun = Okunan<Tarih>(komut, i);
      return gun.Bos() ? Hucre(Null{}) : Hucre(gun);
    }
    default:
      return std::string(IlkHarfler(komut.Metin(i), std::size_t(en)));
  }
}

}  // namespace belvani
