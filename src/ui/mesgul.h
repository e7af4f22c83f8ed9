// The busy cursor, for as long as the object lives.
#pragma once

#include <QApplication>

namespace belvani {

class MesgulImlec {
 public:
  MesgulImlec() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~MesgulImlec() { QApplication::restoreOverrideCursor(); }
  MesgulImlec(const MesgulImlec&) = delete;
  MesgulImlec& operator=(const MesgulImlec&) = delete;
};

}  // namespace belvani
