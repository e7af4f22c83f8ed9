#include "sirketuret.h"

#include "core/store/satirlar.h"
#include "core/tables/esco.h"
#include "core/tables/indir.h"
#include "core/tables/kimlik.h"
#include "core/tables/muaf.h"
#include "payroll/parametre/indir.h"
#include "payroll/parametre/mevzuat.h"
#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani::bench {
namespace {

std::string YediHane(int sira) {
  const std::string s = std::to_string(sira + 1);
  return std::string(7 - s.size(), '0') + s;
}

void KisileriYaz(Motor& motor, int kisi) {
  Islem islem(motor);
  KayitYazici<Sicil> sicil(motor);
  KayitYazici<Kimlik> kimlikler(motor);
  KayitYazici<Esco> esco(motor);
  for (int i = 0; i < kisi; ++i) {
    const Sicil s = OrnekKisi(i);
    sicil.Ekle(s);
    Kimlik kimlik;
    kimlik.kod = s.kod;
    kimlik.tcno = "10000000146";
    kimlikler.Ekle(kimlik);
    for (int yakin = 0; yakin < i % 4; ++yakin) {
      Esco e;
      e.kod = s.kod;
      e.yakinlik = std::uint8_t(yakin == 0 ? 1 : 3 + yakin);
      e.agiok = 1;
      esco.Ekle(e);
    }
  }
  islem.Onayla();
}

void TanimlariYaz(Motor& motor, const Kosullar& k) {
  Islem islem(motor);
  KayitYazici<Muaf> muaf(motor);
  for (std::size_t i = 0; i < k.firma.yardimlar.size(); ++i) {
    const auto& y = k.firma.yardimlar[i];
    muaf.Ekle({std::uint8_t(i + 1), y.adi, y.indtip, y.sabit, y.oran});
  }
  KayitYazici<Indir> indir(motor);
  for (const auto& i : k.firma.indirimler)
    if (i) indir.Ekle(*i);
  KayitYazici<Sendika> sendika(motor);
  for (const auto& s : k.firma.sendikalar) sendika.Ekle(s);
  islem.Onayla();
}

}  // namespace

Sicil OrnekKisi(int i) {
  Sicil s;
  s.kod = YediHane(i);
  s.adi = "Ayşegül";
  s.soyadi = "Çalışkanoğlu";
  s.sskno = "34010" + YediHane(i);
  s.ucret = Tutar(700.0 + i % 50 * 97.35);
  s.ucrettipi = std::uint8_t(i % 20 == 7 ? 1 : i % 10 == 3 ? 2 : 0);
  s.girtar = Tarih(2003, 1 + i % 12, 1);
  s.agi = true;
  s.kanun = i % 3 == 0 ? "05510" : "00000";
  s.tasno = i % 5 == 0 ? "01" : "";
  s.sakatdrc = std::uint8_t(i % 40 == 9 ? 2 : 0);
  s.indirim1 = i % 8 == 1;
  s.indtut1 = Tutar(50.0);
  return s;
}

void TamKurallar(Kosullar& k) {
  k.firma.yardimlar = VarsayilanYardimlar();
  k.firma.yardimlar[1].indtip = 3;
  k.firma.yardimlar[1].oran = Tek(6);
  k.firma.yardimlar[2].indtip = 3;
  k.firma.yardimlar[2].oran = Tek(10);
  Indir indir;
  indir.no = 1;
  indir.adi = "Bireysel Emeklilik";
  indir.indtip = 1;
  k.firma.indirimler[0] = indir;
  Sendika sendika;
  sendika.kod = "01";
  sendika.yer = 3;
  sendika.oran = Tek(1.5);
  k.firma.sendikalar = {sendika};
}

Sirket::Sirket(int kisi, int yil, int ay, int aySayisi, const std::string& veri) {
  std::string kalip = std::filesystem::temp_directory_path() / "belvani-bench-XXXXXX";
  if (mkdtemp(kalip.data()) == nullptr) std::exit(1);
  dizin_ = kalip + "/";
  setenv("BELVANI_KULLANICI_DIZIN", (dizin_ + "ayar").c_str(), 1);
  o.DataPath = veri.empty() ? dizin_ : veri;
  Al(SirketOlustur(o, "BENCH", "a", ""));
  Al(MevzuatKur(o.DataPath, {yil, ay}, Al(ParametreAdresi(yil, ay))));
  TamKurallar(kosullar);
  Motor& motor = o.depo.db.IcMotor();
  TanimlariYaz(motor, kosullar);
  FirmaYukle(o);
  KisileriYaz(motor, kisi);
  const YasalParametreler yasal = Al(YasalParametreleriAl(o.DataPath));
  for (int geri = aySayisi; geri >= 0; --geri) {
    const int ayNo = yil * 12 + ay - 1 - geri;
    kosullar = Al(KosullariYukle(o, yasal, ayNo / 12, ayNo % 12 + 1));
    if (geri > 0) Al(TopluHazirla(o, kosullar));
  }
}

Sirket::~Sirket() {
  o.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  std::error_code hata;
  std::filesystem::remove_all(dizin_, hata);
}

}  // namespace belvani::bench
