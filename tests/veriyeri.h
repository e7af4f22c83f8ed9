// VeriYeri: a data path of one test, empty at first and gone with it. It is a directory, or a database of its own where
// BELVANI_TEST_SUNUCU names the directory of a private server's socket: the same tests then run on the server. So does
// whatever the tests start, by the address.
//
//   VeriYeri yer;
//   o.DataPath = yer.Adres();
//   db.DbYarat(yer.Yer() + "DENEME/tolu.dat");
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

#include "gecici.h"

namespace belvani::test {

bool SunucudaMi();
// Of the server's socket.
std::string SunucuDizini();

// For a test of what the engine of files alone has: journals, links, permissions, torn pages.
#define YALNIZ_DIZINDE(neden) \
  if (::belvani::test::SunucudaMi()) GTEST_SKIP() << "of directories alone: " << (neden)

class VeriYeri {
 public:
  VeriYeri();
  // In directories it is `dizin`, which need not be there and is somebody else's to remove.
  explicit VeriYeri(const std::string& dizin);
  ~VeriYeri();
  VeriYeri(const VeriYeri&) = delete;
  VeriYeri& operator=(const VeriYeri&) = delete;

  // As a data path is given by its user.
  const std::string& Adres() const { return adres_; }
  // What the names of companies and their files are put behind.
  const std::string& Yer() const { return yer_; }
  // On the server: the database's name.
  const std::string& Veritabani() const { return veritabani_; }

 private:
  void DizindeAc(const std::string& dizin);
  void SunucudaAc();

  std::unique_ptr<GeciciDizin> dizin_;
  std::string veritabani_;
  std::string adres_, yer_;
};

// The address of a new company's place, with nothing in it; throws when it cannot be made.
std::string BosSirket(const std::string& veriYolu, std::string_view ad);

}  // namespace belvani::test
