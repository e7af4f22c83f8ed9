#include "screens/core/firbil.h"

#include "core/session/sinifbakimi.h"
#include "core/tckimlik.h"
#include "isyeri/numaradenetimi.h"
#include "payroll/parametre/parametreler.h"
#include "ui/cakisma.h"

namespace belvani {
namespace {

static_assert(ListeyeUyar(firma::tehlike, TehlikeSiniflari.size()));
static_assert(ListeyeUyar(firma::sinif, TehlikeDereceleri.size()));

// A year that was emptied, or lost a digit, is no month of work; the two are those that documents know.

// A choice, so that none (whole lira) is one and never what is left of an emptied field.
constexpr std::array<std::string_view, 5> OndalikSayilari{"0", "1", "2", "3", "4"};
static_assert(ListeyeUyar(firma::paraonda, OndalikSayilari.size()));

// The work-accident rate that follows from class and degree; shown, never stored.
struct PrimOrani {
  Tek oran;
};
constexpr auto TehlikeOranAlani = Uye("tehlikeoran", &PrimOrani::oran);

std::vector<std::vector<AlanGrubu>> FirmaGruplari() {
  return {{{"Ünvan", {{firma::unvan, "Ünvan", {.harf = 40}}}},
           {"S.S.K Sicil No",
            {{firma::sektor, "Sektör"},
             {firma::meslek, "Meslek"},
             {firma::sube, "Şube"},
             {firma::dosya, "Dosya", {.harf = 10}},
             {firma::il, "İl"},
             {firma::ilce, "İlçe"},
             {firma::kontrol, "Kontrol"}},
            4},
           {"Kayıtlar",
            {{firma::kurtar, "Kuruluş Tarihi"},
             {firma::isi, "İş Nevi", {.harf = 15}},
             {firma::ticsicil, "Tic.Sicil No", {.harf = 15}},
             {firma::iskur, "İşkur Birimi", {.harf = 15}},
             {firma::verda, "V.Dairesi", {.harf = 15}},
             {firma::verno, "V. H.No", {.harf = 15}},
             {firma::bolcal, "Bölge Çal.No", {.harf = 15}},
             {firma::bolsube, "Böl.Çal. Şube", {.harf = 15}},
             {firma::iskodu, "İş Kodu"},
             {firma::tckimlik, "TcNo"}},
            2},
           {"Tasarruf Kesintisi",
            {{firma::tasarrufno, "Tas. No", {.harf = 13}},
             {firma::tasarrufsube, "Banka", {.harf = 13}},
             {firma::tasarrufhesap, "Hesap No", {.harf = 13}}},
            3}},
          {{"Dönem",
            {{firma::firmaay, "Dönem Ay", {.liste = AyAdlari, .listeTabani = 1}},
             {firma::firmayil, "Dönem Yıl", {.enAz = EnAzDonemYili, .enCok = EnCokDonemYili}},
             {firma::tersfirma, "Dönem 15.01.2004 - 14.02.2004 gibi"}},
            2},
           {"Kurallar",
            {{firma::tehlike, "Teh.Derecesi", {.liste = TehlikeSiniflari}},
             {firma::sinif, "Tehlike Sınıfı", {.liste = TehlikeDereceleri}},
             {TehlikeOranAlani, "İş Kazası Oranı", {.ondalik = 1, .kapali = true}},
             {firma::kanun, "Kanun", {.harf = 8, .ipucu = "Beş haneli kanun numarası, örneğin 05510"}},
             {firma::issaati, "Çalışma Saati", {.ipucu = "Günlük çalışma saati"}},
             {firma::paraonda, "Para Ondalığı", {.liste = OndalikSayilari}},
             {firma::yuvar, "Yuvarlama"},
             {firma::ondeger, "Öndeğer Hesap", {.ipucu = "Yeni personelin kazanç grubu"}}},
            2},
           {"Adres", {{firma::adr1, "Adres", {.harf = 40}}, {firma::adr2, "Adres (devam)", {.harf = 40}}}},
           {"Semt ve İletişim",
            {{firma::semt, "Semt", {.harf = 15}},
             {firma::adrilce, "İlçe", {.harf = 20}},
             {firma::adril, "İl", {.harf = 15}},
             {firma::pk, "Posta Kodu"},
             {firma::tel, "Telefon", {.harf = 15}},
             {firma::epos, "E-posta", {.harf = 20}}},
            2}}};
}

}  // namespace

firbil::firbil(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : Form(baglam, "firbil", QStringLiteral("Firma Bilgileri")),
      durum_(parametreler.firma),
      firma_(FirmaDuzenle(baglam.oturum)) {
  AlanlariDiz(FirmaGruplari());
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
  Yukle(firma_.simdi);
  OraniGoster();
  AlanDegisti = [this](AlanDenetimi& alan) {
    const AlanTutamagi degisen = alan.Satir().Tutamak();
    if (degisen == firma::tehlike || degisen == firma::sinif) OraniGoster();
  };
}

void firbil::OraniGoster() {
  const auto derece = int(TamDegeri(Denetim(firma::tehlike).Oku()));
  Yukle(PrimOrani{TehlikeOrani(derece, SayiDegeri(Denetim(firma::sinif).Oku()))});
}

void firbil::Kaydet() {
  if (!Oku(firma_.simdi)) return;
  const auto kaydedilen =
      SorarakKaydet(Baglam(), *this, firma_, [this](const Okunan<Firma>& firma) { return durum_.KartKaydet(firma); });
  if (!kaydedilen && kaydedilen.Kusuru().cakisma) return;
  if (kaydedilen) Oldu(SinifBakimiYaz(Oturumu().FirmaDizini, SinifBakimi::Bakildi));
  // A number that was begun; the papers of a company without any stay without.
  if (const std::string kusur = NumaraKusuru(firma_.simdi);
      kaydedilen && !kusur.empty() && NumaraYazilmis(firma_.simdi))
    Bildirimi().Uyari(kusur);
  if (const std::string uyari = TcUyarisi(firma_.simdi.tckimlik); kaydedilen && !uyari.empty())
    Bildirimi().Uyari(uyari);
  Kapat();
}

}  // namespace belvani
