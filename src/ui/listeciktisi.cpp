#include "ui/listeciktisi.h"

#include <QAction>

#include "core/sayi.h"
#include "printing/belge.h"
#include "ui/basim.h"
#include "ui/dclist.h"
#include "ui/metin.h"

namespace belvani {
namespace {

constexpr const char* YazdirAdi = "listeYazdir";
constexpr int EnCokOndalik = 4;

KolonTuru RaporTuru(dclistKolonu::Tip tip) {
  switch (tip) {
    case dclistKolonu::Tip::Sayi:
      return KolonTuru::Tutar;
    case dclistKolonu::Tip::Tarih:
      return KolonTuru::Tarih;
    case dclistKolonu::Tip::Metin:
    case dclistKolonu::Tip::Secim:
      return KolonTuru::Metin;
  }
  return KolonTuru::Metin;
}

Hucre HucreYap(KolonTuru tur, const std::string& metin) {
  if (metin.empty()) return Null{};
  if (tur == KolonTuru::Tutar) {
    const auto tutar = TutarOku(metin);
    return tutar ? Hucre(*tutar) : Hucre(Null{});
  }
  if (tur == KolonTuru::Tarih) return Tarih::MetinOku(metin);
  return metin;
}

std::shared_ptr<Belge> ListeBelgesi(dclist& liste, const QString& baslik) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = Utf8(baslik);
  GrafikDuzeni grafik;
  grafik.punto = 9;
  return std::make_shared<RaporBelgesi>(ListeRaporu(liste, baslik), ayar, grafik);
}

// What is being typed belongs to the row; where it cannot stand, that is told and nothing goes out.
void Ver(dclist& liste, const std::function<void()>& ver) {
  if (liste.OkUpdateData()) ver();
}

}  // namespace

Rapor ListeRaporu(dclist& liste, const QString& baslik) {
  const dclistModel& model = liste.Model();
  std::vector<RaporKolonu> kolonlar;
  std::vector<int> yerler;
  for (int k = 0; k < model.columnCount(); ++k) {
    const dclistKolonu& kolon = model.Kolonlar()[std::size_t(k)];
    if (kolon.gizli) continue;
    const std::string ad = Utf8(kolon.baslik);
    yerler.push_back(k);
    kolonlar.push_back({.baslik = ad,
                        .kisaBaslik = ad,
                        .en = int(kolon.baslik.size()),
                        .tur = RaporTuru(kolon.tip),
                        .ondalik = std::clamp(kolon.ondalik, 0, EnCokOndalik)});
  }
  Rapor rapor(kolonlar);
  rapor.baslik = rapor.ekranBasligi = Utf8(baslik);
  for (int sira = 0; sira < model.rowCount(); ++sira) {
    RaporSatiri satir;
    for (std::size_t k = 0; k < yerler.size(); ++k)
      satir.hucreler.push_back(HucreYap(kolonlar[k].tur, Utf8(liste.Text(model.GosterilenSatir(sira), yerler[k]))));
    rapor.Ekle(std::move(satir));
  }
  return rapor;
}

void ListeCiktisiBagla(EkranBaglami& baglam, dclist& liste, std::function<QString()> baslik) {
  if (liste.findChild<QAction*>(YazdirAdi, Qt::FindDirectChildrenOnly) != nullptr) return;
  const auto ekle = [&](const char* ad, const QString& metin, const QKeySequence& tus, std::function<void()> islev) {
    auto* komut = new QAction(metin, &liste);
    komut->setObjectName(ad);
    komut->setShortcut(tus);
    komut->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(komut, &QAction::triggered, &liste, [&liste, islev = std::move(islev)] { Ver(liste, islev); });
    liste.addAction(komut);
  };
  liste.setContextMenuPolicy(Qt::ActionsContextMenu);
  ekle(YazdirAdi, QStringLiteral("Yazdır"), Qt::CTRL | Qt::Key_P,
       [&baglam, &liste, baslik] { BelgeBas(baglam, *ListeBelgesi(liste, baslik())); });
  ekle("listeExcel", QStringLiteral("Excel'e Gönder"), Qt::CTRL | Qt::Key_E,
       [&baglam, &liste, baslik] { BelgeExceleGonder(baglam, *ListeBelgesi(liste, baslik())); });
}

}  // namespace belvani
