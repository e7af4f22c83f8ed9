#include "ui/listeciktisi.h"

#include <QAction>

#include "printing/belge.h"
#include "printing/kolonmetni.h"
#include "printing/rapordolgusu.h"
#include "ui/basim.h"
#include "ui/dclist.h"
#include "ui/metin.h"

namespace belvani {
namespace {

constexpr const char* YazdirAdi = "listeYazdir";
constexpr int TamTarih = 1;  // the form "dd.MM.yyyy" of the report's date columns

DolguTuru Turu(dclistKolonu::Tip tip) {
  switch (tip) {
    case dclistKolonu::Tip::Sayi:
      return DolguTuru::Sayi;
    case dclistKolonu::Tip::Tarih:
      return DolguTuru::Tarih;
    case dclistKolonu::Tip::Metin:
    case dclistKolonu::Tip::Secim:
      return DolguTuru::Metin;
  }
  return DolguTuru::Metin;
}

// On the plain printer it is written column by column.
class ListeKagidi final : public RaporBelgesi {
 public:
  using RaporBelgesi::RaporBelgesi;

 private:
  void MetinYap(const MetinAlici& al, Ilerleme* ilerleme) const override {
    al(KolonMetni(*Tablo(), Ayar(), Tarih::Bugun(), ilerleme));
  }
};

std::shared_ptr<Belge> ListeBelgesi(dclist& liste, const QString& baslik) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = Utf8(baslik);
  GrafikDuzeni grafik;
  grafik.punto = 9;
  return std::make_shared<ListeKagidi>(ListeRaporu(liste, baslik), ayar, grafik);
}

// What is being typed belongs to the row; where it cannot stand, that is told and nothing goes out.
void Ver(dclist& liste, const std::function<void()>& ver) {
  if (liste.OkUpdateData()) ver();
}

}  // namespace

Rapor ListeRaporu(dclist& liste, const QString& baslik) {
  const dclistModel& model = liste.Model();
  RaporDolgusu dolgu;
  dolgu.Basliklar(Utf8(baslik));
  std::vector<int> yerler;
  for (int k = 0; k < model.columnCount(); ++k) {
    const dclistKolonu& kolon = model.Kolonlar()[std::size_t(k)];
    if (kolon.gizli) continue;
    yerler.push_back(k);
    const int bicim = kolon.tip == dclistKolonu::Tip::Tarih ? TamTarih : kolon.ondalik;
    dolgu.AddColons(Utf8(kolon.baslik), Turu(kolon.tip), {}, bicim, int(kolon.baslik.size()));
  }
  for (int sira = 0; sira < model.rowCount(); ++sira) {
    dolgu.CreateRow(GridSatiri::Normal);
    for (std::size_t k = 0; k < yerler.size(); ++k)
      dolgu.Add(int(k), Utf8(liste.Text(model.GosterilenSatir(sira), yerler[k])));
  }
  return dolgu.Yap();
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
