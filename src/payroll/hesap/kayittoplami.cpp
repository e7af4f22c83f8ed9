#include "payroll/hesap/kayittoplami.h"

#include "payroll/hesap/satirlar.h"

namespace belvani {

std::string Sql(const Ifade& ifade, const std::string& on) {
  std::string sql;
  for (const Terim& t : ifade.Terimler()) {
    if (!sql.empty() || t.eksi) sql += t.eksi ? " - " : " + ";
    sql += on + std::string(t.kolon);
  }
  return sql;
}

std::string SskGunuSql(const std::string& on) {
  std::string sql;
  for (const auto& kolon : GunKolonlari) sql += (sql.empty() ? "" : " + ") + on + std::string(kolon.ad);
  return sql;
}

}  // namespace belvani
