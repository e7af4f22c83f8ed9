#include "notices/iabkagidi.h"

#include "core/sayi.h"
#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "printing/form/formparcalari.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

// Millimetres of the page.
constexpr double Sol = 10;
constexpr double Ust = 10;
constexpr double En = 190;
constexpr double KutuBoyu = 9;
constexpr double BolumBoyu = 5.5;
constexpr double KayitSatiri = 6;
constexpr std::string_view SiraNolari[] = {"1.", "2.", "3.", "4."};
constexpr std::size_t SakatlikDerecesi = 3;
constexpr std::size_t VergiDilimi = std::size(SiraNolari);

double BolumBasligi(FormKurucu& f, double y, std::string_view metin) {
  f.Bolum({Sol, y, En, BolumBoyu}, metin, 8.5, MetinHizasi::Sol);
  return y + BolumBoyu;
}

double Satir(FormKurucu& f, double y, const std::vector<EtiketliKutu>& kutular) {
  return f.EtiketliKutular({Sol, y}, KutuBoyu, kutular);
}

double Bas(FormKurucu& f, double y) {
  constexpr double boy = 21;
  f.Kutu({Sol, y, En, boy});
  f.Baslik({Sol, y + 1, En, 6}, "TÜRKİYE İŞ KURUMU", 11);
  f.Baslik({Sol, y + 7, En, 7}, "İŞTEN AYRILMA BİLDİRGESİ", 14);
  f.Baslik({Sol, y + 14, En, 6}, "(İAB)", 11);
  return y + boy;
}

// ---- sections

double IsyeriNo(FormKurucu& f, double y, const Firma& firma) {
  const int satir = int(y / SatirMm) + 1;
  const double alt = IsyeriNumarasi(f, Sol + 30, satir, firma, "") * SatirMm;
  f.Kutu({Sol, y, En, alt - y});
  f.Etiket({Sol + f.pay, y, 28, alt - y}, "İşyeri Sicil No");
  return alt;
}

double IsverenBolumu(FormKurucu& f, double y, const Firma& firma) {
  const auto adres = FirmaAdresi(firma);
  y = BolumBasligi(f, y, "1 - İŞVEREN BİLGİLERİ");
  y = Satir(f, y, {{En, "Ünvanı", EtiketUstte, "firma.unvan", firma.unvan}});
  y = Satir(
      f, y,
      {{En / 2, "Adresi", EtiketUstte, "firma.adr1", adres[0]}, {En / 2, "", EtiketUstte, "firma.adr2", adres[1]}});
  y = IsyeriNo(f, y, firma);
  y = Satir(f, y,
            {{55, "Ticaret Sicil No", EtiketUstte, "firma.ticsicil", firma.ticsicil},
             {45, "Kuruluş Tarihi", EtiketUstte, "firma.kurtar", firma.kurtar.Metin()},
             {En - 100, "Ana Faaliyet Konusu", EtiketUstte, "firma.isi", firma.isi}});
  y = Satir(f, y,
            {{40, "İli", EtiketUstte, "firma.adril", firma.adril},
             {40, "İlçesi", EtiketUstte, "firma.adrilce", firma.adrilce},
             {60, "Telefonları", EtiketUstte, "firma.tel", firma.tel},
             {En - 140, "E-Posta", EtiketUstte, "firma.epos", firma.epos}});
  SoruKutusu(f, {Sol, y, En, KutuBoyu}, "Kapsamı:", {{24, "Kamu:", "kapsam.kamu"}, {24, "Özel:", "kapsam.ozel", true}});
  return y + KutuBoyu;
}

double SigortaliBolumu(FormKurucu& f, double y, const IabFormu& form) {
  constexpr double ucte = En / 3;
  y = BolumBasligi(f, y, "2 - SİGORTALI BİLGİLERİ");
  constexpr double tcEni = 90;
  BasamakliHucre(f, {Sol, y, tcEni, KutuBoyu}, "T.C. Kimlik No", "tcno", 11, form.tcno);
  BasamakliHucre(f, {Sol + tcEni, y, En - tcEni, KutuBoyu}, "SSK Sicil No", "sskno", 13, form.sskno);
  y += KutuBoyu;
  y = Satir(f, y,
            {{ucte, "Adı Soyadı", EtiketUstte, "adsoyad", form.adsoyad},
             {ucte, "Baba Adı", EtiketUstte, "baba", form.baba},
             {ucte, "Ana Adı", EtiketUstte, "ana", form.ana}});
  y = Satir(f, y,
            {{ucte, "Doğum Yeri", EtiketUstte, "dogyer", form.dogyer},
             {ucte, "Doğum Tarihi", EtiketUstte, "dogtar", form.dogtar.Metin()},
             {ucte, "Telefon", EtiketUstte, "tel", form.tel}});
  y = Satir(f, y,
            {{En / 2, "Adresi", EtiketUstte, "adr1", form.adres[0]}, {En / 2, "", EtiketUstte, "adr2", form.adres[1]}});
  constexpr double secenekEni = 18;
  std::vector<SoruSecenegi> dereceler, dilimler;
  for (std::size_t i = 0; i < VergiDilimi; ++i) {
    const std::string no = std::to_string(i + 1);
    if (i < SakatlikDerecesi) dereceler.push_back({secenekEni, SiraNolari[i], "sakatlik" + no, form.sakatdrc == i + 1});
    dilimler.push_back({secenekEni, SiraNolari[i], "dilim" + no});
  }
  SoruKutusu(f, {Sol, y, En / 2, KutuBoyu}, "Sakatlık Derecesi", dereceler);
  SoruKutusu(f, {Sol + En / 2, y, En / 2, KutuBoyu}, "Vergi Dilimi", dilimler);
  return y + KutuBoyu;
}

