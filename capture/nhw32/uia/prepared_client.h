#pragma once

#include <chrono>
#include <optional>

#include "capture/nhw32/uia/com.h"
#include "capture/nhw32/uia/uia_interfaces.h"

namespace nhw32 {

/// A client of UI Automation with what every question needs of it, made once. Every function of a
/// client that is called here works in this process alone.
class PreparedClient {
 public:
  /// Returns nullopt for a client that cannot be used: one that cannot prefetch properties, or
  /// whose calls could move the keyboard's focus or take longer than kUiaFirstQuestionTime each.
  static std::optional<PreparedClient> make(ComPtr<IUIAutomation2> client);

  [[nodiscard]] IUIAutomation& automation() const { return *client_.Get(); }
  /// Of each element: whether it is a password field, its process, window and control type, whether
  /// it has a value, and its text pattern.
  [[nodiscard]] IUIAutomationCacheRequest* prefetch() const { return prefetch_.Get(); }
  [[nodiscard]] IUIAutomationTreeWalker& walker() const { return *walker_.Get(); }

  /// Sets how long connecting to a program may take from now on, if the client lets it be set.
  void limitConnecting(std::chrono::milliseconds limit);

 private:
  PreparedClient() = default;
  bool prefetchProperties();
  bool limitCalls();

  ComPtr<IUIAutomation2> client_;
  ComPtr<IUIAutomationCacheRequest> prefetch_;
  ComPtr<IUIAutomationTreeWalker> walker_;
  std::optional<std::chrono::milliseconds> connecting_;
};

}  // namespace nhw32
