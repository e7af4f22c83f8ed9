#include "screens/payroll/percari.h"

#include "payroll/devir/cari.h"

namespace belvani {

percari::percari(EkranBaglami& baglam)
    : KisiSatirlari(baglam, "percari", QStringLiteral("Personel Cari"), Kolonlar(*this, baglam.oturum.firma.paraonda)) {
  AlanlariDiz({{{"Personel",
                 {EtiketliAlan(cari::kod, {.anahtar = true}),
                  Alan(Uye("adsoy", &KisiBasligi::adsoy), "İsmi", {.harf = 34, .kapali = true})},
                 2}}});
  Liste().GenisKolon("ack");
  Liste().TercihBoyu(700, 360);
  Liste().Dogrula = [this](int, const QString& kolon, QString& metin) { return IslemiDenetle(kolon, metin); };
  ListeyiAc(cari::kod);
}

// Of a screen that is being made.
std::vector<SatirKolonu<Cari>> percari::Kolonlar(const percari& ekran, int paraonda) {
  const auto islem = [](const Cari& c, std::size_t) { return CariIslemMetni(c.islem); };
  const auto islemAl = [](Cari& c, const std::string& metin) {
    if (const auto okunan = CariIslemOku(metin)) c.islem = std::uint8_t(*okunan);
  };
  const auto bakiye = [&ekran](const Cari&, std::size_t sira) { return ekran.BakiyeMetni(sira); };
  return {EtiketliKolon(cari::tarih, 100),
          {'a', "islem", "İş.", 50, islem, islemAl, 1},
          EtiketliKolon(cari::ack, 220),
          EtiketliKolon(cari::tutar, 130, {.ondalik = paraonda}),
          {'b', "bak", "Bakiye", 140, bakiye, {}, 0, paraonda}};
}

std::vector<Cari> percari::SatirlariOku(const std::string& kod) {
  return CariOku(Oturumu(), kod);
}

Yazim<Cari> percari::Yaz(const Okunan<Cari>& satir) {
  return CariKaydet(Oturumu(), satir);
}

Sonuc<Silme> percari::Sil(const Cari& satir) {
  return CariSil(Oturumu(), satir, Bildirimi());
}

Cari percari::YeniKayit() const {
  Cari yeni;
  yeni.kod = Kisi();
  yeni.tarih = Tarih::Bugun();
  return yeni;
}

void percari::SatirlarGeliyor(const std::vector<Cari>& satirlar) {
  bakiyeler_ = Bakiyeler(satirlar);
}

// Down the list as it stands; a movement finds its place among the days when the person comes up again.
void percari::SatirlarDegisti() {
  bakiyeler_ = Bakiyeler(Satirlar());
  for (int satir = 0; satir < Liste().ListCount(); ++satir)
    Liste().TextByName(satir, "bak", Yazi(BakiyeMetni(std::size_t(satir))));
}

std::string percari::BakiyeMetni(std::size_t sira) const {
  const bool var = sira < bakiyeler_.size() && bakiyeler_[sira];
  return var ? TutarMetni(*bakiyeler_[sira], Oturumu().firma.paraonda) : std::string();
}

bool percari::IslemiDenetle(const QString& kolon, QString& metin) {
  if (kolon != "islem") return true;
  const auto islem = CariIslemOku(Utf8(metin));
  if (islem)
    metin = Yazi(CariIslemMetni(std::uint8_t(*islem)));
  else
    Bildirimi().Bilgi(CariIslemSozu);
  return islem.has_value();
}

DegerDili percari::Dil() const {
  return [](std::string_view alan, const Deger& deger) {
    return alan == cari::islem.ad ? CariIslemMetni(std::uint8_t(TamDegeri(deger))) : MetinDegeri(deger);
  };
}

}  // namespace belvani
