// BayrakIzgarasi: flag bytes as a grid of check boxes, a row for each byte and a column for each bit.
//
//   arrows move · Space ticks and unticks · Enter goes on · Tab leaves the grid
#pragma once

#include <QTableWidget>
#include <cstdint>
#include <span>
#include <string_view>

namespace belvani {

struct BayrakSutunu {
  std::uint8_t bit;
  const char* baslik;
  const char* ipucu;
};

class BayrakIzgarasi : public QTableWidget {
 public:
  BayrakIzgarasi(std::span<const std::string_view> satirlar, std::span<const BayrakSutunu> sutunlar, QWidget* ust);

  void Koy(std::span<const std::uint8_t> bayraklar);
  // Bits that have no column stay as they are in `bayraklar`.
  void Al(std::span<std::uint8_t> bayraklar) const;

 protected:
  void keyPressEvent(QKeyEvent* olay) override;

 private:
  void Cevir(int satir, int sutun);

  std::span<const BayrakSutunu> sutunlar_;
};

}  // namespace belvani
