// Approved pages: every paper of the sample company, in each era of premium rules and at the borders of its pages, says
// and draws what it did when a person last approved it. The records below kayit/ are the approval; `make altin` writes
// them anew, and their diff is read before it is committed.
#include <set>

#include "altin/bildirimkagitlari.h"
#include "altin/kayit.h"
#include "altin/komutkagitlari.h"
#include "altin/ogikagitlari.h"
#include "altin/vizitekagitlari.h"
#include "altin/yerlesimkagitlari.h"
#include "registry/belgeler.h"

namespace belvani::test {
namespace {

// A paper of the registry that has no records of its own yet, drawn as its screen would in the last month.
Kagitlar KayitsizBelgeler(const Kagitlar& kayitlilar) {
  Kagitlar kagitlar;
  for (const BelgeTanimi& tanim : Belgeler()) {
    const auto onun = [&](const Kagit& k) { return k.ad.starts_with(tanim.komut); };
    if (tanim.komut.empty() || std::ranges::any_of(kayitlilar, onun)) continue;
    kagitlar.push_back(Cizim(SonAy, std::string(tanim.komut).c_str(), [&tanim](OrnekSirket& o) {
      const auto secim = tanim.secim();
      secim->AyKoy(o.donem.yil, o.donem.ay);
      secim->FirmaKoy(o.oturum.firma);
      return secim->BelgeYap(o.Kaynak());
    }));
  }
  return kagitlar;
}

// By month: each one's law is installed once.
const Kagitlar& ButunKagitlar() {
  static const Kagitlar hepsi = [] {
    Kagitlar kagitlar;
    for (const Kagitlar& grup :
         {KomutKagitlari(), CizilenListeler(), BildirgeKagitlari(), BildirimKagitlari(), KisiKagitlari(),
          ViziteKagitlari(), OgiKagitlari(), BildirimKomutlari(), CizilenBildirimler(), YerlesimKagitlari()})
      kagitlar.insert(kagitlar.end(), grup.begin(), grup.end());
    std::ranges::copy(KayitsizBelgeler(kagitlar), std::back_inserter(kagitlar));
    std::ranges::stable_sort(kagitlar, {}, [](const Kagit& k) { return k.ay.Metin(); });
    return kagitlar;
  }();
  return hepsi;
}

class Altin : public testing::TestWithParam<Kagit> {
 protected:
  static void SetUpTestSuite() { ornek = std::make_unique<OrnekSirket>(); }
  static void TearDownTestSuite() { ornek.reset(); }

  static inline std::unique_ptr<OrnekSirket> ornek;
};

TEST_P(Altin, IsAsApproved) {
  const Kagit& kagit = GetParam();
  ornek->DonemeGec(kagit.ay);
  const std::string metin = kagit.yap(*ornek);
  ASSERT_GT(metin.size(), 70u) << "an empty paper proves nothing";
  EXPECT_TRUE(KayittakiGibi(kagit.Kayit(), metin));
}

INSTANTIATE_TEST_SUITE_P(Kagit, Altin, testing::ValuesIn(ButunKagitlar()), [](const auto& bilgi) {
  std::string ad = bilgi.param.Kayit();
  std::ranges::replace_if(
      ad, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return ad;
});

// A paper that is gone must not leave a record that nobody looks at.
TEST(AltinKayitlari, AreOfPapersThatThereAre) {
  std::set<std::string> adlar;
  for (const Kagit& kagit : ButunKagitlar()) EXPECT_TRUE(adlar.insert(kagit.Kayit()).second) << kagit.Kayit();
  const std::filesystem::path dizin = KayitYolu("");
  std::vector<std::filesystem::path> artanlar;
  for (const auto& dosya : std::filesystem::recursive_directory_iterator(dizin))
    if (dosya.is_regular_file() && dosya.path().parent_path().filename() != EkranKayitlari &&
        !adlar.contains(dosya.path().lexically_relative(dizin)))
      artanlar.push_back(dosya.path());
  if (KayitYazilsin())
    for (const auto& artan : std::exchange(artanlar, {})) std::filesystem::remove(artan);
  EXPECT_EQ(artanlar, decltype(artanlar){});
}

}  // namespace
}  // namespace belvani::test
