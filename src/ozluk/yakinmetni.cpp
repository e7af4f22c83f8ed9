// The text forms of a relative's papers: the visit's is one page, the certificate's are two.
#include "isyeri/isyerinumarasimetni.h"
#include "ozluk/viziteparcalari.h"
#include "ozluk/vizitesozleri.h"
#include "printing/form/cerceveliform.h"
#include "printing/form/metinformu.h"
#include "printing/yzccnt.h"

namespace belvani::vizite {
namespace {

constexpr int FormHarfi = 97;
constexpr int YariAy = 6;
constexpr int GunYeri = 13;  // of a number of days, up to its last digit
const CerceveliForm::Enler Enler{23, 23, 23, 23};

void Baslik(CerceveliForm& f, const ViziteKagidi& kagit) {
  const bool altiAylik = kagit.tur == ViziteTuru::AltiAylik;
  f.Ortala(altiAylik ? "SAĞLIK BELGESİ" : "VİZİTE KAĞIDI");
  f.Ortala(altiAylik && AnaBabaMi(kagit.yakin.yakinlik) ? AnaBabaBasligi : EsCocukBasligi);
}

void Tarihler(CerceveliForm& f, const ViziteKagidi& kagit) {
  f.Satir(" " + Solda(BelgeTarihiEtiketi, 34) + Yer("belgegunu", 11));
  if (kagit.tur == ViziteTuru::AltiAylik) f.Satir(" " + Solda(SonGecerlilikEtiketi, 34) + Yer("songecerlilik", 15));
}

void SigortaliSatirlari(CerceveliForm& f) {
  f.Satir(" A-SİGORTALININ");
  f.Satirlar({"  1- T.C. Kimlik No                     : " + Yer("tcno", 22),
              "  2- Sigorta Sicil No                   : " + Yer("sskno", 27),
              "  3- Adı Soyadı                         : " + Yer("adsoyad", 43),
              "  4- Baba Adı                           : " + Yer("baba", 17),
              "  5- Doğum Yeri ve Tarihi               : " + Yer("dogyer", 17) + "  " + Yer("dogtar", 10),
              "  6- İşe Giriş Tarihi                   : " + Yer("girtar", 10),
              "  7- Prim Ödemesinin Sona Erdiği Tarih  : " + Yer("durum", 14), "  8- Ev Adresi  : " + Yer("adres", 73),
              "     Telefonu   : " + Yer("tel", 22)});
}

void HastaSatirlari(CerceveliForm& f) {
  f.Satir(" B-HASTANIN");
  f.Satirlar({"  9- T.C. Kimlik No           : " + Yer("yakin.tcno", 22),
              " 10- Adı Soyadı               : " + Yer("yakin.adsoyad", 43),
              " 11- Cinsiyeti                : [☐] Erkek   [☐] Kadın",
              " 12- Doğum Yeri               : " + Yer("yakin.dogyer", 17),
              " 13- Doğum Tarihi             : " + Yer("yakin.dogtar", 14),
              " 14- Sigortalıya Yakınlığı    : " + Yer("yakin.yakinlik", 16),
              " 15- Adresi                   : " + Yer("yakin.adr", 42)});
}

void GunTablosu(CerceveliForm& f) {
  f.Satir(" C-SİGORTALININ PRİM ÖDEME GÜN SAYISI");
  f.TabloBasi(Enler);
  const std::string aylar = " Aylar", gunler = "Prim Ödenen Gün Sayısı";
  f.TabloSatiri(Enler, {aylar, gunler, aylar, gunler});
  f.TabloArasi(Enler);
  for (int i = 1; i <= YariAy; ++i) {
    std::vector<std::string> hucreler;
    for (const int ay : {i, i + YariAy}) {
      const std::string on = "ay" + std::to_string(ay);
      hucreler.push_back(" " + Yer(on + ".adi", 20));
      hucreler.push_back(" " + SagYer(on + ".gun", GunYeri));
    }
    f.TabloSatiri(Enler, hucreler);
  }
  f.TabloArasi(Enler);
  f.TabloSatiri(Enler, {"", "", " Toplam", " " + SagYer("toplam", GunYeri)});
  f.TabloSonu(Enler);
}

void Notlar(CerceveliForm& f) {
  f.Satirlar({" NOT : 1- Yüzyirmi günden fazla prim ödenmiş ise yalnız yüzyirmi (120) gün yazılır.",
              "       2- Bir yıl içinde yüzyirmi (120) günden az prim ödenmiş ise belge düzenlenmez."});
}

void Beyan(CerceveliForm& f, const ViziteKagidi& kagit) {
  constexpr std::size_t beyanHarfi = 91;
  f.Satir(" D-BEYAN VE TAAHHÜTLER");
  for (const std::string& satir : SatirlaraBol(BeyanMetni(kagit), beyanHarfi)) f.Satir("  " + satir);
}

void IsyeriVeImza(CerceveliForm& f, const ViziteKagidi& kagit) {
  f.Satir(" İŞYERİNİN");
  f.Satirlar({"  Ünvanı : " + Yer("firma.unvan", 42), "  Adresi : " + Yer("firma.adr1", 82),
              "           " + Yer("firma.adr2", 82)});
  const auto numara = IsyeriNumarasiMetni(kagit.firma, kagit.araciKodu);
  for (std::size_t i = 0; i < numara.size(); ++i) f.Satir(Solda(i == 2 ? "  Sicil No" : "", 13) + numara[i]);
  f.Ara();
  Tarihler(f, kagit);
  f.Satir();
  f.Satir("                                        İşverenin veya Vekilinin Adı Soyadı, Kaşesi ve İmzası");
  for (int i = 0; i < 4; ++i) f.Satir();
  f.Satir(std::string(47, ' ') + std::string(38, '.'));
  f.Son();
}

const std::vector<std::string_view> CinsiyetKutulari{"yakin.cins1", "yakin.cins2"};

std::string Doldurulmus(const CerceveliForm& sablon, const std::vector<std::string_view>& kutular,
                        const FormSayfasi& degerler) {
  MetinFormu form(sablon.Sablon(), kutular);
  form.Doldur(degerler);
  return form.Metin();
}

}  // namespace

std::string YakinMetni(const ViziteKagidi& kagit) {
  const FormSayfasi degerler = YakinSayfasi(kagit, MetindeSonGecerlilik(kagit.form.vizite));
  const bool altiAylik = kagit.tur == ViziteTuru::AltiAylik;
  CerceveliForm on(FormHarfi);
  on.Kenar();
  Baslik(on, kagit);
  on.Ara();
  if (altiAylik) {
    Tarihler(on, kagit);
    on.Ara();
  }
  SigortaliSatirlari(on);
  on.Ara();
  HastaSatirlari(on);
  on.Ara();
  GunTablosu(on);
  if (!altiAylik) {
    Beyan(on, kagit);
    on.Ara();
    IsyeriVeImza(on, kagit);
    return Doldurulmus(on, CinsiyetKutulari, degerler);
  }
  Notlar(on);
  on.Son();
  CerceveliForm arka(FormHarfi);
  arka.Kenar();
  Beyan(arka, kagit);
  arka.Ara();
  IsyeriVeImza(arka, kagit);
  const std::string sayfalar[] = {Doldurulmus(on, CinsiyetKutulari, degerler), Doldurulmus(arka, {}, degerler)};
  return SayfalariBirlestir(sayfalar);
}

}  // namespace belvani::vizite
