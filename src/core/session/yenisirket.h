// A new company, whole or not at all: store, first user and card are made in a half place, closed without a journal
// beside the store, and get the company's name in one step. A fault, a kill or a power cut before that leaves no
// company; what a killed program has left is named by YarimSirketler (sirketlistesi.h).
#pragma once

#include <functional>
#include <string>

#include "core/session/oturum.h"

namespace belvani {

struct YeniSirket {
  std::string ad;
  std::string kullanici, sifre;  // of the first user
  // What the card of the company shall say otherwise than that of any new one.
  std::function<void(Firma&)> kart = [](Firma&) {};
};

// The company is open afterwards. After a fault nothing of it is on the disk, the session has the card it had, and no
// store is open.
Durum SirketKur(Oturum& o, const YeniSirket& yeni);

}  // namespace belvani
