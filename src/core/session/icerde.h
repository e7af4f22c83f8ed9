// Who is in: while a program works in a company, a mark in the company's place tells who, on which computer and since
// when. It is renewed each minute. One that was not for five minutes is void, whatever became of its program; one of
// this computer, whose processes can be asked, as soon as its process is gone. Void marks are swept by whoever looks.
//
// The engine's locks tell of a program on another computer only while it reads or writes; the marks tell all the time.
// Clocks of the computers must agree to a minute or two.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/veriyolu.h"

namespace belvani {

struct Icerdeki {
  std::string kullanici, bilgisayar;
  std::int64_t giris = 0;  // seconds since 1970

  bool operator==(const Icerdeki&) const = default;
};

// This program's own mark; taken away with the object.
class IcerdeIsareti {
 public:
  // Null where none can be laid, as in a place that cannot be written.
  static std::unique_ptr<IcerdeIsareti> Koy(const VeriYolu& sirket, Icerdeki kim);
  ~IcerdeIsareti();
  IcerdeIsareti(const IcerdeIsareti&) = delete;
  IcerdeIsareti& operator=(const IcerdeIsareti&) = delete;

  // Each minute. A mark that was swept, while the computer slept, is there again afterwards.
  Durum Yenile() const;
  const std::string& Ad() const { return ad_; }

 private:
  IcerdeIsareti(VeriYolu sirket, Icerdeki kim, std::string ad);

  VeriYolu sirket_;
  Icerdeki kim_;
  std::string ad_;
};

inline constexpr int IcerdeYenilemeSaniyesi = 60;

// Everybody but the one whose mark `kendim` is.
std::vector<Icerdeki> Icerdekiler(const VeriYolu& sirket, const IcerdeIsareti* kendim = nullptr);

// Everybody in the places below, by the places' names; those where nobody is are not there.
std::map<std::string, std::vector<Icerdeki>> AltIcerdekiler(const VeriYolu& veri);

// In one line: "Ayşe (MASA3, 22.11.2026 09:15); Can (MASA4, 22.11.2026 09:40)".
std::string IcerdekiMetni(const std::vector<Icerdeki>& icerdekiler);
// A line each, the first one begun too: "\nAyşe (MASA3, 22.11.2026 09:15)".
std::string IcerdekiSatirlari(const std::vector<Icerdeki>& icerdekiler);

}  // namespace belvani
