#include "query/catalogue.h"

#include "data/record_set.h"

namespace query {

// Rows are updated while the set is walked through; an updated row shows its new value at once.
// Only rows that carry the flag wrongly are written besides the chosen one.
void chooseDefault(data::RecordSet& catalogue, std::size_t chosen) {
  const std::size_t count = catalogue.recordCount();
  catalogue.moveFirst();
  for (std::size_t i = 1; i <= count; ++i) {
    if (i == chosen) catalogue.update(u"default", 1);
    if (catalogue.field(u"default").integer == 1 && i != chosen) catalogue.update(u"default", 0);
    catalogue.moveNext();
  }
}

// Walks through all rows, since the number counts them.
std::size_t lastDefault(data::RecordSet& catalogue) {
  std::size_t last = 0;
  std::size_t row = 0;
  for (catalogue.moveFirst(); !catalogue.endOfFile(); catalogue.moveNext()) {
    ++row;
    if (catalogue.field(u"default").integer == 1) last = row;
  }
  return last;
}

}  // namespace query
