#include "app/ekranlar.h"

#include "registry/belgeler.h"
#include "screens/accounting/entislyap.h"
#include "screens/accounting/entpar.h"
#include "screens/accounting/entyap.h"
#include "screens/core/Dbupdate.h"
#include "screens/core/araci.h"
#include "screens/core/firbil.h"
#include "screens/core/firlist.h"
#include "screens/core/firsil.h"
#include "screens/core/kulfrm.h"
#include "screens/core/muhbil.h"
#include "screens/core/yapifrm.h"
#include "screens/core/yedekfrm.h"
#include "screens/declarations/eksikgun.h"
#include "screens/declarations/yaylik.h"
#include "screens/deductions/ozgipar.h"
#include "screens/deductions/ozgvharc.h"
#include "screens/documents/belgeekrani.h"
#include "screens/notices/dizipusu.h"
#include "screens/notices/iab.h"
#include "screens/notices/isguc.h"
#include "screens/payroll/agifrm.h"
#include "screens/payroll/brdhazir.h"
#include "screens/payroll/devir.h"
#include "screens/payroll/devkon.h"
#include "screens/payroll/fazmes.h"
#include "screens/payroll/gvtablo.h"
#include "screens/payroll/heskod.h"
#include "screens/payroll/indfrm.h"
#include "screens/payroll/kanun.h"
#include "screens/payroll/kartxfrm.h"
#include "screens/payroll/kykm.h"
#include "screens/payroll/meskod.h"
#include "screens/payroll/otokes.h"
#include "screens/payroll/percari.h"
#include "screens/payroll/perdev.h"
#include "screens/payroll/sabpu.h"
#include "screens/payroll/sendtan.h"
#include "screens/payroll/yrdisim.h"
#include "screens/payroll/yyasor.h"
#include "screens/personnel/escofrm.h"
#include "screens/personnel/koddeg.h"
#include "screens/personnel/kontfrm.h"
#include "screens/personnel/nufus.h"
#include "screens/personnel/perbul.h"
#include "screens/personnel/percik.h"
#include "screens/personnel/pergir.h"
#include "screens/personnel/perkart.h"
#include "screens/personnel/pertrans.h"
#include "screens/personnel/tkanfrm.h"
#include "screens/personnel/ucrdeg.h"
#include "screens/personnel/vizite1.h"
#include "screens/personnel/vizite2.h"
#include "screens/personnel/vizite3.h"
#include "screens/reports/rap1.h"
#include "screens/reports/rap2.h"
#include "screens/severance/ihbsure.h"
#include "screens/severance/kidemhes.h"
#include "screens/severance/kidempar.h"

