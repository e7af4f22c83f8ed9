#include "payroll/hazirlik/uyarilar.h"

#include "core/sayi.h"
#include "core/turkce.h"
#include "payroll/hesap/damga.h"
#include "payroll/hesap/kayittoplami.h"
#include "payroll/hesap/satirlar.h"
#include "payroll/hesap/ucret.h"

namespace belvani {

Kusurlar TanimUyarilari(const Kosullar& k, const Sicil& sicil) {
  Kusurlar uyarilar;
  const auto ekle = [&](std::string metin, AlanTutamagi alan) {
    uyarilar.push_back({.metin = std::move(metin), .alan = alan, .kod = sicil.kod, .derece = Derece::Uyari});
  };
  if (!KazancGrubuVar(k.firma, sicil.hesap))
    ekle("Hesap grubu tanımlı değil: " + sicil.hesap, sicil::hesap);
  else if (Kirp(sicil.hesap).empty() && !k.firma.ondegerYazili)
    ekle("Hesap Kodu boş, Firma Bilgilerinde Öndeğer Hesap da yazılmamış: \"" + k.firma.varsayilanGrup +
             "\" grubuyla hesaplanır",
         sicil::hesap);
  if (!Kirp(sicil.tasno).empty() && SendikaBul(k.firma, sicil.tasno) == nullptr)
    ekle("Sendika tanımlı değil, aidatı kesilmez: " + sicil.tasno, sicil::tasno);
  return uyarilar;
}

std::string OranFarki(const Kosullar& k, const Sicil& sicil, const Brd& giris) {
  Brd tablo;
  OranlariYukle(tablo, sicil, k.yasal, k.TehlikeOran);
  tablo.damgaveror = k.yasal.oranlar.DamgaOran;
  std::string farklar;
  for (const auto& [kolon, ad] : OranKolonlari)
    if (giris.*kolon.uye != tablo.*kolon.uye)
      farklar += (farklar.empty() ? "" : ", ") + std::string(ad) + " " + SayiMetni((tablo.*kolon.uye).Sayi());
  return farklar.empty() ? "" : "Kayıttaki oranlar kullanılıyor; tablodakiler: " + farklar;
}

std::string KagittakiTutar(const Kosullar& k, const BordroSonucu& sonuc, std::string_view alan) {
  const Tutar agiDamgasi = DamgaVergisi(sonuc.brd.ogv, k.yasal.oranlar.DamgaOran, Yuvarlayici(k.paraonda));
  if (agiDamgasi == Tutar()) return {};
  const auto para = [&](Tutar tutar) { return TutarMetni(tutar, k.paraonda); };
  if (alan == "net")
    return "Bordro basımında net " + para(sonuc.NetOdenen - agiDamgasi) + ": A.G.İ.'nin damga vergisi " +
           para(agiDamgasi) + " orada kesintilere eklenir.";
  if (alan == brd::dvtutar.ad || alan == toplam::vergiler.ad)
    return "Bordro basımında damga vergisi " + para(sonuc.brd.dvtutar + agiDamgasi) + ": A.G.İ.'ninki " +
           para(agiDamgasi) + " eklenir; bordro özeti yalnız " + para(sonuc.brd.dvtutar) + " toplar.";
  return {};
}

std::string NetsizNedeni(const BordroGirdi& girdi, const BordroSonucu& sonuc) {
  const bool asgari = girdi.sicil->ucrettipi == std::uint8_t(UcretTipi::Asgari);
  if (!asgari && girdi.sicil->ucret <= Tutar()) return "Personel kartında ücreti yazılı değil";
  const Brd& b = sonuc.brd;
  if (b.brutkaz <= Tutar())
    return sonuc.SskGun == 0 ? "Çalışılan gün girilmemiş"
                             : "Girilen satırlardan hiçbiri hesap grubunda SSK matrahına girmiyor, brüt kazanç yok";
  const auto para = [&](Tutar tutar) { return TutarMetni(tutar, girdi.paraonda); };
  return "Kesintiler kazancı aşıyor: brüt kazanç " + para(b.brutkaz) + ", yasal kesinti " +
         para(Degeri(toplam::isciToplam, b)) + ", özel kesinti " + para(Degeri(toplam::ozelKesinti, b));
}

}  // namespace belvani
