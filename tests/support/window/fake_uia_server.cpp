#include "tests/support/window/fake_uia_server.h"

namespace support {
namespace {

constexpr wchar_t kClient[] = L"{E22AD333-B25F-460C-83D0-0581107395C9}";     // CUIAutomation8
constexpr wchar_t kInterface[] = L"{34723AFF-0C9D-49D0-9896-7AB52DF8CD8A}";  // IUIAutomation2

GUID guidOf(const wchar_t* text) {
  GUID guid{};
  CLSIDFromString(text, &guid);
  return guid;
}

/// Creates clients of the fake. Not counted: the thread that registers it owns it.
class Factory : public IClassFactory {
 public:
  explicit Factory(FakeUia& uia) : uia_(uia) {}
  virtual ~Factory() = default;
  Factory(const Factory&) = delete;
  Factory& operator=(const Factory&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** result) override {
    const bool known = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IClassFactory);
    *result = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** result) override {
    *result = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    if (!IsEqualIID(iid, guidOf(kInterface))) return E_NOINTERFACE;
    nhw32::IUIAutomation2* client = nullptr;
    const HRESULT made = makeFakeUia(uia_, &client);
    *result = client;
    return made;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL /*lock*/) override { return S_OK; }

 private:
  FakeUia& uia_;
};

}  // namespace

FakeUiaServer::FakeUiaServer(FakeUia& uia)
    : thread_([this, &uia] { serve(uia); }), result_(registered_.get_future().get()) {}

FakeUiaServer::~FakeUiaServer() {
  end_.set_value();
  thread_.join();
}

// A process has one multithreaded apartment, so that every thread of it finds the class object. A
// single-threaded one does not.
void FakeUiaServer::serve(FakeUia& uia) {
  const HRESULT initialised = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  if (FAILED(initialised)) return registered_.set_value(initialised);
  Factory factory(uia);
  DWORD registration = 0;
  const HRESULT result = CoRegisterClassObject(guidOf(kClient), &factory, CLSCTX_INPROC_SERVER,
                                               REGCLS_MULTIPLEUSE, &registration);
  registered_.set_value(result);
  end_.get_future().wait();
  if (SUCCEEDED(result)) CoRevokeClassObject(registration);
  CoUninitialize();
}

}  // namespace support
