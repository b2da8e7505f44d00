#include "tests/support/window/dictionary.h"
#include "data/data_control.h"
#include "data/headword_lookup.h"

#include "app/state.h"
#include "win32/program.h"

namespace support {
namespace {

std::filesystem::path putAside() { return besideProgram().concat(".aside"); }

}  // namespace

const SampleDictionary& sampleDictionary() {
  static const SampleDictionary dictionary;
  return dictionary;
}

std::filesystem::path besideProgram() {
  return std::filesystem::path(win32::applicationFolder()) / u"kk.dat";
}

void writeDictionary() {
  std::filesystem::remove(besideProgram());
  std::filesystem::remove(putAside());
  sampleDictionary().writeTo(besideProgram());
}

void useDictionary() {
  user::ConnectionString = data::connectionString(win32::applicationFolder() + u"\\kk.dat");
  data::DataControl control;
  control.setConnectionString(user::ConnectionString);
  control.setRecordSource(u"select word from edictidx order by word");
  control.refresh();
  user::IdxWords = data::readIndexWords(control);
}

OtherDictionary::OtherDictionary(const std::string& sql) {
  std::filesystem::rename(besideProgram(), putAside());
  if (!sql.empty()) makeDatabase(besideProgram(), sql);
}

OtherDictionary::~OtherDictionary() {
  std::error_code ignored;
  std::filesystem::remove(besideProgram(), ignored);
  std::filesystem::rename(putAside(), besideProgram());
}

}  // namespace support
