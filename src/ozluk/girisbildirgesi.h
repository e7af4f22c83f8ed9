// "Sigortalı İşe Giriş Bildirgesi", the entry declaration of an insured person, as a drawn page and as lines for a text
// printer. Law: 506, article 9.
//
// Both have the same content in the same order: kind of entry, social-security number, blocks 1 to 15, the employer,
// dates, signatures. Nothing is asked of the store; the checks before printing are GirisDenetle.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/tables/firma.h"
#include "personnel/isegiris.h"
#include "printing/form/formbelgesi.h"

namespace belvani {

struct GirisBildirgesi {
  GirisFormu form;
  Firma firma;
  std::string sskDurumu;  // the person's insurance branch as its list shows it: "01-Tüm Sigorta Kolları"
  std::string amblemPng;  // bytes of the emblem's picture; without it its place is a blank frame
};

// One page, A4 upright. Its values are named by their fields: "sskno", "dogtar", "firma.unvan".
std::vector<FormSayfasi> GirisBildirgesiSayfalari(const GirisBildirgesi& bildirge);

// One page of 65 lines, 97 letters wide, UTF-8. No text that the store can hold is cut in it.
std::string GirisBildirgesiMetni(const GirisBildirgesi& bildirge);

// Both, to be printed in two copies.
std::unique_ptr<Belge> GirisBildirgesiBelgesi(const GirisBildirgesi& bildirge);

}  // namespace belvani
