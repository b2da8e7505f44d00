#include "capture/nhw32/uia/prepared_client.h"

#include <algorithm>
#include <array>
#include <utility>

#include "capture/nhw32/uia/limits.h"

namespace nhw32 {
namespace {

constexpr std::array kPrefetched{UIA_IsPasswordPropertyId, UIA_ProcessIdPropertyId,
                                 UIA_NativeWindowHandlePropertyId, UIA_ControlTypePropertyId,
                                 UIA_IsValuePatternAvailablePropertyId};

using Limit = HRESULT (STDMETHODCALLTYPE IUIAutomation2::*)(DWORD* milliseconds);

/// Returns whether a limit that could not be set is short enough as it is.
bool isShort(IUIAutomation2& client, Limit limit) {
  DWORD milliseconds = 0;
  return SUCCEEDED((client.*limit)(&milliseconds)) && milliseconds > 0 &&
         milliseconds <= kUiaFirstQuestionTime.count();
}

bool keepsFocus(IUIAutomation2& client) {
  BOOL setsFocus = TRUE;
  return SUCCEEDED(client.put_AutoSetFocus(FALSE)) ||
         (SUCCEEDED(client.get_AutoSetFocus(&setsFocus)) && !setsFocus);
}

}  // namespace

std::optional<PreparedClient> PreparedClient::make(ComPtr<IUIAutomation2> client) {
  PreparedClient prepared;
  prepared.client_ = std::move(client);
  if (!keepsFocus(*prepared.client_.Get()) || !prepared.limitCalls() ||
      !prepared.prefetchProperties() ||
      FAILED(prepared.client_->get_ControlViewWalker(prepared.walker_.GetAddressOf())) ||
      !prepared.walker_) {
    return std::nullopt;
  }
  return prepared;
}

// A client's own limits are 2 seconds for connecting and 20 for any other call. All windows are
// read by one thread: a client whose limits cannot be set would, over one program that hangs, leave
// Notepad without words for 20 seconds a call. Without limits it is therefore not used; one that
// has short limits already is.
bool PreparedClient::limitCalls() {
  limitConnecting(kUiaFirstQuestionTime);
  return (connecting_ || isShort(*client_.Get(), &IUIAutomation2::get_ConnectionTimeout)) &&
         (SUCCEEDED(client_->put_TransactionTimeout(static_cast<DWORD>(kUiaCallTime.count()))) ||
          isShort(*client_.Get(), &IUIAutomation2::get_TransactionTimeout));
}

// Prefetching takes one call where reading each property takes one for each. The usual filter of a
// request is the control view, which an element under a point need not belong to.
bool PreparedClient::prefetchProperties() {
  if (FAILED(client_->CreateCacheRequest(prefetch_.GetAddressOf())) || !prefetch_) return false;
  ComPtr<IUIAutomationCondition> everything;
  if (FAILED(client_->get_RawViewCondition(everything.GetAddressOf())) || !everything ||
      FAILED(prefetch_->put_TreeFilter(everything.Get()))) {
    return false;
  }
  return std::ranges::all_of(kPrefetched,
                             [this](int id) { return SUCCEEDED(prefetch_->AddProperty(id)); }) &&
         SUCCEEDED(prefetch_->AddPattern(UIA_TextPatternId));
}

void PreparedClient::limitConnecting(std::chrono::milliseconds limit) {
  if (connecting_ == limit) return;
  if (SUCCEEDED(client_->put_ConnectionTimeout(static_cast<DWORD>(limit.count())))) {
    connecting_ = limit;
  }
}

}  // namespace nhw32
