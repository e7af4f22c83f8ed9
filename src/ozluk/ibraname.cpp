#include "ozluk/ibraname.h"

#include <algorithm>

#include "core/sayi.h"
#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "ozluk/ibranameicerik.h"

namespace belvani {
namespace {

// Rows of the table on paper; the payments of the first row of the screen are wages and overtime together.
constexpr int Odemesiz = -1;
struct KagitSatiri {
  std::string_view etiket;
  int odeme = Odemesiz;  // position in the payments
  bool devam = false;    // goes on with the label above
};
constexpr KagitSatiri kagitSatirlari[] = {{"Hakedilmiş Ücret", 0},    {"Fazla Mesai Ücreti"}, {"Kullanılmayan İzin", 1},
                                          {"Ücreti", Odemesiz, true}, {"Sosyal Haklar", 2},   {"İhbar Tazminatı", 3},
                                          {"Kıdem Tazminatı", 4}};

IbranameOdemesi OdemeMetni(std::string_view etiket, const OdemeSatiri& satir, int paraonda, int gruplama) {
  IbranameOdemesi metin{.etiket = etiket};
  std::ranges::transform(satir, metin.tutarlar.begin(),
                         [&](Tutar t) { return SayiFormat(OndalikMetin(t), paraonda, gruplama); });
  return metin;
}

// Millimetres of the drawn page. Each function draws from `y` on and gives the y below it.
constexpr double Sol = 12;
constexpr double En = 186;
constexpr double SatirBoyu = 6;
constexpr double EtiketEni = 42;

Dikdortgen Yer(double x, double y, double en) {
  return {x, y, en, SatirBoyu};
}

double Baslik(FormKurucu& f, double y, std::string_view metin, double punto, MetinHizasi hiza) {
  f.Baslik(Yer(Sol, y, En), metin, punto, hiza);
  return y + SatirBoyu;
}

double Bilgiler(FormKurucu& f, double y, std::string_view baslik, const std::vector<IbranameBilgisi>& bilgiler) {
  y = Baslik(f, y, baslik, 10, MetinHizasi::Sol);
  for (const auto& b : bilgiler) {
    if (!b.etiket.empty()) {
      f.Etiket(Yer(Sol + 3, y, EtiketEni - 3), b.etiket);
      f.Etiket(Yer(Sol + EtiketEni, y, 3), ":");
    }
    f.Alan(b.ad, Yer(Sol + EtiketEni + 3, y, En - EtiketEni - 3), b.deger);
    y += SatirBoyu;
  }
  return y + 3;
}

double Odemeler(FormKurucu& f, double y, const std::vector<IbranameOdemesi>& odemeler) {
  constexpr double etiketEni = 41;
  constexpr double kolonEni = (En - etiketEni) / std::size(OdemeKolonlari);
  constexpr double boy = 7;
  constexpr double pay = 1.5;
  const auto yer = [&](std::size_t k) {
    const double x = k == 0 ? Sol : Sol + etiketEni + double(k - 1) * kolonEni;
    return Dikdortgen{x + pay, y, (k == 0 ? etiketEni : kolonEni) - 2 * pay, boy};
  };
  const double ust = y;
  f.Etiket(yer(0), IbranameKolonlari[0]);
  for (std::size_t k = 1; k < std::size(IbranameKolonlari); ++k)
    f.Etiket(yer(k), IbranameKolonlari[k], MetinHizasi::Orta);
  for (std::size_t s = 0; s < odemeler.size(); ++s) {
    y += boy;
    if (!odemeler[s].devam) f.Cizgi({Sol, y}, {Sol + En, y});
    f.Etiket(yer(0), odemeler[s].etiket);
    for (std::size_t k = 1; k < std::size(IbranameKolonlari); ++k)
      f.Alan("odeme" + std::to_string(s + 1) + "." + std::to_string(k), yer(k), odemeler[s].tutarlar[k - 1],
             MetinHizasi::Sag);
  }
  y += boy;
  std::vector<double> enler{etiketEni};
  enler.insert(enler.end(), std::size(OdemeKolonlari), kolonEni);
  f.Tablo({Sol, ust}, enler, y - ust, 1);
  return y + 5;
}

double Cumleler(FormKurucu& f, double y, Tarih girtar) {
  constexpr double icerlek = 12;
  const auto yaz = [&](double x, std::string_view metin) {
    f.Etiket(Yer(x, y, Sol + En - x), metin);
    y += SatirBoyu;
  };
  yaz(Sol + icerlek, girtar.Metin() + std::string(IbranameCumleleri[0]));
  for (std::size_t i = 1; i < std::size(IbranameCumleleri); ++i) {
    const std::string_view cumle = IbranameCumleleri[i];
    yaz(cumle.starts_with("   ") ? Sol + icerlek : Sol, Kirp(cumle));
  }
  return y + 5;
}

void TebligatVeImza(FormKurucu& f, double y, const Ibraname& i) {
  constexpr double imzaX = Sol + 126;
  constexpr double imzaEni = 60;
  f.Alan("tarih", Yer(imzaX, y, imzaEni), i.tarih.Metin(), MetinHizasi::Orta);
  f.Etiket(Yer(imzaX, y + 2 * SatirBoyu, imzaEni), IbranameImzasi, MetinHizasi::Orta);
  f.Cizgi({imzaX + 8, y + 6 * SatirBoyu}, {imzaX + imzaEni - 8, y + 6 * SatirBoyu});
  for (const auto& satir : IbranameTebligati) {
    y += SatirBoyu;
    f.Etiket(Yer(Sol, y, 110), satir);
  }
  for (const auto& [ad, deger] :
       {std::pair{"adr1", i.form.adr1}, std::pair{"adr2", i.form.adr2}, std::pair{"tel", TelefonSatiri(i.form)}}) {
    y += SatirBoyu;
    f.Alan(ad, Yer(Sol, y, 110), deger);
  }
}

}  // namespace

std::vector<IbranameBilgisi> IsverenBilgileri(const Firma& firma) {
  const auto adres = FirmaAdresi(firma);
  return {{"Ünvanı", "firma.unvan", firma.unvan},
          {"SSK İşyeri Sicil No", "firma.sicilno", IsyeriSicilNo(firma)},
          {"Adresi", "firma.adr1", adres[0]},
          {"", "firma.adr2", adres[1]}};
}

std::vector<IbranameBilgisi> IsciBilgileri(const CikisFormu& form) {
  return {{"Adı Soyadı", "adsoyad", form.adSoyad},
          {"SSK Sicil No", "sskno", form.sskno},
          {"İşe Giriş Tarihi", "girtar", form.girtar.Metin()},
          {"İşten Çıkış Tarihi", "ciktar", form.ciktar.Metin()},
          {"İşten Ayrılış Sebebi", "cikiskodu", std::string(CikisKoduMetni(form.cikiskodu))},
          {"Açıklama", "cikissebebi", form.cikissebebi}};
}

std::vector<IbranameOdemesi> IbranameTablosu(const Ibraname& ibraname, int gruplama) {
  std::vector<IbranameOdemesi> satirlar;
  for (const auto& s : kagitSatirlari) {
    const OdemeSatiri odeme = s.odeme == Odemesiz ? OdemeSatiri{} : ibraname.odemeler.satirlar[std::size_t(s.odeme)];
    satirlar.push_back(OdemeMetni(s.etiket, odeme, ibraname.paraonda, gruplama));
    satirlar.back().devam = s.devam;
  }
  satirlar.push_back(OdemeMetni("Toplam", ibraname.odemeler.Toplam(), ibraname.paraonda, gruplama));
  return satirlar;
}

std::string TelefonSatiri(const CikisFormu& form) {
  return Kirp(form.tel).empty() ? "" : "Telefon : " + form.tel;
}

std::vector<FormSayfasi> IbranameSayfalari(const Ibraname& ibraname) {
  FormKurucu f(A4(KagitYonu::Dikey));
  f.etiketYazisi.punto = 9.5;
  f.degerYazisi.punto = 9.5;
  f.pay = 0;  // nothing but the table has a frame
  double y = Baslik(f, 18, IbranameBasligi, 16, MetinHizasi::Orta) + 8;
  y = Bilgiler(f, y, IbranameIsvereni, IsverenBilgileri(ibraname.firma));
  y = Bilgiler(f, y, IbranameIscisi, IsciBilgileri(ibraname.form));
  y = Odemeler(f, y + 2, IbranameTablosu(ibraname));
  y = Cumleler(f, y, ibraname.form.girtar);
  TebligatVeImza(f, y, ibraname);
  return {f.Sayfa()};
}

std::unique_ptr<Belge> IbranameBelgesi(const Ibraname& ibraname, CerceveTuru cerceve) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = IbranameBasligi;
  return std::make_unique<FormBelgesi>(ayar, IbranameSayfalari(ibraname), IbranameMetni(ibraname, cerceve));
}

}  // namespace belvani
