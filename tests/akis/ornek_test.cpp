// The sample company on the payroll screen: what every stored record says, the screen says when the person comes up.
#include "core/session/oturum.h"
#include "core/store/depodenetimi.h"
#include "core/store/satirlar.h"
#include "ekran/ortam.h"
#include "payroll/hazirlik/sirketdenetimi.h"
#include "screens/payroll/brdhazir.h"

namespace belvani::test {
namespace {

struct OrnekSirket : EkranParcalari {
  OrnekSirket() {
    const std::string komut =
        "sh '" + KaynakYolu("tools/ornek.sh") + "' '" BELVANI_CLI "' '" + dizin.Yol() + "' >/dev/null";
    if (std::system(komut.c_str()) != 0) throw std::runtime_error(komut);
    oturum.PrgPath = oturum.DataPath = dizin.Yol();
    EXPECT_TRUE(SirketAc(oturum, "ORNEK"));
    EXPECT_TRUE(OturumAc(oturum, "ORNEK", "ornek", "ornek"));
    EXPECT_TRUE(parametreler.firma.Yukle());
    bildirim.cevap = false;  // nothing is saved again
  }

  void DonemeGec(int yil, int ay) {
    ASSERT_TRUE(MevzuatKur(oturum.DataPath, {yil, ay}, *ParametreAdresi(yil, ay)));
    parametreler.YasalYukle(oturum.DataPath);
    DonemYaz(yil, ay);
  }
};

// Of the fields whose text is not that of the record: "sskmatrah 693.00 instead of 665.00".
std::string Farklar(const Form& form, const Brd& brd, int ondalik) {
  std::string farklar;
  const auto karsilastir = [&](std::string_view alan, Tutar beklenen) {
    const std::string metin = beklenen == Tutar() ? "" : TutarMetni(beklenen, ondalik);
    if (AlanMetni(form, alan) != metin)
      farklar += " " + std::string(alan) + " " + AlanMetni(form, alan) + " instead of " + metin;
  };
  for (const auto& kolon :
       {brd::brutkaz, brd::sskmatrah, brd::gvmatrah, brd::devgvmatrah, brd::devgvtutar, brd::sskkesinti, brd::issizisci,
        brd::gvtutar, brd::dvtutar, brd::sskkesintiisveren, brd::issizisveren})
    karsilastir(kolon.ad, brd.*kolon.uye);
  karsilastir("ozelKesinti", brd.yuvarlama);
  karsilastir("agi", brd.ogv);
  karsilastir("net",
              brd.brutkaz - brd.sskkesinti - brd.issizisci - brd.gvtutar - brd.dvtutar - brd.yuvarlama + brd.ogv);
  return farklar;
}

// The month in which the private pension reaches its ceiling of the year: seen again, its own deduction counts as
// taken.
const std::set<std::string> TavaniAsar{"2006-7 001", "2008-8 001", "2009-9 001"};

// From the last month to the first, each deleted once seen: a year's deductions are added up over all months stored.
TEST(Ornek, TheScreenShowsEveryStoredRecord) {
  OrnekSirket o;
  Motor& motor = o.oturum.depo.db.IcMotor();
  const auto kayitlar = KayitlariOku<Brd>(motor, "order by yil desc, ay desc, kod");
  ASSERT_EQ(kayitlar.size(), 792u);
  Iletiler farklar, asan;
  for (auto ilk = kayitlar.begin(); ilk != kayitlar.end();) {
    const auto son =
        std::find_if(ilk, kayitlar.end(), [&](const Brd& b) { return b.yil != ilk->yil || b.ay != ilk->ay; });
    ASSERT_NO_FATAL_FAILURE(o.DonemeGec(ilk->yil, ilk->ay));
    o.gosterici.SerbestGoster(std::make_unique<brdhazir>(o.ekran, o.parametreler));
    Form& form = *o.gosterici.formlar.back();
    form.setUpdatesEnabled(false);  // painting would take most of the time
    for (const Brd& brd : std::span(ilk, son)) {
      EkranOrtami::Yaz((brd.kod + "\n").c_str());
      const std::string fark = Farklar(form, brd, o.oturum.firma.paraonda);
      const std::string kim = std::to_string(brd.yil) + "-" + std::to_string(brd.ay) + " " + brd.kod;
      if (!fark.empty()) (TavaniAsar.contains(kim) ? asan : farklar).push_back(kim + fark);
      EkranOrtami::Bas(Qt::Key_F5);
    }
    o.gosterici.formlar.clear();
    EXPECT_EQ(KayitlariOku<Brd>(motor, "order by yil desc, ay desc, kod"), std::vector<Brd>(ilk, kayitlar.end()));
    ASSERT_TRUE(BordroSil(o.oturum, ilk->yil, ilk->ay));
    ilk = son;
  }
  EXPECT_EQ(farklar, Iletiler{});
  EXPECT_EQ(asan.size(), TavaniAsar.size());
}

// Apprentices, pensioners, every era of premium rules: all of it is in order.
TEST(Ornek, TheCheckOfTheCompanyFindsNothing) {
  OrnekSirket sirket;
  for (const Kusur& k : DepoKusurlari(sirket.oturum.depo.db.IcMotor())) ADD_FAILURE() << k.metin;
  const auto bulunan = SirketDenetle(sirket.oturum);
  ASSERT_TRUE(bulunan);
  for (const Kusur& k : *bulunan) ADD_FAILURE() << k.kod << ": " << k.metin;
}

}  // namespace
}  // namespace belvani::test
