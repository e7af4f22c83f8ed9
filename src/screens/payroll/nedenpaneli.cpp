#include "screens/payroll/nedenpaneli.h"

#include <map>

#include "ui/metin.h"

namespace belvani {
namespace {

// The steps that a sum of the screen is made of.
const std::vector<std::string_view>& Parcalari(std::string_view alan) {
  static const std::map<std::string_view, std::vector<std::string_view>> parcalar{
      {"kazanclar", {"ng", "ht", "ui", "rt", "mi", "ha", "fm1", "fm2", "fm3"}},
      {"yardimlar", {"topyardim"}},
      {"brut", {"brutkaz"}},
      {"ssk", {"sskkesinti"}},
      {"vergiler", {"gvtutar", "dvtutar"}},
      {"yasalKesinti", {"sskkesinti", "gvtutar", "dvtutar"}},
      {"ozelKesinti", {"sendika", "borckes", "yuvarlama"}},
      {"net", {"NetOdenen"}},
      {"isciToplam", {"sskkesinti", "issizisci", "gvtutar", "dvtutar"}},
      {"isverenToplam", {"sskkesintiisveren", "issizisveren"}},
      {"kumuleMatrah", {"devgvmatrah", "gvmatrah"}},
      {"kumuleVergi", {"devgvtutar", "gvtutar"}},
      {"agi", {"agioran", "agimatrah", "ogv"}},
      {"muaf", {"muaftutar"}},
      {"indirim", {"sakindir", "indirim1", "indirim2", "indirim3"}},
  };
  static const std::vector<std::string_view> yok;
  const auto yer = parcalar.find(alan);
  return yer == parcalar.end() ? yok : yer->second;
}

QString AdimMetni(const IzAdimi& adim) {
  QStringList girdiler;
  for (const IzGirdi& g : adim.girdiler)
    girdiler += Yazi(g.ad).toHtmlEscaped() + "&nbsp;<b>" + Yazi(g.deger).toHtmlEscaped() + "</b>";
  return "<p style='margin:2px 0'>" + Yazi(adim.kural).toHtmlEscaped() +
         (girdiler.isEmpty() ? QString() : "<br>" + girdiler.join(" · ")) + " → <b>" +
         Yazi(adim.sonuc).toHtmlEscaped() + "</b></p>";
}

}  // namespace

NedenPaneli::NedenPaneli(QWidget* ust) : QTextBrowser(ust) {
  setFocusPolicy(Qt::NoFocus);
  setOpenLinks(false);
  setFixedHeight(fontMetrics().height() * 6);
  Bosalt();
}

void NedenPaneli::Bosalt() {
  setHtml(QStringLiteral("<b>Neden bu tutar?</b><br>Bir tutara gelince nasıl hesaplandığı burada yazar (F4)."));
}

void NedenPaneli::Goster(const Iz& iz, std::string_view alan, const QString& etiket) {
  const auto& parcalar = Parcalari(alan);
  QString metin;
  for (const IzAdimi& adim : iz)
    if (adim.alan == alan || std::ranges::find(parcalar, adim.alan) != parcalar.end()) metin += AdimMetni(adim);
  if (metin.isEmpty()) return Bosalt();
  setHtml("<b>Neden bu tutar? " + etiket.toHtmlEscaped() + "</b>" + metin);
}

}  // namespace belvani
