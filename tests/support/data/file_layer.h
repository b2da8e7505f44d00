#pragma once

#include <sqlite3.h>

#include <functional>
#include <stdexcept>
#include <utility>

namespace support {

/// While it lives, every database that is opened reaches its files through it. Before each change
/// to a file (a write, a sync, a change of length, a deletion) it asks the test: what it gets but
/// SQLITE_OK is what the change fails with.
class FileLayer {
 public:
  explicit FileLayer(std::function<int()> beforeChange)
      : beforeChange_(std::move(beforeChange)), real_(sqlite3_vfs_find(nullptr)), layer_(*real_) {
    layer_.szOsFile = static_cast<int>(sizeof(File)) + real_->szOsFile;
    layer_.zName = "lexilo test layer";
    layer_.pNext = nullptr;
    layer_.pAppData = this;
    layer_.xOpen = &open;
    layer_.xDelete = &remove;
    if (sqlite3_vfs_register(&layer_, 1) != SQLITE_OK) throw std::runtime_error("no file layer");
  }
  ~FileLayer() {
    sqlite3_vfs_unregister(&layer_);
    sqlite3_vfs_register(real_, 1);
  }
  FileLayer(const FileLayer&) = delete;
  FileLayer& operator=(const FileLayer&) = delete;

 private:
  struct File {
    sqlite3_file base;
    FileLayer* layer;
    [[nodiscard]] sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
  };

  static FileLayer& of(sqlite3_vfs* vfs) { return *static_cast<FileLayer*>(vfs->pAppData); }
  static sqlite3_file* real(sqlite3_file* file) { return reinterpret_cast<File*>(file)->real(); }

  /// SQLITE_OK, or why a change to `file` is to fail.
  static int ask(sqlite3_file* file) {
    return reinterpret_cast<File*>(file)->layer->beforeChange_();
  }

  static int open(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* got) {
    FileLayer& layer = of(vfs);
    auto* made = reinterpret_cast<File*>(file);
    made->base.pMethods = nullptr;
    made->layer = &layer;
    made->real()->pMethods = nullptr;
    const int result = layer.real_->xOpen(layer.real_, name, made->real(), flags, got);
    if (result == SQLITE_OK) made->base.pMethods = &methods();
    return result;
  }
  static int remove(sqlite3_vfs* vfs, const char* name, int sync) {
    FileLayer& layer = of(vfs);
    const int answer = layer.beforeChange_();
    return answer == SQLITE_OK ? layer.real_->xDelete(layer.real_, name, sync) : answer;
  }

  static const sqlite3_io_methods& methods() {
    static const sqlite3_io_methods table = [] {
      sqlite3_io_methods made{};
      made.iVersion = 1;
      made.xClose = [](sqlite3_file* f) { return real(f)->pMethods->xClose(real(f)); };
      made.xRead = [](sqlite3_file* f, void* to, int size, sqlite3_int64 at) {
        return real(f)->pMethods->xRead(real(f), to, size, at);
      };
      made.xWrite = [](sqlite3_file* f, const void* from, int size, sqlite3_int64 at) {
        const int answer = ask(f);
        return answer == SQLITE_OK ? real(f)->pMethods->xWrite(real(f), from, size, at) : answer;
      };
      made.xTruncate = [](sqlite3_file* f, sqlite3_int64 size) {
        const int answer = ask(f);
        return answer == SQLITE_OK ? real(f)->pMethods->xTruncate(real(f), size) : answer;
      };
      made.xSync = [](sqlite3_file* f, int flags) {
        const int answer = ask(f);
        return answer == SQLITE_OK ? real(f)->pMethods->xSync(real(f), flags) : answer;
      };
      made.xFileSize = [](sqlite3_file* f, sqlite3_int64* size) {
        return real(f)->pMethods->xFileSize(real(f), size);
      };
      made.xLock = [](sqlite3_file* f, int l) { return real(f)->pMethods->xLock(real(f), l); };
      made.xUnlock = [](sqlite3_file* f, int l) { return real(f)->pMethods->xUnlock(real(f), l); };
      made.xCheckReservedLock = [](sqlite3_file* f, int* locked) {
        return real(f)->pMethods->xCheckReservedLock(real(f), locked);
      };
      made.xFileControl = [](sqlite3_file* f, int what, void* with) {
        return real(f)->pMethods->xFileControl(real(f), what, with);
      };
      made.xSectorSize = [](sqlite3_file* f) { return real(f)->pMethods->xSectorSize(real(f)); };
      made.xDeviceCharacteristics = [](sqlite3_file* f) {
        return real(f)->pMethods->xDeviceCharacteristics(real(f));
      };
      return made;
    }();
    return table;
  }

  std::function<int()> beforeChange_;
  sqlite3_vfs* real_;
  sqlite3_vfs layer_;
};

}  // namespace support
