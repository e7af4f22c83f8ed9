// Where designed reports lie: files of the data path, one a report, and those that come with the program, which are in
// no file until their user saves one under the same name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/veriyolu.h"
#include "reports/bordroraporu.h"
#include "reports/ozlukraporu.h"

namespace belvani {

constexpr std::string_view OzlukUzantisi = ".orp";
constexpr std::string_view BordroUzantisi = ".brp";

// Names without the extension, in the order of the alphabet: those of the files and those that come with the program.
std::vector<std::string> OzlukRaporlari(const VeriYolu& veri);
std::vector<std::string> BordroRaporlari(const VeriYolu& veri);

// What the product has to say against a name: "Rapor Adının Yazınız.", "Rapor İsminde Noktalama Kullanmayınız".
std::optional<Kusur> RaporAdiKusuru(std::string_view ad);

// Of the file, else the one that comes with the program; one of a period of these days.
Sonuc<OzlukKolonlari> OzlukRaporuAl(const VeriYolu& veri, const std::string& ad, Tarih ilkGun, Tarih sonGun);
Sonuc<BordroKolonlari> BordroRaporuAl(const VeriYolu& veri, const std::string& ad);

// The name as the list has it; nothing when it is not there.
std::optional<std::string> RaporAdiBul(const VeriYolu& veri, const std::string& ad, std::string_view uzanti);
// Is there a file, which a save would replace?
bool RaporDosyasiVar(const VeriYolu& veri, const std::string& ad, std::string_view uzanti);

Durum OzlukRaporuKaydet(const VeriYolu& veri, const std::string& ad, const OzlukKolonlari& kolonlar);
// "Kaydedilecek Bilgi Bulunamadı..." without a column.
Durum BordroRaporuKaydet(const VeriYolu& veri, const std::string& ad, const BordroKolonlari& kolonlar);

// The file alone: a report that comes with the program is there again.
Durum RaporSil(const VeriYolu& veri, const std::string& ad, std::string_view uzanti);

}  // namespace belvani