namespace belvani {
namespace {

// A screen that needs the session only, and one that also needs the parameters.
template <class Ekran>
std::unique_ptr<Form> Yap(const UygulamaBaglami& b) {
  if constexpr (std::is_constructible_v<Ekran, EkranBaglami&>)
    return std::make_unique<Ekran>(b.ekran);
  else
    return std::make_unique<Ekran>(b.ekran, b.parametreler);
}

constexpr std::string_view OgiMenusu = "Ek Moduller/Özel Gider İndirimi";

std::vector<EkranKaydi> Kayitlar() {
  return {
      {"Firma", "Firma Bilgileri", "firbil", "firma", "", Yap<firbil>},
      {"Firma", "Aracı Bilgileri", "araci", "kisi", "", Yap<araci>},
      {"Firma", "Firma Değiştir", "firdegistir", "degistir", "", nullptr, MenuIslemi::FirmaDegistir},
      {"Firma", "Önceki Ay", "oncekiay", "onceki", "", nullptr, MenuIslemi::OncekiAy},
      {"Firma", "Sonraki Ay", "sonrakiay", "sonraki", "", nullptr, MenuIslemi::SonrakiAy},
      {"Firma", "Firma Listesi", "firlist", "liste", "", Yap<firlist>},
      {"Firma", "Firma Sil", "firsil", "sil", "", Yap<firsil>},
      {"Firma", "Çıkış", "cikis", "cikis", "", nullptr, MenuIslemi::Cikis},

      {"Özlük", "Personel Kartları", "perkart", "kisi", "", Yap<perkart>},
      {"Özlük", "Personel Kimlik Bilgileri", "nufus", "kimlik", "", Yap<nufus>},
      {"Özlük", "Eş ve Çocuk Bilgileri", "escofrm", "aile", "", Yap<escofrm>},
      {"Özlük", "Personel Girişi", "pergir", "yeni", "", Yap<pergir>},
      {"Özlük", "Personel Çıkışı", "percik", "cikis", "", Yap<percik>},
      {"Özlük", "Personel Devir Bilgileri", "perdev", "takvim", "", Yap<perdev>},
      {"Özlük", "Personel Aylık Bilgileri", "kartxfrm", "bordro", "Kartotex Raporu", Yap<kartxfrm>},
      {"Özlük", "Ücretler", "ucrdeg", "oran", "Ücretlendirme", Yap<ucrdeg>},

      {"Bordro", "Bordro Hazırlık", "brdhazir", "bordro", "", Yap<brdhazir>},

      {"Bildirgeler", "Aylık Bildirge (ek 9-4a)", "yaylik", "tablo", "Aylık Bildirge EK-3", Yap<yaylik>},
      {"Bildirgeler", "Eksik Gün Bildirim Formu EK-10", "eksikgun", "takvim", "", Yap<eksikgun>},
      {"Bildirgeler", "Aylık Bildirge", "yaylik", "tablo", "Aylık Bildirge Ek-1,Ek-2", Yap<yaylik>, MenuIslemi::Yok,
       FormModu::Serbest, "", "aylik"},
      {"Bildirgeler", "S.G.D.P. Bildirgesi", "yaylik", "tablo", "", Yap<yaylik>, MenuIslemi::Yok, FormModu::Serbest,
       "sgdp", "sgdp"},
      {"Bildirgeler", "Dört Aylık Bildirge", "dortay", "", "Dört Aylık Bordrosu"},
      {"Bildirgeler", "İşçi Giriş Bildirim Listesi (Ek-1)", "ek1"},
      {"Bildirgeler", "İşçi Çıkış Bildirim Listesi (Ek-2)", "ek2"},
      {"Bildirgeler", "Dizi Pusulası", "dizipusu", "tablo", "", Yap<dizipusu>},
      {"Bildirgeler", "İşten Ayrılma Bildirimi (İAB)", "iab", "cikis", "", Yap<iab>},
      {"Bildirgeler", "İşgücü Çizelgesi", "isguc", "aile", "", Yap<isguc>},

      {"Viziteler", "Sigortalıya Ait Vizite", "vizite1", "kisi", "Sigortalı Vizite Kağıdı", Yap<vizite1>},
      {"Viziteler", "Eş ve Çocuklara Vizite", "vizite2", "aile", "Eş ve Çocuklar için Vizite", Yap<vizite2>},
      {"Viziteler", "Altı Aylık Sağlık Belgesi", "vizite3", "takvim", "Altı Aylık Vizite", Yap<vizite3>},

      {"Raporlar", "Özlük Bilgileri", "rap1", "kisi", "Özlük Raporu", Yap<rap1>},
      {"Raporlar", "Bordro Raporlama", "rap2", "tablo", "Bordro Raporu", Yap<rap2>},

      {"Ek Moduller/Kıdem, İhbar Modülü", "Kıdem, İhbar Hesaplama", "kidemhes", "bordro", "", Yap<kidemhes>},
      {"Ek Moduller/Kıdem, İhbar Modülü", "Kidem, İhbar İcmali", "kidicmal"},
      {"Ek Moduller/Kıdem, İhbar Modülü", "Kıdem, İhbar Parametreleri", "kidempar", "oran", "", Yap<kidempar>},
      {"Ek Moduller/Kıdem, İhbar Modülü", "İhbar Süreleri Tablosu", "ihbsure", "takvim", "", Yap<ihbsure>},
      {"Ek Moduller/Personel Cari", "Avans Kaydı", "avans"},
      {"Ek Moduller/Personel Cari", "Genel Borç Alacak", "borcalacak"},
      {"Ek Moduller/Personel Cari", "Personel Cari", "percari", "borc", "", Yap<percari>},
      {"Ek Moduller/Personel Cari", "Otomatik Kesinti", "otokes", "borc", "", Yap<otokes>},
      {OgiMenusu, "ÖGİ Harcama Girişi", "ozgvharc", "duzelt", "", Yap<ozgvharc>},
      {OgiMenusu, "ÖGİ Çalışan Bordrosu", "ogibrd"},
      {OgiMenusu, "ÖGİ Ölen,Emekli,Çıkan Bordrosu", "ogibrd2"},
      {OgiMenusu, "ÖGİ Toplam Kalan İade Listesi", "topode"},
      {OgiMenusu, "ÖGİ Aylık Mahsup Listesi", "ogiaymah"},
      {OgiMenusu, "ÖGİ Çalışan Ödeme Listesi", "ogibrd"},
      {OgiMenusu, "ÖGİ Ölen,Emekli,Çıkan Ödeme Listesi", "ogibrd2"},
      {OgiMenusu, "ÖGİV Tablosu", "gvtablo", "tablo", "", Yap<gvtablo>, MenuIslemi::Yok, FormModu::Serbest, "OGI",
       "ozgvtablo"},
      {OgiMenusu, "ÖGİV Ayarları", "ozgipar", "ayar", "", Yap<ozgipar>},
      {"Ek Moduller/Banka Modülü", "Bankalar", "bankalar"},
      {"Ek Moduller/Banka Modülü", "Banka Hesap Kodları", "bankahesap"},
      {"Ek Moduller/Banka Modülü", "Banka Transfer İşlemleri", "bankatransfer"},
      {"Ek Moduller/Banka Modülü", "Banka için Liste", "bankaliste"},
      {"Ek Moduller/Banka Modülü", "Banka Dosyası Oluşturma", "bankadosya"},
      {"Ek Moduller/P.D.K.S. Modülü", "PDKS'den Aktarımlar", "pdksaktar"},
      {"Ek Moduller/P.D.K.S. Modülü", "PDKS Ayarları", "pdksayar"},

      {"Entegrasyon", "Entegre İşlemi", "entyap", "indir", "Entegrasyon", Yap<entyap>},
      {"Entegrasyon", "İşletmeye Entegre", "entislyap", "takvim", "İşletmeye Entegrasyon", Yap<entislyap>},
      {"Entegrasyon", "Entegrasyon Parametreleri", "entpar", "ayar", "", Yap<entparfrm>},

      {"Ek İşlemler", "Personel Kod Değişikliği", "koddeg", "duzelt", "", Yap<koddeg>},
      {"Ek İşlemler", "Personel Kanun Değişikliği", "tkanfrm", "degistir", "", Yap<tkanfrm>},
      {"Ek İşlemler", "Personel Transfer", "pertrans", "cikis", "", Yap<pertrans>},
      {"Ek İşlemler", "Devir İşlemleri", "devir", "sonraki", "", Yap<belvani::devir>},
      {"Ek İşlemler", "Yıllık Devir Bilgileri Kontrolu", "devkon", "kontrol", "", Yap<devkon>},
      {"Ek İşlemler", "Kullanıcı İşlemleri", "kulfrm", "kullanici", "", Yap<kulfrm>},
      {"Ek İşlemler", "Kontrol İşlemleri", "kontfrm", "kontrol", "Kontrol İşlemi", Yap<kontfrm>},
      {"Ek İşlemler", "Database Update", "Dbupdate", "yukselt", "", Yap<Dbupdate>, MenuIslemi::Guncelle},
      {"Ek İşlemler", "Yedekleme", "yedekfrm", "sablon", "", Yap<yedekfrm>, MenuIslemi::Yedekler},
      {"Ek İşlemler", "Yapı Ayarları", "yapifrm", "klasor", "", Yap<yapifrm>},
      {"Ek İşlemler", "Personel Bul", "perbul", "ara", "", Yap<perbul>},

      {"Parametreler", "Yasal Oranlar", "yyasor", "oran", "", Yap<yyasor>},
      {"Parametreler", "Gelir Vergisi Tablosu", "gvtablo", "tablo", "", Yap<gvtablo>, MenuIslemi::Yok,
       FormModu::Serbest, "GV"},
      {"Parametreler", "Kazanç,Yardım Tanımları", "kykm", "kontrol", "Kazanç Yardım Tanımlama", Yap<kykm>},
      {"Parametreler", "Kanun Tarihleri", "kanun", "takvim", "", Yap<belvani::kanun>},
      {"Parametreler", "İndirimler", "indfrm", "oran", "", Yap<indfrm>},
      {"Parametreler", "Yardım Tanımlama", "yrdisim", "duzelt", "", Yap<yrdisim>},
      {"Parametreler", "Fazla Mesai Ayarları", "fazmes", "takvim", "", Yap<fazmes>},
      {"Parametreler", "Sendika Bilgileri", "sendtan", "aile", "", Yap<sendtan>},
      {"Parametreler", "Hesap Türleri", "heskod", "liste", "", Yap<heskod>, MenuIslemi::Yok, FormModu::Serbest, "edit"},
      {"Parametreler", "Meslek Kodları", "meskod", "liste", "", Yap<meskod>},
      {"Parametreler", "A.G.İ. Parametresi", "agifrm", "oran", "", Yap<agifrm>},
      {"Parametreler", "Şablon Puantaj", "sabpu", "sablon", "", Yap<sabpu>},
      {"Parametreler", "Muhasebeci Bilgileri", "muhbil", "kisi", "", Yap<muhbil>},

      {"Yardım", "Kullanma Şekli", "yardim", "yardim", "", nullptr, MenuIslemi::Yardim},
      {"Yardım", "Hakkında", "frmAbout", "bilgi", "", nullptr, MenuIslemi::Hakkinda},
  };
}

// Where the menu has its caption, else at the end of its menu. A screen of its own stays in its place.
void YerineKoy(std::vector<EkranKaydi>& tablo, EkranKaydi kayit) {
  const auto ayni = [&](const EkranKaydi& e) { return e.menu == kayit.menu && e.baslik == kayit.baslik; };
  if (const auto yeri = std::ranges::find_if(tablo, ayni); yeri != tablo.end()) {
    if (yeri->yap != nullptr) return;
    kayit.kisayol = yeri->kisayol;
    *yeri = std::move(kayit);
    return;
  }
  const auto son = std::ranges::find(tablo.rbegin(), tablo.rend(), kayit.menu, &EkranKaydi::menu);
  tablo.insert(son.base(), std::move(kayit));
}

void BelgeEkle(std::vector<EkranKaydi>& tablo, const BelgeTanimi& belge) {
  const auto yap = [&belge](const UygulamaBaglami& b) { return BelgeEkraniYap(b.ekran, b.parametreler, belge); };
  EkranKaydi kayit{belge.menu, belge.menuBasligi, belge.ekran, belge.simge, "", yap};
  YerineKoy(tablo, kayit);
  for (const BelgeGirisi& giris : belge.girisler) {
    kayit.baslik = giris.menuBasligi;
    kayit.pencereTip = giris.pencereTip;
    kayit.ad = giris.ad;
    YerineKoy(tablo, kayit);
  }
}

const std::vector<EkranKaydi>& EkranTablosu() {
  static const std::vector<EkranKaydi> tablo = [] {
    auto kayitlar = Kayitlar();
    for (const BelgeTanimi& belge : Belgeler()) BelgeEkle(kayitlar, belge);
    return kayitlar;
  }();
  return tablo;
}

// Opened from the desktop only.
const EkranKaydi GorunumEkrani{"", "Görünüm Ayarları", "gorun", "gorunum", "", nullptr, MenuIslemi::Gorunum};

struct MenuSimgesi {
  std::string_view menu, simge;
};
constexpr MenuSimgesi MenuSimgeleri[] = {
    {"Firma", "firma"},      {"Özlük", "kisi"},        {"Bordro", "bordro"},    {"Bildirgeler", "tablo"},
    {"Viziteler", "kimlik"}, {"Raporlar", "yazici"},   {"Ek Moduller", "borc"}, {"Entegrasyon", "indir"},
    {"Ek İşlemler", "ayar"}, {"Parametreler", "oran"}, {"Yardım", "yardim"},
};

}  // namespace

std::span<const EkranKaydi> Ekranlar() {
  return EkranTablosu();
}

std::string_view GirisAdi(const EkranKaydi& kayit) {
  return kayit.ad.empty() ? kayit.kelime : kayit.ad;
}

bool Acilir(const EkranKaydi& kayit) {
  return kayit.yap != nullptr || kayit.islem != MenuIslemi::Yok;
}

std::string_view SimgeAdi(const EkranKaydi& kayit) {
  if (!kayit.simge.empty()) return kayit.simge;
  const auto menu = kayit.menu.substr(0, kayit.menu.find('/'));
  const auto yer = std::ranges::find(MenuSimgeleri, menu, &MenuSimgesi::menu);
  return yer == std::end(MenuSimgeleri) ? "belvani" : yer->simge;
}

const EkranKaydi* KisayolEkrani(std::string_view program) {
  if (program == GorunumEkrani.baslik) return &GorunumEkrani;
  const auto uyar = [&](const EkranKaydi& e) { return (e.kisayol.empty() ? e.baslik : e.kisayol) == program; };
  const auto yer = std::ranges::find_if(EkranTablosu(), uyar);
  return yer == EkranTablosu().end() ? nullptr : &*yer;
}

}  // namespace belvani
