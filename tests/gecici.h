// A directory for one test, gone with it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace belvani::test {

class GeciciDizin {
 public:
  GeciciDizin() {
    std::string kalip = std::filesystem::temp_directory_path() / "belvani-test-XXXXXX";
    if (mkdtemp(kalip.data()) == nullptr) std::abort();
    yol_ = kalip + "/";
  }
  ~GeciciDizin() {
    std::error_code hata;
    std::filesystem::remove_all(yol_, hata);
  }
  GeciciDizin(const GeciciDizin&) = delete;
  GeciciDizin& operator=(const GeciciDizin&) = delete;

  // Ends in a separator.
  const std::string& Yol() const { return yol_; }

 private:
  std::string yol_;
};

// A file of the project, shipped data for instance: KaynakYolu("data/mevzuat/").
inline std::string KaynakYolu(const std::string& goreli) {
  return std::string(BELVANI_KAYNAK) + "/" + goreli;
}

}  // namespace belvani::test
