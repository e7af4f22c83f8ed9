// CerceveliForm: puts the template of a text form together (printing/form/metinformu.h): lines in one frame, and tables
// whose rules meet it.
//
//   CerceveliForm form(40);
//   form.Kenar();                                   // "┌──────────────────────────────────────┐"
//   form.Satir(" Adı : " + Yer("adi", 20));         // "│ Adı : «adi...............»           │"
//   form.TabloBasi({18, 19});                       // "├──────────────────┬───────────────────┤"
//   form.TabloSatiri({18, 19}, {" Aylar", " Gün"});
//   form.TabloSonu({18, 19});
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace belvani {

// A mark of `en` letters whose value stands from its left, or ends at its right.
std::string Yer(std::string_view ad, int en);
std::string SagYer(std::string_view ad, int en);

class CerceveliForm {
 public:
  using Enler = std::vector<int>;

  explicit CerceveliForm(int en) : ic_(en - 2) {}

  // What does not fit into the frame is cut.
  void Satir(std::string_view metin = {});
  void Satirlar(const std::vector<std::string>& metinler);
  void Ortala(std::string_view metin);
  void Kenar();  // the upper edge
  void Ara();    // a rule from side to side
  void Son();    // the lower edge
  void TabloBasi(const Enler& enler) { Cizgi(enler, "├", "┬", "┤"); }
  void TabloSatiri(const Enler& enler, const std::vector<std::string>& hucreler);
  void TabloArasi(const Enler& enler) { Cizgi(enler, "├", "┼", "┤"); }
  void TabloSonu(const Enler& enler) { Cizgi(enler, "├", "┴", "┤"); }

  const std::string& Sablon() const { return sablon_; }

 private:
  void Cizgi(const Enler& enler, std::string_view sol, std::string_view orta, std::string_view sag);
  void Ekle(const std::string& satir);

  int ic_;  // letters between the sides
  std::string sablon_;
};

}  // namespace belvani