// Of those who are with a fund of their own, which the program does not know: for the pen.
double SandikBolumu(FormKurucu& f, double y) {
  y = BolumBasligi(f, y, "3 - SANDIK BİLGİLERİ");
  return Satir(f, y,
               {{En / 2, "Sandığın Adı", EtiketUstte, "sandik.ad", ""},
                {En / 4, "Sandık Sicil No", EtiketUstte, "sandik.no", ""},
                {En / 4, "Üyelik Tarihi", EtiketUstte, "sandik.tarih", ""}});
}

double Kayitlar(FormKurucu& f, double y, const IabFormu& form, int paraonda) {
  const std::vector<FormKolonu> kolonlar{{20, "Yıl", "", "yil", MetinHizasi::Orta},
                                         {35, "Ay", "", "ay"},
                                         {40, "Kazanç", "", "pek", MetinHizasi::Sag},
                                         {20, "Gün", "", "gun", MetinHizasi::Orta},
                                         {En - 115, "Eksik Gün Sebebi", "", "ekseb"}};
  f.Kutu({Sol, y, En, KayitSatiri});
  f.Etiket(f.Icerisi({Sol, y, En, KayitSatiri}),
           "Son 120 gün içinde işyerindeki prime ilişkin kayıtlar (En son aydan başlayarak geriye doğru "
           "doldurulacaktır.)");
  y += KayitSatiri;
  double x = Sol;
  std::vector<double> enler;
  for (const FormKolonu& k : kolonlar) {
    f.Kutu({x, y, k.en, KayitSatiri});
    f.Etiket(f.Icerisi({x, y, k.en, KayitSatiri}), k.ustBaslik, MetinHizasi::Orta);
    enler.push_back(k.en);
    x += k.en;
  }
  y += KayitSatiri;
  f.Tablo({Sol, y}, enler, KayitSatiri, int(IabKayitSayisi));
  for (std::size_t i = 0; i < IabKayitSayisi; ++i, y += KayitSatiri) {
    std::vector<std::string> degerler(kolonlar.size());
    if (i < form.kayitlar.size()) {
      const IabKaydi& k = form.kayitlar[i];
      degerler = {std::to_string(k.yil), k.ay, TutarMetni(k.pek, paraonda), std::to_string(k.gun), k.ekseb};
    }
    x = Sol;
    for (std::size_t k = 0; k < kolonlar.size(); ++k) {
      f.Alan("kayit" + std::to_string(i + 1) + "." + kolonlar[k].ad, f.Icerisi({x, y, kolonlar[k].en, KayitSatiri}),
             degerler[k], kolonlar[k].hiza);
      x += kolonlar[k].en;
    }
  }
  return y;
}

double CalismaBolumu(FormKurucu& f, double y, const IabFormu& form, int paraonda) {
  y = BolumBasligi(f, y, "4 - İŞTEN AYRILMA BİLGİLERİ");
  y = Satir(f, y,
            {{45, "Giriş Tarihi", EtiketUstte, "girtar", form.girtar.Metin()},
             {45, "Çıkış Tarihi", EtiketUstte, "ciktar", form.ciktar.Metin()},
             {En - 90, "Çıkış Nedeni", EtiketUstte, "cikissebebi", form.cikissebebi}});
  y = Satir(f, y,
            {{90, "Görevi", EtiketUstte, "gorevi", form.gorevi},
             {40, "Son Net Ücret", EtiketUstte, "sonnet", TutarMetni(form.sonNet, paraonda), MetinHizasi::Sag},
             {En - 130, "Son 3 Yıllık İşsizlik Sigortası Günü", EtiketUstte, "issizlikgunu",
              std::to_string(form.issizlikGunu), MetinHizasi::Sag}});
  return Kayitlar(f, y, form, paraonda);
}

double Imzalar(FormKurucu& f, double y, const IabFormu& form) {
  constexpr double boy = 24;
  y = Satir(f, y,
            {{En / 2, "Düzenleme Tarihi", EtiketUstte, "duzenleme", form.duzenleme.Metin()},
             {En / 2, "Sigortalıya Tebliğ Tarihi", EtiketUstte, "teblig", form.teblig.Metin()}});
  double x = Sol;
  for (const char* imza : {"İşveren veya Vekilinin Kaşesi ve İmzası", "Sigortalının İmzası"}) {
    f.Kutu({x, y, En / 2, boy});
    f.Etiket({x, y + 1, En / 2, 4}, imza, MetinHizasi::Orta);
    x += En / 2;
  }
  return y + boy;
}

class IabBelge final : public FormBelgesi {
 public:
  using FormBelgesi::FormBelgesi;
  std::string MetinYok() const override { return IabMetinYok; }
};

}  // namespace

std::vector<FormSayfasi> IabCiz(const IabKagidi& kagit) {
  FormKurucu f(A4(KagitYonu::Dikey));
  double y = Bas(f, Ust);
  y = IsverenBolumu(f, y, kagit.firma);
  y = SigortaliBolumu(f, y, kagit.form);
  y = SandikBolumu(f, y);
  y = CalismaBolumu(f, y, kagit.form, kagit.firma.paraonda);
  y = Imzalar(f, y, kagit.form);
  f.Kutu({Sol, Ust, En, y - Ust}, KagitKalinCizgi);
  return {f.Sayfa()};
}

std::unique_ptr<Belge> IabBelgesi(const IabKagidi& kagit) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = "İŞTEN AYRILMA (İAB)";
  return std::make_unique<IabBelge>(ayar, IabCiz(kagit), std::string());
}

}  // namespace belvani
