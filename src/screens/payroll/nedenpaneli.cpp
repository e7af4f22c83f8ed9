#include "screens/payroll/nedenpaneli.h"

#include <QScrollBar>
#include <map>

#include "core/sayi.h"
#include "payroll/hesap/kayittoplami.h"
#include "ui/metin.h"

namespace belvani {
namespace {

// The steps that a sum of the screen is made of.
std::vector<std::string_view> Parcalari(std::string_view alan) {
  static const std::vector<std::string_view> brut{"ng",    "ht",    "ui",    "rt",    "mi",    "ha",    "fm1",
                                                  "fm2",   "fm3",   "yrd01", "yrd02", "yrd03", "yrd04", "yrd05",
                                                  "yrd06", "yrd07", "yrd08", "yrd09", "yrd10", "yrd11", "brutkaz"};
  static const std::map<std::string_view, std::vector<std::string_view>> parcalar{
      {"kazanclar", {"ng", "ht", "ui", "rt", "mi", "ha", "fm1", "fm2", "fm3"}},
      {"yardimlar",
       {"yrd01", "yrd02", "yrd03", "yrd04", "yrd05", "yrd06", "yrd07", "yrd08", "yrd09", "yrd10", "yrd11",
        "topyardim"}},
      {"brut", brut},
      {"brutkaz", brut},
      {"ssk", {"sskkesinti"}},
      {"ozelKesinti", {"sendika", "borckes", "yuvarlama"}},
      {"net", {"NetOdenen"}},
      {"agi", {"agioran", "agimatrah", "ogv"}},
      {"muaf", {"muaftutar"}},
  };
  if (const auto yer = parcalar.find(alan); yer != parcalar.end()) return yer->second;
  std::vector<std::string_view> kolonlar;
  for (const KayitToplami& t : toplam::Hepsi)
    if (t.ad == alan)
      for (const Terim& terim : t.Terimler()) kolonlar.push_back(terim.kolon);
  return kolonlar;
}

// An amount as the screens show it, with marks between thousands; whatever else it is stays as it is.
QString DegerYazisi(const std::string& metin) {
  const std::size_t nokta = metin.find('.');
  const auto tutar = nokta == std::string::npos ? std::nullopt : TutarOku(metin);
  return Yazi(tutar ? TutarMetni(*tutar, int(metin.size() - nokta - 1)) : metin).toHtmlEscaped();
}

QString AdimMetni(const IzAdimi& adim) {
  QStringList girdiler;
  for (const IzGirdi& g : adim.girdiler)
    girdiler += Yazi(g.ad).toHtmlEscaped() + "&nbsp;<b>" + DegerYazisi(g.deger) + "</b>";
  return "<p style='margin:2px 0'>" + Yazi(adim.kural).toHtmlEscaped() +
         (girdiler.isEmpty() ? QString() : "<br>" + girdiler.join(" · ")) + " → <b>" + DegerYazisi(adim.sonuc) +
         "</b></p>";
}

}  // namespace

NedenPaneli::NedenPaneli(QWidget* ust) : QTextBrowser(ust) {
  setFocusPolicy(Qt::NoFocus);
  setOpenLinks(false);
  setFixedHeight(fontMetrics().height() * 11 / 2);
  Bosalt();
}

void NedenPaneli::Bosalt() {
  setHtml(QStringLiteral("<b>Neden bu tutar?</b><br>Bir tutara gelince nasıl hesaplandığı burada yazar (F4)."));
}

void NedenPaneli::Kaydir(int satir) {
  verticalScrollBar()->setValue(verticalScrollBar()->value() + satir * fontMetrics().height());
}

void NedenPaneli::Goster(const Iz& iz, std::string_view alan, const QString& etiket, const QString& ek) {
  const auto parcalar = Parcalari(alan);
  QString metin;
  for (const IzAdimi& adim : iz)
    if (adim.alan == alan || std::ranges::find(parcalar, adim.alan) != parcalar.end()) metin += AdimMetni(adim);
  if (metin.isEmpty()) return Bosalt();
  const QString sonra = ek.isEmpty() ? QString() : "<p style='margin:2px 0'><i>" + ek.toHtmlEscaped() + "</i></p>";
  setHtml("<b>Neden bu tutar? " + etiket.toHtmlEscaped() + "</b>" + metin + sonra);
}

}  // namespace belvani
