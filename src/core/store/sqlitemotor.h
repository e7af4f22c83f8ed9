// The engine of a store that is a file.
#pragma once

#include "core/store/motor.h"

namespace belvani {

std::unique_ptr<Motor> SqliteAc(const std::string& yol, AcilisKipi kip);
std::unique_ptr<Motor> SqliteYarat(const std::string& yol);
void SqliteSil(const std::string& yol);
std::string SqliteSurumu();

}  // namespace belvani
