// The way from the service's reader to UI Automation.
#include <objbase.h>

#include <thread>

#include "capture/nhw32/router.h"
#include "tests/support/data/plain_readings.h"
#include "tests/support/window/uia_test.h"

namespace support {
namespace {

/// Creates clients of the fake, as the system's class object creates its own. Not counted: the test
/// owns it.
class FakeUiaFactory : public IClassFactory {
 public:
  explicit FakeUiaFactory(FakeUia& uia) : uia_(uia) {}
  virtual ~FakeUiaFactory() = default;
  FakeUiaFactory(const FakeUiaFactory&) = delete;
  FakeUiaFactory& operator=(const FakeUiaFactory&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID /*iid*/, void** result) override {
    *result = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* /*outer*/, REFIID /*iid*/,
                                           void** result) override {
    nhw32::IUIAutomation2* client = nullptr;
    const HRESULT made = makeFakeUia(uia_, &client);
    *result = client;
    return made;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL /*lock*/) override { return S_OK; }

 private:
  FakeUia& uia_;
};

using Router = UiaTest;

/// Answers a question as the service's worker does, where the system's UI Automation is the fake.
nhw32::Answer answerOfService(FakeUia& uia, const nhw32::Question& question) {
  nhw32::Answer answer;
  std::thread([&] {
    ASSERT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
    FakeUiaFactory factory(uia);
    DWORD registration = 0;
    ASSERT_EQ(CoRegisterClassObject(nhw32::CLSID_CUIAutomation8, &factory, CLSCTX_INPROC_SERVER,
                                    REGCLS_MULTIPLEUSE, &registration),
              S_OK);
    answer = nhw32::makeWindowReader()->wordAt(question);
    CoRevokeClassObject(registration);
    CoUninitialize();
  }).join();
  return answer;
}

TEST_F(Router, AWindowThatIsNoTextControlIsReadByUiAutomation) {
  showText(u"hello world");
  const auto answer =
      answerOfService(uia_, {reinterpret_cast<nhw32::WindowId>(window_.get()), grid::at(0, 7)});
  EXPECT_EQ(answer.outcome, nhw32::Outcome::kWord);
  EXPECT_EQ(plainWord(answer.word.readings), u"world");
  EXPECT_EQ(answer.word.box, grid::box(0, 6, 5));
}

}  // namespace
}  // namespace support
